#include "platform/foundation/atomic_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

QString systemReason(int code)
{
    return QString::fromLocal8Bit(std::strerror(code));
}

tl::unexpected<Error> writeFailure(const QString &path, int code)
{
    return failure(ErrorCode::WriteFailed,
                   QCoreApplication::translate("platform", "Cannot write %1: %2").arg(path, systemReason(code)));
}

/** A file beside the target that disappears unless it is renamed into place. */
class TemporaryFile
{
public:
    explicit TemporaryFile(const QString &target)
    {
        const QFileInfo info(target);
        m_name = QFile::encodeName(info.path() + QStringLiteral("/.quorlin-XXXXXX"));
        m_descriptor = ::mkstemp(m_name.data());
    }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile()
    {
        const bool isOpen = m_descriptor >= 0;
        if (isOpen)
            ::close(m_descriptor);
        if (m_isOurs)
            ::unlink(m_name.constData());
    }

    bool open()
    {
        m_isOurs = m_descriptor >= 0;
        return m_isOurs;
    }

    bool write(const QByteArray &bytes)
    {
        qsizetype done = 0;
        while (done < bytes.size()) {
            const ssize_t count = ::write(m_descriptor, bytes.constData() + done, size_t(bytes.size() - done));
            if (count < 0 && errno == EINTR)
                continue;
            if (count < 0)
                return false;
            done += count;
        }
        return true;
    }

    /** The permissions of the file that is about to be replaced, or those of any new file. */
    bool takePermissionsOf(const QByteArray &target)
    {
        struct stat old = {};
        mode_t mode = 0;
        if (::lstat(target.constData(), &old) == 0 && S_ISREG(old.st_mode)) {
            mode = old.st_mode & 07777;
        } else {
            const mode_t mask = ::umask(0);
            ::umask(mask);
            mode = 0666 & ~mask;
        }
        return ::fchmod(m_descriptor, mode) == 0;
    }

    bool renameTo(const QByteArray &target)
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        const bool flushed = ::fdatasync(descriptor) == 0;
        const int reason = errno;
        if (::close(descriptor) != 0 && flushed)
            return false;
        if (!flushed) {
            errno = reason;
            return false;
        }
        if (::rename(m_name.constData(), target.constData()) != 0)
            return false;
        m_isOurs = false;
        return true;
    }

private:
    QByteArray m_name;
    int m_descriptor = -1;
    bool m_isOurs = false;
};

} // namespace

Result<void> replaceFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray target = QFile::encodeName(path);
    TemporaryFile file(path);
    if (!file.open() || !file.write(bytes) || !file.takePermissionsOf(target) || !file.renameTo(target))
        return writeFailure(path, errno);
    return {};
}

Result<QByteArray> readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failure(ErrorCode::NotFound,
                       QCoreApplication::translate("platform", "Cannot read %1: %2").arg(path, file.errorString()));
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failure(ErrorCode::Unreadable,
                       QCoreApplication::translate("platform", "Cannot read %1: %2").arg(path, file.errorString()));
    return bytes;
}

} // namespace platform
