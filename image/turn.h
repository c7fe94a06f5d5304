#pragma once

#include "platform/graphics/turn.h"
#include "platform/imageio/source/picture.h"

namespace image {

/**
 * The bounding box of a rectangle of @p size rotated by @p degrees; in the unit of @p size. Not finite if they are not.
 */
QSizeF turnedBox(QSizeF size, double degrees);

/**
 * A bitmap rotated anticlockwise by @p degrees onto its bounding box, without fractions of a pixel.
 *
 * Multiples of 90 are exact. Around the picture the canvas is empty: transparent if the bitmap has alpha, otherwise all
 * components are 0. Depth, colours, profile and resolution stay; see platform::turned(). Fails with InvalidValue for a
 * null bitmap or an angle that is not finite, with TooLarge if the canvas is beyond the memory budget.
 */
platform::Result<platform::Bitmap> turned(const platform::Bitmap &bitmap, double degrees);

/** How that draws a bitmap of @p size; the canvas is empty if it cannot be made. */
platform::FreeTurn freeTurnOf(QSize size, double degrees);

/** Qt::Horizontal swaps left and right, Qt::Vertical top and bottom. */
platform::ExactTurn exactFlip(Qt::Orientation axis);

/** A bitmap with left and right, or top and bottom, swapped. Fails like turned(). */
platform::Result<platform::Bitmap> flipped(const platform::Bitmap &bitmap, Qt::Orientation axis);

/**
 * A picture rotated anticlockwise by @p degrees, transparent around it. Its size in points is the bounding box, and its
 * pixel density stays. Fails like turned().
 */
platform::Result<platform::Picture> turned(const platform::Picture &picture, double degrees);

} // namespace image
