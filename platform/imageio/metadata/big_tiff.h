#pragma once

// Inside platform/ only.

#include "platform/imageio/metadata/metadata_blocks.h"

namespace platform {

/** True for the header of a TIFF file with offsets of 64 bits. */
bool isBigTiff(const QByteArray &bytes);

/**
 * The tags of a BigTIFF file's first picture, its EXIF and GPS directories included, which exiv2 cannot read. Values of more
 * than 1 MB, and those that lie outside the file, are left out.
 */
void readBigTiff(Metadata::Blocks &blocks, const QByteArray &bytes);

} // namespace platform
