#include "platform/imageio/load/svg_work.h"

#include "platform/graphics/resample.h"

#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

/** Nanoseconds for each pixel of the canvas; measured with the library that draws. */
constexpr double plainPrimitive = 40;
constexpr double onePerOctave = 60;
constexpr double onePerRadius = 50;
constexpr double onePerKernelNumber = 6;
constexpr double layer = 10;
constexpr double smallShape = 0.005;
/** More than this is as good as endless. */
constexpr double endless = 1e15;

struct Node
{
    double own = smallShape;
    int surfaces = 0;          ///< of the size of the canvas
    QList<QString> references; ///< what it is painted, masked or filtered with, or a copy of
    QList<qsizetype> children;
    bool isDefinition = false; ///< drawn only where it is referred to
};

double largestNumber(QStringView text)
{
    double largest = 0;
    for (const QStringView part : text.split(u' ', Qt::SkipEmptyParts))
        largest = std::max(largest, std::abs(part.toDouble()));
    return largest;
}

/** What one part of a filter takes. */
double primitiveCost(QStringView name, const QXmlStreamAttributes &attributes)
{
    const auto number = [&attributes](const char *key) {
        return largestNumber(attributes.value(QLatin1String(key)).toString().replace(u',', u' '));
    };
    if (name == QLatin1String("feTurbulence"))
        return plainPrimitive + onePerOctave * std::max(1.0, number("numOctaves"));
    if (name == QLatin1String("feMorphology"))
        return plainPrimitive + onePerRadius * number("radius");
    if (name == QLatin1String("feConvolveMatrix"))
        return plainPrimitive + onePerKernelNumber * std::pow(std::max(3.0, number("order")), 2);
    return plainPrimitive;
}

bool isDefinition(QStringView name)
{
    static const QList<QLatin1String> names = {
        QLatin1String("defs"),    QLatin1String("filter"), QLatin1String("mask"),  QLatin1String("clipPath"),
        QLatin1String("pattern"), QLatin1String("symbol"), QLatin1String("marker")};
    return std::any_of(names.begin(), names.end(), [name](QLatin1String each) { return name == each; });
}

/** The elements of a drawing, with what each of them takes. */
class Drawing
{
public:
    explicit Drawing(const QByteArray &text)
    {
        QXmlStreamReader reader(text);
        QList<qsizetype> open;
        while (!reader.atEnd()) {
            const auto token = reader.readNext();
            if (token == QXmlStreamReader::EndElement && !open.isEmpty())
                open.removeLast();
            if (token == QXmlStreamReader::Characters)
                m_styles = m_styles || reader.text().contains(QLatin1String("filter"));
            if (token != QXmlStreamReader::StartElement)
                continue;
            const qsizetype index = m_nodes.size();
            if (!open.isEmpty())
                m_nodes[open.last()].children.append(index);
            open.append(index);
            m_isTooDeep = m_isTooDeep || open.size() > deepest || index > mostElements;
            if (m_isTooDeep)
                return;
            addNode(reader.name(), reader.attributes());
        }
        // What this reader cannot read the other one may.
        if (reader.hasError() && text.contains("filter"))
            m_isTooDeep = true;
    }

    double cost()
    {
        if (m_isTooDeep)
            return endless;
        // A style sheet can put any filter on any element.
        const double filtered = m_styles ? m_dearestFilter * double(m_nodes.size()) : 0;
        return m_nodes.isEmpty() ? 0 : costOf(0, 0) + filtered;
    }
    int surfaces() const { return m_surfaces; }

private:
    static constexpr qsizetype deepest = 500;
    static constexpr qsizetype mostElements = 1'000'000;

    void addNode(QStringView name, const QXmlStreamAttributes &attributes)
    {
        static const QRegularExpression reference(QStringLiteral("url\\(\\s*['\"]?#([^)'\"]+)['\"]?\\s*\\)"));
        Node node;
        node.isDefinition = isDefinition(name);
        if (name.startsWith(QLatin1String("fe")))
            node.own = primitiveCost(name, attributes);
        m_dearestFilter += name.startsWith(QLatin1String("fe")) ? node.own : 0;
        for (const QXmlStreamAttribute &attribute : attributes) {
            const QString value = attribute.value().toString();
            if (attribute.name() == QLatin1String("id"))
                m_byId.insert(value, m_nodes.size());
            if (attribute.name() == QLatin1String("href") && value.startsWith(u'#'))
                node.references.append(value.mid(1));
            for (auto match = reference.globalMatch(value); match.hasNext();)
                node.references.append(match.next().captured(1));
            const bool isLayer =
                attribute.name() == QLatin1String("filter") || attribute.name() == QLatin1String("mask") ||
                attribute.name() == QLatin1String("opacity") || value.contains(QLatin1String("filter:"));
            node.own += isLayer ? layer : 0;
            m_surfaces = std::max(m_surfaces, isLayer ? 6 : 0);
        }
        m_nodes.append(node);
    }

    double costOf(qsizetype index, int depth)
    {
        if (depth > deepest)
            return endless;
        if (const auto known = m_known.constFind(index); known != m_known.cend())
            return *known;
        m_known.insert(index, 0); // whoever refers to itself is drawn once, or not at all
        double sum = m_nodes[index].own;
        for (const qsizetype child : m_nodes[index].children)
            sum += m_nodes[child].isDefinition ? 0 : costOf(child, depth + 1);
        for (const QString &name : m_nodes[index].references)
            if (const auto target = m_byId.constFind(name); target != m_byId.cend())
                sum += costOf(*target, depth + 1);
        m_known.insert(index, std::min(sum, endless));
        return m_known.value(index);
    }

    QList<Node> m_nodes;
    QHash<QString, qsizetype> m_byId;
    QHash<qsizetype, double> m_known;
    double m_dearestFilter = 0;
    int m_surfaces = 0;
    bool m_styles = false;
    bool m_isTooDeep = false;
};

} // namespace

SvgWork svgWork(const QByteArray &text, QSize size)
{
    Drawing drawing(text);
    constexpr double nanosecond = 1e-9;
    constexpr double tileSide = 2000; // the library draws in tiles, and all of a filter for each of them
    constexpr double bytesPerPixel = 4;
    const double pixels = double(size.width()) * size.height();
    const double tiles = std::ceil(size.width() / tileSide) * std::ceil(size.height() / tileSide);
    return {drawing.cost() * pixels * tiles * nanosecond, pixels * bytesPerPixel * (1 + drawing.surfaces())};
}

bool canDrawSvg(const QByteArray &text, QSize size)
{
    constexpr double mostSeconds = 10;
    constexpr double mostBytes = 1e9;
    const SvgWork work = svgWork(text, size);
    return work.seconds <= mostSeconds && work.bytes <= mostBytes;
}

} // namespace platform
