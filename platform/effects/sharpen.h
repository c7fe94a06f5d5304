#pragma once

#include "platform/graphics/bitmap.h"

namespace platform {

struct Sharpening
{
    double strength = 1; ///< how much of the difference from the surroundings is added
    double limit = 10;   ///< the largest change in either direction, out of 255
};

/**
 * The bitmap with clearer edges: the difference of its brightness from that of its surroundings, one pixel wide, is
 * added equally to all colours, so that edges are not tinted. Areas of one colour stay bit-identical, and no component
 * changes by more than the limit. Depth, colours, transparency, profile and resolution stay; Lab becomes sRGB.
 *
 * Fails with InvalidValue for a null bitmap, with TooLarge if memory fails.
 */
Result<Bitmap> sharpened(const Bitmap &bitmap, const Sharpening &sharpening);

} // namespace platform
