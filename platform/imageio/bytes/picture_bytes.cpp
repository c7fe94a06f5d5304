#include "platform/imageio/bytes/picture_bytes.h"

#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"

#include <QBuffer>

#include <vips/vips8>

namespace platform {

std::unique_ptr<QIODevice> PictureBytes::device() const
{
    if (lent)
        return std::make_unique<LentReader>(lent);
    if (!path.isEmpty())
        return openedFile();
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    return buffer->open(QIODevice::ReadOnly) ? std::move(buffer) : nullptr;
}

std::unique_ptr<QFile> PictureBytes::openedFile() const
{
    auto file = std::make_unique<NamedFile>(path);
    const bool isOpen =
        lent ? file->open(lent->descriptor(), QIODevice::ReadOnly) : !path.isEmpty() && openToRead(*file).has_value();
    return isOpen ? std::move(file) : nullptr;
}

qint64 PictureBytes::fileBytes() const
{
    if (lent)
        return lent->size();
    return path.isEmpty() ? 0 : regularFile(path).value_or(RegularFile()).bytes;
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
