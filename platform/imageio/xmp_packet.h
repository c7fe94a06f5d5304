#pragma once

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * An XMP packet for a file with other pixels: what it says of the picture's size is set to @p pixels, and thumbnails in
 * it are taken out. Everything else stays byte for byte; a packet that would no longer be well formed stays whole.
 */
QByteArray xmpForNewPixels(const QByteArray &packet, QSize pixels);

/**
 * False for a packet with so many properties that taking it apart, which takes time by the square of their number, would hold
 * up whoever asks; lists may be long. Such a packet is carried as it is, and its properties are not known.
 */
bool isDigestibleXmp(const QByteArray &packet);

} // namespace platform
