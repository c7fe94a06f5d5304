#include "platform/imageio/png/png_rows.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <vector>

namespace platform {
namespace {

enum Filter : uchar { Sub = 1, Up = 2, Average = 3, Paeth = 4 };

/** The two rows that the filters look at, with one empty pixel in front of each, and what each filter makes of them. */
class RowFilters
{
public:
    RowFilters(size_t rowBytes, size_t pixelBytes)
        : m_rowBytes(rowBytes), m_pixelBytes(pixelBytes), m_row(rowBytes + pixelBytes), m_above(rowBytes + pixelBytes)
    {
        for (std::vector<uchar> &result : m_results)
            result.resize(rowBytes);
    }

    /** Where the next row goes; the last one becomes the row above. */
    uchar *nextRow()
    {
        m_row.swap(m_above);
        return m_row.data() + m_pixelBytes;
    }

    /** Writes the row's filter and its filtered bytes. */
    void writeBest(char *out);

private:
    void filterAll();

    size_t m_rowBytes;
    size_t m_pixelBytes;
    std::vector<uchar> m_row;
    std::vector<uchar> m_above;
    std::array<std::vector<uchar>, 4> m_results;
};

uchar paeth(int left, int above, int corner)
{
    const int toLeft = std::abs(above - corner);
    const int toAbove = std::abs(left - corner);
    const int toCorner = std::abs(left + above - 2 * corner);
    const int nearer = toAbove <= toCorner ? above : corner;
    return uchar(toLeft <= toAbove && toLeft <= toCorner ? left : nearer);
}

void RowFilters::filterAll()
{
    const uchar *row = m_row.data() + m_pixelBytes;
    const uchar *left = m_row.data();
    const uchar *above = m_above.data() + m_pixelBytes;
    const uchar *corner = m_above.data();
    const auto make = [this](Filter filter, auto predicted) {
        uchar *__restrict out = m_results[filter - 1].data();
        for (size_t i = 0; i < m_rowBytes; ++i)
            out[i] = predicted(i);
    };
    make(Sub, [=](size_t i) { return uchar(row[i] - left[i]); });
    make(Up, [=](size_t i) { return uchar(row[i] - above[i]); });
    make(Average, [=](size_t i) { return uchar(row[i] - (left[i] + above[i]) / 2); });
    make(Paeth, [=](size_t i) { return uchar(row[i] - paeth(left[i], above[i], corner[i])); });
}

/** Small differences, whichever their sign, are what compresses well. */
quint64 costOf(const std::vector<uchar> &bytes)
{
    quint32 sum = 0;
    for (const uchar byte : bytes)
        sum += uint(std::min<int>(byte, 256 - byte));
    return sum;
}

void RowFilters::writeBest(char *out)
{
    filterAll();
    uchar best = Sub;
    quint64 least = std::numeric_limits<quint64>::max();
    for (const Filter filter : {Sub, Up, Average, Paeth}) {
        const quint64 cost = costOf(m_results[filter - 1]);
        if (cost < least) {
            least = cost;
            best = filter;
        }
    }
    *out = char(best);
    std::memcpy(out + 1, m_results[best - 1].data(), m_rowBytes);
}

/** Copies a row, turning components of two bytes round. */
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

QByteArray filteredRows(const vips::VImage &image)
{
    const bool isDeep = image.format() == VIPS_FORMAT_USHORT;
    const size_t rowBytes = VIPS_IMAGE_SIZEOF_LINE(image.get_image());
    const auto *pixels = static_cast<const uchar *>(image.data());
    QByteArray rows(qsizetype(rowBytes + 1) * image.height(), Qt::Uninitialized);
    RowFilters filters(rowBytes, VIPS_IMAGE_SIZEOF_PEL(image.get_image()));
    char *out = rows.data();
    for (int y = 0; y < image.height(); ++y) {
        copyRow(pixels + rowBytes * size_t(y), filters.nextRow(), rowBytes, isDeep);
        filters.writeBest(out);
        out += rowBytes + 1;
    }
    return rows;
}

} // namespace platform
