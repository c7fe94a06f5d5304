#include "app/preview/crop_frame.h"

#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>

namespace window {
namespace {

constexpr std::array handles = {Grip::TopLeft, Grip::TopRight, Grip::BottomRight, Grip::BottomLeft,
                                Grip::Top,     Grip::Right,    Grip::Bottom,      Grip::Left};

/** -1 for the edge at the beginning, 1 for the one at the end, 0 for neither. */
int sideAcross(Grip grip)
{
    switch (grip) {
    case Grip::TopLeft:
    case Grip::Left:
    case Grip::BottomLeft:
        return -1;
    case Grip::TopRight:
    case Grip::Right:
    case Grip::BottomRight:
        return 1;
    case Grip::None:
    case Grip::Inside:
    case Grip::Top:
    case Grip::Bottom:
        break;
    }
    return 0;
}

int sideDown(Grip grip)
{
    switch (grip) {
    case Grip::TopLeft:
    case Grip::Top:
    case Grip::TopRight:
        return -1;
    case Grip::BottomLeft:
    case Grip::Bottom:
    case Grip::BottomRight:
        return 1;
    case Grip::None:
    case Grip::Inside:
    case Grip::Left:
    case Grip::Right:
        break;
    }
    return 0;
}

/** One direction of a frame: from begin up to end, inside 0 to most. */
struct Span
{
    int begin;
    int end;
    int most;
    int side;

    int length() const { return end - begin; }

    void moveEdge(int by)
    {
        if (side < 0)
            begin = std::clamp(begin + by, 0, end - 1);
        else if (side > 0)
            end = std::clamp(end + by, begin + 1, most);
    }

    /** How long it can become while the edge that is not held stays in place, or the middle if none is held. */
    double room() const
    {
        const double middle = (begin + end) / 2.0;
        return side < 0 ? end : side > 0 ? most - begin : 2 * std::min(middle, most - middle);
    }

    void setLength(int wanted)
    {
        const int kept = std::clamp(wanted, 1, most);
        if (side < 0)
            begin = std::max(0, end - kept);
        else if (side > 0)
            begin = std::min(begin, most - kept);
        else
            begin = std::clamp(int(std::lround((begin + end - kept) / 2.0)), 0, most - kept);
        end = begin + kept;
    }
};

/** The span moved inside its bounds, or as much of it as fits. */
Span inside(int begin, int length, int most, int side)
{
    const int kept = std::clamp(length, 1, most);
    const int first = std::clamp(begin, 0, most - kept);
    return {first, first + kept, most, side};
}

} // namespace

QPointF handleOf(const QRectF &frame, Grip grip)
{
    const QPointF middle = frame.center();
    return {middle.x() + sideAcross(grip) * frame.width() / 2, middle.y() + sideDown(grip) * frame.height() / 2};
}

Grip gripAt(const QRectF &frame, QPointF point, double reach)
{
    for (const Grip grip : handles) {
        const QPointF distance = handleOf(frame, grip) - point;
        if (std::abs(distance.x()) <= reach && std::abs(distance.y()) <= reach)
            return grip;
    }
    return frame.contains(point) ? Grip::Inside : Grip::None;
}

Qt::CursorShape cursorOf(Grip grip)
{
    switch (grip) {
    case Grip::None:
        return Qt::ArrowCursor;
    case Grip::Inside:
        return Qt::SizeAllCursor;
    case Grip::TopLeft:
    case Grip::BottomRight:
        return Qt::SizeFDiagCursor;
    case Grip::TopRight:
    case Grip::BottomLeft:
        return Qt::SizeBDiagCursor;
    case Grip::Top:
    case Grip::Bottom:
        return Qt::SizeVerCursor;
    case Grip::Left:
    case Grip::Right:
        return Qt::SizeHorCursor;
    }
    return Qt::ArrowCursor;
}

QRect movedFrame(const QRect &frame, QPoint by, QSize picture)
{
    const Span across = inside(frame.x() + by.x(), frame.width(), picture.width(), 0);
    const Span down = inside(frame.y() + by.y(), frame.height(), picture.height(), 0);
    return {across.begin, down.begin, across.length(), down.length()};
}

QRect sizedFrame(const QRect &frame, Grip grip, QPoint by, QSize picture, double ratio)
{
    if (grip == Grip::None)
        return frame;
    if (grip == Grip::Inside)
        return movedFrame(frame, by, picture);
    Span across = inside(frame.x(), frame.width(), picture.width(), sideAcross(grip));
    Span down = inside(frame.y(), frame.height(), picture.height(), sideDown(grip));
    const bool followsWidth = down.side == 0 || (across.side != 0 && std::abs(double(by.x()) / across.length()) >=
                                                                         std::abs(double(by.y()) / down.length()));
    across.moveEdge(by.x());
    down.moveEdge(by.y());
    if (ratio > 0) {
        const double wanted = followsWidth ? across.length() : down.length() * ratio;
        const double width = std::max({std::min({wanted, across.room(), down.room() * ratio}), 1.0, ratio});
        across.setLength(int(std::lround(width)));
        down.setLength(int(std::lround(width / ratio)));
    }
    return {across.begin, down.begin, across.length(), down.length()};
}

QRect keyedFrame(const QRect &frame, int key, Qt::KeyboardModifiers modifiers, QSize picture, double ratio)
{
    constexpr int largeStep = 10;
    const int step = modifiers & Qt::ShiftModifier ? largeStep : 1;
    const int right = key == Qt::Key_Right ? step : key == Qt::Key_Left ? -step : 0;
    const int low = key == Qt::Key_Down ? step : key == Qt::Key_Up ? -step : 0;
    if (right == 0 && low == 0)
        return frame;
    if (!(modifiers & Qt::AltModifier))
        return movedFrame(frame, {right, low}, picture);
    const Grip grip = ratio > 0 ? Grip::BottomRight : right != 0 ? Grip::Right : Grip::Bottom;
    return sizedFrame(frame, grip, {right, low}, picture, ratio);
}

} // namespace window
