#include "platform/imageio/load/svg_elements.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace platform {
namespace {

// Nanoseconds, measured with the drawing library.
constexpr double gradientStop = 0.5; // per pixel, since stops are searched from the first on
constexpr double layer = 10;
constexpr double drawingByte = 1000;
constexpr double pictureByte = 20;
constexpr double plainPrimitive = 40;
constexpr double blur = 90;
constexpr double displacement = 250;
constexpr double onePerOctave = 60;
constexpr double onePerKernelNumber = 6;

bool isOneOf(QStringView name, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [name](const char *each) { return name == QLatin1String(each); });
}

/** The cost of one filter primitive. */
double primitiveCost(QStringView name, const QXmlStreamAttributes &attributes)
{
    const auto number = [&attributes](const char *key) {
        return largestSvgNumber(attributes.value(QLatin1String(key)));
    };
    if (name == QLatin1String("feTurbulence"))
        return plainPrimitive + onePerOctave * std::max(1.0, number("numOctaves"));
    if (name == QLatin1String("feConvolveMatrix"))
        return plainPrimitive + onePerKernelNumber * std::pow(std::max(3.0, number("order")), 2);
    if (isOneOf(name, {"feGaussianBlur", "feDropShadow"}))
        return blur;
    return name == QLatin1String("feDisplacementMap") ? displacement : plainPrimitive;
}

/** Filter primitives with absurd coordinates, and kernels of more than 400 numbers. */
bool endsTheProcess(QStringView name, const QXmlStreamAttributes &attributes)
{
    constexpr double farthest = 1e6;
    constexpr double mostOfKernel = 400;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const bool isSize = isOneOf(attribute.name(), {"width", "height"});
        if (!isSize && !isOneOf(attribute.name(), {"x", "y", "order", "kernelUnitLength", "dx", "dy", "radius"}))
            continue;
        const QList<double> numbers = svgNumbers(attribute.value());
        const auto isOdd = [](double number) { return !(std::abs(number) <= farthest); };
        if (std::any_of(numbers.begin(), numbers.end(), isOdd))
            return true;
        if (isSize && (numbers.isEmpty() || !(numbers.first() > 0)))
            return true;
        if (name == QLatin1String("feConvolveMatrix") && attribute.name() == QLatin1String("order") &&
            !numbers.isEmpty() && numbers.first() * numbers.last() > mostOfKernel)
            return true;
    }
    return false;
}

bool isDefinition(QStringView name)
{
    return isOneOf(name, {"defs", "filter", "mask", "clipPath", "pattern", "symbol", "marker", "linearGradient",
                          "radialGradient"});
}

SvgOutline outlineOf(QStringView name, const QXmlStreamAttributes &attributes)
{
    const auto length = [&attributes](const char *key) { return svgLength(attributes.value(QLatin1String(key))); };
    const auto twice = [&length](const char *key) {
        const SvgLength radius = length(key);
        return SvgLength{2 * radius.units, 2 * radius.share};
    };
    if (isOneOf(name, {"rect", "image"}))
        return {length("width"), length("height")};
    if (name == QLatin1String("circle"))
        return {twice("r"), twice("r")};
    if (name == QLatin1String("ellipse"))
        return {twice("rx"), twice("ry")};
    if (isOneOf(name, {"polyline", "polygon"}))
        return SvgOutline::ofPath(attributes.value(QLatin1String("points")));
    if (name == QLatin1String("path"))
        return SvgOutline::ofPath(attributes.value(QLatin1String("d")));
    if (name != QLatin1String("line"))
        return {};
    const auto between = [&length](const char *one, const char *other) {
        return SvgLength{length(one).units + length(other).units, length(one).share + length(other).share};
    };
    return {between("x1", "x2"), between("y1", "y2")};
}

