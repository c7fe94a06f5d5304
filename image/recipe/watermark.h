#pragma once

#include "image/recipe/render.h"

namespace image {

/**
 * The rendition with a text or picture over it. Text is filled in by @p fill; if it becomes empty, the picture stays as
 * it is. Sizes are relative to the picture at that point: the size of the font to its height, the width of a picture to
 * its width.
 */
platform::Result<platform::Bitmap> watermarked(const Rendition &rendition, const WatermarkOperation &mark,
                                               const FillText &fill);

/** Fails as watermarked() would on a picture of @p size, if the text or picture is too large to be made. */
platform::Result<void> canWatermark(QSize size, const WatermarkOperation &mark, const FillText &fill);

} // namespace image
