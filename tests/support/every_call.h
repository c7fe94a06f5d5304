#pragma once

#include <QByteArray>

#include <cerrno>
#include <cstdarg>
#include <functional>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

/**
 * Stands between this program, with all its libraries, and the calls that change a file system: whatever another program, or a kill,
 * can do between two of them can be tried at each of them. To be included once in a program.
 */
struct EveryCall
{
    /** Called before each call that changes something; an errno as the answer makes the call fail with it. */
    static inline std::function<int(std::string_view call, const char *path)> before;
    static inline int count = 0;
    /** Of a call that has no path; -1 for the others. */
    static inline int file = -1;

    static int meet(const char *call, const char *path)
    {
        if (!before || s_isInside)
            return 0;
        s_isInside = true;
        ++count;
        const int error = before(call, path ? path : "");
        s_isInside = false;
        return error;
    }

    /** For a process that was begun in the middle of a call, as by fork(). */
    static void beginInAFork(const std::function<int(std::string_view call, const char *path)> &next)
    {
        before = next;
        s_isInside = false;
    }

private:
    static inline bool s_isInside = false;
};

template<typename Call> long afterMeeting(const char *name, const char *path, Call call, int file = -1)
{
    EveryCall::file = file;
    if (const int error = EveryCall::meet(name, path)) {
        errno = error;
        return -1;
    }
    return call();
}

extern "C" {
int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags)
{
    return int(afterMeeting("renameat2", from,
                            [=] { return ::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags); }));
}
int rename(const char *from, const char *to) noexcept
{
    return int(afterMeeting("rename", from, [=] { return ::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0); }));
}
int link(const char *from, const char *to) noexcept
{
    return int(afterMeeting("link", from, [=] { return ::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0); }));
}
int symlink(const char *target, const char *path) noexcept
{
    return int(afterMeeting("symlink", path, [=] { return ::syscall(SYS_symlinkat, target, AT_FDCWD, path); }));
}
int unlink(const char *path) noexcept
{
    return int(afterMeeting("unlink", path, [=] { return ::syscall(SYS_unlinkat, AT_FDCWD, path, 0); }));
}
int unlinkat(int folder, const char *path, int flags) noexcept
{
    return int(afterMeeting("unlinkat", path, [=] { return ::syscall(SYS_unlinkat, folder, path, flags); }));
}
int rmdir(const char *path) noexcept
{
    return int(afterMeeting("rmdir", path, [=] { return ::syscall(SYS_unlinkat, AT_FDCWD, path, AT_REMOVEDIR); }));
}
int mkdir(const char *path, mode_t mode) noexcept
{
    return int(afterMeeting("mkdir", path, [=] { return ::syscall(SYS_mkdirat, AT_FDCWD, path, mode); }));
}
int chmod(const char *path, mode_t mode) noexcept
{
    return int(afterMeeting("chmod", path, [=] { return ::syscall(SYS_fchmodat, AT_FDCWD, path, mode); }));
}
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow" // there is a struct of that name too
int flock(int file, int operation) noexcept
{
    return int(afterMeeting("flock", nullptr, [=] { return ::syscall(SYS_flock, file, operation); }));
}
#pragma GCC diagnostic pop
ssize_t write(int file, const void *bytes, size_t count)
{
    const auto call = [=] { return ::syscall(SYS_write, file, bytes, count); };
    return afterMeeting("write", nullptr, call, file);
}
ssize_t copy_file_range(int from, off64_t *fromAt, int to, off64_t *toAt, size_t count, unsigned flags)
{
    return afterMeeting("copy_file_range", nullptr,
                        [=] { return ::syscall(SYS_copy_file_range, from, fromAt, to, toAt, count, flags); });
}
int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | __O_TMPFILE)) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const auto call = [=] { return ::syscall(SYS_openat, AT_FDCWD, path, flags, mode); };
    if ((flags & O_TMPFILE) == O_TMPFILE)
        return int(afterMeeting("open without a name", path, call));
    return int((flags & O_CREAT) ? afterMeeting("open", path, call) : call());
}
int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return int(
        afterMeeting("linkat", from, [=] { return ::syscall(SYS_linkat, fromFolder, from, toFolder, to, flags); }));
}
int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | __O_TMPFILE)) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return ::open(path, flags | O_LARGEFILE, mode);
}
}
