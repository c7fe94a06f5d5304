#include "platform/file/temporary_file.h"

#include "platform/file/attributes.h"
#include "platform/file/sign_of_life.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace platform {
namespace {

/** Only a regular file or a link may be replaced by another file: not a device, a pipe or a socket. */
bool mayBeReplaced(const QByteArray &path)
{
    struct stat there = {};
    if (::lstat(path.constData(), &there) != 0)
        return errno == ENOENT;
    errno = S_ISDIR(there.st_mode) ? EISDIR : EEXIST;
    return S_ISREG(there.st_mode) || S_ISLNK(there.st_mode);
}

} // namespace

tl::unexpected<Error> writeFailure(const QString &path, int code)
{
    return failure(ErrorCode::WriteFailed, QCoreApplication::translate("platform", "Cannot write %1: %2")
                                               .arg(path, QString::fromLocal8Bit(std::strerror(code))));
}

bool isUnchanged(const QString &path, int file, const struct stat &before)
{
    struct stat now = {};
    struct stat there = {};
    const bool isSame = ::fstat(file, &now) == 0 && now.st_size == before.st_size &&
                        now.st_mtim.tv_sec == before.st_mtim.tv_sec && now.st_mtim.tv_nsec == before.st_mtim.tv_nsec;
    // Another program may have saved over it, which leaves the open file as it is.
    const bool isThere =
        ::stat(encodedPath(path).constData(), &there) == 0 && there.st_dev == now.st_dev && there.st_ino == now.st_ino;
    errno = EBUSY;
    return isSame && isThere;
}

TemporaryFile::TemporaryFile(const QString &target)
    : m_target(encodedPath(target)), m_folder(encodedPath(QFileInfo(target).path()))
{
    errno = ENOENT;
    if (!canBeAPath(target) || !mayBeReplaced(m_target))
        return;
    sweepUnfinishedOnce(QFileInfo(target).path());
    struct stat there = {};
    m_isNew = ::lstat(m_target.constData(), &there) != 0 || !S_ISREG(there.st_mode);
    m_descriptor = ::open(m_folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, firstMode());
    if (m_descriptor >= 0)
        showLife(m_descriptor);
    else
        openNamed();
}

TemporaryFile::~TemporaryFile()
{
    if (isOpen())
        ::close(m_descriptor);
    if (!m_name.isEmpty())
        ::unlink(m_name.constData());
}

QByteArray TemporaryFile::anyHiddenName() const
{
    return m_folder + '/' + unfinishedName + QByteArray::number(QRandomGenerator::global()->generate(), 36) +
           QByteArray::number(qint64(::getpid()), 36);
}

/** Before such a file exists, so that no kill can come between the two. */
void TemporaryFile::noteName(const QByteArray &name)
{
    m_noted.emplace(HiddenItem::What::Part, decodedPath(name), decodedPath(m_target));
}

bool TemporaryFile::openNamed()
{
    for (int attempt = 0; attempt < 100; ++attempt) {
        const QByteArray name = anyHiddenName();
        noteName(name);
        m_descriptor = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, firstMode());
        if (!isOpen() && errno == EEXIST)
            continue;
        if (!isOpen())
            return false;
        // Before it was locked, somebody may have taken it for the remains of an ended process.
        if (showLife(m_descriptor) != Life::Others && isStillNamed(m_descriptor, name)) {
            m_name = name;
            return true;
        }
        ::close(m_descriptor);
        m_descriptor = -1;
    }
    errno = EBUSY;
    return false;
}

bool TemporaryFile::write(const QByteArray &bytes)
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

