#include "platform/graphics/compose.h"

#include "platform/graphics/coverage.h"
#include "platform/graphics/layers.h"
#include "platform/graphics/resample.h"

#include <QCoreApplication>

#include <algorithm>

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

bool coversAll(const RoundedRect &shape, QSize canvas)
{
    const bool isSquare = !(shape.xRadius > 0) || !(shape.yRadius > 0);
    return isSquare && shape.rect.contains(QRectF(QPointF(0, 0), canvas));
}

/** The rows of a shape, drawn in strips. Rows between the corners are equal, so one strip serves for all of them. */
class ShapeRows
{
public:
    ShapeRows(const RoundedRect &shape, int width) : m_shape(shape), m_row(size_t(width)) {}

    const uchar *row(int y)
    {
        if (y < m_first || y >= m_end)
            draw(y);
        return m_strips.empty() ? nullptr : joined(y - m_first);
    }

private:
    void draw(int y)
    {
        constexpr int stripRows = 64;
        const double straightTop = m_shape.rect.top() + m_shape.yRadius;
        const double straightBottom = m_shape.rect.bottom() - m_shape.yRadius;
        const bool isStraight = y >= straightTop && y + 1 <= straightBottom;
        const int rows = isStraight ? 1 : stripRows;
        m_isAlike = isStraight;
        m_first = y;
        m_end = isStraight ? int(straightBottom) : y + rows;
        m_strips.clear();
        const int width = int(m_row.size());
        for (int x = 0; x < width; x += Coverage::longestSide)
            m_strips.push_back(coverageOf(m_shape, QRect(x, y, std::min(Coverage::longestSide, width - x), rows)));
        m_joinedRow = -1;
    }

    const uchar *joined(int index)
    {
        const int wanted = m_isAlike ? 0 : index;
        if (m_strips.size() == 1)
            return m_strips.front().row(wanted);
        if (wanted != m_joinedRow) {
            size_t x = 0;
            for (const Coverage &strip : m_strips) {
                const size_t length = std::min(size_t(Coverage::longestSide), m_row.size() - x);
                std::copy_n(strip.row(wanted), length, m_row.data() + x);
                x += length;
            }
            m_joinedRow = wanted;
        }
        return m_row.data();
    }

    RoundedRect m_shape;
    std::vector<uchar> m_row;
    std::vector<Coverage> m_strips;
    int m_first = 0;
    int m_end = 0;
    int m_joinedRow = -1;
    bool m_isAlike = false;
};

RoundedRect withBoundedRadii(const RoundedRect &shape)
{
    RoundedRect bounded = shape;
    bounded.xRadius = std::clamp(shape.xRadius, 0.0, std::max(0.0, shape.rect.width() / 2));
    bounded.yRadius = std::clamp(shape.yRadius, 0.0, std::max(0.0, shape.rect.height() / 2));
    return bounded;
}

VImage shaped(const VImage &image, const QRect &part, const RoundedRect &shape, const std::optional<QColor> &background)
{
    const std::optional<MatchedLayers> both =
        background ? std::optional(matched(image, colorImage(*background))) : std::nullopt;
    Layers layers(both ? both->over : image, part, both ? std::optional(both->under) : std::nullopt);
    ShapeRows coverage(withBoundedRadii(shape), part.width());
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
