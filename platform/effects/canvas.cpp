#include "platform/effects/canvas.h"

#include "platform/graphics/layers.h"
#include "platform/graphics/resample.h"

#include <QCoreApplication>

namespace platform {
namespace {

using vips::VImage;

/** The components of a colour in the colour space of @p image, including alpha if it has one. */
std::vector<double> pixelFor(const VImage &image, const VImage &color, double alpha)
{
    std::vector<double> pixel = color.getpoint(0, 0);
    if (hasTransparency(image))
        pixel.push_back(alpha * opaqueValue(image));
    return pixel;
}

} // namespace

Result<Bitmap> onCanvas(const Bitmap &bitmap, QPoint place, QSize size, const QColor &color)
{
    const Bitmap part = cut(bitmap, QRect(-place, size));
    if (part.isNull())
        return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to draw"));
    if (part.size() == size)
        return part;
    const Bitmap::Pixels &pixels = part.pixels();
    constexpr int rgba = 4;
    if (!fitsMemoryBudget(size.width(), size.height(), rgba, pixels.bytesPerComponent()))
        return failure(ErrorCode::TooLarge, QCoreApplication::translate("platform", "The picture is too large"));
    try {
        initVips();
        const MatchedLayers both = matched(composable(pixels.image(), !isGrey(color)), colorImage(color));
        VImage image = both.over;
        if (color.alphaF() < 1 && !hasTransparency(image))
            image = image.bandjoin_const({opaqueValue(image)});
        const std::vector<double> around = pixelFor(image, both.under, color.alphaF());
        const QPoint corner(std::max(0, place.x()), std::max(0, place.y()));
        const VImage canvas =
            image.embed(corner.x(), corner.y(), size.width(), size.height(),
                        VImage::option()->set("extend", VIPS_EXTEND_BACKGROUND)->set("background", around));
        return bitmapFromImage(canvas, pixels.resolution, pixels.quantisation);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
