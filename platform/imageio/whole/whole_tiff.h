#pragma once

// Inside platform/ only.

class QIODevice;

namespace platform {

/**
 * True where all directories of a TIFF file, with those below them, their values, strips and tiles lie inside the file.
 * Raw files that are built like TIFF and have a mark of their own count as such. What a maker's own tags lead to is not
 * looked at.
 */
bool isWholeTiff(QIODevice &file);

} // namespace platform
