#include "platform/disk/folders.h"

#include "platform/disk/copy_tree.h"
#include "platform/disk/same_content.h"
#include "platform/file/hidden_item.h"
#include "platform/file/sign_of_life.h"
#include "platform/foundation/last_error.h"
#include "platform/foundation/paths.h"

#include <QDir>
#include <QUuid>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

namespace fs = std::filesystem;

/** The path of the item itself: with a trailing slash a link would be followed. */
fs::path native(const QString &path)
{
    return fs::path(encodedPath(withoutTrailingSlashes(path)).toStdString());
}

tl::unexpected<Error> noPath(const QString &path)
{
    return failure(ErrorCode::InvalidValue, QStringLiteral("This cannot be the path of an item: %1").arg(path));
}

QString because(const std::error_code &error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

/**
 * An unused name beside @p item, hidden and short, so that it fits even if the item's own name is as long as possible.
 */
QString besideOf(const QString &item)
{
    const QString tag = QUuid::createUuid().toString(QUuid::Id128).left(12);
    return joinedPath(parentFolder(QDir(item).absolutePath()), QStringLiteral(".quorlin-") + tag);
}

/** Whether the path still leads to the open file, and nobody has written to it. */
bool isStillEmpty(int file, const fs::path &path)
{
    struct stat open = {};
    struct stat there = {};
    return ::fstat(file, &open) == 0 && ::lstat(path.c_str(), &there) == 0 && open.st_ino == there.st_ino &&
           open.st_dev == there.st_dev && open.st_size == 0;
}

/**
 * The empty file created first reserves the name; later processes find it taken. One that writes into it or replaces it
 * anyway is noticed until the last moment. The note covers a kill before the rename.
 */
std::error_code renameOntoPlaceholder(const fs::path &from, const fs::path &to)
{
    const HiddenItem noted(HiddenItem::What::Placeholder, decodedPath(to.c_str()), decodedPath(from.c_str()));
    const int placeholder = ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (placeholder < 0)
        return lastError();
    showLife(placeholder);
    std::error_code error = std::make_error_code(std::errc::file_exists);
    if (isStillEmpty(placeholder, to) && ::rename(from.c_str(), to.c_str()) == 0)
        error = {};
    else if (isStillEmpty(placeholder, to)) {
        error = lastError();
        ::unlink(to.c_str());
    }
    ::close(placeholder);
    return error;
}

bool isForLackOfLinks(const std::error_code &error)
{
    return error == std::errc::operation_not_permitted || error == std::errc::not_supported ||
           error == std::errc::function_not_supported || error == std::errc::too_many_links;
}

/** A hard link cannot replace an existing name; then the first name is removed. The note covers a kill in between. */
std::error_code renameByLink(const fs::path &from, const fs::path &to)
{
    const HiddenItem noted(HiddenItem::What::SecondName, decodedPath(to.c_str()), decodedPath(from.c_str()));
    if (::link(from.c_str(), to.c_str()) != 0)
        return lastError();
    if (::unlink(from.c_str()) == 0)
        return {};
    const std::error_code error = lastError();
    ::unlink(to.c_str());
    return error;
}

std::error_code renameUnpromised(const fs::path &from, const fs::path &to)
{
    std::error_code error;
    if (fs::exists(fs::symlink_status(to, error)))
        return std::make_error_code(std::errc::file_exists);
    if (!fs::is_directory(fs::symlink_status(from, error))) {
        error = renameByLink(from, to);
        return isForLackOfLinks(error) ? renameOntoPlaceholder(from, to) : error;
    }
    // The system itself refuses to replace a file or a non-empty folder by a folder.
    return ::rename(from.c_str(), to.c_str()) == 0 ? std::error_code() : lastError();
}

std::error_code renamePath(const fs::path &from, const fs::path &to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return {};
    return errno == EINVAL || errno == ENOSYS || errno == ENOTSUP ? renameUnpromised(from, to) : lastError();
}

/** True if @p item is in the folder @p folder, or is that folder. */
bool isWithin(const fs::path &item, const fs::path &folder)
{
    std::error_code error;
    if (!fs::is_directory(fs::symlink_status(folder, error)))
        return false;
    const fs::path outer = fs::canonical(folder, error);
    const fs::path inner = fs::weakly_canonical(item.parent_path(), error);
    return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
}

bool mayChange(const fs::path &folder)
{
    return ::faccessat(AT_FDCWD, folder.c_str(), R_OK | W_OK | X_OK, AT_EACCESS) == 0;
}

/** A copy is synced to disk before its source is removed. */
void settle(const QString &folder)
{
    const int descriptor = ::open(native(folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::syncfs(descriptor);
    ::close(descriptor);
}

tl::unexpected<Error> notMoved(const QString &from, const QString &to, const std::error_code &error)
{
    const bool isMissing = error == std::errc::no_such_file_or_directory && !isTaken(from);
    return failure(isMissing ? ErrorCode::NotFound : ErrorCode::WriteFailed,
                   QStringLiteral("Cannot move %1 to %2: %3").arg(from, to, because(error)));
}

/**
 * Removes a copy whose source stays; if the source has disappeared meanwhile, the copy is all that is left and is kept.
 */
Result<void> withoutCopy(const QString &from, const QString &to, const std::error_code &why)
{
    const QString aside = besideOf(to);
    const HiddenItem noted(HiddenItem::What::Copy, aside, from, to);
    if (!renameToNew(to, aside)) {
        if (isTaken(from))
            (void)discardTree(native(aside));
        else
            giveNameBack(aside, to);
    }
    return isTaken(from) ? notMoved(from, to, why) : Result<void>();
}

/**
 * Moves to another file system. The source is renamed away in one step, so that it is complete until then, and is
 * compared with the copy afterwards: whatever another program wrote into it last is kept.
 */
Result<void> moveByCopying(const QString &from, const QString &to)
{
    if (!mayBeTakenAway(from))
        return notMoved(from, to, std::make_error_code(std::errc::permission_denied));
    if (const auto copied = copyItem(from, to); !copied)
        return copied;
    settle(parentFolder(to));
    const QString aside = besideOf(from);
    const HiddenItem noted(HiddenItem::What::Aside, aside, from, to);
    if (const std::error_code error = renameToNew(from, aside))
        return withoutCopy(from, to, error);
    if (!haveSameContent(native(aside), native(to))) {
        giveNameBack(aside, from);
        return withoutCopy(from, to, std::make_error_code(std::errc::device_or_resource_busy));
    }
    const auto removed = removeItem(aside);
    if (!removed)
        giveNameBack(aside, from);
    return removed;
}

} // namespace

bool mayBeTakenAway(const QString &path)
{
    const fs::path item = native(path);
    std::error_code error;
    const fs::path parent = item.has_parent_path() ? item.parent_path() : fs::path(".");
    if (!mayChange(parent))
        return false;
    if (!fs::is_directory(fs::symlink_status(item, error)))
        return true;
    if (!mayChange(item))
        return false;
    const auto below = fs::recursive_directory_iterator(item, error);
    return !error && std::all_of(begin(below), end(below), [](const fs::directory_entry &entry) {
        std::error_code ignored;
        return !entry.is_directory(ignored) || entry.is_symlink(ignored) || mayChange(entry.path());
    });
}

bool itemExists(const QString &path)
{
    struct stat found = {};
    return canBeAPath(path) && ::stat(encodedPath(path).constData(), &found) == 0;
}

bool isTaken(const QString &path)
{
    std::error_code error;
    return canBeAPath(path) && fs::exists(fs::symlink_status(native(path), error));
}

bool folderExists(const QString &path)
{
    struct stat found = {};
    return canBeAPath(path) && ::stat(encodedPath(path).constData(), &found) == 0 && S_ISDIR(found.st_mode);
}

Result<void> makeFolder(const QString &path)
{
    if (!canBeAPath(path))
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot make a folder without a path"));
    std::error_code error;
    fs::create_directories(native(path), error);
    // Some libraries report an error for a path that ends in "/" although the folder was created.
    if (!folderExists(path))
        return failure(ErrorCode::WriteFailed,
                       QStringLiteral("Cannot make the folder %1: %2").arg(path, because(error)));
    return {};
}

void settleFolder(const QString &path)
{
    const int descriptor = ::open(native(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

Result<void> removeItem(const QString &path)
{
    const QString name = lastPathComponent(path);
    // "." and ".." could only be emptied, not removed; and nobody can mean "/".
    if (!canBeAPath(path) || name == QStringLiteral("/") || name == QStringLiteral(".") || name == QStringLiteral(".."))
        return noPath(path);
    std::error_code error;
    const std::uintmax_t count = fs::remove_all(native(path), error);
    if (error)
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot remove %1: %2").arg(path, because(error)));
    if (count == 0)
        return failure(ErrorCode::NotFound, QStringLiteral("Cannot remove %1: there is nothing").arg(path));
    return {};
}

Result<void> copyItem(const QString &from, const QString &to)
{
    if (!isTaken(from))
        return failure(ErrorCode::NotFound, QStringLiteral("Cannot copy %1: there is nothing").arg(from));
    if (!canBeAPath(to) || isTaken(to))
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot copy to %1: something is there").arg(to));
    if (isWithin(native(to), native(from)))
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot copy %1 into itself").arg(from));
    const QString beside = besideOf(to);
    const HiddenItem noted(HiddenItem::What::Copy, beside, from, to);
    std::error_code error = copyTree(native(from), native(beside));
    if (!error)
        error = renameToNew(beside, to);
    if (!error)
        return {};
    (void)discardTree(native(beside));
    return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot copy %1 to %2: %3").arg(from, to, because(error)));
}

std::error_code renameToNew(const QString &from, const QString &to)
{
    if (!canBeAPath(from) || !canBeAPath(to))
        return std::make_error_code(std::errc::no_such_file_or_directory);
    return renamePath(native(from), native(to));
}

QString giveNameBack(const QString &aside, const QString &path)
{
    constexpr int mostNumbers = 1000;
    QString place = path;
    std::error_code error = renameToNew(aside, place);
    for (int number = 2; error == std::errc::file_exists && number < mostNumbers; ++number) {
        place = QStringLiteral("%1 (%2)").arg(path).arg(number);
        error = renameToNew(aside, place);
    }
    return error ? aside : place;
}

std::error_code renameWithoutPromise(const QString &from, const QString &to)
{
    return renameUnpromised(native(from), native(to));
}

Result<void> moveItem(const QString &from, const QString &to)
{
    const std::error_code error = renameToNew(from, to);
    if (!error)
        return {};
    return error == std::errc::cross_device_link ? moveByCopying(from, to) : notMoved(from, to, error);
}

Result<void> makeLink(const QString &target, const QString &path)
{
    std::error_code error = std::make_error_code(std::errc::invalid_argument);
    if (canBeAPath(target) && canBeAPath(path))
        fs::create_symlink(fs::path(encodedPath(target).toStdString()), native(path), error);
    if (error)
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot link %1: %2").arg(path, because(error)));
    return {};
}

} // namespace platform
