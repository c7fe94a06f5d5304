#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"

#include <QIODevice>

namespace platform {

/**
 * The picture of a bitmap file: palettes of 1 to 8 bits, rows of 16 to 32 bits with any masks, runs of 4 and 8 bits;
 * bottom-up or top-down. Components are scaled to the full range, in 8 bits, or in 16 if a mask is wider than 8; grey
 * if the whole palette is. The caller has checked the size that the file claims. Throws vips::VError, also if the file
 * is truncated.
 */
vips::VImage bmpPixels(QIODevice &file);

/** Bits of a palette index, or of the widest component and at least 8. Throws vips::VError like bmpPixels(). */
int bmpDepth(QIODevice &file);

} // namespace platform
