#include "app/window/look/key_header.h"

#include "app/window/look/theme.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace window {

KeyHeader::KeyHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Columns"));
    setAccessibleDescription(tr("Left and Right choose a column, Space sorts by it"));
}

// While they have the focus the arrow keys belong to the headings, even in a window that uses them otherwise.
bool KeyHeader::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *pressed = dynamic_cast<QKeyEvent *>(event);
        const bool isOurs =
            pressed->key() == Qt::Key_Left || pressed->key() == Qt::Key_Right || pressed->key() == Qt::Key_Space;
        if (isOurs && pressed->modifiers() == Qt::NoModifier)
            event->accept();
    }
    return QHeaderView::event(event);
}

void KeyHeader::keyPressEvent(QKeyEvent *event)
{
    switch (event->modifiers() == Qt::NoModifier ? event->key() : 0) {
    case Qt::Key_Left:
        return step(-1);
    case Qt::Key_Right:
        return step(1);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return sort();
    default:
        QWidget::keyPressEvent(event);
    }
}

// Skips hidden columns; stops at the ends.
void KeyHeader::step(int by)
{
    for (int place = m_place + by; place >= 0 && place < count(); place += by)
        if (!isSectionHidden(logicalIndex(place))) {
            m_place = place;
            break;
        }
    showPlace();
}

// Cycles through first first, last first, and unsorted if the table supports that.
void KeyHeader::sort()
{
    const int column = logicalIndex(m_place);
    const bool isSorted = sortIndicatorSection() == column;
    if (isSorted && sortIndicatorOrder() == Qt::DescendingOrder && isSortIndicatorClearable())
        setSortIndicator(-1, Qt::AscendingOrder);
    else
        setSortIndicator(column, isSorted && sortIndicatorOrder() == Qt::AscendingOrder ? Qt::DescendingOrder
                                                                                        : Qt::AscendingOrder);
}

void KeyHeader::showPlace()
{
    const QString title = model() ? model()->headerData(logicalIndex(m_place), orientation()).toString() : QString();
    setAccessibleName(title.isEmpty() || !hasFocus() ? tr("Columns") : title);
    viewport()->update();
}

void KeyHeader::focusInEvent(QFocusEvent *event)
{
    m_place = qBound(0, m_place, qMax(0, count() - 1));
    if (isSectionHidden(logicalIndex(m_place)))
        step(1);
    QHeaderView::focusInEvent(event);
    showPlace();
}

void KeyHeader::focusOutEvent(QFocusEvent *event)
{
    QHeaderView::focusOutEvent(event);
    showPlace();
}

QFontMetrics KeyHeader::metrics() const
{
    QFont bold = font();
    bold.setBold(true);
    return QFontMetrics(bold);
}

/** The heading in one line, or in two if it is long and has a space; about as wide as each other. */
QStringList KeyHeader::linesOf(int column) const
{
    constexpr int mostInOneLinePx = 96;
    const QString title = model()->headerData(column, orientation()).toString();
    const QFontMetrics bold = metrics();
    QStringList lines(title);
    int width = bold.horizontalAdvance(title);
    const bool isLong = width > mostInOneLinePx;
    for (qsizetype at = title.indexOf(u' '); isLong && at > 0; at = title.indexOf(u' ', at + 1)) {
        const int widest = qMax(bold.horizontalAdvance(title.left(at)), bold.horizontalAdvance(title.mid(at + 1)));
        if (widest < width)
            lines = {title.left(at), title.mid(at + 1)};
        width = qMin(width, widest);
    }
    return lines;
}

QSize KeyHeader::sectionSizeFromContents(int column) const
{
    const QFontMetrics bold = metrics();
    const QStringList lines = linesOf(column);
    int widest = 0;
    for (const QString &line : lines)
        widest = qMax(widest, bold.horizontalAdvance(line));
    return QHeaderView::sectionSizeFromContents(column) +
           QSize(widest - bold.horizontalAdvance(lines.join(u' ')), int(lines.size() - 1) * bold.lineSpacing());
}

/** Of one line; room for the arrow is kept only in the column that the list is sorted by. */
int KeyHeader::roomForText(int column) const
{
    const int around =
        QHeaderView::sectionSizeFromContents(column).width() - metrics().horizontalAdvance(linesOf(column).join(u' '));
    const int arrow = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
    return sectionSize(column) - around + (sortIndicatorSection() == column ? 0 : arrow);
}

bool KeyHeader::isCut(int column) const
{
    const QStringList lines = linesOf(column);
    return std::any_of(lines.cbegin(), lines.cend(),
                       [&](const QString &line) { return metrics().horizontalAdvance(line) > roomForText(column); });
}

// Each line is elided here: with style sheets the toolkit cuts a letter in two.
void KeyHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    QStringList lines = linesOf(column);
    for (QString &line : lines)
        line = metrics().elidedText(line, textElideMode(), roomForText(column));
    option->text = lines.join(u'\n');
}

void KeyHeader::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    const int column = logicalIndex(m_place);
    if (!hasFocus() || column < 0)
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(Theme::color(QStringLiteral("focus")), 2));
    painter.drawRect(
        QRect(sectionViewportPosition(column), 0, sectionSize(column), viewport()->height()).adjusted(1, 1, -2, -2));
}

} // namespace window
