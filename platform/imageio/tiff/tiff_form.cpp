#include "platform/imageio/tiff/tiff_form.h"

#include "platform/imageio/tiff/tiff_tags.h"

#include <array>

// The layout, with the sizes of a classic file and, in brackets, of one with offsets of 64 bits:
//
//     header:     "II" or "MM" 2 | 42 2 (43 2 | 8 2 | 0 2) | offset of the first directory 4 (8)
//     directory:  number of entries 2 (8) | entries, sorted by tag | offset of the next directory, 0: none 4 (8)
//     entry:      tag 2 | type 2 | count 4 (8) | the value if it fits, padded, or else its offset 4 (8)
//
// "II": little-endian numbers. Offsets count from the header.

namespace platform {
namespace {

constexpr std::array<int, tiffType::bigDirectoryType + 1> elementSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4,
                                                                          8, 4, 8, 4, 0, 0, 8, 8, 8};

} // namespace

int tiffElementSize(quint16 type)
{
    return type < elementSizes.size() ? elementSizes[type] : 0;
}

bool isTiffWholeNumber(quint16 type)
{
    constexpr quint32 wholeTypes = 1U << 1 | 1U << 3 | 1U << 4 | 1U << 6 | 1U << 8 | 1U << 9 | 1U << 13 | 7U << 16;
    return type < elementSizes.size() && (wholeTypes >> type & 1U) != 0;
}

quint64 TiffForm::number(const char *at, int size) const
{
    quint64 result = 0;
    for (int i = 0; i < size; ++i)
        result = result << 8 | uchar(at[little ? size - 1 - i : i]);
    return result;
}

void TiffForm::put(quint64 number, int size, char *at) const
{
    for (int i = 0; i < size; ++i, number >>= 8)
        at[little ? i : size - 1 - i] = char(uchar(number & 0xff));
}

QByteArray TiffForm::bytes(quint64 number, int size) const
{
    QByteArray result(size, Qt::Uninitialized);
    put(number, size, result.data());
    return result;
}

QByteArray TiffForm::entry(quint16 tag, quint16 type, quint64 count, const QByteArray &field) const
{
    return bytes(tag, 2) + bytes(type, 2) + offset(count) + field.leftJustified(offsetSize(), '\0');
}

QByteArray TiffForm::directory(const QByteArray &entries, quint64 next) const
{
    return bytes(quint64(entries.size() / entrySize()), countSize()) + entries + offset(next);
}

quint64 appendEven(QByteArray &bytes, const QByteArray &more, qint64 start)
{
    if ((start + bytes.size()) % 2 != 0)
        bytes.append('\0');
    const auto offset = quint64(start + bytes.size());
    bytes.append(more);
    return offset;
}

} // namespace platform
