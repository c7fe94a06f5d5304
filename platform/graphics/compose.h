#pragma once

#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QRectF>

#include <optional>

namespace platform {

/** A rectangle with round corners; pixels, origin top left. Radii are bounded by half of a side. */
struct RoundedRect
{
    QRectF rect; ///< covers nothing where a side is not positive
    double xRadius = 0;
    double yRadius = 0;
};

/**
 * The part @p part of the bitmap as it shows through a rounded rectangle, which is given from the part's top left
 * corner; edges are antialiased. Depth, profile, resolution and JPEG tables stay.
 *
 * Outside the shape it is transparent, with colours of 0, or filled with @p background and opaque. CMYK and Lab become
 * sRGB, and a grey picture RGB where the background is no grey; the background is converted from sRGB into the
 * picture's own space. Where nothing is to be covered the part comes back as it is.
 *
 * @p part is cut to the bitmap. Fails with InvalidValue where nothing is left, with TooLarge if memory fails.
 */
Result<Bitmap> shapedBy(const Bitmap &bitmap, const QRect &part, const RoundedRect &shape,
                        const std::optional<QColor> &background);

/** The bitmap on a colour, opaque, converted as shapedBy() does; as it is where it has no alpha. Fails likewise. */
Result<Bitmap> laidOn(const Bitmap &bitmap, const QColor &color);

/** The bitmap on copies of a tile, the first in the top left corner; as it is where it has no alpha. Fails likewise. */
Result<Bitmap> laidOn(const Bitmap &bitmap, const Bitmap &tile);

/**
 * A white canvas in the bitmap's own colours and depth, without a stated resolution, with the bitmap drawn into
 * @p target; the bitmap is resampled as resample() has it, and cut to what lies on the canvas. Fails likewise.
 */
Result<Bitmap> drawnOnWhite(const Bitmap &bitmap, QSize canvas, const QRect &target);

} // namespace platform
