#include "files/items/line_file.h"

#include "platform/descriptors/descriptor.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/paths.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

/** A file of lines, which other processes append to and shorten as well. */
class LineFile
{
public:
    LineFile(const QString &path, int mode) : m_path(platform::encodedPath(path)), m_mode(mode)
    {
        constexpr int tries = 200;
        constexpr unsigned betweenUs = 5000;
        open();
        for (int i = 0; i < tries && isFile() && !m_isHeld; ++i) {
            if (::flock(number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
                ::usleep(betweenUs);
            else if (isNamed())
                m_isHeld = true;
            else
                open(); // it was replaced meanwhile
        }
    }

    int number() const { return m_file.number(); }
    /** Whether no other process changes it as long as it is open here. Nobody who holds it is waited for longer than a second. */
    bool isHeld() const { return m_isHeld; }

    /** Whether the name still leads to this file. */
    bool isNamed() const
    {
        struct stat open = {};
        struct stat named = {};
        return ::fstat(number(), &open) == 0 && ::stat(m_path.constData(), &named) == 0 &&
               open.st_ino == named.st_ino && open.st_dev == named.st_dev;
    }

    /** What was written behind that many bytes. */
    QByteArray after(qsizetype bytes) const
    {
        struct stat open = {};
        QByteArray rest;
        if (::fstat(number(), &open) == 0 && open.st_size > bytes)
            rest.resize(qsizetype(open.st_size) - bytes);
        const ssize_t got = ::pread(number(), rest.data(), size_t(rest.size()), off_t(bytes));
        return rest.left(std::max<ssize_t>(got, 0));
    }

    /** Anything else, such as a named pipe, could keep everybody waiting. */
    bool isFile() const
    {
        struct stat open = {};
        return ::fstat(number(), &open) == 0 && S_ISREG(open.st_mode);
    }

    bool endsInTheMiddleOfALine() const
    {
        struct stat open = {};
        char last = '\n';
        return ::fstat(number(), &open) == 0 && open.st_size > 0 &&
               ::pread(number(), &last, 1, open.st_size - 1) == 1 && last != '\n';
    }

private:
    void open()
    {
        constexpr int flags = O_RDWR | O_APPEND | O_NONBLOCK | O_CLOEXEC;
        constexpr mode_t allowedToAll = 0666;
        m_file = platform::Descriptor(::open(m_path.constData(), flags | m_mode, allowedToAll));
    }

    QByteArray m_path;
    int m_mode;
    platform::Descriptor m_file;
    bool m_isHeld = false;
};

tl::unexpected<platform::Error> noPath(const QString &path)
{
    errno = EINVAL;
    return platform::failure(platform::ErrorCode::WriteFailed, QStringLiteral("%1: %2").arg(path, qt_error_string()));
}

// Where the last @p count lines begin.
qsizetype startOfLast(const QByteArray &text, int count)
{
    qsizetype start = text.size();
    for (int line = 0; line < count && start > 0; ++line)
        start = start == 1 ? 0 : text.lastIndexOf('\n', start - 2) + 1;
    return start;
}

} // namespace

platform::Result<void> appendLines(const QString &path, const QByteArray &lines)
{
    if (!platform::canBeAPath(path))
        return noPath(path);
    const LineFile file(path, O_CREAT);
    // In one piece, so that the lines of two processes writing at once do not mix.
    const QByteArray bytes = file.endsInTheMiddleOfALine() ? '\n' + lines : lines;
    if (!file.isFile() || ::write(file.number(), bytes.constData(), size_t(bytes.size())) != bytes.size())
        return platform::failure(platform::ErrorCode::WriteFailed,
                                 QStringLiteral("%1: %2").arg(path, qt_error_string()));
    // Another process that took longer than a second to replace the file may have read it before.
    if (!file.isHeld() && !file.isNamed()) {
        const auto text = platform::readFile(path);
        if (!text || !text->contains(lines))
            return appendLines(path, lines);
    }
    return {};
}

platform::Result<void> appendPrivateLines(const QString &path, const QByteArray &lines)
{
    constexpr mode_t onlyMine = 0600;
    constexpr mode_t onlyMyFolder = 0700;
    const auto failed = [&] {
        return platform::failure(platform::ErrorCode::WriteFailed,
                                 QStringLiteral("%1: %2").arg(path, qt_error_string()));
    };
    if (!platform::canBeAPath(path))
        return noPath(path);
    const QByteArray folder = platform::encodedPath(QFileInfo(path).path());
    if (::mkdir(folder.constData(), onlyMyFolder) != 0 && errno != EEXIST)
        return failed();
    const platform::Descriptor file(::open(platform::encodedPath(path).constData(),
                                           O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW, onlyMine));
    struct stat before = {};
    if (!file.isOpen() || ::fstat(file.number(), &before) != 0)
        return failed();
    char last = '\n';
    const bool endsInALine = before.st_size > 0 && ::pread(file.number(), &last, 1, before.st_size - 1) == 1;
    const QByteArray bytes = endsInALine && last != '\n' ? '\n' + lines : lines;
    if (::write(file.number(), bytes.constData(), size_t(bytes.size())) == bytes.size() &&
        ::fdatasync(file.number()) == 0)
        return {};
    const auto failure = failed();
    (void)::ftruncate(file.number(), before.st_size); // half a line is of no use
    return failure;
}

platform::Result<void> keepNewestLines(const QString &path, int most, int limit)
{
    // Lines that others append are lost if that happens between reading and replacing.
    const LineFile file(path, 0);
    const auto text = platform::readFile(path);
    if (!text)
        return tl::unexpected(text.error());
    if (!file.isHeld())
        return {};
    if (std::count(text->cbegin(), text->cend(), '\n') <= limit)
        return {};
    // While that is synced, others may have stopped waiting and written to the file that is replaced.
    return platform::replaceFile(path, text->mid(startOfLast(*text, most))).and_then([&]() -> platform::Result<void> {
        const QByteArray late = file.after(text->size());
        return late.isEmpty() ? platform::Result<void>() : appendLines(path, late);
    });
}

} // namespace files
