#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"
#include "platform/imageio/jpeg/decoded_planes.h"

namespace platform {

/**
 * The pixels of a JPEG as stored, at another size, with its profile: the planes are decoded at the size divided by
 * @p shrink and scaled, and colours are made of the result. None if they would have to be reduced too much, and for
 * files about which the decoder reports anything. Throws vips::VError and std::bad_alloc.
 */
std::optional<vips::VImage> pixelsOfPlanes(const QByteArray &jpeg, const PlaneFacts &facts, int shrink, QSize size);

} // namespace platform
