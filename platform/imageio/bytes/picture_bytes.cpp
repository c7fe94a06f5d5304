#include "platform/imageio/bytes/picture_bytes.h"

#include "platform/file/regular_file.h"

#include <QBuffer>
#include <QFile>

namespace platform {

std::unique_ptr<QIODevice> PictureBytes::device() const
{
    std::unique_ptr<QIODevice> result;
    if (path.isEmpty()) {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(bytes);
        result = std::move(buffer);
    } else {
        auto file = std::make_unique<QFile>(path);
        if (!openToRead(*file))
            return nullptr;
        return file;
    }
    if (!result->open(QIODevice::ReadOnly))
        result.reset();
    return result;
}

QByteArray PictureBytes::all() const
{
    const std::unique_ptr<QIODevice> opened = device();
    return opened ? opened->readAll() : QByteArray();
}

} // namespace platform
