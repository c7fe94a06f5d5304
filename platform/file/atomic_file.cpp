#include "platform/file/atomic_file.h"

#include "platform/file/regular_file.h"
#include "platform/file/temporary_file.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <sys/stat.h>

namespace platform {
namespace {

bool copySpliced(TemporaryFile &file, int source, qint64 size, const QList<Splice> &splices)
{
    qint64 position = 0;
    for (const Splice &splice : splices) {
        const bool isInside = splice.at >= position && splice.removed >= 0 && splice.at + splice.removed <= size;
        if (!isInside) {
            errno = EINVAL;
            return false;
        }
        if (!file.copyFrom(source, position, splice.at - position) || !file.write(splice.inserted))
            return false;
        position = splice.at + splice.removed;
    }
    return file.copyFrom(source, position, size - position);
}

/** True if somebody wrote to the file since. */
bool isChanged(int file, const struct stat &before)
{
    struct stat now = {};
    return ::fstat(file, &now) != 0 || now.st_size != before.st_size || now.st_mtim.tv_sec != before.st_mtim.tv_sec ||
           now.st_mtim.tv_nsec != before.st_mtim.tv_nsec;
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
    if (isChanged(source.handle(), before))
        return writeFailure(path, EBUSY);
    return file.takePlace() ? Result<void>() : writeFailure(path, errno);
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
