#include "platform/imageio/png/png_rows.h"

#include "platform/planes/fast_loop.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>
#include <vector>

namespace platform {
namespace {

enum Filter : uchar { Sub = 1, Up = 2, Average = 3, Paeth = 4 };

/** The two rows that the filters use, each preceded by one empty pixel, and the result of each filter. */
class RowFilters
{
public:
    RowFilters(size_t rowBytes, size_t pixelBytes)
        : m_rowBytes(rowBytes), m_pixelBytes(pixelBytes), m_row(rowBytes + pixelBytes), m_above(rowBytes + pixelBytes)
    {
        for (std::vector<uchar> &result : m_results)
            result.resize(rowBytes);
    }

    /** Where the next row is stored; the last one becomes the row above. */
    uchar *nextRow()
    {
        m_row.swap(m_above);
        return m_row.data() + m_pixelBytes;
    }

    /** Writes the row's filter and its filtered bytes. */
    void writeBest(char *out);

private:
    size_t m_rowBytes;
    size_t m_pixelBytes;
    std::vector<uchar> m_row;
    std::vector<uchar> m_above;
    std::array<std::vector<uchar>, 4> m_results;
};

/**
 * Small differences of either sign compress well: the result of a filter is rated by the sum of its absolute values.
 * All of these write the result, and answer that sum.
 */
quint32 counted(uchar difference)
{
    return std::min(difference, uchar(-difference));
}

/** The rows that a filter uses; each pointer is at the first byte of a pixel, of the one before, above, or both. */
struct Neighbours
{
    const uchar *row;
    const uchar *left;
    const uchar *above;
    const uchar *corner;
};

QUORLIN_FAST_LOOP quint32 subtract(const uchar *row, const uchar *from, uchar *__restrict out, size_t count)
{
    quint32 cost = 0;
    for (size_t i = 0; i < count; ++i) {
        out[i] = uchar(row[i] - from[i]);
        cost += counted(out[i]);
    }
    return cost;
}

QUORLIN_FAST_LOOP quint32 subtractAverage(const Neighbours &near, uchar *__restrict out, size_t count)
{
    const Neighbours at = near;
    quint32 cost = 0;
    for (size_t i = 0; i < count; ++i) {
        out[i] = uchar(at.row[i] - ((at.left[i] + at.above[i]) >> 1));
        cost += counted(out[i]);
    }
    return cost;
}

/** In 16 bits, so that a vector holds as many of them as possible. */
QUORLIN_FAST_LOOP quint32 subtractPaeth(const Neighbours &near, uchar *__restrict out, size_t count)
{
    const auto distance = [](qint16 value) { return qint16(value < 0 ? -value : value); };
    const Neighbours at = near;
    quint32 cost = 0;
    for (size_t i = 0; i < count; ++i) {
        const qint16 left = at.left[i];
        const qint16 above = at.above[i];
        const qint16 corner = at.corner[i];
        const qint16 across = qint16(above - corner);
        const qint16 down = qint16(left - corner);
        const qint16 toLeft = distance(across);
        const qint16 toAbove = distance(down);
        const qint16 toCorner = distance(qint16(across + down));
        const qint16 nearer = toAbove <= toCorner ? above : corner;
        const qint16 predicted = toLeft <= toAbove && toLeft <= toCorner ? left : nearer;
        out[i] = uchar(at.row[i] - predicted);
        cost += counted(out[i]);
    }
    return cost;
}

void RowFilters::writeBest(char *out)
{
    const Neighbours near = {m_row.data() + m_pixelBytes, m_row.data(), m_above.data() + m_pixelBytes, m_above.data()};
    const auto into = [this](Filter filter) { return m_results[filter - 1].data(); };
    const std::array<quint32, 4> costs = {
        subtract(near.row, near.left, into(Sub), m_rowBytes), subtract(near.row, near.above, into(Up), m_rowBytes),
        subtractAverage(near, into(Average), m_rowBytes), subtractPaeth(near, into(Paeth), m_rowBytes)};
    const auto best = size_t(std::min_element(costs.begin(), costs.end()) - costs.begin());
    *out = char(best + Sub);
    std::memcpy(out + 1, m_results[best].data(), m_rowBytes);
}

/** Copies a row, swapping the bytes of two-byte components. */
void copyRow(const uchar *from, uchar *to, size_t bytes, bool isDeep)
{
    if (!isDeep) {
        std::memcpy(to, from, bytes);
        return;
    }
    for (size_t i = 0; i + 1 < bytes; i += 2) {
        quint16 component = 0;
        std::memcpy(&component, from + i, sizeof component);
        to[i] = uchar(component >> 8);
        to[i + 1] = uchar(component & 0xff);
    }
}

} // namespace

struct PngRows::Filters : RowFilters
{
    using RowFilters::RowFilters;
};

PngRows::PngRows(QSize size, qsizetype pixelBytes)
    : m_filters(std::make_unique<Filters>(size_t(size.width() * pixelBytes), size_t(pixelBytes))),
      m_rows((size.width() * pixelBytes + 1) * size.height(), Qt::Uninitialized), m_out(m_rows.data()),
      m_rowBytes(size.width() * pixelBytes)
{
}

PngRows::~PngRows() = default;

uchar *PngRows::next()
{
    return m_filters->nextRow();
}

void PngRows::add()
{
    m_filters->writeBest(m_out);
    m_out += m_rowBytes + 1;
}

QByteArray PngRows::take()
{
    return std::move(m_rows);
}

QByteArray filteredRows(const vips::VImage &image)
{
    const bool isDeep = image.format() == VIPS_FORMAT_USHORT;
    const size_t rowBytes = VIPS_IMAGE_SIZEOF_LINE(image.get_image());
    const auto *pixels = static_cast<const uchar *>(image.data());
    PngRows rows({image.width(), image.height()}, qsizetype(VIPS_IMAGE_SIZEOF_PEL(image.get_image())));
    for (int y = 0; y < image.height(); ++y) {
        copyRow(pixels + rowBytes * size_t(y), rows.next(), rowBytes, isDeep);
        rows.add();
    }
    return rows.take();
}

} // namespace platform
