#pragma once

// Private to the platform: how large a shape of an SVG file is, and the cost of drawing it.

#include <QSizeF>
#include <QString>

#include <optional>

namespace platform {

/** Nanoseconds: per pixel of the canvas, per pixel of its longer side, and a fixed part. */
struct SvgCost
{
    double aPixel = 0;
    double aSide = 0;
    double once = 0;
};

/** The size of the drawing in its own units. */
using SvgCanvas = QSizeF;

/** A length in local units, and as a share of the visible area. */
struct SvgLength
{
    double units = 0;
    double share = 0;

    double in(double whole) const { return units + share * whole; }
};

/**
 * A text such as "5", "5mm" or "5%"; letters of a font, whose size is unknown here, count as the whole visible area.
 */
SvgLength svgLength(QStringView text);

/** What an element inherits from its parents, and from elements that refer to it. */
struct SvgPlace
{
    double scale = 1; ///< maximum scale: canvas units per local unit
    QSizeF shown;     ///< the visible area, in local units
    bool isStroked = false;
    double strokeWidth = 1; ///< in local units, like the next two
    double dash = 0;        ///< the mean of dashes and gaps; 0 for none
    double fontSize = 16;
};

/** A shape as defined by its element. */
class SvgOutline
{
public:
    SvgOutline() = default;
    SvgOutline(SvgLength width, SvgLength height) : m_width(width), m_height(height), m_isRect(true) {}

    /** Alternating x and y coordinates, restarted by each command; lower-case letters mean relative ones. */
    static SvgOutline ofPath(QStringView text);

    /** The largest share of the canvas that it can cover. */
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

/** Letters anywhere on the canvas. */
SvgCost svgLetterCost(const SvgPlace &place, const SvgCanvas &canvas);

/** The numbers of a text; separators are skipped. */
QList<double> svgNumbers(QStringView text);
double largestSvgNumber(QStringView text);

} // namespace platform
