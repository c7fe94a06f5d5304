#include "platform/imageio/exif/tiff_graft.h"

#include "platform/imageio/tiff/structure_tags.h"
#include "platform/imageio/tiff/tiff_reader.h"

#include <algorithm>
#include <map>

// The new file, in which every offset of the block still holds and those of the encoded file grow by one number:
//
//     EXIF block, whose header is the file's | zeros | encoded file without its header, and without its directory where that
//     is its end | XMP, IPTC, values in the other byte order | the new directory, to which the header leads
//
// Without an EXIF block the encoded file keeps its own header.

namespace platform {
namespace {

constexpr quint16 widthTag = 0x0100;
constexpr quint16 heightTag = 0x0101;
constexpr quint16 bitsTag = 0x0102;
constexpr quint16 stripOffsetsTag = 0x0111;
constexpr quint16 tileOffsetsTag = 0x0144;
constexpr quint16 subDirectoriesTag = 0x014a;
constexpr quint16 chromaPositionTag = 0x0213;
constexpr quint16 xmpTag = 0x02bc;
constexpr quint16 iptcTag = 0x83bb;
constexpr quint16 photoshopTag = 0x8649;
constexpr quint16 exifDirectoryTag = 0x8769;
constexpr quint16 gpsDirectoryTag = 0x8825;

constexpr quint16 byteType = 1;
constexpr quint16 longType = 4;
constexpr quint16 undefinedType = 7;

/** Puts the file together: the block, the encoded bytes behind it, arrays that had to be made anew, the directory. */
class Graft
{
public:
    /** @param leftOut  bytes that belong behind the header and are neither here nor in the result */
    Graft(const QByteArray &encoded, const GraftedBlocks &blocks, qint64 leftOut)
        : m_encoded(encoded), m_blocks(blocks), m_leftOut(leftOut)
    {
    }

    QByteArray file();
    /** What of the result stands before the bytes that were left out. */
    qsizetype headSize() const { return qsizetype(m_shift) + tiffHeaderSize; }

private:
    void layOut(const TiffDirectory &old);
    void addEncodedEntry(const TiffEntry &entry);
    void addBlockEntries(const TiffDirectory &directory);
    bool leadsNowhere(const TiffEntry &entry) const;
    void addBytes(quint16 tag, quint16 type, const QByteArray &bytes);
    QByteArray converted(const TiffEntry &entry) const;
    void addValue(const TiffEntry &entry, const QByteArray &value);
    void addEntry(quint16 tag, quint16 type, quint32 count, const char *fourBytes);
    quint32 append(const QByteArray &bytes);
    void writeDirectory();

