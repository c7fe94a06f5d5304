#include "platform/imageio/load/svg_elements.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace platform {
namespace {

// Nanoseconds, measured with the library that draws.
constexpr double shape = 20'000;
constexpr double point = 200;
constexpr double filledPixel = 0.2;
constexpr double strokedPixel = 5;
constexpr double edgePixel = 100;
constexpr double gradientStop = 0.5; // for each pixel, since they are searched from the first on
constexpr double layer = 10;
constexpr double drawingByte = 1000;
constexpr double pictureByte = 20;
constexpr double plainPrimitive = 40;
constexpr double blur = 90;
constexpr double displacement = 250;
constexpr double onePerOctave = 60;
constexpr double onePerRadius = 50;
constexpr double onePerKernelNumber = 6;

bool isOneOf(QStringView name, std::initializer_list<const char *> names)
{
    return std::any_of(names.begin(), names.end(), [name](const char *each) { return name == QLatin1String(each); });
}

/** The numbers of a text and what stands between them. */
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

QList<double> numbersOf(QStringView text)
{
    QList<double> numbers;
    scan(
        text, [&numbers](double number) { numbers.append(number); }, [](char) {});
    return numbers;
}

double largestNumber(QStringView text)
{
    double largest = 0;
    for (const double number : numbersOf(text))
        largest = std::max(largest, std::abs(number));
    return largest;
}

/** How much of the canvas a shape covers, how long its edge is in units of the drawing, and of how many points it is made. */
class Outline
{
public:
    explicit Outline(const SvgCanvas &canvas) : m_canvas(canvas) {}

    void addRect(double width, double height)
    {
        m_area = share(width, m_canvas.width()) * share(height, m_canvas.height());
        m_length = 2 * (width + height);
        m_points = 4;
    }

    /** Coordinates by turns across and down, begun afresh by each command; small letters mean distances. */
    void addPath(QStringView text)
    {
        bool isRelative = false;
        int axis = 0;
        const auto take = [&](double number) {
            const double jump = isRelative ? number : number - m_at[axis];
            m_at[axis] = isRelative ? m_at[axis] + number : number;
            m_least[axis] = m_points < 2 ? m_at[axis] : std::min(m_least[axis], m_at[axis]);
            m_most[axis] = m_points < 2 ? m_at[axis] : std::max(m_most[axis], m_at[axis]);
            m_length += m_points < 2 ? 0 : std::min(std::abs(jump), m_canvas.width() + m_canvas.height());
            ++m_points;
            axis = 1 - axis;
        };
        const auto command = [&](char letter) {
            if (!std::isalpha(uchar(letter)))
                return;
            isRelative = std::islower(uchar(letter)) && m_points > 0;
            axis = letter == 'v' || letter == 'V' ? 1 : 0;
        };
        scan(text, take, command);
        m_points /= 2;
        m_area = share(m_most[0] - m_least[0], m_canvas.width()) * share(m_most[1] - m_least[1], m_canvas.height());
    }

    double area() const { return m_area; }
    double points() const { return m_points; }

    SvgCost cost(double strokeWidth) const
    {
        const double side = std::max({m_canvas.width(), m_canvas.height(), 1.0});
        const double length = m_length / side;
        return {filledPixel * m_area + strokedPixel * length * std::min(1.0, strokeWidth / side), edgePixel * length,
                shape + point * m_points};
    }

private:
    static double share(double part, double whole) { return whole > 0 ? std::clamp(part / whole, 0.0, 1.0) : 1; }

