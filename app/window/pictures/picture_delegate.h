#pragma once

#include "app/models/picture_model.h"

#include <QAbstractProxyModel>
#include <QHash>
#include <QHeaderView>
#include <QStyledItemDelegate>

#include <array>

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

    /** Finds out how wide the statuses of all rows are. */
    void measureStatuses(const QFont &font);
    /**
     * What the status column needs so that no status takes more than two lines or covers another column; failures may,
     * since they have no result.
     */
    int statusPx() const { return m_statusPx; }
    /** Gives statuses as many lines as they need in the columns as they are; whether that changed. */
    bool fitStatuses(const QFont &font);
    /** Whether a status came that needs more room than those before it. */
    bool needsRoom(const PictureRow &row, const QFont &font);
    int rowHeight(const QFontMetrics &metrics) const;

    /** The width of a cell that shows all of its text. */
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

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
    QFont textFont(QFont font, int column) const;
    int neededPx(const PictureRow &row, const QFont &font);
    int neededLines(const PictureRow &row, const QFont &font) const;
    void paintText(QPainter &painter, const QStyleOptionViewItem &option, const PictureRow &row, int column) const;

    const PictureModel &m_model;
    const QAbstractProxyModel &m_order;
    const QHeaderView &m_header;
    int m_statusPx = 0;
    int m_lines = 2;                              ///< of a status
    std::array<QHash<QString, int>, 2> m_knownPx; ///< widths of statuses in m_knownFont; the second of final ones
    QFont m_knownFont;
};

} // namespace window
