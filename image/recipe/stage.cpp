#include "image/recipe/stage.h"
#include "image/recipe/sentence.h"

#include "image/turn.h"
#include "platform/effects/colour_space.h"
#include "platform/graphics/resample.h"

#include <algorithm>
#include <cmath>

namespace image {
namespace {

using platform::Result;

constexpr double hundred = 100;

tl::unexpected<platform::Error> refused(platform::ErrorCode code, const char *english)
{
    return platform::failure(code, sentence(english));
}

int wholeSide(double side)
{
    constexpr double most = 1 << 30;
    return int(std::clamp(side, 1.0, most));
}

/** As in resize operations, fractions are truncated. */
QSize byWidth(QSize size, int width)
{
    const double factor = width * hundred / size.width();
    return {wholeSide(width), wholeSide(factor * size.height() / hundred)};
}

QSize byHeight(QSize size, int height)
{
    const double factor = height * hundred / size.height();
    return {wholeSide(factor * size.width() / hundred), wholeSide(height)};
}

QSize byPercent(QSize size, double percent)
{
    return {wholeSide(size.width() * percent / hundred), wholeSide(size.height() * percent / hundred)};
}

QSize byMegapixels(QSize size, double megapixels)
{
    constexpr double million = 1e6;
    const double factor = std::sqrt(megapixels * million / (double(size.width()) * size.height()));
    return {wholeSide(size.width() * factor), wholeSide(size.height() * factor)};
}

int sideOf(double length, const Scale &scale, double dpi)
{
    return std::max(1, int(std::lround(inPixelsOf(length, scale, dpi))));
}

QSize insideBox(QSize size, QSize box)
{
    const bool isWider = qint64(size.width()) * box.height() > qint64(size.height()) * box.width();
    return (isWider ? byWidth(size, box.width()) : byHeight(size, box.height())).boundedTo(box);
}

QSize coveringBox(QSize size, QSize box)
{
    const bool isWider = qint64(size.width()) * box.height() > qint64(size.height()) * box.width();
    return (isWider ? byHeight(size, box.height()) : byWidth(size, box.width())).expandedTo(box);
}

bool isWithin(QSize size, QSize box)
{
    return size.width() <= box.width() && size.height() <= box.height();
}

Fitting boxFitting(const ResizeOperation &resize, QSize size, QSize box)
{
    const QSize inside = isWithin(size, box) && !resize.enlarges ? size : insideBox(size, box);
    const bool covers = size.width() >= box.width() && size.height() >= box.height();
    const QSize covering = covers || resize.enlarges ? coveringBox(size, box) : size;
    const QSize cut = covering.boundedTo(box);
    switch (resize.fit) {
    case BoxFit::Inside:
        return {inside, inside, inside};
    case BoxFit::Fill:
        return {covering, cut, cut};
    case BoxFit::Stretch: {
        const QSize stretched = resize.enlarges ? box : box.boundedTo(size);
        return {stretched, stretched, stretched};
    }
    case BoxFit::Pad:
        return {inside, inside, box};
    }
    Q_UNREACHABLE();
}

QSize scaledByNumber(const ResizeOperation &resize, const Stage &stage)
{
    const QSize size = stage.size;
    const bool isWide = size.width() > size.height();
    switch (resize.by) {
    case ResizeBy::Width:
        return byWidth(size, sideOf(resize.number, resize.scale, stage.horizontalDpi));
    case ResizeBy::Height:
        return byHeight(size, sideOf(resize.number, resize.scale, stage.verticalDpi));
    case ResizeBy::Longest:
        return isWide ? byWidth(size, sideOf(resize.number, resize.scale, stage.horizontalDpi))
                      : byHeight(size, sideOf(resize.number, resize.scale, stage.verticalDpi));
    case ResizeBy::Shortest:
        return isWide ? byHeight(size, sideOf(resize.number, resize.scale, stage.verticalDpi))
                      : byWidth(size, sideOf(resize.number, resize.scale, stage.horizontalDpi));
    case ResizeBy::Percent:
        return byPercent(size, resize.number);
    case ResizeBy::Megapixels:
        return byMegapixels(size, resize.number);
    case ResizeBy::Box:
        break;
    }
    return size;
}

/** The resolution that an operation in centimetres gives the picture. */
Stage withDpiOf(const Scale &scale, Stage stage)
{
    if (scale.dpi) {
        stage.horizontalDpi = *scale.dpi;
        stage.verticalDpi = *scale.dpi;
    }
    return stage;
}

bool hasSameDpi(const Stage &one, const Stage &other)
{
    return one.horizontalDpi == other.horizontalDpi && one.verticalDpi == other.verticalDpi;
}

bool isOpaque(const QColor &color)
{
    return color.alpha() == 255;
}

/** RGB where a grey picture meets a colour that is not grey. */
bool staysGray(const Stage &stage, const QColor &color)
{
    return stage.isGray && color.red() == color.green() && color.green() == color.blue();
}

Result<Change> made(Effect effect, const Stage &after)
{
    constexpr int rgba = 4;
    if (!platform::fitsMemoryBudget(after.size.width(), after.size.height(), rgba, 1))
        return platform::failure(platform::ErrorCode::TooLarge,
                                 sentence(QT_TRANSLATE_NOOP("recipe", "A picture of %1 × %2 pixels cannot be made"))
                                     .arg(after.size.width())
                                     .arg(after.size.height()));
    return Change{effect, {}, after};
}

/** Computes the effect of each kind of operation on one stage. */
class Changes
{
public:
    explicit Changes(const Stage &stage) : m_stage(stage) {}

