#include "image/recipe/watermark.h"

#include "image/recipe/sentence.h"
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

/** Empty if its tokens leave nothing. @p size is that of the picture at full size. */
QString textOn(QSize size, const WatermarkOperation &mark, const FillText &fill)
{
    const QString text = fill ? fill(mark.text, size) : mark.text;
    return text.trimmed().isEmpty() ? QString() : text;
}

platform::Lettering letteringOn(QSize picture, const WatermarkOperation &mark, const QString &text)
{
    return {text, mark.font, std::max(1.0, picture.height() * mark.size / hundred), mark.color,
            linesFor(mark.position)};
}

QSize sizeOfPictureOn(QSize picture, const WatermarkOperation &mark)
{
    constexpr double most = 1 << 30;
    const QSize own = mark.picture.source.uprightSize();
    const double width = std::max(1.0, std::round(picture.width() * mark.size / hundred));
    const double height = std::max(1.0, std::round(own.height() * width / own.width()));
    return {int(std::min(width, most)), int(std::min(height, most))};
}

Result<void> fits(QSize stamp, double degrees)
{
    constexpr int bands = 5; // as turning counts them
    const bool isTurned = !platform::exactTurn(-degrees);
    const QSize size = isTurned ? turnedCanvas({degrees, {}}, stamp) : stamp;
    if (platform::fitsMemoryBudget(size.width(), size.height(), isTurned ? bands : bands - 1, 1))
        return {};
    return platform::failure(platform::ErrorCode::TooLarge,
                             sentence(QT_TRANSLATE_NOOP("recipe", "A picture of %1 × %2 pixels cannot be made"))
                                 .arg(size.width())
                                 .arg(size.height()));
}

/** Whether a text or picture of that size can be made; an empty text can. */
Result<void> canBeOn(QSize picture, const WatermarkOperation &mark, const QString &text)
{
    if (mark.picture.isNamed())
        return fits(sizeOfPictureOn(picture, mark), mark.angle);
    if (text.isEmpty())
        return {};
    return platform::sizeOfDrawn(letteringOn(picture, mark, text)).and_then([&](QSize size) {
        return fits(size.expandedTo({1, 1}), mark.angle);
    });
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

Result<void> canWatermark(QSize size, const WatermarkOperation &mark, const FillText &fill)
{
    return canBeOn(size, mark, textOn(size, mark, fill));
}

Result<Bitmap> watermarked(const Rendition &rendition, const WatermarkOperation &mark, const FillText &fill)
{
    const QSize size = rendition.bitmap.size();
    const bool isPicture = mark.picture.isNamed();
    const QString text = textOn(rendition.stage.size, mark, fill);
    if (const Result<void> can = canBeOn(size, mark, text); !can)
        return tl::unexpected<platform::Error>(can.error());
    if (!isPicture && text.isEmpty())
        return rendition.bitmap;
    const Result<Bitmap> stamp = isPicture ? mark.picture.source.decodeScaled(sizeOfPictureOn(size, mark))
                                           : platform::drawn(letteringOn(size, mark, text));
    if (!stamp)
        return stamp;
    return turnedBy(*stamp, mark.angle).and_then([&](const Bitmap &laid) {
        return platform::stamped(rendition.bitmap, stampOf(laid, size, mark));
    });
}

} // namespace image
