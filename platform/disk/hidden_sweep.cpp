#include "platform/disk/hidden_sweep.h"

#include "platform/disk/copy_tree.h"
#include "platform/disk/folders.h"
#include "platform/disk/same_content.h"
#include "platform/file/held_file.h"
#include "platform/file/hidden_item.h"
#include "platform/file/living_process.h"
#include "platform/file/sign_of_life.h"
#include "platform/foundation/paths.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

std::filesystem::path native(const QString &path)
{
    return std::filesystem::path(encodedPath(path).toStdString());
}

struct Note
{
    QString what;
    QString hidden;
    qint64 names = 0;   ///< of the item
    qint64 seconds = 0; ///< since 1970, when the note was made
    QString item;
    QString copy;
};

QString text(const QJsonObject &object, const char *key)
{
    return object[QLatin1String(key)].toString();
}

/** Only names in our format are removed, whatever a note says. */
bool isHiddenName(const QString &path)
{
    return path.startsWith(u'/') && lastPathComponent(path).startsWith(QStringLiteral(".quorlin-"));
}

/**
 * Removes an empty file if it was created with the note, nobody holds it, and the item that was to get its name still
 * has its own: otherwise it may be that item, empty itself.
 */
void endPlaceholder(const Note &note)
{
    const QString &path = note.hidden;
    constexpr qint64 mostSeconds = 10; // clocks of network disks, and timestamps with a resolution of two seconds
    const int file = ::open(encodedPath(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat found = {};
    const bool isEmpty = file >= 0 && ::fstat(file, &found) == 0 && S_ISREG(found.st_mode) && found.st_size == 0;
    const bool isOwn = found.st_uid == ::geteuid() && std::abs(found.st_mtime - note.seconds) <= mostSeconds;
    if (isEmpty && isOwn && isTaken(note.item) && showLife(file) != Life::Others)
        ::unlink(encodedPath(path).constData());
    if (file >= 0)
        ::close(file);
}

/** Removes the second name if the item still has both and had one less before. */
void endSecondName(const Note &note)
{
    struct stat second = {};
    struct stat first = {};
    const QByteArray path = encodedPath(note.hidden);
    const bool areBoth =
        ::lstat(path.constData(), &second) == 0 && ::lstat(encodedPath(note.item).constData(), &first) == 0;
    const bool isOne = areBoth && first.st_dev == second.st_dev && first.st_ino == second.st_ino;
    if (isOne && note.names > 0 && qint64(second.st_nlink) > note.names)
        ::unlink(path.constData());
}

void endOne(const Note &note, QStringList &named)
{
    const QString &hidden = note.hidden;
    if (!isTaken(hidden))
        return;
    if (note.what == wordOf(HiddenItem::What::Part)) {
        sweepUnfinishedFile(hidden);
        return;
    }
    if (note.what == wordOf(HiddenItem::What::SecondName)) {
        endSecondName(note);
        return;
    }
    if (note.what == wordOf(HiddenItem::What::Placeholder)) {
        endPlaceholder(note);
        return;
    }
    const bool isCopy = note.what == wordOf(HiddenItem::What::Copy);
    const bool isSpare = isCopy ? isTaken(note.item) : holdsAll(native(note.copy), native(hidden));
    if (isSpare)
        (void)discardTree(native(hidden));
    else
        named.append(giveNameBack(hidden, isCopy ? note.copy : note.item));
}

/** Names that are not hidden ones. */
bool isSeen(const QString &what)
{
    return what == wordOf(HiddenItem::What::Placeholder) || what == wordOf(HiddenItem::What::SecondName);
}

/** The notes without an end, in order. An end that does not name an operation ends everything noted about a path. */
std::vector<Note> openNotes(const QByteArray &lines, QString *by)
{
    std::vector<Note> open;
    for (const QByteArray &line : lines.split('\n')) {
        const QJsonObject note = QJsonDocument::fromJson(line).object();
        if (const QString mark = text(note, "by"); !mark.isEmpty())
            *by = mark;
        const QString what = text(note, "what");
        const QString gone = text(note, "gone");
        const auto isEnded = [&](const Note &one) {
            return one.hidden == gone && (what.isEmpty() || one.what == what);
        };
        open.erase(std::remove_if(open.begin(), open.end(), isEnded), open.end());
        const QString hidden = text(note, "hidden");
        if (isHiddenName(hidden) || (isSeen(what) && hidden.startsWith(u'/')))
            open.push_back({what, hidden, note[QLatin1String("names")].toInteger(),
                            qint64(note[QLatin1String("at")].toDouble()), text(note, "item"), text(note, "copy")});
    }
    return open;
}

/** The notes of processes that have ended; while they are locked here nobody else reads them. */
class LeftNotes
{
public:
    LeftNotes()
    {
        const QDir folder(hiddenItemsFolder());
        for (const QFileInfo &file :
             folder.entryInfoList({u'*' + QLatin1String(hiddenItemsEnding)}, QDir::Files | QDir::NoSymLinks))
            if (file.filePath() != ownHiddenItems())
                take(file.filePath());
    }

    const std::vector<Note> &all() const { return m_all; }

    void discard()
    {
        for (const Taken &taken : m_taken)
            QFile::remove(taken.path);
    }

private:
    struct Taken
    {
        QString path;
        HeldFile held;
    };

    void take(const QString &path)
    {
        auto held = HeldFile::open(path);
        if (!held)
            return;
        QString by;
        const std::vector<Note> open = openNotes(held->readAll().value_or(QByteArray()), &by);
        if (!held->isLocked() && mayBeLiving(by))
            return;
        m_all.insert(m_all.end(), open.begin(), open.end());
        m_taken.push_back({path, std::move(*held)});
    }

    std::vector<Taken> m_taken;
    std::vector<Note> m_all;
};

} // namespace

QStringList sweepHiddenItems()
{
    QStringList named;
    LeftNotes notes;
    // Names that were being assigned come first: without them the items are where the other notes say.
    for (const bool isTurnOfSeen : {true, false})
        for (const Note &note : notes.all())
            if (isSeen(note.what) == isTurnOfSeen)
                endOne(note, named);
    notes.discard();
    return named;
}

} // namespace platform
