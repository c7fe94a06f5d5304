#include "platform/imageio/whole/whole_tiff.h"

#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <QList>
#include <QSet>

#include <algorithm>

namespace platform {
namespace {

class Walk
{
public:
    explicit Walk(QIODevice &file) : m_file(file), m_offsets(file), m_lengths(file) {}

    bool isWhole()
    {
        follow(m_file.firstOffset(), Place::Page);
        while (m_isSound && !m_waiting.isEmpty())
            readDirectory(m_waiting.takeLast());
        const bool isAllRead = !m_file.hasFailed() && !m_offsets.hasFailed() && !m_lengths.hasFailed();
        return m_isSound && isAllRead && !m_seen.isEmpty();
    }

private:
    /**
     * What a camera notes about a picture may be damaged and is copied as it is: the picture is complete without it.
     */
    enum class Place { Page, Below, Notes };

    struct Waiting
    {
        quint64 offset = 0;
        Place place = Place::Page;
    };

    /** A directory still to be read; 0 means none. */
    void follow(quint64 offset, Place place)
    {
        constexpr qsizetype mostDirectories = 100'000;
        if (offset == 0 || m_seen.contains(offset))
            return;
        if (offset >= quint64(m_file.size()) || m_seen.size() >= mostDirectories) {
            m_isSound = m_isSound && place == Place::Notes;
            return;
        }
        m_seen.insert(offset);
        m_waiting.append({offset, place});
    }

    void readDirectory(Waiting waiting)
    {
        // Some directories below a page omit the offset of the next one if they end the file.
        const auto end = waiting.place == Place::Page ? TiffReader::End::Stated : TiffReader::End::MayBeCut;
        const TiffDirectory directory = m_file.directory(waiting.offset, end);
        m_isSound = m_isSound && (directory.valid || waiting.place == Place::Notes);
        if (waiting.place != Place::Notes)
            for (const TiffEntry &entry : directory.entries)
                takeEntry(entry);
        follow(directory.next, waiting.place);
        if (waiting.place != Place::Notes)
            checkPixels(directory);
    }

    void takeEntry(const TiffEntry &entry)
    {
        // A value longer than the whole file is nonsense in one entry, which writers copy, and no sign of truncation:
        // the pixels are after it or before the directory, and are checked where they should be.
        m_isSound = m_isSound && entry.state != TiffValue::Outside;
        if (entry.tag == tiffTag::subDirectories)
            followAll(entry, Place::Below);
        else if (entry.tag == tiffTag::exifDirectory || entry.tag == tiffTag::gpsDirectory)
            followAll(entry, Place::Notes);
    }

    void followAll(const TiffEntry &directories, Place place)
    {
        constexpr quint64 mostBelowOne = 1000;
        for (quint64 index = 0; m_isSound && index < std::min(directories.count, mostBelowOne); ++index)
            follow(m_file.integer(directories, index), place);
    }

    void checkPixels(const TiffDirectory &directory)
    {
        checkParts(directory.find(tiffTag::stripOffsets), directory.find(tiffTag::stripSizes));
        checkParts(directory.find(tiffTag::tileOffsets), directory.find(tiffTag::tileSizes));
        constexpr quint64 oldJpeg = 6; // its lengths are known to be wrong in good files
        if (m_file.integer(directory, tiffTag::compression) != oldJpeg)
            checkPart(m_file.integer(directory, tiffTag::jpegOffset), m_file.integer(directory, tiffTag::jpegSize));
    }

    void checkParts(const TiffEntry *offsets, const TiffEntry *lengths)
    {
        if (!offsets)
            return;
        m_isSound = m_isSound && !runsOut(*offsets) && !(lengths && runsOut(*lengths));
        for (quint64 index = 0; m_isSound && offsets->isSound() && index < offsets->count; ++index)
            checkPart(m_offsets.integer(*offsets, index), lengths ? m_lengths.integer(*lengths, index) : 0);
    }

    /** A list of numbers whose count would fit in the file, but which is longer. */
    bool runsOut(const TiffEntry &list) const
    {
        return list.state == TiffValue::Nonsense && isTiffWholeNumber(list.type) &&
               list.count <= quint64(m_file.size());
    }

    void checkPart(quint64 offset, quint64 length)
    {
        constexpr quint64 elsewhere = 0xffffffff; // a maker's own tag says where
        if (offset == elsewhere || (offset == 0 && length == 0))
            return;
        const auto size = quint64(m_file.size());
        m_isSound = m_isSound && offset <= size && length <= size - offset;
    }

    TiffReader m_file;
    // Two long lists that are read in parallel, each in separate blocks.
    TiffReader m_offsets;
    TiffReader m_lengths;
    bool m_isSound = true;
    QSet<quint64> m_seen;
    QList<Waiting> m_waiting;
};

} // namespace

bool isWholeTiff(QIODevice &file)
{
    return Walk(file).isWhole();
}

} // namespace platform
