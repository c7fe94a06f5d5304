#pragma once

#include "platform/graphics/bitmap.h"
#include "platform/imageio/source/image_source.h"

#include <QRect>

namespace image {

/** Image 0 of a file, upright, scaled to exactly @p size pixels. Fails if the picture cannot be read or made. */
platform::Result<platform::Bitmap> resized(const platform::ImageSource &source, QSize size,
                                           platform::Forms forms = platform::Forms::Plain);

/** Like resized(), then cropped to @p kept. Also fails if nothing of the picture is in @p kept. */
platform::Result<platform::Bitmap> resizedAndCut(const platform::ImageSource &source, QSize size, const QRect &kept,
                                                 platform::Forms forms = platform::Forms::Plain);

} // namespace image
