#include "platform/imageio/exif/tiff_graft.h"

#include "platform/imageio/tiff/structure_tags.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>
#include <map>

// The new file, in which every offset of the block stays valid and those of the encoded file increase by one number:
//
//     EXIF block, whose header is the file's | zeros | encoded file without its header, and without its directory where that
//     is its end | XMP, IPTC, values in the other byte order | the new directory, to which the header leads
//
// Without an EXIF block the encoded file keeps its own header.

namespace platform {
namespace {

/** True for the tags that say where the pixels are. */
bool isPlaceOfPixels(quint16 tag)
{
    return tag == tiffTag::stripOffsets || tag == tiffTag::tileOffsets;
}

/** Assembles the file: the block, the encoded bytes after it, rebuilt arrays, the directory. */
class Graft
{
public:
    /** @param leftOut  bytes that belong after the header and are neither here nor in the result */
    Graft(const QByteArray &encoded, const GraftedBlocks &blocks, qint64 leftOut)
        : m_encoded(encoded), m_blocks(blocks), m_leftOut(leftOut), m_from(encoded), m_block(blocks.exif),
          m_to(m_block.isClassic() ? m_block.form() : m_from.form())
    {
    }

    QByteArray file();
    /** The part of the result before the omitted bytes. */
    qsizetype headSize() const { return qsizetype(m_shift) + m_to.headerSize(); }

private:
    void layOut(const TiffDirectory &old);
    void addEncodedEntry(const TiffEntry &entry);
    void addBlockEntries(const TiffDirectory &directory);
    bool leadsNowhere(const TiffEntry &entry) const;
    void addBytes(quint16 tag, quint16 type, const QByteArray &bytes);
    QByteArray converted(const TiffEntry &entry) const;
    void addValue(quint16 tag, quint16 type, quint64 count, const QByteArray &value);
    void writeDirectory();

