#include "platform/graphics/free_turn.h"

#include "platform/planes/cubic_pairs.h"
#include "platform/planes/turn_placement.h"

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

constexpr int stepBits = turnStepBits;

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

/** All that drawing needs to know; the library's threads share it and change nothing. */
struct Job
{
    VImage picture; ///< in memory
    TurnPlacement placement;
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
    void draw(int row, TurnPlacement::Columns columns, Component *out)
    {
        const TurnPlacement::Columns touched = m_job.placement.columnsTouched(row, columns);
        TurnPlacement::Columns whole = m_job.placement.columnsCovered(row, touched);
        const auto at = [&](int column) { return out + ptrdiff_t(column - columns.first) * m_outBands; };
        std::fill(out, at(touched.first), Component(0));
        drawFaded(row, {touched.first, whole.first}, at(touched.first));
        drawWhole(row, whole, at(whole.first));
        drawFaded(row, {whole.end, touched.end}, at(whole.end));
        std::fill(at(touched.end), at(columns.end), Component(0));
    }

private:
    void drawWhole(int row, TurnPlacement::Columns columns, Component *out)
    {
        // From the corner of a pixel to its centre; then the nearest step, not the previous one.
        constexpr double shift = -0.5 + 0.5 / (1 << stepBits);
        const QPointF start = m_job.placement.inPicture(columns.first, row) + QPointF(shift, shift);
        const TurnPosition across(m_job.placement.step().x());
        const TurnPosition down(m_job.placement.step().y());
        TurnPosition x(start.x());
        TurnPosition y(start.y());
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

    void drawFaded(int row, TurnPlacement::Columns columns, Component *out)
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
    bool isInside(TurnPosition x, TurnPosition y) const
    {
        const int left = x.pixel() - 1;
        const int top = y.pixel() - 1;
        return left >= 0 && top >= 0 && (left + taps) * m_bands + Mixer::readsBeyond <= m_width * m_bands &&
               top + taps <= m_height;
    }

    struct Places
    {
        TurnPosition x;
        TurnPosition y;
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
    Job job = {picture, TurnPlacement({picture.width(), picture.height()}, turn.degrees, turn.centre), addsAlpha,
               addsAlpha || hasTransparency(picture), float(opaqueValue(picture))};
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
