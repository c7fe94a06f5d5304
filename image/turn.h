#pragma once

#include "platform/graphics/turn.h"
#include "platform/imageio/source/picture.h"

namespace image {

/** The box round a rectangle of @p size turned by @p degrees; the unit is that of @p size. Not finite if they are not. */
QSizeF turnedBox(QSizeF size, double degrees);

/**
 * A bitmap turned anticlockwise by @p degrees onto a canvas that just holds it: the box, less fractions of a pixel.
 *
 * Multiples of 90 are exact. Around the picture the canvas is empty: transparent where the bitmap has alpha, otherwise
 * all components are 0. Depth, colours, profile and resolution stay; see platform::turned(). Fails with InvalidValue
 * for a null bitmap or an angle that is not finite, with TooLarge where the canvas is beyond the memory budget.
 */
platform::Result<platform::Bitmap> turned(const platform::Bitmap &bitmap, double degrees);

/** Qt::Horizontal lets left and right change places, Qt::Vertical top and bottom. */
platform::ExactTurn exactFlip(Qt::Orientation axis);

/** A bitmap with left and right, or top and bottom, in each other's places. Fails as turned() does. */
platform::Result<platform::Bitmap> flipped(const platform::Bitmap &bitmap, Qt::Orientation axis);

/**
 * A picture turned anticlockwise by @p degrees, transparent around it. Its size in points is the box, and its
 * pixels are as dense as they were. Fails as turned() does.
 */
platform::Result<platform::Picture> turned(const platform::Picture &picture, double degrees);

} // namespace image
