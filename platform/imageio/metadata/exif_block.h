#pragma once

// Inside platform/ only.

#include "platform/imageio/metadata/metadata_blocks.h"

#include <QSize>

namespace platform {

enum class MakerNotes { Keep, Drop };

/**
 * The tags of @p blocks as one EXIF block in @p order, TIFF header first, for a picture of @p pixels.
 *
 * In its original byte order the block is reused, changed in place (exifBlockInPlace()). Otherwise, or if there is
 * none, a new one is made; what then cannot be encoded, or does not fit into @p sizeLimit bytes, is dropped step by
 * step: first very long values, then the maker notes, then all but the common tags. Empty if nothing is left to write.
 */
QByteArray encodeExifBlock(const Metadata::Blocks &blocks, QSize pixels, Exiv2::ByteOrder order, qsizetype sizeLimit);

/** The tags that a new file of @p pixels pixels may contain: none about the old file's structure, sizes updated. */
Exiv2::ExifData exifForNewFile(const Exiv2::ExifData &exif, QSize pixels, MakerNotes makerNotes);

} // namespace platform
