#pragma once

// Private to the platform: one quality scale for all lossy types.

namespace platform {

/**
 * The equivalent of a quality of 1 to 100 for encoders that use another scale: about as close to the picture as a
 * JPEG of that quality, measured on photographs by the mean squared difference. 100 is the best that each offers short
 * of lossless.
 */
int avifQuality(int quality);

/** As a distance, where 1 is just visible; 15 is the maximum. */
double jpegXlDistance(int quality);

/** In decibels: how far the differences are below the peak value. */
int jpeg2000Decibels(int quality);

} // namespace platform
