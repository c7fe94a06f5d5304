#pragma once

// Private to the platform: what a Bitmap is made of. Not to be included from any other room.

#include "platform/graphics/bitmap.h"
#include "platform/graphics/pixel_forms.h"

#include <vips/vips8>

namespace platform {

struct Resolution
{
    double horizontal = 0; ///< dots per inch; 0 where none is stated
    double vertical = 0;
};

/**
 * Dots per inch from the whole dots per metre that some files and images hold: what a whole number of dots per inch is
 * rounded to there counts as that number, 72 and not 72.009.
 */
double dotsPerInch(double dotsPerMetre);

struct Bitmap::Pixels
{
    vips::VImage image; ///< decoded, in memory; interpretation, profile and nothing else of metadata
    Resolution resolution;
    std::optional<JpegQuantisation> quantisation;
};

/**
 * Makes the library ready for use; cheap when it is. Whatever makes an image where there was none calls this first, and so
 * does what clears the library's errors: before its start even that ends the process.
 */
void initVips();

/** The text of a caught library error, and an empty error buffer for the next operation. */
QString takeVipsError(const vips::VError &error);

/**
 * The image with its pixels computed, in memory. Throws where the file behind it is damaged, also where the library
 * itself forgets about it: with several threads at work it loses the failure of one of them, leaves what that one should have
 * computed black and calls the picture good, with nothing but a text in its error buffer to tell.
 */
vips::VImage inMemory(const vips::VImage &image);

/** The profile that an image carries; empty where it has none. */
QByteArray iccProfileOf(const vips::VImage &image);

/** Bytes per component of an image's band format. */
int bytesPerComponent(const vips::VImage &image);

/** The image in a form that bitmaps have, still to be computed: see inForm(); no metadata but a profile that fits. */
vips::VImage bareImage(const vips::VImage &image);

/** An image of any kind with pixels pulled into memory, metadata dropped but for a profile that fits its colours. */
Bitmap bitmapFromImage(const vips::VImage &image, Resolution resolution = {},
                       std::optional<JpegQuantisation> quantisation = {});

/** Turns an image upright by an orientation of 1 to 8. */
vips::VImage turnedUpright(const vips::VImage &image, int orientation);

/** The image scaled to exactly @p size, still to be computed; see resample(). */
vips::VImage scaledTo(const vips::VImage &image, QSize size);

/**
 * Of how many pixels scaledTo() takes the mean before it scales what these are, from the top left corner on; 1 x 1 where it does not.
 * Fine patterns come out as what the blocks make of them, so whatever is to give the same has to have the same blocks.
 */
QSize blocksOf(QSize from, QSize to);

/**
 * An image in a plain form in sRGB: converted from its profile, or from CMYK. RGB and grey without a profile stay as they are,
 * and so do the pixels where the profile means sRGB, whatever its name; see isSrgb().
 */
vips::VImage convertedToSrgb(const vips::VImage &image);

/** An image in a plain form with 8 bits a component. */
vips::VImage with8Bits(const vips::VImage &image);

/** RGB, RGBA, grey or grey and alpha pixels of a Qt image as an image that owns a copy of them. */
vips::VImage imageFromQImage(const QImage &image);

/** A Qt image with 8 or 16 bits from an image of grey or RGB in a plain form; null if memory fails. */
QImage qImageFrom(const vips::VImage &image);

/** A copy of the bytes of a blob, which is given back to the library. */
QByteArray takenFrom(VipsBlob *blob);

} // namespace platform
