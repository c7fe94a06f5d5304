#pragma once

// Private to the platform: how large a shape of an SVG file is, and what drawing it takes.

#include <QSizeF>
#include <QString>

#include <optional>

namespace platform {

/** Nanoseconds: for each pixel of the canvas, for each pixel of its longer side, and whatever its size. */
struct SvgCost
{
    double aPixel = 0;
    double aSide = 0;
    double once = 0;
};

/** The size of the drawing in its own units. */
using SvgCanvas = QSizeF;

/** A length in units of the place where it is said, and as a share of what is shown there. */
struct SvgLength
{
    double units = 0;
    double share = 0;

    double in(double whole) const { return units + share * whole; }
};

/** A text such as "5", "5mm" or "5%"; letters of a font, whose size nobody knows here, count as all that is shown. */
SvgLength svgLength(QStringView text);

/** What an element takes over from the ones around it, and from those that refer to it. */
struct SvgPlace
{
    double scale = 1; ///< at most so many units of the canvas are one unit here
    QSizeF shown;     ///< what is shown, in units of this place
    bool isStroked = false;
    double strokeWidth = 1; ///< in units of this place, as the next two
    double dash = 0;        ///< the mean of dashes and gaps; 0 for none
    double fontSize = 16;
};

/** A shape as its element tells it. */
class SvgOutline
{
public:
    SvgOutline() = default;
    SvgOutline(SvgLength width, SvgLength height) : m_width(width), m_height(height), m_isRect(true) {}

    /** Coordinates by turns across and down, begun afresh by each command; small letters mean distances. */
    static SvgOutline ofPath(QStringView text);

    /** How much of the canvas it covers, at most. */
    double area(const SvgPlace &place, const SvgCanvas &canvas) const;
    double points() const { return m_points; }
    /** Its longer side, in units of the canvas. */
    double extent(const SvgPlace &place) const;
    SvgCost cost(const SvgPlace &place, const SvgCanvas &canvas) const;

private:
    double width(const SvgPlace &place) const { return m_width.in(place.shown.width()); }
    double height(const SvgPlace &place) const { return m_height.in(place.shown.height()); }

    SvgLength m_width;
    SvgLength m_height;
    bool m_isRect = false;
    double m_length = 0;
    double m_points = 0;
};

/** Letters that stand anywhere on the canvas. */
SvgCost svgLetterCost(const SvgPlace &place, const SvgCanvas &canvas);

/** The numbers of a text; what stands between them is passed over. */
QList<double> svgNumbers(QStringView text);
double largestSvgNumber(QStringView text);

} // namespace platform
