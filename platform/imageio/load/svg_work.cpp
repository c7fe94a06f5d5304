#include "platform/imageio/load/svg_work.h"

#include "platform/imageio/load/svg_elements.h"

#include <QHash>
#include <QList>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

/** More than this is as good as endless. */
constexpr double endless = 1e15;

SvgCost sum(const SvgCost &a, const SvgCost &b, double times = 1)
{
    const auto bounded = [times](double one, double other) { return std::min(one + times * other, endless); };
    return {bounded(a.aPixel, b.aPixel), bounded(a.aSide, b.aSide), bounded(a.once, b.once)};
}

/** The elements of a drawing, with what each of them takes. */
class Drawing
{
public:
    Drawing(const QByteArray &text, QSize size) : m_size(size)
    {
        m_styles = SvgStyles(styleSheetOf(text));
        QXmlStreamReader reader(text);
        QList<qsizetype> open;
        while (!reader.atEnd() && !m_isRefused) {
            const auto token = reader.readNext();
            if (token == QXmlStreamReader::EndElement && !open.isEmpty())
                open.removeLast();
            if (token == QXmlStreamReader::Characters && !open.isEmpty())
                addText(open.last(), reader.text().size());
            if (token == QXmlStreamReader::StartElement) {
                open.append(m_elements.size());
                if (open.size() > 1)
                    m_children[open.at(open.size() - 2)].append(open.last());
                m_isRefused = open.size() > deepest || m_elements.size() > mostElements;
                addElement(reader);
            }
        }
        // What this reader cannot read the other one may.
        if (reader.hasError() && (text.contains("filter") || text.contains("<!ENTITY")))
            m_isRefused = true;
    }

    SvgWork work()
    {
        if (m_isRefused)
            return {endless, 0};
        if (m_elements.isEmpty())
            return {};
        constexpr double nanosecond = 1e-9;
        constexpr double tileSide = 2000; // the library draws in tiles, and all of a filter for each of them
        constexpr double bytesPerPixel = 4;
        const Total &total = totalOf(0, 0);
        const double pixels = double(m_size.width()) * m_size.height();
        const double tiles = std::ceil(m_size.width() / tileSide) * std::ceil(m_size.height() / tileSide);
        const double side = std::max(m_size.width(), m_size.height());
        const double matching = selectorCost * m_styles.selectors() * double(m_elements.size());
        const double all =
            total.cost.aPixel * pixels * tiles + total.cost.aSide * side * tiles + total.cost.once * tiles;
        const int surfaces = std::max(m_hasLayers ? surfacesOfFilter : 0, 2 * total.layers);
        return {(all + matching) * nanosecond, pixels * bytesPerPixel * (1 + surfaces) + bytesPerLetter * m_letters};
    }

private:
    static constexpr qsizetype deepest = 500;
    static constexpr qsizetype mostElements = 1'000'000;
    static constexpr double letterCost = 25'000;
    static constexpr double bytesPerLetter = 5000;
    static constexpr double selectorCost = 150;
    static constexpr int surfacesOfFilter = 6;

    struct Total
    {
        SvgCost cost;
        int layers = 0; ///< one in another
    };

    void addElement(const QXmlStreamReader &reader)
    {
        const qsizetype index = m_elements.size();
        if (index == 0)
            m_canvas = svgCanvas(reader.attributes(), m_size);
        const SvgElement element = svgElement(reader.name(), reader.attributes(), m_styles, m_canvas);
        m_isRefused = m_isRefused || element.isRefused;
        m_hasLayers = m_hasLayers || element.isLayer;
        if (!element.id.isEmpty())
            m_byId.insert(element.id, index);
        m_elements.append(element);
    }

    void addText(qsizetype element, qsizetype letters)
    {
        if (!m_elements.at(element).isText)
            return;
        m_elements[element].cost.once += letterCost * double(letters);
        m_letters += double(letters);
    }

    Total totalOf(qsizetype index, int depth)
    {
        if (depth > deepest)
            return {{endless, endless, endless}, 0};
        if (const auto known = m_known.constFind(index); known != m_known.cend())
            return *known;
        m_known.insert(index, {}); // whoever refers to itself is drawn once, or not at all
        const SvgElement &element = m_elements.at(index);
        Total total{element.cost, 0};
        const auto add = [&total](const Total &part, double times) {
            total.cost = sum(total.cost, part.cost, times);
            total.layers = std::max(total.layers, part.layers);
        };
        for (const qsizetype child : m_children.value(index))
            if (!m_elements.at(child).isDefinition)
                add(totalOf(child, depth + 1), 1);
        for (const SvgReference &reference : element.references)
            if (const auto target = m_byId.constFind(reference.id); target != m_byId.cend())
                add(totalOf(*target, depth + 1), reference.times);
        total.layers += element.isLayer;
        m_known.insert(index, total);
        return total;
    }

    QSize m_size;
    SvgStyles m_styles;
    SvgCanvas m_canvas;
    QList<SvgElement> m_elements;
    QHash<qsizetype, QList<qsizetype>> m_children;
    QHash<QString, qsizetype> m_byId;
    QHash<qsizetype, Total> m_known;
    double m_letters = 0;
    bool m_hasLayers = false;
    bool m_isRefused = false;
};

} // namespace

SvgWork svgWork(const QByteArray &text, QSize size)
{
    return Drawing(text, size).work();
}

bool canDrawSvg(const QByteArray &text, QSize size)
{
    constexpr double mostSeconds = 5;
    constexpr double mostBytes = 1e9;
    const SvgWork work = svgWork(text, size);
    return work.seconds <= mostSeconds && work.bytes <= mostBytes;
}

} // namespace platform
