#include "platform/graphics/pixel_forms.h"

#include "platform/graphics/pixels.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace platform {
namespace {

using vips::VImage;
using vips::VOption;

constexpr const char *coloursField = "quorlin-colours";
constexpr const char *alphaField = "quorlin-alpha";
constexpr const char *bitsField = "quorlin-bits";
constexpr const char *othersField = "quorlin-others";
constexpr const char *deepLabField = "quorlin-deep-lab";
constexpr double most8 = 255;
constexpr double most16 = 65535;

int fieldOf(const VImage &image, const char *name, int otherwise)
{
    return image.get_typeof(name) == 0 ? otherwise : image.get_int(name);
}

VImage typed(const VImage &image, VipsInterpretation space)
{
    return image.copy(VImage::option()->set("interpretation", space));
}

VImage bandsOf(const VImage &image, int first, int count)
{
    return first == 0 && count == image.bands() ? image : image.extract_band(first, VImage::option()->set("n", count));
}

bool isLab(const VImage &image)
{
    const VipsInterpretation space = image.interpretation();
    return space == VIPS_INTERPRETATION_LAB || space == VIPS_INTERPRETATION_LABS || space == VIPS_INTERPRETATION_LABQ;
}

bool isFloat(const VImage &image)
{
    return image.format() == VIPS_FORMAT_FLOAT || image.format() == VIPS_FORMAT_DOUBLE;
}

/** The bytes of a file with Lab, which the library would read as ten bits of lightness, and so darken. */
VImage uncodedLab(const VImage &image)
{
    const VImage bytes = image.copy(
        VImage::option()->set("coding", VIPS_CODING_NONE)->set("interpretation", VIPS_INTERPRETATION_MULTIBAND));
    const VImage lightness = bytes.extract_band(0).linear(100 / most8, 0.0);
    const VImage colours =
        bandsOf(bytes, 1, 2).copy(VImage::option()->set("format", VIPS_FORMAT_CHAR)).cast(VIPS_FORMAT_FLOAT);
    return typed(lightness.bandjoin(colours), VIPS_INTERPRETATION_LAB);
}

/** The meaning of the bands. */
struct Bands
{
    int colours = 0;
    int alpha = SampleFacts::none;
    int others = 0;
};

int likelyColours(const VImage &image)
{
    constexpr int cmyk = 4;
    constexpr int rgb = 3;
    const bool isCmyk = image.interpretation() == VIPS_INTERPRETATION_CMYK;
    const bool isGrey =
        image.interpretation() == VIPS_INTERPRETATION_B_W || image.interpretation() == VIPS_INTERPRETATION_GREY16;
    if (isCmyk && image.bands() >= cmyk)
        return cmyk;
    return image.bands() < rgb || isGrey ? 1 : rgb;
}

Bands bandsIn(const VImage &image)
{
    Bands bands;
    bands.colours = std::min(fieldOf(image, coloursField, likelyColours(image)), image.bands());
    const int others = fieldOf(image, othersField, 0);
    const int behind = image.bands() - bands.colours;
    const int stated = fieldOf(image, alphaField, SampleFacts::unknown);
    if (stated >= bands.colours && stated < image.bands())
        bands.alpha = stated;
    else if (stated == SampleFacts::unknown && behind - others == 1)
        bands.alpha = bands.colours;
    bands.others = behind - (bands.alpha >= 0 ? 1 : 0);
    return bands;
}

/** Colours first, then transparency, then the others if they are wanted. */
VImage arranged(const VImage &image, const Bands &bands, bool keepsOthers)
{
    const bool isInOrder = bands.alpha < 0 || bands.alpha == bands.colours;
    if (isInOrder) {
        const int kept = bands.colours + (bands.alpha >= 0 ? 1 : 0) + (keepsOthers ? bands.others : 0);
        return bandsOf(image, 0, kept);
    }
    VImage result = bandsOf(image, 0, bands.colours).bandjoin(image.extract_band(bands.alpha));
    for (int band = bands.colours; keepsOthers && band < image.bands(); ++band)
        if (band != bands.alpha)
            result = result.bandjoin(image.extract_band(band));
    return result;
}

VImage rounded(const VImage &image, VipsBandFormat format)
{
    return image.rint().cast(format);
}

/** Lab of any storage as floating point, with all other bands from 0 to 255. */
VImage asPlainLab(const VImage &image)
{
    constexpr int colours = 3;
    if (image.interpretation() == VIPS_INTERPRETATION_LAB && isFloat(image))
        return image;
    const VImage lab = bandsOf(image, 0, colours);
    const VImage plain =
        image.interpretation() == VIPS_INTERPRETATION_LABS ? lab.LabS2Lab() : lab.colourspace(VIPS_INTERPRETATION_LAB);
    if (image.bands() == colours)
        return plain;
    // Bands after the colours are not signed, whatever the library says.
    const VImage others =
        bandsOf(image, colours, image.bands() - colours).copy(VImage::option()->set("format", VIPS_FORMAT_USHORT));
    return plain.bandjoin(others.linear(most8 / most16, 0.0));
}

/** Unsigned integers of 8 or 16 bits. */
VImage asUnsigned(const VImage &image)
{
    constexpr double perStep = 65537; // of 16 bits in 32
    switch (image.format()) {
    case VIPS_FORMAT_CHAR:
        return rounded(image.linear(1.0, 128.0), VIPS_FORMAT_UCHAR);
    case VIPS_FORMAT_SHORT:
        return rounded(image.linear(1.0, 32768.0), VIPS_FORMAT_USHORT);
    case VIPS_FORMAT_UINT:
        return rounded(image.cast(VIPS_FORMAT_DOUBLE).linear(1 / perStep, 0.0), VIPS_FORMAT_USHORT);
    case VIPS_FORMAT_INT:
        return rounded(image.cast(VIPS_FORMAT_DOUBLE).linear(1 / perStep, 2147483648.0 / perStep), VIPS_FORMAT_USHORT);
    default:
        return image;
    }
}

/** Samples whose lower bits are always 0, scaled to the full range of their type. */
VImage atFullRange(const VImage &image, int bits)
{
    const bool isDeep = image.format() == VIPS_FORMAT_USHORT;
    const int whole = isDeep ? 16 : 8;
    if (bits < 1 || bits >= whole)
        return image;
    const double top = double(((1U << bits) - 1) << (whole - bits));
    return rounded(image.linear((isDeep ? most16 : most8) / top, 0.0), image.format());
}

VImage asNumbers(const VImage &image, Forms forms, int bits)
{
    if (!isFloat(image))
        return atFullRange(asUnsigned(image), bits);
    if (forms == Forms::AsTiffHolds)
        return image.format() == VIPS_FORMAT_FLOAT ? image : image.cast(VIPS_FORMAT_FLOAT);
    return rounded(image.linear(most16, 0.0), VIPS_FORMAT_USHORT);
}

VipsInterpretation spaceOf(const VImage &image, int colours)
{
    constexpr int cmyk = 4;
    const bool isDeep = image.format() == VIPS_FORMAT_USHORT;
    if (colours == cmyk)
        return VIPS_INTERPRETATION_CMYK;
    if (colours == 1)
        return isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    if (isFloat(image))
        return VIPS_INTERPRETATION_scRGB;
    return isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
}

VImage labAsRgb(const VImage &lab, bool isDeep)
{
    constexpr int colours = 3;
    const VipsBandFormat format = isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR;
    const VipsInterpretation space = isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    const VImage rgb = bandsOf(lab, 0, colours).colourspace(space).cast(format);
    if (lab.bands() == colours)
        return rgb;
    const VImage alpha = lab.extract_band(colours).linear(isDeep ? most16 / most8 : 1, 0.0);
    return typed(rgb.bandjoin(rounded(alpha, format)), space);
}

VImage withoutFields(const VImage &image)
{
    VImage bare = image.copy();
    for (const char *field : {coloursField, alphaField, bitsField, othersField, deepLabField})
        bare.remove(field);
    return bare;
}

VImage labInForm(const VImage &image, const Bands &bands, Forms forms)
{
    const bool isDeep = isDeepLab(image) || fieldOf(image, bitsField, 0) > 8;
    const bool isKept = forms == Forms::AsTiffHolds;
    const VImage lab = withoutFields(asPlainLab(arranged(image, bands, isKept)));
    if (!isKept)
        return labAsRgb(lab, isDeep);
    VImage kept = lab.copy();
    kept.set(deepLabField, isDeep ? 1 : 0);
    kept.set(othersField, bands.others);
    return kept;
}

/** RGB with transparency from CMYK with transparency, which hardly any type holds. */
VImage inkAsRgb(const VImage &image)
{
    constexpr int inks = 4;
    const VImage rgb = convertedToSrgb(typed(bandsOf(image, 0, inks), VIPS_INTERPRETATION_CMYK));
    return typed(rgb.bandjoin(image.extract_band(inks)), rgb.interpretation());
}

bool isInForm(const VImage &image, Forms forms)
{
    if (image.coding() != VIPS_CODING_NONE)
        return false;
    for (const char *field : {coloursField, alphaField, bitsField})
        if (image.get_typeof(field) != 0)
            return false;
    if (forms == Forms::AsTiffHolds && (image.get_typeof(othersField) != 0 || image.get_typeof(deepLabField) != 0))
        return true;
    const bool isPlainFormat = image.format() == VIPS_FORMAT_UCHAR || image.format() == VIPS_FORMAT_USHORT;
    return isPlainFormat && otherBands(image) == 0 && image.bands() <= 4 &&
           image.interpretation() == spaceOf(image, likelyColours(image));
}

} // namespace

