#pragma once

// Inside platform/ only: the directories of a TIFF file or an EXIF block, classic or with 64-bit offsets.

#include "platform/imageio/bytes/block_reader.h"
#include "platform/imageio/tiff/tiff_form.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace platform {

struct TiffRange
{
    qint64 start = 0;
    qint64 size = 0;
    qint64 end() const { return start + size; }
    bool overlaps(const TiffRange &other) const { return start < other.end() && other.start < end(); }
};

/** Whether a value can be read. */
enum class TiffValue {
    Sound,    ///< of a known type and within the bytes
    Outside,  ///< of a known type, but elsewhere
    Nonsense, ///< of an unknown type, or longer than all the bytes
};

/** One entry; if it is not sound, only tag, type, count and position may be trusted. */
struct TiffEntry
{
    quint16 tag = 0;
    quint16 type = 0;
    quint64 count = 0;
    qint64 at = 0;   ///< of the entry
    TiffRange value; ///< empty if it is not sound
    TiffValue state = TiffValue::Nonsense;
    bool isInline = false; ///< the value is in the entry
    bool isSound() const { return state == TiffValue::Sound; }
};

struct TiffDirectory
{
    bool valid = false; ///< it is within the bytes; else it has no entries
    TiffRange range;    ///< of the whole directory
    QList<TiffEntry> entries;
    qint64 nextAt = 0; ///< where the offset of the next directory is
    quint64 next = 0;

    /** The first entry of a tag; null if there is none. */
    const TiffEntry *find(quint16 tag) const;
    /** The first one whose value can be read. */
    const TiffEntry *findSound(quint16 tag) const;
};

/**
 * Reads directories by their offsets. Nothing outside the bytes is touched, whatever they say; the caller must detect
 * cycles.
 */
class TiffReader
{
public:
    /** @p bytes must stay in place while this lives. */
    explicit TiffReader(const QByteArray &bytes);
    /** Over a file, which is read in blocks, as little of it as needed. What cannot be read counts as missing. */
    explicit TiffReader(QIODevice &file);

    /**
     * The header is one of TIFF. Without one, numbers are read as in a classic file, for files with a maker's own mark.
     */
    bool isValid() const { return m_isValid; }
    bool isClassic() const { return m_isValid && !m_form.big; }
    const TiffForm &form() const { return m_form; }
    /** Something inside the file could not be read: answers since then may be incomplete. */
    bool hasFailed() const { return m_hasFailed; }
    qint64 size() const { return m_blocks ? m_blocks->size() : m_bytes.size(); }

    /** The offset of the first directory. */
    quint64 firstOffset() const { return number(m_form.firstAt(), m_form.offsetSize()); }
    /** That directory; not valid without a TIFF header. */
    TiffDirectory first() const { return m_isValid ? directory(firstOffset()) : TiffDirectory(); }
    enum class End {
        Stated, ///< without the offset of the next one the directory is invalid
        MayBeCut,
    };
    TiffDirectory directory(quint64 offset, End end = End::Stated) const;

    /** Element @p index of an integer value; 0 for other types, beyond the end and if the entry is not sound. */
    quint64 integer(const TiffEntry &entry, quint64 index = 0) const;
    /** The first element of the value of a tag; @p otherwise if there is no such number. */
    quint64 integer(const TiffDirectory &directory, quint16 tag, quint64 otherwise = 0) const;
    /** The bytes of a value; empty if it is not sound or longer than @p longest. */
    QByteArray value(const TiffEntry &entry, qint64 longest) const;

private:
    void readHeader();
    TiffEntry entryAt(qint64 at) const;
    QByteArrayView at(qint64 position, qsizetype count) const;
    quint64 number(qint64 position, int bytes) const;

    QByteArrayView m_bytes;
    mutable std::optional<BlockReader> m_blocks; ///< a cache over the file, if reading from one
    mutable bool m_hasFailed = false;
    TiffForm m_form;
    bool m_isValid = false;
};

} // namespace platform
