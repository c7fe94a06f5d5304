#pragma once

// Private to the platform: pixels that one of our decoders fills row by row.

#include "platform/foundation/memory_left.h"
#include "platform/graphics/pixels.h"

#include <QCoreApplication>

namespace platform {

/** Zeroed memory for an image that becomes the image without being copied. */
class PixelMemory
{
public:
    /** @param format  VIPS_FORMAT_UCHAR or another; throws vips::VError if there is no memory for it. */
    PixelMemory(QSize size, int bands, VipsBandFormat format)
        : m_size(size), m_bands(bands), m_format(format),
          m_rowBytes(size_t(size.width()) * size_t(bands) * size_t(vips_format_sizeof(format)))
    {
        const auto left = memoryIsLeftFor(qint64(m_rowBytes) * size.height(),
                                          QCoreApplication::translate("platform", "Reading the picture"));
        if (!left)
            throw vips::VError(left.error().message.toStdString());
        m_bytes = static_cast<uchar *>(g_try_malloc0(m_rowBytes * size_t(size.height())));
        if (!m_bytes)
            throw vips::VError("out of memory");
    }
    PixelMemory(const PixelMemory &) = delete;
    PixelMemory &operator=(const PixelMemory &) = delete;
    ~PixelMemory() { g_free(m_bytes); }

    uchar *row(int y) { return m_bytes + m_rowBytes * size_t(y); }
    template<typename T> T *rowOf(int y) { return reinterpret_cast<T *>(row(y)); }
    int bands() const { return m_bands; }

    /** The image, which owns the memory from now on. */
    vips::VImage taken(VipsInterpretation space)
    {
        const vips::VImage image = vips::VImage::new_from_memory_steal(
            m_bytes, m_rowBytes * size_t(m_size.height()), m_size.width(), m_size.height(), m_bands, m_format);
        m_bytes = nullptr;
        image.get_image()->Type = space;
        return image;
    }
    /** The image, which owns the memory from now on, with the colours and the profile of @p model. */
    vips::VImage takenLike(const vips::VImage &model)
    {
        const vips::VImage image = taken(model.interpretation());
        const QByteArray profile = iccProfileOf(model);
        if (!profile.isEmpty())
            vips_image_set_blob_copy(image.get_image(), VIPS_META_ICC_NAME, profile.constData(),
                                     size_t(profile.size()));
        return image;
    }

private:
    QSize m_size;
    int m_bands;
    VipsBandFormat m_format;
    size_t m_rowBytes;
    uchar *m_bytes = nullptr;
};

} // namespace platform