/** The maximum scale of a transform: the product of those of its parts. */
double scaleOf(const QString &transform)
{
    static const QRegularExpression part(QStringLiteral("(matrix|scale|skewX|skewY)\\s*\\(([^)]*)"));
    constexpr double degree = 0.017453292519943295;
    double scale = 1;
    for (auto match = part.globalMatch(transform); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QList<double> numbers = svgNumbers(found.captured(2));
        const auto at = [&numbers](int i) { return numbers.value(i, 0); };
        if (found.captured(1) == QStringLiteral("matrix")) {
            const double sum = at(0) * at(0) + at(1) * at(1) + at(2) * at(2) + at(3) * at(3);
            const double area = at(0) * at(3) - at(1) * at(2);
            scale *= std::sqrt((sum + std::sqrt(std::max(0.0, sum * sum - 4 * area * area))) / 2);
        } else if (found.captured(1) == QStringLiteral("scale")) {
            scale *= largestSvgNumber(found.captured(2));
        } else {
            scale *= 1 + std::abs(std::tan(at(0) * degree));
        }
    }
    return scale;
}

/** The maximum scale of a window of that size relative to its view box. */
double scaleOfWindow(const QSizeF &window, const QSizeF &box)
{
    return box.isEmpty() ? 1 : std::max(window.width() / box.width(), window.height() / box.height());
}

/** The mean of dashes and gaps; 0 for none. */
double dashOf(QStringView value)
{
    const QList<double> numbers = svgNumbers(value);
    double sum = 0;
    for (const double number : numbers)
        sum += std::abs(number);
    return numbers.isEmpty() ? 0 : sum / double(numbers.size());
}

bool isLayer(QStringView property, QStringView value)
{
    const bool isPlain = isOneOf(value, {"none", "normal", "auto", "1"});
    return !isPlain && isOneOf(property, {"filter", "mask", "opacity", "mix-blend-mode", "isolation"});
}

SvgReference::For purposeOf(QStringView property)
{
    if (isOneOf(property, {"fill", "stroke"}))
        return SvgReference::For::Paint;
    return property.startsWith(QLatin1String("marker")) ? SvgReference::For::Marker : SvgReference::For::Other;
}

/** An attribute or the element's own style applies; a rule may or may not concern the element. */
enum class Counts { Surely, Perhaps };

/** Reads a transform or a line; of uncertain ones, only what makes drawing costlier. */
void takeMeasure(SvgElement &element, QStringView property, const QString &value, Counts counts)
{
    const bool isSure = counts == Counts::Surely;
    if (isOneOf(property, {"transform", "gradientTransform", "patternTransform"})) {
        element.scale = isSure ? scaleOf(value) : std::max(element.scale, scaleOf(value));
    } else if (property == QLatin1String("stroke")) {
        const bool isStroked = value != QLatin1String("none");
        if (isSure || isStroked)
            element.isStroked = isStroked;
    } else if (property == QLatin1String("stroke-width")) {
        (isSure ? element.strokeWidth : element.perhapsStrokeWidth) = svgLength(value);
    } else if (property == QLatin1String("stroke-dasharray")) {
        const double dash = dashOf(value);
        if (isSure || (dash > 0 && dash < element.dash.value_or(dash + 1)))
            element.dash = dash;
    } else if (isOneOf(property, {"font-size", "font"})) {
        (isSure ? element.fontSize : element.perhapsFontSize) = svgLength(value);
    }
}

/** Reads one property, from an attribute or a declaration. */
void take(SvgElement &element, QStringView property, const QString &value, Counts counts)
{
    static const QRegularExpression reference(QStringLiteral("url\\(\\s*['\"]?#([^)'\"]+)['\"]?\\s*\\)"));
    for (auto match = reference.globalMatch(value); match.hasNext();)
        element.references.append({match.next().captured(1), purposeOf(property)});
    if (isLayer(property, value)) {
        element.isLayer = true;
        element.cost.aPixel += layer;
    }
    takeMeasure(element, property, value.trimmed(), counts);
}

