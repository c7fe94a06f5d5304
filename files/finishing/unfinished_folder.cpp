#include "files/finishing/unfinished_folder.h"

#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/disk/item_identity.h"
#include "platform/file/sign_of_life.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSysInfo>

#include <cerrno>
#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

const QString prefix = QStringLiteral(".quorlin-unfinished-");

struct Held
{
    QByteArray path; ///< the name under which it was created
    int descriptor = -1;
};

QHash<QString, Held> &heldFolders()
{
    static QHash<QString, Held> folders;
    return folders;
}

// If a disk has no locks, the number of the creating process is checked instead. It is meaningful only to processes
// with the same numbering: on this machine and in this container.
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

// Opens a folder under its own name; -1 if something else is there, or a folder of another user.
int openOwn(const QByteArray &path)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0 || isOwnFolder(descriptor))
        return descriptor;
    ::close(descriptor);
    return -1;
}

// Empties the open folder, even if its name now belongs to something else, and removes it if it still has the name.
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

} // namespace

QString makeStaging(const QString &folder)
{
    static int count = 0;
    constexpr int attempts = 100;
    if (!platform::canBeAPath(folder))
        return {};
    for (int i = 0; i < attempts; ++i) {
        const QString path = QStringLiteral("%1/%2%3-%4-%5")
                                 .arg(platform::withoutTrailingSlashes(folder), prefix, machineMark())
                                 .arg(QCoreApplication::applicationPid())
                                 .arg(++count);
        const QByteArray name = platform::encodedPath(path);
        if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
            return {};
        // An existing folder, or one that has appeared since, is left alone, and so is one that a sweeper locked first.
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
    const platform::DiskFileSystem disk;
    const QString own = disk.canonicalFolder(folder); // the folder may have been given through a link
    for (const platform::FolderEntry &entry : disk.list(own).value_or(std::vector<platform::FolderEntry>())) {
        if (!entry.mayBeFolder || !entry.name.startsWith(prefix))
            continue;
        const QByteArray path = platform::encodedPath(platform::joinedPath(own, entry.name));
        const int descriptor = openOwn(path);
        if (descriptor < 0)
            continue;
        const platform::Life life = platform::showLife(descriptor);
        if (life == platform::Life::Shown || (life == platform::Life::Unknown && makerHasEnded(entry.name)))
            removeOpen(descriptor, path);
        ::close(descriptor);
    }
    platform::sweepUnfinished(folder);
}

} // namespace files
