#pragma once

// Inside platform/ only.

#include "platform/imageio/jpeg2000/jpeg2000_header.h"

#include <vector>

class QIODevice;

namespace platform {

/** Whole numbers as stored in a JPEG 2000 file, unsigned and scaled to @p bits of each pixel's channels. */
struct Jpeg2000Pixels
{
    std::vector<uchar> bytes; ///< one or two bytes a sample, rows from top to bottom
    QByteArray problem;       ///< empty if everything was decoded
};

/**
 * Decodes a file of the given header into its colours and, last, its transparency.
 *
 * @param bits 8 or 16, of the wanted samples
 */
Jpeg2000Pixels decodeJpeg2000(QIODevice &file, const Jpeg2000Header &header, int bits, int threads);

} // namespace platform
