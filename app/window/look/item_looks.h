#pragma once

#include <QFontMetrics>
#include <QStyledItemDelegate>

namespace window {

/** Cells of a table for reading only: a hairline below each row, and no frame around the current cell. */
class QuietCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param names  columns of names and paths, which are shortened in their middle */
    QuietCellDelegate(const QList<int> &names, QObject *parent) : QStyledItemDelegate(parent), m_names(names) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QList<int> m_names;
};

/** The width of a date and time in the form of the reader, without space beside it. */
int dateTimeWidth(const QFontMetrics &metrics);

} // namespace window
