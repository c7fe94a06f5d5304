#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/**
 * The picture of a JPEG file and nothing that is told about it: tables and scans byte for byte, the colour profile and the
 * segments that say how its numbers are meant. EXIF, XMP, IPTC, comments, small pictures and what makers put beside them
 * are left out, and so is all behind the end of the picture. Empty where the file is not sound as far as that end.
 */
QByteArray withoutMetadata(const QByteArray &jpeg);

/** The position behind the end of the picture; 0 where it has no end. What follows is no part of it. */
qsizetype endOfJpeg(const QByteArray &jpeg);

} // namespace platform
