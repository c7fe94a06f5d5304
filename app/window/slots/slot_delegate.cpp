#include "app/window/slots/slot_delegate.h"

#include "app/window/look/theme.h"
#include "app/window/slots/slot_list.h"

#include <QPainter>
#include <QPainterPath>

namespace window {

namespace {

constexpr int slotHeightPx = 44;
constexpr int keyWidthPx = 28;
constexpr int keyHeightPx = 24;
constexpr int keyLeftPx = 8;
constexpr int textLeftPx = keyLeftPx + keyWidthPx + 9;
constexpr int smallFontPx = 11;
constexpr int narrowestForNotePx = 60;

QColor color(const char *name)
{
    return Theme::color(QString::fromLatin1(name));
}

QRect cardOf(const QStyleOptionViewItem &option)
{
    return option.rect.adjusted(1, 2, -3, -2);
}

} // namespace

SlotDelegate::SlotDelegate(SlotList &list) : QStyledItemDelegate(&list), m_list(list) {}

QSize SlotDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {m_list.slotWidth(), slotHeightPx};
}

void SlotDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option, const QModelIndex &) const
{
    editor->setGeometry(cardOf(option).adjusted(textLeftPx - 10, 3, -4, -3));
}

void SlotDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const Slot &slot = m_list.rows().slot(index.row());
    const bool isLit = m_list.litRow() == index.row();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintCard(*painter, option, isLit);
    const QRect card = cardOf(option);
    paintKey(*painter, QRect(card.left() + keyLeftPx, card.center().y() - keyHeightPx / 2 + 1, keyWidthPx, keyHeightPx),
             slot, isLit);
    paintTexts(*painter, option, slot);
    painter->restore();
}

void SlotDelegate::paintCard(QPainter &painter, const QStyleOptionViewItem &option, bool isLit) const
{
    const bool isOver = option.state & QStyle::State_MouseOver && option.state & QStyle::State_Enabled;
    const bool isCurrent = option.state & QStyle::State_HasFocus;
    QPainterPath shape;
    shape.addRoundedRect(QRectF(cardOf(option)).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    painter.fillPath(shape, color(isLit ? "accentSoft" : isOver ? "hover" : "field"));
    painter.setPen(QPen(color(isLit || isCurrent ? "focus" : "line"), isCurrent ? 2 : 1));
    painter.drawPath(shape);
}

void SlotDelegate::paintKey(QPainter &painter, const QRect &place, const Slot &slot, bool isLit) const
{
    QPainterPath shape;
    shape.addRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
    const bool works = slot.problem.isEmpty();
    painter.fillPath(shape, color(isLit ? "accent" : "window"));
    painter.setPen(color(isLit ? "accent" : "line"));
    painter.drawPath(shape);
    QFont font = painter.font();
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(color(isLit ? "onAccent" : works ? "text" : "faint"));
    painter.drawText(place, Qt::AlignCenter, SlotRows::keyCap(slot.key));
}

void SlotDelegate::paintTexts(QPainter &painter, const QStyleOptionViewItem &option, const Slot &slot) const
{
    QRect place = cardOf(option).adjusted(textLeftPx, 4, -9, -4);
    QFont small = option.font;
    small.setPixelSize(Theme::scaled(smallFontPx));
    QFont bold = option.font;
    bold.setWeight(QFont::DemiBold);
    if (slot.count > 0) {
        const QString count = m_list.locale().toString(slot.count);
        painter.setFont(bold);
        painter.setPen(color("accentText"));
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, count);
        place.setRight(place.right() - QFontMetrics(bold).horizontalAdvance(count) - 8);
    }
    const bool works = slot.problem.isEmpty();
    painter.setFont(option.font);
    painter.setPen(color(works ? "text" : "muted"));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop,
                     option.fontMetrics.elidedText(slot.label, Qt::ElideRight, place.width()));
    if (place.width() < narrowestForNotePx && works)
        return;
    small.setWeight(works ? QFont::Normal : QFont::DemiBold);
    painter.setFont(small);
    painter.setPen(color(works ? "muted" : "bad"));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom,
                     QFontMetrics(small).elidedText(works ? slot.note : slot.problem,
                                                    works ? Qt::ElideMiddle : Qt::ElideRight, place.width()));
}

} // namespace window
