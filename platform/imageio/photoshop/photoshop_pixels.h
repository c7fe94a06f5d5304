#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"

#include <QIODevice>

namespace platform {

/**
 * The merged picture of a Photoshop file with its profile: grey, RGB, CMYK or Lab, with its transparency where the file says
 * that it has one; other channels are left out. Throws vips::VError, also where the file is cut short.
 */
vips::VImage photoshopPixels(QIODevice &file);

} // namespace platform
