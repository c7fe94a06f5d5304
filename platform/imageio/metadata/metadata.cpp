#include "platform/imageio/metadata/metadata.h"

#include "platform/imageio/exif/exif_in_place.h"
#include "platform/imageio/exif/user_comment.h"
#include "platform/imageio/exif/webp_exif.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/metadata/big_tiff.h"
#include "platform/imageio/metadata/container_blocks.h"
#include "platform/imageio/metadata/container_writer.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/parts/gif_blocks.h"
#include "platform/imageio/png/png_chunks.h"
#include "platform/imageio/png/png_exif_text.h"
#include "platform/imageio/xmp/xmp_bounds.h"

#include <exception>
#include <optional>

namespace platform {
namespace {

constexpr qsizetype largestBlock = 64 << 20;

Exiv2::byte *bytePointer(QByteArray &bytes)
{
    return reinterpret_cast<Exiv2::byte *>(bytes.data());
}

const Exiv2::byte *bytePointer(const QByteArray &bytes)
{
    return reinterpret_cast<const Exiv2::byte *>(bytes.constData());
}

/** The new file has other pixels, so thumbnails of the old ones are dropped. */
void dropThumbnails(Metadata::Blocks &blocks)
{
    for (auto tag = blocks.exif.begin(); tag != blocks.exif.end();) {
        const std::string group = tag->groupName();
        const bool thumbnail = group == "Thumbnail" || group == "Image2" || group == "Image3";
        tag = thumbnail ? blocks.exif.erase(tag) : ++tag;
    }
}

void readImage(Metadata::Blocks &blocks, const QByteArray &bytes)
{
    const auto image = Exiv2::ImageFactory::open(bytePointer(bytes), long(bytes.size()));
    if (!image.get())
        return;
    image->readMetadata();
    blocks.exif = image->exifData();
    blocks.iptc = image->iptcData();
    blocks.xmp = image->xmpData();
    image->writeXmpFromPacket(true); // otherwise a rebuilt packet is returned, which lacks some of it
    blocks.xmpPacket = image->xmpPacket();
    if (const Exiv2::Exifdatum *tag = findTag(blocks.exif, "Exif.Image.XMLPacket"); tag && blocks.xmpPacket.empty())
        blocks.xmpPacket = rawBytes(*tag, Exiv2::littleEndian).toStdString();
    blocks.byteOrder = image->byteOrder() == Exiv2::bigEndian ? Exiv2::bigEndian : Exiv2::littleEndian;
}

void readExifBlock(Metadata::Blocks &blocks, const QByteArray &block)
{
    if (block.size() < 8 || block.size() > largestBlock)
        return;
    const auto order = Exiv2::ExifParser::decode(blocks.exif, bytePointer(block), uint32_t(block.size()));
    blocks.byteOrder = order == Exiv2::bigEndian ? Exiv2::bigEndian : Exiv2::littleEndian;
    blocks.exifBlock = block;
}

/** For a file of a type that the library does not support; none for all others. */
std::optional<ContainerBlocks> blocksOf(const QByteArray &bytes)
{
    switch (platform::contentOf(bytes.left(contentHeadBytes))) {
    case Content::Jpeg2000:
        return jpeg2000Blocks(bytes);
    case Content::Gif:
        return gifBlocks(bytes);
    case Content::JpegXl:
        return jpegXlBlocks(bytes);
    case Content::Photoshop:
        return isLargePhotoshop(bytes) ? std::optional(photoshopBlocks(bytes)) : std::nullopt;
    default:
        return std::nullopt;
    }
}

/** For a TIFF file, without its XMP. The tags of other files are read from the blocks that contain them. */
void readTagsAlone(Metadata::Blocks &blocks, const QByteArray &bytes)
{
    if (platform::contentOf(bytes.left(contentHeadBytes)) != Content::Tiff || bytes.size() > 0xffffffffLL)
        return;
    const auto order = Exiv2::ExifParser::decode(blocks.exif, bytePointer(bytes), uint32_t(bytes.size()));
    blocks.byteOrder = order == Exiv2::bigEndian ? Exiv2::bigEndian : Exiv2::littleEndian;
}

void readXmpPacket(Metadata::Blocks &blocks, const QByteArray &packet)
{
    if (packet.isEmpty() || packet.size() > largestBlock)
        return;
    const std::string text(packet.constData(), size_t(packet.size()));
    if (!isDigestibleXmp(packet))
        blocks.xmpPacket = text;
    else if (Exiv2::XmpParser::decode(blocks.xmp, text) == 0)
        blocks.xmpPacket = text;
}

void readIptcBlock(Metadata::Blocks &blocks, const QByteArray &block)
{
    if (block.isEmpty() || block.size() > largestBlock)
        return;
    const Exiv2::byte *record = nullptr;
    uint32_t headerSize = 0;
    uint32_t size = 0;
    const Exiv2::byte *data = bytePointer(block);
    if (Exiv2::Photoshop::locateIptcIrb(data, long(block.size()), &record, &headerSize, &size) == 0)
        Exiv2::IptcParser::decode(blocks.iptc, record + headerSize, size);
    else
        Exiv2::IptcParser::decode(blocks.iptc, data, uint32_t(block.size()));
}

/**
 * Runs one reading step; an exception from a broken file means that the step found nothing more. True if nothing was
 * thrown.
 */
template<typename Step> bool attempt(Step step)
{
    try {
        step();
        return true;
    } catch (const std::exception &) {
        return false; // what was read before is kept, the rest is unintelligible
    }
}

/** A JPEG or a PNG without its EXIF; other files as they are. */
QByteArray withoutExif(const QByteArray &file, const JpegSegments &segments, const PngParts &parts)
{
    QByteArray rest = file;
    if (parts.valid)
        return rest.remove(parts.exifAt, parts.exifSize);
    for (auto range = segments.exifRanges.rbegin(); range != segments.exifRanges.rend(); ++range)
        rest.remove(range->start, range->size);
    return rest;
}

/** UTF-8, or else Latin 1: nothing says which. */
QStringList commentsOf(const QByteArray &jpeg, const JpegSegments &segments)
{
    constexpr qsizetype marker = 4; // and the length
    QStringList comments;
    for (const JpegSegments::Range &range : segments.comments) {
        QByteArray bytes = jpeg.mid(range.start + marker, range.size - marker);
        while (bytes.endsWith('\0'))
            bytes.chop(1);
        const QString text = QString::fromUtf8(bytes);
        comments.append(text.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(bytes) : text);
    }
    comments.removeAll(QString());
    return comments;
}

/** In its proper place; else among the tags of the picture itself, where some programs put all tags. */
const Exiv2::Exifdatum *commentTag(const Exiv2::ExifData &exif)
{
    const Exiv2::Exifdatum *tag = findTag(exif, "Exif.Photo.UserComment");
    return tag ? tag : findTag(exif, "Exif.Image.0x9286");
}

QSysInfo::Endian endian(Exiv2::ByteOrder order)
{
    return order == Exiv2::bigEndian ? QSysInfo::BigEndian : QSysInfo::LittleEndian;
}

} // namespace

void startMetadataLibrary()
{
    static const bool started = [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::enableBMFF(true);
        return Exiv2::XmpParser::initialize();
    }();
    Q_UNUSED(started)
}

QByteArray rawBytes(const Exiv2::Exifdatum &tag, Exiv2::ByteOrder order)
{
    const long size = tag.size();
    if (size <= 0 || size > largestBlock)
        return {};
    QByteArray bytes(size, '\0');
    const long copied = tag.copy(bytePointer(bytes), order);
    return bytes.left(copied);
}

Metadata::Metadata() = default;

Metadata Metadata::fromFileBytes(const QByteArray &bytes)
{
    startMetadataLibrary();
    auto blocks = std::make_shared<Blocks>();
    if (const std::optional<ContainerBlocks> found = blocksOf(bytes))
        return fromBlocks(found->exif, found->xmp, found->iptc).withComments(gifCommentsOf(bytes, gifPartsOf(bytes)));
    const JpegSegments segments = findJpegSegments(bytes);
    const PngParts parts = findPngParts(bytes);
    if (const QByteArray packet = xmpPacketOf(bytes); !isDigestibleXmp(packet) || !holdsDigestibleXmp(bytes)) {
        blocks->xmpPacket = packet.toStdString();
        attempt([&] { readTagsAlone(*blocks, bytes); });
        attempt([&] { readExifBlock(*blocks, segments.exif); });
    } else if (!attempt([&] { isBigTiff(bytes) ? readBigTiff(*blocks, bytes) : readImage(*blocks, bytes); })) {
        // At EXIF that it cannot read the library gives up, and ignores everything after it.
        attempt([&] { readImage(*blocks, withoutExif(bytes, segments, parts)); });
    }
    if (segments.exifSegments > 1) { // exiv2 reads the first part only
        blocks->exif.clear();
        attempt([&] { readExifBlock(*blocks, segments.exif); });
    }
    if (parts.valid) {
        blocks->pngChunks = parts.carried;
        blocks->comments = pngComments(parts.carried);
        if (!parts.exif.isEmpty()) { // exiv2 supports only the older way
            blocks->exif.clear();
            attempt([&] { readExifBlock(*blocks, parts.exif); });
        }
    }
    if (const QByteArray exif = webpExif(bytes); !exif.isEmpty()) {
        blocks->exif.clear();
        attempt([&] { readExifBlock(*blocks, exif); });
    }
    // The original block lets maker notes stay in place when it is written again.
    if (!segments.exif.isEmpty())
        blocks->exifBlock = segments.exif;
    blocks->comments += commentsOf(bytes, segments);
    dropThumbnails(*blocks);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

Metadata Metadata::withComments(const QStringList &comments) const
{
    if (comments.isEmpty() || !m_blocks)
        return *this;
    auto blocks = std::make_shared<Blocks>(*m_blocks);
    blocks->comments = comments;
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

Metadata Metadata::fromBlocks(const QByteArray &exif, const QByteArray &xmp, const QByteArray &iptc)
{
    startMetadataLibrary();
    auto blocks = std::make_shared<Blocks>();
    attempt([&] { readExifBlock(*blocks, exif.startsWith("Exif\0\0") ? exif.mid(6) : exif); });
    attempt([&] { readXmpPacket(*blocks, xmp); });
    attempt([&] { readIptcBlock(*blocks, iptc); });
    dropThumbnails(*blocks);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

bool Metadata::isEmpty() const
{
    return !m_blocks ||
           (m_blocks->exif.empty() && m_blocks->iptc.empty() && m_blocks->xmp.empty() && m_blocks->xmpPacket.empty());
}

bool Metadata::hasUserComment() const
{
    return m_blocks && commentTag(m_blocks->exif);
}

QString Metadata::userComment() const
{
    const Exiv2::Exifdatum *tag = m_blocks ? commentTag(m_blocks->exif) : nullptr;
    return tag ? decodeUserComment(rawBytes(*tag, m_blocks->byteOrder), endian(m_blocks->byteOrder)) : QString();
}

int Metadata::orientation() const
{
    const Exiv2::Exifdatum *tag = m_blocks ? findTag(m_blocks->exif, "Exif.Image.Orientation") : nullptr;
    if (!tag || tag->count() < 1 || tag->typeId() == Exiv2::asciiString)
        return 0;
    const long value = tag->toLong();
    return value >= 1 && value <= 8 ? int(value) : 0;
}

Metadata Metadata::withOrientation(int orientation) const
{
    if (!m_blocks || !findTag(m_blocks->exif, "Exif.Image.Orientation"))
        return *this;
    auto blocks = std::make_shared<Blocks>(*m_blocks);
    blocks->exif["Exif.Image.Orientation"] = uint16_t(orientation);
    blocks->exifBlock = exifBlockWithOrientation(blocks->exifBlock, orientation);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

Metadata Metadata::withResolutionSwapped() const
{
    constexpr const char *acrossKey = "Exif.Image.XResolution";
    constexpr const char *downKey = "Exif.Image.YResolution";
    const Exiv2::Exifdatum *across = m_blocks ? findTag(m_blocks->exif, acrossKey) : nullptr;
    const Exiv2::Exifdatum *down = m_blocks ? findTag(m_blocks->exif, downKey) : nullptr;
    if (!across || !down)
        return *this;
    auto blocks = std::make_shared<Blocks>(*m_blocks);
    blocks->exif[acrossKey].setValue(&down->value());
    blocks->exif[downKey].setValue(&across->value());
    blocks->exifBlock = exifBlockWithResolutionSwapped(blocks->exifBlock);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

} // namespace platform
