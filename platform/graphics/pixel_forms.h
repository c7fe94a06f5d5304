#pragma once

// Private to the platform: the few forms in which pixels are processed, whatever the file held.

#include "platform/graphics/bitmap.h"

#include <vips/vips8>

namespace platform {

/** What a decoder knows about an image's samples beyond what the library says. */
struct SampleFacts
{
    static constexpr int unknown = -1;
    static constexpr int none = -2;

    int colours = unknown; ///< how many bands come before the others
    int alpha = unknown;   ///< the band that is transparency, or none
    int bits = unknown;    ///< how many of the upper bits of each sample are significant
};

/** The image with these facts, for inForm(). */
vips::VImage withSampleFacts(const vips::VImage &image, const SampleFacts &facts);

/**
 * The image in one of the forms allowed by @p forms, evaluated lazily. The one place where the pixels of files become
 * the pixels used everywhere here: samples of few bits are scaled to the full range, signed ones shifted, floating
 * point from 0 to 1 and long integers converted to 16 bits; Lab, and CMYK with transparency, become sRGB; bands that
 * are neither colour nor transparency are dropped. An image in such a form is unchanged.
 */
vips::VImage inForm(const vips::VImage &image, Forms forms = Forms::Plain);

/** How many bands after colours and transparency have some other meaning; none except in Forms::AsTiffHolds. */
int otherBands(const vips::VImage &image);

/** True where one of the bands is transparency, which then follows the colours. */
bool hasTransparency(const vips::VImage &image);

/** The alpha value of an opaque pixel of an image in a form. */
double opaqueValue(const vips::VImage &image);

/** Lab that was stored with 16 bits per component. */
bool isDeepLab(const vips::VImage &image);

/** True for the fields in which an image stores these facts, which must be kept. */
bool isFormField(const char *field);

/** A 16-bit image rounded to 8 bits. */
vips::VImage roundedTo8Bits(const vips::VImage &image);

} // namespace platform
