#pragma once

// Private to the platform: one decoder per kind of content. openImage() in codecs.h calls the right one.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/picture_bytes.h"

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

// These throw vips::VError. Pixels are decoded as they are pulled, in one pass from top to bottom.

vips::VImage loadJpeg(const PictureBytes &source, const LoadOptions &options);
vips::VImage loadPng(const PictureBytes &source, const LoadOptions &);
vips::VImage loadTiff(const PictureBytes &source, const LoadOptions &options);
vips::VImage loadGif(const PictureBytes &source, const LoadOptions &options);
vips::VImage loadBmp(const PictureBytes &source, const LoadOptions &);
vips::VImage loadWebp(const PictureBytes &source, const LoadOptions &options);
/** HEIF and AVIF. The file says which of its items is the main picture; the others follow it, in their order. */
vips::VImage loadHeif(const PictureBytes &source, const LoadOptions &options);
vips::VImage loadJpegXl(const PictureBytes &source, const LoadOptions &);
vips::VImage loadPhotoshop(const PictureBytes &source, const LoadOptions &);
vips::VImage loadPdf(const PictureBytes &source, const LoadOptions &options);
/** A short text can demand any amount of work, and nothing can stop the library once it draws: too much is refused. */
vips::VImage loadSvg(const PictureBytes &source, const LoadOptions &options);

/**
 * The size that the header of a Photoshop file claims; empty if it is truncated or not a size that the format allows.
 */
QSize claimedPhotoshopSize(QIODevice &file);

} // namespace platform
