#include "image/unit_conversion.h"

#include <array>
#include <cfloat>
#include <cmath>
#include <limits>

// Every step below is rounded to the precision of its type; the build file keeps the compiler from fusing two of them.
static_assert(FLT_EVAL_METHOD == 0, "single precision must not be computed with more");

namespace image {
namespace {

constexpr double millimetresPerInch = 25.4;

struct UnitName
{
    QLatin1String name;
    LengthUnit unit;
};

constexpr std::array<UnitName, 5> unitNames = {{
    {QLatin1String("mm"), LengthUnit::Millimetre},
    {QLatin1String("cm"), LengthUnit::Centimetre},
    {QLatin1String("inch"), LengthUnit::Inch},
    {QLatin1String("pica"), LengthUnit::Pica},
    {QLatin1String("punt"), LengthUnit::Point},
}};

/** The length in millimetres, in single precision. */
float inMillimetres(float value, LengthUnit unit)
{
    switch (unit) {
    case LengthUnit::Pixel:
    case LengthUnit::Millimetre:
        return value;
    case LengthUnit::Centimetre:
        return value * 10.0F;
    case LengthUnit::Inch:
        return float(value * millimetresPerInch);
    case LengthUnit::Pica:
        return float(value * 4.2175176);
    case LengthUnit::Point:
        return float(value * 0.3527777777778);
    }
    return value;
}

qint32 whole(double value)
{
    if (!std::isfinite(value))
        return 0;
    constexpr double least = std::numeric_limits<qint32>::min();
    constexpr double most = std::numeric_limits<qint32>::max();
    if (value <= least)
        return std::numeric_limits<qint32>::min();
    return value >= most ? std::numeric_limits<qint32>::max() : qint32(value);
}

} // namespace

LengthUnit lengthUnit(const QString &name)
{
    for (const UnitName &entry : unitNames)
        if (name == entry.name)
            return entry.unit;
    return LengthUnit::Pixel;
}

qint32 inPixels(float value, LengthUnit unit, float dpi)
{
    if (unit == LengthUnit::Pixel)
        return whole(double(value));
    const float product = inMillimetres(value, unit) * dpi;
    const double pixels = double(product) / millimetresPerInch;
    return unit == LengthUnit::Pica ? whole(double(std::round(float(pixels)))) : whole(pixels);
}

float resolutionOf(QSize pixels, QSizeF points)
{
    constexpr double pointsPerInch = 72;
    return std::ceil(float(pixels.width() * pointsPerInch / points.width()));
}

} // namespace image
