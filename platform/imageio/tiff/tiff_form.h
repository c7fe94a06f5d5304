#pragma once

// Inside platform/ only: how a TIFF file or an EXIF block lays out its numbers and directories, for reading and for writing.

#include <QByteArray>

namespace platform {

/** The size of one element of a value type in bytes; 0 for an unknown type. */
int tiffElementSize(quint16 type);

/** True for the types of whole numbers. */
bool isTiffWholeNumber(quint16 type);

/** Numbers, entries and directories in the byte order and with the offsets that a file has. */
struct TiffForm
{
    bool little = true;
    bool big = false; ///< offsets of 64 bits

    int headerSize() const { return big ? 16 : 8; }
    /** Where the header has the offset of the first directory. */
    int firstAt() const { return big ? 8 : 4; }
    int countSize() const { return big ? 8 : 2; } ///< of the count of entries
    int entrySize() const { return big ? 20 : 12; }
    int offsetSize() const { return big ? 8 : 4; }   ///< also the space for a value inside an entry
    int fieldAt() const { return 4 + offsetSize(); } ///< where in an entry its value or the value's offset stands
    bool operator==(const TiffForm &) const = default;

    /** The number of @p size bytes at @p at. */
    quint64 number(const char *at, int size) const;
    void put(quint64 number, int size, char *at) const;
    QByteArray bytes(quint64 number, int size) const;
    /** The number as bytes that fill the space for an offset. */
    QByteArray offset(quint64 number) const { return bytes(number, offsetSize()); }

    /** One entry. @param field  the value, or its offset(); filled up with zeros */
    QByteArray entry(quint16 tag, quint16 type, quint64 count, const QByteArray &field) const;
    /** A directory of such entries, which have to be sorted by tag, and the offset of the next one; 0: it is the last. */
    QByteArray directory(const QByteArray &entries, quint64 next) const;
};

/**
 * Appends @p more so that its offset in the file is even, as the format wants it. @p bytes stand at @p start in the file.
 * @return that offset
 */
quint64 appendEven(QByteArray &bytes, const QByteArray &more, qint64 start = 0);

} // namespace platform
