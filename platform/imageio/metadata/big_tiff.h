#pragma once

// Inside platform/ only.

#include "platform/imageio/metadata/metadata_blocks.h"

namespace platform {

/** True for the header of a TIFF file with 64-bit offsets. */
bool isBigTiff(const QByteArray &bytes);

/**
 * The tags of a BigTIFF file's first picture, including its EXIF and GPS directories, which exiv2 cannot read. Values
 * of more than 1 MB, and those outside the file, are skipped.
 */
void readBigTiff(Metadata::Blocks &blocks, const QByteArray &bytes);

} // namespace platform
