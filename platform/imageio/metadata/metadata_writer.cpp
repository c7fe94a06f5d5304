#include "platform/imageio/bytes/deflate.h"
#include "platform/imageio/exif/tiff_graft.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/metadata/carried_xmp.h"
#include "platform/imageio/metadata/container_writer.h"
#include "platform/imageio/metadata/exif_block.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/parts/gif_blocks.h"
#include "platform/imageio/parts/webp_chunks.h"
#include "platform/imageio/png/png_chunks.h"
#include "platform/imageio/png/png_exif_text.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/xmp/xmp_bounds.h"

#include <QtEndian>

#include <algorithm>
#include <exception>

namespace platform {
namespace {

constexpr qsizetype largestSegment = 0xffff - 2;

void appendSegment(QByteArray &out, uchar marker, const QByteArray &payload)
{
    if (payload.isEmpty() || payload.size() > largestSegment)
        return;
    char length[2];
    qToBigEndian<quint16>(quint16(payload.size() + 2), length);
    out.append('\xff').append(char(marker)).append(length, 2).append(payload);
}

/** The result of one block's maker, or nothing if it throws: the other blocks are written all the same. */
template<typename Maker> QByteArray madeOrNothing(Maker make)
{
    try {
        return make();
    } catch (const std::exception &) {
        return {};
    }
}

QByteArray xmpPayload(const Metadata::Blocks &blocks, QSize pixels)
{
    const QByteArray packet = xmpPacket(blocks, pixels);
    return packet.isEmpty() ? packet : QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + packet;
}

/** IPTC as one Photoshop resource; empty if there is none. */
QByteArray iptcResources(const Metadata::Blocks &blocks)
{
    if (blocks.iptc.empty())
        return {};
    const Exiv2::DataBuf resources = Exiv2::Photoshop::setIptcIrb(nullptr, 0, blocks.iptc);
    return {reinterpret_cast<const char *>(resources.pData_), std::max(0L, resources.size_)};
}

QByteArray iptcPayload(const Metadata::Blocks &blocks)
{
    const QByteArray resources = iptcResources(blocks);
    return resources.isEmpty() ? resources : QByteArray("Photoshop 3.0\0", 14) + resources;
}

/** In order of position. */
QList<JpegSegments::Range> replacedSegments(const JpegSegments &segments, Carried carried)
{
    QList<JpegSegments::Range> replaced = segments.metadata;
    if (carried == Carried::Everything)
        replaced += segments.comments;
    std::sort(replaced.begin(), replaced.end(), [](const auto &a, const auto &b) { return a.start < b.start; });
    return replaced;
}

QByteArray writtenIntoJpeg(const Metadata::Blocks &blocks, const QByteArray &encoded, const JpegSegments &segments,
                           Carried carried)
{
    const QByteArray exif = encodeExifBlock(blocks, segments.size, blocks.byteOrder, largestSegment - 6);
    QByteArray out;
    out.reserve(encoded.size() + exif.size() + qsizetype(blocks.xmpPacket.size()) + 4096);
    out.append(encoded.constData(), segments.insertAt);
    if (!exif.isEmpty())
        appendSegment(out, 0xe1, QByteArray("Exif\0\0", 6) + exif);
    appendSegment(out, 0xe1, madeOrNothing([&] { return xmpPayload(blocks, segments.size); }));
    appendSegment(out, 0xed, madeOrNothing([&] { return iptcPayload(blocks); }));
    for (const QString &comment : blocks.comments)
        appendSegment(out, 0xfe, comment.toUtf8());
    qsizetype position = segments.insertAt;
    for (const JpegSegments::Range &range : replacedSegments(segments, carried)) {
        out.append(encoded.constData() + position, range.start - position);
        position = range.start + range.size;
    }
    return out.append(encoded.constData() + position, encoded.size() - position);
}

/** The metadata for a TIFF file of a given shape. */
GraftedBlocks graftedBlocks(const Metadata::Blocks &blocks, const TiffShape &shape)
{
    constexpr qsizetype largestBlock = 32 << 20;
    const Exiv2::ByteOrder own = shape.littleEndian ? Exiv2::littleEndian : Exiv2::bigEndian;
    const Exiv2::ByteOrder order = shape.hasByteSamples ? blocks.byteOrder : own;
    return {encodeExifBlock(blocks, shape.pixels, order, largestBlock),
            madeOrNothing([&] { return xmpPacket(blocks, shape.pixels); }),
            madeOrNothing([&] { return iptcRecords(blocks); })};
}

/** Empty if the file is not of the plain kind that this supports. */
QByteArray graftedIntoTiff(const Metadata::Blocks &blocks, const QByteArray &encoded)
{
    const TiffShape shape = tiffShape(encoded);
    return shape.valid ? graftIntoTiff(encoded, graftedBlocks(blocks, shape)) : QByteArray();
}

QByteArray contentOf(Exiv2::Image &image)
{
    Exiv2::BasicIo &io = image.io();
    if (io.open() != 0)
        return {};
    const Exiv2::byte *data = io.mmap();
    QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(io.size()));
    io.munmap();
    io.close();
    return bytes;
}

/** For all other TIFF files. Throws if exiv2 cannot do it. */
QByteArray rewrittenTiff(const Metadata::Blocks &blocks, const QByteArray &encoded, MakerNotes makerNotes)
{
    const auto image =
        Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(encoded.constData()), long(encoded.size()));
    image->readMetadata();
    const QSize pixels(image->pixelWidth(), image->pixelHeight());
    Exiv2::ExifData &exif = image->exifData();
    for (const Exiv2::Exifdatum &tag : exifForNewFile(blocks.exif, pixels, makerNotes)) {
        const auto there = exif.findKey(Exiv2::ExifKey(tag.key()));
        if (there == exif.end())
            exif.add(tag);
        else
            there->setValue(&tag.value());
    }
    image->setIptcData(blocks.iptc);
    const QByteArray packet = madeOrNothing([&] { return xmpPacket(blocks, pixels); });
    image->clearXmpData();
    if (!packet.isEmpty() && isDigestibleXmp(packet) &&
        Exiv2::XmpParser::decode(image->xmpData(), packet.toStdString()) == 0)
        image->setXmpPacket(packet.toStdString());
    image->writeMetadata();
    return contentOf(*image);
}

