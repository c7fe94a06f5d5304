#include "platform/foundation/copy_tree.h"

#include <cerrno>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace platform {
namespace {

namespace fs = std::filesystem;

std::error_code lastError()
{
    return std::error_code(errno, std::generic_category());
}

void copyAttribute(const fs::path &from, const fs::path &to, const char *name)
{
    const ssize_t size = ::lgetxattr(from.c_str(), name, nullptr, 0);
    if (size < 0)
        return;
    std::string value(size_t(size), '\0');
    if (::lgetxattr(from.c_str(), name, value.data(), value.size()) == size)
        ::lsetxattr(to.c_str(), name, value.data(), value.size(), 0);
}

/** The tags and the like that the user or a program of the user hung on the item. */
void copyAttributes(const fs::path &from, const fs::path &to)
{
    const ssize_t size = ::llistxattr(from.c_str(), nullptr, 0);
    if (size <= 0)
        return;
    std::string names(size_t(size), '\0');
    if (::llistxattr(from.c_str(), names.data(), names.size()) != size)
        return;
    for (size_t at = 0; at < names.size(); at += std::string_view(names.data() + at).size() + 1)
        if (std::string_view(names.data() + at).substr(0, 5) == "user.")
            copyAttribute(from, to, names.data() + at);
}

void copyDates(const struct stat &from, const fs::path &to)
{
    const timespec times[2] = {from.st_atim, from.st_mtim};
    ::utimensat(AT_FDCWD, to.c_str(), times, AT_SYMLINK_NOFOLLOW);
}

/** The folder is the user's alone while it is filled, whatever it allows in the end. */
std::error_code copyFolder(const fs::path &from, const fs::path &to, mode_t mode)
{
    std::error_code error;
    if (::mkdir(to.c_str(), 0700) != 0)
        return lastError();
    for (auto entry = fs::directory_iterator(from, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (const std::error_code inside = copyTree(entry->path(), to / entry->path().filename()))
            return inside;
    if (!error && ::chmod(to.c_str(), mode) != 0)
        error = lastError();
    return error;
}

} // namespace

std::error_code copyTree(const fs::path &from, const fs::path &to)
{
    struct stat source = {};
    if (::lstat(from.c_str(), &source) != 0)
        return lastError();
    std::error_code error = std::make_error_code(std::errc::not_supported);
    if (S_ISLNK(source.st_mode))
        fs::copy_symlink(from, to, error);
    else if (S_ISDIR(source.st_mode))
        error = copyFolder(from, to, source.st_mode & 07777);
    else if (S_ISREG(source.st_mode))
        fs::copy_file(from, to, error);
    if (error)
        return error;
    copyAttributes(from, to);
    copyDates(source, to);
    return {};
}

} // namespace platform
