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

/** The light pattern that represents transparency; its squares have the same size on every screen. */
void paintCheckerboard(QPainter &painter, const QRectF &picture);

enum class BadgeLook { Plain, Focused };

/**
 * A text in a given @p corner of @p area, @p from pixels away from its edge. It has as many lines as it needs.
 *
 * @return the distance of the next text from this one's edge; 0 if there is no text
 */
int paintBadge(QPainter &painter, const QRect &area, Qt::Corner corner, int from, const QString &text,
               BadgeLook look = BadgeLook::Plain);

} // namespace window
