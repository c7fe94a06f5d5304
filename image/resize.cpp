#include "image/resize.h"

#include "platform/graphics/resample.h"

namespace image {

platform::Result<platform::Bitmap> resized(const platform::ImageSource &source, QSize size)
{
    return source.decodeScaled(size);
}

platform::Result<platform::Bitmap> resizedAndCut(const platform::ImageSource &source, QSize size, const QRect &kept)
{
    return resized(source, size).map([&kept](const platform::Bitmap &drawn) { return platform::cut(drawn, kept); });
}

} // namespace image
