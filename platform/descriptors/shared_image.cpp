#include "platform/descriptors/shared_image.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

constexpr int bytesPerPixel = 4;
constexpr int seals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

qint64 bytesOf(QSize size)
{
    return qint64(size.width()) * size.height() * bytesPerPixel;
}

bool isSound(QSize size)
{
    return !size.isEmpty() && size.width() <= mostSharedSide && size.height() <= mostSharedSide &&
           bytesOf(size) <= mostSharedBytes;
}

QImage::Format formatFor(bool hasAlpha)
{
    return hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32;
}

/** The same for reading and writing: all of @p count bytes, or false. */
template<class Step> bool goThrough(qint64 count, const Step &step)
{
    for (qint64 done = 0; done < count;) {
        const ssize_t more = step(done);
        if (more < 0 && errno == EINTR)
            continue;
        if (more <= 0)
            return false;
        done += more;
    }
    return true;
}

} // namespace

std::optional<SharedImage> sharedImage(const QImage &image)
{
    if (!isSound(image.size()))
        return std::nullopt;
    SharedImage shared;
    shared.size = image.size();
    shared.hasAlpha = image.hasAlphaChannel();
    const QImage pixels = image.convertToFormat(formatFor(shared.hasAlpha));
    shared.pixels = Descriptor(::memfd_create("quorlin-pixels", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    // Rows of 32-bit pixels have no gaps.
    const bool isWritten =
        shared.pixels.isOpen() && goThrough(bytesOf(shared.size), [&](qint64 done) {
            return ::write(shared.pixels.number(), pixels.constBits() + done, size_t(bytesOf(shared.size) - done));
        });
    if (!isWritten || ::fcntl(shared.pixels.number(), F_ADD_SEALS, seals) != 0)
        return std::nullopt;
    return shared;
}

QImage imageFrom(const SharedImage &shared)
{
    struct stat status = {};
    const int descriptor = shared.pixels.number();
    // Only such memory has seals: a file, a pipe or a socket passed instead is never read.
    const int sealed = ::fcntl(descriptor, F_GET_SEALS);
    const bool isSealed = sealed >= 0 && (sealed & seals) == seals;
    if (!isSealed || !isSound(shared.size) || ::fstat(descriptor, &status) != 0 ||
        status.st_size != bytesOf(shared.size))
        return {};
    QImage image(shared.size, formatFor(shared.hasAlpha));
    if (image.isNull())
        return {};
    const bool isRead = goThrough(bytesOf(shared.size), [&](qint64 done) {
        return ::pread(descriptor, image.bits() + done, size_t(bytesOf(shared.size) - done), off_t(done));
    });
    return isRead ? image : QImage();
}

} // namespace platform
