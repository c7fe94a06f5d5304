#include "platform/disk/same_content.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace platform {
namespace {

namespace fs = std::filesystem;

bool haveSameBytes(const fs::path &one, const fs::path &other)
{
    constexpr std::streamsize piece = 1 << 18;
    std::error_code error;
    if (fs::file_size(one, error) != fs::file_size(other, error) || error)
        return false;
    std::ifstream a(one, std::ios::binary);
    std::ifstream b(other, std::ios::binary);
    std::vector<char> bytesOfA(piece);
    std::vector<char> bytesOfB(piece);
    while (a && b) {
        a.read(bytesOfA.data(), piece);
        b.read(bytesOfB.data(), piece);
        if (a.gcount() != b.gcount() || !std::equal(bytesOfA.begin(), bytesOfA.begin() + a.gcount(), bytesOfB.begin()))
            return false;
    }
    return a.eof() && b.eof() && !a.bad() && !b.bad();
}

/** Two links may lead to the same item, or nowhere. */
bool haveSameLink(const fs::path &one, const fs::path &other)
{
    std::error_code error;
    return fs::is_symlink(fs::symlink_status(one, error)) && fs::is_symlink(fs::symlink_status(other, error)) &&
           fs::read_symlink(one, error) == fs::read_symlink(other, error) && !error;
}

bool haveSameItems(const fs::path &one, const fs::path &other)
{
    std::error_code error;
    size_t count = 0;
    for (auto entry = fs::directory_iterator(one, error); !error && entry != fs::directory_iterator();
         entry.increment(error), ++count)
        if (!haveSameContent(entry->path(), other / entry->path().filename()))
            return false;
    for (auto entry = fs::directory_iterator(other, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (count-- == 0)
            return false;
    return !error && count == 0;
}

std::error_code settleOne(const fs::path &item, int flags)
{
    const int descriptor = ::open(item.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | flags);
    if (descriptor < 0)
        return std::error_code(errno, std::generic_category());
    std::error_code error;
    if (::fsync(descriptor) != 0)
        error = std::error_code(errno, std::generic_category());
    ::close(descriptor);
    return error;
}

} // namespace

bool haveSameContent(const fs::path &one, const fs::path &other)
{
    std::error_code error;
    const fs::file_status a = fs::symlink_status(one, error);
    const fs::file_status b = fs::symlink_status(other, error);
    if (error || a.type() != b.type())
        return false;
    if (fs::is_symlink(a))
        return fs::read_symlink(one, error) == fs::read_symlink(other, error) && !error;
    if (fs::is_directory(a))
        return haveSameItems(one, other);
    return fs::is_regular_file(a) && haveSameBytes(one, other);
}

bool holdsAll(const fs::path &whole, const fs::path &part)
{
    std::error_code error;
    if (fs::equivalent(whole, part, error) || error)
        return haveSameLink(whole, part);
    if (!fs::is_directory(fs::symlink_status(part, error)) || fs::is_symlink(fs::symlink_status(whole, error)))
        return haveSameContent(part, whole);
    for (auto entry = fs::directory_iterator(part, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (!holdsAll(whole / entry->path().filename(), entry->path()))
            return false;
    return !error;
}

std::error_code settleTree(const fs::path &item)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(item, error);
    if (error || fs::is_symlink(status))
        return error;
    if (!fs::is_directory(status))
        return settleOne(item, 0);
    for (auto entry = fs::directory_iterator(item, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (const std::error_code inside = settleTree(entry->path()))
            return inside;
    return error ? error : settleOne(item, O_DIRECTORY);
}

} // namespace platform
