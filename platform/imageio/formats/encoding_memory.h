#pragma once

#include "platform/imageio/formats/file_format.h"

#include <QSize>

namespace platform {

/**
 * The bytes that encoding needs besides the pixels, which are in memory, as far as size and form tell.
 *
 * @param bands           channels with transparency, 1 to 4
 * @param bytesPerSample  1 or 2
 * @param isLossless      if the format offers a choice
 */
qint64 memoryOfEncoding(FileFormat format, QSize pixels, int bands, int bytesPerSample, bool isLossless);

/**
 * How many rows of a picture one frame of its JPEG XL contains: all of them, or fewer if encoding all at once would
 * take too much memory. The encoder holds a frame in memory several times, in floating point.
 */
int jpegXlRowsAtOnce(QSize pixels, int bands, bool isLossless);

} // namespace platform
