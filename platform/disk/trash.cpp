#include "platform/disk/trash.h"

#include "platform/disk/folders.h"
#include "platform/foundation/file_names.h"
#include "platform/foundation/last_error.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

/** What is to be trashed: its path, and how the info file of a given trash spells it. */
struct Item
{
    QString path;
    QString placeForInfo;
};

enum class Reach { OneFileSystem, AnyFileSystem };

const QString infoEnding = QStringLiteral(".trashinfo");

QByteArray native(const QString &path)
{
    return QFile::encodeName(path);
}

bool isOwnFolder(const QString &path)
{
    struct stat found = {};
    return ::lstat(native(path).constData(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == ::geteuid();
}

bool makePrivateFolder(const QString &path)
{
    return ::mkdir(native(path).constData(), 0700) == 0 || folderExists(path);
}

/** Creates a trash with its two folders if they are missing. */
bool prepare(const QString &trash)
{
    return makeFolder(parentFolder(trash)) && makePrivateFolder(trash) &&
           makePrivateFolder(joinedPath(trash, QStringLiteral("files"))) &&
           makePrivateFolder(joinedPath(trash, QStringLiteral("info")));
}

QString fileIn(const QString &trash, const QString &name)
{
    return joinedPath(trash, QStringLiteral("files/") + name);
}

QString infoIn(const QString &trash, const QString &name)
{
    return joinedPath(trash, QStringLiteral("info/") + name + infoEnding);
}

/** The @p number-th name to try: "a.jpg", "a.2.jpg", "a.3.jpg" ..., cut so that the info file's name is not too long. */
QString numbered(const QString &name, int number)
{
    constexpr qsizetype longestInBytes = longestNameBytes - 10; // ".trashinfo"
    constexpr qsizetype longestExtension = 32;                  // anything longer is no extension and may be cut
    const QString base = baseName(name);
    const bool isSplit = name.size() - base.size() <= longestExtension;
    const QString tail =
        (number > 1 ? u'.' + QString::number(number) : QString()) + (isSplit ? name.mid(base.size()) : QString());
    return shortened(isSplit ? base : name, longestInBytes - native(tail).size()) + tail;
}

QByteArray infoText(const Item &item)
{
    return "[Trash Info]\nPath=" + QUrl::toPercentEncoding(item.placeForInfo, "/") +
           "\nDeletionDate=" + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toLatin1() +
           '\n';
}

/** Creates the info file exclusively: whoever creates it owns the name. */
std::error_code writeNewFile(const QString &path, const QByteArray &text)
{
    const int descriptor = ::open(native(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return lastError();
    const bool isWritten = ::write(descriptor, text.constData(), size_t(text.size())) == text.size();
    std::error_code error = isWritten ? std::error_code() : std::make_error_code(std::errc::no_space_on_device);
    if (::close(descriptor) != 0 && !error)
        error = lastError();
    if (error)
        ::unlink(native(path).constData());
    return error;
}

std::error_code moveTo(const QString &from, const QString &to, Reach reach)
{
    const std::error_code error = renameToNew(from, to);
    if (error != std::errc::cross_device_link || reach == Reach::OneFileSystem)
        return error;
    return moveItem(from, to) ? std::error_code() : error;
}

/** Where an item is in a trash, or why it is not. */
struct Put
{
    std::error_code error;
    QString path;
};

/** Puts the item into one trash. The info file is written first, so that nothing is in the trash without one. */
Put putInto(const QString &trash, const Item &item, Reach reach)
{
    if (!prepare(trash))
        return {std::make_error_code(std::errc::permission_denied), {}};
    const QString name = lastPathComponent(item.path);
    for (int number = 1;; ++number) {
        const QString candidate = numbered(name, number);
        std::error_code error = writeNewFile(infoIn(trash, candidate), infoText(item));
        if (error == std::errc::file_exists)
            continue;
        if (error)
            return {error, {}};
        error = moveTo(item.path, fileIn(trash, candidate), reach);
        if (!error)
            return {{}, fileIn(trash, candidate)};
        ::unlink(native(infoIn(trash, candidate)).constData());
        if (error != std::errc::file_exists)
            return {error, {}};
    }
}

std::optional<dev_t> deviceOf(const QString &folder)
{
    struct stat found = {};
    return ::stat(native(folder).constData(), &found) == 0 ? std::optional(found.st_dev) : std::nullopt;
}

/**
 * The topmost folder of the file system of @p folder, a path without links. A name in a working folder that somebody
 * has removed stays relative, and has no parent to climb to: the answer is the root.
 */
QString topFolderOf(QString folder)
{
    if (!folder.startsWith(u'/'))
        return QStringLiteral("/");
    while (!deviceOf(folder) && folder != QStringLiteral("/"))
        folder = parentFolder(folder);
    const auto device = deviceOf(folder);
    while (folder != QStringLiteral("/") && deviceOf(parentFolder(folder)) == device)
        folder = parentFolder(folder);
    return folder;
}

/** Whether it is a trash for all users, in which nobody can remove what another one put there. */
bool isSafeForAll(const QString &trash)
{
    struct stat found = {};
    return ::lstat(native(trash).constData(), &found) == 0 && S_ISDIR(found.st_mode) && (found.st_mode & S_ISVTX);
}

/** The user's folder in a trash that an administrator made for all users of a file system; empty if there is none. */
QString sharedTrash(const QString &top)
{
    const QString all = joinedPath(top, QStringLiteral(".Trash"));
    const QString own = joinedPath(all, QString::number(::geteuid()));
    return isSafeForAll(all) && makePrivateFolder(own) && isOwnFolder(own) ? own : QString();
}

/** The user's own trash on a file system; empty if it cannot be created, or somebody else created it. */
QString ownTrash(const QString &top)
{
    const QString own = joinedPath(top, QStringLiteral(".Trash-") + QString::number(::geteuid()));
    return makePrivateFolder(own) && isOwnFolder(own) ? own : QString();
}

QString belowTop(const QString &path, const QString &top)
{
    return path.mid(top == QStringLiteral("/") ? 1 : top.size() + 1);
}

Put putIntoItsFileSystem(const Item &item)
{
    const QString top = topFolderOf(parentFolder(item.path));
    for (const auto &find : {sharedTrash, ownTrash})
        if (const QString trash = find(top); !trash.isEmpty())
            if (Put put = putInto(trash, {item.path, belowTop(item.path, top)}, Reach::OneFileSystem); !put.error)
                return put;
    return {std::make_error_code(std::errc::permission_denied), {}};
}

QString homeTrash()
{
    return joinedPath(applicationSupportFolder(), QStringLiteral("Trash"));
}

/** The folder without links; if it is gone, the part that still exists. */
QString canonicalFolder(const QString &folder)
{
    const QString canonical = QFileInfo(folder.isEmpty() ? QStringLiteral(".") : folder).canonicalFilePath();
    if (!canonical.isEmpty() || folder.isEmpty() || folder == QStringLiteral("/"))
        return canonical;
    return joinedPath(canonicalFolder(parentFolder(folder)), lastPathComponent(folder));
}

QString withoutLinks(const QString &path)
{
    return joinedPath(canonicalFolder(parentFolder(path)), lastPathComponent(path));
}

constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/** Whether nobody has written to the item, or to anything in it, for some seconds. */
bool isLeftAlone(const QString &path)
{
    constexpr int seconds = 10;
    const QFileInfo info(path);
    if (info.lastModified().secsTo(QDateTime::currentDateTime()) < seconds)
        return false;
    const QDir folder(path);
    const QStringList names = info.isDir() && !info.isSymLink() ? folder.entryList(everything) : QStringList();
    return std::all_of(names.begin(), names.end(),
                       [&](const QString &name) { return isLeftAlone(folder.filePath(name)); });
}

/** Whether the file is a prefix of the other one, or equal to it. */
bool isBeginningOfFile(const QString &part, const QString &whole)
{
    constexpr qint64 blockBytes = 1 << 20;
    QFile one(part);
    QFile other(whole);
    if (!one.open(QIODevice::ReadOnly) || !other.open(QIODevice::ReadOnly))
        return false;
    while (!one.atEnd()) {
        const QByteArray block = one.read(blockBytes);
        if (block.isEmpty() || other.read(block.size()) != block)
            return false;
    }
    return true;
}

/** The same for a link, which is complete or missing, and for a folder, which may lack some of the other's contents. */
bool isBeginningOf(const QString &part, const QString &whole)
{
    const QFileInfo one(part);
    const QFileInfo other(whole);
    if (one.isSymLink() || other.isSymLink())
        return one.isSymLink() && other.isSymLink() && one.symLinkTarget() == other.symLinkTarget();
    if (!one.isDir() || !other.isDir())
        return one.isFile() && other.isFile() && isBeginningOfFile(part, whole);
    const QDir folder(part);
    const QStringList names = folder.entryList(everything);
    return std::all_of(names.begin(), names.end(), [&](const QString &name) {
        return isBeginningOf(folder.filePath(name), joinedPath(whole, name));
    });
}

/** A trash and how its info files spell a path. */
struct NamedPlace
{
    QString trash;
    QString place;
};

std::vector<NamedPlace> trashesFor(const QString &place)
{
    const QString top = topFolderOf(parentFolder(place));
    const QString user = QString::number(::geteuid());
    std::vector<NamedPlace> all = {{homeTrash(), place}};
    for (const QString &trash : {QStringLiteral(".Trash/") + user, QStringLiteral(".Trash-") + user})
        all.push_back({joinedPath(top, trash), belowTop(place, top)});
    return all;
}

/** The info files of one trash that name the path, latest first. */
QStringList infoFilesOf(const NamedPlace &named)
{
    constexpr qint64 longestInfo = 1 << 16;
    const QByteArray line = "Path=" + QUrl::toPercentEncoding(named.place, "/");
    const QDir info(joinedPath(named.trash, QStringLiteral("info")));
    QStringList found;
    // A link could lead to an endless device.
    constexpr auto filter = QDir::Files | QDir::Hidden | QDir::NoSymLinks;
    for (const QFileInfo &entry : info.entryInfoList({u'*' + infoEnding}, filter, QDir::Time)) {
        QFile file(entry.filePath());
        if (entry.isFile() && file.open(QIODevice::ReadOnly) && file.read(longestInfo).split('\n').contains(line))
            found.append(entry.filePath());
    }
    return found;
}

QString itemOf(const QString &trash, const QString &infoFile)
{
    return fileIn(trash, lastPathComponent(infoFile).chopped(infoEnding.size()));
}

} // namespace

QString trashPlaceFor(const QString &folder)
{
    const QString place = canonicalFolder(folder);
    const QString top = topFolderOf(place);
    if (deviceOf(topFolderOf(homeTrash())) == deviceOf(top))
        return homeTrash();
    const QString own = joinedPath(top, QStringLiteral(".Trash-") + QString::number(::geteuid()));
    const bool canBeMade = !isTaken(own) && ::access(native(top).constData(), W_OK) == 0;
    return isSafeForAll(joinedPath(top, QStringLiteral(".Trash"))) || isOwnFolder(own) || canBeMade ? top : homeTrash();
}

Result<TrashedItem> moveToTrash(const QString &path)
{
    const QString name = lastPathComponent(path);
    if (name == QStringLiteral("/") || name == QStringLiteral(".") || name == QStringLiteral(".."))
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "Cannot move %1 to the trash").arg(path));
    if (!isTaken(path))
        return failure(ErrorCode::NotFound,
                       QCoreApplication::translate("platform", "Cannot move %1 to the trash: no such file").arg(path));
    const QString place = withoutLinks(path);
    const Item item = {place, place};
    Put put = putInto(homeTrash(), item, Reach::OneFileSystem);
    if (put.error == std::errc::cross_device_link)
        if (Put other = putIntoItsFileSystem(item); !other.error)
            put = other;
    if (put.error == std::errc::cross_device_link)
        put = putInto(homeTrash(), item, Reach::AnyFileSystem);
    if (put.error)
        return failure(ErrorCode::WriteFailed,
                       QCoreApplication::translate("platform", "Cannot move %1 to the trash: %2")
                           .arg(path, QString::fromLocal8Bit(put.error.message().c_str())));
    return TrashedItem{put.path};
}

std::error_code restoreFromTrash(const TrashedItem &item, const QString &path)
{
    const std::error_code error = moveTo(item.path, path, Reach::AnyFileSystem);
    if (error)
        return error;
    const QString trash = parentFolder(parentFolder(item.path));
    ::unlink(native(infoIn(trash, lastPathComponent(item.path))).constData());
    return {};
}

void discardHalfTrashed(const QString &path)
{
    const QString place = withoutLinks(path);
    for (const NamedPlace &named : trashesFor(place)) {
        for (const QString &infoFile : infoFilesOf(named))
            if (!isTaken(itemOf(named.trash, infoFile)))
                ::unlink(native(infoFile).constData());
        const QDir copies(joinedPath(named.trash, QStringLiteral("files")));
        for (const QString &name : copies.entryList({QStringLiteral(".quorlin-*")}, everything))
            if (const QString copy = copies.filePath(name); isLeftAlone(copy) && isBeginningOf(copy, place))
                (void)removeItem(copy);
    }
}

std::vector<TrashedItem> trashedFrom(const QString &path)
{
    std::vector<TrashedItem> found;
    for (const NamedPlace &named : trashesFor(withoutLinks(path)))
        for (const QString &infoFile : infoFilesOf(named))
            if (const QString item = itemOf(named.trash, infoFile); isTaken(item))
                found.push_back({item});
    return found;
}

} // namespace platform
