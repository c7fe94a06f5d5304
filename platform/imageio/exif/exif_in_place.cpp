#include "platform/imageio/exif/exif_in_place.h"

#include "platform/imageio/tiff/structure_tags.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <QMap>

#include <algorithm>
#include <cmath>

// An EXIF block is a TIFF file without a picture, in which offsets count from its first byte:
//
//     "II" or "MM", 42, offset | directory 0 ... | EXIF, GPS directories | values, maker notes | directory 1 | thumbnail
//     directory: number of entries (2 bytes) | entries of 12 bytes: tag, type, count, value or its offset | next directory
//
// Maker notes may contain offsets of the same kind that nobody can find, so nothing is moved: a directory is shortened
// in place, and only the end of the block is cut.

namespace platform {
namespace {

/** Where the thumbnail's picture begins if it is at the end of the block and can be cut off; else the block's size. */
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

/** Writes the kept entries of the first directory over it, without the removed ones. */
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

/** Sets a SHORT or LONG of one element in place. */
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
    // A fraction is too long for an entry, which therefore has its offset.
    const qint64 field = reader.form().fieldAt();
    if (isFraction(across) && isFraction(down) && across->count == down->count)
        std::swap_ranges(block.begin() + across->at + field, block.begin() + across->at + reader.form().entrySize(),
                         block.begin() + down->at + field);
    return block;
}

namespace {

QByteArray fractionOf(const TiffForm &form, double value)
{
    constexpr quint32 parts = 10000;
    const bool isWhole = std::abs(value - std::round(value)) < 0.5 / parts;
    const quint32 divisor = isWhole ? 1 : parts;
    return form.bytes(quint64(std::llround(value * divisor)), 4) + form.bytes(divisor, 4);
}

void fillWithZeros(QByteArray &block, const TiffRange &range)
{
    block.replace(range.start, range.size, QByteArray(range.size, '\0'));
}

/** Zeros over the values of a directory that are outside of it, and over the directory. */
void eraseDirectory(QByteArray &block, const TiffDirectory &directory)
{
    for (const TiffEntry &entry : directory.entries)
        if (entry.isSound() && entry.value.start >= TiffForm().headerSize())
            fillWithZeros(block, entry.value);
    fillWithZeros(block, directory.range);
}

/** A directory rewritten in place without one of its entries; the freed room becomes zeros. */
void writeWithout(QByteArray &block, const TiffForm &form, const TiffDirectory &directory, quint16 tag)
{
    QByteArray kept;
    for (const TiffEntry &entry : directory.entries)
        if (entry.tag != tag)
            kept += block.mid(entry.at, form.entrySize());
    const QByteArray shortened = form.directory(kept, directory.next);
    block.replace(directory.range.start, directory.range.size, shortened.leftJustified(directory.range.size, '\0'));
}

bool overlapsAnyOther(const TiffDirectory &directory, const TiffDirectory &other)
{
    return std::any_of(other.entries.begin(), other.entries.end(), [&](const TiffEntry &entry) {
        return entry.isSound() && !entry.isInline && entry.value.overlaps(directory.range);
    });
}

/** The block without its second directory, and without the thumbnail's picture if that is at the end. */
QByteArray withoutThumbnail(const QByteArray &block)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.first();
    if (first.next == 0)
        return block;
    QByteArray result = block.left(endWithoutThumbnail(reader, first.next));
    return result.replace(first.nextAt, reader.form().offsetSize(), reader.form().offset(0));
}

/** Sets one fraction in place; false if it does not exist. */
bool setFraction(QByteArray &block, const TiffForm &form, const TiffEntry *entry, double value)
{
    const bool hasPlace = entry && entry->isSound() && entry->type == tiffType::fractionType && entry->count == 1;
    if (hasPlace)
        block.replace(entry->value.start, entry->value.size, fractionOf(form, value));
    return hasPlace;
}

/** The first directory at the end of the block, with these entries replacing those that it had. */
QByteArray withNewFirst(const QByteArray &block, QMap<quint16, QByteArray> entries)
{
    const TiffReader reader(block);
    const TiffForm &form = reader.form();
    const TiffDirectory first = reader.first();
    for (const TiffEntry &entry : first.entries)
        if (!entries.contains(entry.tag))
            entries.insert(entry.tag, block.mid(entry.at, form.entrySize()));
    QByteArray result = block;
    if (first.valid)
        fillWithZeros(result, first.range);
    const quint64 place = appendEven(result, form.directory(QByteArrayList(entries.values()).join(), 0));
    return result.replace(form.firstAt(), form.offsetSize(), form.offset(place));
}

} // namespace

