#pragma once

#include <QStyledItemDelegate>

namespace window {

class SlotList;
struct Slot;

/** Draws a slot: its key, and its label above its path or problem, and how many pictures were put there. */
class SlotDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit SlotDelegate(SlotList &list);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    void paintCard(QPainter &painter, const QStyleOptionViewItem &option, bool isLit) const;
    void paintKey(QPainter &painter, const QRect &place, const Slot &slot, bool isLit) const;
    void paintTexts(QPainter &painter, const QStyleOptionViewItem &option, const Slot &slot) const;

    SlotList &m_list;
};

} // namespace window
