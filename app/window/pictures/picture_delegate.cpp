#include "app/window/pictures/picture_delegate.h"

#include "app/window/look/screen_look.h"
#include "app/window/look/theme.h"
#include "app/window/pictures/status_place.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace window {

namespace {

constexpr int paddingPx = 10;
constexpr int tickPx = 16;
constexpr int tickRoomPx = 28; ///< before the thumbnail
constexpr int leastLines = 2;  ///< of a status
constexpr int mostLines = 4;
constexpr int paddingsPx = paddingPx + paddingPx / 2; ///< at both sides

QString colorName(StatusKind kind)
{
    switch (kind) {
    case StatusKind::Good:
        return QStringLiteral("good");
    case StatusKind::Bad:
        return QStringLiteral("bad");
    case StatusKind::Caution:
        return QStringLiteral("caution");
    case StatusKind::Planned:
    case StatusKind::Busy:
        return QStringLiteral("text");
    case StatusKind::None:
    case StatusKind::Waiting:
        return QStringLiteral("muted");
    }
    return {};
}

bool isFinal(StatusKind kind)
{
    return kind == StatusKind::Good || kind == StatusKind::Bad || kind == StatusKind::Caution;
}

QFont statusFont(QFont font, StatusKind kind)
{
    font.setWeight(isFinal(kind) ? QFont::DemiBold : QFont::Normal);
    return font;
}

} // namespace

PictureDelegate::PictureDelegate(const PictureModel &model, const QAbstractProxyModel &order, const QHeaderView &header,
                                 QObject *parent)
    : QStyledItemDelegate(parent), m_model(model), m_order(order), m_header(header)
{
}

void PictureDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int row = m_order.mapToSource(index).row();
    painter->save();
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, Theme::color(QStringLiteral("row")));
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      Theme::color(QStringLiteral("hairline")));
    paintPlace(*painter, option, index);
    if (index.column() == PictureModel::Thumbnail)
        paintThumbnail(*painter, option.rect, row, option.widget ? option.widget->screen() : nullptr);
    else if (index.column() == PictureModel::Status)
        paintStatus(*painter, option, m_model.row(row));
    else
        paintText(*painter, option, m_model.row(row), index.column());
    painter->restore();
}

// A bar in front of chosen rows, since colour alone is not enough; a frame around the row with the keyboard focus.
void PictureDelegate::paintPlace(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    constexpr int barPx = 3;
    const QColor color = Theme::color(QStringLiteral("focus"));
    const bool isFirst = m_header.visualIndex(index.column()) == 0;
    if (isFirst && option.state & QStyle::State_Selected)
        painter.fillRect(QRect(option.rect.topLeft(), QSize(barPx, option.rect.height())), color);
    const auto *list = qobject_cast<const QAbstractItemView *>(option.widget);
    if (!list || !list->hasFocus() || list->currentIndex().row() != index.row())
        return;
    painter.fillRect(QRect(option.rect.left(), option.rect.top(), option.rect.width(), 1), color);
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), color);
}

bool PictureDelegate::isStatusCut(const PictureRow &row, const QFont &font) const
{
    const QFontMetrics metrics(statusFont(font, row.kind));
    const auto first = statusColumn(row, m_header, metrics, paddingsPx);
    return !fitsInLines(row.status, metrics, statusWidth(first), m_lines);
}

/** For a status in two lines; few are different, and there may be many rows. */
int PictureDelegate::neededPx(const PictureRow &row, const QFont &font)
{
    constexpr int mostKnown = 1000;
    QHash<QString, int> &known = m_knownPx[isFinal(row.kind) ? 1 : 0];
    if (font != m_knownFont || known.size() > mostKnown)
        m_knownPx = {};
    m_knownFont = font;
    auto width = known.constFind(row.status);
    if (width == known.constEnd())
        width = known.insert(row.status, widthInTwoLines(row.status, QFontMetrics(statusFont(font, row.kind))));
    return *width + paddingsPx;
}

void PictureDelegate::measureStatuses(const QFont &font)
{
    m_statusPx = 0;
    for (int row = 0; row < m_model.rowCount(); ++row)
        if (m_model.row(row).kind != StatusKind::Bad)
            m_statusPx = qMax(m_statusPx, neededPx(m_model.row(row), font));
}

int PictureDelegate::neededLines(const PictureRow &row, const QFont &font) const
{
    const QFontMetrics metrics(statusFont(font, row.kind));
    const int room = statusWidth(statusColumn(row, m_header, metrics, paddingsPx));
    int lines = leastLines;
    while (lines < mostLines && !fitsInLines(row.status, metrics, room, lines))
        ++lines;
    return lines;
}

bool PictureDelegate::fitStatuses(const QFont &font)
{
    int lines = leastLines;
    const int room = m_header.sectionSize(PictureModel::Status);
    for (int row = 0; row < m_model.rowCount(); ++row)
        if (neededPx(m_model.row(row), font) > room)
            lines = qMax(lines, neededLines(m_model.row(row), font));
    return std::exchange(m_lines, lines) != lines;
}

bool PictureDelegate::needsRoom(const PictureRow &row, const QFont &font)
{
    const bool isWider = row.kind != StatusKind::Bad && neededPx(row, font) > m_statusPx;
    return isWider || (m_lines < mostLines && isStatusCut(row, font));
}

