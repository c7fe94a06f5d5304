#pragma once

// Inside platform/ only.

#include "platform/graphics/pixels.h"

namespace platform {

/** The strongest shrink of the JPEG decoder that still leaves at least the size that is wanted: 1, 2, 4 or 8. */
int jpegShrinkFor(QSize stored, QSize wanted);

/** A picture that was decoded at a fraction of @p stored, with the last column and row that the decoder leaves out. */
vips::VImage withWholeEdges(const vips::VImage &image, QSize stored, int shrink);

/**
 * The same picture at exactly @p wanted pixels. Where a side of @p stored is no multiple of the shrink, its last column or row
 * stands for less than the others, and is not stretched to their size.
 */
vips::VImage scaledFromShrunk(const vips::VImage &image, QSize stored, int shrink, QSize wanted);

} // namespace platform
