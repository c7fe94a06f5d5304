#pragma once

#include "platform/imageio/source/image_source.h"

namespace platform {

/**
 * Image 0 of @p source as a PDF file of one page that has the size of the upright picture in points.
 *
 * The scan of a grey or RGB JPEG is copied byte for byte if it is upright; one stored sideways is turned first if that
 * is possible without loss. All other pictures are stored without loss, 8 or 16 bits a component, grey, RGB or CMYK,
 * with their transparency. The colour profile is kept, metadata is not.
 *
 * @param dpi  dots per inch, above 0, that determine the size of the page instead of the picture's own
 *
 * Fails like ImageSource::decode(), and with WriteFailed if the page cannot be made.
 */
Result<QByteArray> pdfPageOf(const ImageSource &source, std::optional<double> dpi = {});

/** The same for pixels, without loss; the page has the size of the bitmap in points. */
Result<QByteArray> pdfPageOf(const Bitmap &bitmap);

} // namespace platform
