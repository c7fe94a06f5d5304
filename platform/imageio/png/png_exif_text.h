#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QStringList>

#include <optional>

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

/**
 * The XMP packet of such a text, or of one that is made for it; empty where it is damaged or longer than four megabytes, and
 * none for other texts.
 *
 * @param type   "iTXt" too
 */
std::optional<QByteArray> xmpOfPngText(const QByteArray &type, const QByteArray &chunk);

/** What those of the chunks say that are texts of the keyword "Comment", as PngParts::carried has them. */
QStringList pngComments(const QByteArray &chunks);

} // namespace platform
