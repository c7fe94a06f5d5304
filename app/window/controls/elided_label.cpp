#include "app/window/controls/elided_label.h"

#include <QStyle>
#include <QStylePainter>

namespace window {

namespace {
constexpr int leastPx = 40;
} // namespace

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {qMin(whole.width(), leastPx), whole.height()};
}

// There are many ways to set the text, but all of them end here.
void ElidedLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    const QRect place = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, place.width());
    painter.drawItemText(place, int(alignment()), palette(), isEnabled(), shown, foregroundRole());
    if (toolTip().isEmpty() || toolTip() == m_tip) {
        m_tip = shown == text() ? QString() : text();
        setToolTip(m_tip);
    }
}

} // namespace window
