#pragma once

#include "image/types/output_types.h"
#include "platform/foundation/result.h"
#include "platform/imageio/source/image_source.h"

#include <QString>

namespace image {

struct Conversion
{
    QString source; ///< absolute path of anything that can be decoded; its content counts, not its name
    OutputType type = OutputType::Png;
    double quality = 0.9; ///< JPEG only, 0.01 to 1
    QString destination;  ///< absolute path, extension included; its folder must exist
};

/**
 * Writes image 0 of a picture file as another type, replacing a file that is there.
 *
 * PNG and TIFF keep what the source has: EXIF with its maker notes, GPS, IPTC, XMP, profile, resolution, 16 bits, alpha; the
 * pixels as they are stored, with the orientation tag that belongs to them. They are written twice, first with nothing but
 * the pixels and then with everything; where only the second fails, the first is left. BMP, GIF, JPEG and JPEG 2000 keep
 * the pixels alone, turned upright since no tag would say how they lie, and their colours: with the profile in JPEG and
 * JPEG 2000 where it fits in, else converted to sRGB. A PDF page has the size of the upright picture in points.
 *
 * Fails as ImageSource::open() and decode() do, and with WriteFailed. Every write is atomic; a failure leaves what was there.
 * The source may be the destination.
 */
platform::Result<void> convertFile(const Conversion &conversion);

/**
 * How many bytes such a file takes, by making it in memory; of a TIFF or BMP file of many rows to the byte but for how its rows are bundled.
 * Fails as convertFile() does.
 */
platform::Result<qint64> convertedBytes(const platform::ImageSource &source, OutputType type, double quality);

} // namespace image
