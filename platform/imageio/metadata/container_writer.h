#pragma once

// Inside platform/ only: blocks of metadata put into files that are chains of parts. What such a file had of them before is
// replaced; all else stays byte for byte, but for offsets that have to follow.

#include "platform/imageio/metadata/container_blocks.h"

#include <QSize>

namespace platform {

/** Of a JPEG 2000 file; empty where it is bare pixels, or has a table of places in itself that would be wrong then. */
QByteArray jpeg2000WithBlocks(const QByteArray &file, const ContainerBlocks &blocks);
/** The size of its picture; empty where it does not tell. */
QSize jpeg2000SizeOf(const QByteArray &file);

/** Of a JPEG XL file, which gets a container where it is bare pixels. IPTC has no place in it. */
QByteArray jpegXlWithBlocks(const QByteArray &file, const ContainerBlocks &blocks);
/** EXIF and XMP of a JPEG XL file. What is compressed there stays unknown. */
ContainerBlocks jpegXlBlocks(const QByteArray &file);

/** An XMP packet as that of the document; empty where the end of the file is not as simple as that of those made here. */
QByteArray pdfWithXmp(const QByteArray &file, const QByteArray &xmp);

} // namespace platform
