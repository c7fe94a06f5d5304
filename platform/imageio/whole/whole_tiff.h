#pragma once

// Inside platform/ only.

class QIODevice;

namespace platform {

/**
 * True if all directories of a TIFF file, including those below them, their values, strips and tiles are inside the
 * file. Raw files that are built like TIFF but begin with another mark are accepted too. What the tags of camera makers
 * point to is not checked.
 */
bool isWholeTiff(QIODevice &file);

} // namespace platform
