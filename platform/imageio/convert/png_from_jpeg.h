#pragma once

#include "platform/graphics/compose.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include <QSizeF>

namespace platform {

/**
 * The stored image 0 as the PNG file that decode() and encodeImage() would make of it, with its resolution and without
 * other metadata. Nothing for files that are not JPEGs of grey or three colours.
 */
std::optional<QByteArray> rowsAsPng(const ImageSource &source);

/** A PNG file made of a JPEG, and what the JPEG says that is not in it. */
struct ShapedPng
{
    QByteArray file;
    QSizeF dotsPerInch; ///< 0 if none are stated
    QByteArray iccProfile;
    std::optional<JpegQuantisation> quantisation;

    /** The pixels of the file, as shapedBy() would have made them; a null bitmap if memory fails. */
    Bitmap bitmap() const;
};

/**
 * Image 0 as it shows through a shape, transparent around it: the file that decode(), shapedBy() and encodeImage() would
 * make, with no more than its compressed and uncompressed rows in memory.
 *
 * @return none if this way is not possible: for all except upright JPEGs of grey or three colours about which the
 *         decoder has nothing to report, for shapes that cover everything, and if memory is short
 */
std::optional<ShapedPng> rowsAsShapedPng(const ImageSource &source, const RoundedRect &shape,
                                         const EncodeOptions &options);

} // namespace platform
