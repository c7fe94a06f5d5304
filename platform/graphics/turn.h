#pragma once

#include "platform/graphics/bitmap.h"

#include <QPointF>

namespace platform {

/** What can be done to a picture without computing one new pixel. Turns are anticlockwise. */
enum class ExactTurn {
    None,
    Quarter,       ///< 90 degrees: what was on the right is on top
    Half,          ///< 180 degrees
    ThreeQuarters, ///< 270 degrees: what was on the left is on top
    MirrorAcross,  ///< left and right change places
    MirrorDown,    ///< top and bottom change places
};

/** True for the two turns after which width and height have changed places. */
bool swapsSides(ExactTurn turn);

/** The turn of @p degrees where that is a multiple of 90, negative ones included; none for any other angle. */
std::optional<ExactTurn> exactTurn(double degrees);

/**
 * The bitmap turned or mirrored, pixel for pixel, with its depth, colours, profile and resolution.
 *
 * Where width and height change places, horizontal and vertical resolution do too, and the JPEG tables are turned with
 * the pixels, so that writing them again adds no loss. Fails with InvalidValue for a null bitmap, TooLarge if memory
 * fails.
 */
Result<Bitmap> turned(const Bitmap &bitmap, ExactTurn turn);

/** What lies around a turned picture. */
enum class Surroundings {
    Cleared,     ///< transparent where the picture has alpha, otherwise every component 0
    Transparent, ///< alpha is added where the picture has none
};

struct FreeTurn
{
    double degrees = 0; ///< anticlockwise, finite
    QSize canvas;       ///< in whole pixels
    QPointF centre;     ///< where the picture's centre comes to lie, from the canvas's top left corner
    Surroundings surroundings = Surroundings::Cleared;
};

/**
 * The bitmap turned about its centre by any angle, drawn onto an empty canvas; what does not fit is cut off.
 *
 * Cubic interpolation with antialiased edges in the bitmap's own depth and colour space; profile, resolution and JPEG
 * tables stay. Fails with InvalidValue for a null bitmap or numbers that are not finite, and with TooLarge where the
 * canvas is empty or beyond the memory budget.
 */
Result<Bitmap> turned(const Bitmap &bitmap, const FreeTurn &turn);

} // namespace platform
