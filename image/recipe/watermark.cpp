#include "image/recipe/watermark.h"

#include "image/turn.h"
#include "platform/effects/lettering.h"
#include "platform/effects/stamp.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/source/image_source.h"

#include <algorithm>
#include <cmath>

namespace image {
namespace {

using platform::Bitmap;
using platform::Result;

constexpr double hundred = 100;

Qt::Alignment linesFor(Place place)
{
    switch (int(place) % 3) {
    case 0:
        return Qt::AlignLeft;
    case 1:
        return Qt::AlignHCenter;
    default:
        return Qt::AlignRight;
    }
}

/** A null bitmap if the text is empty once its tokens are filled in. */
Result<Bitmap> letters(const Rendition &rendition, const WatermarkOperation &mark, const FillText &fill)
{
    const QString text = fill ? fill(mark.text, rendition.stage.size) : mark.text;
    if (text.trimmed().isEmpty())
        return Bitmap();
    const double size = std::max(1.0, rendition.bitmap.height() * mark.size / hundred);
    return platform::drawn({text, mark.font, size, mark.color, linesFor(mark.position)});
}

Result<Bitmap> pictureOf(const Rendition &rendition, const WatermarkOperation &mark)
{
    const QSize own = mark.picture.source.uprightSize();
    const double width = std::max(1.0, std::round(rendition.bitmap.width() * mark.size / hundred));
    const double height = std::max(1.0, std::round(own.height() * width / own.width()));
    return mark.picture.source.decodeScaled(QSize(int(width), int(height)));
}

Result<Bitmap> turnedBy(const Bitmap &stamp, double degrees)
{
    if (const auto exact = platform::exactTurn(-degrees))
        return platform::turned(stamp, *exact);
    const QSize canvas = turnedCanvas({degrees, {}}, stamp.size());
    return platform::turned(stamp,
                            platform::FreeTurn{-degrees, canvas, QPointF(canvas.width() / 2.0, canvas.height() / 2.0),
                                               platform::Surroundings::Transparent});
}

/** Rows and columns over the whole picture, with one at the requested position. */
QList<QPoint> tiles(QPoint first, QSize stamp, QSize picture, int gap)
{
    constexpr qsizetype most = 100'000;
    const QSize step = stamp + QSize(gap, gap);
    const auto start = [](int place, int stepLength) {
        return place - (place + stepLength - 1) / stepLength * stepLength;
    };
    QList<QPoint> places;
    for (int y = start(first.y(), step.height()); y < picture.height(); y += step.height())
        for (int x = start(first.x(), step.width()); x < picture.width() && places.size() < most; x += step.width())
            places.append({x, y});
    return places;
}

platform::Stamp stampOf(const Bitmap &stamp, QSize picture, const WatermarkOperation &mark)
{
    const int margin = int(std::lround(std::min(picture.width(), picture.height()) * mark.margin / hundred));
    const QSize room = (picture - QSize(2 * margin, 2 * margin)).expandedTo({0, 0});
    const QPoint place = QPoint(margin, margin) + placeOf(mark.position, stamp.size(), room);
    const QList<QPoint> places = mark.isTiled ? tiles(place, stamp.size(), picture, std::max(1, margin)) : QList{place};
    return {stamp, places, mark.opacity / hundred};
}

} // namespace

Result<Bitmap> watermarked(const Rendition &rendition, const WatermarkOperation &mark, const FillText &fill)
{
    const Result<Bitmap> stamp = mark.picture.isNamed() ? pictureOf(rendition, mark) : letters(rendition, mark, fill);
    if (!stamp)
        return stamp;
    if (stamp->isNull())
        return rendition.bitmap;
    return turnedBy(*stamp, mark.angle).and_then([&](const Bitmap &laid) {
        return platform::stamped(rendition.bitmap, stampOf(laid, rendition.bitmap.size(), mark));
    });
}

} // namespace image
