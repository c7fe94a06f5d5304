#include "files/items/line_file.h"

#include "platform/descriptors/descriptor.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/paths.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {

namespace {

bool endsInTheMiddleOfALine(QFile &file)
{
    char last = '\n';
    return file.size() > 0 && file.seek(file.size() - 1) && file.getChar(&last) && last != '\n';
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
    QFile file(path);
    // Opening a named pipe for writing waits for a reader.
    const bool isFile = !QFileInfo::exists(path) || QFileInfo(path).isFile();
    if (isFile && file.open(QIODevice::ReadWrite | QIODevice::Append)) {
        // In one piece, so that the lines of two processes writing at once do not mix.
        const QByteArray bytes = endsInTheMiddleOfALine(file) ? '\n' + lines : lines;
        if (file.write(bytes) == bytes.size() && file.flush())
            return {};
    }
    return platform::failure(platform::ErrorCode::WriteFailed, QStringLiteral("%1: %2").arg(path, file.errorString()));
}

platform::Result<void> appendPrivateLines(const QString &path, const QByteArray &lines)
{
    constexpr mode_t onlyMine = 0600;
    constexpr mode_t onlyMyFolder = 0700;
    const auto failed = [&] {
        return platform::failure(platform::ErrorCode::WriteFailed,
                                 QStringLiteral("%1: %2").arg(path, qt_error_string()));
    };
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
    const auto text = platform::readFile(path);
    if (!text)
        return tl::unexpected(text.error());
    if (std::count(text->cbegin(), text->cend(), '\n') <= limit)
        return {};
    return platform::replaceFile(path, text->mid(startOfLast(*text, most)));
}

} // namespace files
