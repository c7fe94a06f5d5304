#pragma once

// Private to the platform: the loops that scale a plane.

#include <QtGlobal>

namespace platform {

constexpr int planeRowUnit = 64;    ///< row sizes in bytes are multiples of this
constexpr int planeTapUnit = 16;    ///< and weights of a sample
constexpr int planeOutputUnit = 4;  ///< and new samples of a row
constexpr int planePairUnit = 8;    ///< and those that sumPairs makes
constexpr int planeWeightBits = 14; ///< fraction bits of a weight
constexpr int planeWideBits = 7;    ///< fraction bits of a widened sample
constexpr int planeSumBits = 6;     ///< fraction bits between the two loops

/** @p value or the next multiple of @p unit. */
constexpr int wholeUnits(int value, int unit)
{
    return (value + unit - 1) / unit * unit;
}

struct PlaneKernels
{
    /** Widens each sample to 16 bits with planeWideBits fraction bits. @p count is whole units of a row. */
    void (*widenRow)(const uchar *row, qint16 *wide, int count);
    /** Makes one row of weighted sums of several widened ones. @p count is whole units of a row. */
    void (*sumRows)(const qint16 *const *rows, const qint16 *weights, int taps, qint16 *out, int count);
    /** Makes new samples of one row, each from @p taps sums from its start on. @p taps and @p count are whole units. */
    void (*sumColumns)(const qint16 *sums, const int *starts, const qint16 *weights, int taps, uchar *out, int count);
    /**
     * The same for half the size, where all new samples have the same weights and each starts two sums after the last
     * one. @p count is whole units of pairs.
     */
    void (*sumPairs)(const qint16 *sums, const qint16 *weights, int taps, uchar *out, int count);
};

/** For any processor. */
const PlaneKernels &plainPlaneKernels();
/** The fastest that this processor supports; all give the same results. */
const PlaneKernels &planeKernels();

} // namespace platform
