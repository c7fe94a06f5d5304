#pragma once

// Inside platform/ only: whether the larger containers are complete; see whole_picture.h.

class QIODevice;

namespace platform {

/** All boxes, and in the codestream all tile parts, at least one per tile, and the end mark. */
bool isWholeJpeg2000(QIODevice &file);

/** All sections, and of the merged picture all rows unless they are compressed as one. */
bool isWholePhotoshop(QIODevice &file);

/** All boxes of a HEIF or AVIF file, and the bytes of all its items. */
bool isWholeIsoMedia(QIODevice &file);

} // namespace platform
