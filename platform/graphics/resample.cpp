#include "platform/graphics/resample.h"

#include "platform/graphics/pixels.h"
#include "platform/planes/plane_colours.h"

#include <QCoreApplication>

#include <algorithm>
#include <unistd.h>

namespace platform {
namespace {

/** The limit for one bitmap: 2 GiB, or half of the memory of a smaller machine. */
qint64 memoryBudgetBytes()
{
    static const qint64 budget = [] {
        constexpr qint64 most = qint64(2) << 30;
        const qint64 physical = qint64(::sysconf(_SC_PHYS_PAGES)) * ::sysconf(_SC_PAGE_SIZE);
        return physical > 0 ? std::min(most, physical / 2) : most;
    }();
    return budget;
}

tl::unexpected<Error> impossible(QSize size)
{
    return failure(ErrorCode::TooLarge,
                   QCoreApplication::translate("platform", "A picture of %1 × %2 pixels cannot be made")
                       .arg(size.width())
                       .arg(size.height()));
}

/** RGB in a transparent canvas, all of it; null if there is no memory for it. */
QImage placedRows(const QImage &rgb, QPoint corner, QSize size)
{
    QImage canvas(size, QImage::Format_RGBA8888);
    canvas.fill(Qt::transparent);
    constexpr int bands = 4;
    for (int y = 0; y < rgb.height() && !canvas.isNull(); ++y)
        addAlpha(rgb.constScanLine(y), canvas.scanLine(corner.y() + y) + ptrdiff_t(bands) * corner.x(), rgb.width());
    return canvas;
}

} // namespace

bool fitsMemoryBudget(qint64 width, qint64 height, int bands, int bytesPerComponent)
{
    constexpr qint64 longestSide = 10'000'000;
    if (width < 1 || height < 1 || width > longestSide || height > longestSide)
        return false;
    return width * height <= memoryBudgetBytes() / (qint64(bands) * bytesPerComponent);
}

Result<Bitmap> resample(const Bitmap &bitmap, QSize size)
{
    if (bitmap.isNull())
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "There is no picture to scale"));
    const Bitmap::Pixels &pixels = bitmap.pixels();
    if (!fitsMemoryBudget(size.width(), size.height(), bitmap.bandCount(), pixels.bytesPerComponent()))
        return impossible(size);
    try {
        return bitmapFromImage(scaledTo(pixels.image(), size), pixels.resolution, pixels.quantisation);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

Result<Bitmap> resampleRoughly(const Bitmap &bitmap, QSize size)
{
    if (bitmap.isNull() || size.isEmpty())
        return resample(bitmap, size);
    const int across = std::max(1, bitmap.width() / size.width());
    const int down = std::max(1, bitmap.height() / size.height());
    try {
        const Bitmap::Pixels &pixels = bitmap.pixels();
        const vips::VImage fewer = pixels.image().subsample(across, down);
        return resample(bitmapFromImage(fewer, pixels.resolution, pixels.quantisation), size);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

Result<Bitmap> transparent(QSize size)
{
    constexpr int bands = 4;
    if (!fitsMemoryBudget(size.width(), size.height(), bands, 1))
        return impossible(size);
    try {
        initVips();
        const vips::VImage clear =
            vips::VImage::black(size.width(), size.height(), vips::VImage::option()->set("bands", bands));
        return bitmapFromImage(clear.copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB)));
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

Result<Bitmap> placed(const Bitmap &bitmap, QPoint place, QSize size)
{
    const QRect canvas(QPoint(0, 0), size);
    const Bitmap part = cut(bitmap, canvas.translated(-place));
    if (part.isNull())
        return transparent(size);
    if (part.size() == size)
        return part;
    const Bitmap::Pixels &pixels = part.pixels();
    if (!fitsMemoryBudget(size.width(), size.height(), part.bandCount() + 1, pixels.bytesPerComponent()))
        return impossible(size);
    const QPoint corner(std::max(0, place.x()), std::max(0, place.y()));
    if (pixels.rows().format() == QImage::Format_RGB888) {
        const QImage rows = placedRows(pixels.rows(), corner, size);
        if (rows.isNull())
            return impossible(size);
        return Bitmap(
            std::make_shared<const Bitmap::Pixels>(rows, pixels.profile(), pixels.resolution, pixels.quantisation));
    }
    try {
        const vips::VImage plain = inForm(pixels.image());
        const vips::VImage layer = hasTransparency(plain) ? plain : plain.bandjoin_const({opaqueValue(plain)});
        return bitmapFromImage(layer.embed(corner.x(), corner.y(), size.width(), size.height()), pixels.resolution,
                               pixels.quantisation);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

Bitmap cut(const Bitmap &bitmap, const QRect &rect)
{
    const QRect kept = rect.intersected(QRect(QPoint(0, 0), bitmap.size()));
    if (bitmap.isNull() || kept.isEmpty())
        return {};
    if (kept.size() == bitmap.size())
        return bitmap;
    try {
        const Bitmap::Pixels &pixels = bitmap.pixels();
        return bitmapFromImage(pixels.image().extract_area(kept.x(), kept.y(), kept.width(), kept.height()),
                               pixels.resolution, pixels.quantisation);
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return {};
    }
}

} // namespace platform
