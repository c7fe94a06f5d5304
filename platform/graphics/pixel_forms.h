#pragma once

// Private to the platform: the few forms in which pixels are worked on, whatever a file held.

#include "platform/graphics/bitmap.h"

#include <vips/vips8>

namespace platform {

/** What a decoder knows of an image's samples beyond what the library tells. */
struct SampleFacts
{
    static constexpr int unknown = -1;
    static constexpr int none = -2;

    int colours = unknown; ///< how many bands come before the others
    int alpha = unknown;   ///< the band that is transparency, or none
    int bits = unknown;    ///< how many of the upper bits of each sample have a meaning
};

/** The image with these facts, for inForm(). */
vips::VImage withSampleFacts(const vips::VImage &image, const SampleFacts &facts);

/**
 * The image in one of the forms that @p forms allow, still to be computed. The one place where pixels as files have them become
 * pixels as everything here knows them: few bits are scaled to the full range, signed samples raised, floating point from 0 to 1
 * and long integers brought to 16 bits; Lab, and CMYK with transparency, become sRGB; bands that are neither colour nor
 * transparency go. Changes nothing of an image that is in such a form.
 */
vips::VImage inForm(const vips::VImage &image, Forms forms = Forms::Plain);

/** How many bands behind colours and transparency have some other meaning; none but in Forms::AsTiffHolds. */
int otherBands(const vips::VImage &image);

/** True where one of the bands is transparency, which then follows the colours. */
bool hasTransparency(const vips::VImage &image);

/** What an opaque pixel of an image in a form has as its transparency. */
double opaqueValue(const vips::VImage &image);

/** Lab that came with 16 bits a component. */
bool isDeepLab(const vips::VImage &image);

/** True for the fields in which an image holds these facts, which stay with it. */
bool isFormField(const char *field);

/** An image with 8 bits from one with 16, rounded. */
vips::VImage roundedTo8Bits(const vips::VImage &image);

} // namespace platform
