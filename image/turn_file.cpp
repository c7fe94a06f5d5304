#include "image/turn_file.h"

#include "image/output.h"
#include "image/turn.h"
#include "platform/foundation/log.h"
#include "platform/imageio/convert/lossless_turn.h"
#include "platform/imageio/convert/turned_jpeg.h"
#include "platform/imageio/source/image_source.h"

namespace image {
namespace {

using platform::Bitmap;
using platform::EncodeOptions;
using platform::ErrorCode;
using platform::FileFormat;
using platform::ImageSource;
using platform::Result;

QString noSource()
{
    platform::logText(QStringLiteral("Image source is NULL."));
    return {};
}

QString noImage()
{
    platform::logText(QStringLiteral("Image not created from image source."));
    return {};
}

bool isNoSource(const platform::Error &error)
{
    return error.code == ErrorCode::NotFound || error.code == ErrorCode::NotAPicture;
}

/** The stored pixels, turned. The old pixels are freed before anything is encoded. */
Result<Bitmap> turnedPixels(Bitmap stored, const Turning &turning)
{
    return turning.exact ? platform::turned(stored, *turning.exact) : turned(stored, turning.degrees);
}

Result<EncodeOptions> optionsFor(const ImageSource &source, std::optional<FileFormat> format, const Turning &turning)
{
    if (format != FileFormat::Jpeg && format != FileFormat::Tiff)
        return EncodeOptions();
    return optionsCarrying(source).map([&](EncodeOptions options) {
        if (turning.exact && platform::swapsSides(*turning.exact))
            options.metadata = options.metadata.withResolutionSwapped();
        return options;
    });
}

/** From JPEG to JPEG without any detour; none if that is not possible. */
std::optional<QByteArray> turnedAsJpeg(const ImageSource &source, const Turning &turning)
{
    if (turning.exact)
        return platform::turnedWithoutLoss(source, *turning.exact);
    const Result<EncodeOptions> options = optionsFor(source, FileFormat::Jpeg, turning);
    return options ? platform::turnedJpeg(source, freeTurnOf(source.storedSize(), turning.degrees), Qt::black, *options)
                   : std::nullopt;
}

} // namespace

Turning Turning::flip(Qt::Orientation axis)
{
    return {exactFlip(axis), 0};
}

Turning Turning::by(double degrees)
{
    return {platform::exactTurn(degrees), degrees};
}

QString turnFile(const QString &sourcePath, const QString &targetPath, const QString &type, const Turning &turning)
{
    const Result<ImageSource> source = ImageSource::open(sourcePath);
    if (!source)
        return isNoSource(source.error()) ? noSource() : noImage();
    const std::optional<FileFormat> format = platform::fileFormatForType(type);
    if (format == FileFormat::Jpeg)
        if (const std::optional<QByteArray> file = turnedAsJpeg(*source, turning))
            return writeAnswering(targetPath, *file);
    platform::DecodeOptions asStored;
    asStored.orientation = platform::Orientation::AsStored;
    asStored.forms = formsFor(type);
    Result<Bitmap> stored = source->decode(asStored);
    if (!stored)
        return noImage();
    const Bitmap drawn = turnedPixels(std::move(*stored), turning).value_or(Bitmap());
    return writeAnswering(targetPath, type, drawn, optionsFor(*source, format, turning));
}

} // namespace image
