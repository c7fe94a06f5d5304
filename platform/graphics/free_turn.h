#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"
#include "platform/graphics/turn.h"

namespace platform {

/**
 * The image in memory, turned as described for turned(); the canvas is known to fit the budget. Throws vips::VError.
 */
vips::VImage turnedFreely(const vips::VImage &image, const FreeTurn &turn);

} // namespace platform
