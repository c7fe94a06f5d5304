#include "app/window/look/item_looks.h"

#include "app/window/look/theme.h"
#include "platform/foundation/human_texts.h"

#include <QDateTime>
#include <QPainter>

namespace window {

namespace {
constexpr int paddingPx = 10;
} // namespace

void QuietCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, Theme::color(QStringLiteral("row")));
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      Theme::color(QStringLiteral("hairline")));
    const QRect place = option.rect.adjusted(paddingPx, 0, -paddingPx / 2, -1);
    const QVariant color = index.data(Qt::ForegroundRole);
    painter->setPen(color.isValid() ? color.value<QColor>() : Theme::color(QStringLiteral("text")));
    const Qt::TextElideMode elide = m_names.contains(index.column()) ? Qt::ElideMiddle : Qt::ElideRight;
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                      option.fontMetrics.elidedText(index.data().toString(), elide, place.width()));
    painter->restore();
}

// Digits are as wide as each other in most fonts, names of months are not.
int dateTimeWidth(const QFontMetrics &metrics)
{
    constexpr int months = 12;
    constexpr int lateDay = 28;
    int widest = 0;
    for (int month = 1; month <= months; ++month)
        widest = qMax(widest, metrics.horizontalAdvance(
                                  platform::localDateText(QDateTime(QDate(2028, month, lateDay), QTime(20, 48, 58)))));
    return widest;
}

} // namespace window
