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
 * PNG and TIFF keep everything that the source has: EXIF with its maker notes, GPS, IPTC, XMP, profile, resolution, 16
 * bits, alpha; the pixels as they are stored, with the orientation tag that belongs to them. They are written twice,
 * first with only the pixels and then with everything; if only the second step fails, the first result remains. BMP,
 * GIF, JPEG and JPEG 2000 keep only the pixels, turned upright since there is no orientation tag, and their colours:
 * with the profile in JPEG and JPEG 2000 if it fits, else converted to sRGB. A PDF page has the size of the upright
 * picture in points.
 *
 * Fails like ImageSource::open() and decode(), and with WriteFailed. Every write is atomic; on failure the old file
 * remains. The source may be the destination.
 */
platform::Result<void> convertFile(const Conversion &conversion);

/**
 * The size of such a file, determined by making it in memory; exact, except for how the rows of a large TIFF or BMP
 * file are bundled. Fails like convertFile().
 */
platform::Result<qint64> convertedBytes(const platform::ImageSource &source, OutputType type, double quality);

} // namespace image
