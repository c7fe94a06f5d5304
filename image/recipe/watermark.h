#pragma once

#include "image/recipe/render.h"

namespace image {

/**
 * The rendition with a text or picture laid over it. Text is filled in by @p fill; where nothing is left of it the picture stays as
 * it is. Its size counts from the picture at that point: the size of the font from its height, the width of a picture from its
 * width.
 */
platform::Result<platform::Bitmap> watermarked(const Rendition &rendition, const WatermarkOperation &mark,
                                               const FillText &fill);

} // namespace image
