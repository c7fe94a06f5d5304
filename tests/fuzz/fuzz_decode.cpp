// Pictures made of any bytes at all: opened, looked at and decoded as the list, the preview and a conversion do it.
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture_facts.h"

#include <QFile>
#include <QImage>

#include <cstdlib>
#include <unistd.h>

namespace {

void require(bool isTrue)
{
    if (!isTrue)
        std::abort();
}

QString scratchFile()
{
    return QStringLiteral("/dev/shm/quorlin-fuzz-%1").arg(::getpid());
}

void store(const QByteArray &bytes)
{
    QFile file(scratchFile());
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/** Reads every pixel of it, so that one that is not there is noticed. */
void walk(const platform::Bitmap &bitmap, QSize least)
{
    require(bitmap.size().width() >= least.width() && bitmap.size().height() >= least.height());
    const QImage image = bitmap.toScreenImage();
    uint sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (qsizetype x = 0; x < image.bytesPerLine(); ++x)
            sum += image.constScanLine(y)[x];
    static volatile uint kept;
    kept = sum;
}

void decode(const platform::ImageSource &source)
{
    const QSize size = source.uprightSize();
    constexpr qint64 mostPixels = 1 << 20; // more says nothing more and takes long
    require(size.width() > 0 && size.height() > 0);
    if (qint64(size.width()) * size.height() > mostPixels)
        return;
    if (const auto whole = source.decode())
        walk(*whole, size);
    if (const auto small = source.decodeScaled((size / 4).expandedTo({1, 1})))
        walk(*small, {1, 1});
    if (const auto part = source.decodePart({size.width() / 3, size.height() / 3, 7, 5}))
        walk(*part, {1, 1});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool isTidy = std::atexit([] { QFile::remove(scratchFile()); }) == 0;
    require(isTidy);
    store(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const platform::PictureFacts facts = platform::pictureFacts(scratchFile());
    const auto source = platform::ImageSource::open(scratchFile());
    // The facts of a JPEG, and of a raw file, are read without the decoder.
    const bool isByDecoder = !facts.pixels.isEmpty() && facts.typeIdentifier != QLatin1String("public.jpeg");
    require(source || !isByDecoder);
    (void)platform::readUserComment(scratchFile());
    if (!source)
        return 0;
    require(source->imageCount() > 0 && source->orientation() >= 1 && source->orientation() <= 8);
    (void)source->properties();
    (void)source->colorSpaceName();
    decode(*source);
    return 0;
}
