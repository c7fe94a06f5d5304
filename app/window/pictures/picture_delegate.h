#pragma once

#include "app/models/picture_model.h"

#include <QAbstractProxyModel>
#include <QStyledItemDelegate>

namespace window {

/** Draws one cell of the picture list: thumbnail, plain text, or a status whose colour says what its words say. */
class PictureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    PictureDelegate(const PictureModel &model, const QAbstractProxyModel &order, QObject *parent);

    /** In logical pixels. */
    static QSize thumbnailSize() { return {36, 26}; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintThumbnail(QPainter &painter, const QRect &cell, int row) const;
    void paintText(QPainter &painter, const QStyleOptionViewItem &option, const PictureRow &row, int column) const;

    const PictureModel &m_model;
    const QAbstractProxyModel &m_order;
};

} // namespace window
