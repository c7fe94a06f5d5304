#include "platform/planes/plane_weights.h"

#include "platform/planes/plane_kernels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace platform {
namespace {

constexpr int wholeWeight = 1 << planeWeightBits;

/**
 * The three-lobed Lanczos kernel at equidistant positions: the sines of the next position are computed from those of
 * the last one, with a few products where the library takes much longer for each.
 */
class Lanczos
{
public:
    static constexpr double lobes = 3;

    Lanczos(double first, double step)
        : m_place(first), m_step(step), m_wave(pi * first), m_lobe(pi * first / lobes), m_waveStep(pi * step),
          m_lobeStep(pi * step / lobes)
    {
    }

    double next()
    {
        const double x = m_place;
        const double sines = m_wave.sine * m_lobe.sine;
        m_place += m_step;
        m_wave.turn(m_waveStep);
        m_lobe.turn(m_lobeStep);
        if (std::abs(x) < 1e-9)
            return 1;
        return std::abs(x) < lobes ? lobes * sines / (pi * pi * x * x) : 0;
    }

private:
    static constexpr double pi = 3.14159265358979323846;

    struct Angle
    {
        explicit Angle(double angle) : sine(std::sin(angle)), cosine(std::cos(angle)) {}
        void turn(const Angle &by)
        {
            const double turned = sine * by.cosine + cosine * by.sine;
            cosine = cosine * by.cosine - sine * by.sine;
            sine = turned;
        }
        double sine;
        double cosine;
    };

    double m_place;
    double m_step;
    Angle m_wave;
    Angle m_lobe;
    Angle m_waveStep;
    Angle m_lobeStep;
};

/** Adds the weight of a block to those of the samples that it averages; @p start is that of the first weight. */
void addBlock(std::vector<double> &weights, int start, double begin, double length, int samples, double weight)
{
    const double end = std::min(begin + length, double(samples)); // nothing follows the last block
    const int last = int(std::ceil(end)) - 1;
    for (int at = int(std::floor(begin)); at <= last; ++at) {
        const double reached = at == last ? begin + length : at + 1.0;
        weights[size_t(at - start)] += weight * (reached - std::max(begin, double(at))) / length;
    }
}

/** After so many new samples their places between the old ones are the same again. */
struct Period
{
    int count = 0;   ///< new samples; 0: not soon
    int samples = 0; ///< old ones that these span
};

Period periodOf(const PlaneSpan &span, double step)
{
    constexpr int longest = 64;
    for (int count = 1; count <= longest; ++count) {
        const double blocks = count * step;
        const double samples = blocks * span.block;
        if (blocks == std::floor(blocks) && samples == std::floor(samples))
            return {count, int(samples)};
    }
    return {};
}

template<typename Span> std::shared_ptr<const PlaneWeights> keptOrMade(const Span &span, int samples)
{
    struct Kept
    {
        Span span;
        int samples = 0;
        std::shared_ptr<const PlaneWeights> weights;
    };
    constexpr int most = 4; // both sides, of luma and of chroma
    thread_local std::array<Kept, most> kept;
    thread_local size_t next = 0;
    for (const Kept &each : kept)
        if (each.weights && each.samples == samples && each.span == span)
            return each.weights;
    auto made = std::make_shared<const PlaneWeights>(span, samples);
    constexpr int largest = 1 << 18; // weights; those of a photograph are far fewer
    if (made->size() > largest)
        return made;
    kept[next] = {span, samples, made};
    next = (next + 1) % most;
    return made;
}

} // namespace

std::shared_ptr<const PlaneWeights> keptWeights(const PlaneSpan &span, int samples)
{
    return keptOrMade(span, samples);
}

std::shared_ptr<const PlaneWeights> keptWeights(const PixelSpan &span, int samples)
{
    return keptOrMade(span, samples);
}

