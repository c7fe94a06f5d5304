#pragma once

// Private to the platform.

#include "platform/planes/plane.h"

#include <vector>

namespace platform {

/**
 * What new samples are made of along one side, by Lanczos of three lobes, in whole numbers: for each the first old sample and what
 * that and the following ones weigh, together 1 << planeWeightBits. What lies beyond an edge weighs with the last one before it.
 */
class PlaneWeights
{
public:
    /** Throws std::bad_alloc. */
    PlaneWeights(const PlaneSpan &span, int samples);

    int taps() const { return m_taps; } ///< weights of a new sample, whole units; some that are 0 fill them up
    int start(int index) const { return m_starts[size_t(index)]; }
    /** Those of this one and of all that follow. */
    const qint16 *of(int index) const { return m_values.data() + size_t(index) * size_t(m_taps); }
    const int *starts() const { return m_starts.data(); }

private:
    /** How the blocks lie that are weighed, and the samples that they are the means of. */
    struct Blocks
    {
        double length; ///< in samples
        double scale;  ///< blocks for a new sample, or 1 where that is less than a block
        int reach;     ///< blocks on either side
        int samples;   ///< in all
    };

    void weigh(int index, double centre, const Blocks &blocks, std::vector<double> &exact);

    int m_taps = 0;
    std::vector<int> m_starts;
    std::vector<qint16> m_values;
};

} // namespace platform
