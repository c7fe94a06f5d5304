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

/** The part of the bitmap inside @p rect, cut to the bitmap's bounds; a null bitmap where nothing is left. */
Bitmap cut(const Bitmap &bitmap, const QRect &rect);

} // namespace platform