PlaneWeights::PlaneWeights(const PlaneSpan &span, int samples)
{
    const double step = span.step / span.block;
    const double scale = std::max(1.0, step);
    const int reach = int(std::ceil(Lanczos::lobes * scale)) + 1;
    m_taps = wholeUnits(int(std::ceil((2 * reach + 1) * span.block)), planeTapUnit);
    const int count = wholeUnits(span.count, planeOutputUnit); // those after the last have weight 0
    m_starts.assign(size_t(count), 0);
    m_values.assign(size_t(count) * size_t(m_taps), 0);
    std::vector<double> exact(static_cast<size_t>(m_taps) + 1);
    const Period period = periodOf(span, step);
    const int lastBlock = int(std::ceil(samples / span.block)) - 1;
    int inside = 0; // so many before this one reach beyond no edge
    for (int i = 0; i < span.count; ++i) {
        const double centre = span.start / span.block + (i + 0.5) * step;
        const int first = int(std::floor(centre)) - reach;
        const bool isInside = first >= 0 && first + 2 * reach < lastBlock;
        if (isInside && period.count > 0 && inside >= period.count)
            repeat(i, period.count, period.samples);
        else
            weigh(i, centre, {span.block, scale, reach, samples}, exact);
        inside = isInside ? inside + 1 : 0;
    }
    findPairs();
}

PlaneWeights::PlaneWeights(const PixelSpan &span, int samples)
{
    const std::vector<SampleWeights> exact = weightsOf(span, samples);
    size_t most = 0;
    for (const SampleWeights &each : exact)
        most = std::max(most, each.weights.size());
    m_taps = wholeUnits(int(most), planeTapUnit);
    const size_t count = size_t(wholeUnits(int(exact.size()), planeOutputUnit));
    m_starts.assign(count, 0);
    m_values.assign(count * size_t(m_taps), 0);
    std::vector<double> padded;
    for (size_t i = 0; i < exact.size(); ++i) {
        padded = exact[i].weights;
        padded.resize(size_t(m_taps));
        m_starts[i] = exact[i].start;
        store(int(i), padded, 1);
    }
    findPairs();
}

void PlaneWeights::repeat(int index, int period, int samples)
{
    m_starts[size_t(index)] = m_starts[size_t(index - period)] + samples;
    std::copy_n(of(index - period), m_taps, m_values.data() + size_t(index) * size_t(m_taps));
}

bool PlaneWeights::isPairAfter(int index) const
{
    return start(index) == start(index - 1) + 2 && std::equal(of(index), of(index) + m_taps, of(index - 1));
}

void PlaneWeights::findPairs()
{
    const int all = int(m_starts.size());
    for (int begin = 0, end = 0; begin < all; begin = end) {
        for (end = begin + 1; end < all && isPairAfter(end);)
            ++end;
        const int first = wholeUnits(begin, planeOutputUnit);
        const int count = (end - first) / planePairUnit * planePairUnit;
        if (count > m_pairs.count)
            m_pairs = {first, count};
    }
}

void PlaneWeights::weigh(int index, double centre, const Blocks &blocks, std::vector<double> &exact)
{
    std::fill(exact.begin(), exact.end(), 0);
    const int last = int(std::ceil(blocks.samples / blocks.length)) - 1;
    const int first = int(std::floor(centre)) - blocks.reach;
    const int start = int(std::floor(std::clamp(first, 0, last) * blocks.length));
    double sum = 0;
    Lanczos kernel((first + 0.5 - centre) / blocks.scale, 1 / blocks.scale);
    for (int at = first; at <= first + 2 * blocks.reach; ++at) {
        const double weight = kernel.next();
        addBlock(exact, start, std::clamp(at, 0, last) * blocks.length, blocks.length, blocks.samples, weight);
        sum += weight;
    }
    m_starts[size_t(index)] = start;
    store(index, exact, sum);
}

void PlaneWeights::store(int index, const std::vector<double> &exact, double sum)
{
    qint16 *whole = m_values.data() + size_t(index) * size_t(m_taps);
    int rest = wholeWeight;
    for (int tap = 0; tap < m_taps; ++tap) {
        whole[tap] = qint16(std::lrint(exact[size_t(tap)] / sum * wholeWeight));
        rest -= whole[tap];
    }
    qint16 *most = std::max_element(whole, whole + m_taps);
    *most = qint16(*most + rest);
}

} // namespace platform
