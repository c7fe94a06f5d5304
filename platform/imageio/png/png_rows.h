#pragma once

// Private to the platform.

#include <QByteArray>
#include <QSize>

#include <memory>

#include <vips/vips8>

namespace platform {

/**
 * Takes pixels row by row and makes the rows of a PNG file from them: each preceded by the number of its filter, the one
 * that compresses best. Throws std::bad_alloc.
 */
class PngRows
{
public:
    PngRows(QSize size, qsizetype pixelBytes);
    ~PngRows();
    PngRows(const PngRows &) = delete;
    PngRows &operator=(const PngRows &) = delete;

    /** Where the next row goes. */
    uchar *next();
    /** Filters what was put there. */
    void add();
    /** All rows, once they were added. */
    QByteArray take();

private:
    struct Filters;
    std::unique_ptr<Filters> m_filters;
    QByteArray m_rows;
    char *m_out;
    qsizetype m_rowBytes;
};

/**
 * The pixels of an image in memory, 8 or 16 bits a component, as the rows of a PNG file: two-byte components
 * big-endian, filtered as by PngRows.
 */
QByteArray filteredRows(const vips::VImage &image);

} // namespace platform
