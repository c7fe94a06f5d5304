#pragma once

// Inside platform/ only: what a Metadata holds.

#include "platform/imageio/metadata/metadata.h"

#include <exiv2/exiv2.hpp>

#include <string>

namespace platform {

struct Metadata::Blocks
{
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    std::string xmpPacket; ///< the packet as it was read, so that nothing of it is lost on the way
    /** The EXIF block as it was read, TIFF header first; empty where the file is a TIFF or the block is not at hand. */
    QByteArray exifBlock;
    Exiv2::ByteOrder byteOrder = Exiv2::littleEndian;
    /** Chunks of a PNG file that another PNG file can have too: texts, gamma, primaries. */
    QByteArray pngChunks;
    QStringList comments; ///< of the file itself, not of EXIF
};

/** Starts exiv2 once: its XMP parser, its reader of HEIC and AVIF, and no word on standard error. */
void startMetadataLibrary();

/** The value of a tag that is no longer in the metadata is nothing at all. */
inline const Exiv2::Exifdatum *findTag(const Exiv2::ExifData &exif, const char *key)
{
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    return found == exif.end() ? nullptr : &*found;
}

/** The bytes of a tag's value in @p order. */
QByteArray rawBytes(const Exiv2::Exifdatum &tag, Exiv2::ByteOrder order);

} // namespace platform
