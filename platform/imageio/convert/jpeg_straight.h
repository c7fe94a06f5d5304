#pragma once

#include "platform/imageio/source/image_source.h"

namespace platform {

/**
 * Writes image 0 of @p source into a bitmap file as ImageSource::decode() and writeImageFile() would, including the
 * resolution, at half the cost and with no more than some rows in memory.
 *
 * @return false if this way is not possible and nothing was written: for all except upright JPEGs of grey or sRGB about
 *         which the decoder has nothing to report
 *
 * Atomic. Fails with WriteFailed.
 */
Result<bool> writeRowsAsBmp(const ImageSource &source, const QString &path);

/**
 * Writes image 0 as stored into a TIFF file in the same way, first without metadata and then again with
 * @p metadata; if only the second step fails, the first result remains. Both are atomic.
 *
 * @return false if this way is not possible and nothing was written: for all except JPEGs of grey or three colours
 */
Result<bool> writeRowsAsTiff(const ImageSource &source, const QString &path, const Metadata &metadata);

} // namespace platform
