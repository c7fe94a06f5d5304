#include "app/window/controls/card_handle.h"

#include "app/window/look/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace window {

CardHandle::CardHandle(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CardHandle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus()) {
        painter.setPen(QPen(Theme::color(QStringLiteral("focus")), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme::color(QStringLiteral("edge")));
    const QPointF middle = QRectF(rect()).center();
    for (const double x : {-3.0, 3.0})
        for (const double y : {-5.0, 0.0, 5.0})
            painter.drawEllipse(middle + QPointF(x, y), 1.3, 1.3);
}

void CardHandle::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = true;
    m_pressedAt = event->globalPosition().toPoint().y();
    setCursor(Qt::ClosedHandCursor);
}

void CardHandle::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragging)
        Q_EMIT dragged(event->globalPosition().toPoint().y() - m_pressedAt);
}

void CardHandle::mouseReleaseEvent(QMouseEvent *)
{
    m_dragging = false;
    setCursor(Qt::OpenHandCursor);
    Q_EMIT released();
}

void CardHandle::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        Q_EMIT stepped(event->key() == Qt::Key_Up ? -1 : 1);
    else
        QWidget::keyPressEvent(event);
}

} // namespace window
