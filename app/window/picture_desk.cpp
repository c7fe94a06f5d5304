#include "app/window/picture_desk.h"

#include "image/overlay.h"
#include "platform/foundation/memory_left.h"
#include "platform/foundation/type_identifiers.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/picture.h"

namespace window {

QString PictureDesk::layOnPattern(const QString &path, const QString &pattern, const QString &target) const
{
    const platform::Picture picture = platform::Picture::fromFile(path);
    if (picture.isNull())
        return tr("not a readable picture");
    const platform::Picture tile = platform::Picture::fromFile(pattern);
    if (tile.isNull())
        return tr("the pattern cannot be read");
    const auto format = platform::fileFormatForType(platform::typeIdentifierForPath(target));
    if (!format)
        return tr("this type cannot be written");
    const auto laid = image::laidOnPattern(picture.bitmap(), tile.bitmap());
    if (!laid)
        return laid.error().message;
    platform::EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    const auto written = platform::writeImageFile(target, *laid, *format, options);
    return written ? QString() : written.error().message;
}

QString PictureDesk::takeMemoryRefusal() const
{
    return platform::takeMemoryRefusal();
}

} // namespace window
