#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QImage>
#include <QMetaType>
#include <QRect>
#include <QSize>

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

enum class ColorModel { Gray, Rgb, Cmyk, Lab };

/** Which forms the pixels of a picture may have. */
enum class Forms {
    /** Grey or RGB, with or without transparency, or CMYK without; 8 or 16 bits. */
    Plain,
    /**
     * Also Lab and floating point, transparency with all of them, and further channels of any meaning. No type other
     * than TIFF holds them, so they are for TIFF to TIFF only.
     */
    AsTiffHolds,
};

/** How a JPEG was quantised, so that it can be written again without a second loss. */
struct JpegQuantisation
{
    std::array<std::array<quint16, 64>, 4> tables = {}; ///< in natural order; all zero if the file had none
    std::array<int, 4> tableOfComponent = {};
    int horizontalSampling = 1; ///< of the first component relative to the others: 2 and 2 is 4:2:0
    int verticalSampling = 1;
};

/**
 * Decoded pixels in memory with their colour model, depth, alpha, colour profile and resolution.
 *
 * A cheap value: copies share the pixels, which never change. A null bitmap means "no picture". Coordinates are
 * pixels, origin top left. Alpha is not premultiplied. A bitmap without a profile is sRGB (or grey with its curve).
 */
class Bitmap
{
public:
    Bitmap();

    /** Pixels of a Qt image, as sRGB; keeps alpha and 16 bits per component. A null image gives a null bitmap. */
    static Bitmap fromImage(const QImage &image);

    bool isNull() const { return !m_pixels; }
    /** True for two values that share the same pixels. */
    bool operator==(const Bitmap &other) const = default;
    int width() const;
    int height() const;
    QSize size() const { return {width(), height()}; }
    ColorModel colorModel() const;
    /** Colour components and alpha together: 1 to 5. */
    int bandCount() const;
    bool hasAlpha() const;
    /** 8, 16 or 32 (32: floating point). */
    int bitsPerComponent() const;
    /** The embedded ICC profile, empty if the picture has none. */
    QByteArray iccProfile() const;
    /** Dots per inch; 72 if the picture states none. */
    double horizontalDpi() const;
    double verticalDpi() const;
    /** Set if the pixels come from a JPEG. */
    std::optional<JpegQuantisation> jpegQuantisation() const;

    /** The same pixels with another resolution, in dots per inch; 0 for none. */
    Bitmap withDpi(double horizontal, double vertical) const;

    /** The size in points: pixels x 72 / dots per inch. */
    QSizeF pointSize() const;

    /**
     * One pixel as red, green, blue, alpha, 0 to 255, not premultiplied, in the bitmap's own RGB or grey space; CMYK
     * and Lab are converted to sRGB. Outside the bitmap all four are 0.
     */
    std::array<int, 4> pixel(int x, int y) const;

    /** The pixels for the screen: 8 bits, converted from the profile to sRGB. Null if that fails. */
    QImage toScreenImage() const;

    /** The pixels as 8 or 16 bit RGB(A) or grey, without colour conversion except from CMYK and Lab. */
    QImage toRawImage() const;

    struct Pixels;
    explicit Bitmap(std::shared_ptr<const Pixels> pixels);
    const Pixels &pixels() const { return *m_pixels; }

private:
    std::shared_ptr<const Pixels> m_pixels;
};

/**
 * A reference to a variable that holds a bitmap, as passed between operations: null, or a variable whose content may be
 * replaced later and may be a null bitmap.
 */
class BitmapHandle
{
public:
    BitmapHandle() = default;
    /** A new variable that holds @p bitmap. */
    explicit BitmapHandle(Bitmap bitmap) : m_variable(std::make_shared<Bitmap>(std::move(bitmap))) {}
    bool isNull() const { return !m_variable; }
    /** The bitmap in the variable; a null bitmap if the handle is null. */
    Bitmap bitmap() const { return m_variable ? *m_variable : Bitmap(); }
    /** Replaces the content of the variable for all its references; the handle must not be null. */
    void assign(Bitmap bitmap) { *m_variable = std::move(bitmap); }
    bool operator==(const BitmapHandle &other) const = default;

private:
    std::shared_ptr<Bitmap> m_variable;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::Bitmap)
Q_DECLARE_METATYPE(platform::BitmapHandle)
