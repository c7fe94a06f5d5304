#pragma once

// Private to the platform: what drawing one element of an SVG file takes.

#include "platform/imageio/load/svg_outline.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QXmlStreamAttributes>

namespace platform {

/** @param drawn  what the drawing becomes in pixels, for one that does not say its size */
SvgCanvas svgCanvas(const QXmlStreamAttributes &root, QSize drawn);

/** What style sheets say, by the last word of each selector; a selector that is not understood concerns every element. */
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

/** The text of all elements "style" of a drawing. */
QString styleSheetOf(const QByteArray &drawing);

/** Another element that is drawn for this one. */
struct SvgReference
{
    enum class For { Use, Paint, Marker, Other };

    QString id;
    For what = For::Other;
};

struct SvgElement
{
    QString id;
    SvgCost cost; ///< without its shape and its children
    double radius =
        0; ///< of a filter, in units of the place where it is used; each pixel of the canvas costs more with it
    SvgOutline outline;
    QList<SvgReference> references;
    bool isDefinition = false; ///< drawn only where it is referred to
    bool isLayer = false;      ///< has a surface of its own, of the size of the canvas
    bool isText = false;
    double letters = 0;
    bool isRefused = false; ///< the library that draws ends the process over numbers such as these

    double scale = 1; ///< what its transform makes of a length, at most
    std::optional<bool> isStroked;
    std::optional<SvgLength> strokeWidth;
    std::optional<SvgLength> perhapsStrokeWidth; ///< of a rule that may concern the element
    std::optional<double> dash;                  ///< the mean of dashes and gaps; 0 for none
    std::optional<SvgLength> fontSize;
    std::optional<SvgLength> perhapsFontSize;

    std::optional<QSizeF> viewBox;
    std::optional<SvgLength> width;
    std::optional<SvgLength> height;
    bool isViewport = false;      ///< shows what is in it through its own window, as its width, height and view box say
    bool isInUnitsOfBox = false;  ///< what is in it has the size of whatever refers to it as its unit
    bool isInUnitsOfLine = false; ///< the width of the line that refers to it is the unit
};

/** The place of what an element says and holds, in the place that it stands in. */
SvgPlace placeWithin(const SvgElement &element, const SvgPlace &place);

/** The place of what is seen through the window that an element is, if it is one. */
SvgPlace placeThroughWindow(const SvgElement &element, const SvgPlace &place);

/**
 * The place within an element that another one refers to.
 *
 * @param place  within the one that refers to it
 */
SvgPlace placeReferredTo(const SvgElement &from, const SvgReference &reference, const SvgElement &to,
                         const SvgPlace &place, const SvgCanvas &canvas);

SvgElement svgElement(QStringView name, const QXmlStreamAttributes &attributes, const SvgStyles &styles);

} // namespace platform
