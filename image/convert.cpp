#include "image/convert.h"

#include "platform/file/atomic_file.h"
#include "platform/imageio/convert/jpeg_straight.h"
#include "platform/imageio/convert/pdf_page.h"
#include "platform/imageio/convert/png_from_jpeg.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

namespace image {
namespace {

using platform::Bitmap;
using platform::FileFormat;
using platform::ImageSource;
using platform::Metadata;
using platform::Result;

platform::EncodeOptions withResolution()
{
    platform::EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    return options;
}

/** The source's metadata, with the orientation that its stored pixels have and no other statement of it. */
Result<Metadata> metadataForStoredPixels(const ImageSource &source)
{
    return source.metadata().map(
        [&source](const Metadata &metadata) { return metadata.withOrientation(source.orientation()); });
}

/** The stored pixels and nothing else. */
Result<QByteArray> plainFile(const ImageSource &source, FileFormat format)
{
    if (format == FileFormat::Png)
        if (const auto straight = platform::rowsAsPng(source))
            return *straight;
    const platform::Forms forms = format == FileFormat::Tiff ? platform::Forms::AsTiffHolds : platform::Forms::Plain;
    return source.decode({0, platform::Orientation::AsStored, forms, format}).and_then([format](const Bitmap &bitmap) {
        return platform::encodeImage(bitmap, format, withResolution());
    });
}

Result<void> writeKeepingMetadata(const ImageSource &source, FileFormat format, const Metadata &metadata,
                                  const QString &destination)
{
    const Result<QByteArray> plain = plainFile(source, format);
    if (!plain)
        return tl::unexpected<platform::Error>(plain.error());
    return platform::replaceFile(destination, *plain).and_then([&] {
        return metadata.writtenInto(*plain).and_then(
            [&](const QByteArray &whole) { return platform::replaceFile(destination, whole); });
    });
}

Result<void> writePixels(const ImageSource &source, FileFormat format, const Conversion &conversion)
{
    return source.decode({.written = format}).and_then([&](const Bitmap &bitmap) {
        platform::EncodeOptions options = withResolution();
        options.lossyQuality = conversion.quality;
        return platform::writeImageFile(conversion.destination, bitmap, format, options);
    });
}

/** The short way, or the general one. */
template<typename Way> Result<void> orElse(const Result<bool> &shortWay, Way otherWay)
{
    if (!shortWay)
        return tl::unexpected<platform::Error>(shortWay.error());
    return *shortWay ? Result<void>() : otherWay();
}

Result<void> writePage(const ImageSource &source, const QString &destination)
{
    return platform::pdfPageOf(source).and_then(
        [&](const QByteArray &page) { return platform::replaceFile(destination, page); });
}

Result<void> write(const ImageSource &source, const Conversion &conversion)
{
    switch (conversion.type) {
    case OutputType::Pdf:
        return writePage(source, conversion.destination);
    case OutputType::Png:
        return metadataForStoredPixels(source).and_then([&](const Metadata &metadata) {
            return writeKeepingMetadata(source, FileFormat::Png, metadata, conversion.destination);
        });
    case OutputType::Tiff:
        return metadataForStoredPixels(source).and_then([&](const Metadata &metadata) {
            return orElse(platform::writeRowsAsTiff(source, conversion.destination, metadata), [&] {
                return writeKeepingMetadata(source, FileFormat::Tiff, metadata, conversion.destination);
            });
        });
    case OutputType::Bmp:
        return orElse(platform::writeRowsAsBmp(source, conversion.destination),
                      [&] { return writePixels(source, FileFormat::Bmp, conversion); });
    case OutputType::Gif:
        return writePixels(source, FileFormat::Gif, conversion);
    case OutputType::Jpeg:
        return writePixels(source, FileFormat::Jpeg, conversion);
    case OutputType::Jpeg2000:
        return writePixels(source, FileFormat::Jpeg2000, conversion);
    case OutputType::Original:
    case OutputType::Webp:
    case OutputType::Avif:
    case OutputType::JpegXl:
        break;
    }
    Q_UNREACHABLE(); // not a target of conversions
}

Result<QByteArray> uprightFile(const ImageSource &source, FileFormat format, double quality)
{
    return source.decode({.written = format}).and_then([&](const Bitmap &bitmap) {
        platform::EncodeOptions options = withResolution();
        options.lossyQuality = quality;
        return platform::encodeImage(bitmap, format, options);
    });
}

Result<QByteArray> fileWithMetadata(const ImageSource &source, FileFormat format)
{
    return metadataForStoredPixels(source).and_then([&](const Metadata &metadata) {
        return plainFile(source, format).and_then([&](const QByteArray &plain) { return metadata.writtenInto(plain); });
    });
}

Result<QByteArray> convertedFile(const ImageSource &source, OutputType type, double quality)
{
    switch (type) {
    case OutputType::Pdf:
        return platform::pdfPageOf(source);
    case OutputType::Png:
        return fileWithMetadata(source, FileFormat::Png);
    case OutputType::Tiff:
        return fileWithMetadata(source, FileFormat::Tiff);
    case OutputType::Bmp:
        return uprightFile(source, FileFormat::Bmp, quality);
    case OutputType::Gif:
        return uprightFile(source, FileFormat::Gif, quality);
    case OutputType::Jpeg:
        return uprightFile(source, FileFormat::Jpeg, quality);
    case OutputType::Jpeg2000:
        return uprightFile(source, FileFormat::Jpeg2000, quality);
    case OutputType::Original:
    case OutputType::Webp:
    case OutputType::Avif:
    case OutputType::JpegXl:
        break;
    }
    return platform::failure(platform::ErrorCode::Unsupported, QString());
}

} // namespace

Result<qint64> convertedBytes(const ImageSource &source, OutputType type, double quality)
{
    return convertedFile(source, type, quality).map([](const QByteArray &file) { return qint64(file.size()); });
}

Result<void> convertFile(const Conversion &conversion)
{
    return ImageSource::open(conversion.source).and_then([&](const ImageSource &source) {
        return write(source, conversion);
    });
}

} // namespace image
