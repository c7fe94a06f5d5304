#pragma once

// Inside platform/ only: the directories of a TIFF file or an EXIF block, classic or big, for changing them byte by byte.

#include <QByteArray>
#include <QList>

namespace platform {

/** How numbers and directories are laid out. */
struct TiffForm
{
    bool little = true;
    bool big = false; ///< offsets of 64 bits

    int countSize() const { return big ? 8 : 2; } ///< of the count of entries
    int entrySize() const { return big ? 20 : 12; }
    int offsetSize() const { return big ? 8 : 4; } ///< also the space for a value inside an entry
    quint64 number(const char *at, int size) const;
    QByteArray bytes(quint64 number, int size) const;
};

struct TiffRange
{
    qint64 start = 0;
    qint64 size = 0;
    qint64 end() const { return start + size; }
    bool overlaps(const TiffRange &other) const { return start < other.end() && other.start < end(); }
};

/** One entry; where it is not sound nothing but tag, type and place may be believed. */
struct TiffTag
{
    quint16 tag = 0;
    quint16 type = 0;
    quint64 count = 0;
    qint64 at = 0; ///< of the entry
    TiffRange value;
    bool isSound = false; ///< of a known type and with its value inside the bytes
    bool isInline = false;
};

struct TiffTags
{
    bool valid = false;
    TiffRange range; ///< of the whole directory
    QList<TiffTag> tags;
    qint64 nextAt = 0; ///< where the offset of the next directory stands
    quint64 next = 0;

    const TiffTag *find(quint16 tag) const;
};

/** What is known to be in use, and whether that is all. */
struct TiffExtents
{
    QList<TiffRange> ranges;
    QList<TiffRange> pixels; ///< those of them that are pixels
    bool isComplete = true;  ///< nothing was met that may lead to bytes elsewhere
};

class TiffTree
{
public:
    /** @p bytes must stay where they are while this lives. */
    explicit TiffTree(const QByteArray &bytes);

    /** The header is one of TIFF. */
    bool isValid() const { return m_isValid; }
    const TiffForm &form() const { return m_form; }
    qint64 headerSize() const { return m_form.big ? 16 : 8; }
    /** Where the header has the offset of the first directory. */
    qint64 firstAt() const { return m_form.big ? 8 : 4; }
    TiffTags first() const;
    TiffTags directory(quint64 offset) const;
    /** Element @p index of a whole-numbered value; 0 for other types and beyond the end. */
    quint64 integer(const TiffTag &tag, quint64 index = 0) const;

    enum class Pages { First, All };
    /** Everything that the first directory, or all of them, lead to. */
    TiffExtents extents(Pages pages) const;

private:
    class Walk;
    TiffTag tagAt(qint64 at) const;

    const QByteArray &m_bytes;
    TiffForm m_form;
    bool m_isValid = false;
};

} // namespace platform
