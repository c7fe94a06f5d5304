#pragma once

#include <QByteArray>

namespace platform {

/** True for the profiles that a JPEG 2000 file can carry: three colours by a matrix, or grey by a curve. */
bool fitsJpeg2000(const QByteArray &iccProfile);

/** The file with @p iccProfile in place of its statement of a standard colour space; unchanged if it has none. */
QByteArray withJpeg2000Profile(const QByteArray &file, const QByteArray &iccProfile);

/** The profile in a file whose beginning, with all before the pixels, is @p head; empty where it names a standard space. */
QByteArray jpeg2000Profile(const QByteArray &head);

} // namespace platform