    const QByteArray &m_encoded;
    const GraftedBlocks &m_blocks;
    qint64 m_leftOut;
    TiffNumbers m_from; ///< byte order of the encoded file
    TiffNumbers m_to;   ///< of the new one
    quint32 m_shift = 0;
    QByteArray m_file;
    std::map<quint16, QByteArray> m_entries;
};

void Graft::addEntry(quint16 tag, quint16 type, quint32 count, const char *fourBytes)
{
    QByteArray entry(tiffEntrySize, '\0');
    m_to.put16(tag, entry.data());
    m_to.put16(type, entry.data() + 2);
    m_to.put32(count, entry.data() + 4);
    std::copy_n(fourBytes, 4, entry.data() + 8);
    m_entries[tag] = entry;
}

/** Appends at an even offset, as the format wants it. */
quint32 Graft::append(const QByteArray &bytes)
{
    if (m_file.size() % 2 != 0)
        m_file.append('\0');
    const auto offset = quint32(m_file.size() + m_leftOut);
    m_file.append(bytes);
    return offset;
}

/** The value's elements in the new byte order, and offsets of pixels where the pixels now are. */
QByteArray Graft::converted(const TiffEntry &entry) const
{
    QByteArray value = m_encoded.mid(entry.valueAt, entry.valueSize);
    const bool offsets = entry.tag == stripOffsetsTag || entry.tag == tileOffsetsTag;
    const int element = tiffElementSize(entry.type);
    const int unit = element == 8 && (entry.type == 5 || entry.type == 10) ? 4 : element; // fractions are two numbers
    if (offsets) {
        QByteArray moved(4 * qsizetype(entry.count), '\0');
        for (quint32 i = 0; i < entry.count; ++i)
            m_to.put32(tiffInteger(m_encoded, m_from, entry, i) + m_shift, moved.data() + 4 * qsizetype(i));
        return moved;
    }
    if (m_from != m_to && unit > 1)
        for (qsizetype at = 0; at + unit <= value.size(); at += unit)
            std::reverse(value.begin() + at, value.begin() + at + unit);
    return value;
}

void Graft::addValue(const TiffEntry &entry, const QByteArray &value)
{
    char field[4] = {};
    if (value.size() <= 4)
        std::copy(value.begin(), value.end(), field);
    else
        m_to.put32(append(value), field);
    const bool offsets = entry.tag == stripOffsetsTag || entry.tag == tileOffsetsTag;
    addEntry(entry.tag, offsets ? longType : entry.type, entry.count, field);
}

void Graft::addEncodedEntry(const TiffEntry &entry)
{
    const bool offsets = entry.tag == stripOffsetsTag || entry.tag == tileOffsetsTag;
    if (entry.isInline() || offsets || (m_from != m_to && tiffElementSize(entry.type) > 1)) {
        addValue(entry, converted(entry));
        return;
    }
    char field[4];
    m_to.put32(quint32(entry.valueAt + m_leftOut) + m_shift, field);
    addEntry(entry.tag, entry.type, entry.count, field);
}

/** An entry that leads to a directory with nothing in it, over which readers of TIFF files stumble. */
bool Graft::leadsNowhere(const TiffEntry &entry) const
{
    if (entry.tag != exifDirectoryTag && entry.tag != gpsDirectoryTag)
        return false;
    return tiffDirectory(m_blocks.exif, m_to, tiffInteger(m_blocks.exif, m_to, entry)).entries.isEmpty();
}

/** The block's own entries win, as they stand: their offsets hold, since the block is the head of the file. */
void Graft::addBlockEntries(const TiffDirectory &directory)
{
    for (const TiffEntry &entry : directory.entries)
        if (!describesStructure(entry.tag) && !describesOtherData(entry.tag) && entry.tag != chromaPositionTag &&
            !leadsNowhere(entry))
            m_entries[entry.tag] = m_blocks.exif.mid(entry.position, tiffEntrySize);
}

void Graft::addBytes(quint16 tag, quint16 type, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    m_entries.erase(photoshopTag); // would contradict it
    TiffEntry entry;
    entry.tag = tag;
    entry.type = type;
    entry.count = quint32(bytes.size());
    addValue(entry, bytes);
}

/** The block and behind it the encoded file without header and old directory, its pixels aligned as they were. */
void Graft::layOut(const TiffDirectory &old)
{
    const bool isAtTheEnd = old.nextAt + 4 == m_encoded.size();
    const qint64 end = isAtTheEnd ? old.position : m_encoded.size();
    constexpr qint64 alignment = 16;
    const qint64 head = std::max<qint64>(m_blocks.exif.size(), tiffHeaderSize);
    m_shift = quint32((head - tiffHeaderSize + alignment - 1) / alignment * alignment);
    m_file.reserve(m_encoded.size() + m_shift + m_blocks.xmp.size() + m_blocks.iptc.size() + 65536);
    m_file = m_blocks.exif.isEmpty() ? m_encoded.left(tiffHeaderSize) : m_blocks.exif;
    m_file.append(QByteArray(m_shift + tiffHeaderSize - m_file.size(), '\0'));
    m_file.append(m_encoded.constData() + tiffHeaderSize, end - tiffHeaderSize);
}

void Graft::writeDirectory()
{
    QByteArray directory(2, '\0');
    m_to.put16(quint16(m_entries.size()), directory.data());
    for (const auto &[tag, entry] : m_entries) // sorted by tag, as the format wants it
        directory += entry;
    directory.append(4, '\0');
    const quint32 offset = append(directory);
    m_to.put32(offset, m_file.data() + 4);
}

QByteArray Graft::file()
{
    const TiffShape shape = tiffShape(m_encoded);
    isTiffHeader(m_encoded, m_from);
    m_to = m_from;
    TiffDirectory block;
    if (isTiffHeader(m_blocks.exif, m_to))
        block = firstTiffDirectory(m_blocks.exif, m_to);
    constexpr qint64 largestFile = 0xffff0000;
    const qint64 total =
        m_leftOut + m_encoded.size() + m_blocks.exif.size() + m_blocks.xmp.size() + m_blocks.iptc.size();
    if (!shape.valid || (m_from != m_to && !shape.hasByteSamples) || total > largestFile)
        return {};
    const TiffDirectory old = firstTiffDirectory(m_encoded, m_from);
    layOut(old);
    for (const TiffEntry &entry : old.entries)
        if (entry.tag != exifDirectoryTag && entry.tag != gpsDirectoryTag)
            addEncodedEntry(entry);
    addBlockEntries(block);
    addBytes(xmpTag, byteType, m_blocks.xmp);
    addBytes(iptcTag, undefinedType, m_blocks.iptc);
    writeDirectory();
    return m_file;
}

} // namespace

TiffShape tiffShape(const QByteArray &encoded)
{
    TiffShape shape;
    TiffNumbers numbers;
    if (!isTiffHeader(encoded, numbers))
        return shape;
    const TiffDirectory directory = firstTiffDirectory(encoded, numbers);
    const TiffEntry *width = findEntry(directory, widthTag);
    const TiffEntry *height = findEntry(directory, heightTag);
    if (!width || !height)
        return shape;
    const bool single = directory.next == 0 && !findEntry(directory, subDirectoriesTag);
    shape.valid = directory.valid && single;
    shape.littleEndian = numbers.little;
    shape.pixels = QSize(int(tiffInteger(encoded, numbers, *width)), int(tiffInteger(encoded, numbers, *height)));
    shape.hasByteSamples = true;
    if (const TiffEntry *bits = findEntry(directory, bitsTag))
        for (quint32 i = 0; i < bits->count; ++i)
            shape.hasByteSamples = shape.hasByteSamples && tiffInteger(encoded, numbers, *bits, i) <= 8;
    return shape;
}

QByteArray graftIntoTiff(const QByteArray &encoded, const GraftedBlocks &blocks)
{
    return Graft(encoded, blocks, 0).file();
}

FileEnds graftAroundPixels(const QByteArray &bare, qint64 pixelBytes, const GraftedBlocks &blocks)
{
    Graft graft(bare, blocks, pixelBytes + pixelBytes % 2);
    const QByteArray file = graft.file();
    return {file.left(graft.headSize()), file.mid(graft.headSize())};
}

} // namespace platform
