#include "platform/imageio/metadata/container_blocks.h"

#include "platform/graphics/pixels.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
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

struct Box
{
    QByteArray name;
    qsizetype dataAt = 0;
    qsizetype next = 0; ///< 0 where the box does not fit into the file
};

Box boxAt(const QByteArray &bytes, qsizetype at)
{
    qsizetype frame = 8;
    const qsizetype left = bytes.size() - at;
    if (left < frame)
        return {};
    const char *head = bytes.constData() + at;
    quint64 size = qFromBigEndian<quint32>(head);
    if (size == 0)
        size = quint64(left);
    if (size == 1 && left >= 16) {
        frame = 16;
        size = qFromBigEndian<quint64>(head + 8);
    }
    const bool fits = size >= quint64(frame) && size <= quint64(left);
    return {bytes.mid(at + 4, 4), at + frame, fits ? at + qsizetype(size) : 0};
}

/** The first of its kind counts. */
void take(QByteArray &block, const QByteArray &box, const QByteArray &identifier)
{
    if (block.isEmpty() && box.startsWith(identifier) && box.size() <= largestBlock)
        block = box.mid(identifier.size());
}

/** Steps over the pieces of a GIF block from @p at on; the position behind the one of no length that ends them. */
qsizetype behindPieces(const QByteArray &bytes, qsizetype at)
{
    while (at < bytes.size() && bytes.at(at) != 0)
        at += 1 + uchar(bytes.at(at));
    return at + 1;
}

/** What the pieces between two positions hold, without their lengths. */
QByteArray joinedPieces(const QByteArray &bytes, qsizetype at, qsizetype end)
{
    QByteArray joined;
    for (; at < end && bytes.at(at) != 0; at += 1 + uchar(bytes.at(at)))
        joined += bytes.mid(at + 1, uchar(bytes.at(at)));
    return joined;
}

/** The packet stands there whole, its letters taken for lengths, before bytes that lead every reader to the end. */
QByteArray xmpOfGifBlock(const QByteArray &bytes, qsizetype at, qsizetype end)
{
    if (end - at > largestBlock)
        return {};
    const QByteArray whole = bytes.mid(at, end - at);
    if (!whole.startsWith('<')) // written in pieces like everything else
        return joinedPieces(bytes, at, end);
    const qsizetype trailer = whole.lastIndexOf(QByteArrayView("\x01\xff\xfe\xfd"));
    return trailer < 0 ? QByteArray() : whole.left(trailer);
}

qsizetype behindColours(const QByteArray &bytes, qsizetype flagsAt, qsizetype at)
{
    const int flags = flagsAt < bytes.size() ? uchar(bytes.at(flagsAt)) : 0;
    return (flags & 0x80) != 0 ? at + 3 * (qsizetype(2) << (flags & 7)) : at;
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
    for (qsizetype at = 0; at < bytes.size();) {
        const Box box = boxAt(bytes, at);
        if (box.next == 0)
            break;
        if (box.name == "uuid") {
            const auto data = QByteArray::fromRawData(bytes.constData() + box.dataAt, box.next - box.dataAt);
            take(blocks.exif, data, exifIdentifier);
            take(blocks.xmp, data, xmpIdentifier);
            take(blocks.iptc, data, iptcIdentifier);
        }
        at = box.next;
    }
    const QByteArray name("Exif\0\0", 6); // as in a JPEG, by mistake
    if (blocks.exif.startsWith(name))
        blocks.exif.remove(0, name.size());
    return blocks;
}

ContainerBlocks gifBlocks(const QByteArray &bytes)
{
    constexpr qsizetype screenBytes = 13;
    constexpr char extension = 0x21;
    constexpr char picture = 0x2c;
    static const QByteArray application("\xff\x0bXMP DataXMP", 13);
    qsizetype at = behindColours(bytes, 10, screenBytes);
    while (at + 2 < bytes.size()) {
        if (bytes.at(at) == extension) {
            const bool isXmp = bytes.mid(at + 1, application.size()) == application;
            const qsizetype data = at + 1 + application.size();
            const qsizetype next = behindPieces(bytes, isXmp ? data : at + 2);
            if (isXmp && next <= bytes.size())
                return {{}, xmpOfGifBlock(bytes, data, next), {}};
            at = next;
        } else if (bytes.at(at) == picture) {
            constexpr qsizetype placeBytes = 10;
            at = behindPieces(bytes, behindColours(bytes, at + 9, at + placeBytes) + 1);
        } else {
            break;
        }
    }
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
        return {}; // whoever wants the pixels is told why
    }
}

} // namespace platform
