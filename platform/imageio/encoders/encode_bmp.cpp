#include "platform/imageio/encoders/encoders.h"

#include <QtEndian>

#include <cmath>

namespace platform {
namespace {

constexpr int fileHeaderSize = 14;
constexpr int infoHeaderSize = 40;
constexpr int greyLevels = 256;

/** Writes consecutive little-endian numbers. */
class LittleEndian
{
public:
    explicit LittleEndian(char *at) : m_at(at) {}
    LittleEndian &u16(quint16 value) { return put(value); }
    LittleEndian &u32(quint32 value) { return put(value); }

private:
    template<typename T> LittleEndian &put(T value)
    {
        qToLittleEndian<T>(value, m_at);
        m_at += sizeof value;
        return *this;
    }

    char *m_at;
};

quint32 dotsPerMetre(double dpi)
{
    constexpr double metresPerInch = 0.0254;
    constexpr double defaultDpi = 72;
    return quint32(std::lround((dpi > 0 ? dpi : defaultDpi) / metresPerInch));
}

/** Red, green, blue to blue, green, red. */
void swapRow(const uchar *__restrict from, uchar *__restrict to, int pixels)
{
    for (int i = 0; i < 3 * pixels; i += 3) {
        to[i] = from[i + 2];
        to[i + 1] = from[i + 1];
        to[i + 2] = from[i];
    }
}

} // namespace

qint64 bmpRowBytes(int width, int bands)
{
    return (qint64(width) * bands + 3) / 4 * 4;
}

QByteArray bmpHeaders(QSize pixels, int bands, Resolution resolution)
{
    const bool isGrey = bands == 1;
    if (!isGrey && bands != 3)
        throw vips::VError("a bitmap file holds grey or three colours");
    const qint64 headers = fileHeaderSize + infoHeaderSize + (isGrey ? greyLevels * 4 : 0);
    const qint64 pixelBytes = bmpRowBytes(pixels.width(), bands) * pixels.height();
    if (headers + pixelBytes > std::numeric_limits<quint32>::max())
        throw vips::VError("a bitmap file holds 4 GB at most");
    QByteArray file(headers, Qt::Uninitialized);
    file[0] = 'B';
    file[1] = 'M';
    LittleEndian header(file.data() + 2);
    header.u32(quint32(headers + pixelBytes)).u32(0).u32(quint32(headers)).u32(infoHeaderSize);
    header.u32(quint32(pixels.width())).u32(quint32(pixels.height())).u16(1).u16(isGrey ? 8 : 24).u32(0);
    header.u32(quint32(pixelBytes));
    header.u32(dotsPerMetre(resolution.horizontal))
        .u32(dotsPerMetre(resolution.vertical > 0 ? resolution.vertical : resolution.horizontal));
    header.u32(isGrey ? greyLevels : 0).u32(0);
    for (quint32 level = 0; isGrey && level < greyLevels; ++level)
        header.u32(level * 0x010101);
    return file;
}

QByteArray encodeBmp(const vips::VImage &image, Resolution resolution)
{
    const vips::VImage pixels = inMemory(image.bands() == 2 ? image.extract_band(0) : image);
    const QSize size(pixels.width(), pixels.height());
    QByteArray file = bmpHeaders(size, pixels.bands(), resolution);
    const qsizetype headers = file.size();
    const qint64 rowBytes = bmpRowBytes(size.width(), pixels.bands());
    file.resize(headers + rowBytes * size.height());
    const auto *source = static_cast<const uchar *>(pixels.data());
    const size_t sourceRow = VIPS_IMAGE_SIZEOF_LINE(pixels.get_image());
    auto *row = reinterpret_cast<uchar *>(file.data() + headers);
    for (int y = size.height() - 1; y >= 0; --y, row += rowBytes) { // the last row comes first
        const uchar *from = source + sourceRow * size_t(y);
        if (pixels.bands() == 1)
            std::copy_n(from, sourceRow, row);
        else
            swapRow(from, row, size.width());
        std::fill(row + sourceRow, row + rowBytes, uchar(0));
    }
    return file;
}

} // namespace platform
