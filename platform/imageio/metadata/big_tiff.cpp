#include "platform/imageio/metadata/big_tiff.h"

#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <exception>

namespace platform {
namespace {

/** Adds the entries of one directory that exiv2 can represent. */
void addTags(Metadata::Blocks &blocks, const TiffReader &reader, const TiffDirectory &directory, const char *group)
{
    constexpr qint64 longestValue = 1 << 20;
    for (const TiffEntry &entry : directory.entries) {
        const QByteArray bytes = reader.value(entry, longestValue);
        if (bytes.isEmpty() || entry.type > tiffType::lastClassicType)
            continue;
        try {
            const auto value = Exiv2::Value::create(Exiv2::TypeId(entry.type));
            const auto *data = reinterpret_cast<const Exiv2::byte *>(bytes.constData());
            if (value->read(data, long(bytes.size()), blocks.byteOrder) == 0)
                blocks.exif.add(Exiv2::ExifKey(entry.tag, group), value.get());
        } catch (const std::exception &) {
            // Skipped: exiv2 cannot represent this value.
        }
    }
}

} // namespace

bool isBigTiff(const QByteArray &bytes)
{
    const TiffReader reader(bytes);
    return reader.isValid() && !reader.isClassic();
}

void readBigTiff(Metadata::Blocks &blocks, const QByteArray &bytes)
{
    constexpr auto end = TiffReader::End::MayBeCut;
    const TiffReader reader(bytes);
    blocks.byteOrder = reader.form().little ? Exiv2::littleEndian : Exiv2::bigEndian;
    TiffDirectory first = reader.directory(reader.firstOffset(), end);
    const TiffDirectory exif = reader.directory(reader.integer(first, tiffTag::exifDirectory), end);
    const TiffDirectory gps = reader.directory(reader.integer(first, tiffTag::gpsDirectory), end);
    first.entries.removeIf([](const TiffEntry &entry) {
        return entry.tag == tiffTag::exifDirectory || entry.tag == tiffTag::gpsDirectory;
    });
    addTags(blocks, reader, first, "Image");
    addTags(blocks, reader, exif, "Photo");
    addTags(blocks, reader, gps, "GPSInfo");
    if (const Exiv2::Exifdatum *tag = findTag(blocks.exif, "Exif.Image.XMLPacket")) {
        blocks.xmpPacket = rawBytes(*tag, Exiv2::littleEndian).toStdString();
        Exiv2::XmpParser::decode(blocks.xmp, blocks.xmpPacket);
    }
}

} // namespace platform
