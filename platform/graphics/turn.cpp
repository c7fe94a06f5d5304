#include "platform/graphics/turn.h"

#include "platform/graphics/pixels.h"
#include "platform/graphics/resample.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace platform {
namespace {

using vips::VImage;

tl::unexpected<Error> noPicture()
{
    return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is no picture to turn"));
}

VImage turnedExactly(const VImage &image, ExactTurn turn)
{
    switch (turn) {
    case ExactTurn::None:
        return image;
    case ExactTurn::Quarter: // the library counts clockwise
        return image.rot270();
    case ExactTurn::Half:
        return image.rot180();
    case ExactTurn::ThreeQuarters:
        return image.rot90();
    case ExactTurn::MirrorAcross:
        return image.fliphor();
    case ExactTurn::MirrorDown:
        return image.flipver();
    }
    return image;
}

JpegQuantisation withSidesSwapped(const JpegQuantisation &quantisation)
{
    JpegQuantisation swapped = quantisation;
    constexpr size_t side = 8;
    for (size_t table = 0; table < swapped.tables.size(); ++table)
        for (size_t row = 0; row < side; ++row)
            for (size_t column = 0; column < side; ++column)
                swapped.tables[table][row * side + column] = quantisation.tables[table][column * side + row];
    std::swap(swapped.horizontalSampling, swapped.verticalSampling);
    return swapped;
}

/** How far a pixel of the canvas lies in the picture that was turned onto it. */
class Placement
{
public:
    Placement(const VImage &picture, const FreeTurn &turn)
        : m_width(picture.width()), m_height(picture.height()), m_centre(turn.centre)
    {
        constexpr double radiansPerDegree = 0.017453292519943295;
        m_cosine = std::cos(turn.degrees * radiansPerDegree);
        m_sine = std::sin(turn.degrees * radiansPerDegree);
    }

    /**
     * The turned picture as the resampler sees it: with a margin of one pixel that repeats its edge, so that colours
     * are known as far out as a pixel of the canvas can still be touched by the picture.
     */
    VImage drawn(const VImage &picture, QSize canvas) const
    {
        constexpr int margin = 1;
        const VImage wide = picture.embed(margin, margin, picture.width() + 2 * margin, picture.height() + 2 * margin,
                                          VImage::option()->set("extend", VIPS_EXTEND_COPY));
        const double x = (wide.width() - 1) / 2.0;
        const double y = (wide.height() - 1) / 2.0;
        const double half = 0.5; // pixels are counted by their centres there
        return wide.affine({m_cosine, m_sine, -m_sine, m_cosine},
                           VImage::option()
                               ->set("interpolate", vips::VInterpolate::new_from_name("bicubic"))
                               ->set("extend", VIPS_EXTEND_COPY)
                               ->set("oarea", std::vector<int>{0, 0, canvas.width(), canvas.height()})
                               ->set("odx", m_centre.x() - half - (m_cosine * x + m_sine * y))
                               ->set("ody", m_centre.y() - half - (-m_sine * x + m_cosine * y)));
    }

    /** How much of a pixel of the canvas the picture covers, 0 to 1. */
    double coverage(int column, int row) const
    {
        const double across = column + 0.5 - m_centre.x();
        const double down = row + 0.5 - m_centre.y();
        const double x = across * m_cosine - down * m_sine + m_width / 2;
        const double y = across * m_sine + down * m_cosine + m_height / 2;
        const double horizontal = std::clamp(std::min(x, m_width - x) + 0.5, 0.0, 1.0);
        const double vertical = std::clamp(std::min(y, m_height - y) + 0.5, 0.0, 1.0);
        return horizontal * vertical;
    }

    /** The columns of a row from @p first to before @p end that lie in the picture grown by @p margin pixels. */
    struct Columns
    {
        int first = 0;
        int end = 0;
    };
    Columns columnsWithin(double margin, int row, int canvasWidth) const
    {
        const double down = row + 0.5 - m_centre.y();
        Span span{-m_centre.x() - 1, canvasWidth - m_centre.x() + 1};
        span.cut(m_cosine, -down * m_sine, m_width / 2 + margin);
        span.cut(m_sine, down * m_cosine, m_height / 2 + margin);
        const auto column = [&](double across) {
            return std::clamp(int(std::ceil(across + m_centre.x() - 0.5)), 0, canvasWidth);
        };
        if (!(span.from < span.to))
            return {};
        return {column(span.from), column(span.to)};
    }

private:
    /** The part of a line for which |slope * t + offset| stays below a bound. */
    struct Span
    {
        double from;
        double to;

        void cut(double slope, double offset, double bound)
        {
            if (slope == 0) {
                if (std::abs(offset) >= bound)
                    to = from;
                return;
            }
            const double one = (-bound - offset) / slope;
            const double other = (bound - offset) / slope;
            from = std::max(from, std::min(one, other));
            to = std::min(to, std::max(one, other));
        }
    };

