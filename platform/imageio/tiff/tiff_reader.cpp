#include "platform/imageio/tiff/tiff_reader.h"

#include <algorithm>

namespace platform {

const TiffEntry *TiffDirectory::find(quint16 tag) const
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [tag](const TiffEntry &entry) { return entry.tag == tag; });
    return found == entries.end() ? nullptr : &*found;
}

const TiffEntry *TiffDirectory::findSound(quint16 tag) const
{
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [tag](const TiffEntry &entry) { return entry.tag == tag && entry.isSound(); });
    return found == entries.end() ? nullptr : &*found;
}

TiffReader::TiffReader(const QByteArray &bytes) : m_bytes(bytes)
{
    readHeader();
}

TiffReader::TiffReader(QIODevice &file) : m_blocks(file)
{
    readHeader();
}

void TiffReader::readHeader()
{
    constexpr quint64 classic = 42;
    constexpr quint64 big = 43;
    const QByteArrayView header = at(0, TiffForm{true, true}.headerSize());
    m_form.little = header.startsWith("II");
    if (header.size() < m_form.headerSize())
        return;
    const quint64 version = m_form.number(header.data() + 2, 2);
    m_form.big = version == big;
    const bool isTiff = (m_form.little || header.startsWith("MM")) && header.size() >= m_form.headerSize();
    const auto statesOffsets = [&] {
        return m_form.number(header.data() + 4, 2) == quint64(m_form.offsetSize()) &&
               m_form.number(header.data() + 6, 2) == 0;
    };
    m_isValid = isTiff && (version == classic || (version == big && statesOffsets()));
}

QByteArrayView TiffReader::at(qint64 position, qsizetype count) const
{
    if (position < 0 || position > size())
        return {};
    const qsizetype there = qsizetype(std::min<qint64>(count, size() - position));
    const QByteArrayView piece = m_blocks ? m_blocks->at(position, there) : m_bytes.sliced(position, there);
    m_hasFailed = m_hasFailed || piece.size() < there;
    return piece;
}

quint64 TiffReader::number(qint64 position, int bytes) const
{
    const QByteArrayView piece = at(position, bytes);
    return piece.size() == bytes ? m_form.number(piece.data(), bytes) : 0;
}

TiffEntry TiffReader::entryAt(qint64 position) const
{
    TiffEntry entry;
    entry.at = position;
    const QByteArrayView bytes = at(position, m_form.entrySize());
    if (bytes.size() < m_form.entrySize())
        return entry;
    entry.tag = quint16(m_form.number(bytes.data(), 2));
    entry.type = quint16(m_form.number(bytes.data() + 2, 2));
    entry.count = m_form.number(bytes.data() + 4, m_form.offsetSize());
    const auto element = quint64(tiffElementSize(entry.type));
    const auto all = quint64(size());
    if (element == 0 || entry.count > all / element)
        return entry;
    const quint64 valueSize = entry.count * element;
    entry.isInline = valueSize <= quint64(m_form.offsetSize());
    const quint64 start = entry.isInline ? quint64(position + m_form.fieldAt())
                                         : m_form.number(bytes.data() + m_form.fieldAt(), m_form.offsetSize());
    const bool isInside = start <= all && valueSize <= all - start;
    entry.state = isInside ? TiffValue::Sound : TiffValue::Outside;
    if (isInside)
        entry.value = {qint64(start), qint64(valueSize)};
    return entry;
}

TiffDirectory TiffReader::directory(quint64 offset, End end) const
{
    TiffDirectory directory;
    const auto all = quint64(size());
    const auto fixed = quint64(m_form.countSize() + (end == End::Stated ? m_form.offsetSize() : 0));
    if (offset < quint64(m_form.headerSize()) || offset > all || all - offset < fixed)
        return directory;
    const quint64 count = number(qint64(offset), m_form.countSize());
    constexpr quint64 mostEntries = 0xffff;
    if (count > mostEntries || count > (all - offset - fixed) / quint64(m_form.entrySize()))
        return directory;
    directory.nextAt = qint64(offset) + m_form.countSize() + qint64(count) * m_form.entrySize();
    directory.range = {qint64(offset), directory.nextAt + m_form.offsetSize() - qint64(offset)};
    directory.entries.reserve(qsizetype(count));
    for (qint64 position = qint64(offset) + m_form.countSize(); position < directory.nextAt;
         position += m_form.entrySize())
        directory.entries.append(entryAt(position));
    directory.next = number(directory.nextAt, m_form.offsetSize());
    directory.valid = !m_hasFailed;
    return directory.valid ? directory : TiffDirectory();
}

quint64 TiffReader::integer(const TiffEntry &entry, quint64 index) const
{
    if (!entry.isSound() || !isTiffWholeNumber(entry.type) || index >= entry.count)
        return 0;
    const int size = tiffElementSize(entry.type);
    return number(entry.value.start + qint64(index) * size, size);
}

quint64 TiffReader::integer(const TiffDirectory &directory, quint16 tag, quint64 otherwise) const
{
    const TiffEntry *entry = directory.findSound(tag);
    return entry && entry->count > 0 && isTiffWholeNumber(entry->type) ? integer(*entry) : otherwise;
}

QByteArray TiffReader::value(const TiffEntry &entry, qint64 longest) const
{
    if (!entry.isSound() || entry.value.size > longest)
        return {};
    return m_blocks ? m_blocks->all(entry.value.start, entry.value.size)
                    : at(entry.value.start, entry.value.size).toByteArray();
}

} // namespace platform
