#include "platform/imageio/encoders/quality_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace platform {
namespace {

/** A quality on JPEG's scale, and its equivalent. */
struct Pair
{
    double jpeg;
    double own;
};

// Measured (docs/decisions/0031); linear interpolation between the pairs.
constexpr std::array<Pair, 8> avif = {
    {{1, 10}, {20, 35}, {40, 50}, {60, 57}, {75, 66}, {85, 77}, {95, 89}, {100, 100}}};
constexpr std::array<Pair, 8> jpeg2000 = {
    {{1, 25}, {20, 31}, {40, 34}, {60, 36}, {75, 37}, {85, 39}, {95, 44}, {100, 60}}};
// From 30 on the format's own tools use JPEG's scale.
constexpr std::array<Pair, 3> jpegXl = {{{1, 15}, {30, 6.4}, {100, 0.1}}};

template<size_t Count> double between(const std::array<Pair, Count> &pairs, int quality)
{
    const double wanted = std::clamp(double(quality), pairs.front().jpeg, pairs.back().jpeg);
    size_t upper = 1;
    while (pairs[upper].jpeg < wanted)
        ++upper;
    const Pair &from = pairs[upper - 1];
    const Pair &to = pairs[upper];
    return from.own + (to.own - from.own) * (wanted - from.jpeg) / (to.jpeg - from.jpeg);
}

} // namespace

int avifQuality(int quality)
{
    return int(std::lround(between(avif, quality)));
}

double jpegXlDistance(int quality)
{
    return between(jpegXl, quality);
}

int jpeg2000Decibels(int quality)
{
    return int(std::lround(between(jpeg2000, quality)));
}

} // namespace platform
