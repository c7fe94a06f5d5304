#pragma once

#include "platform/imageio/source/image_source.h"

namespace platform {

/**
 * Image 0 of @p source as a PDF file of one page that has the size of the upright picture in points.
 *
 * The scan of a grey or RGB JPEG goes in byte for byte where it is upright; one that lies on its side is turned first where
 * that can be done without loss. All other pictures are stored without loss, 8 or 16 bits a component, grey, RGB or CMYK,
 * with their transparency. The colour profile is kept, metadata is not.
 *
 * @param dpi  dots per inch, above 0, that give the page its size in place of the picture's own
 *
 * Fails as ImageSource::decode() does, and with WriteFailed where the page cannot be made.
 */
Result<QByteArray> pdfPageOf(const ImageSource &source, std::optional<double> dpi = {});

/** The same of pixels, without loss; the page has the size of the bitmap in points. */
Result<QByteArray> pdfPageOf(const Bitmap &bitmap);

} // namespace platform
