#include "app/window/controls/position_pad.h"

#include "app/window/look/theme.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace window {

namespace {

constexpr int placePx = 26;
constexpr int placeHeightPx = 20;
constexpr int gapPx = 4;
constexpr int rimPx = 3; ///< room for the focus ring
constexpr int places = 9;

} // namespace

PositionPad::PositionPad(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
}

void PositionPad::setSelectedSegment(int place)
{
    if (place == m_selected || place < -1 || place >= places)
        return;
    m_selected = place;
    describe();
    update();
    Q_EMIT selectionChanged(place);
}

void PositionPad::setNames(const QStringList &names)
{
    m_names = names;
    describe();
}

QSize PositionPad::sizeHint() const
{
    return {3 * placePx + 2 * gapPx + 2 * rimPx, 3 * placeHeightPx + 2 * gapPx + 2 * rimPx};
}

QRect PositionPad::placeRect(int place) const
{
    return {rimPx + place % 3 * (placePx + gapPx), rimPx + place / 3 * (placeHeightPx + gapPx), placePx, placeHeightPx};
}

int PositionPad::placeAt(QPointF point) const
{
    for (int place = 0; place < places; ++place)
        if (placeRect(place).contains(point.toPoint()))
            return place;
    return -1;
}

void PositionPad::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int place = 0; place < places; ++place) {
        const bool on = place == m_selected;
        const bool hasRing = on || (m_selected < 0 && place == places / 2);
        const QRectF box = QRectF(placeRect(place)).adjusted(0.5, 0.5, -0.5, -0.5);
        const char *fill = on && isEnabled() ? "accent" : place == m_hovered && isEnabled() ? "hover" : "field";
        painter.setBrush(Theme::color(QString::fromLatin1(on && !isEnabled() ? "line" : fill)));
        painter.setPen(Theme::color(QString::fromLatin1(!isEnabled() ? "hairline" : on ? "accent" : "edge")));
        painter.drawRoundedRect(box, 4, 4);
        if (hasRing && hasFocus()) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(Theme::color(QStringLiteral("accentText")), 2));
            painter.drawRoundedRect(box.adjusted(-2, -2, 2, 2), 6, 6);
        }
    }
}

void PositionPad::mousePressEvent(QMouseEvent *event)
{
    choose(placeAt(event->position()));
}

void PositionPad::mouseMoveEvent(QMouseEvent *event)
{
    hover(placeAt(event->position()));
}

void PositionPad::leaveEvent(QEvent *)
{
    hover(-1);
}

void PositionPad::keyPressEvent(QKeyEvent *event)
{
    constexpr int middle = places / 2;
    const int from = m_selected < 0 ? middle : m_selected;
    const int row = from / 3;
    const int column = from % 3;
    switch (event->key()) {
    case Qt::Key_Left:
        return choose(row * 3 + std::max(0, column - 1));
    case Qt::Key_Right:
        return choose(row * 3 + std::min(2, column + 1));
    case Qt::Key_Up:
        return choose(std::max(0, row - 1) * 3 + column);
    case Qt::Key_Down:
        return choose(std::min(2, row + 1) * 3 + column);
    case Qt::Key_Home:
        return choose(0);
    case Qt::Key_End:
        return choose(places - 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void PositionPad::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

void PositionPad::hover(int place)
{
    if (place == m_hovered)
        return;
    m_hovered = place;
    setToolTip(m_names.value(place));
    update();
}

void PositionPad::choose(int place)
{
    if (place < 0 || place == m_selected)
        return;
    setSelectedSegment(place);
    Q_EMIT chosen(place);
}

void PositionPad::describe()
{
    setAccessibleDescription(m_names.value(m_selected));
}

} // namespace window
