#include "platform/imageio/encode/carrying.h"

#include <cmath>

namespace platform {
namespace {

/** Files that state no resolution except in their metadata: in EXIF, or in XMP made from it. */
bool statesResolutionInMetadata(FileFormat format)
{
    switch (format) {
    case FileFormat::Gif:
    case FileFormat::Webp:
    case FileFormat::Avif:
    case FileFormat::JpegXl:
    case FileFormat::Jpeg2000:
        return true;
    case FileFormat::Jpeg:
    case FileFormat::Png:
    case FileFormat::Tiff:
    case FileFormat::Bmp:
        break;
    }
    return false;
}

/** Whether the header of a JPEG can state it, which has whole numbers per inch. */
bool fitsHeaderOfJpeg(QSizeF resolution)
{
    constexpr double nearly = 0.02;
    const auto isWhole = [](double density) { return std::abs(density - std::round(density)) < nearly; };
    return isWhole(resolution.width()) && isWhole(resolution.height());
}

} // namespace

Resolution writtenResolution(Resolution known, const EncodeOptions &options)
{
    if (options.dpi)
        return {*options.dpi, *options.dpi};
    return options.resolution == WriteResolution::Yes ? known : Resolution();
}

std::optional<double> jpegQualityOf(const EncodeOptions &options)
{
    constexpr double best = 100;
    return options.quality ? *options.quality / best : options.lossyQuality;
}

bool isEncodedWithMetadata(FileFormat format)
{
    return format == FileFormat::Avif;
}

Metadata carriedMetadata(Resolution ofPixels, FileFormat format, const EncodeOptions &options)
{
    if (options.carried == Carried::Blocks)
        return format == FileFormat::Jpeg || format == FileFormat::Tiff ? options.metadata : Metadata();
    const Metadata upright = options.metadata.withOrientation(1);
    const Resolution resolution = writtenResolution(ofPixels, options);
    const QSizeF stated = upright.resolution();
    const QSizeF known(resolution.horizontal, resolution.vertical > 0 ? resolution.vertical : resolution.horizontal);
    const bool isSaid = !stated.isEmpty() || statesResolutionInMetadata(format) ||
                        (format == FileFormat::Jpeg && !fitsHeaderOfJpeg(known));
    constexpr double tolerance = 0.01;
    const bool isSame =
        std::abs(stated.width() - known.width()) < tolerance && std::abs(stated.height() - known.height()) < tolerance;
    return known.isEmpty() || !isSaid || isSame ? upright : upright.withResolution(known.width(), known.height());
}

Result<QByteArray> withMetadata(const QByteArray &encoded, QSize pixels, FileFormat format,
                                const EncodeOptions &options)
{
    const bool isCarried = !options.metadata.isEmpty() || options.carried == Carried::Everything;
    if (isEncodedWithMetadata(format) || !isCarried || format == FileFormat::Bmp)
        return encoded;
    return options.metadata.writtenInto(encoded, options.carried, pixels);
}

} // namespace platform
