#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace platform {

/** A compressed text of a PNG, or nothing if it is damaged or longer than @p most bytes; never expands more of it. */
QByteArray inflatedText(const QByteArray &compressed, qsizetype most);

/**
 * The EXIF block, TIFF header first, that programs older than the chunk eXIf put into a text of a PNG as hexadecimal
 * digits. Empty for other texts.
 *
 * @param type   "tEXt" or "zTXt"
 * @param chunk  keyword and text as the file has them
 */
QByteArray exifOfPngText(const QByteArray &type, const QByteArray &chunk);

/**
 * The XMP packet in such a text, or in the text intended for it; empty if it is damaged or longer than four megabytes,
 * and none for other texts.
 *
 * @param type   "iTXt" too
 */
std::optional<QByteArray> xmpOfPngText(const QByteArray &type, const QByteArray &chunk);

/** The contents of those chunks, in the form of PngParts::carried, that are texts with the keyword "Comment". */
QStringList pngComments(const QByteArray &chunks);

} // namespace platform
