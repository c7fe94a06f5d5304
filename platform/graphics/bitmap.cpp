#include "platform/graphics/bitmap.h"

#include "platform/graphics/icc_profile.h"
#include "platform/graphics/pixels.h"

#include <QColor>

#include <algorithm>

namespace platform {
namespace {

using vips::VImage;

constexpr double defaultDpi = 72;

double statedOrDefault(double dpi)
{
    return dpi > 0 ? dpi : defaultDpi;
}

/** The value of one component as 0 to 255. */
int byteOf(const uchar *pixel, int band, VipsBandFormat format)
{
    switch (format) {
    case VIPS_FORMAT_UCHAR:
        return pixel[band];
    case VIPS_FORMAT_USHORT: {
        const auto value = reinterpret_cast<const quint16 *>(pixel)[band];
        return value >> 8;
    }
    default:
        return 0;
    }
}

std::array<int, 4> rgbaOf(const VImage &image, int x, int y)
{
    const auto *data = static_cast<const uchar *>(image.data());
    const size_t pixelBytes = VIPS_IMAGE_SIZEOF_PEL(image.get_image());
    const uchar *pixel = data + (size_t(y) * size_t(image.width()) + size_t(x)) * pixelBytes;
    const VipsBandFormat format = image.format();
    const int bands = image.bands();
    const bool isGrey = bands < 3;
    const int green = isGrey ? 0 : 1;
    const int blue = isGrey ? 0 : 2;
    const bool hasAlpha = bands == 2 || bands >= 4;
    return {byteOf(pixel, 0, format), byteOf(pixel, green, format), byteOf(pixel, blue, format),
            hasAlpha ? byteOf(pixel, isGrey ? 1 : 3, format) : 255};
}

std::array<int, 4> rgbaOf(const QImage &rows, int x, int y)
{
    const QColor color = rows.pixelColor(x, y);
    return {color.red(), color.green(), color.blue(), color.alpha()};
}

/** Whether these are the components that are shown. */
bool isForScreens(const Bitmap::Pixels &pixels)
{
    return !pixels.rows().isNull() && (pixels.profile().isEmpty() || (pixels.bands() > 1 && isSrgb(pixels.profile())));
}

bool isRgbOrGreyOfIntegers(const VImage &image)
{
    const bool isInteger = image.format() == VIPS_FORMAT_UCHAR || image.format() == VIPS_FORMAT_USHORT;
    const VipsInterpretation space = image.interpretation();
    return isInteger && otherBands(image) == 0 && space != VIPS_INTERPRETATION_CMYK && space != VIPS_INTERPRETATION_LAB;
}

/** RGB or grey of 8 or 16 bits; converted only if it is not one already. */
VImage asRgbOrGrey(const VImage &image)
{
    if (isRgbOrGreyOfIntegers(image))
        return image;
    return with8Bits(convertedToSrgb(inForm(image)));
}

} // namespace

Bitmap::Bitmap() = default;

Bitmap::Bitmap(std::shared_ptr<const Pixels> pixels) : m_pixels(std::move(pixels)) {}

Bitmap Bitmap::fromImage(const QImage &image)
{
    if (image.isNull())
        return {};
    initVips();
    const Resolution resolution = {dotsPerInch(image.dotsPerMeterX()), dotsPerInch(image.dotsPerMeterY())};
    return bitmapFromImage(imageFromQImage(image), resolution);
}

int Bitmap::width() const
{
    return m_pixels ? m_pixels->size().width() : 0;
}

int Bitmap::height() const
{
    return m_pixels ? m_pixels->size().height() : 0;
}

ColorModel Bitmap::colorModel() const
{
    if (!m_pixels)
        return ColorModel::Rgb;
    if (!m_pixels->rows().isNull())
        return m_pixels->bands() == 1 ? ColorModel::Gray : ColorModel::Rgb;
    switch (m_pixels->image().interpretation()) {
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
        return ColorModel::Gray;
    case VIPS_INTERPRETATION_CMYK:
        return ColorModel::Cmyk;
    case VIPS_INTERPRETATION_LAB:
    case VIPS_INTERPRETATION_LABS:
        return ColorModel::Lab;
    default:
        return ColorModel::Rgb;
    }
}

int Bitmap::bandCount() const
{
    return m_pixels ? m_pixels->bands() : 0;
}

bool Bitmap::hasAlpha() const
{
    if (!m_pixels)
        return false;
    return m_pixels->rows().isNull() ? hasTransparency(m_pixels->image()) : m_pixels->rows().hasAlphaChannel();
}

int Bitmap::bitsPerComponent() const
{
    constexpr int bitsPerByte = 8;
    return m_pixels ? m_pixels->bytesPerComponent() * bitsPerByte : 0;
}

QByteArray Bitmap::iccProfile() const
{
    return m_pixels ? m_pixels->profile() : QByteArray();
}

double Bitmap::horizontalDpi() const
{
    return m_pixels ? statedOrDefault(m_pixels->resolution.horizontal) : defaultDpi;
}

double Bitmap::verticalDpi() const
{
    return m_pixels ? statedOrDefault(m_pixels->resolution.vertical) : defaultDpi;
}

Bitmap Bitmap::withDpi(double horizontal, double vertical) const
{
    if (!m_pixels || (horizontal == horizontalDpi() && vertical == verticalDpi()))
        return *this;
    Pixels pixels = *m_pixels;
    pixels.resolution = {horizontal, vertical};
    return Bitmap(std::make_shared<const Pixels>(std::move(pixels)));
}

std::optional<JpegQuantisation> Bitmap::jpegQuantisation() const
{
    return m_pixels ? m_pixels->quantisation : std::nullopt;
}

QSizeF Bitmap::pointSize() const
{
    constexpr double pointsPerInch = 72;
    return {width() * pointsPerInch / horizontalDpi(), height() * pointsPerInch / verticalDpi()};
}

std::array<int, 4> Bitmap::pixel(int x, int y) const
{
    if (!m_pixels || x < 0 || y < 0 || x >= width() || y >= height())
        return {0, 0, 0, 0};
    if (!m_pixels->rows().isNull())
        return rgbaOf(m_pixels->rows(), x, y);
    if (isRgbOrGreyOfIntegers(m_pixels->image()))
        return rgbaOf(m_pixels->image(), x, y);
    try {
        const VImage one = asRgbOrGrey(m_pixels->image().extract_area(x, y, 1, 1)).copy_memory();
        return rgbaOf(one, 0, 0);
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return {0, 0, 0, 0};
    }
}

QImage Bitmap::toScreenImage() const
{
    if (!m_pixels)
        return {};
    if (isForScreens(*m_pixels))
        return m_pixels->rows();
    try {
        return qImageFrom(with8Bits(convertedToSrgb(inForm(m_pixels->image()))));
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return toRawImage();
    }
}

QImage Bitmap::toRawImage() const
{
    if (!m_pixels)
        return {};
    if (!m_pixels->rows().isNull())
        return m_pixels->rows();
    try {
        return qImageFrom(asRgbOrGrey(m_pixels->image()));
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return {};
    }
}

} // namespace platform
