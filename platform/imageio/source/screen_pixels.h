#pragma once

// Private to the platform.

#include "platform/imageio/source/image_source.h"

namespace platform {

/**
 * Image 0 of a JPEG, upright, at exactly @p size, which is at most half of it: the result of
 * ImageSource::decodeScaled(), but made from the decoder's planes at that size, so that colours are only made of the
 * pixels that are shown. Pixels differ little; docs/performance.md says how much.
 *
 * @return none if this way is not possible: for all except JPEGs of grey or of brightness and colours about which the
 *         decoder has nothing to report, and if memory is short
 */
std::optional<Bitmap> screenPixelsOf(const ImageSource &source, QSize size);

} // namespace platform
