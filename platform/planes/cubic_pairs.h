#pragma once

// Private to the platform.

#include "platform/planes/cubic.h"

namespace platform {

/** A row of new pixels across a picture of 8 bit RGB. Positions are in pixels and 2^-32 of one. */
struct CubicRow
{
    const quint8 *pixels; ///< the picture's first
    ptrdiff_t rowBytes;
    const CubicWeights *weights; ///< a power of two, for as many positions between two pixels
    int weightBits;
    qint64 x; ///< of the first new pixel
    qint64 y;
    qint64 stepX;
    qint64 stepY;
};

/** Whether this processor supports it. */
bool canMixPairs();

/**
 * Makes pixels two at a time, with the same results as RgbMixer, as many as there are pairs in @p count. All their
 * windows must be in the picture with RgbMixer::readsBeyond more. Answers how many it made.
 */
int mixPairs(const CubicRow &row, int count, quint8 *out);

} // namespace platform
