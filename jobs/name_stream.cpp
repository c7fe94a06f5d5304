#include "jobs/name_stream.h"

#include "image/recipe/sentence.h"
#include "platform/foundation/paths.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace jobs {

platform::Result<NameStream> NameStream::open(const QString &path, Separator separator)
{
    if (path == QLatin1String("-"))
        return NameStream(STDIN_FILENO, false, separator);
    // A pipe that nobody writes to yet must not keep signals waiting.
    constexpr int flags = O_RDONLY | O_NOCTTY | O_CLOEXEC | O_NONBLOCK;
    const int descriptor = ::open(platform::encodedPath(path).constData(), flags);
    struct stat facts = {};
    const bool isFolder = descriptor >= 0 && ::fstat(descriptor, &facts) == 0 && S_ISDIR(facts.st_mode);
    if (descriptor >= 0 && !isFolder)
        return NameStream(descriptor, true, separator);
    if (isFolder) {
        ::close(descriptor);
        errno = EISDIR;
    }
    return platform::failure(platform::ErrorCode::NotFound,
                             image::sentence("%1 cannot be read: %2").arg(path, QLatin1String(std::strerror(errno))));
}

NameStream::NameStream(NameStream &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)), m_isOwn(other.m_isOwn), m_separator(other.m_separator),
      m_bytes(std::move(other.m_bytes)), m_at(other.m_at), m_name(std::move(other.m_name)), m_isAtEnd(other.m_isAtEnd),
      m_problem(std::move(other.m_problem))
{
}

NameStream::~NameStream()
{
    if (m_isOwn && m_descriptor >= 0)
        ::close(m_descriptor);
}

NameStream::State NameStream::look(int waitMs)
{
    while (!findName()) {
        if (m_isAtEnd)
            return State::Ended;
        pollfd waiting = {m_descriptor, POLLIN, 0};
        if (::poll(&waiting, 1, waitMs) <= 0 || !readSome())
            return State::Waiting;
    }
    return State::Ready;
}

/** @return false where a signal came in between */
bool NameStream::readSome()
{
    constexpr qsizetype step = 1 << 16;
    m_bytes.remove(0, std::exchange(m_at, 0));
    const qsizetype known = m_bytes.size();
    m_bytes.resize(known + step);
    const ssize_t count = ::read(m_descriptor, m_bytes.data() + known, step);
    m_bytes.truncate(known + qMax<ssize_t>(count, 0));
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return false;
    if (count < 0)
        m_problem =
            image::sentence("the list of inputs can no longer be read: %1").arg(QLatin1String(std::strerror(errno)));
    m_isAtEnd = count <= 0;
    return true;
}

bool NameStream::findName()
{
    while (!m_name && m_at < m_bytes.size()) {
        qsizetype end = m_bytes.indexOf(m_separator, m_at);
        if (end < 0 && !m_isAtEnd)
            return false;
        end = end < 0 ? m_bytes.size() : end;
        QByteArray name = m_bytes.sliced(m_at, end - m_at);
        m_at = qMin(end + 1, m_bytes.size());
        if (m_separator == '\n' && name.endsWith('\r'))
            name.chop(1);
        if (!name.isEmpty())
            m_name = name;
    }
    return m_name.has_value();
}

QString NameStream::take()
{
    return platform::decodedPath(*std::exchange(m_name, std::nullopt));
}

} // namespace jobs
