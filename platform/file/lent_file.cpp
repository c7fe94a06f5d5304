#include "platform/file/lent_file.h"

#include "platform/file/regular_file.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

Result<LentFile> LentFile::open(const QString &path)
{
    QFile file(path);
    if (const auto opened = openToRead(file); !opened)
        return tl::unexpected<Error>(opened.error());
    Descriptor own(::fcntl(file.handle(), F_DUPFD_CLOEXEC, 0));
    if (!own.isOpen())
        return failure(ErrorCode::NotFound, QString::fromLocal8Bit(std::strerror(errno)));
    return LentFile(std::move(own), path);
}

qint64 LentFile::size() const
{
    struct stat status = {};
    return ::fstat(descriptor(), &status) == 0 ? qint64(status.st_size) : 0;
}

LentReader::LentReader(std::shared_ptr<const LentFile> file) : m_file(std::move(file))
{
    QIODevice::open(QIODevice::ReadOnly);
}

bool LentReader::seek(qint64 position)
{
    if (!QIODevice::seek(position))
        return false;
    m_place = position;
    return true;
}

qint64 LentReader::readData(char *data, qint64 count)
{
    qint64 all = 0;
    while (all < count) {
        const ssize_t read = ::pread(m_file->descriptor(), data + all, size_t(count - all), off_t(m_place));
        if (read < 0 && errno == EINTR)
            continue;
        if (read < 0) {
            m_readProblem = QString::fromLocal8Bit(std::strerror(errno));
            return all > 0 ? all : -1;
        }
        if (read == 0)
            break;
        all += read;
        m_place += read;
    }
    return all;
}

} // namespace platform