    const QByteArray &m_encoded;
    const GraftedBlocks &m_blocks;
    qint64 m_leftOut;
    TiffReader m_from;  ///< of the encoded file
    TiffReader m_block; ///< of the EXIF block
    TiffForm m_to;      ///< of the new file
    quint32 m_shift = 0;
    QByteArray m_file;
    std::map<quint16, QByteArray> m_entries;
};

/** The value's elements in the new byte order, and pixel offsets updated. */
QByteArray Graft::converted(const TiffEntry &entry) const
{
    QByteArray value = m_encoded.mid(entry.value.start, entry.value.size);
    const int element = tiffElementSize(entry.type);
    const bool isFraction = entry.type == tiffType::fractionType || entry.type == tiffType::signedFractionType;
    const int unit = isFraction ? element / 2 : element; // two numbers
    if (isPlaceOfPixels(entry.tag)) {
        QByteArray moved(m_to.offsetSize() * qsizetype(entry.count), '\0');
        for (quint64 i = 0; i < entry.count; ++i)
            m_to.put(m_from.integer(entry, i) + m_shift, m_to.offsetSize(),
                     moved.data() + m_to.offsetSize() * qsizetype(i));
        return moved;
    }
    if (m_from.form() != m_to && unit > 1)
        for (qsizetype at = 0; at + unit <= value.size(); at += unit)
            std::reverse(value.begin() + at, value.begin() + at + unit);
    return value;
}

void Graft::addValue(quint16 tag, quint16 type, quint64 count, const QByteArray &value)
{
    const bool fits = value.size() <= m_to.offsetSize();
    m_entries[tag] = m_to.entry(tag, type, count, fits ? value : m_to.offset(appendEven(m_file, value, m_leftOut)));
}

void Graft::addEncodedEntry(const TiffEntry &entry)
{
    const bool isPlace = isPlaceOfPixels(entry.tag);
    if (entry.isInline || isPlace || (m_from.form() != m_to && tiffElementSize(entry.type) > 1))
        addValue(entry.tag, isPlace ? tiffType::longType : entry.type, entry.count, converted(entry));
    else
        m_entries[entry.tag] = m_to.entry(entry.tag, entry.type, entry.count,
                                          m_to.offset(quint64(entry.value.start + m_leftOut) + m_shift));
}

/** An entry that points to an empty directory, which some readers of TIFF files reject. */
bool Graft::leadsNowhere(const TiffEntry &entry) const
{
    if (entry.tag != tiffTag::exifDirectory && entry.tag != tiffTag::gpsDirectory)
        return false;
    const TiffDirectory directory = m_block.directory(m_block.integer(entry));
    return std::none_of(directory.entries.begin(), directory.entries.end(),
                        [](const TiffEntry &each) { return each.isSound(); });
}

/**
 * The block's own entries take precedence, unchanged: their offsets are valid, since the block is the head of the file.
 */
void Graft::addBlockEntries(const TiffDirectory &directory)
{
    for (const TiffEntry &entry : directory.entries)
        if (entry.isSound() && !describesStructure(entry.tag) && !describesOtherData(entry.tag) &&
            entry.tag != tiffTag::chromaPosition && !leadsNowhere(entry))
            m_entries[entry.tag] = m_blocks.exif.mid(entry.at, m_to.entrySize());
}

void Graft::addBytes(quint16 tag, quint16 type, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    m_entries.erase(tiffTag::photoshop); // would contradict it
    addValue(tag, type, quint64(bytes.size()), bytes);
}

/** The block, followed by the encoded file without header and old directory, its pixels aligned as before. */
void Graft::layOut(const TiffDirectory &old)
{
    const bool isAtTheEnd = old.range.end() == m_encoded.size();
    const qint64 end = isAtTheEnd ? old.range.start : m_encoded.size();
    constexpr qint64 alignment = 16;
    const qint64 header = m_to.headerSize();
    const qint64 head = std::max<qint64>(m_blocks.exif.size(), header);
    m_shift = quint32((head - header + alignment - 1) / alignment * alignment);
    m_file.reserve(m_encoded.size() + m_shift + m_blocks.xmp.size() + m_blocks.iptc.size() + 65536);
    m_file = m_blocks.exif.isEmpty() ? m_encoded.left(header) : m_blocks.exif;
    m_file.append(QByteArray(m_shift + header - m_file.size(), '\0'));
    m_file.append(m_encoded.constData() + header, end - header);
}

void Graft::writeDirectory()
{
    QByteArray entries;
    for (const auto &[tag, entry] : m_entries) // sorted by tag, as the format requires
        entries += entry;
    const quint64 offset = appendEven(m_file, m_to.directory(entries, 0), m_leftOut);
    m_to.put(offset, m_to.offsetSize(), m_file.data() + m_to.firstAt());
}

QByteArray Graft::file()
{
    const TiffShape shape = tiffShape(m_encoded);
    constexpr qint64 largestFile = 0xffff0000;
    const qint64 total =
        m_leftOut + m_encoded.size() + m_blocks.exif.size() + m_blocks.xmp.size() + m_blocks.iptc.size();
    if (!shape.valid || (m_from.form() != m_to && !shape.hasByteSamples) || total > largestFile)
        return {};
    const TiffDirectory old = m_from.first();
    layOut(old);
    for (const TiffEntry &entry : old.entries)
        if (entry.isSound() && entry.tag != tiffTag::exifDirectory && entry.tag != tiffTag::gpsDirectory)
            addEncodedEntry(entry);
    if (m_block.isClassic())
        addBlockEntries(m_block.first());
    addBytes(tiffTag::xmp, tiffType::byteType, m_blocks.xmp);
    addBytes(tiffTag::iptc, tiffType::undefinedType, m_blocks.iptc);
    writeDirectory();
    return m_file;
}

} // namespace

TiffShape tiffShape(const QByteArray &encoded)
{
    TiffShape shape;
    const TiffReader reader(encoded);
    const TiffDirectory directory = reader.isClassic() ? reader.first() : TiffDirectory();
    if (!directory.findSound(tiffTag::width) || !directory.findSound(tiffTag::height))
        return shape;
    shape.valid = directory.next == 0 && !directory.findSound(tiffTag::subDirectories);
    shape.littleEndian = reader.form().little;
    shape.pixels =
        QSize(int(reader.integer(directory, tiffTag::width)), int(reader.integer(directory, tiffTag::height)));
    shape.hasByteSamples = true;
    constexpr quint64 bitsPerByte = 8;
    if (const TiffEntry *bits = directory.findSound(tiffTag::bits))
        for (quint64 i = 0; i < bits->count; ++i)
            shape.hasByteSamples = shape.hasByteSamples && reader.integer(*bits, i) <= bitsPerByte;
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
