#pragma once

#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QPoint>

namespace platform {

/**
 * The bitmap with its top left corner at @p place on a canvas of @p size pixels; what is outside is cut off. The pixels
 * of the bitmap stay as they are, including transparent ones; around them the canvas has @p color.
 *
 * @param color  sRGB, converted into the bitmap's own space; if it is not opaque, the result has alpha. CMYK and Lab
 *               become sRGB, and a grey picture RGB for a colour that is no grey
 *
 * Fails with InvalidValue for a null bitmap or if none of it is on the canvas, with TooLarge if memory fails.
 */
Result<Bitmap> onCanvas(const Bitmap &bitmap, QPoint place, QSize size, const QColor &color);

} // namespace platform