void takeDeclarations(SvgElement &element, const QString &declarations, Counts counts)
{
    for (const QString &declaration : declarations.split(u';', Qt::SkipEmptyParts))
        take(element, declaration.section(u':', 0, 0).trimmed(), declaration.section(u':', 1).trimmed(), counts);
}

/** Reads how the element displays its contents. */
void takeWindow(SvgElement &element, QStringView name, const QXmlStreamAttributes &attributes)
{
    const auto value = [&attributes](const char *key) { return attributes.value(QLatin1String(key)); };
    const auto length = [&value](const char *key) {
        return value(key).isEmpty() ? std::nullopt : std::optional(svgLength(value(key)));
    };
    const bool isMarker = name == QLatin1String("marker");
    element.isViewport = isOneOf(name, {"svg", "symbol", "pattern", "marker"});
    element.width = length(isMarker ? "markerWidth" : "width");
    element.height = length(isMarker ? "markerHeight" : "height");
    if (const QList<double> box = svgNumbers(value("viewBox")); box.size() == 4)
        element.viewBox = QSizeF(box[2], box[3]);
    for (const char *key : {"patternContentUnits", "maskContentUnits", "clipPathUnits", "primitiveUnits"})
        element.isInUnitsOfBox = element.isInUnitsOfBox || value(key) == QLatin1String("objectBoundingBox");
    element.isInUnitsOfLine = isMarker && value("markerUnits") != QLatin1String("userSpaceOnUse");
}

} // namespace

SvgCanvas svgCanvas(const QXmlStreamAttributes &root, QSize drawn)
{
    const QList<double> box = svgNumbers(root.value(QLatin1String("viewBox")));
    const SvgCanvas said(largestSvgNumber(root.value(QLatin1String("width"))),
                         largestSvgNumber(root.value(QLatin1String("height"))));
    const SvgCanvas canvas = box.size() == 4 ? SvgCanvas(box[2], box[3]) : said;
    return canvas.isEmpty() ? SvgCanvas(drawn) : canvas;
}

SvgStyles::SvgStyles(const QString &sheet)
{
    static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^{}]*)\\}"));
    static const QRegularExpression lastWord(QStringLiteral("(?:^|[\\s>+~])([\\w*-]*)([.#][\\w-]+)?[^\\s>+~]*$"));
    for (auto match = rule.globalMatch(sheet); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        for (const QString &selector : found.captured(1).split(u',')) {
            const QRegularExpressionMatch word = lastWord.match(selector.trimmed());
            const QString mark = word.captured(2).isEmpty() ? word.captured(1) : word.captured(2);
            QString &known = m_rules[mark.isEmpty() ? QStringLiteral("*") : mark];
            constexpr qsizetype most = 4000;
            if (known.size() < most)
                known += found.captured(2) + u';';
            ++m_selectors;
        }
    }
}

QString SvgStyles::declarations(QStringView name, const QXmlStreamAttributes &attributes) const
{
    QString all;
    if (m_rules.isEmpty())
        return all;
    const auto add = [&](const QString &mark) { all += u';' + m_rules.value(mark); };
    add(QStringLiteral("*"));
    add(name.toString());
    add(u'#' + attributes.value(QLatin1String("id")).toString());
    for (const QStringView word : attributes.value(QLatin1String("class")).split(u' ', Qt::SkipEmptyParts))
        add(u'.' + word.toString());
    return all;
}

QString styleSheetOf(const QByteArray &drawing)
{
    QString sheet;
    QXmlStreamReader reader(drawing);
    bool isStyle = false;
    while (drawing.contains("<style") && !reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement)
            isStyle = token == QXmlStreamReader::StartElement && reader.name() == QLatin1String("style");
        if (token == QXmlStreamReader::Characters && isStyle)
            sheet += reader.text();
    }
    return sheet;
}