QByteArray exifBlockWithResolution(const QByteArray &block, double horizontal, double vertical)
{
    QByteArray result = block.isEmpty() ? QByteArray("II*\0\0\0\0\0", 8) : block;
    const TiffReader reader(result);
    const TiffDirectory first = reader.first();
    const TiffForm form = reader.form();
    if (!reader.isClassic() || (!first.valid && reader.firstOffset() != 0))
        return {};
    constexpr quint32 inches = 2;
    const TiffEntry *unit = first.findSound(tiffTag::resolutionUnit);
    QByteArray inPlace = result;
    if (unit && setFraction(inPlace, form, first.findSound(tiffTag::resolutionAcross), horizontal) &&
        setFraction(inPlace, form, first.findSound(tiffTag::resolutionDown), vertical)) {
        setInteger(inPlace, form, unit, inches);
        return inPlace;
    }
    result = withoutThumbnail(result);
    const auto fraction = [&](quint16 tag, double value) {
        const quint64 place = appendEven(result, fractionOf(form, value));
        return form.entry(tag, tiffType::fractionType, 1, form.offset(place));
    };
    QMap<quint16, QByteArray> entries;
    entries.insert(tiffTag::resolutionAcross, fraction(tiffTag::resolutionAcross, horizontal));
    entries.insert(tiffTag::resolutionDown, fraction(tiffTag::resolutionDown, vertical));
    entries.insert(tiffTag::resolutionUnit,
                   form.entry(tiffTag::resolutionUnit, tiffType::shortType, 1, form.bytes(inches, 2)));
    return withNewFirst(result, entries);
}

QByteArray exifBlockWithoutPlace(const QByteArray &block)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.first();
    if (!reader.isClassic() || !first.valid)
        return {};
    const TiffEntry *pointer = first.find(tiffTag::gpsDirectory);
    if (!pointer)
        return block;
    QByteArray result = block;
    const TiffDirectory place = reader.directory(reader.integer(*pointer));
    const bool isTangled = std::any_of(place.entries.begin(), place.entries.end(), [&](const TiffEntry &entry) {
        return entry.isSound() && entry.value.overlaps(first.range);
    });
    if (isTangled || place.range.overlaps(first.range) || overlapsAnyOther(place, first))
        return {};
    eraseDirectory(result, place);
    writeWithout(result, reader.form(), first, tiffTag::gpsDirectory);
    return result;
}

QByteArray exifBlockWithoutMakerNote(const QByteArray &block)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.first();
    if (!reader.isClassic() || !first.valid)
        return {};
    const TiffEntry *pointer = first.find(tiffTag::exifDirectory);
    const TiffDirectory exif = pointer ? reader.directory(reader.integer(*pointer)) : TiffDirectory();
    const TiffEntry *note = exif.find(tiffTag::makerNote);
    if (!note)
        return block;
    if (!note->isSound() || note->value.overlaps(first.range) || note->value.overlaps(exif.range))
        return {};
    QByteArray result = block;
    fillWithZeros(result, note->value);
    writeWithout(result, reader.form(), exif, tiffTag::makerNote);
    return result;
}

} // namespace platform
