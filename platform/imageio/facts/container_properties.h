#pragma once

#include <QVariantMap>

class QIODevice;

namespace platform {

/**
 * The statements of a PNG, JPEG or GIF file outside EXIF, IPTC and XMP, as one group of properties:
 *
 * - {PNG}: InterlaceType, Gamma, sRGBIntent, Chromaticities (white, red, green, blue as x and y), XPixelsPerMeter,
 *   YPixelsPerMeter, and each text chunk under its keyword without spaces ("CreationTime"), the first of a keyword
 * - {JFIF}: JFIFVersion (two or three numbers), DensityUnit (0 none, 1 inch, 2 centimetre), XDensity, YDensity, IsProgressive
 * - {GIF}: HasGlobalColorMap, LoopCount (0 for ever), DelayTime of the first picture in seconds, each if stated
 *
 * Empty for other files. A broken file gives what precedes the damage. Reads headers only; texts over 64 KB and more
 * than 200 of them are skipped.
 */
QVariantMap containerProperties(QIODevice &file);

} // namespace platform
