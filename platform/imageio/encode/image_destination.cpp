#include "platform/imageio/encode/image_destination.h"

#include "platform/file/atomic_file.h"
#include "platform/foundation/memory_left.h"
#include "platform/graphics/compose.h"
#include "platform/imageio/encode/encoders.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/jpeg2000/jp2_profile.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

Resolution writtenResolution(const Bitmap &bitmap, const EncodeOptions &options)
{
    if (options.dpi)
        return {*options.dpi, *options.dpi};
    return options.resolution == WriteResolution::Yes ? bitmap.pixels().resolution : Resolution();
}

std::optional<double> jpegQuality(const EncodeOptions &options)
{
    constexpr double best = 100;
    return options.quality ? *options.quality / best : options.lossyQuality;
}

QByteArray jpeg2000Of(const vips::VImage &image, const EncodeOptions &options)
{
    const bool isAsked = options.quality || options.isLossless;
    const Compression compression{options.quality.value_or(Compression().quality), options.isLossless};
    return encodeJpeg2000(image, isAsked ? std::optional(compression) : std::nullopt);
}

/** The picture on the colour that is asked for, where the format has no transparency. */
Result<Bitmap> onMatte(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    const bool isNeeded = options.matte && bitmap.hasAlpha() && !formatOf(format).keeps.alpha;
    return isNeeded ? laidOn(bitmap, *options.matte) : Result<Bitmap>(bitmap);
}

/** What keeps the picture from being written in this format, whatever memory there is. */
Result<void> fits(const Bitmap &bitmap, FileFormat format)
{
    const int longest = std::max(bitmap.width(), bitmap.height());
    if (format != FileFormat::Webp || longest <= longestWebpSide)
        return {};
    return failure(ErrorCode::TooLarge,
                   QCoreApplication::translate("platform", "A WebP file holds at most %1 pixels on a side, not %2")
                       .arg(longestWebpSide)
                       .arg(longest));
}

Result<QByteArray> encodePixels(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    Keeping keeps = formatOf(format).keeps;
    const QByteArray profile = bitmap.iccProfile();
    if (keeps.profile == Kept::IfItFits)
        keeps.profile = !profile.isEmpty() && holdsProfile(format, profile) ? Kept::Yes : Kept::No;
    const vips::VImage image = preparedFor(keeps, bitmap.pixels().image);
    const Resolution resolution = writtenResolution(bitmap, options);
    const Compression compression{options.quality.value_or(Compression().quality), options.isLossless};
    switch (format) {
    case FileFormat::Png:
        return encodePng(image, resolution);
    case FileFormat::Tiff:
        return encodeTiff(image, resolution);
    case FileFormat::Bmp:
        return encodeBmp(image, resolution);
    case FileFormat::Gif:
        return encodeGif(image);
    case FileFormat::Jpeg:
        return encodeJpeg(image.copy_memory(), {jpegQuality(options), bitmap.pixels().quantisation, resolution});
    case FileFormat::Jpeg2000:
        return keeps.profile == Kept::Yes ? withJpeg2000Profile(jpeg2000Of(image, options), profile)
                                          : jpeg2000Of(image, options);
    case FileFormat::Webp:
        return encodeWebp(image, compression);
    case FileFormat::Avif:
        return encodeAvif(image, compression.quality,
                          options.metadata.blocksFor({image.width(), image.height()}, Metadata::Holds::ExifXmp));
    case FileFormat::JpegXl:
        return encodeJpegXl(image, compression);
    }
    return failure(ErrorCode::Unsupported, QString());
}

/** Files that state no resolution but in EXIF. */
bool statesResolutionInExif(FileFormat format)
{
    return format == FileFormat::Webp || format == FileFormat::Avif || format == FileFormat::JpegXl ||
           format == FileFormat::Jpeg2000;
}

/** What goes into the file, in step with its pixels. */
Metadata metadataFor(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    if (options.carried == Carried::Blocks)
        return format == FileFormat::Jpeg || format == FileFormat::Tiff ? options.metadata : Metadata();
    const Metadata upright = options.metadata.withOrientation(1);
    const Resolution resolution = writtenResolution(bitmap, options);
    const QSizeF stated = upright.resolution();
    const QSizeF known(resolution.horizontal, resolution.vertical > 0 ? resolution.vertical : resolution.horizontal);
    const bool isSaid = !stated.isEmpty() || statesResolutionInExif(format);
    constexpr double tolerance = 0.01;
    const bool isSame =
        std::abs(stated.width() - known.width()) < tolerance && std::abs(stated.height() - known.height()) < tolerance;
    return known.isEmpty() || !isSaid || isSame ? upright : upright.withResolution(known.width(), known.height());
}

/** @p options has what metadataFor() gives. */
Result<QByteArray> withMetadata(const QByteArray &encoded, QSize pixels, FileFormat format,
                                const EncodeOptions &options)
{
    const bool isIn = format == FileFormat::Avif; // since it was encoded
    const bool isCarried = !options.metadata.isEmpty() || options.carried == Carried::Everything;
    if (isIn || !isCarried || format == FileFormat::Bmp)
        return encoded;
    return options.metadata.writtenInto(encoded, options.carried, pixels);
}

} // namespace

bool holdsProfile(FileFormat format, const QByteArray &iccProfile)
{
    const Kept kept = formatOf(format).keeps.profile;
    return iccProfile.isEmpty() || kept == Kept::Yes || (kept == Kept::IfItFits && fitsJpeg2000(iccProfile));
}

Result<QByteArray> encodeImage(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    if (bitmap.isNull())
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "There is no picture to write"));
    try {
        initVips();
        if (const auto fitting = fits(bitmap, format); !fitting)
            return tl::unexpected<Error>(fitting.error());
        const auto left = memoryIsLeftFor(
            memoryNeedOfWriting(format, bitmap.pixels().image, options.isLossless ? Loss::None : Loss::Some),
            QCoreApplication::translate("platform", "Writing the picture"));
        if (!left)
            return tl::unexpected<Error>(left.error());
        const Result<Bitmap> opaque = onMatte(bitmap, format, options);
        if (!opaque)
            return tl::unexpected<Error>(opaque.error());
        EncodeOptions known = options;
        known.metadata = metadataFor(bitmap, format, options);
        return encodePixels(*opaque, format, known).and_then([&](const QByteArray &encoded) {
            return withMetadata(encoded, bitmap.size(), format, known);
        });
    } catch (const vips::VError &error) {
        return failure(
            ErrorCode::WriteFailed,
            QCoreApplication::translate("platform", "The picture could not be encoded: %1").arg(takeVipsError(error)));
    }
}

Result<void> writeImageFile(const QString &path, const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    const Result<QByteArray> encoded = encodeImage(bitmap, format, options);
    if (!encoded)
        return tl::unexpected<Error>(encoded.error());
    return replaceFile(path, *encoded);
}

} // namespace platform
