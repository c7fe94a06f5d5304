#include "app/window/staging.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace window {

namespace {

const QString prefix = QStringLiteral(".quorlin-unfinished-");

// Folders on a shared disk may come from another machine, whose processes cannot be asked for here.
QString machineMark()
{
    static const QString mark =
        QString::fromLatin1(QCryptographicHash::hash(QSysInfo::machineUniqueId() + QSysInfo::machineHostName().toUtf8(),
                                                     QCryptographicHash::Sha1)
                                .toHex()
                                .left(8));
    return mark;
}

bool processEnded(qint64 pid)
{
    return pid > 0 && ::kill(pid_t(pid), 0) != 0 && errno == ESRCH;
}

PlaceResult failed(const QString &to, int error)
{
    return {PlaceOutcome::Failed, QCoreApplication::translate("window::FileDesk", "%1 cannot be written: %2")
                                      .arg(QFileInfo(to).fileName(), QString::fromLocal8Bit(std::strerror(error)))};
}

// For file systems without an exclusive rename. A hard link refuses a name that is taken; where there are no hard links
// either (FAT), looking first is all that is left.
PlaceResult placeWithoutExclusiveRename(const QByteArray &from, const QByteArray &to, const QString &path)
{
    if (::link(from.constData(), to.constData()) == 0) {
        ::unlink(from.constData());
        return {PlaceOutcome::Placed, {}};
    }
    if (errno == EEXIST)
        return {PlaceOutcome::Taken, {}};
    struct stat status = {};
    if (::lstat(to.constData(), &status) == 0)
        return {PlaceOutcome::Taken, {}};
    return ::rename(from.constData(), to.constData()) == 0 ? PlaceResult{PlaceOutcome::Placed, {}}
                                                           : failed(path, errno);
}

PlaceResult placeRefusing(const QByteArray &from, const QByteArray &to, const QString &path)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return {PlaceOutcome::Placed, {}};
    if (errno == EEXIST)
        return {PlaceOutcome::Taken, {}};
    if (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP)
        return placeWithoutExclusiveRename(from, to, path);
    return failed(path, errno);
}

PlaceResult placeReplacing(const QByteArray &from, const QByteArray &to, const QString &path)
{
    struct stat old = {};
    if (::lstat(to.constData(), &old) == 0 && S_ISREG(old.st_mode))
        ::chmod(from.constData(), old.st_mode & 07777);
    return ::rename(from.constData(), to.constData()) == 0 ? PlaceResult{PlaceOutcome::Placed, {}}
                                                           : failed(path, errno);
}

} // namespace

QString makeStaging(const QString &folder)
{
    static int count = 0;
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        const QString path = QStringLiteral("%1/%2%3-%4-%5/")
                                 .arg(QDir::cleanPath(folder), prefix, machineMark())
                                 .arg(QCoreApplication::applicationPid())
                                 .arg(++count);
        if (::mkdir(QFile::encodeName(path).constData(), 0700) == 0)
            return path;
        if (errno != EEXIST)
            return {};
    }
    return {};
}

void removeStaging(const QString &staging)
{
    const QFileInfo info(QDir::cleanPath(staging));
    if (!info.fileName().startsWith(prefix) || info.isSymLink() || !info.isDir())
        return;
    QDir(info.filePath()).removeRecursively();
}

void sweepStagings(const QString &folder)
{
    const QDir dir(folder);
    const QStringList found = dir.entryList({prefix + machineMark() + QStringLiteral("-*")},
                                            QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QString &name : found)
        if (processEnded(name.mid(prefix.size()).section(QLatin1Char('-'), 1, 1).toLongLong()))
            removeStaging(dir.filePath(name));
}

PlaceResult placeFile(const QString &from, const QString &to, IfTaken ifTaken)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    switch (ifTaken) {
    case IfTaken::Refuse:
        return placeRefusing(source, target, to);
    case IfTaken::Replace:
        return placeReplacing(source, target, to);
    }
    return {};
}

} // namespace window