VImage withSampleFacts(const VImage &image, const SampleFacts &facts)
{
    VImage told = image.copy();
    if (facts.colours != SampleFacts::unknown)
        told.set(coloursField, facts.colours);
    if (facts.alpha != SampleFacts::unknown)
        told.set(alphaField, facts.alpha);
    if (facts.bits != SampleFacts::unknown)
        told.set(bitsField, facts.bits);
    return told;
}

VImage inForm(const VImage &image, Forms forms)
{
    if (isInForm(image, forms))
        return image;
    constexpr int inks = 4;
    const VImage uncoded = image.coding() == VIPS_CODING_LABQ ? uncodedLab(image) : image;
    const Bands bands = bandsIn(uncoded);
    if (isLab(uncoded))
        return labInForm(uncoded, bands, forms);
    const bool isKept = forms == Forms::AsTiffHolds;
    const VImage numbers = asNumbers(arranged(uncoded, bands, isKept), forms, fieldOf(image, bitsField, 0));
    VImage result = withoutFields(typed(numbers, spaceOf(numbers, bands.colours)));
    if (isKept) {
        result.set(othersField, bands.others);
        return result;
    }
    return bands.colours == inks && bands.alpha >= 0 ? inkAsRgb(result) : result;
}

int otherBands(const VImage &image)
{
    return fieldOf(image, othersField, 0);
}

