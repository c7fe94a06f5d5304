#pragma once

// Inside platform/ only.

#include "platform/imageio/bytes/file_ends.h"

#include <QByteArray>
#include <QSize>

namespace platform {

/** What the metadata writer must know about an encoded TIFF file with one picture. */
struct TiffShape
{
    bool valid = false; ///< a classic TIFF with one directory
    bool littleEndian = true;
    QSize pixels;
    /** Its pixels are single bytes, so that the file can change its byte order. */
    bool hasByteSamples = false;
};

TiffShape tiffShape(const QByteArray &encoded);

/** The blocks for a file; each may be empty. */
struct GraftedBlocks
{
    QByteArray exif; ///< TIFF header first; its byte order becomes the file's
    QByteArray xmp;  ///< the packet
    QByteArray iptc; ///< the records
};

/**
 * The encoded TIFF file with metadata. The EXIF block becomes the head of the file, so that every offset in it stays
 * valid, including those in maker notes; the pixels follow unchanged; a new directory is at the end. What describes the
 * storage of the pixels comes from the encoded file, everything else from the block if it has it.
 *
 * Empty if that cannot be done: another byte order with samples of several bytes, several directories, or a file of
 * more than 4 GB. One copy of the file is made.
 */
QByteArray graftIntoTiff(const QByteArray &encoded, const GraftedBlocks &blocks);

/**
 * The same around pixels that do not exist yet.
 *
 * @param bare        the encoded file without its pixels, its tail directly after its header, with the pixels belonging
 *                    between the two: offsets of strips are those of the whole file, all others are valid in @p bare
 * @param pixelBytes  how many bytes were omitted; an odd number is followed by a zero
 */
FileEnds graftAroundPixels(const QByteArray &bare, qint64 pixelBytes, const GraftedBlocks &blocks);

} // namespace platform
