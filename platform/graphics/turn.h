#pragma once

#include "platform/graphics/bitmap.h"

#include <QPointF>

namespace platform {

/** Operations on a picture that compute no new pixel. Rotations are anticlockwise. */
enum class ExactTurn {
    None,
    Quarter,       ///< 90 degrees: the right side becomes the top
    Half,          ///< 180 degrees
    ThreeQuarters, ///< 270 degrees: the left side becomes the top
    MirrorAcross,  ///< left and right are swapped
    MirrorDown,    ///< top and bottom are swapped
};

/** True for the two rotations that swap width and height. */
bool swapsSides(ExactTurn turn);

/** The rotation of @p degrees if that is a multiple of 90, including negative ones; none for any other angle. */
std::optional<ExactTurn> exactTurn(double degrees);

/**
 * The bitmap turned or mirrored, pixel for pixel, with its depth, colours, profile and resolution.
 *
 * If width and height are swapped, so are horizontal and vertical resolution, and the JPEG tables are transposed with
 * the pixels, so that writing them again adds no loss. Fails with InvalidValue for a null bitmap, TooLarge if memory
 * fails.
 */
Result<Bitmap> turned(const Bitmap &bitmap, ExactTurn turn);

/** The area around a rotated picture. */
enum class Surroundings {
    Cleared,     ///< transparent if the picture has alpha, otherwise every component 0
    Transparent, ///< alpha is added if the picture has none
};

struct FreeTurn
{
    double degrees = 0; ///< anticlockwise, finite
    QSize canvas;       ///< in whole pixels
    QPointF centre;     ///< the position of the picture's centre, from the canvas's top left corner
    Surroundings surroundings = Surroundings::Cleared;
};

/**
 * The bitmap rotated about its centre by any angle, drawn onto an empty canvas; what does not fit is cut off.
 *
 * Cubic interpolation with antialiased edges in the bitmap's own depth and colour space; profile, resolution and JPEG
 * tables stay. Fails with InvalidValue for a null bitmap or numbers that are not finite, and with TooLarge if the
 * canvas is empty or beyond the memory budget.
 */
Result<Bitmap> turned(const Bitmap &bitmap, const FreeTurn &turn);

} // namespace platform
