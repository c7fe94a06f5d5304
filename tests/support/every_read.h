#pragma once

#include <QString>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

/**
 * Stands between this program, with all its libraries, and the reads of one file: each of them can fail, as those of a damaged card or
 * of a network that is gone do, and so can those of what is mapped. What is read through stdio does not come this way. To be included once in a program.
 */
struct EveryRead
{
    enum class Fail { Once, FromThenOn };

    static inline int count = 0; ///< reads of the file since this was reset

    /** The @p number-th read of the file from now on fails, and those after it as @p fail says. */
    static void spoil(const QString &path, int number, Fail fail)
    {
        struct stat found = {};
        s_isOn = ::stat(path.toLocal8Bit().constData(), &found) == 0;
        s_device = found.st_dev;
        s_inode = found.st_ino;
        s_number = number;
        s_fail = fail;
        count = 0;
    }
    static void stop() { s_isOn = s_cutsMapped = false; }

    /** The file is cut short as soon as it is mapped: nothing of what is mapped can be read then. */
    static void spoilMapped(const QString &path)
    {
        spoil(path, 0x7fffffff, Fail::Once);
        s_cutsMapped = true;
    }
    static bool cutsMapped(int file)
    {
        struct stat found = {};
        return s_cutsMapped && ::fstat(file, &found) == 0 && found.st_dev == s_device && found.st_ino == s_inode;
    }
    static void cut(int file)
    {
        char name[32];
        std::snprintf(name, sizeof name, "/proc/self/fd/%d", file);
        (void)!::truncate(name, 0);
    }

    static bool fails(int file)
    {
        struct stat found = {};
        if (!s_isOn || ::fstat(file, &found) != 0 || found.st_dev != s_device || found.st_ino != s_inode)
            return false;
        ++count;
        return s_fail == Fail::Once ? count == s_number : count >= s_number;
    }

private:
    static inline bool s_isOn = false;
    static inline bool s_cutsMapped = false;
    static inline dev_t s_device = 0;
    static inline ino_t s_inode = 0;
    static inline int s_number = 0;
    static inline Fail s_fail = Fail::Once;
};

extern "C" {
ssize_t read(int file, void *bytes, size_t count)
{
    if (EveryRead::fails(file)) {
        errno = EIO;
        return -1;
    }
    return ::syscall(SYS_read, file, bytes, count);
}
ssize_t pread(int file, void *bytes, size_t count, off_t at)
{
    if (EveryRead::fails(file)) {
        errno = EIO;
        return -1;
    }
    return ::syscall(SYS_pread64, file, bytes, count, at);
}
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast" // the library's own MAP_FAILED
void *mmap(void *at, size_t size, int protection, int flags, int file, off_t from) noexcept
{
    void *const place = reinterpret_cast<void *>(::syscall(SYS_mmap, at, size, protection, flags, file, from));
    if (file >= 0 && place != MAP_FAILED && EveryRead::cutsMapped(file))
        EveryRead::cut(file);
    return place;
}
void *mmap64(void *at, size_t size, int protection, int flags, int file, off64_t from) noexcept
{
    return ::mmap(at, size, protection, flags, file, from);
}
#pragma GCC diagnostic pop
ssize_t pread64(int file, void *bytes, size_t count, off64_t at)
{
    return ::pread(file, bytes, count, at);
}
}
