#pragma once

// Private to the platform: where each kind of file states its resolution.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/jpeg/jpeg_header.h"

namespace platform {

/** The tables and the density of a JPEG; none for other content. */
std::optional<JpegHeader> jpegHeaderOf(const PictureBytes &bytes, Content content,
                                       JpegProfile profile = JpegProfile::Skipped);

/**
 * The resolution a file states, in dots per inch; 0 where it states none or gives a number without a unit.
 * Order of trust: the container's own statement (PNG, bitmap, Photoshop), then EXIF or TIFF, then JFIF. A GIF has a place for it in XMP
 * alone. Decodes nothing.
 */
Resolution resolutionOf(const PictureBytes &bytes, Content content);

/** The same for the picture turned upright by an orientation of 1 to 8. */
Resolution uprightResolution(Resolution stored, int orientation);

} // namespace platform
