#include "platform/graphics/free_turn.h"

#include "platform/planes/cubic_pairs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

// The pixels are interpolated here and not by the library, which takes three times as long and needs a detour through
// floating point if there is alpha. Its threads are used all the same.

namespace platform {
namespace {

using vips::VImage;

/** Positions between two pixels are divided into so many steps. */
constexpr int stepBits = 10;

using WeightTable = std::array<CubicWeights, 1 << stepBits>;

const WeightTable &cubicWeights()
{
    static const WeightTable table = [] {
        WeightTable made;
        for (size_t step = 0; step < made.size(); ++step)
            made[step] = CubicWeights(double(step) / double(made.size()));
        return made;
    }();
    return table;
}

/** A position in whole pixels and 2^-32 of one, so that stepping along a row costs an addition. */
class Position
{
public:
    explicit Position(double pixels) : m_value(qint64(std::floor(pixels * one))) {}
    void step(Position by, int times = 1) { m_value += by.m_value * times; }
    int pixel() const { return int(m_value >> bits); }
    qint64 value() const { return m_value; }
    size_t stepInPixel() const { return size_t(m_value >> (bits - stepBits)) & ((1 << stepBits) - 1); }

private:
    static constexpr int bits = 32;
    static constexpr double one = 4294967296.0;
    qint64 m_value;
};

/** The position of the picture on the canvas, from the top left corner of the first pixel. */
class Placement
{
public:
    Placement(const VImage &picture, const FreeTurn &turn)
        : m_width(picture.width()), m_height(picture.height()), m_centre(turn.centre)
    {
        constexpr double radiansPerDegree = 0.017453292519943295;
        m_cosine = std::cos(turn.degrees * radiansPerDegree);
        m_sine = std::sin(turn.degrees * radiansPerDegree);
    }

    /** One pixel to the right on the canvas is this far horizontally and vertically in the picture. */
    QPointF step() const { return {m_cosine, m_sine}; }

    /** The point of the picture under the centre of a canvas pixel. */
    QPointF inPicture(int column, int row) const
    {
        const double across = column + 0.5 - m_centre.x();
        const double down = row + 0.5 - m_centre.y();
        return {across * m_cosine - down * m_sine + m_width / 2, across * m_sine + down * m_cosine + m_height / 2};
    }

    /** How much of a pixel of the canvas the picture covers, 0 to 1. */
    float coverage(int column, int row) const
    {
        const QPointF place = inPicture(column, row);
        const double across = std::clamp(std::min(place.x(), m_width - place.x()) + 0.5, 0.0, 1.0);
        const double down = std::clamp(std::min(place.y(), m_height - place.y()) + 0.5, 0.0, 1.0);
        return float(across * down);
    }

    struct Columns
    {
        int first = 0;
        int end = 0; ///< one past the last
    };

    /** The columns of a row that are in the picture, enlarged by @p margin pixels on each side, within @p limits. */
    Columns columnsWithin(double margin, int row, Columns limits) const
    {
        const double down = row + 0.5 - m_centre.y();
        Span span = {limits.first - m_centre.x(), limits.end + 1 - m_centre.x()};
        span.cut(m_cosine, -down * m_sine, m_width / 2 + margin);
        span.cut(m_sine, down * m_cosine, m_height / 2 + margin);
        if (!(span.from < span.to))
            return {limits.end, limits.end};
        const auto column = [&](double across) {
            return std::clamp(int(std::ceil(across + m_centre.x() - 0.5)), limits.first, limits.end);
        };
        return {column(span.from), column(span.to)};
    }

private:
    /** The part of a line on which |slope * t + offset| stays below a bound. */
    struct Span
    {
        double from;
        double to;

        void cut(double slope, double offset, double bound)
        {
            if (slope == 0) {
                if (std::abs(offset) >= bound)
                    to = from;
                return;
            }
            const double one = (-bound - offset) / slope;
            const double other = (bound - offset) / slope;
            from = std::max(from, std::min(one, other));
            to = std::min(to, std::max(one, other));
        }
    };

