#pragma once

// Private to the platform: what drawing one element of an SVG file takes.

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSizeF>
#include <QString>
#include <QXmlStreamAttributes>

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

/** @param drawn  what the drawing becomes in pixels, for one that does not say its size */
SvgCanvas svgCanvas(const QXmlStreamAttributes &root, QSize drawn);

/** What style sheets say, by the last word of each selector; a selector that is not understood concerns every element. */
class SvgStyles
{
public:
    SvgStyles() = default;
    explicit SvgStyles(const QString &sheet);

    /** The declarations that may concern an element, its own attribute "style" included. */
    QString declarations(QStringView name, const QXmlStreamAttributes &attributes) const;
    int selectors() const { return m_selectors; }

private:
    QHash<QString, QString> m_rules;
    int m_selectors = 0;
};

/** The text of all elements "style" of a drawing. */
QString styleSheetOf(const QByteArray &drawing);

/** Another element that is drawn for this one, and how often, or for how much of the canvas. */
struct SvgReference
{
    QString id;
    double times = 1;
};

struct SvgElement
{
    QString id;
    SvgCost cost; ///< without its children
    QList<SvgReference> references;
    bool isDefinition = false; ///< drawn only where it is referred to
    bool isLayer = false;      ///< has a surface of its own, of the size of the canvas
    bool isText = false;
    bool isRefused = false; ///< the library that draws ends the process over numbers such as these
};

SvgElement svgElement(QStringView name, const QXmlStreamAttributes &attributes, const SvgStyles &styles,
                      const SvgCanvas &canvas);

} // namespace platform
