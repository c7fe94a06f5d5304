#pragma once

#include "platform/graphics/bitmap.h"

namespace platform {

/** True if a bitmap of this many pixels, bands and bytes per component is allowed: at least 1 x 1, within the budget.
 */
bool fitsMemoryBudget(qint64 width, qint64 height, int bands, int bytesPerComponent);

/**
 * The bitmap at exactly @p size pixels: Lanczos when it shrinks, cubic when it grows, in its own depth and colour
 * space. The aspect ratio is not preserved automatically. Fails with InvalidValue or TooLarge if no bitmap of that size
 * can be made.
 */
Result<Bitmap> resample(const Bitmap &bitmap, QSize size);

/**
 * Like resample(), but after skipping unneeded pixels: a hundred times faster for strong reductions, for drawings
 * without fine detail.
 */
Result<Bitmap> resampleRoughly(const Bitmap &bitmap, QSize size);

/**
 * The bitmap with its top left corner at @p place on a transparent canvas of @p size; what is outside is cut off. Keeps
 * depth and colour space and adds alpha if part of the canvas stays empty. Fails with InvalidValue or TooLarge.
 */
Result<Bitmap> placed(const Bitmap &bitmap, QPoint place, QSize size);

/** A transparent bitmap of 8 bit RGB. Fails with TooLarge if none of that size can be made. */
Result<Bitmap> transparent(QSize size);

/** The part of the bitmap inside @p rect, clipped to the bitmap; a null bitmap if nothing is left. */
Bitmap cut(const Bitmap &bitmap, const QRect &rect);

} // namespace platform
