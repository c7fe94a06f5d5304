#include "app/window/controls/angle_dial.h"

#include "app/window/look/theme.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>

#include <cmath>

namespace window {

namespace {

constexpr double catchDegrees = 15;
constexpr double catchWithin = 4;

/** -180 < angle <= 180, in tenths; -180 itself stays as it was given. */
double inRange(double degrees)
{
    const double tenths = std::round(degrees * 10) / 10;
    if (tenths >= -180 && tenths <= 180)
        return tenths;
    const double turned = std::fmod(tenths, 360);
    return std::round((turned > 180 ? turned - 360 : turned < -180 ? turned + 360 : turned) * 10) / 10;
}

QPointF onCircle(QPointF centre, double radius, double degrees)
{
    const double angle = qDegreesToRadians(degrees + 90);
    return centre + QPointF(std::cos(angle) * radius, -std::sin(angle) * radius);
}

} // namespace

AngleDial::AngleDial(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleDescription(QLocale().toString(m_value, 'f', 1));
}

void AngleDial::setValue(double degrees)
{
    const double value = inRange(degrees);
    if (qFuzzyCompare(value + 1000, m_value + 1000))
        return;
    m_value = value;
    setAccessibleDescription(QLocale().toString(m_value, 'f', 1));
    update();
    Q_EMIT valueChanged(m_value);
}

void AngleDial::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(rect()).center();
    const double radius = std::min(width(), height()) / 2.0 - 3;
    painter.setBrush(Theme::color(QStringLiteral("field")));
    painter.setPen(
        QPen(Theme::color(hasFocus() ? QStringLiteral("focus") : QStringLiteral("edge")), hasFocus() ? 2 : 1));
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(QPen(Theme::color(QStringLiteral("edge")), 1.2, Qt::SolidLine, Qt::RoundCap));
    for (int degrees = 0; degrees < 360; degrees += 45)
        painter.drawLine(onCircle(centre, radius - 3, degrees),
                         onCircle(centre, radius - (degrees % 90 == 0 ? 8 : 6), degrees));
    // How far the picture is turned, drawn as a sector from the top.
    const double inner = radius - 12;
    const QRectF sector(centre.x() - inner, centre.y() - inner, 2 * inner, 2 * inner);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::color(QStringLiteral("accentSoft")));
    painter.drawPie(sector, 90 * 16, int(std::lround(m_value * 16)));
    const QColor hand = Theme::color(isEnabled() ? QStringLiteral("accent") : QStringLiteral("faint"));
    painter.setPen(QPen(hand, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(centre, onCircle(centre, inner, m_value));
    painter.setPen(Qt::NoPen);
    painter.setBrush(hand);
    painter.drawEllipse(onCircle(centre, inner, m_value), 4, 4);
    painter.drawEllipse(centre, 2, 2);
}

void AngleDial::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        follow(*event);
}

void AngleDial::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        follow(*event);
}

void AngleDial::follow(const QMouseEvent &event)
{
    const QPointF from = event.position() - QRectF(rect()).center();
    if (from.manhattanLength() < 3)
        return;
    double degrees = std::round(qRadiansToDegrees(std::atan2(-from.y(), from.x())) - 90);
    const double caught = std::round(degrees / catchDegrees) * catchDegrees;
    if (!(event.modifiers() & Qt::ShiftModifier) && std::abs(degrees - caught) <= catchWithin)
        degrees = caught;
    turnTo(degrees);
}

void AngleDial::wheelEvent(QWheelEvent *event)
{
    // A mouse wheel without the focus on the dial scrolls what is around it.
    if (!hasFocus() || event->angleDelta().y() == 0)
        return event->ignore();
    const double step = event->modifiers() & Qt::ShiftModifier ? 0.1 : 1;
    turnTo(m_value + (event->angleDelta().y() > 0 ? step : -step));
}

void AngleDial::keyPressEvent(QKeyEvent *event)
{
    const double step = event->modifiers() & Qt::ShiftModifier ? 0.1 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return turnTo(m_value + step);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return turnTo(m_value - step);
    case Qt::Key_PageUp:
        return turnTo(m_value + catchDegrees);
    case Qt::Key_PageDown:
        return turnTo(m_value - catchDegrees);
    case Qt::Key_Home:
        return turnTo(0);
    default:
        QWidget::keyPressEvent(event);
    }
}

void AngleDial::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

void AngleDial::turnTo(double degrees)
{
    const double before = m_value;
    setValue(degrees);
    if (!qFuzzyCompare(before + 1000, m_value + 1000))
        Q_EMIT turned(m_value);
}

} // namespace window
