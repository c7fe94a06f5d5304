#pragma once

// Inside platform/ only.

#include "platform/imageio/bytes/picture_bytes.h"

#include <vips/vips8>

namespace platform {

/**
 * The picture of a JPEG 2000 file: grey, RGB or CMYK with 8 or 16 bits, and its transparency if the file marks a
 * channel as such. Palettes are expanded, other colours converted, smaller components enlarged, other channels dropped.
 * The header is read now, all pixels when the first of them is requested. Throws vips::VError.
 */
vips::VImage loadJpeg2000(const PictureBytes &source);

} // namespace platform
