#include "platform/imageio/metadata/big_tiff.h"

#include "platform/imageio/tiff/tiff_reader.h"

#include <algorithm>
#include <exception>

namespace platform {
namespace {

constexpr quint64 headerSize = 16;
constexpr quint64 entrySize = 20;
constexpr quint64 mostEntries = 4096;
constexpr quint64 longestValue = 1 << 20;
constexpr quint16 exifDirectoryTag = 0x8769;
constexpr quint16 gpsDirectoryTag = 0x8825;
constexpr quint16 longType = 4;

class BigTiffReader
{
public:
    BigTiffReader(Metadata::Blocks &blocks, const QByteArray &bytes)
        : m_blocks(blocks), m_bytes(bytes), m_little(bytes.startsWith("II"))
    {
    }

    void readDirectory(quint64 offset, const char *group);
    quint64 u64(quint64 at) const
    {
        const char *number = m_bytes.constData() + at;
        return m_little ? qFromLittleEndian<quint64>(number) : qFromBigEndian<quint64>(number);
    }

private:
    bool has(quint64 offset, quint64 size) const
    {
        const auto all = quint64(m_bytes.size());
        return offset <= all && size <= all - offset;
    }
    void readEntry(quint64 at, const char *group);

    Metadata::Blocks &m_blocks;
    const QByteArray &m_bytes;
    bool m_little;
};

void BigTiffReader::readEntry(quint64 at, const char *group)
{
    const TiffNumbers numbers{m_little};
    const char *entry = m_bytes.constData() + at;
    const quint16 tag = numbers.u16(entry);
    const quint16 type = numbers.u16(entry + 2);
    const quint64 count = u64(at + 4);
    const bool isDirectory = tag == exifDirectoryTag || tag == gpsDirectoryTag;
    if (isDirectory && group == std::string_view("Image")) {
        readDirectory(type == longType ? numbers.u32(entry + 12) : u64(at + 12),
                      tag == exifDirectoryTag ? "Photo" : "GPSInfo");
        return;
    }
    const auto element = quint64(tiffElementSize(type));
    if (element == 0 || count == 0 || count > longestValue / element)
        return;
    const quint64 size = count * element;
    const quint64 value = size <= 8 ? at + 12 : u64(at + 12);
    if (!has(value, size))
        return;
    const auto read = Exiv2::Value::create(Exiv2::TypeId(type));
    const auto *data = reinterpret_cast<const Exiv2::byte *>(m_bytes.constData() + value);
    if (read->read(data, long(size), m_little ? Exiv2::littleEndian : Exiv2::bigEndian) == 0)
        m_blocks.exif.add(Exiv2::ExifKey(tag, group), read.get());
}

void BigTiffReader::readDirectory(quint64 offset, const char *group)
{
    if (offset < headerSize || !has(offset, 8))
        return;
    const quint64 count = u64(offset);
    if (count > mostEntries || !has(offset + 8, count * entrySize))
        return;
    for (quint64 i = 0; i < count; ++i) {
        try {
            readEntry(offset + 8 + i * entrySize, group);
        } catch (const std::exception &) {
            // Passed over: exiv2 cannot hold this value.
        }
    }
}

} // namespace

bool isBigTiff(const QByteArray &bytes)
{
    const bool little = bytes.startsWith(QByteArrayView("II+\0\x08\0\0\0", 8));
    const bool big = bytes.startsWith(QByteArrayView("MM\0+\0\x08\0\0", 8));
    return quint64(bytes.size()) >= headerSize && (little || big);
}

void readBigTiff(Metadata::Blocks &blocks, const QByteArray &bytes)
{
    BigTiffReader reader(blocks, bytes);
    reader.readDirectory(reader.u64(8), "Image");
    blocks.byteOrder = bytes.startsWith("II") ? Exiv2::littleEndian : Exiv2::bigEndian;
    if (const Exiv2::Exifdatum *tag = findTag(blocks.exif, "Exif.Image.XMLPacket")) {
        blocks.xmpPacket = rawBytes(*tag, Exiv2::littleEndian).toStdString();
        Exiv2::XmpParser::decode(blocks.xmp, blocks.xmpPacket);
    }
}

} // namespace platform
