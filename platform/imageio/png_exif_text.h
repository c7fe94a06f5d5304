#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** A compressed text of a PNG, or nothing where it is not sound or longer than @p most bytes; never makes more of it. */
QByteArray inflatedText(const QByteArray &compressed, qsizetype most);

/**
 * The EXIF block, TIFF header first, that programs from before the chunk eXIf have put into a text of a PNG as hexadecimal
 * digits. Empty for other texts.
 *
 * @param type   "tEXt" or "zTXt"
 * @param chunk  keyword and text as the file has them
 */
QByteArray exifOfPngText(const QByteArray &type, const QByteArray &chunk);

} // namespace platform
