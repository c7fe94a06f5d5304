#pragma once

// Private to the platform: one decoder a kind of content.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/formats/content.h"

#include <QSize>

namespace platform {

/** How an image is opened. */
struct LoadOptions
{
    int page = 0;
    /** JPEG: 1, 2, 4 or 8, decoded at that fraction of the size. */
    int jpegShrink = 1;
    /** PDF and SVG: drawn at this multiple of the size. */
    double drawingScale = 1;
};

/**
 * Opens image @p options.page of the file for one pass from top to bottom; pixels are decoded as they are pulled, and a
 * damaged or cut picture fails then. The samples are those of the file, with what is known of them: inForm() makes pixels of
 * them that can be worked with. Throws vips::VError.
 */
vips::VImage openImage(const PictureBytes &source, Content content, const LoadOptions &options = {});

/** The size a bitmap file or a Photoshop file claims, read without its decoder; empty for other content. */
QSize claimedSize(const PictureBytes &source, Content content);

} // namespace platform
