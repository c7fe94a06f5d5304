#include "platform/imageio/encode/image_destination.h"

#include "platform/file/atomic_file.h"
#include "platform/foundation/memory_left.h"
#include "platform/graphics/compose.h"
#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/encoders/encoders.h"
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

/** Files that cannot be given metadata once they are encoded. */
bool isEncodedWithMetadata(FileFormat format)
{
    return format == FileFormat::Avif;
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
    CodecOptions how;
    how.resolution = writtenResolution(bitmap, options);
    how.jpegQuality = jpegQuality(options);
    how.sourceTables = bitmap.pixels().quantisation;
    if (options.quality || options.isLossless)
        how.compression = Compression{options.quality.value_or(Compression().quality), options.isLossless};
    how.profile = keeps.profile == Kept::Yes ? profile : QByteArray();
    if (isEncodedWithMetadata(format))
        how.blocks = options.metadata.blocksFor({image.width(), image.height()}, Metadata::Holds::ExifXmp);
    return encodedPixels(image, format, how);
}

/** Files that state no resolution but in their metadata: in EXIF, or what of it becomes XMP. */
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

/** What goes into the file, in step with its pixels. */
Metadata metadataFor(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    if (options.carried == Carried::Blocks)
        return format == FileFormat::Jpeg || format == FileFormat::Tiff ? options.metadata : Metadata();
    const Metadata upright = options.metadata.withOrientation(1);
    const Resolution resolution = writtenResolution(bitmap, options);
    const QSizeF stated = upright.resolution();
    const QSizeF known(resolution.horizontal, resolution.vertical > 0 ? resolution.vertical : resolution.horizontal);
    const bool isSaid = !stated.isEmpty() || statesResolutionInMetadata(format);
    constexpr double tolerance = 0.01;
    const bool isSame =
        std::abs(stated.width() - known.width()) < tolerance && std::abs(stated.height() - known.height()) < tolerance;
    return known.isEmpty() || !isSaid || isSame ? upright : upright.withResolution(known.width(), known.height());
}

/** @p options has what metadataFor() gives. */
Result<QByteArray> withMetadata(const QByteArray &encoded, QSize pixels, FileFormat format,
                                const EncodeOptions &options)
{
    const bool isCarried = !options.metadata.isEmpty() || options.carried == Carried::Everything;
    if (isEncodedWithMetadata(format) || !isCarried || format == FileFormat::Bmp)
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
