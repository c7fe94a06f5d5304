#pragma once

// Inside platform/ only: the directories of a TIFF file or an EXIF block, read and changed byte by byte.

#include <QByteArray>
#include <QList>
#include <QtEndian>

namespace platform {

/** The size of one element of a TIFF value type in bytes; 0 for an unknown type. */
constexpr int tiffElementSize(quint32 type)
{
    constexpr int sizes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < std::size(sizes) ? sizes[type] : 0;
}

/** Numbers in the byte order of a TIFF header. */
struct TiffNumbers
{
    bool little = true;

    quint16 u16(const char *at) const { return little ? qFromLittleEndian<quint16>(at) : qFromBigEndian<quint16>(at); }
    quint32 u32(const char *at) const { return little ? qFromLittleEndian<quint32>(at) : qFromBigEndian<quint32>(at); }
    void put16(quint16 value, char *at) const
    {
        little ? qToLittleEndian<quint16>(value, at) : qToBigEndian<quint16>(value, at);
    }
    void put32(quint32 value, char *at) const
    {
        little ? qToLittleEndian<quint32>(value, at) : qToBigEndian<quint32>(value, at);
    }
    bool operator==(const TiffNumbers &) const = default;
};

/** One entry of a directory, and where its parts lie. All offsets have been checked against the bytes. */
struct TiffEntry
{
    quint16 tag = 0;
    quint16 type = 0;
    quint32 count = 0;
    qint64 position = 0;  ///< of the 12 bytes of the entry
    qint64 valueAt = 0;   ///< of the value itself, in the entry or elsewhere
    qint64 valueSize = 0; ///< in bytes
    bool isInline() const { return valueSize <= 4; }
};

struct TiffDirectory
{
    bool valid = false;
    QList<TiffEntry> entries; ///< entries of unknown type or with a value outside the bytes are left out
    qint64 position = 0;
    qint64 nextAt = 0; ///< of the offset of the next directory
    quint32 next = 0;
};

constexpr qint64 tiffEntrySize = 12;
constexpr qint64 tiffHeaderSize = 8;

/** True for the header of a classic TIFF; @p numbers gets its byte order. */
bool isTiffHeader(const QByteArray &bytes, TiffNumbers &numbers);

/** The directory at @p offset; not valid where it does not fit into @p bytes. */
TiffDirectory tiffDirectory(const QByteArray &bytes, const TiffNumbers &numbers, qint64 offset);

/** The first directory, to which the header leads. */
TiffDirectory firstTiffDirectory(const QByteArray &bytes, const TiffNumbers &numbers);

/** The entry of a tag; null where there is none. */
const TiffEntry *findEntry(const TiffDirectory &directory, quint16 tag);

/** Element @p index of a SHORT or LONG value; 0 for other types and beyond the end. */
quint32 tiffInteger(const QByteArray &bytes, const TiffNumbers &numbers, const TiffEntry &entry, quint32 index = 0);

} // namespace platform
