#include "platform/disk/copy_tree.h"

#include "platform/file/attributes.h"
#include "platform/foundation/last_error.h"

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

namespace fs = std::filesystem;

/** A descriptor that is closed on destruction. */
class Open
{
public:
    explicit Open(int descriptor) : m_descriptor(descriptor) {}
    Open(const Open &) = delete;
    Open &operator=(const Open &) = delete;
    ~Open()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    operator int() const { return m_descriptor; }
    /** Some file systems report only here that the disk was full. */
    std::error_code close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        return ::close(descriptor) == 0 ? std::error_code() : lastError();
    }

private:
    int m_descriptor;
};

void copyDates(const struct stat &from, const fs::path &to)
{
    const timespec times[2] = {from.st_atim, from.st_mtim};
    ::utimensat(AT_FDCWD, to.c_str(), times, AT_SYMLINK_NOFOLLOW);
}

/** The folder is private to the user while it is filled, whatever its final permissions are. */
std::error_code copyFolder(const fs::path &from, const fs::path &to)
{
    std::error_code error;
    if (::mkdir(to.c_str(), 0700) != 0)
        return lastError();
    for (auto entry = fs::directory_iterator(from, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (const std::error_code inside = copyTree(entry->path(), to / entry->path().filename()))
            return inside;
    return error;
}

std::error_code writeAll(int to, const char *bytes, size_t count)
{
    for (size_t done = 0; done < count;) {
        const ssize_t written = ::write(to, bytes + done, count - done);
        if (written < 0 && errno != EINTR)
            return lastError();
        done += written < 0 ? 0 : size_t(written);
    }
    return {};
}

std::error_code copyBytes(int from, int to)
{
    constexpr size_t piece = 1 << 20;
    std::vector<char> bytes(piece);
    for (;;) {
        const ssize_t count = ::read(from, bytes.data(), bytes.size());
        if (count == 0)
            return {};
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return lastError();
        if (const std::error_code error = writeAll(to, bytes.data(), size_t(count)))
            return error;
    }
}

/** Within the kernel if possible: some file systems then share the blocks. */
std::error_code copyContent(int from, int to)
{
    constexpr size_t piece = 1 << 30;
    for (bool isFirst = true;; isFirst = false) {
        const ssize_t count = ::copy_file_range(from, nullptr, to, nullptr, piece, 0);
        if (count < 0 && errno == EINTR)
            continue;
        const bool isNotPossible = count < 0 && errno != ENOSPC && errno != EDQUOT && errno != EIO && errno != EFBIG;
        // Some file systems answer 0 to the first call although there are bytes.
        if (isNotPossible || (count == 0 && isFirst))
            return copyBytes(from, to);
        if (count <= 0)
            return count == 0 ? std::error_code() : lastError();
    }
}

std::error_code copyFile(const fs::path &from, const fs::path &to)
{
    const Open source(::open(from.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat found = {};
    if (source < 0 || ::fstat(source, &found) != 0)
        return lastError();
    if (!S_ISREG(found.st_mode))
        return std::make_error_code(std::errc::not_supported);
    Open target(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (target < 0)
        return lastError();
    if (const std::error_code error = copyContent(source, target))
        return error;
    return target.close();
}

void openFolders(const fs::path &item)
{
    std::error_code error;
    if (!fs::is_directory(fs::symlink_status(item, error)))
        return;
    ::chmod(item.c_str(), 0700);
    for (auto entry = fs::directory_iterator(item, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        openFolders(entry->path());
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
        error = copyFolder(from, to);
    else if (S_ISREG(source.st_mode))
        error = copyFile(from, to);
    if (error)
        return error;
    if (!S_ISLNK(source.st_mode)) {
        copyAttributes({.path = from.c_str()}, {.path = to.c_str()});
        (void)::chmod(to.c_str(), source.st_mode & 07777);
    }
    copyDates(source, to);
    return {};
}

std::error_code discardTree(const fs::path &copy)
{
    openFolders(copy);
    std::error_code error;
    if (fs::remove_all(copy, error) == 0 && !error)
        return std::make_error_code(std::errc::no_such_file_or_directory);
    return error;
}

} // namespace platform
