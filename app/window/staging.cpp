#include "app/window/staging.h"

#include "platform/disk/folders.h"
#include "platform/disk/item_identity.h"
#include "platform/file/sign_of_life.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSysInfo>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace window {

namespace {

const QString prefix = QStringLiteral(".quorlin-unfinished-");

struct Held
{
    QByteArray path; ///< the name it was made under
    int descriptor = -1;
};

QHash<QString, Held> &heldFolders()
{
    static QHash<QString, Held> folders;
    return folders;
}

// Where a disk has no locks, the number of the maker's process is asked instead. It says something only to processes that
// number them alike: on this machine and in this container.
QString machineMark()
{
    static const QString mark = QString::fromLatin1(
        QCryptographicHash::hash(QSysInfo::machineUniqueId() + QSysInfo::machineHostName().toUtf8() +
                                     QFile::symLinkTarget(QStringLiteral("/proc/self/ns/pid")).toUtf8(),
                                 QCryptographicHash::Sha1)
            .toHex()
            .left(8));
    return mark;
}

bool makerHasEnded(const QString &name)
{
    const QString begin = prefix + machineMark() + QLatin1Char('-');
    const qint64 pid = name.startsWith(begin) ? name.mid(begin.size()).section(QLatin1Char('-'), 0, 0).toLongLong() : 0;
    return pid > 0 && ::kill(pid_t(pid), 0) != 0 && errno == ESRCH;
}

bool isOwnFolder(int descriptor)
{
    struct stat folder = {};
    return ::fstat(descriptor, &folder) == 0 && S_ISDIR(folder.st_mode) && folder.st_uid == ::geteuid();
}

QString throughDescriptor(int descriptor)
{
    return QStringLiteral("/proc/self/fd/%1/").arg(descriptor);
}

// Opens a folder under its own name; -1 where something else is there, or somebody else's.
int openOwn(const QByteArray &path)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0 || isOwnFolder(descriptor))
        return descriptor;
    ::close(descriptor);
    return -1;
}

// Empties the folder that is open, whatever its name leads to by now, and removes it if the name is still its own.
void removeOpen(int descriptor, const QByteArray &path)
{
    std::error_code error;
    const std::string inside = throughDescriptor(descriptor).toStdString();
    for (auto entry = std::filesystem::directory_iterator(inside, error);
         !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        std::filesystem::remove_all(entry->path(), ignored);
    }
    if (platform::isStillNamed(descriptor, path))
        ::rmdir(path.constData());
}

PlaceResult failed(const QString &to, int error)
{
    return {PlaceOutcome::Failed, QCoreApplication::translate("window::FileDesk", "%1 cannot be written: %2")
                                      .arg(QFileInfo(to).fileName(), QString::fromLocal8Bit(std::strerror(error)))};
}

PlaceResult resultOf(const QString &to, const std::error_code &error)
{
    if (!error)
        return {PlaceOutcome::Placed, {}};
    return error == std::errc::file_exists ? PlaceResult{PlaceOutcome::Taken, {}} : failed(to, error.value());
}

bool swapNames(const QByteArray &one, const QByteArray &other)
{
    return ::renameat2(AT_FDCWD, one.constData(), AT_FDCWD, other.constData(), RENAME_EXCHANGE) == 0;
}

bool isForLackOfSwapping(int error)
{
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

} // namespace

QString makeStaging(const QString &folder)
{
    static int count = 0;
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        const QString path = QStringLiteral("%1/%2%3-%4-%5")
                                 .arg(platform::withoutTrailingSlashes(folder), prefix, machineMark())
                                 .arg(QCoreApplication::applicationPid())
                                 .arg(++count);
        const QByteArray name = QFile::encodeName(path);
        if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
            return {};
        // A folder that was there, or got there since, is left alone, and so is one that a sweeper got hold of first.
        const int descriptor = errno == EEXIST ? -1 : openOwn(name);
        errno = 0;
        if (descriptor < 0)
            continue;
        if (platform::showLife(descriptor) != platform::Life::Others && platform::isStillNamed(descriptor, name)) {
            const bool isReachable = QFileInfo(throughDescriptor(descriptor)).isDir();
            const QString staging = isReachable ? throughDescriptor(descriptor) : path + QLatin1Char('/');
            heldFolders().insert(staging, {name, descriptor});
            return staging;
        }
        ::close(descriptor);
    }
    return {};
}

void removeStaging(const QString &staging)
{
    const Held held = heldFolders().take(staging);
    if (held.descriptor < 0)
        return;
    removeOpen(held.descriptor, held.path);
    ::close(held.descriptor);
}

void sweepStagings(const QString &folder)
{
    const QDir dir(folder);
    const QStringList found =
        dir.entryList({prefix + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : found) {
        const QByteArray path = QFile::encodeName(dir.filePath(name));
        const int descriptor = openOwn(path);
        if (descriptor < 0)
            continue;
        const platform::Life life = platform::showLife(descriptor);
        if (life == platform::Life::Shown || (life == platform::Life::Unknown && makerHasEnded(name)))
            removeOpen(descriptor, path);
        ::close(descriptor);
    }
    platform::sweepUnfinished(folder);
}

PlaceResult placeFile(const QString &from, const QString &to)
{
    return resultOf(to, platform::renameToNew(from, to));
}

PlaceResult placeFileInsteadOf(const QString &from, const QString &to, const QString &known)
{
    if (!platform::canBeAPath(from) || !platform::canBeAPath(to))
        return failed(to, ENOENT);
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    struct stat old = {};
    if (::lstat(target.constData(), &old) != 0)
        return errno == ENOENT ? placeFile(from, to) : failed(to, errno);
    const bool isReplaceable = S_ISREG(old.st_mode) || S_ISLNK(old.st_mode);
    if (!isReplaceable || platform::identityOf(old) != known)
        return {PlaceOutcome::Taken, {}};
    if (S_ISREG(old.st_mode))
        ::chmod(source.constData(), old.st_mode & 07777);
    if (!swapNames(source, target)) {
        if (errno == ENOENT)
            return placeFile(from, to);
        if (!isForLackOfSwapping(errno))
            return failed(to, errno);
        return ::rename(source.constData(), target.constData()) == 0 ? PlaceResult{PlaceOutcome::Placed, {}}
                                                                     : failed(to, errno);
    }
    // What was replaced is at hand now, and goes back if it is not what was meant.
    if (platform::itemIdentity(from) != known)
        return swapNames(source, target) ? PlaceResult{PlaceOutcome::Taken, {}} : failed(to, errno);
    ::unlink(source.constData());
    return {PlaceOutcome::Placed, {}};
}

} // namespace window
