#include "platform/imageio/encode/image_destination.h"

#include "platform/file/atomic_file.h"
#include "platform/foundation/memory_left.h"
#include "platform/imageio/encode/encoders.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/jpeg2000/jp2_profile.h"

#include <QCoreApplication>

namespace platform {
namespace {

Resolution writtenResolution(const Bitmap &bitmap, const EncodeOptions &options)
{
    return options.resolution == WriteResolution::Yes ? bitmap.pixels().resolution : Resolution();
}

Result<QByteArray> encodePixels(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options)
{
    Keeping keeps = formatOf(format).keeps;
    const QByteArray profile = bitmap.iccProfile();
    if (keeps.profile == Kept::IfItFits)
        keeps.profile = !profile.isEmpty() && holdsProfile(format, profile) ? Kept::Yes : Kept::No;
    const vips::VImage image = preparedFor(keeps, bitmap.pixels().image);
    const Resolution resolution = writtenResolution(bitmap, options);
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
        return encodeJpeg(image.copy_memory(), {options.lossyQuality, bitmap.pixels().quantisation, resolution});
    case FileFormat::Jpeg2000:
        return keeps.profile == Kept::Yes ? withJpeg2000Profile(encodeJpeg2000(image), profile) : encodeJpeg2000(image);
    }
    return failure(ErrorCode::Unsupported, QString());
}

bool holdsMetadata(FileFormat format)
{
    return format == FileFormat::Jpeg || format == FileFormat::Tiff;
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
        const auto left = memoryIsLeftFor(memoryNeedOfWriting(format, bitmap.pixels().image),
                                          QCoreApplication::translate("platform", "Writing the picture"));
        if (!left)
            return tl::unexpected<Error>(left.error());
        const Result<QByteArray> encoded = encodePixels(bitmap, format, options);
        if (!encoded || options.metadata.isEmpty() || !holdsMetadata(format))
            return encoded;
        return options.metadata.writtenInto(*encoded);
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
