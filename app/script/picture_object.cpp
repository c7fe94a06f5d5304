#include "app/script/picture_object.h"

#include "platform/imageio/image_destination.h"

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
    return !m_picture.isNull() && !path.isEmpty() &&
           platform::writeImageFile(path, m_picture.bitmap(), platform::FileFormat::Png).has_value();
}

platform::BitmapHandle PictureObject::bitmap() const
{
    return m_picture.isNull() ? platform::BitmapHandle() : platform::BitmapHandle(m_picture.bitmap());
}

void PictureObject::release()
{
    m_picture = platform::Picture();
}

} // namespace script
