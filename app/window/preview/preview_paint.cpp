#include "app/window/preview/preview_paint.h"

#include "app/window/look/theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace window {
namespace {

constexpr int badgePaddingPx = 20;

/**
 * The text in lines that fit in so many pixels, broken between words; a word wider than a line is elided, and no line
 * begins with a dot.
 */
QStringList linesOf(const QString &text, const QFontMetrics &metrics, int widthPx)
{
    QStringList lines;
    const QString bound = QString(text).replace(QStringLiteral(" · "), QStringLiteral("\u00a0· "));
    for (const QString &word : bound.split(u' ')) {
        const QString longer = lines.isEmpty() ? word : lines.last() + u' ' + word;
        if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= widthPx)
            lines.last() = longer;
        else
            lines.append(metrics.elidedText(word, Qt::ElideRight, widthPx));
    }
    return lines;
}

QRect placedBadge(const QRect &area, Qt::Corner corner, int from, QSize size)
{
    QRect badge(QPoint(0, 0), size);
    const bool isTop = corner == Qt::TopLeftCorner || corner == Qt::TopRightCorner;
    const bool isLeft = corner == Qt::TopLeftCorner || corner == Qt::BottomLeftCorner;
    const int fromEdge = badgeMarginPx + from;
    badge.moveLeft(isLeft ? area.left() + badgeMarginPx : area.right() + 1 - badgeMarginPx - size.width());
    badge.moveTop(isTop ? area.top() + fromEdge : area.bottom() + 1 - fromEdge - size.height());
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

int paintBadge(QPainter &painter, const QRect &area, Qt::Corner corner, int from, const QString &text, BadgeLook look)
{
    if (text.isEmpty())
        return 0;
    painter.save();
    QFont small = painter.font();
    small.setPixelSize(Theme::scaled(11));
    const QFontMetrics metrics(small);
    const QStringList lines = linesOf(text, metrics, area.width() - 2 * badgeMarginPx - badgePaddingPx);
    int width = 0;
    for (const QString &line : lines)
        width = qMax(width, metrics.horizontalAdvance(line));
    const int height = badgeHeightPx + int(lines.size() - 1) * metrics.lineSpacing();
    const QRect badge = placedBadge(area, corner, from, {width + badgePaddingPx, height});
    QColor ground = Theme::color(QStringLiteral("badge"));
    ground.setAlpha(210);
    const bool isFocused = look == BadgeLook::Focused;
    painter.setPen(isFocused ? QPen(Theme::color(QStringLiteral("focus")), 2) : QPen(Qt::NoPen));
    painter.setBrush(ground);
    painter.drawRoundedRect(badge, badgeHeightPx / 2.0, badgeHeightPx / 2.0);
    painter.setPen(Theme::color(QStringLiteral("badgeText")));
    painter.setFont(small);
    painter.drawText(badge.adjusted(badgePaddingPx / 2, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, lines.join(u'\n'));
    painter.restore();
    return height + badgeStepPx - badgeHeightPx;
}

} // namespace window
