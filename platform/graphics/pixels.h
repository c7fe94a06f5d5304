#pragma once

// Private to the platform: the contents of a Bitmap. Not to be included from any other room.

#include "platform/graphics/bitmap.h"
#include "platform/graphics/pixel_forms.h"

#include <functional>

#include <vips/vips8>

namespace platform {

struct Resolution
{
    double horizontal = 0; ///< dots per inch; 0 if none is stated
    double vertical = 0;
};

/**
 * Dots per inch from the whole dots per metre of some files and images: a whole number of dots per inch that rounds to
 * that value is assumed, so 72 and not 72.009.
 */
double dotsPerInch(double dotsPerMetre);

/**
 * The contents of a bitmap, decoded, in memory. Grey and RGB(A) of 8 bits can do without the library, which takes tens of
 * milliseconds to load, until somebody asks for image().
 */
struct Bitmap::Pixels
{
    /** @param image  in memory; only interpretation and profile are kept of its metadata */
    explicit Pixels(const vips::VImage &image, Resolution dpi = {}, std::optional<JpegQuantisation> tables = {});
    /** @param rows  Grayscale8, RGB888 or RGBA8888; a profile for other colours is dropped */
    Pixels(const QImage &rows, const QByteArray &profile, Resolution dpi, std::optional<JpegQuantisation> tables);

    /** Throws vips::VError. */
    const vips::VImage &image() const;
    /** The pixels as they were given; null if there is only the image. */
    const QImage &rows() const { return m_rows; }
    QByteArray profile() const;
    QSize size() const;
    int bands() const;
    int bytesPerComponent() const;

    Resolution resolution;
    std::optional<JpegQuantisation> quantisation;

private:
    mutable vips::VImage m_image;
    mutable QImage m_rows; ///< instead of the image
    QByteArray m_profile;  ///< of the rows
};

/**
 * Initialises the library; cheap if it is initialised. Whatever creates an image from scratch calls this first, and so
 * does code that clears the library's errors: before initialisation even that ends the process. The first call loads the
 * library, which takes tens of milliseconds, so code that does not need it does not call this.
 */
void initVips();

enum class Loading { Begins, Ended };
/** What to call before and after the library is loaded, which takes so long that it must not count as work on a picture. */
void watchVipsLoading(std::function<void(Loading)> call);

/** How many threads an operation of the library may use, now or once it is initialised. */
void limitVipsThreads(int threads);

/** The text of a caught library error; empties the error buffer for the next operation. */
QString takeVipsError(const vips::VError &error);

/**
 * The image with its pixels computed, in memory. Throws if the file behind it is damaged, even if the library itself
 * misses that: with several threads it can lose one of their failures, leave that part black and report success, with
 * only a text in its error buffer to reveal it.
 */
vips::VImage inMemory(const vips::VImage &image);

/** Whether it describes such colours. */
bool profileFits(const QByteArray &iccProfile, ColorModel colours);

/** The profile of an image; empty if it has none. */
QByteArray iccProfileOf(const vips::VImage &image);

/** Bytes per component of an image's band format. */
int bytesPerComponent(const vips::VImage &image);

/**
 * The image in a form that bitmaps have, evaluated lazily: see inForm(); without metadata except a matching profile.
 */
vips::VImage bareImage(const vips::VImage &image);

/** An image of any kind with its pixels in memory, without metadata except a profile that matches its colours. */
Bitmap bitmapFromImage(const vips::VImage &image, Resolution resolution = {},
                       std::optional<JpegQuantisation> quantisation = {});

/** Turns an image upright by an orientation of 1 to 8. */
vips::VImage turnedUpright(const vips::VImage &image, int orientation);

/** The image scaled to exactly @p size, evaluated lazily; see resample(). */
vips::VImage scaledTo(const vips::VImage &image, QSize size);

/**
 * The size of the blocks that scaledTo() averages before it scales, from the top left corner on; 1 x 1 if it does not.
 * Fine patterns depend on these blocks, so two ways to the same result must use the same ones.
 */
QSize blocksOf(QSize from, QSize to);

/**
 * An image in a plain form in sRGB: converted from its profile, or from CMYK. RGB and grey without a profile stay as they are,
 * and so do pixels whose profile means sRGB, whatever its name; see isSrgb().
 */
vips::VImage convertedToSrgb(const vips::VImage &image);

/** An image in a plain form with 8 bits a component. */
vips::VImage with8Bits(const vips::VImage &image);

/** RGB, RGBA, grey or grey and alpha pixels of a Qt image as an image that owns a copy of them. */
vips::VImage imageFromQImage(const QImage &image);

/** A Qt image with 8 or 16 bits from an image of grey or RGB in a plain form; null if memory fails. */
QImage qImageFrom(const vips::VImage &image);

/** A copy of the bytes of a blob, which is released. */
QByteArray takenFrom(VipsBlob *blob);

} // namespace platform
