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

/** A line of text in the corner of @p area that @p corner names, @p line lines away from its edge; elided to fit. */
void paintBadge(QPainter &painter, const QRect &area, Qt::Corner corner, int line, const QString &text,
                BadgeLook look = BadgeLook::Plain);

} // namespace window
