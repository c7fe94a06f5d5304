#pragma once

// Private to the platform.

#include <vector>

namespace platform {

/**
 * Along one side: how new samples of a plane are made so that they are what scaling the pixels of the picture gives.
 * Positions and lengths are in pixels of the picture, however many of them share a sample of the plane.
 */
struct PixelSpan
{
    double step = 1; ///< pixels for a new one
    int pixels = 1;
    int block = 1;  ///< so many pixels are averaged first, from the edge of the first one on
    int halved = 1; ///< so many pixels are one that the decoder has delivered
    /** Two delivered pixels share a sample, and the decoder interpolates between samples for them. */
    bool isInterpolated = false;
    int first = 0;  ///< the first new pixel that is kept
    int kept = 1;   ///< so many of them
    int shared = 1; ///< so many of them share a new sample, which is their average
    /** Weights are rounded as those that the pixel library uses along columns. */
    bool isCoarse = false;

    bool operator==(const PixelSpan &other) const = default;

    int count() const { return (kept + shared - 1) / shared; }
};

/** What a new sample is made of: the first old one, and the weights of that and the following ones; their sum is 1. */
struct SampleWeights
{
    int start = 0;
    std::vector<double> weights;
};

/** Those of all new samples, by three-lobed Lanczos. */
std::vector<SampleWeights> weightsOf(const PixelSpan &span, int samples);

} // namespace platform
