#pragma once

#include "platform/graphics/turn.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include <QColor>

namespace platform {

/**
 * Image 0 of @p source as stored, turned by any angle, as a JPEG: the result of ImageSource::decode(), turned(), a
 * background and encodeImage(), but without converting the decoder's planes to colours and back, and row by row. Pixels
 * differ little; docs/performance.md says how much.
 *
 * @param turn     its surroundings do not count
 * @param corners  opaque; around the picture
 * @return none if this way is not possible: for all except JPEGs of grey or of brightness and colours about which the
 *         decoder has nothing to report, for colours around it that would have to be converted, for a canvas that
 *         cannot be made, and if memory is short
 */
std::optional<QByteArray> turnedJpeg(const ImageSource &source, const FreeTurn &turn, const QColor &corners,
                                     const EncodeOptions &options);

} // namespace platform
