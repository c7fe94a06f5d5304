#include "platform/effects/sharpen.h"

#include "platform/graphics/pixel_memory.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace platform {
namespace {

using vips::VImage;

/** The weight of a colour in the brightness of a pixel, out of 256; inks count as the light that they absorb. */
using Weights = std::array<int, 4>;

Weights weightsFor(const VImage &image)
{
    if (image.interpretation() == VIPS_INTERPRETATION_CMYK)
        return {27, 92, 9, 128};
    return image.bands() < 3 ? Weights{256, 0, 0, 0} : Weights{54, 183, 19, 0};
}

int colourBands(const VImage &image)
{
    return hasTransparency(image) ? image.bands() - 1 : image.bands();
}

/** Sharpens one image row by row. Brightness is kept in 256ths of a level. */
template<typename T> class Sharpener
{
public:
    Sharpener(const VImage &image, const Sharpening &sharpening)
        : m_image(image), m_weights(weightsFor(image)), m_colours(colourBands(image)), m_bands(image.bands()),
          m_width(image.width()), m_strength(float(sharpening.strength / (perLevel * kernelSum))),
          m_limit(float(sharpening.limit * std::numeric_limits<T>::max() / 255.0))
    {
        for (std::vector<int> &row : m_rows)
            row.resize(size_t(m_width));
        m_sums.resize(size_t(m_width) + 2);
    }

    void run(PixelMemory &result)
    {
        const int height = m_image.height();
        readBrightness(0, m_rows[0]);
        m_rows[2] = m_rows[0];
        for (int y = 0; y < height; ++y) {
            // Above, this one, below; beyond the edges the outermost row is repeated.
            std::vector<int> &above = y == 0 ? m_rows[2] : m_rows[size_t((y + 2) % 3)];
            std::vector<int> &here = m_rows[size_t(y % 3)];
            std::vector<int> &below = m_rows[size_t((y + 1) % 3)];
            if (y + 1 < height)
                readBrightness(y + 1, below);
            sharpenRow(rowOf(y), above, here, y + 1 < height ? below : here, result.rowOf<T>(y));
        }
    }

private:
    static constexpr float perLevel = 256;
    static constexpr float kernelSum = 16; // 1 2 1 vertically times 1 2 1 horizontally

    const T *rowOf(int y) const { return reinterpret_cast<const T *>(VIPS_IMAGE_ADDR(m_image.get_image(), 0, y)); }

    void readBrightness(int y, std::vector<int> &brightness) const
    {
        const T *pixel = rowOf(y);
        for (int &value : brightness) {
            value = 0;
            for (int band = 0; band < m_colours; ++band)
                value += m_weights[size_t(band)] * pixel[band];
            pixel += m_bands;
        }
    }

    void sharpenRow(const T *in, const std::vector<int> &above, const std::vector<int> &here,
                    const std::vector<int> &below, T *out)
    {
        const auto width = size_t(m_width);
        for (size_t x = 0; x < width; ++x)
            m_sums[x + 1] = qint64(above[x]) + 2 * qint64(here[x]) + below[x];
        m_sums.front() = m_sums[1];
        m_sums.back() = m_sums[width];
        constexpr float lowest = 0;
        constexpr float highest = std::numeric_limits<T>::max();
        for (size_t x = 0; x < width; ++x, in += m_bands, out += m_bands) {
            const qint64 around = m_sums[x] + 2 * m_sums[x + 1] + m_sums[x + 2];
            const float difference = float(16 * qint64(here[x]) - around);
            const float more = std::clamp(difference * m_strength, -m_limit, m_limit);
            for (int band = 0; band < m_colours; ++band)
                out[band] = T(std::clamp(float(in[band]) + more, lowest, highest) + 0.5F);
            if (m_bands > m_colours)
                out[m_colours] = in[m_colours];
        }
    }

    const VImage &m_image;
    Weights m_weights;
    int m_colours;
    int m_bands;
    int m_width;
    float m_strength;
    float m_limit;
    std::array<std::vector<int>, 3> m_rows;
    std::vector<qint64> m_sums;
};

template<typename T> VImage sharpenedImage(const VImage &image, const Sharpening &sharpening)
{
    PixelMemory result({image.width(), image.height()}, image.bands(), image.format());
    Sharpener<T>(image, sharpening).run(result);
    return result.takenLike(image);
}

} // namespace

Result<Bitmap> sharpened(const Bitmap &bitmap, const Sharpening &sharpening)
{
    if (bitmap.isNull())
        return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to draw"));
    try {
        const Bitmap::Pixels &pixels = bitmap.pixels();
        const VImage image = inMemory(inForm(pixels.image()));
        const bool isDeep = image.format() == VIPS_FORMAT_USHORT;
        const VImage made =
            isDeep ? sharpenedImage<quint16>(image, sharpening) : sharpenedImage<uchar>(image, sharpening);
        return Bitmap(std::make_shared<const Bitmap::Pixels>(made, pixels.resolution, pixels.quantisation));
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
