#include "image/recipe/render.h"

#include "image/recipe/watermark.h"
#include "image/turn.h"
#include "platform/effects/attention.h"
#include "platform/effects/canvas.h"
#include "platform/effects/colour_space.h"
#include "platform/effects/sharpen.h"
#include "platform/effects/stamp.h"
#include "platform/graphics/compose.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/source/image_source.h"

#include <algorithm>
#include <cmath>

namespace image {
namespace {

using platform::Bitmap;
using platform::Result;

int scaledSide(double side, double scale)
{
    return std::max(1, int(std::lround(side * scale)));
}

QSize scaledSize(QSize size, const Rendition &rendition)
{
    return {scaledSide(size.width(), rendition.across()), scaledSide(size.height(), rendition.down())};
}

QPoint scaledPoint(QPoint point, const Rendition &rendition)
{
    return {int(std::lround(point.x() * rendition.across())), int(std::lround(point.y() * rendition.down()))};
}

Result<Bitmap> turnedBy(Bitmap bitmap, const RightTurn &turn)
{
    Result<Bitmap> result = std::move(bitmap);
    for (const platform::ExactTurn step : turn.steps())
        result = result.and_then([step](const Bitmap &before) { return platform::turned(before, step); });
    return result;
}

/** The size on a rendition of a part that is @p size at full size. */
QSize keptSize(QSize size, const Rendition &from)
{
    return scaledSize(size, from).boundedTo(from.bitmap.size());
}

/** A part of @p size, whose position at full size @p from knows. */
Result<Bitmap> cutFrom(const Rendition &from, QPoint corner, QSize size, Place place)
{
    const QSize kept = keptSize(size, from);
    if (place == Place::Attention)
        return platform::attentionPart(from.bitmap, kept).map([&](const QRect &part) {
            return platform::cut(from.bitmap, part);
        });
    QPoint at = scaledPoint(corner, from);
    at.setX(std::clamp(at.x(), 0, from.bitmap.width() - kept.width()));
    at.setY(std::clamp(at.y(), 0, from.bitmap.height() - kept.height()));
    return platform::cut(from.bitmap, QRect(at, kept));
}

/** One operation on a rendition; the resulting stage is known. */
class Doing
{
public:
    Doing(const Rendition &before, const FillText &fill) : m_before(before), m_fill(fill) {}

    Result<Bitmap> operator()(const ResizeOperation &resize) const
    {
        const Fitting fitting = fittingOf(resize, m_before.stage);
        // A rendition smaller than the result stays as it is: what is shown of it needs no more.
        const bool isFull = m_before.bitmap.size() == m_before.stage.size;
        const double share = isFull ? 1 : std::min(1.0, std::max(m_before.across(), m_before.down()));
        const QSize wanted(scaledSide(fitting.scaled.width(), share), scaledSide(fitting.scaled.height(), share));
        const Result<Bitmap> scaled = wanted == m_before.bitmap.size() ? Result<Bitmap>(m_before.bitmap)
                                                                       : platform::resample(m_before.bitmap, wanted);
        return scaled.and_then([&](const Bitmap &bitmap) { return fitted(bitmap, resize, fitting); });
    }

    /** Crops what was scaled, or puts it on its canvas. */
    Result<Bitmap> fitted(const Bitmap &bitmap, const ResizeOperation &resize, const Fitting &fitting) const
    {
        Rendition scaled = {bitmap, m_before.stage};
        scaled.stage.size = fitting.scaled;
        Result<Bitmap> cut =
            fitting.cut == fitting.scaled
                ? Result<Bitmap>(bitmap)
                : cutFrom(scaled, placeOf(resize.position, fitting.cut, fitting.scaled), fitting.cut, resize.position);
        if (!cut || fitting.canvas == fitting.cut)
            return cut;
        return padded({*cut, scaled.stage}, resize, fitting);
    }

    Result<Bitmap> operator()(const CropOperation &crop) const
    {
        const QRect part = cropPartOf(crop, m_before.stage);
        return cutFrom(m_before, part.topLeft(), part.size(), crop.position);
    }

    Result<Bitmap> operator()(const TurnOperation &turn) const
    {
        const platform::FreeTurn free = freeTurnFor(turn, m_before.bitmap.size());
        return platform::turned(m_before.bitmap, free).and_then([&](const Bitmap &bitmap) {
            return turn.color ? withCorners(bitmap, free, *turn.color) : Result<Bitmap>(bitmap);
        });
    }

    Result<Bitmap> operator()(const FlipOperation &flip) const { return flipped(m_before.bitmap, flip.direction); }

    Result<Bitmap> operator()(const RoundOperation &round) const;

