#pragma once

// Private to the platform.

#include <QIODevice>

namespace platform {

/**
 * Whether the first page of a TIFF file is compressed as a JPEG of a process that no decoder here knows: lossless, or
 * with several resolutions. The header of its first strip or tile tells.
 */
bool hasUnknownJpegProcess(QIODevice &file);

} // namespace platform
