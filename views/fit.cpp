#include "views/fit.h"

#include "platform/graphics/resample.h"

#include <algorithm>
#include <cmath>

namespace views {
namespace {

using platform::Bitmap;
using platform::Picture;
using platform::Result;

/** Where the whole picture is placed on the target, in pixels, origin top left. */
struct Placement
{
    QSizeF whole;
    QPointF corner;
};

Placement placementOf(QSizeF picture, const QRectF &source, QSize target)
{
    const double across = target.width() / source.width();
    const double down = target.height() / source.height();
    const double above = source.y() + source.height() - picture.height();
    return {QSizeF(picture.width() * across, picture.height() * down), QPointF(-source.x() * across, above * down)};
}

bool isUsable(const QRectF &source)
{
    return std::isfinite(source.width()) && std::isfinite(source.height()) && source.width() > 0 && source.height() > 0;
}

/** The part of @p picture that is visible on a canvas of @p target, scaled, and its position there. */
struct Layer
{
    Result<Bitmap> bitmap;
    QPoint corner;
};

/** Scales the whole picture, which a reduced decode can do. */
Layer wholeLayer(const Picture &picture, const Placement &placement)
{
    const QSize whole = QSize(qRound(placement.whole.width()), qRound(placement.whole.height())).expandedTo({1, 1});
    const QPoint corner(qRound(placement.corner.x()), qRound(placement.corner.y()));
    return {picture.scaledTo(whole), corner};
}

/** Scales no more of the picture than is visible. */
Layer partLayer(const Picture &picture, const Placement &placement, QSize target)
{
    const QRectF shown = QRectF(placement.corner, placement.whole).intersected(QRectF(QPointF(0, 0), QSizeF(target)));
    const double across = picture.pixelSize().width() / placement.whole.width();
    const double down = picture.pixelSize().height() / placement.whole.height();
    const QPointF inside = shown.topLeft() - placement.corner;
    const QRect part =
        QRectF(inside.x() * across, inside.y() * down, shown.width() * across, shown.height() * down).toAlignedRect();
    const Bitmap cut = platform::cut(picture.bitmap(), part);
    const QRect place = shown.toAlignedRect();
    return {platform::resample(cut, place.size()), place.topLeft()};
}

Layer layerOf(const Picture &picture, const Placement &placement, QSize target)
{
    // A picture of an extreme shape that fills its area would be huge as a whole.
    constexpr double mostOfTarget = 16;
    const double shownPixels = std::max(1.0, double(target.width()) * target.height());
    const bool isHuge = placement.whole.width() * placement.whole.height() > mostOfTarget * shownPixels;
    return isHuge ? partLayer(picture, placement, target) : wholeLayer(picture, placement);
}

QSize pixelsOf(QSizeF target)
{
    constexpr double mostPixels = 1e7;
    const auto side = [mostPixels](double points) {
        return points > 0 ? int(std::ceil(std::min(points, mostPixels))) : 0;
    };
    return {side(target.width()), side(target.height())};
}

Picture emptyPicture(QSizeF target)
{
    const QSize pixels = pixelsOf(target);
    if (pixels.isEmpty())
        return Picture::ofNoSize().withSize(target);
    return Picture(platform::transparent(pixels).value_or(Bitmap()), target);
}

} // namespace

QRectF sourceFor(QSizeF picture, QSizeF target, Fit fit)
{
    const double width = picture.width();
    const double height = picture.height();
    const auto ratioWidth = float(target.width() / width);
    const auto ratioHeight = float(target.height() / height);
    const bool byHeight = fit == Fit::Whole ? ratioHeight < ratioWidth : ratioHeight >= ratioWidth;
    const double sourceWidth = byHeight ? std::floor(target.width() / double(ratioHeight)) : width;
    const double sourceHeight = byHeight ? height : std::floor(target.height() / double(ratioWidth));
    return {std::floor((width - sourceWidth) * 0.5), std::floor((height - sourceHeight) * 0.5), sourceWidth,
            sourceHeight};
}

Picture laidInto(const Picture &picture, QSizeF target, Fit fit)
{
    const QSize pixels = pixelsOf(target);
    if (picture.isNull() || picture.size().isEmpty() || pixels.isEmpty())
        return emptyPicture(target);
    const QRectF source = sourceFor(picture.size(), target, fit);
    if (!isUsable(source))
        return emptyPicture(target);
    const Layer layer = layerOf(picture, placementOf(picture.size(), source, pixels), pixels);
    if (!layer.bitmap)
        return emptyPicture(target);
    return Picture(platform::placed(*layer.bitmap, layer.corner, pixels).value_or(Bitmap()), target);
}

double drawingScale(QSizeF content, QSizeF most)
{
    const double scale = std::min(content.width() / most.width(), content.height() / most.height());
    return scale <= 1.0 ? scale : 1.0;
}

} // namespace views
