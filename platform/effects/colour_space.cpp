#include "platform/effects/colour_space.h"

#include "platform/descriptors/named_bytes.h"
#include "platform/graphics/icc_profile.h"
#include "platform/graphics/pixels.h"

#include <lcms2.h>

#include <QCoreApplication>

#include <array>
#include <memory>

namespace platform {
namespace {

using vips::VImage;

struct CloseProfile
{
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

/** A profile that comes with the picture library. */
QByteArray suppliedProfile(const char *name)
{
    initVips();
    VipsBlob *blob = nullptr;
    if (vips_profile_load(name, &blob, nullptr) != 0 || !blob)
        return {};
    return takenFrom(blob);
}

/** The same bytes at any time: the library writes the time at which it made the profile. */
QByteArray bytesOf(const Profile &profile)
{
    cmsUInt32Number length = 0;
    if (!profile || !cmsSaveProfileToMem(profile.get(), nullptr, &length))
        return {};
    QByteArray bytes(qsizetype(length), '\0');
    if (!cmsSaveProfileToMem(profile.get(), bytes.data(), &length))
        return {};
    constexpr qsizetype momentAt = 24;
    constexpr std::array<char, 12> firstOf2000 = {0x07, char(0xd0), 0,
                                                  1,    0,          1}; // year, month, day and a time of two bytes each
    return bytes.replace(momentAt, qsizetype(firstOf2000.size()), firstOf2000.data(), qsizetype(firstOf2000.size()));
}

/** Grey of the curve of sRGB, IEC 61966-2-1. */
QByteArray srgbGrey()
{
    constexpr std::array<double, 5> curveOfSrgb = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    constexpr int withLinearStart = 4;
    cmsToneCurve *curve = cmsBuildParametricToneCurve(nullptr, withLinearStart, curveOfSrgb.data());
    const Profile profile(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    return bytesOf(profile);
}

/** Primaries and curve of Adobe RGB (1998) Color Image Encoding, 2005, section 4.3. */
QByteArray adobeRgb()
{
    const cmsCIExyY white = {0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries = {{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
    constexpr double gamma = 563.0 / 256;
    cmsToneCurve *curve = cmsBuildGamma(nullptr, gamma);
    const std::array<cmsToneCurve *, 3> curves = {curve, curve, curve};
    const Profile profile(cmsCreateRGBProfile(&white, &primaries, curves.data()));
    cmsFreeToneCurve(curve);
    if (!profile)
        return {};
    constexpr double widelyRead = 2.1;
    cmsSetProfileVersion(profile.get(), widelyRead);
    cmsMLU *name = cmsMLUalloc(nullptr, 1);
    cmsMLUsetASCII(name, "en", "US", "Adobe RGB (1998)");
    cmsWriteTag(profile.get(), cmsSigProfileDescriptionTag, name);
    cmsMLUfree(name);
    return bytesOf(profile);
}

VImage inProfile(const VImage &image, const QByteArray &profile)
{
    // Only a conversion in one step is exact, and it reads the profile from a file.
    const NamedBytes file(profile);
    if (!file.isThere())
        throw vips::VError("there is no memory for a profile");
    const bool isGrey = image.bands() < 3;
    const bool isDeep = image.format() == VIPS_FORMAT_USHORT;
    const bool hasProfile = image.get_typeof(VIPS_META_ICC_NAME) != 0;
    const VImage colours = isGrey && !hasProfile
                               ? image.colourspace(isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB)
                               : image;
    return inMemory(colours.icc_transform(
        file.path(), VImage::option()
                         ->set("embedded", hasProfile)
                         ->set("input_profile", image.interpretation() == VIPS_INTERPRETATION_CMYK ? "cmyk" : "srgb")
                         ->set("intent", VIPS_INTENT_RELATIVE)
                         ->set("black_point_compensation", true)
                         ->set("depth", isDeep ? 16 : 8)));
}

/** The library's own conversion to grey weights the colours only roughly. */
VImage inGrey(const VImage &image)
{
    const VImage grey = inProfile(image, srgbGrey()).copy();
    grey.remove(VIPS_META_ICC_NAME);
    return grey;
}

} // namespace

QByteArray iccProfileFor(ColourSpace space)
{
    switch (space) {
    case ColourSpace::Srgb:
        return suppliedProfile("srgb");
    case ColourSpace::DisplayP3:
        return suppliedProfile("p3");
    case ColourSpace::AdobeRgb:
        return adobeRgb();
    case ColourSpace::Gray:
        break;
    }
    return {};
}

bool meansSameColours(const QByteArray &iccProfile, const QByteArray &other)
{
    const auto isPlain = [](const QByteArray &profile) { return profile.isEmpty() || isSrgb(profile); };
    return iccProfile == other || (isPlain(iccProfile) && isPlain(other));
}

bool canConvertTo(const QByteArray &iccProfile)
{
    const Profile profile(cmsOpenProfileFromMem(iccProfile.constData(), cmsUInt32Number(iccProfile.size())));
    if (!profile || !cmsIsIntentSupported(profile.get(), INTENT_RELATIVE_COLORIMETRIC, LCMS_USED_AS_OUTPUT))
        return false;
    const cmsColorSpaceSignature space = cmsGetColorSpace(profile.get());
    return space == cmsSigRgbData || space == cmsSigGrayData || space == cmsSigCmykData;
}

Result<Bitmap> convertedTo(const Bitmap &bitmap, const QByteArray &iccProfile)
{
    if (bitmap.isNull())
        return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to draw"));
    try {
        initVips();
        const Bitmap::Pixels &pixels = bitmap.pixels();
        const VImage image = inForm(pixels.image());
        const VImage made = iccProfile.isEmpty() ? inGrey(image) : inProfile(image, iccProfile);
        return bitmapFromImage(made, pixels.resolution, pixels.quantisation);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::InvalidValue, takeVipsError(error));
    }
}

} // namespace platform
