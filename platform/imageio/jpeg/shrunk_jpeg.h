#pragma once

// Inside platform/ only.

#include "platform/graphics/pixels.h"

namespace platform {

/**
 * If a result must not show that the decoder has shrunk the picture, it shrinks by at most 2, and delivers this
 * multiple of the wanted size: otherwise adjacent lines would be mixed with those of the next block.
 */
constexpr int finerTimes = 5;
constexpr int mostFineShrink = 2;

/**
 * Whether it would be visible in a result that the decoder has shrunk the picture. @p image is in memory.
 *
 * It is if much is paper or ink, at the limits of the sample range: JPEG artefacts at hard edges are clipped there
 * sample by sample, but not if the decoder averages samples first; then everything becomes lighter or darker. And it is
 * if fine patterns cover the picture, which depend on how they meet the averaged blocks.
 */
bool showsShrinking(const vips::VImage &image);

/** The strongest shrink of the JPEG decoder that still leaves at least the wanted size: 1, 2, 4 or 8. */
int jpegShrinkFor(QSize stored, QSize wanted);

/** A picture decoded at a fraction of @p stored, without the last partial column and row. */
vips::VImage withWholeEdges(const vips::VImage &image, QSize stored, int shrink);

/**
 * The same at exactly @p wanted pixels. If a side of @p stored is no multiple of the shrink, its last column or row
 * represents fewer pixels than the others, and is not stretched to their size.
 */
vips::VImage scaledFromShrunk(const vips::VImage &image, QSize stored, int shrink, QSize wanted);

} // namespace platform
