#pragma once

#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QLineF>
#include <QList>

namespace platform {

/** Horizontal and vertical dashed lines; pixels of a canvas, origin top left, anywhere inside or outside it. */
struct DashedLines
{
    QList<QLineF> lines;
    double width = 1;
    double dash = 1; ///< of a dash and of a gap; the ends are square and extend half a width beyond that
    QColor color;    ///< sRGB
};

/**
 * The lines, antialiased, on a transparent bitmap of @p canvas pixels, 8 bits a component.
 *
 * Only the surroundings of the lines are drawn and use memory. Fails with InvalidValue for an empty canvas, a width or
 * dash that is not positive or a coordinate that is not finite, and with TooLarge for a canvas beyond the memory
 * budget.
 */
Result<Bitmap> drawnLines(QSize canvas, const DashedLines &lines);

} // namespace platform
