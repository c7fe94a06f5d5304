#pragma once

// Inside platform/ only: whether the larger containers end where they promise; see whole_picture.h.

class QIODevice;

namespace platform {

/** All boxes, and in the codestream all tile parts, one at least for each tile, and the mark of the end. */
bool isWholeJpeg2000(QIODevice &file);

/** All sections, and of the merged picture all rows where they are not compressed as one. */
bool isWholePhotoshop(QIODevice &file);

/** All boxes of a HEIF or AVIF file, and the bytes of all its items. */
bool isWholeIsoMedia(QIODevice &file);

} // namespace platform
