#pragma once

#include "platform/graphics/bitmap.h"

namespace platform {

struct Sharpening
{
    double strength = 1; ///< how much of the difference to the surroundings is added once more
    double limit = 10;   ///< the most that is added or taken away, of 255
};

/**
 * The bitmap with clearer edges: what its brightness differs from that of its surroundings, a pixel wide, is added to all
 * colours alike, so that no edge gets coloured. Areas of one colour stay as they are, to the bit, and no component moves
 * by more than the limit. Depth, colours, transparency, profile and resolution stay; Lab becomes sRGB.
 *
 * Fails with InvalidValue for a null bitmap, with TooLarge if memory fails.
 */
Result<Bitmap> sharpened(const Bitmap &bitmap, const Sharpening &sharpening);

} // namespace platform
