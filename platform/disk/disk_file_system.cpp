#include "platform/disk/disk_file_system.h"

#include "platform/disk/copy_tree.h"
#include "platform/disk/folders.h"
#include "platform/disk/same_content.h"
#include "platform/disk/trash.h"
#include "platform/file/attributes.h"
#include "platform/foundation/last_error.h"
#include "platform/foundation/paths.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

std::error_code outcome(int answer)
{
    return answer == 0 ? std::error_code() : lastError();
}

ItemKind kindOf(quint32 mode)
{
    if (S_ISREG(mode))
        return ItemKind::File;
    if (S_ISDIR(mode))
        return ItemKind::Folder;
    return S_ISLNK(mode) ? ItemKind::Link : ItemKind::Other;
}

qint64 nanoseconds(const struct statx_timestamp &time)
{
    return time.tv_sec * 1'000'000'000 + time.tv_nsec;
}

std::filesystem::path native(const QString &path)
{
    return std::filesystem::path(encodedPath(path).toStdString());
}

} // namespace

std::optional<ItemState> DiskFileSystem::look(const QString &path) const
{
    struct statx found = {};
    constexpr unsigned wanted = STATX_BASIC_STATS | STATX_BTIME;
    if (::statx(AT_FDCWD, encodedPath(path).constData(), AT_SYMLINK_NOFOLLOW, wanted, &found) != 0)
        return std::nullopt;
    ItemState state;
    state.kind = kindOf(found.stx_mode);
    state.device = (quint64(found.stx_dev_major) << 32) | found.stx_dev_minor;
    state.inode = found.stx_ino;
    state.bytes = qint64(found.stx_size);
    state.changedNs = nanoseconds(found.stx_mtime);
    state.bornNs = (found.stx_mask & STATX_BTIME) ? nanoseconds(found.stx_btime) : 0;
    state.names = found.stx_nlink;
    return state;
}

std::optional<std::vector<FolderEntry>> DiskFileSystem::list(const QString &folder) const
{
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const int descriptor = ::open(encodedPath(folder).constData(), flags);
    const std::unique_ptr<DIR, int (*)(DIR *)> open(descriptor < 0 ? nullptr : ::fdopendir(descriptor), &::closedir);
    if (!open)
        return std::nullopt;
    std::vector<FolderEntry> entries;
    errno = 0;
    while (const dirent *entry = ::readdir(open.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            entries.push_back({decodedPath(entry->d_name), entry->d_type == DT_DIR || entry->d_type == DT_UNKNOWN});
    }
    return errno == 0 ? std::optional(std::move(entries)) : std::nullopt;
}

QString DiskFileSystem::canonicalFolder(const QString &folder) const
{
    char resolved[PATH_MAX];
    struct stat found = {};
    if (!::realpath(encodedPath(folder).constData(), resolved) || ::stat(resolved, &found) != 0 ||
        !S_ISDIR(found.st_mode))
        return {};
    return decodedPath(resolved);
}

bool DiskFileSystem::mayChange(const QString &folder) const
{
    return ::faccessat(AT_FDCWD, encodedPath(folder).constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool DiskFileSystem::mayBeTakenAway(const QString &path) const
{
    return platform::mayBeTakenAway(path);
}

QString DiskFileSystem::linkText(const QString &path) const
{
    char text[PATH_MAX];
    const ssize_t size = ::readlink(encodedPath(path).constData(), text, sizeof text);
    return size < 0 ? QString() : decodedPath(QByteArray(text, size));
}

bool DiskFileSystem::haveSameContent(const QString &one, const QString &other) const
{
    return platform::haveSameContent(native(one), native(other));
}

std::error_code DiskFileSystem::rename(const QString &from, const QString &to)
{
    return renameToNew(from, to);
}

std::error_code DiskFileSystem::exchange(const QString &one, const QString &other)
{
    const std::error_code error = outcome(
        ::renameat2(AT_FDCWD, encodedPath(one).constData(), AT_FDCWD, encodedPath(other).constData(), RENAME_EXCHANGE));
    // Old kernels and some file systems do not support the request.
    const bool isUnknown = error == std::errc::invalid_argument || error == std::errc::function_not_supported ||
                           error == std::errc::operation_not_supported;
    return isUnknown ? std::make_error_code(std::errc::operation_not_supported) : error;
}

std::error_code DiskFileSystem::replace(const QString &from, const QString &to)
{
    return outcome(::rename(encodedPath(from).constData(), encodedPath(to).constData()));
}

void DiskFileSystem::copyPermissions(const QString &from, const QString &to)
{
    struct stat source = {};
    const QByteArray target = encodedPath(to);
    if (::lstat(encodedPath(from).constData(), &source) != 0)
        return;
    copyAccessList({.path = encodedPath(from).constData()}, {.path = target.constData()});
    ::chmod(target.constData(), source.st_mode & 07777);
}

std::error_code DiskFileSystem::makeFolder(const QString &path)
{
    return outcome(::mkdir(encodedPath(path).constData(), 0777));
}

std::error_code DiskFileSystem::removeEmptyFolder(const QString &path)
{
    return outcome(::rmdir(encodedPath(path).constData()));
}

std::error_code DiskFileSystem::makeLink(const QString &target, const QString &path)
{
    return outcome(::symlink(encodedPath(target).constData(), encodedPath(path).constData()));
}

std::error_code DiskFileSystem::copy(const QString &from, const QString &to)
{
    if (const std::error_code error = copyTree(native(from), native(to)))
        return error;
    return settleTree(native(to));
}

std::error_code DiskFileSystem::remove(const QString &path)
{
    std::error_code error;
    if (std::filesystem::remove_all(native(path), error) == 0 && !error)
        return std::make_error_code(std::errc::no_such_file_or_directory);
    return error;
}

std::error_code DiskFileSystem::discard(const QString &path)
{
    return discardTree(native(path));
}

Result<TrashedItem> DiskFileSystem::trash(const QString &path)
{
    return moveToTrash(path);
}

std::error_code DiskFileSystem::restore(const TrashedItem &item, const QString &path)
{
    return restoreFromTrash(item, path);
}

std::optional<TrashedItem> DiskFileSystem::findTrashed(const QString &path, const ItemState &state) const
{
    for (const TrashedItem &item : trashedFrom(path)) {
        const auto found = look(item.path);
        // Not the device number: that may change with a restart.
        if (found && found->kind == state.kind && found->inode == state.inode && found->bornNs == state.bornNs)
            return item;
    }
    return std::nullopt;
}

std::vector<TrashedItem> DiskFileSystem::allTrashed(const QString &path) const
{
    return trashedFrom(path);
}

void DiskFileSystem::discardHalfTrashed(const QString &path)
{
    platform::discardHalfTrashed(path);
}

void DiskFileSystem::settle(const QString &folder)
{
    settleFolder(folder);
}

} // namespace platform
