#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/formats/content.h"

namespace platform {

/**
 * How many bits the file stores per channel, or per palette index; decoded pixels may have more. Colours packed into 16
 * bits count as 8, to which they are expanded.
 *
 * @param image  the same picture, opened
 */
int sampleDepth(const PictureBytes &source, Content content, const vips::VImage &image);

} // namespace platform
