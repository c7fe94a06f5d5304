#pragma once

// Inside platform/ only.

class QIODevice;

namespace platform {

/**
 * True if all directories of a TIFF file, including those below them, their values, strips and tiles are inside the
 * file. Raw files that are built like TIFF with a mark of their own count as such. Targets of a maker's own tags are
 * not checked.
 */
bool isWholeTiff(QIODevice &file);

} // namespace platform
