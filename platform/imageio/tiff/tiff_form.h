#pragma once

// Inside platform/ only: the layout of numbers and directories in a TIFF file or an EXIF block, for reading and
// writing.

#include <QByteArray>

namespace platform {

/** The size of one element of a value type in bytes; 0 for an unknown type. */
int tiffElementSize(quint16 type);

/** True for the types of whole numbers. */
bool isTiffWholeNumber(quint16 type);

/** Numbers, entries and directories in a file's byte order and offset size. */
struct TiffForm
{
    bool little = true;
    bool big = false; ///< 64-bit offsets

    int headerSize() const { return big ? 16 : 8; }
    /** Where the header stores the offset of the first directory. */
    int firstAt() const { return big ? 8 : 4; }
    int countSize() const { return big ? 8 : 2; } ///< of the count of entries
    int entrySize() const { return big ? 20 : 12; }
    int offsetSize() const { return big ? 8 : 4; }   ///< also the space for a value inside an entry
    int fieldAt() const { return 4 + offsetSize(); } ///< where an entry has its value or the value's offset
    bool operator==(const TiffForm &) const = default;

    /** The number of @p size bytes at @p at. */
    quint64 number(const char *at, int size) const;
    void put(quint64 number, int size, char *at) const;
    QByteArray bytes(quint64 number, int size) const;
    /** The number in bytes, padded to the size of an offset. */
    QByteArray offset(quint64 number) const { return bytes(number, offsetSize()); }

    /** One entry. @param field  the value, or its offset(); padded with zeros */
    QByteArray entry(quint16 tag, quint16 type, quint64 count, const QByteArray &field) const;
    /** A directory of such entries, which must be sorted by tag, and the offset of the next one; 0: it is the last. */
    QByteArray directory(const QByteArray &entries, quint64 next) const;
};

/**
 * Appends @p more at an even offset in the file, as the format requires. @p bytes start at @p start in the file.
 * @return that offset
 */
quint64 appendEven(QByteArray &bytes, const QByteArray &more, qint64 start = 0);

} // namespace platform
