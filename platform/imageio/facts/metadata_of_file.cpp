#include "platform/imageio/facts/metadata_of_file.h"

#include "platform/file/mapped_file.h"
#include "platform/imageio/codecs/codecs.h"

namespace platform {
namespace {

/** Files up to this size are read at once; larger ones are mapped. */
constexpr qint64 mostReadAtOnce = 64 << 20;

QByteArray blockOf(const vips::VImage &image, const char *field)
{
    if (image.get_typeof(field) == 0)
        return {};
    size_t length = 0;
    const void *block = image.get_blob(field, &length);
    return {static_cast<const char *>(block), qsizetype(length)};
}

/** XMP is among the numbered items of a HEIC or AVIF file, recognisable only by its content. */
QByteArray xmpOf(const vips::VImage &image)
{
    constexpr int mostItems = 16;
    for (int number = 0; number < mostItems; ++number) {
        const QByteArray item = blockOf(image, QByteArray("heif-mime-" + QByteArray::number(number)).constData());
        if (item.contains("adobe:ns:meta"))
            return item;
    }
    return blockOf(image, VIPS_META_XMP_NAME);
}

/** The decoder extracts the blocks from a container that the metadata reader does not support. */
Metadata fromDecoder(const PictureBytes &bytes, Content content)
{
    initVips();
    const vips::VImage image = openImage(bytes, content);
    return Metadata::fromBlocks(blockOf(image, VIPS_META_EXIF_NAME), xmpOf(image), blockOf(image, VIPS_META_IPTC_NAME));
}

Metadata fromLargeFile(const PictureBytes &bytes)
{
    const std::unique_ptr<QFile> file = bytes.openedFile();
    if (!file)
        throw vips::VError("it cannot be opened");
    const MappedFile mapped(*file);
    if (!mapped.isThere())
        throw vips::VError(file->errorString().toStdString());
    Metadata metadata = Metadata::fromFileBytes(mapped.bytes());
    if (mapped.isSpoilt())
        throw vips::VError("some of it cannot be read");
    return metadata;
}

/** The segments before the first scan contain all the metadata of a JPEG; the reader reads a little further. */
QByteArray jpegHead(QIODevice &device)
{
    constexpr qint64 readAhead = 4096;
    const qint64 scan = startOfJpegScan(device);
    return scan > 0 && device.seek(0) ? device.read(scan + readAhead) : QByteArray();
}

Metadata inBytes(const QIODevice &device, const QByteArray &bytes)
{
    demandRead(device);
    return Metadata::fromFileBytes(bytes);
}

} // namespace

Metadata metadataOf(const PictureBytes &bytes, Content content)
{
    switch (content) {
    case Content::Heif:
    case Content::Avif:
        // The decoder has applied the container's own rotation, and this one would rotate the picture again.
        return fromDecoder(bytes, content).withOrientation(1);
    case Content::Bmp:
    case Content::Pdf:
    case Content::Svg:
    case Content::Unknown:
        return {};
    default:
        break;
    }
    const std::unique_ptr<QIODevice> device = bytes.openedDevice();
    if (content == Content::Jpeg)
        return inBytes(*device, jpegHead(*device));
    if (content == Content::JpegXl) // its pixels determine the orientation, whatever EXIF says
        return inBytes(*device, device->readAll()).withOrientation(1);
    if (device->size() <= mostReadAtOnce || bytes.isInMemory())
        return inBytes(*device, device->readAll());
    return fromLargeFile(bytes);
}

} // namespace platform
