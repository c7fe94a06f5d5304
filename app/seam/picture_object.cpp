#include "app/seam/picture_object.h"

#include "platform/imageio/encode/image_destination.h"

namespace script {

platform::Picture PictureObject::open(const QString &path) const
{
    return path.isNull() ? platform::Picture() : platform::Picture::fromFile(path);
}

QVariantList PictureObject::pixel(int x, int y) const
{
    QVariantList components;
    for (const int component : m_picture.bitmap().pixel(x, y))
        components.append(component);
    return components;
}

bool PictureObject::save(const QString &path) const
{
    return !path.isEmpty() && !m_picture.bitmap().isNull() &&
           platform::writeImageFile(path, m_picture.bitmap(), platform::FileFormat::Png).has_value();
}

platform::BitmapHandle PictureObject::bitmap() const
{
    const platform::Bitmap pixels = m_picture.bitmap();
    return pixels.isNull() ? platform::BitmapHandle() : platform::BitmapHandle(pixels);
}

void PictureObject::release()
{
    m_picture = platform::Picture();
}

} // namespace script
