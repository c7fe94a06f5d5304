#pragma once

// Inside platform/ only.

#include "platform/imageio/metadata/metadata_blocks.h"

#include <QSize>

namespace platform {

enum class MakerNotes { Keep, Drop };

/**
 * The tags of @p blocks as one EXIF block in @p order, TIFF header first, for a picture of @p pixels.
 *
 * In the order in which it was read the original block is used, changed in place (exifBlockInPlace()). Otherwise, and
 * where there is none, a new one is made; what then cannot be encoded, or does not fit into @p sizeLimit bytes, is left
 * behind step by step: first very long values, then the maker notes, then all but the common tags. Empty where
 * nothing is left to write.
 */
QByteArray encodeExifBlock(const Metadata::Blocks &blocks, QSize pixels, Exiv2::ByteOrder order, qsizetype sizeLimit);

/** The tags that a new file of @p pixels pixels may carry: none about the old file's structure, sizes updated. */
Exiv2::ExifData exifForNewFile(const Exiv2::ExifData &exif, QSize pixels, MakerNotes makerNotes);

} // namespace platform
