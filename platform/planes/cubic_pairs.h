#pragma once

// Private to the platform.

#include "platform/planes/cubic.h"

namespace platform {

/** A row of new pixels across a picture of 8 bit RGB. Positions are in pixels and 2^-32 of one. */
struct CubicRow
{
    const quint8 *pixels; ///< the picture's first
    ptrdiff_t rowBytes;
    const CubicWeights *weights; ///< a power of two of them, for as many places between two pixels
    int weightBits;
    qint64 x; ///< of the first new pixel
    qint64 y;
    qint64 stepX;
    qint64 stepY;
};

/** Whether this processor has what it takes. */
bool canMixPairs();

/**
 * Makes pixels two at a time, with the same numbers as RgbMixer, as many as there are pairs in @p count. All their windows lie in the
 * picture with RgbMixer::readsBeyond more. Answers how many it made.
 */
int mixPairs(const CubicRow &row, int count, quint8 *out);

} // namespace platform
