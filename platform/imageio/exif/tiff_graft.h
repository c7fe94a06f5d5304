#pragma once

// Inside platform/ only.

#include "platform/imageio/bytes/file_ends.h"

#include <QByteArray>
#include <QSize>

namespace platform {

/** What the writer of metadata has to know of an encoded TIFF file with one picture. */
struct TiffShape
{
    bool valid = false; ///< a classic TIFF with one directory
    bool littleEndian = true;
    QSize pixels;
    /** Its pixels are single bytes, so that the file can be given the other byte order. */
    bool hasByteSamples = false;
};

TiffShape tiffShape(const QByteArray &encoded);

/** The blocks that go into a file; each may be empty. */
struct GraftedBlocks
{
    QByteArray exif; ///< TIFF header first; its byte order becomes the file's
    QByteArray xmp;  ///< the packet
    QByteArray iptc; ///< the records
};

/**
 * The encoded TIFF file with metadata in it. The EXIF block becomes the head of the file, so that every offset in it
 * still holds, maker notes included; the pixels follow as they are; a new directory stands at the end. What says how
 * the pixels are stored is the encoded file's, everything else is the block's where it has it.
 *
 * Empty where that cannot be done: another byte order with samples of several bytes, several directories, or a file
 * of more than 4 GB. One copy of the file is made.
 */
QByteArray graftIntoTiff(const QByteArray &encoded, const GraftedBlocks &blocks);

/**
 * The same around pixels that are not there yet.
 *
 * @param bare        the encoded file without its pixels, its tail right behind its header, where the pixels belong between
 *                    the two: offsets of strips are the whole file's, all others hold in @p bare
 * @param pixelBytes  how many bytes were left out; an odd one is followed by a zero
 */
FileEnds graftAroundPixels(const QByteArray &bare, qint64 pixelBytes, const GraftedBlocks &blocks);

} // namespace platform
