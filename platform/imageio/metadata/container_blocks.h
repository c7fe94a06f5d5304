#pragma once

// Inside platform/ only: the blocks of metadata in files that the metadata library does not support, or rejects for
// other faults.

#include <QByteArray>

namespace platform {

/** Each may be empty. */
struct ContainerBlocks
{
    QByteArray exif; ///< TIFF header first
    QByteArray xmp;  ///< the packet
    QByteArray iptc; ///< the records
};

/** The boxes of a JPEG 2000 file, even if it is otherwise damaged. Never reads outside @p bytes. */
ContainerBlocks jpeg2000Blocks(const QByteArray &bytes);

/** The application block of a GIF file that contains XMP, plain or in sub-blocks; only XMP is supported there. */
ContainerBlocks gifBlocks(const QByteArray &bytes);

/** True for a PSB file, which the metadata library takes for a damaged PSD. */
bool isLargePhotoshop(const QByteArray &bytes);

/** The blocks among a Photoshop file's resources. */
ContainerBlocks photoshopBlocks(const QByteArray &bytes);

/** The XMP packet of a PNG, TIFF or WebP file; empty if there is none, or if it is compressed. */
QByteArray xmpPacketOf(const QByteArray &bytes);

} // namespace platform
