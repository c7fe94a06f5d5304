#include "platform/imageio/photoshop/photoshop_pixels.h"

#include "platform/graphics/pixel_memory.h"
#include "platform/imageio/photoshop/photoshop_file.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <vector>

namespace platform {
namespace {

using vips::VImage;
using Mode = PhotoshopFile::Mode;

enum class Packing : quint16 { None = 0, Runs = 1 };

[[noreturn]] void endsTooEarly()
{
    throw vips::VError("the file is cut short");
}

/** The rows of the channels, which are stored one channel after another. */
class ChannelRows
{
public:
    ChannelRows(QIODevice &device, const PhotoshopFile &file)
        : m_device(device), m_rowBytes((qint64(file.size.width()) * file.bits + 7) / 8), m_rows(file.size.height())
    {
        if (!device.seek(file.pixelsAt))
            endsTooEarly();
        const QByteArray packing = device.read(2);
        if (packing.size() < 2)
            endsTooEarly();
        m_packing = Packing(qFromBigEndian<quint16>(packing.constData()));
        if (m_packing != Packing::None && m_packing != Packing::Runs)
            throw vips::VError("it is compressed in a way that is not known here");
        if (m_packing == Packing::Runs)
            readLengths(qint64(m_rows) * file.channels, file.isLarge ? 4 : 2);
        m_pixelsAt = device.pos();
    }

    /** Selects the channel whose rows come next. */
    void goTo(int channel)
    {
        m_row = qint64(channel) * m_rows;
        qint64 at = m_pixelsAt + m_rowBytes * m_row;
        if (m_packing == Packing::Runs) {
            at = m_pixelsAt;
            for (qint64 row = 0; row < m_row; ++row)
                at += m_lengths[size_t(row)];
        }
        if (!m_device.seek(at))
            endsTooEarly();
    }

    QByteArray next()
    {
        if (m_packing == Packing::None)
            return read(m_rowBytes);
        return unpacked(read(m_lengths[size_t(m_row++)]));
    }

private:
    QByteArray read(qint64 count)
    {
        const QByteArray bytes = m_device.read(count);
        if (bytes.size() != count)
            endsTooEarly();
        return bytes;
    }

    void readLengths(qint64 count, int size)
    {
        const QByteArray table = read(count * size);
        m_lengths.resize(size_t(count));
        for (qint64 row = 0; row < count; ++row) {
            const char *at = table.constData() + row * size;
            m_lengths[size_t(row)] = size == 2 ? qFromBigEndian<quint16>(at) : qFromBigEndian<quint32>(at);
        }
    }

    QByteArray unpacked(const QByteArray &packed) const
    {
        constexpr int nothing = -128;
        QByteArray row;
        row.reserve(m_rowBytes);
        for (qsizetype at = 0; at < packed.size() && row.size() < m_rowBytes;) {
            const int count = qint8(packed[at++]);
            if (count >= 0) {
                row.append(packed.mid(at, count + 1));
                at += count + 1;
            } else if (count != nothing && at < packed.size()) {
                row.append(1 - count, packed[at++]);
            }
        }
        if (row.size() < m_rowBytes)
            throw vips::VError("its pixels are damaged");
        row.truncate(m_rowBytes);
        return row;
    }

