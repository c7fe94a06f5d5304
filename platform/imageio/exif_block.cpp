#include "platform/imageio/exif_block.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <exception>

namespace platform {
namespace {

/** Tags of the first directory that belong to one file's storage; sorted. */
constexpr std::array<uint16_t, 60> structureTags = {
    0x00fe, 0x00ff, 0x0100, 0x0101, 0x0102, 0x0103, 0x0106, 0x0107, 0x0108, 0x0109, 0x010a, 0x0111,
    0x0115, 0x0116, 0x0117, 0x0118, 0x0119, 0x011c, 0x0120, 0x0121, 0x0122, 0x0123, 0x0124, 0x0125,
    0x0129, 0x012d, 0x013d, 0x0140, 0x0141, 0x0142, 0x0143, 0x0144, 0x0145, 0x014a, 0x014c, 0x014d,
    0x014e, 0x0150, 0x0151, 0x0152, 0x0153, 0x0154, 0x0155, 0x0156, 0x015b, 0x0200, 0x0201, 0x0202,
    0x0203, 0x0205, 0x0206, 0x0207, 0x0208, 0x0209, 0x0211, 0x0212, 0x0213, 0x0214, 0x828d, 0x828e};

/** Private and raw-file tags that speak of data outside the EXIF block, or that are carried in another way. */
bool describesOtherData(uint16_t tag)
{
    switch (tag) {
    case 0x02bc: // XMP
    case 0x83bb: // IPTC
    case 0x8649: // Photoshop resources
    case 0x8773: // colour profile
    case 0x935c: // Photoshop layers
        return true;
    default:
        return tag >= 0xc612 && tag <= 0xc7ff; // raw development tags; 0xc4a5 (print image matching) stays
    }
}

bool isStandardGroup(const std::string &group)
{
    return group == "Image" || group == "Photo" || group == "GPSInfo" || group == "Iop";
}

/** Directories of raw files with pictures of their own. */
bool isOtherImageGroup(const std::string &group)
{
    return group.rfind("SubImage", 0) == 0 || group.rfind("SubThumb", 0) == 0 || group.rfind("PanasonicRaw", 0) == 0;
}

bool isMakerNote(const Exiv2::Exifdatum &tag)
{
    return !isStandardGroup(tag.groupName()) || (tag.groupName() == "Photo" && tag.tag() == 0x927c);
}

bool isCommon(const Exiv2::Exifdatum &tag)
{
    static const std::array<const char *, 14> keys = {"Exif.Image.Orientation",
                                                      "Exif.Image.XResolution",
                                                      "Exif.Image.YResolution",
                                                      "Exif.Image.ResolutionUnit",
                                                      "Exif.Image.Make",
                                                      "Exif.Image.Model",
                                                      "Exif.Image.DateTime",
                                                      "Exif.Image.Artist",
                                                      "Exif.Image.Copyright",
                                                      "Exif.Photo.UserComment",
                                                      "Exif.Photo.DateTimeOriginal",
                                                      "Exif.Photo.ISOSpeedRatings",
                                                      "Exif.Photo.ExposureTime",
                                                      "Exif.Photo.FNumber"};
    return std::find(keys.begin(), keys.end(), tag.key()) != keys.end();
}

void setPixelSize(Exiv2::ExifData &exif, QSize pixels)
{
    const auto set = [&exif](const char *key, int value) {
        const auto tag = exif.findKey(Exiv2::ExifKey(key));
        if (tag == exif.end())
            return;
        if (tag->typeId() == Exiv2::unsignedShort && value <= 0xffff)
            *tag = uint16_t(value);
        else
            *tag = uint32_t(value);
    };
    set("Exif.Photo.PixelXDimension", pixels.width());
    set("Exif.Photo.PixelYDimension", pixels.height());
}

/** Numbers of a block in its own byte order; every read is checked. */
class BlockReader
{
public:
    explicit BlockReader(const QByteArray &block) : m_block(block), m_little(block.startsWith("II")) {}

    bool has(qint64 offset, qint64 size) const { return offset >= 0 && size >= 0 && offset + size <= m_block.size(); }

    quint32 u16(qint64 offset) const
    {
        const char *at = m_block.constData() + offset;
        return m_little ? qFromLittleEndian<quint16>(at) : qFromBigEndian<quint16>(at);
    }

