#include "platform/effects/attention.h"

#include "platform/graphics/pixels.h"

#include <QCoreApplication>

namespace platform {

Result<QRect> attentionPart(const Bitmap &bitmap, QSize size)
{
    const QSize kept = size.boundedTo(bitmap.size());
    if (bitmap.isNull() || kept.isEmpty())
        return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to draw"));
    if (kept == bitmap.size())
        return QRect(QPoint(0, 0), kept);
    try {
        initVips();
        const vips::VImage seen = with8Bits(convertedToSrgb(inForm(bitmap.pixels().image())));
        const vips::VImage part = seen.smartcrop(
            kept.width(), kept.height(), vips::VImage::option()->set("interesting", VIPS_INTERESTING_ATTENTION));
        // A part of an image remembers the origin of the whole.
        return QRect(QPoint(-part.xoffset(), -part.yoffset()), kept);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
