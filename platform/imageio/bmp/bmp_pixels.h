#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"

#include <QIODevice>

namespace platform {

/**
 * The picture of a bitmap file: palettes of 1 to 8 bits, rows of 16 to 32 bits with any masks, runs of 4 and 8 bits; from below
 * or from above. Components come at their full range, in 8 bits, or in 16 where a mask is wider than 8; grey where all of the
 * palette is. The caller has checked the size that the file claims. Throws vips::VError, also where the file is cut short.
 */
vips::VImage bmpPixels(QIODevice &file);

/** Bits of an index into the palette, or of the widest component and at least 8. Throws vips::VError as bmpPixels() does. */
int bmpDepth(QIODevice &file);

} // namespace platform
