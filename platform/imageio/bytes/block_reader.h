#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QIODevice>
#include <QtEndian>

namespace platform {

/**
 * Small pieces of a file by offset, read in blocks: a pass over millions of tiny parts takes some hundred reads, and a
 * step from one large part to the next does not read what is in between.
 */
class BlockReader
{
public:
    explicit BlockReader(QIODevice &file) : m_file(file), m_size(file.size()) {}

    qint64 size() const { return m_size; }
    /**
     * Up to @p count bytes, at most largestPiece; fewer at the end of the file. A view that the next call may
     * invalidate.
     */
    QByteArrayView at(qint64 position, qsizetype count);
    /** All of @p count bytes, however many; empty if they are not all there. */
    QByteArray all(qint64 position, qint64 count);
    /** The whole number of 1 to 8 bytes at @p position; -1 if it is outside the file or does not fit. */
    qint64 number(qint64 position, qsizetype bytes, bool isLittle = false);

    static constexpr qsizetype largestPiece = 4096;

private:
    QIODevice &m_file;
    qint64 m_size;
    qint64 m_start = 0;
    QByteArray m_block;
};

} // namespace platform
