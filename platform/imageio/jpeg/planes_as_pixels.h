#pragma once

// Private to the platform.

#include "platform/imageio/jpeg/decoded_planes.h"

#include <QImage>

namespace platform {

/**
 * The pixels of a JPEG as stored, at another size, as Grayscale8 or RGB888: the planes are decoded at the size divided by
 * @p shrink and scaled, and colours are made of the result. None if they would have to be reduced too much, and for
 * files about which the decoder reports anything. Throws std::bad_alloc.
 */
std::optional<QImage> pixelsOfPlanes(const QByteArray &jpeg, const PlaneFacts &facts, int shrink, QSize size);

} // namespace platform
