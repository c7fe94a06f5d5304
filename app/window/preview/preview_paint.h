#pragma once

#include <QRect>
#include <QString>
#include <QtGlobal>

class QPainter;

/** What the preview draws around a picture. */
namespace window {

constexpr int badgeMarginPx = 12;
constexpr int badgeHeightPx = 22;
constexpr int badgeStepPx = badgeHeightPx + 4;

/** A few widening, fainter frames: a soft shadow that costs nothing. */
void paintShadow(QPainter &painter, const QRectF &picture);

/** The light pattern that stands for transparency; squares have the same size on every screen. */
void paintCheckerboard(QPainter &painter, const QRectF &picture);

enum class BadgeLook { Plain, Focused };

/**
 * A text in the corner of @p area that @p corner names, @p from pixels away from its edge. It has as many lines as it needs.
 *
 * @return how far the next text has to be away from this one's edge; 0 where there is no text
 */
int paintBadge(QPainter &painter, const QRect &area, Qt::Corner corner, int from, const QString &text,
               BadgeLook look = BadgeLook::Plain);

} // namespace window
