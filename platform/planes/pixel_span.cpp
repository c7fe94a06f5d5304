#include "platform/planes/pixel_span.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace platform {
namespace {

constexpr int places = 64;     ///< between two pixels, at which the pixel library puts its filter
constexpr int coarseUnit = 64; ///< the sum of its weights along columns

double lanczos(double x)
{
    constexpr double pi = 3.14159265358979323846;
    constexpr double lobes = 3;
    if (std::abs(x) < 1e-9)
        return 1;
    return std::abs(x) < lobes ? lobes * std::sin(pi * x) * std::sin(pi * x / lobes) / (pi * pi * x * x) : 0;
}

/** All weights rounded to whole ones of coarseUnit, after multiplication by @p factor. */
int roundedBy(double factor, const std::vector<double> &exact, std::vector<int> &whole)
{
    int sum = 0;
    for (size_t i = 0; i < exact.size(); ++i) {
        whole[i] = int(std::lrint(exact[i] * factor));
        sum += whole[i];
    }
    return sum;
}

/**
 * Weights in units of coarseUnit, whose sum is the whole unit. The factor that makes it so is looked for by halving an
 * interval that depends on the number of weights, and what cannot be reached goes to all, then to the first ones: as in
 * the pixel library, since other weights would make other pictures.
 */
void makeCoarse(std::vector<double> &weights)
{
    constexpr double nearly = 0.01;
    const int count = int(weights.size());
    std::vector<int> whole(weights.size());
    double low = coarseUnit - (count + 1) / 2;  // NOLINT(bugprone-integer-division): halves count down
    double high = coarseUnit + (count + 1) / 2; // NOLINT(bugprone-integer-division)
    int sum = 0;
    do {
        const double factor = (low + high) / 2;
        sum = roundedBy(factor, weights, whole);
        if (sum != coarseUnit)
            (sum < coarseUnit ? low : high) = factor;
    } while (sum != coarseUnit && high - low > nearly);
    const int rest = coarseUnit - sum;
    for (int i = 0; i < count; ++i)
        weights[size_t(i)] =
            double(whole[size_t(i)] + rest / count + (i < std::abs(rest % count) ? (rest > 0) - (rest < 0) : 0)) /
            coarseUnit;
}

/** The weights of blocks around a new pixel, by the place of its centre between two of them. */
class Filter
{
public:
    Filter(double scale, bool isCoarse) : m_scale(scale), m_reach(int(std::rint(3 * scale))), m_isCoarse(isCoarse) {}

    /** So many blocks before and behind the one that the centre is in. */
    int reach() const { return m_reach; }
    const std::vector<double> &at(int place)
    {
        std::vector<double> &weights = m_known[size_t(place)];
        if (!weights.empty())
            return weights;
        double sum = 0;
        for (int block = -m_reach; block <= m_reach; ++block) {
            weights.push_back(lanczos((block + 0.5 - double(place) / places) / m_scale));
            sum += weights.back();
        }
        for (double &weight : weights)
            weight /= sum;
        if (m_isCoarse)
            makeCoarse(weights);
        return weights;
    }

private:
    double m_scale;
    int m_reach;
    bool m_isCoarse;
    std::array<std::vector<double>, places + 1> m_known;
};

/** Adds weights of pixels to those of the samples that they come from. */
class SampleSum
{
public:
    SampleSum(const PixelSpan &span, int samples)
        : m_span(span), m_samples(samples), m_weights(size_t(samples)), m_first(samples)
    {
    }

    void add(int pixel, double weight)
    {
        const int delivered = std::clamp(pixel, 0, m_span.pixels - 1) / m_span.halved;
        if (!m_span.isInterpolated) {
            addToSample(std::min(delivered, m_samples - 1), weight);
            return;
        }
        constexpr double nearer = 0.75;
        const int own = delivered / 2;
        const int other = delivered % 2 == 0 ? own - 1 : own + 1;
        addToSample(std::clamp(own, 0, m_samples - 1), nearer * weight);
        addToSample(std::clamp(other, 0, m_samples - 1), (1 - nearer) * weight);
    }
    /** What was added since the last time. */
    SampleWeights taken()
    {
        const auto begin = m_weights.begin() + m_first;
        const auto end = m_weights.begin() + m_last + 1;
        SampleWeights all{m_first, {begin, end}};
        std::fill(begin, end, 0);
        m_first = m_samples;
        m_last = -1;
        return all;
    }

private:
    void addToSample(int sample, double weight)
    {
        m_weights[size_t(sample)] += weight;
        m_first = std::min(m_first, sample);
        m_last = std::max(m_last, sample);
    }

    const PixelSpan &m_span;
    int m_samples;
    std::vector<double> m_weights; ///< of all samples; 0 but from the first to the last one
    int m_first;
    int m_last = -1;
};

} // namespace

std::vector<SampleWeights> weightsOf(const PixelSpan &span, int samples)
{
    const double step = span.step / span.block;
    const int blocks = (span.pixels + span.block - 1) / span.block;
    Filter filter(step, span.isCoarse);
    SampleSum sum(span, samples);
    std::vector<SampleWeights> all;
    all.reserve(size_t(span.count()));
    for (int i = 0; i < span.count(); ++i) {
        for (int j = 0; j < span.shared; ++j) {
            const int pixel = span.first + std::min(i * span.shared + j, span.kept - 1);
            if (span.step == 1) { // nothing is scaled along this side
                sum.add(pixel, 1.0 / span.shared);
                continue;
            }
            const double centre = (pixel + 0.5) * step;
            const int own = int(std::floor(centre));
            const auto &weights = filter.at(int(std::floor((centre - own) * places + 0.5)));
            for (int at = -filter.reach(); at <= filter.reach(); ++at)
                for (int in = 0; in < span.block; ++in)
                    sum.add(std::clamp(own + at, 0, blocks - 1) * span.block + in,
                            weights[size_t(at + filter.reach())] / (span.block * span.shared));
        }
        all.push_back(sum.taken());
    }
    return all;
}

} // namespace platform