    SvgCanvas m_canvas;
    double m_area = 0;
    double m_length = 0;
    double m_points = 0;
    double m_at[2] = {0, 0};
    double m_least[2] = {0, 0};
    double m_most[2] = {0, 0};
};

/** What one part of a filter takes. */
double primitiveCost(QStringView name, const QXmlStreamAttributes &attributes)
{
    const auto number = [&attributes](const char *key) { return largestNumber(attributes.value(QLatin1String(key))); };
    if (name == QLatin1String("feTurbulence"))
        return plainPrimitive + onePerOctave * std::max(1.0, number("numOctaves"));
    if (name == QLatin1String("feMorphology"))
        return plainPrimitive + onePerRadius * number("radius");
    if (name == QLatin1String("feConvolveMatrix"))
        return plainPrimitive + onePerKernelNumber * std::pow(std::max(3.0, number("order")), 2);
    if (isOneOf(name, {"feGaussianBlur", "feDropShadow"}))
        return blur;
    return name == QLatin1String("feDisplacementMap") ? displacement : plainPrimitive;
}

/** A part of a filter that is nowhere, or farther away than anything is, and a kernel of more than 400 numbers. */
bool endsTheProcess(QStringView name, const QXmlStreamAttributes &attributes)
{
    constexpr double farthest = 1e6;
    constexpr double mostOfKernel = 400;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const bool isSize = isOneOf(attribute.name(), {"width", "height"});
        if (!isSize && !isOneOf(attribute.name(), {"x", "y", "order", "kernelUnitLength", "dx", "dy", "radius"}))
            continue;
        const QList<double> numbers = numbersOf(attribute.value());
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

Outline outlineOf(QStringView name, const QXmlStreamAttributes &attributes, const SvgCanvas &canvas)
{
    Outline outline(canvas);
    const auto length = [&attributes](const char *key, double whole) {
        const QStringView value = attributes.value(QLatin1String(key));
        return value.endsWith(u'%') ? largestNumber(value) * whole / 100 : largestNumber(value);
    };
    if (isOneOf(name, {"rect", "image"}))
        outline.addRect(length("width", canvas.width()), length("height", canvas.height()));
    else if (name == QLatin1String("circle"))
        outline.addRect(2 * length("r", canvas.width()), 2 * length("r", canvas.width()));
    else if (name == QLatin1String("ellipse"))
        outline.addRect(2 * length("rx", canvas.width()), 2 * length("ry", canvas.height()));
    else if (name == QLatin1String("path"))
        outline.addPath(attributes.value(QLatin1String("d")));
    else if (isOneOf(name, {"polyline", "polygon"}))
        outline.addPath(attributes.value(QLatin1String("points")));
    return outline;
}

bool isLayer(QStringView property, QStringView value)
{
    const bool isPlain = isOneOf(value, {"none", "normal", "auto", "1"});
    return !isPlain && isOneOf(property, {"filter", "mask", "opacity", "mix-blend-mode", "isolation"});
}

/** Takes in one property, from an attribute or a declaration. */
void take(SvgElement &element, QStringView property, const QString &value, const Outline &outline)
{
    static const QRegularExpression reference(QStringLiteral("url\\(\\s*['\"]?#([^)'\"]+)['\"]?\\s*\\)"));
    const bool isPaint = isOneOf(property, {"fill", "stroke"});
    const double times = isPaint                                        ? std::max(outline.area(), 0.001)
                         : property.startsWith(QLatin1String("marker")) ? std::max(1.0, outline.points())
                                                                        : 1;
    for (auto match = reference.globalMatch(value); match.hasNext();)
        element.references.append({match.next().captured(1), times});
    if (isLayer(property, value)) {
        element.isLayer = true;
        element.cost.aPixel += layer;
    }
}

} // namespace

SvgCanvas svgCanvas(const QXmlStreamAttributes &root, QSize drawn)
{
    const QList<double> box = numbersOf(root.value(QLatin1String("viewBox")));
    const SvgCanvas said(largestNumber(root.value(QLatin1String("width"))),
                         largestNumber(root.value(QLatin1String("height"))));
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
    QString all = attributes.value(QLatin1String("style")).toString();
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

SvgElement svgElement(QStringView name, const QXmlStreamAttributes &attributes, const SvgStyles &styles,
                      const SvgCanvas &canvas)
{
    SvgElement element;
    element.isDefinition = isDefinition(name);
    element.isText = isOneOf(name, {"text", "tspan", "textPath"});
    const bool isFilter = name == QLatin1String("filter");
    const bool isPrimitive = name.startsWith(QLatin1String("fe"));
    element.isRefused = (isFilter || isPrimitive) && endsTheProcess(name, attributes);
    const Outline outline = outlineOf(name, attributes, canvas);
    element.cost = outline.cost(largestNumber(attributes.value(QLatin1String("stroke-width"))));
    if (isPrimitive)
        element.cost.aPixel += primitiveCost(name, attributes);
    if (name == QLatin1String("stop"))
        element.cost.aPixel += gradientStop;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QString value = attribute.value().toString();
        if (attribute.name() == QLatin1String("id"))
            element.id = value;
        if (attribute.name() == QLatin1String("href") && value.startsWith(u'#'))
            element.references.append({value.mid(1), 1});
        else if (attribute.name() == QLatin1String("href"))
            element.cost.once +=
                double(value.size()) * (value.startsWith(QLatin1String("data:image/svg")) ? drawingByte : pictureByte);
        take(element, attribute.name(), value, outline);
    }
    for (const QString &declaration : styles.declarations(name, attributes).split(u';', Qt::SkipEmptyParts))
        take(element, declaration.section(u':', 0, 0).trimmed(), declaration.section(u':', 1).trimmed(), outline);
    return element;
}

} // namespace platform
