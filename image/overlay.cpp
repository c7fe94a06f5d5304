#include "image/overlay.h"

#include "platform/graphics/compose.h"

#include <algorithm>
#include <cmath>

namespace image {
namespace {

/** One pixel per point; at least one pixel, and no longer than a picture can be. */
int wholePixels(double points)
{
    constexpr double most = 10'000'000;
    return int(std::lround(std::clamp(points, 1.0, most)));
}

} // namespace

platform::Result<platform::Bitmap> laidOnColor(const platform::Bitmap &bitmap, const QColor &color)
{
    return platform::laidOn(bitmap, color);
}

platform::Result<platform::Bitmap> laidOnPattern(const platform::Bitmap &bitmap, const platform::Bitmap &tile)
{
    return platform::laidOn(bitmap, tile);
}

platform::Picture withWhiteFrame(const platform::Picture &picture)
{
    if (picture.isNull())
        return {};
    constexpr int frame = 10;
    const platform::Bitmap bitmap = picture.bitmap();
    const QSize canvas = bitmap.size() + QSize(2 * frame, 2 * frame);
    const QSize drawn(wholePixels(picture.size().width()), wholePixels(picture.size().height()));
    const QRect target(QPoint(frame, canvas.height() - frame - drawn.height()), drawn);
    const auto framed = platform::drawnOnWhite(bitmap, canvas, target);
    return framed ? platform::Picture(*framed, QSizeF(canvas)) : platform::Picture();
}

} // namespace image
