#include "platform/imageio/encode/image_destination.h"

#include "platform/file/atomic_file.h"
#include "platform/file/replacement_file.h"
#include "platform/foundation/memory_left.h"
#include "platform/graphics/compose.h"
#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/encode/carrying.h"
#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/jpeg2000/jp2_profile.h"

#include <QCoreApplication>

#include <algorithm>

namespace platform {
namespace {

/** The picture on the requested colour, if the format has no transparency. */
Result<Bitmap> onMatte(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    const bool isNeeded = options.matte && bitmap.hasAlpha() && !formatOf(format).keeps.alpha;
    return isNeeded ? laidOn(bitmap, *options.matte) : Result<Bitmap>(bitmap);
}

/** How many pixels a side can have, and what the type is called; 0: no limit that a picture could reach. */
struct Sides
{
    int longest = 0;
    const char *name = "";
};

Sides sidesOf(FileFormat format)
{
    switch (format) {
    case FileFormat::Jpeg:
        return {65500, "JPEG"};
    case FileFormat::Gif:
        return {65535, "GIF"};
    case FileFormat::Webp:
        return {longestWebpSide, "WebP"};
    case FileFormat::Avif: // as many as the decoder accepts
        return {16384, "AVIF"};
    default:
        return {};
    }
}

Result<QByteArray> encodePixels(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    Keeping keeps = formatOf(format).keeps;
    const QByteArray profile = bitmap.iccProfile();
    if (keeps.profile == Kept::IfItFits)
        keeps.profile = !profile.isEmpty() && holdsProfile(format, profile) ? Kept::Yes : Kept::No;
    const vips::VImage image = preparedFor(keeps, bitmap.pixels().image());
    CodecOptions how;
    how.resolution = writtenResolution(bitmap.pixels().resolution, options);
    how.jpegQuality = jpegQualityOf(options);
    how.sourceTables = bitmap.pixels().quantisation;
    if (options.quality || options.isLossless)
        how.compression = Compression{options.quality.value_or(Compression().quality), options.isLossless};
    how.profile = keeps.profile == Kept::Yes ? profile : QByteArray();
    if (isEncodedWithMetadata(format))
        how.blocks = options.metadata.blocksFor({image.width(), image.height()}, Metadata::Holds::ExifXmp);
    return encodedPixels(image, format, how);
}

/** Writes rows as a TIFF file without metadata, straight from where they are; false if this way is not possible. */
Result<bool> writeRowsAsTiff(const QString &path, const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    const bool isPlain = options.metadata.isEmpty() && options.carried == Carried::Blocks;
    if (bitmap.isNull() || format != FileFormat::Tiff || !isPlain || bitmap.pixels().rows().isNull())
        return false;
    const Bitmap::Pixels &pixels = bitmap.pixels();
    const QImage &rows = pixels.rows();
    const auto ends = plainTiffEnds(rows, pixels.profile(), writtenResolution(pixels.resolution, options));
    if (!ends)
        return false;
    const qint64 rowBytes = qint64(rows.width()) * pixels.bands();
    const bool isOnePiece = rows.bytesPerLine() == rowBytes;
    ReplacementFile file(path);
    file.write(0, ends->head);
    qint64 at = ends->head.size();
    const qint64 piece = isOnePiece ? rowBytes * rows.height() : rowBytes;
    for (int y = 0; y < rows.height(); y += isOnePiece ? rows.height() : 1, at += piece)
        file.write(at, reinterpret_cast<const char *>(rows.constScanLine(y)), piece);
    file.write(at, ends->tail);
    return file.takePlace().map([] { return true; });
}

} // namespace

Result<void> sidesFit(QSize size, FileFormat format)
{
    const Sides sides = sidesOf(format);
    const int longest = std::max(size.width(), size.height());
    if (sides.longest == 0 || longest <= sides.longest)
        return {};
    return failure(ErrorCode::TooLarge,
                   QCoreApplication::translate("platform", "%1 files can have at most %2 pixels on a side, not %3")
                       .arg(QLatin1String(sides.name))
                       .arg(sides.longest)
                       .arg(longest));
}

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
        if (const auto fitting = sidesFit(bitmap.size(), format); !fitting)
            return tl::unexpected<Error>(fitting.error());
        const auto left = memoryIsLeftFor(
            memoryNeedOfWriting(format, bitmap.pixels().image(), options.isLossless ? Loss::None : Loss::Some),
            QCoreApplication::translate("platform", "Writing the picture"));
        if (!left)
            return tl::unexpected<Error>(left.error());
        const Result<Bitmap> opaque = onMatte(bitmap, format, options);
        if (!opaque)
            return tl::unexpected<Error>(opaque.error());
        EncodeOptions known = options;
        known.metadata = carriedMetadata(bitmap.pixels().resolution, format, options);
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
    if (const Result<bool> written = writeRowsAsTiff(path, bitmap, format, options); !written || *written)
        return written.map([](bool) {});
    const Result<QByteArray> encoded = encodeImage(bitmap, format, options);
    if (!encoded)
        return tl::unexpected<Error>(encoded.error());
    return replaceFile(path, *encoded);
}

} // namespace platform
