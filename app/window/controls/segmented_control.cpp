#include "app/window/controls/segmented_control.h"

#include "app/window/look/theme.h"

#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>

namespace window {

namespace {
constexpr int markPx = 2;
constexpr int heightPx = 30;
constexpr int paddingPx = 12;
constexpr double radiusPx = 6;
} // namespace

SegmentedControl::SegmentedControl(QWidget *parent) : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void SegmentedControl::setSegments(const QStringList &segments)
{
    m_segments = segments;
    m_selected = std::clamp(m_selected, 0, std::max(0, int(segments.size()) - 1));
    describe();
    updateGeometry();
    update();
}

void SegmentedControl::setTips(const QStringList &tips)
{
    m_tips = tips;
    describe();
}

void SegmentedControl::setSelectedSegment(int index)
{
    if (index == m_selected || index < 0 || index >= m_segments.size())
        return;
    m_selected = index;
    describe();
    update();
    Q_EMIT selectionChanged(index);
}

QSize SegmentedControl::sizeHint() const
{
    return {textWidth(int(m_segments.size())) + int(m_segments.size()) * 2 * paddingPx, heightPx};
}

QSize SegmentedControl::minimumSizeHint() const
{
    return {textWidth(int(m_segments.size())) + int(m_segments.size()) * paddingPx, heightPx};
}

// The width of the first texts together, drawn as chosen.
int SegmentedControl::textWidth(int texts) const
{
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    const QFontMetrics metrics(bold);
    int width = 0;
    for (int i = 0; i < texts; ++i)
        width += metrics.horizontalAdvance(m_segments.at(i));
    return width;
}

// The same margin around each text; whole pixels, so that the dividing lines stay sharp.
QRectF SegmentedControl::segmentRect(int index) const
{
    const int count = int(m_segments.size());
    const int room = width() - textWidth(count);
    const int left = textWidth(index) + room * index / count;
    const int right = textWidth(index + 1) + room * (index + 1) / count;
    return QRectF(left, 0, right - left, height());
}

void SegmentedControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath shape;
    shape.addRoundedRect(frame, radiusPx, radiusPx);
    painter.fillPath(shape, Theme::color(QStringLiteral("field")));
    painter.save();
    painter.setClipPath(shape);
    for (int i = 0; i < m_segments.size(); ++i) {
        const QRectF part = segmentRect(i);
        const bool on = i == m_selected;
        if (on)
            painter.fillRect(part, Theme::color(QStringLiteral("accentSoft")));
        if (on && isEnabled())
            painter.fillRect(QRectF(part.left(), part.bottom() - markPx, part.width(), markPx),
                             Theme::color(QStringLiteral("focus")));
        if (i > 0)
            painter.fillRect(QRectF(part.left(), 0, 1, height()), Theme::color(QStringLiteral("line")));
        QFont face = font();
        face.setWeight(on ? QFont::DemiBold : QFont::Normal);
        painter.setFont(face);
        const char *color = !isEnabled() ? "faint" : on ? "accentText" : "text";
        painter.setPen(Theme::color(QString::fromLatin1(color)));
        painter.drawText(part, Qt::AlignCenter, m_segments.at(i));
    }
    painter.restore();
    painter.setPen(
        QPen(Theme::color(hasFocus() ? QStringLiteral("focus") : QStringLiteral("edge")), hasFocus() ? 2 : 1));
    painter.drawPath(shape);
}

void SegmentedControl::mousePressEvent(QMouseEvent *event)
{
    if (const int index = segmentAt(event->position()); index >= 0)
        choose(index);
}

int SegmentedControl::segmentAt(const QPointF &place) const
{
    for (int i = 0; i < m_segments.size(); ++i)
        if (segmentRect(i).contains(place))
            return i;
    return -1;
}

// While it has the focus the arrow keys change the choice, even in a window that uses them otherwise.
bool SegmentedControl::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && !m_tips.isEmpty()) {
        const auto *help = dynamic_cast<QHelpEvent *>(event);
        const int index = segmentAt(help->pos());
        const QRect place = index < 0 ? QRect() : segmentRect(index).toRect();
        QToolTip::showText(help->globalPos(), m_tips.value(index), this, place);
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *pressed = dynamic_cast<QKeyEvent *>(event);
        const bool isArrow = pressed->key() == Qt::Key_Left || pressed->key() == Qt::Key_Right;
        if (isArrow && !(pressed->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
            event->accept();
    }
    return QWidget::event(event);
}

void SegmentedControl::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return choose(std::max(0, m_selected - 1));
    case Qt::Key_Right:
        return choose(std::min(int(m_segments.size()) - 1, m_selected + 1));
    case Qt::Key_Home:
        return choose(0);
    case Qt::Key_End:
        return choose(int(m_segments.size()) - 1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SegmentedControl::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::EnabledChange)
        update();
    QWidget::changeEvent(event);
}

void SegmentedControl::choose(int index)
{
    if (index == m_selected)
        return;
    setSelectedSegment(index);
    Q_EMIT chosen(index);
}

void SegmentedControl::describe()
{
    const QString tip = m_tips.value(m_selected);
    setAccessibleDescription(tip.isEmpty() ? m_segments.value(m_selected) : tip);
}

} // namespace window
