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

#include <cstdlib>
#include <map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

std::filesystem::path native(const QString &path)
{
    return std::filesystem::path(QFile::encodeName(path).toStdString());
}

struct Note
{
    QString what;
    qint64 seconds = 0; ///< since 1970, when it was noted
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

/**
 * Removes an empty file if it was made when the note was, nobody holds it, and what was to have its name still has its own: otherwise it
 * may be that item, which was empty itself.
 */
void endPlaceholder(const QString &path, const Note &note)
{
    constexpr qint64 mostSeconds = 10; // the clocks of other disks, and those that count every other second
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat found = {};
    const bool isEmpty = file >= 0 && ::fstat(file, &found) == 0 && S_ISREG(found.st_mode) && found.st_size == 0;
    const bool isOwn = found.st_uid == ::geteuid() && std::abs(found.st_mtime - note.seconds) <= mostSeconds;
    if (isEmpty && isOwn && isTaken(note.item) && showLife(file) != Life::Others)
        ::unlink(QFile::encodeName(path).constData());
    if (file >= 0)
        ::close(file);
}

void endOne(const QString &hidden, const Note &note, QStringList &named)
{
    if (!isTaken(hidden))
        return;
    if (note.what == wordOf(HiddenItem::What::Part)) {
        sweepUnfinishedFile(hidden);
        return;
    }
    if (note.what == wordOf(HiddenItem::What::Placeholder)) {
        endPlaceholder(hidden, note);
        return;
    }
    const bool isCopy = note.what == wordOf(HiddenItem::What::Copy);
    const bool isSpare = isCopy ? isTaken(note.item) : holdsAll(native(note.copy), native(hidden));
    if (isSpare)
        (void)discardTree(native(hidden));
    else
        named.append(giveNameBack(hidden, isCopy ? note.copy : note.item));
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
        const QString what = text(note, "what");
        const QString hidden = text(note, "hidden");
        const bool isPlaceholder = what == wordOf(HiddenItem::What::Placeholder) && hidden.startsWith(u'/');
        if (isPlaceholder || isHiddenName(hidden))
            open[hidden] = {what, qint64(note[QLatin1String("at")].toDouble()), text(note, "item"), text(note, "copy")};
    }
    return open;
}

} // namespace

QStringList sweepHiddenItems()
{
    QStringList named;
    const QDir folder(hiddenItemsFolder());
    for (const QFileInfo &file :
         folder.entryInfoList({u'*' + QLatin1String(hiddenItemsEnding)}, QDir::Files | QDir::NoSymLinks)) {
        const auto held = HeldFile::open(file.filePath());
        if (!held || file.filePath() == ownHiddenItems())
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