    Result<Bitmap> operator()(const BackgroundOperation &background) const
    {
        if (!background.pattern.isNamed())
            return laidOnAnyColor(m_before.bitmap, background.color);
        return background.pattern.source.decode()
            .and_then([this](const Bitmap &tile) {
                const QSize size = scaledSize(tile.size(), m_before);
                return size == tile.size() ? Result<Bitmap>(tile) : platform::resample(tile, size);
            })
            .and_then([this](const Bitmap &tile) { return platform::laidOn(m_before.bitmap, tile); });
    }

    Result<Bitmap> operator()(const FrameOperation &frame) const
    {
        const Stage &stage = m_before.stage;
        const auto width = [&frame](double dpi, double scale) {
            return int(std::lround(std::lround(inPixelsOf(frame.width, frame.scale, dpi)) * scale));
        };
        const QPoint corner(width(stage.horizontalDpi, m_before.across()), width(stage.verticalDpi, m_before.down()));
        const QSize canvas = m_before.bitmap.size() + QSize(2 * corner.x(), 2 * corner.y());
        return platform::onCanvas(m_before.bitmap, corner, canvas, frame.color);
    }

    Result<Bitmap> operator()(const WatermarkOperation &mark) const { return watermarked(m_before, mark, m_fill); }

    Result<Bitmap> operator()(const SharpenOperation &sharpen) const
    {
        return platform::sharpened(m_before.bitmap, sharpeningFor(sharpen.amount));
    }

    Result<Bitmap> operator()(const ProfileOperation &profile) const
    {
        return platform::convertedTo(m_before.bitmap, profile.profile);
    }

private:
    static platform::Sharpening sharpeningFor(SharpenAmount amount)
    {
        switch (amount) {
        case SharpenAmount::Low:
            return {0.4, 6};
        case SharpenAmount::Standard:
            return {0.8, 11};
        case SharpenAmount::High:
            return {1.6, 24};
        }
        Q_UNREACHABLE();
    }

    /** A colour that may itself be transparent. */
    static Result<Bitmap> laidOnAnyColor(const Bitmap &bitmap, const QColor &color)
    {
        if (color.alpha() == 255)
            return platform::laidOn(bitmap, color);
        QImage dot(1, 1, QImage::Format_RGBA8888);
        dot.fill(color);
        return platform::laidOn(bitmap, Bitmap::fromImage(dot));
    }

    /** Colours what a rotation has added, but nothing that was transparent before. */
    Result<Bitmap> withCorners(const Bitmap &turned, const platform::FreeTurn &turn, const QColor &color) const
    {
        if (!m_before.bitmap.hasAlpha())
            return laidOnAnyColor(turned, color);
        QImage full(m_before.bitmap.width(), m_before.bitmap.height(), QImage::Format_RGB32);
        full.fill(Qt::white);
        return platform::turned(Bitmap::fromImage(full), turn).and_then([&](const Bitmap &covered) {
            QImage corners = covered.toRawImage().convertToFormat(QImage::Format_ARGB32);
            for (int y = 0; y < corners.height(); ++y)
                for (int x = 0; x < corners.width(); ++x) {
                    const int alpha = color.alpha() * (255 - qAlpha(corners.pixel(x, y))) / 255;
                    corners.setPixel(x, y, qRgba(color.red(), color.green(), color.blue(), alpha));
                }
            return platform::stamped(turned, {Bitmap::fromImage(corners), {QPoint(0, 0)}, 1});
        });
    }

    static Result<Bitmap> padded(const Rendition &scaled, const ResizeOperation &resize, const Fitting &fitting)
    {
        const QSize canvas = scaledSize(fitting.canvas, scaled).expandedTo(scaled.bitmap.size());
        return platform::onCanvas(scaled.bitmap, placeOf(resize.position, scaled.bitmap.size(), canvas), canvas,
                                  resize.color);
    }

    const Rendition &m_before;
    FillText m_fill;
};

/** The shape inside a margin; radii shrink with it, so that both edges are parallel. */
platform::RoundedRect shapeInside(RoundShape shape, double radius, QSizeF size, double margin)
{
    platform::RoundedRect rect;
    rect.rect = QRectF(QPointF(0, 0), size).adjusted(margin, margin, -margin, -margin);
    const bool isRound = shape != RoundShape::Rectangle;
    rect.xRadius = std::max(0.0, isRound ? rect.rect.width() / 2 : radius - margin);
    rect.yRadius = std::max(0.0, isRound ? rect.rect.height() / 2 : radius - margin);
    return rect;
}

Result<Bitmap> Doing::operator()(const RoundOperation &round) const
{
    const Bitmap &bitmap = m_before.bitmap;
    const double scale = std::min(m_before.across(), m_before.down());
    const double dpi = m_before.stage.horizontalDpi;
    const double radius = inPixelsOf(round.radius, round.scale, dpi) * scale;
    QSize size = bitmap.size();
    if (round.shape == RoundShape::Circle)
        size = QSize(std::min(size.width(), size.height()), std::min(size.width(), size.height()));
    const QRect part(placeOf(Place::Center, size, bitmap.size()), size);
    Result<Bitmap> result = bitmap;
    QRect left = part;
    if (round.band && round.band->width > 0) {
        const double width = inPixelsOf(round.band->width, round.scale, dpi) * scale;
        result = platform::shapedBy(bitmap, part, shapeInside(round.shape, radius, size, width), round.band->color);
        left = QRect(QPoint(0, 0), size);
    }
    const bool isFilled = round.color && round.color->alpha() == 255;
    return result
        .and_then([&](const Bitmap &banded) {
            return platform::shapedBy(banded, left, shapeInside(round.shape, radius, size, 0),
                                      isFilled ? round.color : std::nullopt);
        })
        .and_then([&](const Bitmap &shaped) {
            return round.color && !isFilled ? laidOnAnyColor(shaped, *round.color) : Result<Bitmap>(shaped);
        });
}

/** Right-angled turns are deferred until something needs the pixels. */
class Rendering
{
public:
    Rendering(const Rendition &start, const FillText &fill) : m_now(start), m_fill(fill) {}

