#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/formats/content.h"

namespace platform {

/**
 * How many bits the file keeps of one channel, or of one index into a palette; what pixels are decoded into may have more.
 * Colours packed into 16 bits count as 8, to which they are brought.
 *
 * @param image  the same picture, opened
 */
int sampleDepth(const PictureBytes &source, Content content, const vips::VImage &image);

} // namespace platform
