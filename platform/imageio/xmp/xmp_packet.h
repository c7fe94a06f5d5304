#pragma once

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * An XMP packet for a file with other pixels: the picture's size is set to @p pixels, and thumbnails are removed.
 * Everything else stays byte for byte; a packet that would no longer be well formed is unchanged.
 */
QByteArray xmpForNewPixels(const QByteArray &packet, QSize pixels);

} // namespace platform
