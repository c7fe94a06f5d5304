#pragma once

// Private to the platform: the cost of drawing one element of an SVG file.

#include "platform/imageio/load/svg_outline.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QXmlStreamAttributes>

namespace platform {

/** @param drawn  the drawing's size in pixels, for one that does not state a size */
SvgCanvas svgCanvas(const QXmlStreamAttributes &root, QSize drawn);

/** The contents of style sheets, by the last word of each selector; an unsupported selector concerns every element. */
class SvgStyles
{
public:
    SvgStyles() = default;
    explicit SvgStyles(const QString &sheet);

    /** The declarations that may concern an element. */
    QString declarations(QStringView name, const QXmlStreamAttributes &attributes) const;
    int selectors() const { return m_selectors; }

private:
    QHash<QString, QString> m_rules;
    int m_selectors = 0;
};

/** The text of all "style" elements of a drawing. */
QString styleSheetOf(const QByteArray &drawing);

/** Another element drawn as part of this one. */
struct SvgReference
{
    enum class For { Use, Paint, Marker, Other };

    QString id;
    For what = For::Other;
};

struct SvgElement
{
    QString id;
    SvgCost cost;      ///< without its shape and its children
    double radius = 0; ///< cost of a filter, in units of the place where it is used, per pixel of the canvas
    SvgOutline outline;
    QList<SvgReference> references;
    bool isDefinition = false; ///< drawn only where it is referenced
    bool isLayer = false;      ///< has a separate surface in the size of the canvas
    bool isText = false;
    double letters = 0;
    bool isRefused = false; ///< the drawing library ends the process for numbers such as these

    double scale = 1; ///< its transform's scale, at most
    std::optional<bool> isStroked;
    std::optional<SvgLength> strokeWidth;
    std::optional<SvgLength> perhapsStrokeWidth; ///< of a rule that may concern the element
    std::optional<double> dash;                  ///< the mean of dashes and gaps; 0 for none
    std::optional<SvgLength> fontSize;
    std::optional<SvgLength> perhapsFontSize;

    std::optional<QSizeF> viewBox;
    std::optional<SvgLength> width;
    std::optional<SvgLength> height;
    bool isViewport = false;      ///< displays its contents through its own viewport, by width, height and view box
    bool isInUnitsOfBox = false;  ///< the unit of its contents is the size of the referencing element
    bool isInUnitsOfLine = false; ///< its unit is the line width of the referencing element
};

/** The coordinate system of an element's attributes and contents, within its parent's. */
SvgPlace placeWithin(const SvgElement &element, const SvgPlace &place);

/** The coordinate system inside the viewport of an element, if it has one. */
SvgPlace placeThroughWindow(const SvgElement &element, const SvgPlace &place);

/**
 * The coordinate system inside a referenced element.
 *
 * @param place  that of the referencing element
 */
SvgPlace placeReferredTo(const SvgElement &from, const SvgReference &reference, const SvgElement &to,
                         const SvgPlace &place, const SvgCanvas &canvas);

SvgElement svgElement(QStringView name, const QXmlStreamAttributes &attributes, const SvgStyles &styles);

} // namespace platform
