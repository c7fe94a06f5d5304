#include "platform/file/regular_file.h"

#include "platform/file/lent_file.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

tl::unexpected<Error> unread(const QString &path, const QString &reason)
{
    return failure(ErrorCode::NotFound,
                   QCoreApplication::translate("platform", "Cannot read %1: %2").arg(path, reason));
}

tl::unexpected<Error> unreadBecause(const QString &path, int reason)
{
    return unread(path, QString::fromLocal8Bit(std::strerror(reason)));
}

tl::unexpected<Error> noOrdinaryFile(const QString &path)
{
    return unread(path, QCoreApplication::translate("platform", "this is not an ordinary file"));
}

} // namespace

std::optional<RegularFile> regularFile(const QString &path)
{
    struct stat status = {};
    if (!canBeAPath(path) || ::stat(encodedPath(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    constexpr qint64 msPerSecond = 1000;
    constexpr qint64 nsPerMs = 1'000'000;
    const qint64 ms = status.st_mtim.tv_sec * msPerSecond + status.st_mtim.tv_nsec / nsPerMs;
    return RegularFile{qint64(status.st_size), QDateTime::fromMSecsSinceEpoch(ms)};
}

qint64 NamedFile::readData(char *data, qint64 count)
{
    const qint64 read = QFile::readData(data, count);
    if (read < 0)
        m_readProblem = errorString();
    return read;
}

QString readProblemOf(const QIODevice &device)
{
    if (const auto *file = dynamic_cast<const NamedFile *>(&device))
        return file->readProblem();
    const auto *lent = dynamic_cast<const LentReader *>(&device);
    return lent ? lent->readProblem() : QString();
}

Result<void> openToRead(QFile &file, QIODevice::OpenMode more)
{
    const QString path = file.fileName();
    if (!canBeAPath(path))
        return unreadBecause(path, ENOENT);
    const QByteArray name = encodedPath(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        return unreadBecause(path, errno);
    if (!S_ISREG(status.st_mode)) // merely opening a device may have effects
        return noOrdinaryFile(path);
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return unreadBecause(path, errno);
    const bool isOrdinary = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (isOrdinary && file.open(descriptor, QIODevice::ReadOnly | more, QFileDevice::AutoCloseHandle))
        return {};
    ::close(descriptor);
    return isOrdinary ? unread(path, file.errorString()) : noOrdinaryFile(path);
}

} // namespace platform
