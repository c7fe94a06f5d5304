#pragma once

#include <QStyledItemDelegate>

namespace window {

/** Cells of a table that are read, not worked in: a hairline below each row, and no frame round the current cell alone. */
class QuietCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace window
