#include "platform/graphics/turn.h"

#include "platform/graphics/free_turn.h"
#include "platform/graphics/pixels.h"
#include "platform/graphics/resample.h"

#include <QCoreApplication>

#include <cmath>

namespace platform {
namespace {

using vips::VImage;

tl::unexpected<Error> noPicture()
{
    return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to rotate"));
}

VImage turnedExactly(const VImage &image, ExactTurn turn)
{
    switch (turn) {
    case ExactTurn::None:
        return image;
    case ExactTurn::Quarter: // the library counts clockwise
        return image.rot270();
    case ExactTurn::Half:
        return image.rot180();
    case ExactTurn::ThreeQuarters:
        return image.rot90();
    case ExactTurn::MirrorAcross:
        return image.fliphor();
    case ExactTurn::MirrorDown:
        return image.flipver();
    }
    return image;
}

JpegQuantisation withSidesSwapped(const JpegQuantisation &quantisation)
{
    JpegQuantisation swapped = quantisation;
    constexpr size_t side = 8;
    for (size_t table = 0; table < swapped.tables.size(); ++table)
        for (size_t row = 0; row < side; ++row)
            for (size_t column = 0; column < side; ++column)
                swapped.tables[table][row * side + column] = quantisation.tables[table][column * side + row];
    std::swap(swapped.horizontalSampling, swapped.verticalSampling);
    return swapped;
}

Bitmap bitmapLike(const Bitmap &source, const VImage &image)
{
    const Bitmap::Pixels &pixels = source.pixels();
    return Bitmap(std::make_shared<const Bitmap::Pixels>(image, pixels.resolution, pixels.quantisation));
}

Bitmap withSidesSwapped(const Bitmap &bitmap)
{
    Bitmap::Pixels pixels = bitmap.pixels();
    std::swap(pixels.resolution.horizontal, pixels.resolution.vertical);
    if (pixels.quantisation)
        pixels.quantisation = withSidesSwapped(*pixels.quantisation);
    return Bitmap(std::make_shared<const Bitmap::Pixels>(std::move(pixels)));
}

} // namespace

bool swapsSides(ExactTurn turn)
{
    return turn == ExactTurn::Quarter || turn == ExactTurn::ThreeQuarters;
}

std::optional<ExactTurn> exactTurn(double degrees)
{
    constexpr double fullTurn = 360;
    constexpr double quarterTurn = 90;
    const double rest = std::fmod(degrees, fullTurn); // NaN if the angle is not finite
    if (std::fmod(rest, quarterTurn) != 0 || std::isnan(rest))
        return std::nullopt;
    switch (int(rest < 0 ? rest + fullTurn : rest)) {
    case 90:
        return ExactTurn::Quarter;
    case 180:
        return ExactTurn::Half;
    case 270:
        return ExactTurn::ThreeQuarters;
    default:
        return ExactTurn::None;
    }
}

Result<Bitmap> turned(const Bitmap &bitmap, ExactTurn turn)
{
    if (bitmap.isNull())
        return noPicture();
    if (turn == ExactTurn::None)
        return bitmap;
    try {
        const Bitmap result = bitmapLike(bitmap, turnedExactly(bitmap.pixels().image(), turn).copy_memory());
        return swapsSides(turn) ? withSidesSwapped(result) : result;
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

Result<Bitmap> turned(const Bitmap &bitmap, const FreeTurn &turn)
{
    if (bitmap.isNull())
        return noPicture();
    if (!std::isfinite(turn.degrees) || !std::isfinite(turn.centre.x()) || !std::isfinite(turn.centre.y()))
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "A picture cannot be rotated by that angle"));
    VImage image = bitmap.pixels().image();
    if (otherBands(image) > 0)
        image = inForm(image); // their position is unknown outside the picture
    if (!fitsMemoryBudget(turn.canvas.width(), turn.canvas.height(), image.bands() + 1, bytesPerComponent(image)))
        return failure(ErrorCode::TooLarge,
                       QCoreApplication::translate("platform", "A picture of %1 × %2 pixels cannot be made")
                           .arg(turn.canvas.width())
                           .arg(turn.canvas.height()));
    try {
        return bitmapLike(bitmap, turnedFreely(image, turn));
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
