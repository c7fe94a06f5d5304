#include "platform/imageio/bytes/picture_bytes.h"

#include "platform/file/regular_file.h"

#include <QBuffer>
#include <QFile>

#include <vips/vips8>

namespace platform {

std::unique_ptr<QIODevice> PictureBytes::device() const
{
    std::unique_ptr<QIODevice> result;
    if (path.isEmpty()) {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(bytes);
        result = std::move(buffer);
    } else {
        auto file = std::make_unique<NamedFile>(path);
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
    const std::unique_ptr<QIODevice> opened = openedDevice();
    QByteArray everything = opened->readAll();
    demandRead(*opened);
    return everything;
}

std::unique_ptr<QIODevice> PictureBytes::openedDevice() const
{
    std::unique_ptr<QIODevice> opened = device();
    if (!opened)
        throw vips::VError("it cannot be opened");
    return opened;
}

void demandRead(const QIODevice &device)
{
    if (const QString problem = readProblemOf(device); !problem.isEmpty())
        throw vips::VError(problem.toStdString());
}

} // namespace platform
