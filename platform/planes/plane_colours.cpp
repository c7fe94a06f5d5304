#include "platform/planes/plane_colours.h"

#include "platform/planes/fast_loop.h"

namespace platform {
namespace {

constexpr int fractionBits = 16;

/** A factor of JPEG's conversion as a whole number. */
constexpr int factor(double value)
{
    return int(value * (1 << fractionBits) + 0.5);
}

constexpr int clamped(int level)
{
    return level < 0 ? 0 : level > 255 ? 255 : level;
}

} // namespace

QUORLIN_FAST_LOOP void coloursOf(const uchar *brightness, const uchar *blueness, const uchar *redness, uchar *rgb,
                                 int count)
{
    constexpr int none = 128;
    constexpr int half = 1 << (fractionBits - 1);
    for (int x = 0; x < count; ++x) {
        const int level = (brightness[x] << fractionBits) + half;
        const int blue = blueness[x] - none;
        const int red = redness[x] - none;
        rgb[3 * x] = uchar(clamped((level + factor(1.402) * red) >> fractionBits));
        rgb[3 * x + 1] = uchar(clamped((level - factor(0.344136) * blue - factor(0.714136) * red) >> fractionBits));
        rgb[3 * x + 2] = uchar(clamped((level + factor(1.772) * blue) >> fractionBits));
    }
}

QUORLIN_FAST_LOOP void addAlpha(const uchar *__restrict rgb, uchar *__restrict rgba, int count)
{
    constexpr uchar opaque = 255;
    for (int x = 0; x < count; ++x) {
        rgba[4 * x] = rgb[3 * x];
        rgba[4 * x + 1] = rgb[3 * x + 1];
        rgba[4 * x + 2] = rgb[3 * x + 2];
        rgba[4 * x + 3] = opaque;
    }
}

} // namespace platform
