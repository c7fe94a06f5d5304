#include "platform/graphics/icc_profile.h"

#include "platform/foundation/byte_order.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

// An ICC profile; numbers have their highest byte first:
//
//     header (128), with the space of its colours at 16 and the connecting one at 20 | number of tags (4) |
//     for each tag: name (4), offset (4), size (4) | the tags, each its type (4), four zeros, and what the type says

namespace platform {
namespace {

constexpr qsizetype headerBytes = 128;
constexpr qsizetype numbersAt = 8; // in a tag, behind its type and four bytes that mean nothing
constexpr int levels = 256;

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>; ///< rows
/** The light that each level of a component stands for, 0 to 1. */
using Curve = std::array<double, levels>;

double fixedAt(const QByteArray &bytes, qsizetype at)
{
    constexpr double one = 65536;
    return qint32(bigEndian32At(bytes, at)) / one;
}

double srgbOfLight(double light)
{
    const double kept = std::clamp(light, 0.0, 1.0);
    return kept <= 0.0031308 ? kept * 12.92 : 1.055 * std::pow(kept, 1 / 2.4) - 0.055;
}

/** The colorants as columns: what full red, green and blue are in the space that profiles are connected by. */
std::optional<Matrix> colorantsOf(const QByteArray &profile)
{
    Matrix matrix = {};
    constexpr std::array<const char *, 3> names = {"rXYZ", "gXYZ", "bXYZ"};
    for (size_t colour = 0; colour < names.size(); ++colour) {
        const QByteArray tag = iccTag(profile, names[colour]);
        constexpr qsizetype tagBytes = numbersAt + 12;
        if (!tag.startsWith("XYZ ") || tag.size() < tagBytes)
            return std::nullopt;
        for (size_t row = 0; row < matrix.size(); ++row)
            matrix[row][colour] = fixedAt(tag, numbersAt + 4 * qsizetype(row));
    }
    return matrix;
}

/** A sampled curve, or one power. */
std::optional<Curve> sampledCurve(const QByteArray &tag)
{
    const auto count = qsizetype(bigEndian32At(tag, numbersAt));
    constexpr qsizetype samplesAt = numbersAt + 4;
    if (count > (tag.size() - samplesAt) / 2)
        return std::nullopt;
    const auto sample = [&tag](qsizetype i) { return qFromBigEndian<quint16>(tag.constData() + samplesAt + 2 * i); };
    Curve curve = {};
    for (int level = 0; level < levels; ++level) {
        const double value = level / double(levels - 1);
        constexpr double one = 256;
        if (count < 2) {
            curve[size_t(level)] = count == 0 ? value : std::pow(value, sample(0) / one);
            continue;
        }
        const double place = value * double(count - 1);
        const auto before = std::min(qsizetype(place), count - 2);
        const double part = place - double(before);
        curve[size_t(level)] = (sample(before) * (1 - part) + sample(before + 1) * part) / 65535;
    }
    return curve;
}

/** The formula with up to seven parameters: a power, and a straight piece at its foot. */
std::optional<Curve> formulaCurve(const QByteArray &tag)
{
    constexpr std::array<int, 5> parameterCounts = {1, 3, 4, 5, 7};
    const auto kind = size_t(bigEndian32At(tag, numbersAt) >> 16);
    constexpr qsizetype parametersAt = numbersAt + 4;
    if (kind >= parameterCounts.size() || tag.size() < parametersAt + 4 * parameterCounts[kind])
        return std::nullopt;
    const auto parameter = [&tag](int i) { return fixedAt(tag, parametersAt + 4 * i); };
    const double power = parameter(0);
    const double scale = kind >= 1 ? parameter(1) : 1;
    const double shift = kind >= 1 ? parameter(2) : 0;
    const double slope = kind >= 3 ? parameter(3) : 0;
    const double foot = kind >= 3 ? parameter(4) : scale != 0 ? -shift / scale : 0;
    const double above = kind == 2 ? parameter(3) : kind == 4 ? parameter(5) : 0;
    const double below = kind == 2 ? parameter(3) : kind == 4 ? parameter(6) : 0;
    Curve curve = {};
    for (int level = 0; level < levels; ++level) {
        const double value = level / double(levels - 1);
        curve[size_t(level)] =
            value >= foot ? std::pow(std::max(0.0, scale * value + shift), power) + above : slope * value + below;
    }
    return curve;
}

std::optional<Curve> curveOf(const QByteArray &profile, const char *name)
{
    const QByteArray tag = iccTag(profile, name);
    if (tag.startsWith("curv"))
        return sampledCurve(tag);
    return tag.startsWith("para") ? formulaCurve(tag) : std::nullopt;
}

Triple operator*(const Matrix &matrix, const Triple &colour)
{
    Triple result = {};
    for (size_t row = 0; row < result.size(); ++row)
        result[row] = matrix[row][0] * colour[0] + matrix[row][1] * colour[1] + matrix[row][2] * colour[2];
    return result;
}

Matrix operator*(const Matrix &left, const Matrix &right)
{
    Matrix result = {};
    for (size_t row = 0; row < result.size(); ++row)
        for (size_t column = 0; column < result.size(); ++column)
            for (size_t i = 0; i < result.size(); ++i)
                result[row][column] += left[row][i] * right[i][column];
    return result;
}

/** From the connecting space, whose white is that of D50, to the light of sRGB. */
constexpr Matrix toSrgbLight = {
    {{3.1341122, -1.6173924, -0.4906334}, {-0.9787873, 1.9162796, 0.0334547}, {0.0719830, -0.2289858, 1.4053851}}};

bool isKept(const Matrix &conversion, const std::array<Curve, 3> &curves, const std::array<int, 3> &colour)
{
    Triple light = {};
    for (size_t i = 0; i < light.size(); ++i)
        light[i] = curves[i][size_t(colour[i])];
    const Triple converted = conversion * light;
    const auto isSame = [&](size_t i) { return std::abs(srgbOfLight(converted[i]) * (levels - 1) - colour[i]) <= 1; };
    return isSame(0) && isSame(1) && isSame(2);
}

bool keepsEveryColour(const Matrix &conversion, const std::array<Curve, 3> &curves)
{
    for (int grey = 0; grey < levels; ++grey)
        if (!isKept(conversion, curves, {grey, grey, grey}))
            return false;
    constexpr int step = 15; // 18 steps a side
    for (int red = 0; red < levels; red += step)
        for (int green = 0; green < levels; green += step)
            for (int blue = 0; blue < levels; blue += step)
                if (!isKept(conversion, curves, {red, green, blue}))
                    return false;
    return true;
}

bool goesByTables(const QByteArray &profile)
{
    for (const char *name : {"A2B0", "A2B1", "A2B2", "D2B0", "D2B1", "D2B2", "D2B3"})
        if (!iccTag(profile, name).isEmpty())
            return true;
    return false;
}

bool meansSrgb(const QByteArray &profile)
{
    if (profile.mid(16, 4) != "RGB " || profile.mid(20, 4) != "XYZ " || goesByTables(profile))
        return false;
    const std::optional<Matrix> colorants = colorantsOf(profile);
    const std::array<std::optional<Curve>, 3> curves = {curveOf(profile, "rTRC"), curveOf(profile, "gTRC"),
                                                        curveOf(profile, "bTRC")};
    if (!colorants || !curves[0] || !curves[1] || !curves[2])
        return false;
    return keepsEveryColour(toSrgbLight * *colorants, {*curves[0], *curves[1], *curves[2]});
}

} // namespace

QByteArray iccTag(const QByteArray &profile, const char *name)
{
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
    // Most pictures of a batch have one and the same profile.
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
