#pragma once

// Inside platform/ only.

#include "platform/graphics/pixels.h"

namespace platform {

/**
 * Where a result must not show that the decoder has shrunk the picture, that shrinks by no more than 2, and gives so many times the
 * size that is wanted: lines beside each other would be mixed with those of the next block otherwise.
 */
constexpr int finerTimes = 5;
constexpr int mostFineShrink = 2;

/**
 * Whether a picture that the decoder has shrunk is one for which that would be seen in what is made of it. @p image is in memory.
 *
 * It is where much is paper or ink, at the limits of what samples can be: what a JPEG adds beside hard edges is cut off there, sample by
 * sample, but not where the decoder takes the mean of samples first; then all of it becomes lighter or darker. And it is where fine
 * patterns are all over it, which come out as how they meet the blocks of pixels that are made one.
 */
bool showsShrinking(const vips::VImage &image);

/** The strongest shrink of the JPEG decoder that still leaves at least the size that is wanted: 1, 2, 4 or 8. */
int jpegShrinkFor(QSize stored, QSize wanted);

/** A picture that was decoded at a fraction of @p stored, with the last column and row that the decoder leaves out. */
vips::VImage withWholeEdges(const vips::VImage &image, QSize stored, int shrink);

/**
 * The same at exactly @p wanted pixels. Where a side of @p stored is no multiple of the shrink, its last column or row stands for less
 * than the others, and is not stretched to their size.
 */
vips::VImage scaledFromShrunk(const vips::VImage &image, QSize stored, int shrink, QSize wanted);

} // namespace platform