    Result<void> take(const Operation &operation)
    {
        const Result<Change> change = changeOf(operation, m_now.stage);
        if (!change)
            return tl::unexpected<platform::Error>(change.error());
        if (change->effect == Effect::None)
            return {};
        if (change->effect == Effect::RightTurn) {
            m_turn = m_turn.then(change->turn);
            m_now.stage = change->after;
            return {};
        }
        if (const Result<void> turned = settleTurn(); !turned)
            return turned;
        return std::visit(Doing(m_now, m_fill), operation).map([&](const Bitmap &bitmap) {
            m_now = {bitmap.withDpi(change->after.horizontalDpi, change->after.verticalDpi), change->after};
        });
    }

    Result<Rendition> finish()
    {
        return settleTurn().map([this] { return m_now; });
    }

private:
    Result<void> settleTurn()
    {
        const RightTurn turn = std::exchange(m_turn, RightTurn());
        if (turn.isNothing())
            return {};
        return turnedBy(m_now.bitmap, turn).map([this](const Bitmap &bitmap) { m_now.bitmap = bitmap; });
    }

    Rendition m_now;
    const FillText &m_fill;
    RightTurn m_turn;
};

} // namespace

std::optional<platform::RoundedRect> onlyShapeOf(const RoundOperation &round, QSize size)
{
    const bool isInPixels = round.scale.unit == RecipeUnit::Pixel && !round.scale.dpi;
    if (round.shape == RoundShape::Circle || round.color || round.band || !isInPixels)
        return std::nullopt;
    return shapeInside(round.shape, round.radius, size, 0);
}

Stage stageOf(const Bitmap &bitmap)
{
    Stage stage;
    stage.size = bitmap.size();
    stage.horizontalDpi = bitmap.horizontalDpi();
    stage.verticalDpi = bitmap.verticalDpi();
    stage.hasAlpha = bitmap.hasAlpha();
    stage.profile = bitmap.iccProfile();
    stage.isGray = bitmap.colorModel() == platform::ColorModel::Gray;
    stage.bits = bitmap.bitsPerComponent();
    return stage;
}

Result<Rendition> fittedInto(const Bitmap &scaled, const ResizeOperation &resize, const Stage &before)
{
    const Result<Change> change = changeOf(resize, before);
    if (!change)
        return tl::unexpected<platform::Error>(change.error());
    const Rendition known = {scaled, before};
    return Doing(known, {}).fitted(scaled, resize, fittingOf(resize, before)).map([&](const Bitmap &bitmap) {
        return Rendition{bitmap.withDpi(change->after.horizontalDpi, change->after.verticalDpi), change->after};
    });
}

Result<Rendition> rendered(const QList<RecipeStep> &steps, const Rendition &start, const FillText &fill)
{
    Rendering rendering(start, fill);
    for (const RecipeStep &step : steps) {
        if (step.isOff)
            continue;
        if (const Result<void> done = rendering.take(step.operation); !done)
            return tl::unexpected<platform::Error>(done.error());
    }
    return rendering.finish();
}

std::optional<QRect> foundPart(const QList<RecipeStep> &steps, const Rendition &start)
{
    const auto first = std::find_if(steps.begin(), steps.end(), [](const RecipeStep &step) { return !step.isOff; });
    const auto *crop = first == steps.end() ? nullptr : std::get_if<CropOperation>(&first->operation);
    if (!crop || crop->position != Place::Attention)
        return std::nullopt;
    const QSize size = cropPartOf(*crop, start.stage).size();
    const Result<QRect> part = platform::attentionPart(start.bitmap, keptSize(size, start));
    if (!part)
        return std::nullopt;
    const auto full = [](int length, double scale) { return int(std::lround(length / scale)); };
    const QSize room = start.stage.size - size;
    return QRect(QPoint(std::min(full(part->x(), start.across()), room.width()),
                        std::min(full(part->y(), start.down()), room.height())),
                 size);
}

} // namespace image
