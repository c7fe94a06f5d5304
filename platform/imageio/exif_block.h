#pragma once

// Inside platform/ only.

#include "platform/imageio/metadata_blocks.h"

#include <QSize>

namespace platform {

enum class MakerNotes { Keep, Drop };

/**
 * The tags of @p blocks as one EXIF block, TIFF header first, for a picture of @p pixels.
 *
 * The original block is changed in place where that is possible, so that maker notes stay where their offsets say.
 * What cannot be encoded, or does not fit into @p sizeLimit bytes, is left behind step by step: first the maker notes,
 * then all but the common tags. Empty where nothing is left to write.
 */
QByteArray encodeExifBlock(const Metadata::Blocks &blocks, QSize pixels, qsizetype sizeLimit);

/** The tags that a new file of @p pixels pixels may carry: none about the old file's structure, sizes set anew. */
Exiv2::ExifData exifForNewFile(const Exiv2::ExifData &exif, QSize pixels, MakerNotes makerNotes);

/** True for a tag of the first directory that describes how a file stores its pixels, not what they show. */
bool describesStructure(uint16_t tag);

} // namespace platform
