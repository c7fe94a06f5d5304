#include "platform/imageio/exif/exif_tags.h"

#include "platform/imageio/exif/user_comment.h"
#include "platform/imageio/tiff/tiff_reader.h"

#include <QIODevice>

namespace platform {
namespace {

constexpr qint64 longestText = 1024;
constexpr qint64 longestPacket = 16 << 20;
constexpr quint16 mostEntries = 4096;

QByteArray bytesAt(QIODevice &block, qint64 position, qint64 size)
{
    // Beyond the end Qt would log a line.
    if (position < 0 || size <= 0 || position > block.size() - size || !block.seek(position))
        return {};
    const QByteArray bytes = block.read(size);
    return bytes.size() == size ? bytes : QByteArray();
}

/** One directory of the block, its values read when they are asked for. */
class Directory
{
public:
    Directory(QIODevice &block, const TiffNumbers &numbers, qint64 offset) : m_block(block), m_numbers(numbers)
    {
        const QByteArray count = offset < tiffHeaderSize ? QByteArray() : bytesAt(block, offset, 2);
        const quint16 entries = count.isEmpty() ? 0 : numbers.u16(count.constData());
        if (entries <= mostEntries)
            m_entries = bytesAt(block, offset + 2, tiffEntrySize * entries);
    }

    QByteArray value(quint16 tag, qint64 longest) const
    {
        for (qsizetype at = 0; at + tiffEntrySize <= m_entries.size(); at += tiffEntrySize) {
            const char *entry = m_entries.constData() + at;
            if (m_numbers.u16(entry) != tag)
                continue;
            const qint64 size = qint64(m_numbers.u32(entry + 4)) * tiffElementSize(m_numbers.u16(entry + 2));
            if (size > longest)
                return {};
            constexpr qint64 inlineSize = 4;
            return size <= inlineSize ? QByteArray(entry + 8, size) : bytesAt(m_block, m_numbers.u32(entry + 8), size);
        }
        return {};
    }

    QString text(quint16 tag) const
    {
        QByteArray bytes = value(tag, longestText);
        if (const qsizetype end = bytes.indexOf('\0'); end >= 0)
            bytes.truncate(end);
        return decodeUnmarkedText(bytes).trimmed();
    }

    quint32 number(quint16 tag) const
    {
        const QByteArray bytes = value(tag, sizeof(quint32));
        if (bytes.size() == sizeof(quint16))
            return m_numbers.u16(bytes.constData());
        return bytes.size() == sizeof(quint32) ? m_numbers.u32(bytes.constData()) : 0;
    }

private:
    QIODevice &m_block;
    TiffNumbers m_numbers;
    QByteArray m_entries;
};

} // namespace

ExifTags readExifTags(QIODevice &block)
{
    ExifTags tags;
    const QByteArray header = bytesAt(block, 0, tiffHeaderSize);
    TiffNumbers numbers;
    if (!isTiffHeader(header, numbers))
        return tags;
    const Directory first(block, numbers, numbers.u32(header.constData() + 4));
    tags.make = first.text(0x010f);
    tags.model = first.text(0x0110);
    tags.changed = first.text(0x0132);
    tags.xmp = first.value(0x02bc, longestPacket);
    const quint32 orientation = first.number(0x0112);
    constexpr quint32 lastOrientation = 8;
    tags.orientation = orientation <= lastOrientation ? int(orientation) : 0;
    const Directory exif(block, numbers, first.number(0x8769));
    tags.original = exif.text(0x9003);
    tags.digitized = exif.text(0x9004);
    tags.lens = exif.text(0xa434);
    return tags;
}

} // namespace platform
