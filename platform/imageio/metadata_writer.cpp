#include "platform/imageio/exif_block.h"
#include "platform/imageio/jpeg_segments.h"
#include "platform/imageio/metadata_blocks.h"

#include <QtEndian>

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

/** XMP without what it says of the old picture's size and orientation; the packet as it was where it says nothing. */
std::string xmpForNewFile(const Metadata::Blocks &blocks)
{
    Exiv2::XmpData xmp = blocks.xmp;
    bool changed = blocks.xmpPacket.empty();
    for (auto entry = xmp.begin(); entry != xmp.end();) {
        const std::string key = entry->key();
        const bool stale = key == "Xmp.tiff.ImageWidth" || key == "Xmp.tiff.ImageLength" ||
                           key == "Xmp.exif.PixelXDimension" || key == "Xmp.exif.PixelYDimension" ||
                           key.rfind("Xmp.xmp.Thumbnails", 0) == 0;
        changed = changed || stale;
        entry = stale ? xmp.erase(entry) : ++entry;
    }
    if (!changed)
        return blocks.xmpPacket;
    std::string packet;
    if (xmp.empty() || Exiv2::XmpParser::encode(packet, xmp, Exiv2::XmpParser::useCompactFormat) != 0)
        return {};
    return packet;
}

QByteArray xmpPayload(const Metadata::Blocks &blocks)
{
    const std::string packet = xmpForNewFile(blocks);
    if (packet.empty())
        return {};
    return QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + QByteArray(packet.data(), qsizetype(packet.size()));
}

QByteArray iptcPayload(const Metadata::Blocks &blocks)
{
    if (blocks.iptc.empty())
        return {};
    const Exiv2::DataBuf resources = Exiv2::Photoshop::setIptcIrb(nullptr, 0, blocks.iptc);
    if (resources.size_ <= 0)
        return {};
    return QByteArray("Photoshop 3.0\0", 14) +
           QByteArray(reinterpret_cast<const char *>(resources.pData_), resources.size_);
}

QByteArray writtenIntoJpeg(const Metadata::Blocks &blocks, const QByteArray &encoded, const JpegSegments &segments)
{
    const QByteArray exif = encodeExifBlock(blocks, segments.size, largestSegment - 6);
    QByteArray out;
    out.reserve(encoded.size() + exif.size() + qsizetype(blocks.xmpPacket.size()) + 4096);
    out.append(encoded.constData(), segments.insertAt);
    if (!exif.isEmpty())
        appendSegment(out, 0xe1, QByteArray("Exif\0\0", 6) + exif);
    appendSegment(out, 0xe1, xmpPayload(blocks));
    appendSegment(out, 0xed, iptcPayload(blocks));
    qsizetype position = segments.insertAt;
    for (const JpegSegments::Range &range : segments.metadata) {
        out.append(encoded.constData() + position, range.start - position);
        position = range.start + range.size;
    }
    return out.append(encoded.constData() + position, encoded.size() - position);
}

bool isTiff(const QByteArray &bytes)
{
    return bytes.startsWith(QByteArray("II*\0", 4)) || bytes.startsWith(QByteArray("MM\0*", 4));
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

/** Throws where exiv2 cannot do it. */
QByteArray writtenIntoTiff(const Metadata::Blocks &blocks, const QByteArray &encoded, MakerNotes makerNotes)
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
    const std::string packet = xmpForNewFile(blocks);
    image->clearXmpData();
    if (!packet.empty() && Exiv2::XmpParser::decode(image->xmpData(), packet) == 0)
        image->setXmpPacket(packet);
    image->writeMetadata();
    return contentOf(*image);
}

} // namespace

Result<QByteArray> Metadata::writtenInto(const QByteArray &encoded) const
{
    const JpegSegments segments = findJpegSegments(encoded);
    if (!segments.valid && !isTiff(encoded))
        return failure(ErrorCode::Unsupported, QStringLiteral("Cannot write metadata: neither a JPEG nor a TIFF file"));
    if (isEmpty())
        return encoded;
    startMetadataLibrary();
    for (const MakerNotes makerNotes : {MakerNotes::Keep, MakerNotes::Drop}) {
        try {
            return segments.valid ? writtenIntoJpeg(*m_blocks, encoded, segments)
                                  : writtenIntoTiff(*m_blocks, encoded, makerNotes);
        } catch (const std::exception &) {
            // With less, or at the end with nothing: the picture itself is what must not be lost.
        }
    }
    return encoded;
}

} // namespace platform
