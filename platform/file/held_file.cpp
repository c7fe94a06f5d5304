#include "platform/file/held_file.h"
#include "platform/foundation/paths.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

tl::unexpected<Error> because(ErrorCode code, const QString &path, int reason)
{
    return failure(code, QStringLiteral("%1: %2").arg(path, QString::fromLocal8Bit(std::strerror(reason))));
}

} // namespace

HeldFile::HeldFile(HeldFile &&other) noexcept
    : m_path(std::move(other.m_path)), m_descriptor(std::exchange(other.m_descriptor, -1)), m_isLocked(other.m_isLocked)
{
}

HeldFile &HeldFile::operator=(HeldFile &&other) noexcept
{
    std::swap(m_path, other.m_path);
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_isLocked, other.m_isLocked);
    return *this;
}

HeldFile::~HeldFile()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

Result<HeldFile> HeldFile::make(const QString &path)
{
    const int descriptor =
        ::open(encodedPath(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return because(ErrorCode::WriteFailed, path, errno);
    HeldFile file(path, descriptor);
    if (!file.lock())
        return because(ErrorCode::WriteFailed, path, EWOULDBLOCK);
    return file;
}

Result<HeldFile> HeldFile::open(const QString &path)
{
    constexpr int flags = O_RDWR | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    const int descriptor = ::open(encodedPath(path).constData(), flags);
    if (descriptor < 0)
        return because(ErrorCode::NotFound, path, errno);
    HeldFile file(path, descriptor);
    struct stat found = {};
    if (::fstat(descriptor, &found) != 0 || !S_ISREG(found.st_mode))
        return because(ErrorCode::Unsupported, path, ENOTSUP);
    if (!file.lock())
        return because(ErrorCode::Unsupported, path, EWOULDBLOCK);
    return file;
}

bool HeldFile::lock()
{
    m_isLocked = ::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0;
    return m_isLocked || errno != EWOULDBLOCK;
}

Result<void> HeldFile::append(const QByteArray &bytes, Lasting lasting)
{
    struct stat before = {};
    const bool isSizeKnown = ::fstat(m_descriptor, &before) == 0;
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count = ::write(m_descriptor, bytes.constData() + done, size_t(bytes.size() - done));
        if (count < 0 && errno != EINTR) {
            const int reason = errno;
            // A partial line would corrupt the next one.
            if (isSizeKnown && done > 0)
                (void)!::ftruncate(m_descriptor, before.st_size);
            return because(ErrorCode::WriteFailed, m_path, reason);
        }
        done += count < 0 ? 0 : count;
    }
    if (lasting == Lasting::AtOnce && ::fdatasync(m_descriptor) != 0)
        return because(ErrorCode::WriteFailed, m_path, errno);
    return {};
}

Result<QByteArray> HeldFile::readAll() const
{
    struct stat found = {};
    if (::fstat(m_descriptor, &found) != 0)
        return because(ErrorCode::Unreadable, m_path, errno);
    QByteArray bytes(found.st_size, '\0');
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::pread(m_descriptor, bytes.data() + done, size_t(bytes.size() - done), done);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            return because(ErrorCode::Unreadable, m_path, errno);
        done += count < 0 ? 0 : count;
    }
    bytes.truncate(done);
    return bytes;
}

} // namespace platform
