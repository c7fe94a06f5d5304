#include "platform/graphics/picture.h"

#include "platform/imageio/image_source.h"

namespace platform {

Picture Picture::fromFile(const QString &path)
{
    const Result<ImageSource> source = ImageSource::open(path);
    if (!source)
        return {};
    const Result<Bitmap> bitmap = source->decode();
    return bitmap ? Picture(*bitmap) : Picture();
}

} // namespace platform
