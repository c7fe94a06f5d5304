#pragma once

#include "platform/imageio/source/image_source.h"

namespace platform {

/**
 * Writes image 0 of @p source into a bitmap file as ImageSource::decode() and writeImageFile() would, the
 * resolution included, at half the cost and with no more than some rows in memory.
 *
 * @return false where it does not go that way and nothing was written: for all but upright JPEGs of grey or sRGB, and for
 *         such as the decoder has anything to say about
 *
 * Atomic. Fails with WriteFailed.
 */
Result<bool> writeRowsAsBmp(const ImageSource &source, const QString &path);

/**
 * Writes image 0 as stored into a TIFF file in the same way, first without metadata and then, replacing that, with
 * @p metadata; where only the second fails, the first is left. Both are atomic.
 *
 * @return false where it does not go that way and nothing was written: for all but JPEGs of grey or three colours
 */
Result<bool> writeRowsAsTiff(const ImageSource &source, const QString &path, const Metadata &metadata);

} // namespace platform