    double m_width;
    double m_height;
    QPointF m_centre;
    double m_cosine = 1;
    double m_sine = 0;
};

/** All that drawing needs to know; the library's threads share it and change nothing. */
struct Job
{
    VImage picture; ///< in memory
    Placement placement;
    bool addsAlpha;
    bool hasAlpha; ///< existing in the picture or added
    float opaque;  ///< the alpha of an opaque pixel
};

/** Draws rows of one job. Edge pixels of the picture are repeated outside it, and faded by their coverage. */
template<typename Component, typename Mixer> class Drawing
{
public:
    explicit Drawing(const Job &job)
        : m_job(job), m_pixels(static_cast<const Component *>(job.picture.data())), m_width(job.picture.width()),
          m_height(job.picture.height()), m_bands(job.picture.bands()), m_outBands(m_bands + (job.addsAlpha ? 1 : 0)),
          m_mixer(m_bands, job.opaque), m_edge(size_t(taps * taps * m_bands + Mixer::readsBeyond))
    {
    }

    /** The pixels of @p row in @p columns, to @p out. */
    void draw(int row, Placement::Columns columns, Component *out)
    {
        const Placement::Columns touched = m_job.placement.columnsWithin(0.5, row, columns);
        Placement::Columns whole = m_job.placement.columnsWithin(-0.5, row, touched);
        const auto at = [&](int column) { return out + ptrdiff_t(column - columns.first) * m_outBands; };
        std::fill(out, at(touched.first), Component(0));
        drawFaded(row, {touched.first, whole.first}, at(touched.first));
        drawWhole(row, whole, at(whole.first));
        drawFaded(row, {whole.end, touched.end}, at(whole.end));
        std::fill(at(touched.end), at(columns.end), Component(0));
    }

private:
    void drawWhole(int row, Placement::Columns columns, Component *out)
    {
        // From the corner of a pixel to its centre; then the nearest step, not the previous one.
        constexpr double shift = -0.5 + 0.5 / (1 << stepBits);
        const QPointF start = m_job.placement.inPicture(columns.first, row) + QPointF(shift, shift);
        const Position across(m_job.placement.step().x());
        const Position down(m_job.placement.step().y());
        Position x(start.x());
        Position y(start.y());
        bool arePairsMade = m_job.addsAlpha;
        for (int column = columns.first; column < columns.end; ++column, out += m_outBands) {
            if (!arePairsMade && isInside(x, y)) {
                const int made = mixedPairs({x, y}, {across, down}, columns.end - column, out);
                arePairsMade = true;
                column += made;
                out += ptrdiff_t(made) * m_outBands;
                x.step(across, made);
                y.step(down, made);
                if (column == columns.end)
                    return;
            }
            m_mixer.mix(windowAt(x.pixel(), y.pixel()), m_weights[x.stepInPixel()], m_weights[y.stepInPixel()], out);
            if (m_job.addsAlpha)
                out[m_bands] = toComponent<Component>(m_job.opaque);
            x.step(across);
            y.step(down);
        }
    }

    void drawFaded(int row, Placement::Columns columns, Component *out)
    {
        const int firstFaded = m_job.hasAlpha ? m_outBands - 1 : 0;
        for (int column = columns.first; column < columns.end; ++column, out += m_outBands) {
            drawWhole(row, {column, column + 1}, out);
            const float part = m_job.placement.coverage(column, row);
            for (int band = firstFaded; band < m_outBands; ++band)
                out[band] = toComponent<Component>(float(out[band]) * part);
        }
    }

    /** Whether the window is in the picture, including everything that may be read after it. */
    bool isInside(Position x, Position y) const
    {
        const int left = x.pixel() - 1;
        const int top = y.pixel() - 1;
        return left >= 0 && top >= 0 && (left + taps) * m_bands + Mixer::readsBeyond <= m_width * m_bands &&
               top + taps <= m_height;
    }

    struct Places
    {
        Position x;
        Position y;
    };

    /** Makes pixels two at a time, starting at one whose window is inside, and answers how many; perhaps none. */
    int mixedPairs(Places from, Places step, int count, Component *out) const
    {
        if constexpr (std::is_same_v<Mixer, RgbMixer>) {
            const auto isInsideAt = [&](int index) {
                Places place = from;
                place.x.step(step.x, index);
                place.y.step(step.y, index);
                return isInside(place.x, place.y);
            };
            while (count > 1 && !isInsideAt(count - 1)) // on a line everything between two inside points is inside
                --count;
            if (canMixPairs())
                return mixPairs({m_pixels, ptrdiff_t(m_width) * m_bands, m_weights.data(), stepBits, from.x.value(),
                                 from.y.value(), step.x.value(), step.y.value()},
                                count, out);
        }
        return 0;
    }

    SourceWindow<Component> windowAt(int x, int y)
    {
        const int left = x - 1;
        const int top = y - 1;
        const ptrdiff_t rowLength = ptrdiff_t(m_width) * m_bands;
        const int spare = top + taps < m_height ? 0 : Mixer::readsBeyond; // a row below has room for it
        if (left >= 0 && top >= 0 && (left + taps) * m_bands + spare <= rowLength && top + taps <= m_height)
            return {m_pixels + top * rowLength + ptrdiff_t(left) * m_bands, rowLength};
        for (int j = 0; j < taps; ++j)
            for (int i = 0; i < taps; ++i) {
                const Component *pixel = m_pixels + std::clamp(top + j, 0, m_height - 1) * rowLength +
                                         ptrdiff_t(std::clamp(left + i, 0, m_width - 1)) * m_bands;
                std::copy(pixel, pixel + m_bands, m_edge.data() + ptrdiff_t(j * taps + i) * m_bands);
            }
        return {m_edge.data(), ptrdiff_t(taps) * m_bands};
    }

    const Job &m_job;
    const Component *m_pixels;
    int m_width;
    int m_height;
    int m_bands;
    int m_outBands;
    const WeightTable &m_weights = cubicWeights();
    Mixer m_mixer;
    std::vector<Component> m_edge;
};

template<typename Component, typename Mixer>
int drawRegion(VipsRegion *region, void *, void *jobAddress, void *, gboolean *)
{
    const VipsRect &area = region->valid;
    Drawing<Component, Mixer> drawing(*static_cast<const Job *>(jobAddress));
    for (int y = area.top; y < area.top + area.height; ++y)
        drawing.draw(y, {area.left, area.left + area.width},
                     reinterpret_cast<Component *>(VIPS_REGION_ADDR(region, area.left, y)));
    return 0;
}

template<typename Component> VipsGenerateFn drawerFor(const VImage &picture)
{
    if (hasTransparency(picture))
        return drawRegion<Component, SeenMixer<Component>>;
    return drawRegion<Component, OpaqueMixer<Component>>;
}

VipsGenerateFn drawerFor(const VImage &picture)
{
    switch (picture.format()) {
    case VIPS_FORMAT_UCHAR:
        return picture.bands() == 3 ? drawRegion<quint8, RgbMixer> : drawerFor<quint8>(picture);
    case VIPS_FORMAT_USHORT:
        return drawerFor<quint16>(picture);
    case VIPS_FORMAT_SHORT:
        return drawerFor<qint16>(picture);
    default:
        return drawerFor<float>(picture);
    }
}

bool isDrawnAsItIs(VipsBandFormat format)
{
    return format == VIPS_FORMAT_UCHAR || format == VIPS_FORMAT_USHORT || format == VIPS_FORMAT_SHORT ||
           format == VIPS_FORMAT_FLOAT;
}

} // namespace

VImage turnedFreely(const VImage &image, const FreeTurn &turn)
{
    const VipsBandFormat format = image.format();
    const VImage picture = (isDrawnAsItIs(format) ? image : image.cast(VIPS_FORMAT_FLOAT)).copy_memory();
    const bool addsAlpha = turn.surroundings == Surroundings::Transparent && !hasTransparency(picture);
    Job job = {picture, Placement(picture, turn), addsAlpha, addsAlpha || hasTransparency(picture),
               float(opaqueValue(picture))};
    const VImage canvas(vips_image_new());
    VipsImage *out = canvas.get_image();
    if (vips_image_pipelinev(out, VIPS_DEMAND_STYLE_SMALLTILE, picture.get_image(), nullptr) != 0)
        throw vips::VError();
    out->Xsize = turn.canvas.width();
    out->Ysize = turn.canvas.height();
    out->Bands = picture.bands() + (addsAlpha ? 1 : 0);
    if (vips_image_generate(out, nullptr, drawerFor(picture), nullptr, &job, nullptr) != 0)
        throw vips::VError();
    // Render now: the lazy image must not outlive `job`.
    return (isDrawnAsItIs(format) ? canvas : canvas.cast(format)).copy_memory();
}

} // namespace platform