    Result<Change> operator()(const ResizeOperation &resize) const
    {
        Stage after = withDpiOf(resize.scale, m_stage);
        const Fitting fitting = fittingOf(resize, m_stage);
        after.size = fitting.canvas;
        if (fitting.canvas != fitting.cut) {
            after.hasAlpha = after.hasAlpha || !isOpaque(resize.color);
            after.isGray = staysGray(after, resize.color);
        }
        const bool isSame = fitting.scaled == m_stage.size && fitting.canvas == m_stage.size;
        return made(isSame && hasSameDpi(after, m_stage) ? Effect::None : Effect::Pixels, after);
    }

    Result<Change> operator()(const CropOperation &crop) const
    {
        Stage after = withDpiOf(crop.scale, m_stage);
        const QRect part = cropPartOf(crop, m_stage);
        if (part.isEmpty())
            return refused(platform::ErrorCode::InvalidValue,
                           QT_TRANSLATE_NOOP("recipe", "Nothing of the picture is left"));
        after.size = part.size();
        const bool isSame = after.size == m_stage.size && hasSameDpi(after, m_stage);
        return made(isSame ? Effect::None : Effect::Pixels, after);
    }

    Result<Change> operator()(const TurnOperation &turn) const
    {
        if (const auto exact = platform::exactTurn(-turn.degrees))
            return turned(RightTurn(*exact));
        Stage after = m_stage;
        after.size = turnedCanvas(turn, m_stage.size);
        after.hasAlpha = after.hasAlpha || !turn.color || !isOpaque(*turn.color);
        after.isGray = turn.color ? staysGray(after, *turn.color) : after.isGray;
        return made(Effect::Pixels, after);
    }

    Result<Change> operator()(const FlipOperation &flip) const { return turned(RightTurn(exactFlip(flip.direction))); }

    Result<Change> operator()(const RoundOperation &round) const
    {
        Stage after = withDpiOf(round.scale, m_stage);
        const int shorter = std::min(m_stage.size.width(), m_stage.size.height());
        if (round.shape == RoundShape::Circle)
            after.size = QSize(shorter, shorter);
        const bool hasBand = round.band && round.band->width > 0;
        const bool isSquare = round.shape == RoundShape::Rectangle && !(round.radius > 0);
        if (isSquare && !hasBand)
            return made(hasSameDpi(after, m_stage) ? Effect::None : Effect::Pixels, after);
        const bool isFilled = round.color && isOpaque(*round.color);
        if (!isSquare)
            after.hasAlpha = isFilled ? after.hasAlpha : true;
        after.isGray = (!round.color || staysGray(after, *round.color)) &&
                       (!hasBand || staysGray(after, round.band->color)) && after.isGray;
        return made(Effect::Pixels, after);
    }

    Result<Change> operator()(const BackgroundOperation &background) const
    {
        Stage after = m_stage;
        const bool hasColor = !background.pattern.isNamed();
        after.hasAlpha = m_stage.hasAlpha && hasColor && !isOpaque(background.color);
        after.isGray = m_stage.isGray && hasColor && staysGray(m_stage, background.color);
        return made(m_stage.hasAlpha ? Effect::Pixels : Effect::None, m_stage.hasAlpha ? after : m_stage);
    }

    Result<Change> operator()(const FrameOperation &frame) const
    {
        Stage after = withDpiOf(frame.scale, m_stage);
        const int across = int(std::lround(inPixelsOf(frame.width, frame.scale, m_stage.horizontalDpi)));
        const int down = int(std::lround(inPixelsOf(frame.width, frame.scale, m_stage.verticalDpi)));
        if (across == 0 && down == 0)
            return made(hasSameDpi(after, m_stage) ? Effect::None : Effect::Pixels, after);
        after.size += QSize(2 * across, 2 * down);
        after.hasAlpha = after.hasAlpha || !isOpaque(frame.color);
        after.isGray = staysGray(after, frame.color);
        return made(Effect::Pixels, after);
    }

    Result<Change> operator()(const WatermarkOperation &mark) const
    {
        Stage after = m_stage;
        after.isGray = !mark.picture.isNamed() && staysGray(m_stage, mark.color);
        return made(mark.opacity > 0 ? Effect::Pixels : Effect::None, mark.opacity > 0 ? after : m_stage);
    }

    Result<Change> operator()(const SharpenOperation &) const { return made(Effect::Pixels, m_stage); }