bool hasTransparency(const VImage &image)
{
    return bandsIn(image).alpha >= 0;
}

double opaqueValue(const VImage &image)
{
    if (image.format() == VIPS_FORMAT_USHORT)
        return most16;
    return isFloat(image) && !isLab(image) ? 1 : most8;
}

bool isDeepLab(const VImage &image)
{
    return fieldOf(image, deepLabField, 0) != 0;
}

bool isFormField(const char *field)
{
    return std::strcmp(field, othersField) == 0 || std::strcmp(field, deepLabField) == 0;
}

VImage roundedTo8Bits(const VImage &image)
{
    constexpr int entries = 65536;
    static const std::array<uchar, entries> table = [] {
        std::array<uchar, entries> made = {};
        for (int value = 0; value < entries; ++value)
            made[size_t(value)] = uchar((value * 255 + 32767) / 65535);
        return made;
    }();
    const VImage lut =
        VImage::new_from_memory(const_cast<uchar *>(table.data()), table.size(), entries, 1, 1, VIPS_FORMAT_UCHAR);
    VipsInterpretation space = image.interpretation();
    if (space == VIPS_INTERPRETATION_RGB16)
        space = VIPS_INTERPRETATION_sRGB;
    if (space == VIPS_INTERPRETATION_GREY16)
        space = VIPS_INTERPRETATION_B_W;
    return typed(image.maplut(lut), space);
}

} // namespace platform
