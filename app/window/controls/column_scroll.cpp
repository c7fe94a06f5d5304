#include "app/window/controls/column_scroll.h"

#include <QEvent>
#include <QScrollBar>

namespace window {

namespace {
constexpr int leastWidthPx = 316;
constexpr int leastHeightPx = 80;
} // namespace

ColumnScroll::ColumnScroll(QWidget *parent) : QScrollArea(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize ColumnScroll::minimumSizeHint() const
{
    const int bar = verticalScrollBar()->sizeHint().width();
    const int content = widget() ? widget()->minimumSizeHint().width() : 0;
    return {qMax(leastWidthPx, content + bar + 2 * frameWidth()), leastHeightPx};
}

// The base class considers only the size of its content.
bool ColumnScroll::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace window
