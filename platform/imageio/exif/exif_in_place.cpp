#include "platform/imageio/exif/exif_in_place.h"

#include "platform/imageio/tiff/structure_tags.h"
#include "platform/imageio/tiff/tiff_reader.h"

#include <algorithm>

// An EXIF block is a TIFF file without a picture, in which offsets count from its first byte:
//
//     "II" or "MM", 42, offset | directory 0 ... | EXIF, GPS directories | values, maker notes | directory 1 | thumbnail
//     directory: number of entries (2 bytes) | entries of 12 bytes: tag, type, count, value or its offset | next directory
//
// Maker notes may hold offsets of the same kind that nobody can find, so nothing is moved: a directory gets shorter where it
// stands, and only the end of the block is cut.

namespace platform {
namespace {

constexpr quint16 orientationTag = 0x0112;
constexpr quint16 exifDirectoryTag = 0x8769;
constexpr quint16 pixelWidthTag = 0xa002;
constexpr quint16 pixelHeightTag = 0xa003;
constexpr quint16 thumbnailOffsetTag = 0x0201;
constexpr quint16 thumbnailSizeTag = 0x0202;

/** Where the thumbnail's picture begins if it is the end of the block and can be cut off; else the block's size. */
qsizetype endWithoutThumbnail(const QByteArray &block, const TiffNumbers &numbers, quint32 directoryOffset)
{
    const TiffDirectory directory = tiffDirectory(block, numbers, directoryOffset);
    const TiffEntry *offset = findEntry(directory, thumbnailOffsetTag);
    const TiffEntry *size = findEntry(directory, thumbnailSizeTag);
    if (!offset || !size)
        return block.size();
    const qint64 start = tiffInteger(block, numbers, *offset);
    const qint64 end = start + tiffInteger(block, numbers, *size);
    constexpr qint64 padding = 4;
    const bool isTheEnd = start > directory.nextAt && end <= block.size() && end + padding >= block.size();
    return isTheEnd ? qsizetype(start) : block.size();
}

/** Writes the kept entries of the first directory over it, shorter by what was taken out. */
bool shortenFirstDirectory(QByteArray &block, const TiffNumbers &numbers, const TiffDirectory &directory)
{
    QByteArray kept;
    for (const TiffEntry &entry : directory.entries)
        if (!describesStructure(entry.tag) && !describesOtherData(entry.tag))
            kept += block.mid(entry.position, tiffEntrySize);
    if (kept.isEmpty())
        return false;
    numbers.put16(quint16(kept.size() / tiffEntrySize), block.data() + directory.position);
    block.replace(directory.position + 2, kept.size(), kept);
    numbers.put32(0, block.data() + directory.position + 2 + kept.size());
    return true;
}

/** Sets a SHORT or LONG of one element where it stands. */
void setInteger(QByteArray &block, const TiffNumbers &numbers, const TiffEntry *entry, quint32 value)
{
    constexpr quint16 shortType = 3;
    constexpr quint16 longType = 4;
    if (!entry || entry->count != 1 || (entry->type != shortType && entry->type != longType))
        return;
    char *at = block.data() + entry->position;
    numbers.put32(0, at + 8);
    if (entry->type == shortType && value <= 0xffff) {
        numbers.put16(quint16(value), at + 8);
    } else {
        numbers.put16(longType, at + 2);
        numbers.put32(value, at + 8);
    }
}

} // namespace

QByteArray exifBlockInPlace(const QByteArray &block, QSize pixels)
{
    TiffNumbers numbers;
    if (!isTiffHeader(block, numbers))
        return {};
    const TiffDirectory first = firstTiffDirectory(block, numbers);
    if (!first.valid || first.entries.isEmpty())
        return {};
    QByteArray result = first.next == 0 ? block : block.left(endWithoutThumbnail(block, numbers, first.next));
    if (const TiffEntry *pointer = findEntry(first, exifDirectoryTag)) {
        const TiffDirectory exif = tiffDirectory(result, numbers, tiffInteger(result, numbers, *pointer));
        setInteger(result, numbers, findEntry(exif, pixelWidthTag), quint32(pixels.width()));
        setInteger(result, numbers, findEntry(exif, pixelHeightTag), quint32(pixels.height()));
    }
    const bool sound = first.nextAt + 4 <= result.size() && shortenFirstDirectory(result, numbers, first);
    return sound ? result : QByteArray();
}

QByteArray exifBlockWithOrientation(QByteArray block, int orientation)
{
    TiffNumbers numbers;
    if (isTiffHeader(block, numbers))
        setInteger(block, numbers, findEntry(firstTiffDirectory(block, numbers), orientationTag), quint32(orientation));
    return block;
}

QByteArray exifBlockWithResolutionSwapped(QByteArray block)
{
    TiffNumbers numbers;
    if (!isTiffHeader(block, numbers))
        return block;
    constexpr quint16 acrossTag = 0x011a;
    constexpr quint16 downTag = 0x011b;
    constexpr quint16 fractionType = 5; // too long for an entry, which therefore says where it is
    const TiffDirectory first = firstTiffDirectory(block, numbers);
    const TiffEntry *across = findEntry(first, acrossTag);
    const TiffEntry *down = findEntry(first, downTag);
    if (across && down && across->type == fractionType && down->type == fractionType && across->count == down->count)
        std::swap_ranges(block.begin() + across->position + 8, block.begin() + across->position + tiffEntrySize,
                         block.begin() + down->position + 8);
    return block;
}

} // namespace platform
