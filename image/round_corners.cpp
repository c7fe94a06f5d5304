#include "image/round_corners.h"

#include "image/scaled_size.h"
#include "platform/graphics/compose.h"

#include <cmath>

namespace image {
namespace {

double halfOf(int side)
{
    constexpr double half = 0.5;
    return truncated(side * half);
}

} // namespace

RoundedShape roundedShape(const CornerOptions &options, QSize size)
{
    RoundedShape shape;
    shape.part = QRect(QPoint(0, 0), size);
    switch (options.shape) {
    case CornerShape::Rectangle:
        shape.xRadius = options.radius;
        shape.yRadius = options.radius;
        break;
    case CornerShape::Circle: {
        const int side = size.width() <= size.height() ? size.width() : size.height();
        shape.part = QRect(0, size.height() - side, side, side);
        shape.xRadius = halfOf(side);
        shape.yRadius = halfOf(side);
        break;
    }
    case CornerShape::Ellipse:
        shape.xRadius = halfOf(size.width());
        shape.yRadius = halfOf(size.height());
        break;
    }
    shape.outline = QRectF(QPointF(0, 0), shape.part.size());
    if (options.background) {
        const double band = options.background->bandWidth;
        shape.outline.adjust(band, band, -band, -band);
        shape.background = options.background->color;
    }
    return shape;
}

RoundedShape fitted(const RoundedShape &shape, QSize full, QSize rendition)
{
    const double across = double(rendition.width()) / full.width();
    const double down = double(rendition.height()) / full.height();
    const auto scaled = [](int value, double factor) { return int(std::lround(value * factor)); };
    RoundedShape result = shape;
    const QPoint topLeft(scaled(shape.part.x(), across), scaled(shape.part.y(), down));
    const QPoint end(scaled(shape.part.x() + shape.part.width(), across),
                     scaled(shape.part.y() + shape.part.height(), down));
    result.part = QRect(topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y()));
    result.outline = QRectF(shape.outline.x() * across, shape.outline.y() * down, shape.outline.width() * across,
                            shape.outline.height() * down);
    result.xRadius *= across;
    result.yRadius *= down;
    return result;
}

platform::Result<platform::Bitmap> roundCorners(const platform::Bitmap &bitmap, const RoundedShape &shape)
{
    return platform::shapedBy(bitmap, shape.part, {shape.outline, shape.xRadius, shape.yRadius}, shape.background);
}

platform::Result<platform::Bitmap> roundCorners(const platform::Bitmap &bitmap, const CornerOptions &options)
{
    return roundCorners(bitmap, roundedShape(options, bitmap.size()));
}

} // namespace image
