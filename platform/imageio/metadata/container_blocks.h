#pragma once

// Inside platform/ only: the blocks of metadata in files that the metadata library does not read, or refuses for other faults.

#include <QByteArray>

namespace platform {

/** Each may be empty. */
struct ContainerBlocks
{
    QByteArray exif; ///< TIFF header first
    QByteArray xmp;  ///< the packet
    QByteArray iptc; ///< the records
};

/** The boxes of a JPEG 2000 file, whatever else is wrong with it. Never reads outside @p bytes. */
ContainerBlocks jpeg2000Blocks(const QByteArray &bytes);

/** The application block of a GIF file that holds XMP, as it is or cut into pieces; only XMP is known there. */
ContainerBlocks gifBlocks(const QByteArray &bytes);

/** True for a PSB file, which the metadata library takes for a damaged PSD. */
bool isLargePhotoshop(const QByteArray &bytes);

/** What a Photoshop file embeds among its resources. */
ContainerBlocks photoshopBlocks(const QByteArray &bytes);

/** The XMP packet of a PNG, TIFF or WebP file; empty where there is none, or where it is compressed. */
QByteArray xmpPacketOf(const QByteArray &bytes);

} // namespace platform
