#include "app/window/preview/preview_paint.h"

#include "app/window/look/theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace window {
namespace {

constexpr int badgePaddingPx = 20;

QRect placedBadge(const QRect &area, Qt::Corner corner, int line, int width)
{
    QRect badge(0, 0, width, badgeHeightPx);
    const bool isTop = corner == Qt::TopLeftCorner || corner == Qt::TopRightCorner;
    const bool isLeft = corner == Qt::TopLeftCorner || corner == Qt::BottomLeftCorner;
    const int fromEdge = badgeMarginPx + line * badgeStepPx;
    badge.moveLeft(isLeft ? area.left() + badgeMarginPx : area.right() + 1 - badgeMarginPx - width);
    badge.moveTop(isTop ? area.top() + fromEdge : area.bottom() + 1 - fromEdge - badgeHeightPx);
    return badge;
}

} // namespace

void paintShadow(QPainter &painter, const QRectF &picture)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    for (int ring = 1; ring <= 7; ++ring) {
        painter.setPen(QPen(QColor(0, 0, 0, 46 - 6 * ring), 1));
        painter.drawRoundedRect(picture.adjusted(-ring + 0.5, -ring + 2.5, ring - 0.5, ring + 1.5), ring, ring);
    }
    painter.restore();
}

void paintCheckerboard(QPainter &painter, const QRectF &picture)
{
    constexpr int squarePx = 8;
    static const QPixmap tile = [] {
        QPixmap pair(2 * squarePx, 2 * squarePx);
        pair.fill(QColor(0xf2, 0xf2, 0xf2));
        QPainter squares(&pair);
        const QColor darker(0xdd, 0xdd, 0xdd);
        squares.fillRect(0, 0, squarePx, squarePx, darker);
        squares.fillRect(squarePx, squarePx, squarePx, squarePx, darker);
        return pair;
    }();
    painter.drawTiledPixmap(picture, tile);
}

void paintBadge(QPainter &painter, const QRect &area, Qt::Corner corner, int line, const QString &text, BadgeLook look)
{
    if (text.isEmpty())
        return;
    painter.save();
    QFont small = painter.font();
    small.setPixelSize(Theme::scaled(11));
    const QFontMetrics metrics(small);
    const QString fitting = metrics.elidedText(text, Qt::ElideRight, area.width() - 2 * badgeMarginPx - badgePaddingPx);
    const QRect badge = placedBadge(area, corner, line, metrics.horizontalAdvance(fitting) + badgePaddingPx);
    QColor ground = Theme::color(QStringLiteral("badge"));
    ground.setAlpha(210);
    const bool isFocused = look == BadgeLook::Focused;
    painter.setPen(isFocused ? QPen(Theme::color(QStringLiteral("focus")), 2) : QPen(Qt::NoPen));
    painter.setBrush(ground);
    painter.drawRoundedRect(badge, badgeHeightPx / 2.0, badgeHeightPx / 2.0);
    painter.setPen(Theme::color(QStringLiteral("badgeText")));
    painter.setFont(small);
    painter.drawText(badge, Qt::AlignCenter, fitting);
    painter.restore();
}

} // namespace window
