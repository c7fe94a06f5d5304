#include "platform/imageio/exif_in_place.h"

#include "platform/imageio/tiff_reader.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

constexpr quint16 orientationTag = 0x0112;
constexpr quint16 exifDirectoryTag = 0x8769;
constexpr quint16 pixelWidthTag = 0xa002;
constexpr quint16 pixelHeightTag = 0xa003;
constexpr quint16 thumbnailOffsetTag = 0x0201;
constexpr quint16 thumbnailSizeTag = 0x0202;

/** Sorted. YCbCrPositioning is not among them: every EXIF file has to state it. */
constexpr std::array<quint16, 59> structureTags = {
    0x00fe, 0x00ff, 0x0100, 0x0101, 0x0102, 0x0103, 0x0106, 0x0107, 0x0108, 0x0109, 0x010a, 0x0111,
    0x0115, 0x0116, 0x0117, 0x0118, 0x0119, 0x011c, 0x0120, 0x0121, 0x0122, 0x0123, 0x0124, 0x0125,
    0x0129, 0x012d, 0x013d, 0x0140, 0x0141, 0x0142, 0x0143, 0x0144, 0x0145, 0x014a, 0x014c, 0x014d,
    0x014e, 0x0150, 0x0151, 0x0152, 0x0153, 0x0154, 0x0155, 0x0156, 0x015b, 0x0200, 0x0201, 0x0202,
    0x0203, 0x0205, 0x0206, 0x0207, 0x0208, 0x0209, 0x0211, 0x0212, 0x0214, 0x828d, 0x828e};
static_assert(std::is_sorted(structureTags.begin(), structureTags.end()));

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

bool describesStructure(quint16 tag)
{
    return std::binary_search(structureTags.begin(), structureTags.end(), tag);
}

bool describesOtherData(quint16 tag)
{
    constexpr std::array<quint16, 5> carriedElsewhere = {0x02bc, 0x83bb, 0x8649, 0x8773, 0x935c};
    constexpr quint16 firstRawTag = 0xc612;
    constexpr quint16 lastRawTag = 0xcd3f;
    return std::find(carriedElsewhere.begin(), carriedElsewhere.end(), tag) != carriedElsewhere.end() ||
           (tag >= firstRawTag && tag <= lastRawTag);
}

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