/** Throws, or returns nothing, if it cannot be done. */
QByteArray writtenIntoTiff(const Metadata::Blocks &blocks, const QByteArray &encoded, MakerNotes makerNotes)
{
    const QByteArray grafted = graftedIntoTiff(blocks, encoded);
    return grafted.isEmpty() ? rewrittenTiff(blocks, encoded, makerNotes) : grafted;
}

/**
 * The text of a raw profile: name, length, then lines of hexadecimal digits. This is the only way in which PNG can hold
 * IPTC.
 */
QByteArray rawProfile(const QByteArray &name, const QByteArray &bytes)
{
    constexpr qsizetype digitsInLine = 72;
    const QByteArray digits = bytes.toHex();
    QByteArray text = '\n' + name + '\n' + QByteArray::number(bytes.size()).rightJustified(8) + '\n';
    for (qsizetype at = 0; at < digits.size(); at += digitsInLine)
        text += digits.mid(at, digitsInLine) + '\n';
    return text;
}

QByteArray writtenIntoPng(const Metadata::Blocks &blocks, const QByteArray &encoded, const PngParts &parts)
{
    constexpr qsizetype largestBlock = 32 << 20;
    const QByteArray exif = encodeExifBlock(blocks, parts.pixels, blocks.byteOrder, largestBlock);
    const QByteArray xmp = madeOrNothing([&] { return xmpPacket(blocks, parts.pixels); });
    const QByteArray iptc = madeOrNothing([&] { return iptcResources(blocks); });
    QByteArray out;
    out.reserve(encoded.size() + exif.size() + xmp.size() + blocks.pngChunks.size() + 3 * iptc.size() + 4096);
    out.append(encoded.constData(), parts.pixelsAt);
    out.append(blocks.pngChunks);
    if (!exif.isEmpty())
        appendPngChunk(out, "eXIf", exif);
    if (!xmp.isEmpty()) // not compressed, in no language
        appendPngChunk(out, "iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + xmp);
    for (const QString &comment : pngComments(blocks.pngChunks).isEmpty() ? blocks.comments : QStringList())
        appendPngChunk(out, "iTXt", QByteArray("Comment\0\0\0\0\0", 12) + comment.toUtf8());
    if (!iptc.isEmpty())
        appendPngChunk(out, "zTXt", QByteArray("Raw profile type iptc\0\0", 23) + deflated(rawProfile("iptc", iptc)));
    return out.append(encoded.constData() + parts.pixelsAt, encoded.size() - parts.pixelsAt);
}

Result<QByteArray> notHeld()
{
    return failure(ErrorCode::Unsupported, QStringLiteral("Cannot write metadata: this type of file does not hold it"));
}

/** The blocks as they go into a JPEG, a TIFF or a PNG. */
Metadata::Blocks blocksToCarry(const Metadata::Blocks &known, Carried carried)
{
    Metadata::Blocks blocks = known;
    if (carried == Carried::Blocks) {
        blocks.comments.clear();
        return blocks;
    }
    blocks.xmpPacket = madeOrNothing([&] { return carriedXmp(known, {}, {}); }).toStdString();
    if (blocks.xmpPacket.empty())
        blocks.xmp.clear();
    return blocks;
}

/** For a type that is a chain of parts; the size of its picture comes from the file, or else from @p pixels. */
Result<QByteArray> writtenIntoContainer(const Metadata &metadata, const QByteArray &encoded, QSize pixels)
{
    using Holds = Metadata::Holds;
    QByteArray written;
    switch (platform::contentOf(encoded.left(contentHeadBytes))) {
    case Content::Jpeg2000:
        written = jpeg2000WithBlocks(encoded, metadata.blocksFor(jpeg2000SizeOf(encoded), Holds::ExifXmpIptc));
        break;
    case Content::JpegXl:
        written = jpegXlWithBlocks(encoded, metadata.blocksFor(pixels, Holds::ExifXmp));
        break;
    case Content::Webp:
        if (const auto chunks = webpChunksOf(encoded)) {
            const ContainerBlocks blocks = metadata.blocksFor(webpSizeOf(*chunks), Holds::ExifXmp);
            written = webpWithMetadata(*chunks, blocks.exif, blocks.xmp);
        }
        break;
    case Content::Gif:
        if (const GifParts parts = gifPartsOf(encoded); parts.valid)
            written =
                gifWithMetadata(encoded, parts, metadata.blocksFor(parts.screen, Holds::Xmp).xmp, metadata.comments());
        break;
    case Content::Pdf:
        if (const QByteArray xmp = metadata.blocksFor(pixels, Holds::Xmp).xmp; !xmp.isEmpty())
            written = pdfWithXmp(encoded, xmp);
        break;
    default:
        return notHeld();
    }
    return written.isEmpty() ? encoded : written;
}

} // namespace

