#include "app/preview/view_zoom.h"

#include <algorithm>
#include <array>

namespace window {
namespace {

constexpr std::array ladder = {1.0 / 32, 1.0 / 24, 1.0 / 16, 1.0 / 12, 1.0 / 8, 1.0 / 6, 1.0 / 4, 1.0 / 3, 1.0 / 2,
                               2.0 / 3,  1.0,      1.5,      2.0,      3.0,     4.0,     6.0,     8.0};
/** Scales this close count as equal. */
constexpr double hair = 1e-3;

double along(double center, double shown, double begin, double length)
{
    if (shown <= length)
        return begin + (length - shown) / 2;
    return std::clamp(begin + length / 2 - center * shown, begin + length - shown, begin);
}

} // namespace

void ViewZoom::setScale(double scale)
{
    m_scale = scale > 0 ? std::clamp(scale, ladder.front(), ladder.back()) : 0;
}

double ViewZoom::steppedBy(int steps, double fitted) const
{
    double scale = isOn() ? m_scale : fitted;
    for (; steps > 0; --steps) {
        const auto *next =
            std::find_if(ladder.begin(), ladder.end(), [&](double step) { return step > scale * (1 + hair); });
        scale = next == ladder.end() ? ladder.back() : *next;
    }
    for (; steps < 0; ++steps) {
        const auto next =
            std::find_if(ladder.rbegin(), ladder.rend(), [&](double step) { return step < scale * (1 - hair); });
        scale = next == ladder.rend() ? ladder.front() : *next;
    }
    return scale <= fitted * (1 + hair) ? 0 : scale;
}

QRectF placeAround(QPointF center, QSizeF shown, const QRectF &area)
{
    return {QPointF(along(center.x(), shown.width(), area.left(), area.width()),
                    along(center.y(), shown.height(), area.top(), area.height())),
            shown};
}

QPointF centerOf(const QRectF &place, const QRectF &area)
{
    const QPointF middle = area.center() - place.topLeft();
    return place.isEmpty() ? QPointF(0.5, 0.5) : QPointF(middle.x() / place.width(), middle.y() / place.height());
}

QPointF centerFor(QPointF point, QPointF at, QSizeF shown, const QRectF &area)
{
    const QPointF away = at - area.center();
    return shown.isEmpty() ? point : point - QPointF(away.x() / shown.width(), away.y() / shown.height());
}

} // namespace window
