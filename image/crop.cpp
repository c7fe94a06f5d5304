#include "image/crop.h"

#include "platform/graphics/frame.h"

#include <algorithm>
#include <array>

namespace image {
namespace {

/** Sums and products in 32-bit arithmetic: overflow wraps. */
qint32 wrapped(qint64 value)
{
    return qint32(quint32(quint64(value)));
}

qint32 share(qint32 percentage, int side)
{
    constexpr qint32 all = 100;
    return wrapped(qint64(percentage) * side) / all;
}

QSize cropSize(const CropSettings &settings, QSize picture)
{
    switch (settings.kind) {
    case CropKind::Size:
        return settings.size;
    case CropKind::Percentage: {
        const qint32 kept = keptPercentage(settings.percentage);
        return {share(kept, picture.width()), share(kept, picture.height())};
    }
    case CropKind::Pixels:
        return {wrapped(qint64(picture.width()) - settings.pixels),
                wrapped(qint64(picture.height()) - settings.pixels)};
    }
    return {};
}

/**
 * Where the rectangle begins along one side when @p excess pixels are outside it: 0 at the start, 1 centred, 2 at the
 * end.
 */
qint32 placed(int place, qint32 excess)
{
    const std::array<qint32, 3> starts = {0, excess / 2, excess};
    return starts[size_t(place)];
}

qint32 verticalOrigin(int row, qint32 excess, qint32 offset, CropSpace space)
{
    constexpr int lastRow = 2;
    if (space == CropSpace::TopLeft)
        return wrapped(qint64(placed(row, excess)) + offset);
    return wrapped(qint64(placed(lastRow - row, excess)) - offset);
}

/** The widths of the line for pictures whose longer side is above @p longerThan. */
struct LineWidths
{
    int longerThan;
    float landscape;
    float other;
};

constexpr std::array<LineWidths, 7> lineWidths = {{
    {6000, 25, 12},
    {5000, 20, 10},
    {4000, 15, 7},
    {2000, 10, 5},
    {1000, 8, 4},
    {500, 6, 3},
    {-1, 3, 1.5F},
}};

} // namespace

CropKind cropKind(const QString &label)
{
    if (label == QLatin1String("W x H"))
        return CropKind::Size;
    return label == QLatin1String("%") ? CropKind::Percentage : CropKind::Pixels;
}

qint32 keptPercentage(qint32 cutAway)
{
    constexpr qint64 all = 100;
    return wrapped(all - cutAway);
}

CropRect cropRect(const CropSettings &settings, QSize picture, CropSpace space, const CropRect &previous)
{
    const QSize size = cropSize(settings, picture);
    CropRect rect = {previous.x, previous.y, size.width(), size.height()};
    constexpr int columns = 3;
    constexpr int places = 9;
    if (settings.position < 0 || settings.position >= places)
        return rect;
    const qint32 dx = wrapped(qint64(picture.width()) - rect.width);
    const qint32 dy = wrapped(qint64(picture.height()) - rect.height);
    rect.x = wrapped(qint64(placed(settings.position % columns, dx)) + settings.xOffset);
    rect.y = verticalOrigin(settings.position / columns, dy, settings.yOffset, space);
    return rect;
}

QRect visiblePart(const CropRect &rect, QSize picture)
{
    const auto clipped = [](qint64 value, int side) { return int(std::clamp<qint64>(value, 0, side)); };
    const int left = clipped(rect.x, picture.width());
    const int top = clipped(rect.y, picture.height());
    const int right = clipped(qint64(rect.x) + rect.width, picture.width());
    const int bottom = clipped(qint64(rect.y) + rect.height, picture.height());
    return right > left && bottom > top ? QRect(left, top, right - left, bottom - top) : QRect();
}

float frameLineWidth(QSize picture)
{
    const bool isLandscape = picture.width() > picture.height();
    const int longer = isLandscape ? picture.width() : picture.height();
    const auto *widths = std::find_if(lineWidths.begin(), lineWidths.end() - 1,
                                      [longer](const LineWidths &line) { return longer > line.longerThan; });
    return isLandscape ? widths->landscape : widths->other;
}

double frameDash(float lineWidth)
{
    if (lineWidth > 30)
        return 120;
    if (lineWidth > 20)
        return 90;
    return lineWidth > 10 ? 40 : 15;
}

CropBox CropBox::scaled(double scale) const
{
    return {QRectF(rect.topLeft() * scale, rect.size() * scale), lineWidth * scale, dash * scale};
}

CropBox cropBox(const CropRect &rect, QSize picture)
{
    const float lineWidth = frameLineWidth(picture);
    return {QRectF(rect.x, rect.y, rect.width, rect.height), double(lineWidth), frameDash(lineWidth)};
}

platform::Result<platform::Picture> drawCropBox(QSize canvas, const CropBox &box)
{
    const double left = box.rect.x();
    const double right = left + box.rect.width();
    const double bottom = canvas.height() - box.rect.y();
    const double top = bottom - box.rect.height();
    constexpr QRgb systemRed = 0xffff3b30;
    const platform::DashedLines frame = {{QLineF(left, bottom, left, top), QLineF(left, bottom, right, bottom),
                                          QLineF(right, bottom, right, top), QLineF(left, top, right, top)},
                                         box.lineWidth,
                                         box.dash,
                                         QColor::fromRgb(systemRed)};
    return platform::drawnLines(canvas, frame).map([canvas](const platform::Bitmap &bitmap) {
        return platform::Picture(bitmap, QSizeF(canvas));
    });
}

} // namespace image
