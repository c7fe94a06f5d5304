#include "image/turn.h"

#include "platform/graphics/resample.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace image {
namespace {

using platform::Bitmap;
using platform::ErrorCode;
using platform::FreeTurn;
using platform::Picture;
using platform::Result;

/** A side may be this much short of a whole pixel and still count as one: rounding errors of the sines. */
constexpr double hair = 1e-6;

int wholePixels(double side)
{
    constexpr double most = 1 << 30;
    return side >= 0 ? int(std::min(side, most)) : 0; // 0 also if the side is not a number
}

/** The rotation onto a canvas of @p box without its fractions, which are cut off on the right and at the top. */
FreeTurn freeTurn(QSizeF box, double degrees)
{
    FreeTurn turn;
    turn.degrees = degrees;
    turn.canvas = QSize(wholePixels(box.width()), wholePixels(box.height()));
    turn.centre = QPointF(box.width() / 2, turn.canvas.height() - box.height() / 2);
    return turn;
}

/** The pixels with equal horizontal and vertical density, nothing lost. */
Result<Bitmap> withSquarePixels(const Bitmap &bitmap, QSizeF points)
{
    const double density = std::max(bitmap.width() / points.width(), bitmap.height() / points.height());
    const QSize square(wholePixels(points.width() * density + 0.5), wholePixels(points.height() * density + 0.5));
    const QSize difference = square - bitmap.size();
    constexpr int rounding = 1;
    if (difference.width() <= rounding && difference.height() <= rounding)
        return bitmap;
    return platform::resample(bitmap, square);
}

Result<Bitmap> turnedTransparently(const Bitmap &bitmap, double degrees)
{
    const QSizeF box = turnedBox(QSizeF(bitmap.size()), degrees) + QSizeF(hair, hair);
    FreeTurn turn = freeTurn(box, degrees);
    turn.surroundings = platform::Surroundings::Transparent;
    return platform::turned(bitmap, turn);
}

} // namespace

QSizeF turnedBox(QSizeF size, double degrees)
{
    constexpr double radiansPerDegree = 0.017453292519943295;
    const double cosine = std::cos(degrees * radiansPerDegree);
    const double sine = std::sin(degrees * radiansPerDegree);
    const auto corner = [=](double x, double y) { return QPointF(x * cosine - y * sine, x * sine + y * cosine); };
    const std::array<QPointF, 4> corners = {corner(0, 0), corner(size.width(), 0), corner(0, size.height()),
                                            corner(size.width(), size.height())};
    const auto byX = [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); };
    const auto byY = [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); };
    const auto [left, right] = std::minmax_element(corners.begin(), corners.end(), byX);
    const auto [bottom, top] = std::minmax_element(corners.begin(), corners.end(), byY);
    return {right->x() - left->x(), top->y() - bottom->y()};
}

Result<Bitmap> turned(const Bitmap &bitmap, double degrees)
{
    if (const auto exact = platform::exactTurn(degrees))
        return platform::turned(bitmap, *exact);
    return platform::turned(bitmap, freeTurnOf(bitmap.size(), degrees));
}

FreeTurn freeTurnOf(QSize size, double degrees)
{
    return freeTurn(turnedBox(QSizeF(size), degrees), degrees);
}

platform::ExactTurn exactFlip(Qt::Orientation axis)
{
    return axis == Qt::Horizontal ? platform::ExactTurn::MirrorAcross : platform::ExactTurn::MirrorDown;
}

Result<Bitmap> flipped(const Bitmap &bitmap, Qt::Orientation axis)
{
    return platform::turned(bitmap, exactFlip(axis));
}

Result<Picture> turned(const Picture &picture, double degrees)
{
    const QSizeF box = turnedBox(picture.size(), degrees);
    const auto inBox = [box](const Bitmap &bitmap) { return Picture(bitmap, box); };
    if (const auto exact = platform::exactTurn(degrees))
        return platform::turned(picture.bitmap(), *exact).map(inBox);
    if (picture.isNull() || picture.size().isEmpty())
        return platform::failure(ErrorCode::InvalidValue, QString());
    const Result<Bitmap> square = withSquarePixels(picture.bitmap(), picture.size());
    if (!square)
        return tl::unexpected<platform::Error>(square.error());
    return turnedTransparently(*square, degrees).map(inBox);
}

} // namespace image
