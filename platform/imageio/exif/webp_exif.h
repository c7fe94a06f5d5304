#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** The EXIF block of a WebP file, TIFF header first; empty where there is none. Never reads outside @p bytes. */
QByteArray webpExif(const QByteArray &bytes);

} // namespace platform
