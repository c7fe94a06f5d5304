#pragma once

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * An XMP packet for a file with other pixels: what it says of the picture's size is set to @p pixels, and thumbnails in
 * it are taken out. Everything else stays byte for byte; a packet that would no longer be well formed stays whole.
 */
QByteArray xmpForNewPixels(const QByteArray &packet, QSize pixels);

} // namespace platform