    double m_width;
    double m_height;
    QPointF m_centre;
    double m_cosine = 1;
    double m_sine = 0;
};

/** Fades the picture out where its edge runs through a pixel, and empties what lies outside. */
template<typename Component> void clearOutside(const VImage &canvas, const Placement &placement)
{
    const int bands = canvas.bands();
    const int firstFaded = canvas.has_alpha() ? bands - 1 : 0;
    const size_t pixelBytes = sizeof(Component) * size_t(bands);
    auto *row = reinterpret_cast<Component *>(const_cast<void *>(canvas.data()));
    const auto fade = [&](int x, int y) {
        const double part = placement.coverage(x, y);
        Component *pixel = row + ptrdiff_t(x) * bands;
        for (int band = firstFaded; band < bands; ++band)
            pixel[band] =
                Component(std::is_integral_v<Component> ? std::lround(pixel[band] * part) : pixel[band] * part);
    };
    for (int y = 0; y < canvas.height(); ++y, row += ptrdiff_t(canvas.width()) * bands) {
        const Placement::Columns touched = placement.columnsWithin(0.5, y, canvas.width());
        Placement::Columns whole = placement.columnsWithin(-0.5, y, canvas.width());
        if (whole.first >= whole.end)
            whole = {touched.end, touched.end};
        std::memset(row, 0, pixelBytes * size_t(touched.first));
        for (int x = touched.first; x < whole.first; ++x)
            fade(x, y);
        for (int x = whole.end; x < touched.end; ++x)
            fade(x, y);
        std::memset(row + ptrdiff_t(touched.end) * bands, 0, pixelBytes * size_t(canvas.width() - touched.end));
    }
}

void clearOutside(const VImage &canvas, const Placement &placement)
{
    switch (canvas.format()) {
    case VIPS_FORMAT_UCHAR:
        return clearOutside<quint8>(canvas, placement);
    case VIPS_FORMAT_USHORT:
        return clearOutside<quint16>(canvas, placement);
    case VIPS_FORMAT_SHORT:
        return clearOutside<qint16>(canvas, placement);
    default:
        return clearOutside<float>(canvas, placement);
    }
}

bool isWorkedInAsItIs(VipsBandFormat format)
{
    return format == VIPS_FORMAT_UCHAR || format == VIPS_FORMAT_USHORT || format == VIPS_FORMAT_SHORT ||
           format == VIPS_FORMAT_FLOAT;
}

double opaqueOf(const VImage &image)
{
    const bool is16 =
        image.interpretation() == VIPS_INTERPRETATION_GREY16 || image.interpretation() == VIPS_INTERPRETATION_RGB16;
    return is16 ? 65535 : 255;
}

/** The canvas in memory. Colours of pixels that can be seen through weigh less than those that cannot. */
VImage turnedFreely(const VImage &image, const FreeTurn &turn)
{
    const VipsBandFormat format = image.format();
    const VImage worked = isWorkedInAsItIs(format) ? image : image.cast(VIPS_FORMAT_FLOAT);
    const Placement placement(worked, turn);
    VImage drawn = placement.drawn(worked.has_alpha() ? worked.premultiply() : worked, turn.canvas);
    if (worked.has_alpha()) {
        drawn = drawn.unpremultiply();
        drawn = worked.format() == VIPS_FORMAT_FLOAT ? drawn : drawn.rint().cast(worked.format());
    } else if (turn.surroundings == Surroundings::Transparent) {
        drawn = drawn.bandjoin_const({opaqueOf(worked)});
    }
    const VImage canvas = drawn.copy_memory();
    clearOutside(canvas, placement);
    return isWorkedInAsItIs(format) ? canvas : canvas.cast(format).copy_memory();
}

Bitmap bitmapLike(const Bitmap &source, const VImage &image)
{
    Bitmap::Pixels pixels = source.pixels();
    pixels.image = image;
    return Bitmap(std::make_shared<const Bitmap::Pixels>(std::move(pixels)));
}

Bitmap withSidesSwapped(const Bitmap &bitmap)
{
    Bitmap::Pixels pixels = bitmap.pixels();
    std::swap(pixels.resolution.horizontal, pixels.resolution.vertical);
    if (pixels.quantisation)
        pixels.quantisation = withSidesSwapped(*pixels.quantisation);
    return Bitmap(std::make_shared<const Bitmap::Pixels>(std::move(pixels)));
}

} // namespace

bool swapsSides(ExactTurn turn)
{
    return turn == ExactTurn::Quarter || turn == ExactTurn::ThreeQuarters;
}

std::optional<ExactTurn> exactTurn(double degrees)
{
    constexpr double fullTurn = 360;
    constexpr double quarterTurn = 90;
    const double rest = std::fmod(degrees, fullTurn); // not a number where the angle is not finite
    if (std::fmod(rest, quarterTurn) != 0 || std::isnan(rest))
        return std::nullopt;
    switch (int(rest < 0 ? rest + fullTurn : rest)) {
    case 90:
        return ExactTurn::Quarter;
    case 180:
        return ExactTurn::Half;
    case 270:
        return ExactTurn::ThreeQuarters;
    default:
        return ExactTurn::None;
    }
}

Result<Bitmap> turned(const Bitmap &bitmap, ExactTurn turn)
{
    if (bitmap.isNull())
        return noPicture();
    if (turn == ExactTurn::None)
        return bitmap;
    try {
        const Bitmap result = bitmapLike(bitmap, turnedExactly(bitmap.pixels().image, turn).copy_memory());
        return swapsSides(turn) ? withSidesSwapped(result) : result;
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

Result<Bitmap> turned(const Bitmap &bitmap, const FreeTurn &turn)
{
    if (bitmap.isNull())
        return noPicture();
    if (!std::isfinite(turn.degrees) || !std::isfinite(turn.centre.x()) || !std::isfinite(turn.centre.y()))
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "A picture cannot be turned by that angle"));
    const VImage &image = bitmap.pixels().image;
    if (!fitsMemoryBudget(turn.canvas.width(), turn.canvas.height(), image.bands() + 1, bytesPerComponent(image)))
        return failure(ErrorCode::TooLarge,
                       QCoreApplication::translate("platform", "No picture of %1 x %2 pixels can be made")
                           .arg(turn.canvas.width())
                           .arg(turn.canvas.height()));
    try {
        return bitmapLike(bitmap, turnedFreely(image, turn));
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