bool TemporaryFile::writeAt(qint64 position, const char *bytes, qint64 count)
{
    for (qint64 done = 0; done < count;) {
        const ssize_t written = ::pwrite(m_descriptor, bytes + done, size_t(count - done), position + done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        done += written;
    }
    return true;
}

bool TemporaryFile::copyFrom(int source, qint64 position, qint64 size)
{
    off64_t at = position;
    const off64_t end = position + size;
    while (at < end) {
        const ssize_t count = ::copy_file_range(source, &at, m_descriptor, nullptr, size_t(end - at), 0);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 && (errno == EXDEV || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP))
            return copyByHand(source, at, end - at);
        if (count <= 0) {
            errno = count == 0 ? EIO : errno; // the source was shortened meanwhile
            return false;
        }
    }
    return true;
}

bool TemporaryFile::copyByHand(int source, qint64 position, qint64 size)
{
    constexpr qint64 step = 1 << 20;
    QByteArray buffer(std::min(step, size), Qt::Uninitialized);
    for (qint64 done = 0; done < size;) {
        const qint64 wanted = std::min<qint64>(buffer.size(), size - done);
        const ssize_t count = ::pread(source, buffer.data(), size_t(wanted), position + done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            errno = count == 0 ? EIO : errno;
            return false;
        }
        if (!write(QByteArray::fromRawData(buffer.constData(), count)))
            return false;
        done += count;
    }
    return true;
}

/** Only the system knows which permissions a folder with an access list gives to a new file. */
mode_t TemporaryFile::firstMode() const
{
    return m_isNew ? 0666 : 0600;
}

bool TemporaryFile::takePermissions()
{
    struct stat old = {};
    if (::lstat(m_target.constData(), &old) == 0 && S_ISREG(old.st_mode)) {
        copyAccessList({.path = m_target.constData()}, {.descriptor = m_descriptor});
        return ::fchmod(m_descriptor, old.st_mode & 07777) == 0;
    }
    if (m_isNew)
        return true;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return ::fchmod(m_descriptor, 0666 & ~mask) == 0;
}

bool TemporaryFile::takeAttributesOf(int source)
{
    struct stat old = {};
    struct stat own = {};
    if (::fstat(source, &old) != 0 || ::fstat(m_descriptor, &own) != 0)
        return false;
    const bool isAnothers = old.st_uid != own.st_uid || old.st_gid != own.st_gid;
    const bool hasOwner = !isAnothers || ::fchown(m_descriptor, old.st_uid, old.st_gid) == 0 ||
                          (::fchown(m_descriptor, uid_t(-1), old.st_gid) == 0 && old.st_uid == own.st_uid);
    copyAttributes({.descriptor = source}, {.descriptor = m_descriptor});
    copyAccessList({.descriptor = source}, {.descriptor = m_descriptor});
    // A file that could not keep its owner must not confer rights of another one.
    const mode_t mode = old.st_mode & (hasOwner ? 07777 : 0777);
    return ::fchmod(m_descriptor, mode) == 0;
}

bool TemporaryFile::nameIt()
{
    const QByteArray open = "/proc/self/fd/" + QByteArray::number(m_descriptor);
    for (int attempt = 0; attempt < 100; ++attempt) {
        const QByteArray name = anyHiddenName();
        noteName(name);
        if (::linkat(AT_FDCWD, open.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0) {
            m_name = name;
            return true;
        }
        if (errno != EEXIST)
            return false;
    }
    return false;
}

bool TemporaryFile::takePlace(const std::function<bool()> &mayTake)
{
    if (::fdatasync(m_descriptor) != 0 || (m_name.isEmpty() && !nameIt()))
        return false;
    // Some disks report an error only when a file is closed; the second descriptor keeps the lock until the file has
    // its name.
    const int alive = ::fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0);
    const int descriptor = std::exchange(m_descriptor, -1);
    const bool isNamed = ::close(descriptor) == 0 && mayBeReplaced(m_target) && mayTake() &&
                         ::rename(m_name.constData(), m_target.constData()) == 0;
    const int problem = errno;
    if (alive >= 0)
        ::close(alive);
    errno = problem;
    if (isNamed) {
        m_name.clear();
        m_noted.reset();
    }
    return isNamed;
}

} // namespace platform
