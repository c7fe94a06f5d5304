#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"

#include <QIODevice>

namespace platform {

/**
 * The merged picture of a Photoshop file with its profile: grey, RGB, CMYK or Lab, with its transparency if the file
 * says that it has one; other channels are dropped. Throws vips::VError, also if the file is truncated.
 */
vips::VImage photoshopPixels(QIODevice &file);

} // namespace platform
