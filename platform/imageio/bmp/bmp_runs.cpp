#include "platform/imageio/bmp/bmp_runs.h"

#include "platform/graphics/pixels.h"

#include <algorithm>

namespace platform {
namespace {

enum Command : uchar { EndOfRow = 0, EndOfPicture = 1, Jump = 2 };

/** Expands the runs into rows; anything outside the picture is dropped. */
class Runs
{
public:
    Runs(const QByteArray &packed, QSize size, int bits)
        : m_packed(packed), m_size(size), m_bits(bits), m_pixels(qsizetype(size.width()) * size.height(), '\0')
    {
    }

    QByteArray unpacked()
    {
        while (m_row < m_size.height()) {
            if (isAtEnd() && m_row == m_size.height() - 1 && m_column >= m_size.width())
                break; // some writers omit the last mark
            const uchar count = next();
            const uchar value = next();
            if (count > 0)
                repeat(count, value);
            else if (value == EndOfPicture)
                break;
            else
                obey(value);
        }
        return m_pixels;
    }

private:
    bool isAtEnd() const { return m_at >= m_packed.size(); }

    uchar next()
    {
        if (isAtEnd())
            throw vips::VError("the file is cut short");
        return uchar(m_packed[m_at++]);
    }

    void put(uchar index)
    {
        if (m_column < m_size.width())
            m_pixels[qsizetype(m_size.width()) * m_row + m_column] = char(index);
        ++m_column;
    }

    /** The index of one of the pixels that share a byte. */
    uchar part(uchar value, int number) const
    {
        constexpr int wholeByte = 8;
        if (m_bits == wholeByte)
            return value;
        return number % 2 == 0 ? uchar(value >> 4) : uchar(value & 0x0F);
    }

    void repeat(int count, uchar value)
    {
        for (int number = 0; number < count; ++number)
            put(part(value, number));
    }

    void obey(uchar command)
    {
        if (command == EndOfRow) {
            ++m_row;
            m_column = 0;
        } else if (command == Jump) {
            m_column = std::min(m_column + next(), m_size.width());
            m_row += next();
        } else {
            copy(command);
        }
    }

    /** Individual pixels, padded to an even number of bytes. */
    void copy(int count)
    {
        const int perByte = m_bits == 8 ? 1 : 2;
        const int bytes = (count + perByte - 1) / perByte;
        uchar value = 0;
        for (int number = 0; number < count; ++number) {
            if (number % perByte == 0)
                value = next();
            put(part(value, number));
        }
        if (bytes % 2 != 0 && !isAtEnd())
            ++m_at;
    }

    const QByteArray &m_packed;
    QSize m_size;
    int m_bits;
    QByteArray m_pixels;
    qsizetype m_at = 0;
    int m_row = 0;
    int m_column = 0;
};

} // namespace

QByteArray bmpRuns(const QByteArray &packed, QSize size, int bits)
{
    return Runs(packed, size, bits).unpacked();
}

} // namespace platform
