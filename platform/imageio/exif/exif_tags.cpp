#include "platform/imageio/exif/exif_tags.h"

#include "platform/imageio/exif/user_comment.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

namespace platform {
namespace {

QByteArray valueOf(const TiffReader &reader, const TiffDirectory &directory, quint16 tag, qint64 longest)
{
    const TiffEntry *entry = directory.find(tag);
    return entry ? reader.value(*entry, longest) : QByteArray();
}

QString textOf(const TiffReader &reader, const TiffDirectory &directory, quint16 tag)
{
    constexpr qint64 longestText = 1024;
    QByteArray bytes = valueOf(reader, directory, tag, longestText);
    if (const qsizetype end = bytes.indexOf('\0'); end >= 0)
        bytes.truncate(end);
    return decodeUnmarkedText(bytes).trimmed();
}

} // namespace

ExifTags readExifTags(QIODevice &block)
{
    ExifTags tags;
    const TiffReader reader(block);
    if (!reader.isClassic())
        return tags;
    constexpr auto end = TiffReader::End::MayBeCut;
    constexpr qint64 longestPacket = 16 << 20;
    const TiffDirectory first = reader.directory(reader.firstOffset(), end);
    tags.make = textOf(reader, first, tiffTag::make);
    tags.model = textOf(reader, first, tiffTag::model);
    tags.changed = textOf(reader, first, tiffTag::changed);
    tags.xmp = valueOf(reader, first, tiffTag::xmp, longestPacket);
    const quint64 orientation = reader.integer(first, tiffTag::orientation);
    constexpr quint64 lastOrientation = 8;
    tags.orientation = orientation <= lastOrientation ? int(orientation) : 0;
    const TiffDirectory exif = reader.directory(reader.integer(first, tiffTag::exifDirectory), end);
    tags.original = textOf(reader, exif, tiffTag::original);
    tags.digitized = textOf(reader, exif, tiffTag::digitized);
    tags.lens = textOf(reader, exif, tiffTag::lens);
    return tags;
}

} // namespace platform