    QIODevice &m_device;
    qint64 m_rowBytes;
    int m_rows;
    Packing m_packing = Packing::None;
    std::vector<quint32> m_lengths;
    qint64 m_pixelsAt = 0;
    qint64 m_row = 0;
};

/** One component of each pixel of a row; @p isInk if the file stores how much of the paper is left. */
void spread(const QByteArray &row, const PhotoshopFile &file, PixelMemory &pixels, int y, int band, bool isInk)
{
    const int width = file.size.width();
    const int step = pixels.bands();
    const auto *bytes = reinterpret_cast<const uchar *>(row.constData());
    if (file.bits == 1) {
        for (int x = 0; x < width; ++x)
            pixels.row(y)[x * step + band] = (bytes[x / 8] >> (7 - x % 8)) & 1 ? 0 : 255;
    } else if (file.bits == 8) {
        for (int x = 0; x < width; ++x)
            pixels.row(y)[x * step + band] = isInk ? uchar(255 - bytes[x]) : bytes[x];
    } else if (file.bits == 16) {
        for (int x = 0; x < width; ++x) {
            const auto value = qFromBigEndian<quint16>(bytes + 2 * x);
            pixels.rowOf<quint16>(y)[x * step + band] = isInk ? quint16(65535 - value) : value;
        }
    } else {
        for (int x = 0; x < width; ++x)
            pixels.rowOf<float>(y)[x * step + band] = qFromBigEndian<float>(bytes + 4 * x);
    }
}

VipsBandFormat formatOf(const PhotoshopFile &file)
{
    constexpr int deep = 16;
    return file.bits == 32 ? VIPS_FORMAT_FLOAT : file.bits == deep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR;
}

VipsInterpretation spaceOf(const PhotoshopFile &file, int colours)
{
    const bool isDeep = file.bits == 16;
    if (colours == 4)
        return VIPS_INTERPRETATION_CMYK;
    if (colours == 1)
        return isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    if (file.bits == 32)
        return VIPS_INTERPRETATION_scRGB;
    return isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
}

/** The channels as stored in the file; if three inks are named, the fourth is blank. */
VImage channelsOf(QIODevice &device, const PhotoshopFile &file)
{
    const bool isInk = file.mode == Mode::Cmyk || file.mode == Mode::Inks;
    const int colours = isInk && file.colours() == 3 ? 4 : file.colours();
    ChannelRows rows(device, file);
    PixelMemory pixels(file.size, colours + (file.hasTransparency ? 1 : 0), formatOf(file));
    const auto take = [&](int channel, int band, bool inverted) {
        rows.goTo(channel);
        for (int y = 0; y < file.size.height(); ++y)
            spread(rows.next(), file, pixels, y, band, inverted);
    };
    for (int channel = 0; channel < file.colours(); ++channel)
        take(channel, channel, isInk && colours == 4);
    if (file.hasTransparency)
        take(file.colours(), colours, false);
    return pixels.taken(spaceOf(file, colours));
}

VImage fromPalette(const VImage &indices, const QByteArray &palette)
{
    constexpr int entries = 256;
    PixelMemory table({entries, 1}, 3, VIPS_FORMAT_UCHAR);
    for (int entry = 0; entry < entries; ++entry)
        for (int part = 0; part < 3; ++part)
            table.row(0)[entry * 3 + part] = uchar(palette[part * entries + entry]);
    const VImage colours = table.taken(VIPS_INTERPRETATION_sRGB);
    const VImage painted = indices.extract_band(0).maplut(colours);
    const VImage typed = painted.copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    return indices.bands() > 1 ? typed.bandjoin(indices.extract_band(1)) : typed;
}

/** Stored Lab numbers become lightness from 0 to 100 and colours around 0. */
VImage asLab(const VImage &stored)
{
    const bool isDeep = stored.format() == VIPS_FORMAT_USHORT;
    const double scale = isDeep ? 257 : 1;
    const double wide = isDeep ? 256 : 1;
    const VImage colours = stored.extract_band(0, VImage::option()->set("n", 3))
                               .linear({100 / (255 * scale), 1 / wide, 1 / wide}, {0.0, -128.0, -128.0})
                               .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_LAB));
    if (stored.bands() == 3)
        return colours;
    return colours.bandjoin(stored.extract_band(3).linear(1 / scale, 0.0));
}

/** The merged picture is composed on white: computes the colours without it. */
VImage withoutPaper(const VImage &image)
{
    const int colours = image.bands() - 1;
    const double white = image.format() == VIPS_FORMAT_USHORT ? 65535 : 255;
    const VImage alpha = image.extract_band(colours);
    const VImage laid = image.extract_band(0, VImage::option()->set("n", colours));
    const VImage share = alpha.linear(1 / white, 0.0);
    const VImage freed = ((laid - white) / share + white).rint().cast(image.format());
    return (alpha > 0)
        .ifthenelse(freed, laid)
        .bandjoin(alpha)
        .copy(VImage::option()->set("interpretation", image.interpretation()));
}

} // namespace

VImage photoshopPixels(QIODevice &device)
{
    const PhotoshopFile file = readPhotoshopFile(device);
    VImage image = channelsOf(device, file);
    if (file.mode == Mode::Palette)
        image = fromPalette(image, file.palette);
    else if (file.mode == Mode::Lab)
        image = asLab(image);
    const bool isLaidOnPaper = file.mode == Mode::Rgb || file.mode == Mode::Grey || file.mode == Mode::Duotone;
    if (file.hasTransparency && isLaidOnPaper && image.format() != VIPS_FORMAT_FLOAT)
        image = withoutPaper(image);
    if (!file.profile.isEmpty()) {
        image = image.copy();
        vips_image_set_blob_copy(image.get_image(), VIPS_META_ICC_NAME, file.profile.constData(),
                                 size_t(file.profile.size()));
    }
    return image;
}

} // namespace platform