SvgElement svgElement(QStringView name, const QXmlStreamAttributes &attributes, const SvgStyles &styles)
{
    SvgElement element;
    element.isDefinition = isDefinition(name);
    element.isText = isOneOf(name, {"text", "tspan", "textPath"});
    const bool isFilter = name == QLatin1String("filter");
    const bool isPrimitive = name.startsWith(QLatin1String("fe"));
    element.isRefused = (isFilter || isPrimitive) && endsTheProcess(name, attributes);
    element.outline = outlineOf(name, attributes);
    if (name == QLatin1String("feMorphology"))
        element.radius = largestSvgNumber(attributes.value(QLatin1String("radius")));
    takeWindow(element, name, attributes);
    if (isPrimitive)
        element.cost.aPixel += primitiveCost(name, attributes);
    if (name == QLatin1String("stop"))
        element.cost.aPixel += gradientStop;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QString value = attribute.value().toString();
        if (attribute.name() == QLatin1String("id"))
            element.id = value;
        if (attribute.name() == QLatin1String("href") && value.startsWith(u'#'))
            element.references.append({value.mid(1), SvgReference::For::Use});
        else if (attribute.name() == QLatin1String("href"))
            element.cost.once +=
                double(value.size()) * (value.startsWith(QLatin1String("data:image/svg")) ? drawingByte : pictureByte);
        take(element, attribute.name(), value, Counts::Surely);
    }
    takeDeclarations(element, attributes.value(QLatin1String("style")).toString(), Counts::Surely);
    takeDeclarations(element, styles.declarations(name, attributes), Counts::Perhaps);
    return element;
}

SvgPlace placeWithin(const SvgElement &element, const SvgPlace &place)
{
    SvgPlace within = place;
    within.scale *= element.scale;
    const double diagonal = std::max(place.shown.width(), place.shown.height());
    within.isStroked = element.isStroked.value_or(place.isStroked);
    const auto most = [diagonal](const std::optional<SvgLength> &sure, const std::optional<SvgLength> &perhaps,
                                 double outer) {
        return std::max(sure ? sure->in(diagonal) : outer, perhaps.value_or(SvgLength()).in(diagonal));
    };
    within.strokeWidth = most(element.strokeWidth, element.perhapsStrokeWidth, place.strokeWidth);
    within.fontSize = most(element.fontSize, element.perhapsFontSize, place.fontSize);
    within.dash = element.dash.value_or(place.dash);
    return within;
}

SvgPlace placeThroughWindow(const SvgElement &element, const SvgPlace &place)
{
    if (!element.isViewport)
        return place;
    const SvgLength all{0, 1};
    SvgPlace within = place;
    within.shown = QSizeF(element.width.value_or(all).in(place.shown.width()),
                          element.height.value_or(all).in(place.shown.height()));
    if (!element.viewBox || element.viewBox->isEmpty())
        return within;
    within.scale *= scaleOfWindow(within.shown, *element.viewBox);
    within.shown = *element.viewBox;
    return within;
}

SvgPlace placeReferredTo(const SvgElement &from, const SvgReference &reference, const SvgElement &to,
                         const SvgPlace &place, const SvgCanvas &canvas)
{
    const double side = std::max(canvas.width(), canvas.height());
    const double box = std::max(side, from.outline.extent(place));
    SvgElement window = to;
    SvgPlace there = place;
    if (reference.what == SvgReference::For::Use) {
        window.width = from.width ? from.width : to.width;
        window.height = from.height ? from.height : to.height;
    } else if (to.isInUnitsOfBox) {
        there.scale = box;
        there.shown = QSizeF(1, 1);
    } else if (reference.what == SvgReference::For::Paint && to.viewBox) {
        // A tile is at most as large as the area painted with it.
        there.scale = box / side;
        there.shown = canvas;
        window.width = window.height = std::nullopt;
    } else if (reference.what == SvgReference::For::Marker) {
        constexpr double usual = 3;
        there.scale *= to.isInUnitsOfLine ? place.strokeWidth : 1;
        window.width = to.width ? to.width : SvgLength{usual, 0};
        window.height = to.height ? to.height : SvgLength{usual, 0};
    }
    return placeThroughWindow(window, there);
}

} // namespace platform
