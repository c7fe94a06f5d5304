#include "platform/graphics/icc_profile.h"

#include "platform/foundation/byte_order.h"

#include <QScopeGuard>

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

// An ICC profile; numbers are big-endian:
//
//     header (128), with the space of its colours at 16 and the connecting one at 20 | number of tags (4) |
//     for each tag: name (4), offset (4), size (4) | the tags, each its type (4), four zeros, and what the type says

namespace platform {
namespace {

constexpr int levels = 256;

/** All greys, which reveal the curves, and a grid of colours, finer in the dark. Three levels for each colour. */
std::vector<quint8> probeColours()
{
    std::vector<quint8> colours;
    for (int grey = 0; grey < levels; ++grey)
        colours.insert(colours.end(), 3, quint8(grey));
    constexpr std::array<quint8, 9> lattice = {0, 8, 16, 32, 64, 96, 128, 192, 255};
    for (const quint8 red : lattice)
        for (const quint8 green : lattice)
            for (const quint8 blue : lattice)
                colours.insert(colours.end(), {red, green, blue});
    return colours;
}

/** Whether the conversion to sRGB, the same that pictures get, leaves the test colours unchanged. */
bool meansSrgb(const QByteArray &profile)
{
    // A separate context: error handlers set by others do not apply.
    const std::unique_ptr<std::remove_pointer_t<cmsContext>, decltype(&cmsDeleteContext)> context(
        cmsCreateContext(nullptr, nullptr), &cmsDeleteContext);
    const auto size = cmsUInt32Number(profile.size());
    const cmsHPROFILE from = cmsOpenProfileFromMemTHR(context.get(), profile.constData(), size);
    const cmsHPROFILE to = cmsCreate_sRGBProfileTHR(context.get());
    const auto closing = qScopeGuard([from, to] {
        for (const cmsHPROFILE each : {from, to})
            if (each)
                cmsCloseProfile(each);
    });
    if (!from || !to || cmsGetColorSpace(from) != cmsSigRgbData)
        return false;
    const cmsHTRANSFORM transform =
        cmsCreateTransformTHR(context.get(), from, TYPE_RGB_8, to, TYPE_RGB_DBL, INTENT_RELATIVE_COLORIMETRIC,
                              cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE);
    if (!transform)
        return false;
    const std::vector<quint8> colours = probeColours();
    std::vector<double> converted(colours.size());
    cmsDoTransform(transform, colours.data(), converted.data(), cmsUInt32Number(colours.size() / 3));
    cmsDeleteTransform(transform);
    return std::equal(colours.begin(), colours.end(), converted.begin(), [](quint8 before, double after) {
        return std::abs(std::clamp(after, 0.0, 1.0) * (levels - 1) - before) <= 1;
    });
}

} // namespace

QByteArray iccTag(const QByteArray &profile, const char *name)
{
    constexpr qsizetype headerBytes = 128;
    constexpr quint32 mostTags = 100;
    constexpr qsizetype entryBytes = 12;
    const quint32 count = std::min(bigEndian32At(profile, headerBytes), mostTags);
    for (quint32 tag = 0; tag < count; ++tag) {
        const qsizetype entry = headerBytes + 4 + qsizetype(tag) * entryBytes;
        if (profile.mid(entry, 4) == name)
            return profile.mid(qsizetype(bigEndian32At(profile, entry + 4)),
                               qsizetype(bigEndian32At(profile, entry + 8)));
    }
    return {};
}

bool isSrgb(const QByteArray &profile)
{
    // Most pictures of a batch have the same profile.
    static QByteArray last;
    static bool lastMeansSrgb = false;
    if (profile.isEmpty())
        return false;
    if (profile != last) {
        lastMeansSrgb = meansSrgb(profile);
        last = QByteArray(profile.constData(), profile.size());
    }
    return lastMeansSrgb;
}

} // namespace platform
