#include "platform/disk/hidden_item.h"

#include "platform/disk/copy_tree.h"
#include "platform/disk/folders.h"
#include "platform/disk/same_content.h"
#include "platform/file/held_file.h"
#include "platform/file/living_process.h"
#include "platform/foundation/paths.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <map>
#include <optional>

namespace platform {
namespace {

const QString ending = QStringLiteral(".hidden");

QString notesFolder()
{
    return joinedPath(applicationSupportFolder(), QStringLiteral("quorlin/hidden"));
}

std::filesystem::path native(const QString &path)
{
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

QByteArray lineOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/** The file of this process. It is made with the first note and goes with the process. */
class Notes
{
public:
    ~Notes()
    {
        if (m_file)
            QFile::remove(m_path);
    }

    void add(const QJsonObject &note)
    {
        if (!m_file || m_folder != notesFolder())
            begin();
        if (m_file)
            (void)m_file->append(lineOf(note), Lasting::WhenTheSystemLikes);
    }

    const QString &path() const { return m_path; }

private:
    void begin()
    {
        m_folder = notesFolder();
        m_file.reset();
        if (!makeFolder(m_folder))
            return;
        m_path = joinedPath(m_folder, QUuid::createUuid().toString(QUuid::Id128) + ending);
        if (auto file = HeldFile::make(m_path)) {
            m_file = std::move(*file);
            add({{QStringLiteral("by"), processMark()}});
        }
    }

    QString m_folder;
    QString m_path;
    std::optional<HeldFile> m_file;
};

Notes &ownNotes()
{
    static Notes notes;
    return notes;
}

struct Note
{
    bool isCopy = false;
    QString item;
    QString copy;
};

QString text(const QJsonObject &object, const char *key)
{
    return object[QLatin1String(key)].toString();
}

/** Only names that are made here are touched, whatever a note says. */
bool isHiddenName(const QString &path)
{
    return path.startsWith(u'/') && lastPathComponent(path).startsWith(QStringLiteral(".quorlin-"));
}

void endOne(const QString &hidden, const Note &note, QStringList &named)
{
    if (!isTaken(hidden))
        return;
    const bool isSpare = note.isCopy ? isTaken(note.item) : holdsAll(native(note.copy), native(hidden));
    if (isSpare)
        (void)discardTree(native(hidden));
    else
        named.append(giveNameBack(hidden, note.isCopy ? note.copy : note.item));
}

std::map<QString, Note> openNotes(const QByteArray &lines, QString *by)
{
    std::map<QString, Note> open;
    for (const QByteArray &line : lines.split('\n')) {
        const QJsonObject note = QJsonDocument::fromJson(line).object();
        if (const QString gone = text(note, "gone"); !gone.isEmpty())
            open.erase(gone);
        if (const QString mark = text(note, "by"); !mark.isEmpty())
            *by = mark;
        if (const QString hidden = text(note, "hidden"); isHiddenName(hidden))
            open[hidden] = {text(note, "what") == QStringLiteral("copy"), text(note, "item"), text(note, "copy")};
    }
    return open;
}

} // namespace

HiddenItem::HiddenItem(What what, const QString &hidden, const QString &item, const QString &copy) : m_hidden(hidden)
{
    const QString word = what == What::Copy ? QStringLiteral("copy") : QStringLiteral("aside");
    ownNotes().add({{QStringLiteral("what"), word},
                    {QStringLiteral("hidden"), hidden},
                    {QStringLiteral("item"), QDir(item).absolutePath()},
                    {QStringLiteral("copy"), QDir(copy).absolutePath()}});
}

HiddenItem::~HiddenItem()
{
    if (!isTaken(m_hidden))
        ownNotes().add({{QStringLiteral("gone"), m_hidden}});
}

QStringList sweepHiddenItems()
{
    QStringList named;
    const QDir folder(notesFolder());
    for (const QFileInfo &file : folder.entryInfoList({u'*' + ending}, QDir::Files | QDir::NoSymLinks)) {
        const auto held = HeldFile::open(file.filePath());
        if (!held || file.filePath() == ownNotes().path())
            continue;
        QString by;
        const auto open = openNotes(held->readAll().value_or(QByteArray()), &by);
        if (!held->isLocked() && mayBeLiving(by))
            continue;
        for (const auto &[hidden, note] : open)
            endOne(hidden, note, named);
        QFile::remove(file.filePath());
    }
    return named;
}

} // namespace platform
