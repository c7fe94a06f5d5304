#include "platform/graphics/pixel_memory.h"
#include "platform/graphics/pixels.h"

#include <cstring>

namespace platform {

Bitmap::Pixels::Pixels(const vips::VImage &image, Resolution dpi, std::optional<JpegQuantisation> tables)
    : resolution(dpi), quantisation(tables), m_image(image)
{
}

Bitmap::Pixels::Pixels(const QImage &rows, const QByteArray &profile, Resolution dpi,
                       std::optional<JpegQuantisation> tables)
    : resolution(dpi), quantisation(tables), m_rows(rows)
{
    if (profileFits(profile, bands() == 1 ? ColorModel::Gray : ColorModel::Rgb))
        m_profile = profile;
}

const vips::VImage &Bitmap::Pixels::image() const
{
    if (m_rows.isNull())
        return m_image;
    initVips();
    PixelMemory memory(size(), bands(), VIPS_FORMAT_UCHAR);
    for (int y = 0; y < m_rows.height(); ++y)
        std::memcpy(memory.row(y), m_rows.constScanLine(y), size_t(m_rows.width()) * size_t(bands()));
    m_image = memory.taken(bands() == 1 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB);
    if (!m_profile.isEmpty())
        vips_image_set_blob_copy(m_image.get_image(), VIPS_META_ICC_NAME, m_profile.constData(),
                                 size_t(m_profile.size()));
    m_rows = QImage();
    return m_image;
}

QByteArray Bitmap::Pixels::profile() const
{
    return m_rows.isNull() ? iccProfileOf(m_image) : m_profile;
}

QSize Bitmap::Pixels::size() const
{
    return m_rows.isNull() ? QSize(m_image.width(), m_image.height()) : m_rows.size();
}

int Bitmap::Pixels::bands() const
{
    if (m_rows.isNull())
        return m_image.bands();
    constexpr int bitsPerByte = 8;
    return m_rows.depth() / bitsPerByte;
}

int Bitmap::Pixels::bytesPerComponent() const
{
    return m_rows.isNull() ? platform::bytesPerComponent(m_image) : 1;
}

} // namespace platform
