#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** The EXIF block of a WebP file, TIFF header first; empty if there is none. Never reads outside @p bytes. */
QByteArray webpExif(const QByteArray &bytes);

} // namespace platform
