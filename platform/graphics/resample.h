#pragma once

#include "platform/graphics/bitmap.h"

namespace platform {

/** True if a bitmap of this many pixels, bands and bytes per component may be made: at least 1 x 1, inside the budget.
 */
bool fitsMemoryBudget(qint64 width, qint64 height, int bands, int bytesPerComponent);

/**
 * The bitmap at exactly @p size pixels: Lanczos when it shrinks, cubic when it grows, in its own depth and colour
 * space. Aspect ratio is not kept by itself. Fails with InvalidValue or TooLarge where no bitmap of that size can be
 * made.
 */
Result<Bitmap> resample(const Bitmap &bitmap, QSize size);

/**
 * As resample(), after pixels between those that are needed were left out: a hundred times faster where it shrinks much,
 * for drawings without fine detail.
 */
Result<Bitmap> resampleRoughly(const Bitmap &bitmap, QSize size);

/**
 * The bitmap with its top left corner at @p place on a transparent canvas of @p size; what lies outside is cut off.
 * Keeps depth and colour space and adds alpha where some of the canvas stays empty. Fails with InvalidValue or TooLarge.
 */
Result<Bitmap> placed(const Bitmap &bitmap, QPoint place, QSize size);

/** A transparent bitmap of 8 bit RGB. Fails with TooLarge where none of that size can be made. */
Result<Bitmap> transparent(QSize size);

/** The part of the bitmap inside @p rect, cut to the bitmap's bounds; a null bitmap where nothing is left. */
Bitmap cut(const Bitmap &bitmap, const QRect &rect);

} // namespace platform