int PictureDelegate::rowHeight(const QFontMetrics &metrics) const
{
    constexpr int leastPx = 36;
    constexpr int aroundPx = 4;
    return qMax(leastPx, m_lines * metrics.height() + aroundPx);
}

QSize PictureDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QFontMetrics metrics(textFont(option.font, index.column()));
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool mayWrap = index.column() == PictureModel::NewSize;
    return {(mayWrap ? widthInTwoLines(text, metrics) : metrics.horizontalAdvance(text)) + paddingsPx,
            metrics.height()};
}

/** Whether the status covers a cell. */
bool PictureDelegate::isCovered(const PictureRow &row, const QFont &font, int column) const
{
    const auto first = statusColumn(row, m_header, QFontMetrics(statusFont(font, row.kind)), paddingsPx);
    return m_header.visualIndex(column) >= m_header.visualIndex(first) &&
           m_header.visualIndex(column) < m_header.visualIndex(PictureModel::Status);
}

/** From the column in which it begins to its end. */
int PictureDelegate::statusWidth(PictureModel::Column first) const
{
    const int end = m_header.sectionPosition(PictureModel::Status) + m_header.sectionSize(PictureModel::Status);
    return end - m_header.sectionPosition(first) - paddingsPx;
}

void PictureDelegate::paintStatus(QPainter &painter, const QStyleOptionViewItem &option, const PictureRow &row) const
{
    const QFont font = statusFont(option.font, row.kind);
    const QFontMetrics metrics(font);
    const auto first = statusColumn(row, m_header, metrics, paddingsPx);
    QRect place = option.rect.adjusted(paddingPx, 0, -paddingPx / 2, -1);
    place.setLeft(place.right() + 1 - statusWidth(first));
    painter.setFont(font);
    painter.setPen(Theme::color(colorName(row.kind)));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, inLines(row.status, metrics, place.width(), m_lines));
}

QRect PictureDelegate::tickPlace(const QRect &cell)
{
    return {cell.left(), cell.top(), tickRoomPx + paddingPx / 2, cell.height()};
}

void PictureDelegate::paintTick(QPainter &painter, const QRect &cell, bool isTicked)
{
    QRect box(0, 0, tickPx, tickPx);
    box.moveCenter(QPoint(cell.left() + paddingPx + tickPx / 2, cell.center().y()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Theme::color(isTicked ? QStringLiteral("accent") : QStringLiteral("muted")), 1));
    painter.setBrush(Theme::color(isTicked ? QStringLiteral("accent") : QStringLiteral("field")));
    painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    if (isTicked) {
        const QPointF mark[] = {
            {box.left() + 4.0, box.top() + 8.4}, // NOLINT: three points for a call that takes an array
            {box.left() + 7.0, box.top() + 11.4},
            {box.left() + 12.2, box.top() + 5.0}};
        painter.setPen(QPen(Theme::color(QStringLiteral("onAccent")), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(mark, 3);
    }
    painter.restore();
}

void PictureDelegate::paintThumbnail(QPainter &painter, const QRect &cell, int row, const QScreen *screen) const
{
    paintTick(painter, cell, m_model.row(row).isTicked);
    QRect place(QPoint(0, 0), thumbnailSize());
    place.moveCenter(cell.adjusted(tickRoomPx, 0, 0, 0).center());
    QPainterPath shape;
    shape.addRoundedRect(place, 3, 3);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPixmap pixmap = m_model.thumbnail(row);
    if (pixmap.isNull()) {
        painter.fillPath(shape, Theme::color(QStringLiteral("hairline")));
        return;
    }
    painter.setClipPath(shape);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, ScreenLook::ofProcess().shown(pixmap.toImage(), screen));
}

QFont PictureDelegate::textFont(QFont font, int column) const
{
    if (column == PictureModel::NewName && m_model.stressesNewNames())
        font.setWeight(QFont::DemiBold);
    return font;
}

void PictureDelegate::paintText(QPainter &painter, const QStyleOptionViewItem &option, const PictureRow &row,
                                int column) const
{
    const QFont font = textFont(option.font, column);
    const bool mayBeCovered = column == PictureModel::NewName || column == PictureModel::NewSize;
    if (mayBeCovered && isCovered(row, option.font, column))
        return;
    const bool isName = column == PictureModel::Name && row.isTicked;
    QColor color = Theme::color(isName ? QStringLiteral("text") : QStringLiteral("muted"));
    if (mayBeCovered)
        color = Theme::color(QStringLiteral("text"));
    const QString text = m_model.data(m_model.index(int(&row - &m_model.row(0)), column), Qt::DisplayRole).toString();
    const QRect place = option.rect.adjusted(paddingPx, 0, -paddingPx / 2, -1);
    const Qt::TextElideMode elide =
        column == PictureModel::Name || column == PictureModel::NewName ? Qt::ElideMiddle : Qt::ElideRight;
    painter.setFont(font);
    painter.setPen(color);
    // A picture may have several results.
    const QString shown = column == PictureModel::NewSize ? inLines(text, QFontMetrics(font), place.width(), leastLines)
                                                          : QFontMetrics(font).elidedText(text, elide, place.width());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, shown);
}

} // namespace window
