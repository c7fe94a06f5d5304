#include "app/preview/size_estimate.h"

#include "platform/graphics/resample.h"
#include "platform/imageio/formats/content.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>

namespace window {
namespace {

using platform::Bitmap;
using platform::FileFormat;

double pixelsOf(QSize size)
{
    return double(size.width()) * size.height();
}

/** Encoders that need so long for a pixel that they get fewer. */
bool isSlow(FileFormat format)
{
    return format == FileFormat::Gif || format == FileFormat::Jpeg2000 || format == FileFormat::Avif;
}

/** The bitmap, or as much of it as an encoder may have while somebody waits. */
Bitmap sampleOf(const Bitmap &bitmap, FileFormat format)
{
    constexpr double mostPixels = 2e6;
    constexpr double mostOfSlow = 4e5;
    const double share = (isSlow(format) ? mostOfSlow : mostPixels) / pixelsOf(bitmap.size());
    if (share >= 1)
        return bitmap;
    const QSize size = (QSizeF(bitmap.size()) * std::sqrt(share)).toSize().expandedTo({1, 1});
    return platform::resample(bitmap, size).value_or(bitmap);
}

int writtenBytesPerPixel(const Bitmap &bitmap)
{
    constexpr int bitsPerByte = 8;
    // Lab is kept in 4 bytes a pixel.
    constexpr int labBytes = 4;
    if (bitmap.colorModel() == platform::ColorModel::Lab)
        return labBytes;
    return bitmap.bandCount() * bitmap.bitsPerComponent() / bitsPerByte;
}

} // namespace

double exponentBetween(const CodedSample &small, const CodedSample &large, double typical)
{
    constexpr double leastRatio = 1.5;
    constexpr double least = 0.5;
    constexpr double most = 1.05;
    const double pixelRatio = large.pixels / small.pixels;
    const double byteRatio = large.bytes / small.bytes;
    if (!(pixelRatio >= leastRatio) || !(byteRatio > 0) || !std::isfinite(byteRatio))
        return typical;
    return std::clamp(std::log(byteRatio) / std::log(pixelRatio), least, most);
}

double exponentFor(FileFormat format, double jpegExponent)
{
    switch (format) {
    case FileFormat::Jpeg:
        return jpegExponent;
    case FileFormat::Png:
        return 0.2 + 0.79 * jpegExponent;
    case FileFormat::Jpeg2000:
        return 0.9 * jpegExponent;
    case FileFormat::Gif:
        return std::min(1.0, jpegExponent + 0.07);
    case FileFormat::Webp:
    case FileFormat::Avif:
    case FileFormat::JpegXl:
        return 0.95 * jpegExponent;
    case FileFormat::Tiff:
    case FileFormat::Bmp:
        break;
    }
    return 1;
}

double grown(const CodedSample &sample, double pixels, double exponent)
{
    return sample.pixels > 0 ? sample.bytes * std::pow(pixels / sample.pixels, exponent) : 0;
}

double bitmapFileBytes(QSize size, platform::ColorModel model)
{
    constexpr int headerBytes = 54;
    constexpr int tableBytes = 256 * 4;
    constexpr int alignment = 4;
    const bool isGrey = model == platform::ColorModel::Gray;
    const qint64 row = qint64(size.width()) * (isGrey ? 1 : 3);
    const qint64 padded = (row + alignment - 1) / alignment * alignment;
    return double(padded * size.height() + headerBytes + (isGrey ? tableBytes : 0));
}

double tiffFileBytes(QSize size, int bytesPerPixel)
{
    constexpr double directoryBytes = 300;
    constexpr double perStrip = 8; // its offset and its length
    constexpr double rowsPerStrip = 128;
    return pixelsOf(size) * bytesPerPixel + directoryBytes + perStrip * std::ceil(size.height() / rowsPerStrip);
}

double jpegHeaderBytes(const QByteArray &encoded)
{
    QBuffer file;
    file.setData(encoded);
    file.open(QIODevice::ReadOnly);
    return double(std::max<qint64>(0, platform::startOfJpegScan(file)));
}

std::optional<double> estimatedFileBytes(const jobs::Rendition &result, FileFormat format,
                                         const platform::EncodeOptions &options, double exponentAsJpeg)
{
    const Bitmap &bitmap = result.bitmap;
    if (bitmap.isNull() || result.full.isEmpty())
        return std::nullopt;
    const bool isWhole = bitmap.size() == result.full;
    if (format == FileFormat::Bmp)
        return bitmapFileBytes(result.full, bitmap.hasAlpha() ? platform::ColorModel::Rgb : bitmap.colorModel());
    if (format == FileFormat::Tiff && !isWhole)
        return tiffFileBytes(result.full, writtenBytesPerPixel(bitmap)) + double(bitmap.iccProfile().size());
    const Bitmap sample = sampleOf(bitmap, format);
    const auto encoded = platform::encodeImage(sample, format, options);
    if (!encoded)
        return std::nullopt;
    if (isWhole && sample.size() == bitmap.size())
        return double(encoded->size());
    const double header = format == FileFormat::Jpeg ? jpegHeaderBytes(*encoded) : double(bitmap.iccProfile().size());
    const CodedSample coded{std::max(1.0, double(encoded->size()) - header), pixelsOf(sample.size())};
    return header + grown(coded, pixelsOf(result.full), exponentFor(format, exponentAsJpeg));
}

std::optional<double> jpegExponent(const jobs::Rendition &rendition, double scanBytes)
{
    const Bitmap sample = sampleOf(rendition.bitmap, FileFormat::Jpeg);
    const auto encoded = platform::encodeImage(sample, FileFormat::Jpeg);
    if (!encoded)
        return std::nullopt;
    const CodedSample small{double(encoded->size()) - jpegHeaderBytes(*encoded), pixelsOf(sample.size())};
    return exponentBetween(small, {scanBytes, pixelsOf(rendition.full)}, typicalJpegExponent);
}

} // namespace window
