#include "platform/imageio/metadata/container_blocks.h"

#include "platform/graphics/pixels.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/parts/boxes.h"
#include "platform/imageio/parts/gif_blocks.h"
#include "platform/imageio/photoshop/photoshop_file.h"
#include "platform/imageio/png/png_exif_text.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <QBuffer>
#include <QtEndian>

#include <algorithm>

namespace platform {
namespace {

constexpr qsizetype largestBlock = 64 << 20;

const QByteArray exifIdentifier("JpgTiffExif->JP2");
const QByteArray xmpIdentifier = QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac");
const QByteArray iptcIdentifier = QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38");

/** The first of its kind is used. */
void take(QByteArray &block, const QByteArray &box, const QByteArray &identifier)
{
    if (block.isEmpty() && box.startsWith(identifier) && box.size() <= largestBlock)
        block = box.mid(identifier.size());
}

QByteArray xmpOfPng(const QByteArray &bytes)
{
    constexpr qsizetype frame = 12;
    for (qsizetype at = 8; at + frame <= bytes.size();) {
        const auto size = qsizetype(qFromBigEndian<quint32>(bytes.constData() + at));
        if (size > bytes.size() - at - frame)
            break;
        const auto data = QByteArray::fromRawData(bytes.constData() + at + 8, size);
        if (const auto packet = xmpOfPngText(bytes.mid(at + 4, 4), data))
            return packet->mid(std::max<qsizetype>(0, packet->indexOf('<')));
        at += frame + size;
    }
    return {};
}

QByteArray xmpOfJpeg(const QByteArray &bytes)
{
    static const QByteArray name("http://ns.adobe.com/xap/1.0/\0", 29);
    constexpr qsizetype marker = 4; // and the length
    for (const JpegSegments::Range &segment : findJpegSegments(bytes).metadata)
        if (bytes.mid(segment.start + marker, name.size()) == name)
            return bytes.mid(segment.start, segment.size).mid(marker + name.size());
    return {};
}

QByteArray xmpOfWebp(const QByteArray &bytes)
{
    constexpr qsizetype frame = 8;
    for (qsizetype at = 12; at + frame <= bytes.size();) {
        const auto size = qsizetype(qFromLittleEndian<quint32>(bytes.constData() + at + 4));
        if (bytes.mid(at, 4) == "XMP ")
            return bytes.mid(at + frame, size);
        at += frame + size + size % 2;
    }
    return {};
}

QByteArray xmpOfTiff(const QByteArray &bytes)
{
    const TiffReader reader(bytes);
    const TiffDirectory first = reader.first();
    const TiffEntry *packet = first.find(tiffTag::xmp);
    return packet ? reader.value(*packet, reader.size()) : QByteArray();
}

} // namespace

QByteArray xmpPacketOf(const QByteArray &bytes)
{
    switch (contentOf(bytes.left(contentHeadBytes))) {
    case Content::Jpeg:
        return xmpOfJpeg(bytes);
    case Content::Png:
        return xmpOfPng(bytes);
    case Content::Webp:
        return xmpOfWebp(bytes);
    case Content::Tiff:
        return xmpOfTiff(bytes);
    default:
        return {};
    }
}

ContainerBlocks jpeg2000Blocks(const QByteArray &bytes)
{
    ContainerBlocks blocks;
    for (const Box &box : boxesBetween(bytes, 0, bytes.size()).boxes)
        if (box.name == "uuid") {
            const QByteArray data = dataOf(bytes, box);
            take(blocks.exif, data, exifIdentifier);
            take(blocks.xmp, data, xmpIdentifier);
            take(blocks.iptc, data, iptcIdentifier);
        }
    const QByteArray name("Exif\0\0", 6); // as in a JPEG, by mistake
    if (blocks.exif.startsWith(name))
        blocks.exif.remove(0, name.size());
    return blocks;
}

ContainerBlocks gifBlocks(const QByteArray &bytes)
{
    for (const GifBlock &block : gifPartsOf(bytes).blocks)
        if (block.kind == GifBlock::Xmp)
            return {{}, gifXmpOf(bytes, block), {}};
    return {};
}

bool isLargePhotoshop(const QByteArray &bytes)
{
    return bytes.startsWith(QByteArrayView("8BPS\0\2", 6));
}

ContainerBlocks photoshopBlocks(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    try {
        const PhotoshopFile file = readPhotoshopFile(buffer);
        return {file.exif, file.xmp, file.iptc};
    } catch (const vips::VError &) {
        return {}; // the caller who wants the pixels is told why
    }
}

} // namespace platform
