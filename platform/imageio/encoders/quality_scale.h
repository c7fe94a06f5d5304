#pragma once

// Private to the platform: one scale of quality for all lossy types.

namespace platform {

/**
 * What a quality of 1 to 100 is for encoders with scales of their own: about as near to the picture as a JPEG of that quality, as
 * measured on photographs by the mean square of the differences. 100 is the best that each has short of lossless.
 */
int avifQuality(int quality);

/** As a distance that can just be seen at 1; 15 is the most. */
double jpegXlDistance(int quality);

/** In decibels: how far the differences lie below the greatest value. */
int jpeg2000Decibels(int quality);

} // namespace platform