ContainerBlocks Metadata::blocksFor(QSize pixels, Holds holds) const
{
    if (!m_blocks)
        return {};
    constexpr qsizetype largestBlock = 32 << 20;
    startMetadataLibrary();
    ContainerBlocks made;
    const bool holdsExif = holds != Holds::Xmp;
    const bool holdsIptc = holds == Holds::ExifXmpIptc;
    if (holdsExif)
        made.exif = encodeExifBlock(*m_blocks, pixels, m_blocks->byteOrder, largestBlock);
    if (holdsIptc)
        made.iptc = madeOrNothing([&] { return iptcRecords(*m_blocks); });
    made.xmp = madeOrNothing([&] { return carriedXmp(*m_blocks, pixels, {!holdsExif, !holdsIptc}); });
    return made;
}

Result<QByteArray> Metadata::writtenInto(const QByteArray &encoded, Carried carried, QSize pixels) const
{
    const JpegSegments segments = findJpegSegments(encoded);
    const PngParts parts = findPngParts(encoded);
    if (!segments.valid && !parts.valid && !TiffReader(encoded).isValid())
        return carried == Carried::Everything ? writtenIntoContainer(*this, encoded, pixels) : notHeld();
    const bool hasOnlyChunks = isEmpty() && m_blocks && parts.valid && !m_blocks->pngChunks.isEmpty();
    const bool hasOnlyComments = carried == Carried::Everything && !comments().isEmpty();
    if (isEmpty() && !hasOnlyChunks && !hasOnlyComments)
        return encoded;
    startMetadataLibrary();
    const Blocks blocks = blocksToCarry(*m_blocks, carried);
    if (parts.valid)
        return writtenIntoPng(blocks, encoded, parts);
    for (const MakerNotes makerNotes : {MakerNotes::Keep, MakerNotes::Drop}) {
        try {
            const QByteArray written = segments.valid ? writtenIntoJpeg(blocks, encoded, segments, carried)
                                                      : writtenIntoTiff(blocks, encoded, makerNotes);
            if (!written.isEmpty())
                return written;
        } catch (const std::exception &) {
            // With less, or in the end with nothing: the picture itself must not be lost.
        }
    }
    return encoded;
}

std::optional<FileEnds> Metadata::writtenAround(const FileEnds &bare, qint64 pixelBytes) const
{
    const QByteArray file = bare.head + bare.tail;
    const TiffShape shape = tiffShape(file);
    if (isEmpty() || !shape.valid)
        return std::nullopt;
    startMetadataLibrary();
    try {
        const FileEnds ends = graftAroundPixels(file, pixelBytes, graftedBlocks(*m_blocks, shape));
        return ends.tail.isEmpty() ? std::nullopt : std::optional(ends);
    } catch (const std::exception &) {
        return std::nullopt; // writtenInto() knows what to leave out
    }
}

} // namespace platform
