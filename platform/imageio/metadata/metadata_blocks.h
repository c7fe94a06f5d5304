#pragma once

// Inside platform/ only: the contents of a Metadata.

#include "platform/imageio/metadata/metadata.h"

#include <exiv2/exiv2.hpp>

#include <string>

namespace platform {

struct Metadata::Blocks
{
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
    std::string xmpPacket; ///< the packet as it was read, so that nothing of it is lost
    /** The EXIF block as it was read, TIFF header first; empty if the file is a TIFF or the block is not available. */
    QByteArray exifBlock;
    Exiv2::ByteOrder byteOrder = Exiv2::littleEndian;
    /** Chunks of a PNG file that can be copied to another: texts, gamma, primaries. */
    QByteArray pngChunks;
    QStringList comments; ///< of the file itself, not of EXIF

    static Metadata withComments(const Metadata &metadata, const QStringList &comments)
    {
        return metadata.withComments(comments);
    }
};

/** Initialises exiv2 once: its XMP parser, its support of HEIC and AVIF, and no output on standard error. */
void startMetadataLibrary();

/** The value of a tag that was removed is nothing at all. */
inline const Exiv2::Exifdatum *findTag(const Exiv2::ExifData &exif, const char *key)
{
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    return found == exif.end() ? nullptr : &*found;
}

/** The bytes of a tag's value in @p order. */
QByteArray rawBytes(const Exiv2::Exifdatum &tag, Exiv2::ByteOrder order);

} // namespace platform
