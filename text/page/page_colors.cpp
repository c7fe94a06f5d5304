#include "text/page/page_colors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace text {

namespace {

using Rgb = std::array<double, 3>; // 0 to 255

constexpr double readable = 4.5;

Rgb colorOf(const QString &text, const QString &otherwise)
{
    const auto isHex = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    };
    const bool isColor = text.size() == 7 && text.startsWith(u'#') && std::all_of(text.begin() + 1, text.end(), isHex);
    const QString known = isColor ? text : otherwise;
    constexpr int base = 16;
    return {double(known.mid(1, 2).toInt(nullptr, base)), double(known.mid(3, 2).toInt(nullptr, base)),
            double(known.mid(5, 2).toInt(nullptr, base))};
}

QString wordFor(const Rgb &color)
{
    QString word = QStringLiteral("#");
    for (const double part : color)
        word += QStringLiteral("%1").arg(int(std::lround(part)), 2, 16, QLatin1Char('0'));
    return word;
}

double luminance(const Rgb &color)
{
    const auto linear = [](double part) {
        const double value = part / 255;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color[0]) + 0.7152 * linear(color[1]) + 0.0722 * linear(color[2]);
}

double contrast(const Rgb &one, const Rgb &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)}); // of values: no reference is kept
    return (lighter + 0.05) / (darker + 0.05);
}

Rgb between(const Rgb &from, const Rgb &to, double share)
{
    Rgb mixed{};
    for (std::size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = std::round(from[i] + (to[i] - from[i]) * share);
    return mixed;
}

/** The first colour on the way to the ink that is readable on the paper. */
Rgb readableOn(const Rgb &paper, const Rgb &wanted, const Rgb &ink)
{
    constexpr int steps = 50;
    for (int i = 0; i < steps; ++i) {
        const Rgb color = between(wanted, ink, double(i) / steps);
        if (contrast(color, paper) >= readable)
            return color;
    }
    return ink;
}

} // namespace

PageColors pageColors(const QString &paper, const QString &accent)
{
    constexpr double softShare = 0.62;
    constexpr Rgb black{0x17, 0x19, 0x1c};
    constexpr Rgb white{0xf4, 0xf5, 0xf6};
    const Rgb ground = colorOf(paper, QStringLiteral("#ffffff"));
    // On a medium paper neither of these is enough, but pure black or white is.
    Rgb ink = contrast(white, ground) > contrast(black, ground) ? white : black;
    if (contrast(ink, ground) < readable)
        ink = contrast({255, 255, 255}, ground) > contrast({0, 0, 0}, ground) ? Rgb{255, 255, 255} : Rgb{0, 0, 0};
    return {wordFor(ground), wordFor(ink), wordFor(readableOn(ground, between(ground, ink, softShare), ink)),
            wordFor(readableOn(ground, colorOf(accent, QStringLiteral("#1f5fbf")), ink))};
}

double contrastOf(const QString &one, const QString &other)
{
    return contrast(colorOf(one, QStringLiteral("#ffffff")), colorOf(other, QStringLiteral("#ffffff")));
}

} // namespace text
