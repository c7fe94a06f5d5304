#include "image/resize.h"

#include "platform/graphics/resample.h"

namespace image {

platform::Result<platform::Bitmap> resized(const platform::ImageSource &source, QSize size, platform::Forms forms)
{
    return source.decodeScaled(size, forms);
}

platform::Result<platform::Bitmap> resizedAndCut(const platform::ImageSource &source, QSize size, const QRect &kept,
                                                 platform::Forms forms)
{
    return resized(source, size, forms).map([&kept](const platform::Bitmap &drawn) {
        return platform::cut(drawn, kept);
    });
}

} // namespace image
