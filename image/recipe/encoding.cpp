#include "image/recipe/encoding.h"

#include "image/recipe/output_kind.h"
#include "image/recipe/sentence.h"
#include "platform/imageio/convert/cropped_jpeg.h"
#include "platform/imageio/convert/lossless_turn.h"
#include "platform/imageio/convert/other_metadata.h"
#include "platform/imageio/convert/pdf_page.h"
#include "platform/imageio/convert/png_from_jpeg.h"
#include "platform/imageio/convert/turned_jpeg.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/exif/orientation_mark.h"

namespace image {
namespace {

using platform::Bitmap;
using platform::ImageSource;
using platform::Result;

constexpr int usualQuality = 85;
constexpr int leastQuality = 5;
constexpr int mostQuality = 100;

tl::unexpected<platform::Error> impossible()
{
    return platform::failure(platform::ErrorCode::Unsupported,
                             sentence(QT_TRANSLATE_NOOP("recipe", "The pixels cannot stay as they are")));
}

Result<QByteArray> turnedFile(const ImageSource &source, const RightTurn &turn)
{
    if (turn.isNothing())
        return source.fileContent().and_then([](const QByteArray &file) { return platform::markedUpright(file); });
    ImageSource now = source;
    QByteArray file;
    for (const platform::ExactTurn step : turn.steps()) {
        const std::optional<QByteArray> turned = platform::turnedWithoutLoss(now, step);
        if (!turned)
            return impossible();
        file = *turned;
        const Result<ImageSource> next = ImageSource::fromData(file);
        if (!next)
            return tl::unexpected<platform::Error>(next.error());
        now = *next;
    }
    return platform::markedUpright(file);
}

/** Whether the type has a quality that can be chosen. */
bool hasQuality(const RecipeOutput &output, OutputType type)
{
    return writtenType(type).hasQuality && !output.isLossless;
}

/** The quality that is written; none if a JPEG keeps its original tables. */
std::optional<int> chosenQuality(const RecipeOutput &output, OutputType type, bool isFromJpeg)
{
    if (!hasQuality(output, type))
        return std::nullopt;
    const bool keepsTables = output.type == OutputType::Original && type == OutputType::Jpeg && isFromJpeg;
    return output.quality || keepsTables ? output.quality : usualQuality;
}

Result<QByteArray> encodedAt(const Bitmap &bitmap, OutputType type, std::optional<int> quality,
                             platform::EncodeOptions options)
{
    if (type == OutputType::Pdf)
        return platform::pdfPageOf(bitmap).and_then([&](const QByteArray &page) {
            return options.metadata.writtenInto(page, platform::Carried::Everything, bitmap.size());
        });
    options.quality = quality;
    return platform::encodeImage(bitmap, *formatFor(type), options);
}

/** The best quality whose file is no larger. */
Result<QByteArray> encodedWithin(const Bitmap &bitmap, const RecipeOutput &output, OutputType type,
                                 const platform::EncodeOptions &options)
{
    const auto tooLarge = [&] {
        return platform::failure(
            platform::ErrorCode::TooLarge,
            sentence(QT_TRANSLATE_NOOP("recipe", "It does not fit into %1 bytes")).arg(*output.maxBytes));
    };
    const auto fits = [&](const Result<QByteArray> &file) { return file && file->size() <= *output.maxBytes; };
    const std::optional<int> stated = chosenQuality(output, type, bitmap.jpegQuantisation().has_value());
    int above = output.quality.value_or(mostQuality);
    Result<QByteArray> best = encodedAt(bitmap, type, hasQuality(output, type) && !stated ? stated : above, options);
    if (!best || fits(best) || !hasQuality(output, type))
        return !best || fits(best) ? best : Result<QByteArray>(tooLarge());
    int below = leastQuality;
    best = encodedAt(bitmap, type, below, options);
    if (!fits(best))
        return best ? Result<QByteArray>(tooLarge()) : best;
    while (above - below > 1) { // below fits, above does not
        const int middle = (above + below) / 2;
        Result<QByteArray> file = encodedAt(bitmap, type, middle, options);
        if (!file)
            return file;
        const bool isSmall = fits(file);
        (isSmall ? below : above) = middle;
        if (isSmall)
            best = std::move(file);
    }
    return best;
}

platform::MetadataScope scopeOf(KeptMetadata kept)
{
    switch (kept) {
    case KeptMetadata::Keep:
        return platform::MetadataScope::All;
    case KeptMetadata::Copyright:
        return platform::MetadataScope::Copyright;
    case KeptMetadata::None:
        break;
    }
    return platform::MetadataScope::None;
}

Result<platform::EncodeOptions> optionsFor(const ImageSource &source, const RecipeOutput &output)
{
    platform::EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    options.dpi = output.dpi;
    options.isLossless = output.isLossless;
    options.matte = output.matte;
    options.carried = platform::Carried::Everything;
    return source.metadata().map([&](const platform::Metadata &metadata) {
        const auto place = output.keepsLocation ? platform::PlaceTaken::Keep : platform::PlaceTaken::Drop;
        options.metadata = metadata.reduced(scopeOf(output.metadata), place).withOrientation(1);
        return options;
    });
}

/** What the file of a JPEG that becomes another one has besides its pixels. */
std::optional<platform::EncodeOptions> jpegOptionsFor(const ImageSource &source, const RecipeOutput &output)
{
    Result<platform::EncodeOptions> options = optionsFor(source, output);
    if (!options)
        return std::nullopt;
    options->quality = chosenQuality(output, OutputType::Jpeg, true);
    return *options;
}

/** The page of a JPEG whose scan is copied unchanged, or turned without encoding. */
Result<QByteArray> pageOfSamePixels(const ImageSource &source, const RecipeOutput &output, const OutputPlan &plan)
{
    const bool isUpright = plan.turn == RightTurn::uprightFrom(source.orientation()); // which the page handles itself
    const Result<ImageSource> turned =
        isUpright ? Result<ImageSource>(source) : turnedFile(source, plan.turn).and_then([](const QByteArray &file) {
            return ImageSource::fromData(file);
        });
    return turned.and_then([&](const ImageSource &lying) { return platform::pdfPageOf(lying, output.dpi); })
        .and_then([&](const QByteArray &page) {
            return optionsFor(source, output).and_then([&](const platform::EncodeOptions &options) {
                return options.metadata.writtenInto(page, platform::Carried::Everything, plan.size);
            });
        });
}

/** The file unchanged, or turned without encoding. */
Result<QByteArray> lyingFile(const ImageSource &source, const OutputPlan &plan)
{
    const bool isUpright = source.orientation() == 1 || plan.keepsOrientation;
    return plan.turn.isNothing() && isUpright ? source.fileContent() : turnedFile(source, plan.turn);
}

} // namespace

Result<QByteArray> fileOfSamePixels(const ImageSource &source, const RecipeOutput &output, const OutputPlan &plan)
{
    if (plan.type == OutputType::Pdf)
        return pageOfSamePixels(source, output, plan);
    const Result<QByteArray> file = lyingFile(source, plan);
    if (!file || !rewritesMetadata(output, source, plan.type))
        return file;
    return ImageSource::fromData(*file).and_then([&](const ImageSource &lying) {
        return optionsFor(source, output).and_then([&](const platform::EncodeOptions &options) -> Result<QByteArray> {
            const platform::Metadata metadata = options.metadata.withOrientation(lying.orientation());
            const auto changed = platform::withOtherMetadata(lying, metadata, output.dpi);
            return changed ? Result<QByteArray>(*changed) : Result<QByteArray>(impossible());
        });
    });
}

Result<QByteArray> encodedFile(const Bitmap &bitmap, const ImageSource &source, const RecipeOutput &output,
                               const OutputPlan &plan)
{
    const Result<Bitmap> laid = holdsAlpha(plan.type) ? Result<Bitmap>(bitmap) : platform::laidOn(bitmap, output.matte);
    return laid.and_then([&](const Bitmap &opaque) {
        const Bitmap pixels = output.dpi ? opaque.withDpi(*output.dpi, *output.dpi) : opaque;
        return optionsFor(source, output).and_then([&](const platform::EncodeOptions &options) {
            return output.maxBytes
                       ? encodedWithin(pixels, output, plan.type, options)
                       : encodedAt(pixels, plan.type,
                                   chosenQuality(output, plan.type, pixels.jpegQuantisation().has_value()), options);
        });
    });
}

std::optional<QByteArray> resizedFile(const ImageSource &source, const platform::JpegResize &resize,
                                      const RecipeOutput &output)
{
    const auto options = jpegOptionsFor(source, output);
    return options ? platform::resizedJpeg(source, resize, *options) : std::nullopt;
}

std::optional<QByteArray> croppedFile(const ImageSource &source, const QRect &part, const RecipeOutput &output)
{
    const auto options = jpegOptionsFor(source, output);
    return options ? platform::croppedJpeg(source, part, *options) : std::nullopt;
}

std::optional<QByteArray> freelyTurnedFile(const ImageSource &source, const TurnOperation &turn,
                                           const RecipeOutput &output)
{
    const auto options = jpegOptionsFor(source, output);
    return options ? platform::turnedJpeg(source, freeTurnFor(turn, source.uprightSize()),
                                          turn.color.value_or(output.matte), *options)
                   : std::nullopt;
}

std::optional<QByteArray> shapedFile(const ImageSource &source, const platform::RoundedRect &shape,
                                     const RecipeOutput &output)
{
    const Result<platform::EncodeOptions> options = optionsFor(source, output);
    const auto png = options ? platform::rowsAsShapedPng(source, shape, *options) : std::nullopt;
    return png ? std::optional(png->file) : std::nullopt;
}

} // namespace image
