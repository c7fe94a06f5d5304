#include "platform/file/sign_of_life.h"

#include "platform/foundation/paths.h"

#include <QSet>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

/**
 * Removes one file if its writer has ended. Whoever creates one checks, once it has locked it, whether it was removed
 * before that.
 */
void sweepOne(int folder, const char *name)
{
    const int file = ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return;
    struct stat status = {};
    const bool isOwn = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
    if (isOwn && showLife(file) == Life::Shown)
        ::unlinkat(folder, name, 0);
    ::close(file);
}

} // namespace

Life showLife(int descriptor)
{
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return Life::Shown;
    return errno == EWOULDBLOCK ? Life::Others : Life::Unknown;
}

bool isStillNamed(int descriptor, const QByteArray &path)
{
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path.constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

void sweepUnfinishedFile(const QString &path)
{
    if (lastPathComponent(path).startsWith(QLatin1String(unfinishedName)))
        sweepOne(AT_FDCWD, encodedPath(path).constData());
}

void sweepUnfinished(const QString &folder)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> list(::opendir(encodedPath(folder).constData()), &::closedir);
    if (!list)
        return;
    while (const dirent *entry = ::readdir(list.get()))
        if (std::string_view(entry->d_name).substr(0, sizeof unfinishedName - 1) == unfinishedName)
            sweepOne(::dirfd(list.get()), entry->d_name);
}

void sweepUnfinishedOnce(const QString &folder)
{
    static QSet<QString> swept;
    constexpr qsizetype most = 10'000;
    if (swept.contains(folder))
        return;
    if (swept.size() >= most)
        swept.clear();
    swept.insert(folder);
    sweepUnfinished(folder);
}

} // namespace platform
