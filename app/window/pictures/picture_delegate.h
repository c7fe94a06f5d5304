#pragma once

#include "app/models/picture_model.h"

#include <QAbstractProxyModel>
#include <QHeaderView>
#include <QStyledItemDelegate>

namespace window {

/** Draws one cell of the picture list: thumbnail, plain text, or a status whose colour repeats what its words say. */
class PictureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    PictureDelegate(const PictureModel &model, const QAbstractProxyModel &order, const QHeaderView &header,
                    QObject *parent);

    /** Whether the status of a row is truncated. */
    bool isStatusCut(const PictureRow &row, const QFont &font) const;

    /** In logical pixels. */
    static QSize thumbnailSize() { return {36, 26}; }

    /** Where the check box is in the thumbnail cell; a click beside it counts too. */
    static QRect tickPlace(const QRect &cell);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    static void paintTick(QPainter &painter, const QRect &cell, bool isTicked);
    void paintPlace(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintThumbnail(QPainter &painter, const QRect &cell, int row, const QScreen *screen) const;
    void paintStatus(QPainter &painter, const QStyleOptionViewItem &option, const PictureRow &row) const;
    bool isCovered(const PictureRow &row, const QFont &font, int column) const;
    int statusWidth(PictureModel::Column first) const;
    void paintText(QPainter &painter, const QStyleOptionViewItem &option, const PictureRow &row, int column) const;

    const PictureModel &m_model;
    const QAbstractProxyModel &m_order;
    const QHeaderView &m_header;
};

} // namespace window
