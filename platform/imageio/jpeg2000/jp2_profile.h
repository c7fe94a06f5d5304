#pragma once

#include <QByteArray>

namespace platform {

/** True for the profiles that a JPEG 2000 file can carry: matrix RGB, or grey with a curve. */
bool fitsJpeg2000(const QByteArray &iccProfile);

/** The file with @p iccProfile instead of its standard colour space; unchanged if it does not name one. */
QByteArray withJpeg2000Profile(const QByteArray &file, const QByteArray &iccProfile);

/**
 * The profile in a file whose beginning, with everything before the pixels, is @p head; empty if it names a standard
 * space.
 */
QByteArray jpeg2000Profile(const QByteArray &head);

} // namespace platform
