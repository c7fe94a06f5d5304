#pragma once

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include <QRect>

namespace platform {

/**
 * A part of image 0 of @p source as a JPEG: the same bytes as ImageSource::decodePart() and encodeImage() give, but with
 * no more than one row in memory, and without what is beside the part.
 *
 * @return none if this way is not possible: for all except upright JPEGs of grey or of brightness and colours about
 *         which the decoder has nothing to report, for parts that are not in the picture, and if memory is short
 */
std::optional<QByteArray> croppedJpeg(const ImageSource &source, const QRect &part, const EncodeOptions &options);

} // namespace platform