    Result<Change> operator()(const ProfileOperation &profile) const
    {
        Stage after = m_stage;
        after.profile = profile.profile;
        after.isGray = profile.profile.isEmpty();
        const bool isSame = profile.profile.isEmpty() ? m_stage.isGray && m_stage.profile.isEmpty()
                                                      : platform::meansSameColours(profile.profile, m_stage.profile);
        return made(isSame ? Effect::None : Effect::Pixels, isSame ? m_stage : after);
    }

private:
    Result<Change> turned(const RightTurn &turn) const
    {
        Stage after = m_stage;
        if (turn.swapsSides()) {
            after.size.transpose();
            std::swap(after.horizontalDpi, after.verticalDpi);
        }
        return Change{turn.isNothing() ? Effect::None : Effect::RightTurn, turn, after};
    }

    const Stage &m_stage;
};

} // namespace

double inPixelsOf(double length, const Scale &scale, double dpi)
{
    const double density = scale.dpi.value_or(dpi);
    switch (scale.unit) {
    case RecipeUnit::Pixel:
        return length;
    case RecipeUnit::Millimetre:
        return length * density / 25.4;
    case RecipeUnit::Centimetre:
        return length * density / 2.54;
    case RecipeUnit::Inch:
        return length * density;
    case RecipeUnit::Point:
        return length * density / 72;
    case RecipeUnit::Pica:
        return length * density / 6;
    }
    Q_UNREACHABLE();
}

Fitting fittingOf(const ResizeOperation &resize, const Stage &stage)
{
    if (resize.by == ResizeBy::Box) {
        const QSize box(sideOf(resize.boxWidth, resize.scale, stage.horizontalDpi),
                        sideOf(resize.boxHeight, resize.scale, stage.verticalDpi));
        return boxFitting(resize, stage.size, box);
    }
    const QSize size = scaledByNumber(resize, stage);
    const bool isLarger = size.width() > stage.size.width() || size.height() > stage.size.height();
    const QSize kept = isLarger && !resize.enlarges ? stage.size : size;
    return {kept, kept, kept};
}

QPoint placeOf(Place place, QSize inner, QSize outer)
{
    const int index = place == Place::Attention ? int(Place::Center) : int(place);
    const auto along = [](int step, int room) { return step == 0 ? 0 : step == 1 ? room / 2 : room; };
    return {along(index % 3, outer.width() - inner.width()), along(index / 3, outer.height() - inner.height())};
}

CropRect cropFrameOf(const CropOperation &crop, const Stage &stage)
{
    const QSize whole = stage.size;
    QSize part;
    switch (crop.by) {
    case CropBy::Size:
        part = {sideOf(crop.width, crop.scale, stage.horizontalDpi),
                sideOf(crop.height, crop.scale, stage.verticalDpi)};
        break;
    case CropBy::Trim:
        part = whole - QSize(int(std::lround(inPixelsOf(crop.width, crop.scale, stage.horizontalDpi))),
                             int(std::lround(inPixelsOf(crop.height, crop.scale, stage.verticalDpi))));
        break;
    case CropBy::Percent: {
        const double kept = hundred - crop.percent;
        part = {int(kept * whole.width() / hundred), int(kept * whole.height() / hundred)};
        break;
    }
    case CropBy::Ratio: {
        const bool isTurned = crop.turns && (crop.width > crop.height) != (whole.width() > whole.height()) &&
                              crop.width != crop.height && whole.width() != whole.height();
        const double ratio = isTurned ? crop.height / crop.width : crop.width / crop.height;
        if (whole.width() > whole.height() * ratio)
            part = {std::max(1, int(std::lround(whole.height() * ratio))), whole.height()};
        else
            part = {whole.width(), std::max(1, int(std::lround(whole.width() / ratio)))};
        part = part.boundedTo(whole);
        break;
    }
    }
    const QPoint corner = placeOf(crop.position, part, whole) +
                          QPoint(int(std::lround(inPixelsOf(crop.right, crop.scale, stage.horizontalDpi))),
                                 int(std::lround(inPixelsOf(crop.down, crop.scale, stage.verticalDpi))));
    return {corner.x(), corner.y(), part.width(), part.height()};
}

QRect cropPartOf(const CropOperation &crop, const Stage &stage)
{
    return visiblePart(cropFrameOf(crop, stage), stage.size);
}

QSize turnedCanvas(const TurnOperation &turn, QSize size)
{
    constexpr double hair = 1e-6; // rounding errors of the sines
    const QSizeF box = turnedBox(QSizeF(size), -turn.degrees);
    return {wholeSide(box.width() + hair), wholeSide(box.height() + hair)};
}

platform::FreeTurn freeTurnFor(const TurnOperation &turn, QSize size)
{
    const QSize canvas = turnedCanvas(turn, size);
    return {-turn.degrees, canvas, QPointF(canvas.width() / 2.0, canvas.height() / 2.0),
            platform::Surroundings::Transparent};
}

Result<Change> changeOf(const Operation &operation, const Stage &stage)
{
    return std::visit(Changes(stage), operation);
}

} // namespace image
