#include "platform/imageio/tiff/tiff_extents.h"

#include "platform/imageio/tiff/tiff_tags.h"

#include <QSet>

#include <algorithm>

namespace platform {
namespace {

bool isDirectoryTag(quint16 tag)
{
    return tag == tiffTag::exifDirectory || tag == tiffTag::gpsDirectory || tag == tiffTag::subDirectories ||
           tag == tiffTag::interoperabilityDirectory;
}

/** Tags whose contents have their own offsets. */
bool hidesOffsets(quint16 tag)
{
    return tag == tiffTag::makerNote || tag >= tiffTag::dngVersion ||
           (tag >= tiffTag::firstOldJpegTable && tag <= tiffTag::lastOldJpegTable);
}

/** One pass over everything; directories that form a cycle are entered once. */
class Walk
{
public:
    explicit Walk(const TiffReader &reader) : m_reader(reader) {}

    void enter(quint64 offset, TiffPages pages)
    {
        while (offset != 0) {
            constexpr int mostDirectories = 256;
            if (m_entered.contains(offset) || m_entered.size() >= mostDirectories) {
                m_extents.isComplete = false;
                return;
            }
            m_entered.insert(offset);
            const TiffDirectory directory = m_reader.directory(offset);
            if (!directory.valid) {
                m_extents.isComplete = false;
                return;
            }
            take(directory);
            offset = pages == TiffPages::All ? directory.next : 0;
        }
    }
    TiffExtents extents() const { return m_extents; }

private:
    void take(const TiffDirectory &directory)
    {
        add(directory.range);
        for (const TiffEntry &entry : directory.entries) {
            m_extents.isComplete = m_extents.isComplete && entry.isSound() && !hidesOffsets(entry.tag);
            if (entry.isSound() && !entry.isInline)
                add(entry.value);
            if (isDirectoryTag(entry.tag))
                for (quint64 i = 0; i < std::min<quint64>(entry.count, 64); ++i)
                    enter(m_reader.integer(entry, i), TiffPages::First);
        }
        takePixels(directory, tiffTag::stripOffsets, tiffTag::stripSizes);
        takePixels(directory, tiffTag::tileOffsets, tiffTag::tileSizes);
        takePixels(directory, tiffTag::jpegOffset, tiffTag::jpegSize); // a thumbnail
    }

    void add(const TiffRange &range)
    {
        if (m_extents.ranges.size() < mostRanges)
            m_extents.ranges.append(range);
        else
            m_extents.isComplete = false;
    }

    void takePixels(const TiffDirectory &directory, quint16 offsetsTag, quint16 sizesTag)
    {
        const TiffEntry *offsets = directory.find(offsetsTag);
        if (!offsets)
            return;
        const TiffEntry *sizes = directory.find(sizesTag);
        if (!sizes || !sizes->isSound() || !offsets->isSound() || sizes->count != offsets->count) {
            m_extents.isComplete = false;
            return;
        }
        for (quint64 i = 0; i < offsets->count && m_extents.ranges.size() < mostRanges; ++i) {
            const auto all = quint64(m_reader.size());
            const quint64 start = m_reader.integer(*offsets, i);
            const quint64 size = m_reader.integer(*sizes, i);
            if (start > all || size > all - start) {
                m_extents.isComplete = false;
                continue;
            }
            add({qint64(start), qint64(size)});
            if (size > 0)
                m_extents.pixels.append({qint64(start), qint64(size)});
        }
    }

    /** Only a file that tries to exhaust memory has more of them. */
    static constexpr qsizetype mostRanges = 1 << 20;

    const TiffReader &m_reader;
    TiffExtents m_extents;
    QSet<quint64> m_entered;
};

} // namespace

TiffExtents tiffExtents(const TiffReader &reader, TiffPages pages)
{
    Walk walk(reader);
    walk.enter(reader.isValid() ? reader.firstOffset() : 0, pages);
    return walk.extents();
}

} // namespace platform
