#pragma once

// Private to the platform: the two loops that scale a plane.

#include <QtGlobal>

namespace platform {

constexpr int planeRowUnit = 64;    ///< bytes of a row come in so many
constexpr int planeTapUnit = 16;    ///< and weights of a sample
constexpr int planeOutputUnit = 4;  ///< and new samples of a row
constexpr int planeWeightBits = 14; ///< of a weight of 1
constexpr int planeSumBits = 6;     ///< of fractions of what stands between the two loops

struct PlaneKernels
{
    /** Makes one row of the sums of several, weighed. @p taps and @p count are whole units. */
    void (*sumRows)(const uchar *const *rows, const qint16 *weights, int taps, qint16 *out, int count);
    /** Makes new samples of one row, each of @p taps sums from its start on. @p taps and @p count are whole units. */
    void (*sumColumns)(const qint16 *sums, const int *starts, const qint16 *weights, int taps, uchar *out, int count);
};

/** For any processor. */
const PlaneKernels &plainPlaneKernels();
/** The fastest that this processor has; all give the same numbers. */
const PlaneKernels &planeKernels();

} // namespace platform
