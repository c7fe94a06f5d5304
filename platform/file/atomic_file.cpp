#include "platform/file/atomic_file.h"

#include "platform/file/regular_file.h"
#include "platform/file/temporary_file.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

/**
 * Processes a file of @p size bytes with these changes; both functions answer false and set errno if they fail.
 *
 * @param keep  what stays: function(position, size)
 * @param add   what comes in: function(bytes)
 */
template<class Keep, class Add> bool splice(qint64 size, const QList<Splice> &splices, const Keep &keep, const Add &add)
{
    qint64 position = 0;
    for (const Splice &splice : splices) {
        const bool isInside = splice.at >= position && splice.removed >= 0 && splice.at + splice.removed <= size;
        if (!isInside) {
            errno = EINVAL;
            return false;
        }
        if (!keep(position, splice.at - position) || !add(splice.inserted))
            return false;
        position = splice.at + splice.removed;
    }
    return keep(position, size - position);
}

bool copySpliced(TemporaryFile &file, int source, qint64 size, const QList<Splice> &splices)
{
    return splice(
        size, splices, [&](qint64 position, qint64 count) { return file.copyFrom(source, position, count); },
        [&](const QByteArray &bytes) { return file.write(bytes); });
}

bool writeBytes(int file, const char *bytes, qint64 count)
{
    for (qint64 done = 0; done < count;) {
        const ssize_t written = ::write(file, bytes + done, size_t(count - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        done += written;
    }
    return true;
}

bool copyBytes(int source, qint64 position, qint64 size, int copy)
{
    constexpr qint64 step = 1 << 20;
    QByteArray buffer(std::min(step, size), Qt::Uninitialized);
    for (qint64 done = 0; done < size;) {
        const ssize_t count =
            ::pread(source, buffer.data(), size_t(std::min<qint64>(buffer.size(), size - done)), position + done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0)
            errno = EIO; // it was shortened meanwhile
        if (count <= 0 || !writeBytes(copy, buffer.constData(), count))
            return false;
        done += count;
    }
    return true;
}

} // namespace

Result<void> replaceFile(const QString &path, const QByteArray &bytes)
{
    TemporaryFile file(path);
    if (!file.isOpen() || !file.write(bytes) || !file.takePermissions() || !file.takePlace())
        return writeFailure(path, errno);
    return {};
}

Result<void> spliceFile(const QFile &source, const QList<Splice> &splices,
                        const std::function<Result<void>(const QString &path)> &check)
{
    const QString path = source.fileName();
    struct stat before = {};
    if (::fstat(source.handle(), &before) != 0)
        return writeFailure(path, errno);
    TemporaryFile file(path);
    if (!file.isOpen() || !copySpliced(file, source.handle(), before.st_size, splices))
        return writeFailure(path, errno);
    if (const Result<void> checked = check ? check(file.openPath()) : Result<void>(); !checked)
        return checked;
    if (!file.takeAttributesOf(source.handle()))
        return writeFailure(path, errno);
    return file.takePlace([&] { return isUnchanged(path, source.handle(), before); }) ? Result<void>()
                                                                                      : writeFailure(path, errno);
}

int copySpliced(int source, const QList<Splice> &splices, int copy)
{
    struct stat before = {};
    const bool isCopied =
        ::fstat(source, &before) == 0 &&
        splice(
            before.st_size, splices,
            [&](qint64 position, qint64 count) { return copyBytes(source, position, count, copy); },
            [&](const QByteArray &bytes) { return writeBytes(copy, bytes.constData(), bytes.size()); });
    return isCopied ? 0 : errno;
}

QByteArray spliced(const QByteArray &bytes, const QList<Splice> &splices)
{
    QByteArray result;
    qint64 position = 0;
    for (const Splice &splice : splices) {
        result.append(bytes.constData() + position, splice.at - position).append(splice.inserted);
        position = splice.at + splice.removed;
    }
    return result.append(bytes.constData() + position, bytes.size() - position);
}

Result<QByteArray> readFile(const QString &path)
{
    QFile file(path);
    if (const auto opened = openToRead(file); !opened)
        return tl::unexpected<Error>(opened.error());
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failure(ErrorCode::Unreadable,
                       QCoreApplication::translate("platform", "Cannot read %1: %2").arg(path, file.errorString()));
    return bytes;
}

} // namespace platform
