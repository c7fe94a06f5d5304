#pragma once

// Private to the platform.

#include "platform/planes/pixel_span.h"
#include "platform/planes/plane.h"

#include <memory>
#include <vector>

namespace platform {

/**
 * How new samples are computed along one side, by three-lobed Lanczos in integers: for each the first old sample and
 * the weights of that and the following ones, with the sum 1 << planeWeightBits. What is beyond an edge is weighted
 * with the last one before it.
 */
class PlaneWeights
{
public:
    /** Throws std::bad_alloc. */
    PlaneWeights(const PlaneSpan &span, int samples);
    /** The same as of the picture's pixels. Throws std::bad_alloc. */
    PlaneWeights(const PixelSpan &span, int samples);

    size_t size() const { return m_values.size(); } ///< weights of all new samples
    int taps() const { return m_taps; }             ///< weights of a new sample, whole units; padded with 0
    int start(int index) const { return m_starts[size_t(index)]; }
    /** Those of this one and of all that follow. */
    const qint16 *of(int index) const { return m_values.data() + size_t(index) * size_t(m_taps); }
    const int *starts() const { return m_starts.data(); }

    /** New samples with the same weights, each starting two old ones after the last: most of them at half the size. */
    struct Pairs
    {
        int first = 0; ///< whole units of new samples
        int count = 0; ///< whole units of pairs; 0: there are none
    };
    const Pairs &pairs() const { return m_pairs; }

private:
    /** The positions of the weighted blocks, and of the samples that they average. */
    struct Blocks
    {
        double length; ///< in samples
        double scale;  ///< blocks per new sample, or 1 if that is less than a block
        int reach;     ///< blocks on either side
        int samples;   ///< in all
    };

    void weigh(int index, double centre, const Blocks &blocks, std::vector<double> &exact);
    /** Takes the weights of the sample that many before, which has the same place between the old ones. */
    void repeat(int index, int period, int samples);
    bool isPairAfter(int index) const;
    void findPairs();
    /** Rounds the weights, whose sum is @p sum. */
    void store(int index, const std::vector<double> &exact, double sum);

    int m_taps = 0;
    std::vector<int> m_starts;
    std::vector<qint16> m_values;
    Pairs m_pairs;
};

/**
 * Those that were made last are kept for each thread: the two planes of colours need the same, and pictures of one
 * camera too. Throws std::bad_alloc.
 */
std::shared_ptr<const PlaneWeights> keptWeights(const PlaneSpan &span, int samples);
std::shared_ptr<const PlaneWeights> keptWeights(const PixelSpan &span, int samples);

} // namespace platform
