#pragma once

// Private to the platform: the loop that draws turned samples.

#include "platform/planes/turn_placement.h"

#include <array>

namespace platform {

constexpr int turnWeightBits = 14; ///< fraction bits of a weight
constexpr int turnSumBits = 6;     ///< fraction bits of the sum of a row

using TurnWeights = std::array<qint16, 4>;

/** The weights of four samples in a row, for each step from the second one to the third. */
const std::array<TurnWeights, 1 << turnStepBits> &turnWeights();

/** A row of new samples across a plane. Positions are in samples and 2^-32 of one. */
struct TurnedRow
{
    const uchar *samples; ///< the plane's first
    qptrdiff rowBytes;
    const TurnWeights *weights; ///< turnWeights()
    qint64 x;                   ///< of the first new sample
    qint64 y;
    qint64 stepX;
    qint64 stepY;
};

/** The sample of a window of four by four, rows one below the other. */
uchar turnedSample(const uchar *window, qptrdiff rowBytes, const TurnWeights &across, const TurnWeights &down);

/** Draws @p count samples whose windows are in the plane. */
using TurnKernel = void (*)(const TurnedRow &row, int count, uchar *out);

/** For any processor. */
TurnKernel plainTurnKernel();
/** The fastest that this processor supports; both give the same results. */
TurnKernel turnKernel();

} // namespace platform
