#include "platform/imageio/bmp/bmp_pixels.h"

#include "platform/graphics/pixel_memory.h"
#include "platform/imageio/bmp/bmp_header.h"
#include "platform/imageio/bmp/bmp_runs.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace platform {
namespace {

using vips::VImage;

constexpr int fileHeaderBytes = 14;
constexpr quint32 oldHeaderBytes = 12;
constexpr quint32 usualHeaderBytes = 40;
constexpr quint32 headerWithMasks = 52;
constexpr quint32 headerWithAlphaMask = 56;

enum Compression : quint32 { Plain = 0, Runs8 = 1, Runs4 = 2, Masks = 3, MasksWithAlpha = 6 };

struct Colour
{
    uchar red = 0;
    uchar green = 0;
    uchar blue = 0;
};

struct Layout
{
    QSize size;
    bool startsAbove = false;
    int bits = 0;
    quint32 compression = Plain;
    std::array<quint32, 4> masks = {}; ///< of red, green, blue and alpha
    std::vector<Colour> palette;
    qint64 pixelsAt = 0;

    qint64 rowBytes() const { return (qint64(size.width()) * bits + 31) / 32 * 4; }
    int rowAt(int row) const { return startsAbove ? row : size.height() - 1 - row; }
};

template<typename T> T numberAt(const QByteArray &bytes, qsizetype position)
{
    if (position + qsizetype(sizeof(T)) > bytes.size())
        throw vips::VError("its header is damaged");
    return qFromLittleEndian<T>(bytes.constData() + position);
}

void readMasks(Layout &layout, const QByteArray &head, quint32 headerBytes)
{
    constexpr qsizetype masksAt = fileHeaderBytes + qsizetype(usualHeaderBytes);
    const bool hasMasks = layout.compression == Masks || layout.compression == MasksWithAlpha;
    if (hasMasks) {
        const bool hasAlpha = layout.compression == MasksWithAlpha || headerBytes >= headerWithAlphaMask;
        for (int part = 0; part < (hasAlpha ? 4 : 3); ++part)
            layout.masks[size_t(part)] = numberAt<quint32>(head, masksAt + part * 4);
    } else if (layout.bits == 16) {
        layout.masks = {0x7C00, 0x03E0, 0x001F, 0};
    } else {
        layout.masks = {0xFF0000, 0x00FF00, 0x0000FF, 0};
    }
}

/** Where the palette begins; the masks of the usual header precede it. */
qsizetype paletteStart(const Layout &layout, quint32 headerBytes)
{
    const bool masksFollow = headerBytes == usualHeaderBytes && layout.compression == Masks;
    const bool allMasksFollow = headerBytes == usualHeaderBytes && layout.compression == MasksWithAlpha;
    return fileHeaderBytes + qsizetype(headerBytes) + (masksFollow ? 12 : 0) + (allMasksFollow ? 16 : 0);
}

void readPalette(Layout &layout, const QByteArray &head, quint32 headerBytes)
{
    constexpr int mostPaletteBits = 8;
    const qsizetype start = paletteStart(layout, headerBytes);
    if (layout.bits <= mostPaletteBits) {
        const qsizetype entryBytes = headerBytes == oldHeaderBytes ? 3 : 4;
        const auto stated = headerBytes >= usualHeaderBytes ? numberAt<quint32>(head, 46) : 0;
        const quint32 possible = 1U << layout.bits;
        const qsizetype end = layout.pixelsAt > start ? std::min<qint64>(layout.pixelsAt, head.size()) : head.size();
        const qsizetype present = (end - start) / entryBytes;
        const quint32 wanted = stated == 0 || stated > possible ? possible : stated;
        for (qsizetype entry = 0; entry < std::min<qsizetype>(wanted, present); ++entry) {
            const auto *at = reinterpret_cast<const uchar *>(head.constData() + start + entry * entryBytes);
            layout.palette.push_back({at[2], at[1], at[0]});
        }
        if (layout.palette.empty())
            throw vips::VError("its header is damaged");
    }
    if (layout.pixelsAt < start)
        layout.pixelsAt = start + qsizetype(layout.palette.size()) * (headerBytes == oldHeaderBytes ? 3 : 4);
}

bool isReadable(const Layout &layout, quint32 headerBytes)
{
    static constexpr std::array<int, 7> depths = {1, 2, 4, 8, 16, 24, 32};
    const bool isWide = layout.bits == 16 || layout.bits == 32;
    const bool isOther = headerBytes == 64; // of another system: its compressions 3 and 4 have other meanings
    switch (layout.compression) {
    case Plain:
        return std::find(depths.begin(), depths.end(), layout.bits) != depths.end();
    case Runs8:
        return layout.bits == 8;
    case Runs4:
        return layout.bits == 4;
    case Masks:
    case MasksWithAlpha:
        return isWide && !isOther;
    default:
        return false;
    }
}

Layout layoutOf(QIODevice &file)
{
    constexpr qint64 mostBeforePixels = 4096;
    Layout layout;
    layout.size = readBmpHeader(file).size;
    const QByteArray head = file.seek(0) ? file.read(mostBeforePixels) : QByteArray();
    const auto headerBytes = numberAt<quint32>(head, fileHeaderBytes);
    if (layout.size.isEmpty() || headerBytes > quint32(head.size()))
        throw vips::VError("its header is damaged");
    layout.pixelsAt = numberAt<quint32>(head, 10);
    if (headerBytes == oldHeaderBytes) {
        layout.bits = numberAt<quint16>(head, 24);
    } else {
        layout.startsAbove = numberAt<qint32>(head, 22) < 0;
        layout.bits = numberAt<quint16>(head, 28);
        layout.compression = numberAt<quint32>(head, 30);
    }
    if (!isReadable(layout, headerBytes))
        throw vips::VError("it is compressed in a way that is not known here");
    readMasks(layout, head, headerBytes);
    readPalette(layout, head, headerBytes);
    return layout;
}

/** One component of a pixel, scaled to the full range of its type. */
class Component
{
public:
    Component(quint32 mask, quint32 most)
        : m_mask(mask), m_shift(mask ? std::countr_zero(mask) : 0), m_top(mask >> m_shift), m_most(most)
    {
    }
    quint32 of(quint32 pixel) const
    {
        const quint64 value = (pixel & m_mask) >> m_shift;
        return m_top == 0 ? 0 : quint32((value * m_most + m_top / 2) / m_top);
    }
    bool isWiderThanAByte() const { return m_top > 0xFF; }

private:
    quint32 m_mask;
    int m_shift;
    quint32 m_top;
    quint32 m_most;
};

template<typename T> void maskedRow(const uchar *from, T *to, const Layout &layout, const std::vector<Component> &parts)
{
    const int bytes = layout.bits / 8;
    for (int x = 0; x < layout.size.width(); ++x, from += bytes) {
        quint32 pixel = 0;
        for (int byte = 0; byte < bytes; ++byte)
            pixel |= quint32(from[byte]) << (8 * byte);
        for (const Component &part : parts)
            *to++ = T(part.of(pixel));
    }
}

/** The next row of the file. */
void readRow(QIODevice &file, std::vector<uchar> &row)
{
    if (file.read(reinterpret_cast<char *>(row.data()), qint64(row.size())) != qint64(row.size()))
        throw vips::VError("the file is cut short");
}

VImage colouredPixels(QIODevice &file, const Layout &layout)
{
    constexpr quint32 most8 = 0xFF;
    constexpr quint32 most16 = 0xFFFF;
    const int bands = layout.masks[3] != 0 ? 4 : 3;
    bool isDeep = false;
    for (const quint32 mask : layout.masks)
        isDeep = isDeep || Component(mask, most8).isWiderThanAByte();
    std::vector<Component> parts;
    for (int band = 0; band < bands; ++band)
        parts.emplace_back(layout.masks[size_t(band)], isDeep ? most16 : most8);
    PixelMemory pixels(layout.size, bands, isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
    std::vector<uchar> row(size_t(layout.rowBytes()));
    for (int y = 0; y < layout.size.height(); ++y) {
        readRow(file, row);
        if (isDeep)
            maskedRow(row.data(), pixels.rowOf<quint16>(layout.rowAt(y)), layout, parts);
        else
            maskedRow(row.data(), pixels.row(layout.rowAt(y)), layout, parts);
    }
    return pixels.taken(isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
}

/** The palette indices in a row with few bits per pixel. */
void unpack(const uchar *from, uchar *to, int width, int bits)
{
    const uchar mask = uchar((1U << bits) - 1);
    const int perByte = 8 / bits;
    for (int x = 0; x < width; ++x)
        to[x] = uchar(from[x / perByte] >> (8 - bits * (x % perByte + 1))) & mask;
}

void paint(const uchar *indices, uchar *to, int width, int bands, const std::vector<Colour> &palette)
{
    for (int x = 0; x < width; ++x) {
        const Colour colour = indices[x] < palette.size() ? palette[indices[x]] : Colour();
        *to++ = colour.red;
        if (bands == 1)
            continue;
        *to++ = colour.green;
        *to++ = colour.blue;
    }
}

VImage palettePixels(QIODevice &file, const Layout &layout)
{
    const bool isGrey = std::all_of(layout.palette.begin(), layout.palette.end(), [](const Colour &colour) {
        return colour.red == colour.green && colour.green == colour.blue;
    });
    const int width = layout.size.width();
    PixelMemory pixels(layout.size, isGrey ? 1 : 3, VIPS_FORMAT_UCHAR);
    const bool isInRuns = layout.compression == Runs8 || layout.compression == Runs4;
    const QByteArray runs = isInRuns ? bmpRuns(file.readAll(), layout.size, layout.bits) : QByteArray();
    std::vector<uchar> row(size_t(layout.rowBytes()));
    std::vector<uchar> indices(size_t(width), 0);
    for (int y = 0; y < layout.size.height(); ++y) {
        if (isInRuns) {
            std::copy_n(runs.constData() + qsizetype(width) * y, width, indices.begin());
        } else {
            readRow(file, row);
            unpack(row.data(), indices.data(), width, layout.bits);
        }
        paint(indices.data(), pixels.row(layout.rowAt(y)), width, pixels.bands(), layout.palette);
    }
    return pixels.taken(isGrey ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB);
}

} // namespace

VImage bmpPixels(QIODevice &file)
{
    const Layout layout = layoutOf(file);
    if (!file.seek(layout.pixelsAt))
        throw vips::VError("the file is cut short");
    return layout.palette.empty() ? colouredPixels(file, layout) : palettePixels(file, layout);
}

int bmpDepth(QIODevice &file)
{
    const Layout layout = layoutOf(file);
    if (!layout.palette.empty())
        return layout.bits;
    int widest = 8;
    for (const quint32 mask : layout.masks)
        widest = std::max(widest, std::popcount(mask));
    return widest;
}

} // namespace platform
