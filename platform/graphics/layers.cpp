#include "platform/graphics/layers.h"

#include "platform/descriptors/named_bytes.h"
#include "platform/graphics/icc_profile.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace platform {

using vips::VImage;

namespace {

bool isColorless(const VImage &image)
{
    return image.bands() < 3;
}

int colorBands(const VImage &image)
{
    return isColorless(image) ? 1 : 3;
}

bool hasAlpha(const VImage &image)
{
    return image.bands() > colorBands(image);
}

/** Colours that are already sRGB: converting would only add rounding errors. */
bool isInSrgb(const VImage &image)
{
    const QByteArray profile = iccProfileOf(image);
    return profile.isEmpty() || isSrgb(profile);
}

bool isDeep(const VImage &image)
{
    return image.format() == VIPS_FORMAT_USHORT;
}

/** Every value of one depth as the nearest of the other: the maximum stays the maximum. */
VImage withDepthOf(const VImage &image, const VImage &values)
{
    constexpr double perStep = 257;
    if (isDeep(image) == isDeep(values))
        return values;
    return isDeep(image) ? values.linear(perStep, 0).cast(VIPS_FORMAT_USHORT)
                         : values.linear(1 / perStep, 0).rint().cast(VIPS_FORMAT_UCHAR);
}

VImage converted(const VImage &image, const VImage &srgb)
{
    if (isInSrgb(image))
        return srgb;
    const QByteArray profile = iccProfileOf(image);
    // Only a conversion in one step is exact, and it reads the profile from a file.
    const NamedBytes file(profile);
    if (!file.isThere())
        throw vips::VError("there is no memory for a profile");
    const VipsInterpretation space = isDeep(srgb) ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    const VImage colors = isColorless(srgb) ? srgb.colourspace(space) : srgb;
    return colors
        .icc_transform(file.path(), VImage::option()
                                        ->set("input_profile", "srgb")
                                        ->set("intent", VIPS_INTENT_RELATIVE)
                                        ->set("depth", isDeep(image) ? 16 : 8))
        .copy_memory();
}

VImage inSpaceOf(const VImage &image, const VImage &srgb)
{
    VImage colors = converted(image, srgb);
    if (isColorless(colors) && !isColorless(image))
        colors = colors.colourspace(isDeep(colors) ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    return withDepthOf(image, colors).copy_memory();
}

VImage newImage(QSize size, int bands, const VImage &like)
{
    VImage image = VImage::new_memory();
    vips_image_init_fields(image.get_image(), size.width(), size.height(), bands, like.format(), VIPS_CODING_NONE,
                           like.interpretation(), 1, 1);
    if (vips_image_write_prepare(image.get_image()) != 0)
        throw vips::VError();
    const QByteArray profile = iccProfileOf(like);
    if (!profile.isEmpty())
        vips_image_set_blob_copy(image.get_image(), VIPS_META_ICC_NAME, profile.constData(), size_t(profile.size()));
    return image;
}

uchar *rowOf(const VImage &image, int y)
{
    return reinterpret_cast<uchar *>(image.get_image()->data) + VIPS_IMAGE_SIZEOF_LINE(image.get_image()) * size_t(y);
}

template<typename T> constexpr quint64 opaque = std::numeric_limits<T>::max();

/** @p value of @p part out of @p whole, rounded. */
constexpr quint64 share(quint64 value, quint64 part, quint64 whole)
{
    return (value * part + whole / 2) / whole;
}

/** Alpha @p alpha scaled by @p coverage out of 255. */
quint64 coveredAlpha(quint64 alpha, uchar coverage)
{
    constexpr quint64 all = 255;
    return share(alpha, coverage, all);
}

/** One pixel over nothing: an invisible one leaves no trace. */
template<typename T> void keep(const T *over, quint64 alpha, int colors, T *out)
{
    if (alpha == 0) {
        std::fill_n(out, colors + 1, T(0));
        return;
    }
    std::copy_n(over, colors, out);
    out[colors] = T(alpha);
}

/** One pixel over an opaque one. */
template<typename T> void mix(const T *over, quint64 alpha, const T *under, int colors, T *out)
{
    constexpr quint64 all = opaque<T>;
    for (int band = 0; band < colors; ++band)
        out[band] = T((over[band] * alpha + under[band] * (all - alpha) + all / 2) / all);
}

/** One pixel over one that may be transparent. */
template<typename T> void join(const T *over, quint64 alpha, const T *under, int colors, T *out)
{
    constexpr quint64 all = opaque<T>;
    const quint64 overWeight = alpha * all;
    const quint64 underWeight = under[colors] * (all - alpha);
    const quint64 weight = overWeight + underWeight;
    if (weight == 0) {
        std::fill_n(out, colors + 1, T(0));
        return;
    }
    for (int band = 0; band < colors; ++band)
        out[band] = T((over[band] * overWeight + under[band] * underWeight + weight / 2) / weight);
    out[colors] = T((weight + all / 2) / all);
}

} // namespace

bool isGrey(const QColor &color)
{
    const QRgba64 parts = color.rgba64();
    return parts.red() == parts.green() && parts.green() == parts.blue();
}

VImage colorImage(const QColor &color)
{
    initVips();
    const QRgba64 parts = color.rgba64();
    std::array<quint16, 3> pixel = {parts.red(), parts.green(), parts.blue()};
    const int bands = isGrey(color) ? 1 : 3;
    const VipsInterpretation space = bands == 1 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_RGB16;
    return VImage::new_from_memory(pixel.data(), size_t(bands) * sizeof(quint16), 1, 1, bands, VIPS_FORMAT_USHORT)
        .copy(VImage::option()->set("interpretation", space))
        .copy_memory();
}

VImage composable(const VImage &image, bool needsColors)
{
    VImage plain = inForm(image);
    if (plain.interpretation() == VIPS_INTERPRETATION_CMYK || (needsColors && isColorless(plain)))
        plain = convertedToSrgb(plain);
    if (needsColors && isColorless(plain))
        plain = plain.colourspace(isDeep(plain) ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    return plain.copy_memory();
}

MatchedLayers matched(const VImage &over, const VImage &srgb)
{
    try {
        return {over, inSpaceOf(over, srgb)};
    } catch (const vips::VError &) {
        if (isInSrgb(over))
            throw;
    }
    vips_error_clear();
    const VImage plain = composable(convertedToSrgb(over), !isColorless(over));
    return {plain, inSpaceOf(plain, srgb)};
}

Layers::Layers(const VImage &image, const QRect &part, const std::optional<VImage> &under)
    : m_image(image), m_part(part), m_under(under)
{
    const bool isOpaque = under && !hasAlpha(*under);
    m_result = newImage(part.size(), colorBands(image) + (isOpaque ? 0 : 1), image);
    if (under)
        m_underRow.resize(VIPS_IMAGE_SIZEOF_PEL(under->get_image()) * size_t(part.width()));
}

const uchar *Layers::underRow(int y)
{
    if (!m_under)
        return nullptr;
    const int wanted = y % m_under->height();
    if (wanted == m_underRowIndex)
        return m_underRow.data();
    const size_t tileBytes = VIPS_IMAGE_SIZEOF_LINE(m_under->get_image());
    for (size_t at = 0; at < m_underRow.size(); at += tileBytes)
        std::memcpy(m_underRow.data() + at, rowOf(*m_under, wanted), std::min(tileBytes, m_underRow.size() - at));
    m_underRowIndex = wanted;
    return m_underRow.data();
}

template<typename T> void Layers::composeRow(int y, const uchar *coverage)
{
    const int colors = colorBands(m_image);
    const int bands = m_image.bands();
    const int outBands = m_result.bands();
    const bool isSeeThrough = hasAlpha(m_image);
    const T *over = reinterpret_cast<const T *>(rowOf(m_image, m_part.y() + y)) + size_t(m_part.x()) * size_t(bands);
    const T *under = reinterpret_cast<const T *>(underRow(y));
    const int underBands = m_under ? m_under->bands() : 0;
    T *out = reinterpret_cast<T *>(rowOf(m_result, y));
    for (int x = 0; x < m_part.width(); ++x, over += bands, under += underBands, out += outBands) {
        quint64 alpha = isSeeThrough ? over[colors] : opaque<T>;
        if (coverage)
            alpha = coveredAlpha(alpha, coverage[x]);
        if (!under)
            keep(over, alpha, colors, out);
        else if (underBands == colors)
            mix(over, alpha, under, colors, out);
        else
            join(over, alpha, under, colors, out);
    }
}

void Layers::compose(int y, const uchar *coverage)
{
    if (isDeep(m_image))
        composeRow<quint16>(y, coverage);
    else
        composeRow<uchar>(y, coverage);
}

} // namespace platform
