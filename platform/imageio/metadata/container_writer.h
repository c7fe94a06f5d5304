#pragma once

// Inside platform/ only: inserts blocks of metadata into files that are chains of parts. Existing ones are replaced;
// everything else stays byte for byte, except offsets that have to be updated.

#include "platform/imageio/metadata/container_blocks.h"

#include <QSize>

namespace platform {

/**
 * For a JPEG 2000 file; empty if it is a bare codestream, or contains a table of file offsets that would become wrong.
 */
QByteArray jpeg2000WithBlocks(const QByteArray &file, const ContainerBlocks &blocks);
/** The size of its picture; empty if it does not say. */
QSize jpeg2000SizeOf(const QByteArray &file);

/** For a JPEG XL file, which gets a container if it is a bare codestream. IPTC has no place in it. */
QByteArray jpegXlWithBlocks(const QByteArray &file, const ContainerBlocks &blocks);
/** EXIF and XMP of a JPEG XL file. Compressed ones are not read. */
ContainerBlocks jpegXlBlocks(const QByteArray &file);

/** An XMP packet as that of the document; empty if the end of the file is not as simple as that of our own. */
QByteArray pdfWithXmp(const QByteArray &file, const QByteArray &xmp);

} // namespace platform
