#include "platform/imageio/load/svg_outline.h"

#include <QList>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace platform {
namespace {

// Nanoseconds, measured with the drawing library.
constexpr double shape = 20'000;
constexpr double point = 200;
constexpr double filledPixel = 0.2;
constexpr double strokedPixel = 5;
constexpr double edgePixel = 100;
constexpr double dashCost = 600;

/** The library cuts off longer lines, in pixels; a canvas has no more pixels per unit than this allows. */
constexpr double longestLine = 1 << 24;

/** The numbers of a text and the separators. */
template<typename OnNumber, typename OnLetter>
void scan(QStringView text, const OnNumber &onNumber, const OnLetter &onLetter)
{
    const QByteArray bytes = text.toLatin1();
    const char *at = bytes.constData();
    const char *const end = at + bytes.size();
    while (at < end) {
        double number = 0;
        const auto [next, error] = std::from_chars(at, end, number);
        if (error == std::errc() && next > at) {
            onNumber(number);
            at = next;
        } else {
            onLetter(*at++);
        }
    }
}

double share(double part, double whole)
{
    return whole > 0 ? std::clamp(part / whole, 0.0, 1.0) : 1;
}

/** Units of length; those of a screen with 96 dots per inch. */
double unitsIn(QStringView unit)
{
    struct Unit
    {
        const char *name;
        double units;
    };
    static const Unit known[] = {{"", 1},      {"px", 1},       {"in", 96}, {"cm", 37.8},
                                 {"mm", 3.78}, {"pt", 4.0 / 3}, {"pc", 16}};
    const auto found = std::find_if(std::begin(known), std::end(known),
                                    [unit](const Unit &each) { return unit == QLatin1String(each.name); });
    return found == std::end(known) ? 0 : found->units;
}

} // namespace

SvgLength svgLength(QStringView text)
{
    QStringView unit = text.trimmed();
    const auto isOfNumber = [](QChar each) { return each.isDigit() || each == u'.'; };
    while (!unit.isEmpty() && !(unit.front().isLetter() || unit.front() == u'%'))
        unit = unit.mid(1);
    // The letter of an exponent is not part of a unit.
    if (unit.size() > 1 && unit.front().toLower() == u'e' &&
        (isOfNumber(unit[1]) || unit[1] == u'-' || unit[1] == u'+')) {
        unit = unit.mid(2);
        while (!unit.isEmpty() && isOfNumber(unit.front()))
            unit = unit.mid(1);
    }
    const double number = largestSvgNumber(text);
    if (unit == QLatin1String("%"))
        return {0, number / 100};
    const double units = unitsIn(unit);
    return units > 0 ? SvgLength{number * units, 0} : SvgLength{0, number};
}

SvgOutline SvgOutline::ofPath(QStringView text)
{
    constexpr double farthest = 1e9;
    SvgOutline outline;
    double at[2] = {0, 0};
    double least[2] = {0, 0};
    double most[2] = {0, 0};
    bool isRelative = false;
    int axis = 0;
    const auto take = [&](double number) {
        const double jump = isRelative ? number : number - at[axis];
        const bool isFirst = outline.m_points < 2;
        at[axis] = std::clamp(isRelative ? at[axis] + number : number, -farthest, farthest);
        least[axis] = isFirst ? at[axis] : std::min(least[axis], at[axis]);
        most[axis] = isFirst ? at[axis] : std::max(most[axis], at[axis]);
        outline.m_length += isFirst ? 0 : std::min(std::abs(jump), farthest);
        ++outline.m_points;
        axis = 1 - axis;
    };
    const auto command = [&](char letter) {
        if (!std::isalpha(uchar(letter)))
            return;
        isRelative = std::islower(uchar(letter)) && outline.m_points > 0;
        axis = letter == 'v' || letter == 'V' ? 1 : 0;
    };
    scan(text, take, command);
    outline.m_points /= 2;
    outline.m_width.units = most[0] - least[0];
    outline.m_height.units = most[1] - least[1];
    return outline;
}

double SvgOutline::area(const SvgPlace &place, const SvgCanvas &canvas) const
{
    return share(width(place) * place.scale, canvas.width()) * share(height(place) * place.scale, canvas.height());
}

double SvgOutline::extent(const SvgPlace &place) const
{
    return std::max(width(place), height(place)) * place.scale;
}

SvgCost SvgOutline::cost(const SvgPlace &place, const SvgCanvas &canvas) const
{
    const double side = std::max({canvas.width(), canvas.height(), 1e-9});
    const double lines = m_isRect ? 4 : m_points;
    const double length = m_isRect ? 2 * (width(place) + height(place)) : m_length;
    // What is outside the canvas is not drawn, but each line may cross all of it.
    const double seen = std::min(length * place.scale, lines * (canvas.width() + canvas.height())) / side;
    const double strokeWidth = place.isStroked ? std::min(1.0, place.strokeWidth * place.scale / side) : 0;
    const double dashes = place.isStroked && place.dash > 0 ? std::min(length / place.dash, lines * longestLine) : 0;
    return {filledPixel * area(place, canvas) + strokedPixel * seen * strokeWidth, edgePixel * seen,
            shape + point * lines + dashCost * dashes};
}

SvgCost svgLetterCost(const SvgPlace &place, const SvgCanvas &canvas)
{
    constexpr double plainLetter = 25'000;
    const SvgLength side{place.fontSize, 0};
    SvgCost cost = SvgOutline(side, side).cost(place, canvas);
    cost.aSide = 0; // small letters are all edge, and their edges are included in the cost of a letter
    cost.once += plainLetter - shape;
    return cost;
}

QList<double> svgNumbers(QStringView text)
{
    QList<double> numbers;
    scan(
        text, [&numbers](double number) { numbers.append(number); }, [](char) {});
    return numbers;
}

double largestSvgNumber(QStringView text)
{
    double largest = 0;
    for (const double number : svgNumbers(text))
        largest = std::max(largest, std::abs(number));
    return largest;
}

} // namespace platform
