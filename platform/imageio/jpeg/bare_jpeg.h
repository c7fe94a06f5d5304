#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/**
 * The picture of a JPEG file without any description: tables and scans byte for byte, the colour profile and the
 * segments that define the meaning of its numbers. EXIF, XMP, IPTC, comments, thumbnails and private segments are left
 * out, and so is everything after the end of the picture. Empty if the file is damaged before that end.
 */
QByteArray withoutMetadata(const QByteArray &jpeg);

/** The position after the end of the picture; 0 if it has no end. What follows is not part of it. */
qsizetype endOfJpeg(const QByteArray &jpeg);

} // namespace platform
