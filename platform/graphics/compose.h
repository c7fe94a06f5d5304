#pragma once

#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QRectF>

#include <optional>

namespace platform {

/** A rectangle with round corners; pixels, origin top left. Radii are limited to half of a side. */
struct RoundedRect
{
    QRectF rect; ///< covers nothing if a side is not positive
    double xRadius = 0;
    double yRadius = 0;
};

/**
 * The part @p part of the bitmap as it shows through a rounded rectangle, which is given from the part's top left
 * corner; edges are antialiased. Depth, profile, resolution and JPEG tables stay.
 *
 * Outside the shape it is transparent, with colours of 0, or filled with @p background and opaque. CMYK and Lab become
 * sRGB, and a grey picture RGB if the background is not grey; the background is converted from sRGB to the picture's
 * colour space. If nothing is to be covered, the part is returned unchanged.
 *
 * @p part is clipped to the bitmap. Fails with InvalidValue if nothing is left, with TooLarge if memory fails.
 */
Result<Bitmap> shapedBy(const Bitmap &bitmap, const QRect &part, const RoundedRect &shape,
                        const std::optional<QColor> &background);

/** The bitmap on a colour, opaque, converted like in shapedBy(); unchanged if it has no alpha. Fails likewise. */
Result<Bitmap> laidOn(const Bitmap &bitmap, const QColor &color);

/** The bitmap on a repeated tile, starting in the top left corner; unchanged if it has no alpha. Fails likewise. */
Result<Bitmap> laidOn(const Bitmap &bitmap, const Bitmap &tile);

/**
 * A white canvas with the bitmap's colours and depth, without a stated resolution, with the bitmap drawn into
 * @p target; the bitmap is scaled as by resample(), and clipped to the canvas. Fails likewise.
 */
Result<Bitmap> drawnOnWhite(const Bitmap &bitmap, QSize canvas, const QRect &target);

} // namespace platform