    quint32 u32(qint64 offset) const
    {
        const char *at = m_block.constData() + offset;
        return m_little ? qFromLittleEndian<quint32>(at) : qFromBigEndian<quint32>(at);
    }

private:
    const QByteArray &m_block;
    bool m_little;
};

constexpr qint64 entrySize = 12;

/** Where the directory at @p offset keeps the offset of the next one; -1 where it does not fit into the block. */
qint64 nextPointer(const BlockReader &reader, qint64 offset)
{
    if (!reader.has(offset, 2))
        return -1;
    const qint64 at = offset + 2 + entrySize * reader.u16(offset);
    return reader.has(at, 4) ? at : -1;
}

/** Where the thumbnail's picture begins if it is the end of the block and can be cut off; else the block's size. */
qsizetype endWithoutThumbnail(const BlockReader &reader, qint64 directory, qsizetype blockSize)
{
    if (nextPointer(reader, directory) < 0)
        return blockSize;
    qint64 start = 0;
    qint64 size = 0;
    for (quint32 i = 0; i < reader.u16(directory); ++i) {
        const qint64 entry = directory + 2 + entrySize * i;
        if (reader.u16(entry) == 0x0201)
            start = reader.u32(entry + 8);
        else if (reader.u16(entry) == 0x0202)
            size = reader.u32(entry + 8);
    }
    const bool atEnd = start > directory && size > 0 && start + size <= blockSize && start + size >= blockSize - 4;
    return atEnd ? qsizetype(start) : blockSize;
}

/** The block with its thumbnail directory out of reach, and its thumbnail cut off where that is the end. */
QByteArray withoutThumbnail(QByteArray block)
{
    const BlockReader reader(block);
    if (!reader.has(0, 8))
        return {};
    const qint64 next = nextPointer(reader, reader.u32(4));
    if (next < 0)
        return {};
    const qint64 thumbnail = reader.u32(next);
    if (thumbnail == 0)
        return block;
    const qsizetype end = endWithoutThumbnail(reader, thumbnail, block.size());
    block.truncate(end);
    block.replace(next, 4, QByteArray(4, '\0'));
    return block;
}

QByteArray toBytes(const Exiv2::Blob &blob)
{
    return QByteArray(reinterpret_cast<const char *>(blob.data()), qsizetype(blob.size()));
}

QByteArray encoded(const Exiv2::ExifData &exif, Exiv2::ByteOrder order, QByteArray original)
{
    if (exif.empty())
        return {};
    Exiv2::Blob blob;
    const auto *data = original.isEmpty() ? nullptr : reinterpret_cast<const Exiv2::byte *>(original.data());
    const auto method = Exiv2::ExifParser::encode(blob, data, uint32_t(original.size()), order, exif);
    return method == Exiv2::wmNonIntrusive ? original : toBytes(blob);
}

/** True if the block says what it was made from, as far as a reader goes for it first. */
bool readsBack(const QByteArray &block, const Exiv2::ExifData &exif)
{
    Exiv2::ExifData again;
    Exiv2::ExifParser::decode(again, reinterpret_cast<const Exiv2::byte *>(block.constData()), uint32_t(block.size()));
    for (const char *key : {"Exif.Image.Orientation", "Exif.Photo.UserComment", "Exif.Photo.DateTimeOriginal"}) {
        const Exiv2::Exifdatum *before = findTag(exif, key);
        const Exiv2::Exifdatum *after = findTag(again, key);
        if (before && before->size() > 0 && (!after || before->toString() != after->toString()))
            return false;
    }
    return !again.empty();
}

QByteArray attemptBlock(const Exiv2::ExifData &exif, Exiv2::ByteOrder order, const QByteArray &original,
                        qsizetype sizeLimit)
{
    try {
        const QByteArray block = encoded(exif, order, original);
        if (!block.isEmpty() && block.size() <= sizeLimit && readsBack(block, exif))
            return block;
    } catch (const std::exception &) {
        // The caller tries with less.
    }
    return {};
}

template<typename Predicate> void removeTags(Exiv2::ExifData &exif, Predicate predicate)
{
    for (auto tag = exif.begin(); tag != exif.end();)
        tag = predicate(*tag) ? exif.erase(tag) : ++tag;
}

} // namespace

bool describesStructure(uint16_t tag)
{
    return std::binary_search(structureTags.begin(), structureTags.end(), tag);
}

Exiv2::ExifData exifForNewFile(const Exiv2::ExifData &exif, QSize pixels, MakerNotes makerNotes)
{
    Exiv2::ExifData result = exif;
    removeTags(result, [makerNotes](const Exiv2::Exifdatum &tag) {
        const std::string group = tag.groupName();
        if (isOtherImageGroup(group))
            return true;
        if (makerNotes == MakerNotes::Drop && isMakerNote(tag))
            return true;
        return group == "Image" && (describesStructure(tag.tag()) || describesOtherData(tag.tag()));
    });
    setPixelSize(result, pixels);
    return result;
}

QByteArray encodeExifBlock(const Metadata::Blocks &blocks, QSize pixels, qsizetype sizeLimit)
{
    Exiv2::ExifData exif = exifForNewFile(blocks.exif, pixels, MakerNotes::Keep);
    const QByteArray original = withoutThumbnail(blocks.exifBlock);
    for (const QByteArray &base : {original, QByteArray()}) {
        const QByteArray block = attemptBlock(exif, blocks.byteOrder, base, sizeLimit);
        if (!block.isEmpty())
            return block;
    }
    exif = exifForNewFile(blocks.exif, pixels, MakerNotes::Drop);
    const QByteArray plain = attemptBlock(exif, blocks.byteOrder, {}, sizeLimit);
    if (!plain.isEmpty())
        return plain;
    removeTags(exif, [](const Exiv2::Exifdatum &tag) { return !isCommon(tag); });
    return attemptBlock(exif, blocks.byteOrder, {}, sizeLimit);
}

} // namespace platform
