#include "platform/imageio/tiff/tiff_reader.h"

#include <algorithm>

namespace platform {

bool isTiffHeader(const QByteArray &bytes, TiffNumbers &numbers)
{
    const bool little = bytes.startsWith(QByteArrayView("II*\0", 4));
    const bool big = bytes.startsWith(QByteArrayView("MM\0*", 4));
    numbers.little = !big;
    return bytes.size() >= tiffHeaderSize && (little || big);
}

TiffDirectory tiffDirectory(const QByteArray &bytes, const TiffNumbers &numbers, qint64 offset)
{
    TiffDirectory directory;
    if (offset < tiffHeaderSize || offset + 2 > bytes.size())
        return directory;
    const qint64 count = numbers.u16(bytes.constData() + offset);
    directory.position = offset;
    directory.nextAt = offset + 2 + tiffEntrySize * count;
    if (directory.nextAt + 4 > bytes.size())
        return directory;
    directory.valid = true;
    directory.next = numbers.u32(bytes.constData() + directory.nextAt);
    for (qint64 i = 0; i < count; ++i) {
        const qint64 position = offset + 2 + tiffEntrySize * i;
        const char *at = bytes.constData() + position;
        TiffEntry entry{numbers.u16(at), numbers.u16(at + 2), numbers.u32(at + 4), position};
        entry.valueSize = qint64(entry.count) * tiffElementSize(entry.type);
        entry.valueAt = entry.isInline() ? position + 8 : numbers.u32(at + 8);
        if (tiffElementSize(entry.type) > 0 && entry.valueAt + entry.valueSize <= bytes.size())
            directory.entries.append(entry);
    }
    return directory;
}

TiffDirectory firstTiffDirectory(const QByteArray &bytes, const TiffNumbers &numbers)
{
    return bytes.size() < tiffHeaderSize ? TiffDirectory()
                                         : tiffDirectory(bytes, numbers, numbers.u32(bytes.constData() + 4));
}

const TiffEntry *findEntry(const TiffDirectory &directory, quint16 tag)
{
    const auto found = std::find_if(directory.entries.begin(), directory.entries.end(),
                                    [tag](const TiffEntry &entry) { return entry.tag == tag; });
    return found == directory.entries.end() ? nullptr : &*found;
}

quint32 tiffInteger(const QByteArray &bytes, const TiffNumbers &numbers, const TiffEntry &entry, quint32 index)
{
    constexpr quint16 shortType = 3;
    constexpr quint16 longType = 4;
    if (index >= entry.count)
        return 0;
    if (entry.type == shortType)
        return numbers.u16(bytes.constData() + entry.valueAt + 2 * qint64(index));
    if (entry.type == longType)
        return numbers.u32(bytes.constData() + entry.valueAt + 4 * qint64(index));
    return 0;
}

} // namespace platform
