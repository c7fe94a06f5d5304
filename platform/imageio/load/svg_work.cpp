#include "platform/imageio/load/svg_work.h"

#include "platform/imageio/load/svg_elements.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

/** More than this counts as endless. */
constexpr double endless = 1e15;

SvgCost sum(const SvgCost &a, const SvgCost &b, double times = 1)
{
    const auto bounded = [times](double one, double other) { return std::min(one + times * other, endless); };
    return {bounded(a.aPixel, b.aPixel), bounded(a.aSide, b.aSide), bounded(a.once, b.once)};
}

/** The elements of a drawing, with the cost of each. */
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
        // What this parser cannot read the other one may.
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
        constexpr double tileSide = 2000; // the library draws in tiles, and computes the whole filter for each of them
        constexpr double bytesPerPixel = 4;
        const Total total = totalOf(0, rootPlace(), 0);
        if (m_isRefused)
            return {endless, 0};
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
    static constexpr double bytesPerLetter = 5000;
    static constexpr double selectorCost = 150;
    static constexpr int surfacesOfFilter = 6;

    struct Total
    {
        SvgCost cost;
        int layers = 0; ///< one inside another
    };

    void addElement(const QXmlStreamReader &reader)
    {
        const qsizetype index = m_elements.size();
        if (index == 0)
            beginCanvas(reader.attributes());
        const SvgElement element = svgElement(reader.name(), reader.attributes(), m_styles);
        m_isRefused = m_isRefused || element.isRefused;
        m_hasLayers = m_hasLayers || element.isLayer;
        if (!element.id.isEmpty())
            m_byId.insert(element.id, index);
        m_elements.append(element);
    }

    void beginCanvas(const QXmlStreamAttributes &root)
    {
        const QStringView ratio = root.value(QLatin1String("preserveAspectRatio"));
        m_fillsCanvas = ratio.contains(QLatin1String("none")) || ratio.contains(QLatin1String("slice"));
        m_canvas = svgCanvas(root, m_size);
    }

    void addText(qsizetype element, qsizetype letters)
    {
        if (!m_elements.at(element).isText)
            return;
        m_elements[element].letters += double(letters);
        m_letters += double(letters);
    }

    /** The drawing is as large as its canvas, unless it is meant to fill it in both directions. */
    SvgPlace rootPlace() const
    {
        const double across = m_size.width() / m_canvas.width();
        const double down = m_size.height() / m_canvas.height();
        SvgPlace place;
        place.shown = m_canvas;
        place.scale = m_fillsCanvas ? std::max(across, down) / pixelsOfUnit() : 1;
        return place;
    }

    double pixelsOfUnit() const
    {
        return std::max(m_size.width(), m_size.height()) / std::max(m_canvas.width(), m_canvas.height());
    }

    /** Scales that differ little count as one. */
    static QByteArray keyOf(qsizetype index, const SvgPlace &place)
    {
        constexpr double steps = 4;
        const auto number = [](double value) { return QByteArray::number(value, 'g', 6) + ' '; };
        return number(double(index)) + number(std::round(steps * std::log2(std::max(place.scale, 1e-30)))) +
               number(place.shown.width()) + number(place.shown.height()) +
               number(place.isStroked ? place.strokeWidth : -1) + number(place.dash) + number(place.fontSize);
    }

    /** The cost of an element at @p place. */
    Total totalOf(qsizetype index, const SvgPlace &place, int depth)
    {
        const QByteArray key = keyOf(index, place);
        if (const auto known = m_known.constFind(key); known != m_known.cend())
            return *known;
        m_isRefused = m_isRefused || m_known.size() > mostElements;
        if (depth > deepest || m_isRefused)
            return {{endless, endless, endless}, 0};
        if (m_open.contains(index)) // an element that refers to itself is drawn once, or not at all
            return {};
        m_open.insert(index);
        const SvgElement &element = m_elements.at(index);
        const SvgPlace within = placeWithin(element, place);
        Total total{costOf(element, within), 0};
        const auto add = [&total](const Total &part, double times) {
            total.cost = sum(total.cost, part.cost, times);
            total.layers = std::max(total.layers, part.layers);
        };
        for (const qsizetype child : m_children.value(index))
            if (!m_elements.at(child).isDefinition)
                add(totalOf(child, placeThroughWindow(m_elements.at(child), within), depth + 1), 1);
        for (const SvgReference &reference : element.references)
            if (const auto target = m_byId.constFind(reference.id); target != m_byId.cend())
                add(totalOf(*target, placeReferredTo(element, reference, m_elements.at(*target), within, m_canvas),
                            depth + 1),
                    timesOf(reference, element, within));
        total.layers += element.isLayer;
        m_open.remove(index);
        m_known.insert(key, total);
        return total;
    }

    SvgCost costOf(const SvgElement &element, const SvgPlace &place) const
    {
        constexpr double onePerRadius = 50;
        SvgCost cost = sum(element.cost, element.outline.cost(place, m_canvas));
        if (element.letters > 0)
            cost = sum(cost, svgLetterCost(place, m_canvas), element.letters);
        const double radius = element.radius * place.scale * pixelsOfUnit();
        cost.aPixel += onePerRadius * std::min(radius, double(std::max(m_size.width(), m_size.height())));
        return cost;
    }

    /** How often, or for how much of the canvas, a referenced element is drawn. */
    double timesOf(const SvgReference &reference, const SvgElement &element, const SvgPlace &place) const
    {
        constexpr double least = 0.001;
        switch (reference.what) {
        case SvgReference::For::Paint:
            return std::max(element.outline.area(place, m_canvas), least);
        case SvgReference::For::Marker:
            return std::max(1.0, element.outline.points());
        case SvgReference::For::Use:
        case SvgReference::For::Other:
            break;
        }
        return 1;
    }

    QSize m_size;
    SvgStyles m_styles;
    SvgCanvas m_canvas;
    QList<SvgElement> m_elements;
    QHash<qsizetype, QList<qsizetype>> m_children;
    QHash<QString, qsizetype> m_byId;
    QHash<QByteArray, Total> m_known;
    QSet<qsizetype> m_open;
    bool m_fillsCanvas = false;
    double m_letters = 0;
    bool m_hasLayers = false;
    bool m_isRefused = false;
};

} // namespace

SvgWork svgWork(const QByteArray &text, QSize size)
{
    return Drawing(text, size).work();
}

bool canDrawSvg(const SvgWork &work)
{
    constexpr double mostSeconds = 5;
    constexpr double mostBytes = 1e9;
    return work.seconds <= mostSeconds && work.bytes <= mostBytes;
}

} // namespace platform
