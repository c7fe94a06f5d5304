#include "platform/imageio/exif/exif_in_place.h"

#include "platform/imageio/tiff/structure_tags.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

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

/** Where the thumbnail's picture begins if it is the end of the block and can be cut off; else the block's size. */
qsizetype endWithoutThumbnail(const TiffReader &reader, quint64 directoryOffset)
{
    const TiffDirectory directory = reader.directory(directoryOffset);
    if (!directory.findSound(tiffTag::jpegOffset) || !directory.findSound(tiffTag::jpegSize))
        return qsizetype(reader.size());
    const auto start = qint64(reader.integer(directory, tiffTag::jpegOffset));
    const auto end = start + qint64(reader.integer(directory, tiffTag::jpegSize));
    constexpr qint64 padding = 4;
    const bool isTheEnd = start > directory.nextAt && end <= reader.size() && end + padding >= reader.size();
    return isTheEnd ? qsizetype(start) : qsizetype(reader.size());
}

/** Writes the kept entries of the first directory over it, shorter by what was taken out. */
bool shortenFirstDirectory(QByteArray &block, const TiffForm &form, const TiffDirectory &directory)
{
    QByteArray kept;
    for (const TiffEntry &entry : directory.entries)
        if (entry.isSound() && !describesStructure(entry.tag) && !describesOtherData(entry.tag))
            kept += block.mid(entry.at, form.entrySize());
    if (kept.isEmpty())
        return false;
    const QByteArray shortened = form.directory(kept, 0);
    block.replace(directory.range.start, shortened.size(), shortened);
    return true;
}

/** Sets a SHORT or LONG of one element where it stands. */
void setInteger(QByteArray &block, const TiffForm &form, const TiffEntry *entry, quint32 value)
{
    if (!entry || entry->count != 1 || (entry->type != tiffType::shortType && entry->type != tiffType::longType))
        return;
    const bool isShort = entry->type == tiffType::shortType && value <= 0xffff;
    const QByteArray written = isShort ? form.entry(entry->tag, tiffType::shortType, 1, form.bytes(value, 2))
                                       : form.entry(entry->tag, tiffType::longType, 1, form.bytes(value, 4));
    block.replace(entry->at, written.size(), written);
}

} // namespace

QByteArray exifBlockInPlace(const QByteArray &block, QSize pixels)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.first();
    if (!reader.isClassic() || first.entries.isEmpty())
        return {};
    QByteArray result = first.next == 0 ? block : block.left(endWithoutThumbnail(reader, first.next));
    if (const TiffEntry *pointer = first.findSound(tiffTag::exifDirectory)) {
        const QByteArray kept = result;
        const TiffDirectory exif = TiffReader(kept).directory(reader.integer(*pointer));
        setInteger(result, reader.form(), exif.findSound(tiffTag::pixelWidth), quint32(pixels.width()));
        setInteger(result, reader.form(), exif.findSound(tiffTag::pixelHeight), quint32(pixels.height()));
    }
    const bool isSound = first.range.end() <= result.size() && shortenFirstDirectory(result, reader.form(), first);
    return isSound ? result : QByteArray();
}

QByteArray exifBlockWithOrientation(QByteArray block, int orientation)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.isClassic() ? reader.first() : TiffDirectory();
    setInteger(block, reader.form(), first.findSound(tiffTag::orientation), quint32(orientation));
    return block;
}

QByteArray exifBlockWithResolutionSwapped(QByteArray block)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.isClassic() ? reader.first() : TiffDirectory();
    const TiffEntry *across = first.findSound(tiffTag::resolutionAcross);
    const TiffEntry *down = first.findSound(tiffTag::resolutionDown);
    const auto isFraction = [](const TiffEntry *entry) { return entry && entry->type == tiffType::fractionType; };
    // A fraction is too long for an entry, which therefore says where it is.
    const qint64 field = reader.form().fieldAt();
    if (isFraction(across) && isFraction(down) && across->count == down->count)
        std::swap_ranges(block.begin() + across->at + field, block.begin() + across->at + reader.form().entrySize(),
                         block.begin() + down->at + field);
    return block;
}

} // namespace platform
