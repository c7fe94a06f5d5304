#include "platform/graphics/compose.h"

#include "platform/graphics/coverage.h"
#include "platform/graphics/layers.h"
#include "platform/graphics/resample.h"

#include <QCoreApplication>

namespace platform {
namespace {

using vips::VImage;

Result<Bitmap> nothingThere()
{
    return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to draw"));
}

/** New pixels with everything else from the bitmap they were made from. */
Bitmap like(const Bitmap &bitmap, const VImage &pixels)
{
    return Bitmap(std::make_shared<Bitmap::Pixels>(pixels, bitmap.pixels().resolution, bitmap.pixels().quantisation));
}

template<typename Drawing> Result<Bitmap> guarded(Drawing drawing)
{
    try {
        initVips();
        return drawing();
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

VImage shaped(const VImage &image, const QRect &part, const RoundedRect &shape, const std::optional<QColor> &background)
{
    const std::optional<MatchedLayers> both =
        background ? std::optional(matched(image, colorImage(*background))) : std::nullopt;
    Layers layers(both ? both->over : image, part, both ? std::optional(both->under) : std::nullopt);
    ShapeRows coverage(shape, part.width());
    for (int y = 0; y < part.height(); ++y)
        layers.compose(y, coverage.row(y));
    return layers.result();
}

VImage laid(const VImage &image, const VImage &srgb)
{
    const MatchedLayers both = matched(image, srgb);
    const QRect whole(0, 0, image.width(), image.height());
    Layers layers(both.over, whole, both.under);
    for (int y = 0; y < whole.height(); ++y)
        layers.compose(y, nullptr);
    return layers.result();
}

} // namespace

Result<Bitmap> shapedBy(const Bitmap &bitmap, const QRect &part, const RoundedRect &shape,
                        const std::optional<QColor> &background)
{
    const QRect kept = part.intersected(QRect(QPoint(0, 0), bitmap.size()));
    if (bitmap.isNull() || kept.isEmpty())
        return nothingThere();
    if (coversAll(shape, kept.size())) {
        const Bitmap copy = cut(bitmap, kept);
        return background ? laidOn(copy, *background) : Result<Bitmap>(copy);
    }
    return guarded([&]() -> Result<Bitmap> {
        const bool needsColors = background && !isGrey(*background);
        const VImage image = composable(bitmap.pixels().image(), needsColors);
        return like(bitmap, shaped(image, kept, shape, background));
    });
}

Result<Bitmap> laidOn(const Bitmap &bitmap, const QColor &color)
{
    if (bitmap.isNull())
        return nothingThere();
    if (!bitmap.hasAlpha())
        return bitmap;
    return guarded([&]() -> Result<Bitmap> {
        const VImage image = composable(bitmap.pixels().image(), !isGrey(color));
        return like(bitmap, laid(image, colorImage(color)));
    });
}

Result<Bitmap> laidOn(const Bitmap &bitmap, const Bitmap &tile)
{
    if (bitmap.isNull() || tile.isNull())
        return nothingThere();
    if (!bitmap.hasAlpha())
        return bitmap;
    return guarded([&]() -> Result<Bitmap> {
        const VImage pattern = convertedToSrgb(composable(tile.pixels().image(), false));
        const VImage image = composable(bitmap.pixels().image(), pattern.bands() > 2);
        return like(bitmap, laid(image, pattern));
    });
}

Result<Bitmap> drawnOnWhite(const Bitmap &bitmap, QSize canvas, const QRect &target)
{
    if (bitmap.isNull() || canvas.isEmpty())
        return nothingThere();
    return guarded([&]() -> Result<Bitmap> {
        VImage image = composable(bitmap.pixels().image(), false);
        if (!fitsMemoryBudget(canvas.width(), canvas.height(), image.bands(), bytesPerComponent(image)))
            return failure(ErrorCode::TooLarge, QCoreApplication::translate("platform", "The picture is too large"));
        const QRect seen = target.intersected(QRect(QPoint(0, 0), canvas));
        if (seen.isEmpty())
            return nothingThere();
        const QPoint from = seen.topLeft() - target.topLeft();
        image = scaledTo(image, target.size()).extract_area(from.x(), from.y(), seen.width(), seen.height());
        if (image.has_alpha())
            image = laid(image.copy_memory(), colorImage(Qt::white));
        image = image.embed(seen.x(), seen.y(), canvas.width(), canvas.height(),
                            VImage::option()->set("extend", VIPS_EXTEND_WHITE));
        return bitmapFromImage(image, {}, bitmap.pixels().quantisation);
    });
}

} // namespace platform
