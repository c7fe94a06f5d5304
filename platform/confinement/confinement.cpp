#include "platform/confinement/confinement.h"

#include "platform/confinement/call_rules.h"
#include "platform/confinement/file_rules.h"

#include <QFile>

#include <fontconfig/fontconfig.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>

namespace platform {
namespace {

QStringList takenFrom(FcStrList *list)
{
    QStringList paths;
    if (!list)
        return paths;
    while (const FcChar8 *path = FcStrListNext(list))
        paths.append(QFile::decodeName(reinterpret_cast<const char *>(path)));
    FcStrListDone(list);
    return paths;
}

/** Font directories may be configured anywhere, also in the user's home. */
QStringList fontFolders()
{
    FcConfig *config = FcConfigGetCurrent();
    return takenFrom(FcConfigGetConfigFiles(config)) + takenFrom(FcConfigGetConfigDirs(config)) +
           takenFrom(FcConfigGetFontDirs(config)) + takenFrom(FcConfigGetCacheDirs(config));
}

} // namespace

Confinement confine(const QStringList &readable)
{
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    restrictFiles(readable);
    restrictCalls();
    return activeConfinement();
}

Confinement activeConfinement()
{
    Confinement active;
    active.hasNoNewPrivileges = ::prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1;
    active.hasFileRules = areFilesRestricted();
    active.hasCallRules = ::prctl(PR_GET_SECCOMP, 0, 0, 0, 0) == SECCOMP_MODE_FILTER;
    return active;
}

QStringList systemFolders()
{
    QStringList folders = {
        QStringLiteral("/usr"),
        QStringLiteral("/lib"),
        QStringLiteral("/lib64"),
        QStringLiteral("/etc/fonts"),
        QStringLiteral("/etc/ld.so.cache"),
        QStringLiteral("/etc/localtime"),
        QStringLiteral("/etc/timezone"),
        QStringLiteral("/proc/self"),
        QStringLiteral("/proc/meminfo"),
        QStringLiteral("/proc/cpuinfo"),
        QStringLiteral("/sys/fs/cgroup"),
        QStringLiteral("/sys/devices/system/cpu"),
        QStringLiteral("/dev/urandom"),
        QStringLiteral("/dev/null"),
    };
    return folders + fontFolders();
}

} // namespace platform
