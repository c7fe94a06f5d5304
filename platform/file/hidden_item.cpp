#include "platform/file/hidden_item.h"

#include "platform/file/held_file.h"
#include "platform/file/living_process.h"
#include "platform/foundation/paths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

#include <optional>

#include <sys/stat.h>

namespace platform {
namespace {

bool isThere(const QString &path)
{
    struct stat found = {};
    return ::lstat(encodedPath(path).constData(), &found) == 0;
}

/** How many hard links an item has; 0 if it does not exist. */
int namesOf(const QString &path)
{
    struct stat found = {};
    return ::lstat(encodedPath(path).constData(), &found) == 0 ? int(found.st_nlink) : 0;
}

QByteArray lineOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/**
 * The file of this process. It is created with the first note and removed with the process, or once it is long and has
 * no open notes.
 */
class Notes
{
public:
    ~Notes() { discard(); }

    void addItem(const QJsonObject &note)
    {
        add(note);
        ++m_open;
    }

    void addEnd(HiddenItem::What what, const QString &hidden)
    {
        constexpr int many = 2000;
        add({{QStringLiteral("gone"), hidden}, {QStringLiteral("what"), wordOf(what)}});
        if (--m_open == 0 && ++m_ended >= many)
            discard();
    }

    const QString &path() const { return m_path; }

private:
    void add(const QJsonObject &note)
    {
        if (!m_file || m_folder != hiddenItemsFolder())
            begin();
        if (m_file)
            (void)m_file->append(lineOf(note), Lasting::WhenTheSystemLikes);
    }

    void discard()
    {
        if (m_file)
            QFile::remove(m_path);
        m_file.reset();
    }

    void begin()
    {
        m_folder = hiddenItemsFolder();
        m_file.reset();
        m_ended = 0;
        if (!QDir().mkpath(m_folder))
            return;
        m_path = joinedPath(m_folder, QUuid::createUuid().toString(QUuid::Id128) + QLatin1String(hiddenItemsEnding));
        if (auto file = HeldFile::make(m_path)) {
            m_file = std::move(*file);
            add({{QStringLiteral("by"), processMark()}});
        }
    }

    QString m_folder;
    QString m_path;
    std::optional<HeldFile> m_file;
    int m_open = 0;
    int m_ended = 0;
};

Notes &ownNotes()
{
    static Notes notes;
    return notes;
}

} // namespace

QString hiddenItemsFolder()
{
    return joinedPath(applicationSupportFolder(), QStringLiteral("quorlin/hidden"));
}

QString ownHiddenItems()
{
    return ownNotes().path();
}

QString wordOf(HiddenItem::What what)
{
    switch (what) {
    case HiddenItem::What::Copy:
        return QStringLiteral("copy");
    case HiddenItem::What::Aside:
        return QStringLiteral("aside");
    case HiddenItem::What::Part:
        return QStringLiteral("part");
    case HiddenItem::What::Placeholder:
        return QStringLiteral("placeholder");
    case HiddenItem::What::SecondName:
        return QStringLiteral("second name");
    }
    Q_UNREACHABLE();
}

HiddenItem::HiddenItem(What what, const QString &hidden, const QString &item, const QString &copy)
    : m_what(what), m_hidden(hidden)
{
    ownNotes().addItem({{QStringLiteral("what"), wordOf(what)},
                        {QStringLiteral("at"), double(QDateTime::currentSecsSinceEpoch())},
                        {QStringLiteral("names"), namesOf(item)},
                        {QStringLiteral("hidden"), QDir(hidden).absolutePath()},
                        {QStringLiteral("item"), QDir(item).absolutePath()},
                        {QStringLiteral("copy"), QDir(copy).absolutePath()}});
}

HiddenItem::~HiddenItem()
{
    const bool isSeen = m_what == What::Placeholder || m_what == What::SecondName;
    if (isSeen || !isThere(m_hidden))
        ownNotes().addEnd(m_what, QDir(m_hidden).absolutePath());
}

} // namespace platform
