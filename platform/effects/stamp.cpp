#include "platform/effects/stamp.h"

#include "platform/graphics/layers.h"
#include "platform/graphics/pixel_memory.h"
#include "platform/graphics/resample.h"

#include <QCoreApplication>

#include <cstring>
#include <limits>

namespace platform {
namespace {

using vips::VImage;

int colourBands(const VImage &image)
{
    return hasTransparency(image) ? image.bands() - 1 : image.bands();
}

template<typename T> const T *pixelAt(const VImage &image, int x, int y)
{
    return reinterpret_cast<const T *>(VIPS_IMAGE_ADDR(image.get_image(), x, y));
}

/** Composes one row of the stamp over one row of the picture. */
template<typename T> class RowMixer
{
public:
    RowMixer(const VImage &picture, const VImage &stamp, double opacity)
        : m_colours(colourBands(picture)), m_bands(picture.bands()), m_stampBands(stamp.bands()),
          m_isSeeThrough(hasTransparency(picture)), m_hasAlpha(hasTransparency(stamp)), m_opacity(opacity)
    {
    }

    void mix(const T *over, int count, T *out) const
    {
        for (int x = 0; x < count; ++x, over += m_stampBands, out += m_bands) {
            const double own = m_hasAlpha ? over[m_colours] / all : 1.0;
            const double alpha = own * m_opacity;
            const double below = (m_isSeeThrough ? out[m_colours] / all : 1.0) * (1 - alpha);
            const double weight = alpha + below;
            if (alpha <= 0)
                continue;
            for (int band = 0; band < m_colours; ++band)
                out[band] = T((over[band] * alpha + out[band] * below) / weight + 0.5);
            if (m_isSeeThrough)
                out[m_colours] = T(weight * all + 0.5);
        }
    }

private:
    static constexpr double all = std::numeric_limits<T>::max();

    int m_colours;
    int m_bands;
    int m_stampBands;
    bool m_isSeeThrough;
    bool m_hasAlpha;
    double m_opacity;
};

template<typename T> VImage stampedImage(const VImage &picture, const VImage &stamp, const Stamp &how)
{
    const QSize size(picture.width(), picture.height());
    PixelMemory result(size, picture.bands(), picture.format());
    const size_t rowBytes = VIPS_IMAGE_SIZEOF_LINE(picture.get_image());
    for (int y = 0; y < size.height(); ++y)
        std::memcpy(result.row(y), pixelAt<T>(picture, 0, y), rowBytes);
    const RowMixer<T> mixer(picture, stamp, how.opacity);
    for (const QPoint &place : how.places) {
        const QRect seen = QRect(place, QSize(stamp.width(), stamp.height())).intersected(QRect(QPoint(), size));
        for (int y = seen.top(); y <= seen.bottom(); ++y)
            mixer.mix(pixelAt<T>(stamp, seen.x() - place.x(), y - place.y()), seen.width(),
                      result.rowOf<T>(y) + size_t(seen.x()) * size_t(picture.bands()));
    }
    return result.takenLike(picture);
}

} // namespace

Result<Bitmap> stamped(const Bitmap &bitmap, const Stamp &stamp)
{
    if (bitmap.isNull() || stamp.bitmap.isNull())
        return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to draw"));
    try {
        const Bitmap::Pixels &pixels = bitmap.pixels();
        const VImage colours = convertedToSrgb(composable(stamp.bitmap.pixels().image(), false)).copy_memory();
        const bool hasColours = colourBands(colours) > 1;
        const MatchedLayers both = matched(composable(pixels.image(), hasColours), colours);
        const bool isDeep = both.over.format() == VIPS_FORMAT_USHORT;
        const VImage made = isDeep ? stampedImage<quint16>(both.over, both.under, stamp)
                                   : stampedImage<uchar>(both.over, both.under, stamp);
        return Bitmap(std::make_shared<const Bitmap::Pixels>(made, pixels.resolution, pixels.quantisation));
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
