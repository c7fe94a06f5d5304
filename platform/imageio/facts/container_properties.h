#pragma once

#include <QVariantMap>

class QIODevice;

namespace platform {

/**
 * What a PNG, JPEG or GIF file says of itself outside EXIF, IPTC and XMP, as one group of properties:
 *
 * - {PNG}: InterlaceType, Gamma, sRGBIntent, Chromaticities (white, red, green, blue as x and y), XPixelsPerMeter,
 *   YPixelsPerMeter, and each text chunk under its keyword without blanks ("CreationTime"), the first of a keyword
 * - {JFIF}: JFIFVersion (two or three numbers), DensityUnit (0 none, 1 inch, 2 centimetre), XDensity, YDensity, IsProgressive
 * - {GIF}: HasGlobalColorMap, LoopCount (0 for ever), DelayTime of the first picture in seconds, each where it is stated
 *
 * Empty for other files. A broken file gives what stands before the damage. Reads headers only; texts over 64 KB and
 * more than 200 of them are left out.
 */
QVariantMap containerProperties(QIODevice &file);

} // namespace platform
