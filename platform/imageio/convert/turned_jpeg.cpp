#include "platform/imageio/convert/turned_jpeg.h"

#include "platform/foundation/memory_left.h"
#include "platform/graphics/icc_profile.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/convert/jpeg_from_jpeg.h"
#include "platform/planes/plane_turner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>
#include <vector>

namespace platform {
namespace {

bool isPossible(const ImageSource::File &file, const FreeTurn &turn, const QColor &corners)
{
    constexpr int components = 3;
    constexpr int opaque = 255;
    return file.content == Content::Jpeg && !file.isRaw() && corners.alpha() == opaque && std::isfinite(turn.degrees) &&
           !turn.canvas.isEmpty() && fitsMemoryBudget(turn.canvas.width(), turn.canvas.height(), components + 1, 1);
}

/** The file before and after, and the planes before. */
bool isMemoryLeft(const PlaneFacts &facts, qsizetype fileBytes)
{
    constexpr qint64 components = 3;
    constexpr qint64 coefficientBytes = 2;
    const qint64 area = components * facts.stored.width() * facts.stored.height();
    const qint64 need = 4 * fileBytes + area + (facts.comesInPasses ? coefficientBytes * area : 0);
    return need < memoryLeft();
}

/** Whether the colour means the same in the picture: black always does. */
bool isSameColour(const QColor &colour, const PlaneFacts &facts, size_t planes)
{
    if (colour.rgb() == QColor(Qt::black).rgb())
        return true;
    const bool isGrey = colour.red() == colour.green() && colour.green() == colour.blue();
    return facts.profile.isEmpty() ? planes > 1 || isGrey : planes > 1 && isSrgb(facts.profile);
}

/** Brightness and the two colour differences of a colour. */
std::array<uchar, 3> differencesOf(const QColor &colour)
{
    const double red = colour.red();
    const double green = colour.green();
    const double blue = colour.blue();
    const double brightness = 0.299 * red + 0.587 * green + 0.114 * blue;
    constexpr double none = 128;
    const auto sample = [](double value) { return uchar(std::lround(std::clamp(value, 0.0, 255.0))); };
    return {sample(brightness), sample((blue - brightness) / 1.772 + none), sample((red - brightness) / 1.402 + none)};
}

/** Whether colours can be made as finely as that; where they are to be coarser, all pixels are averaged. */
bool isAsFine(QSize had, QSize made)
{
    constexpr int most = 2;
    return made.width() <= had.width() && made.height() <= had.height() && had.width() <= most && had.height() <= most;
}

std::optional<QByteArray> turnedFile(const ImageSource::File &file, const FreeTurn &turn, const QColor &corners,
                                     const EncodeOptions &options)
{
    const JpegFromJpeg made(file, options);
    if (!made.facts() || !isMemoryLeft(*made.facts(), made.source().size()))
        return std::nullopt;
    const std::optional<DecodedPlanes> decoded = decodedPlanes(made.source(), 1);
    if (!decoded || !isSameColour(corners, *made.facts(), decoded->planes.size()))
        return std::nullopt;
    const int planes = int(decoded->planes.size());
    const QSize sampling = jpegSampling(made.settings(), planes);
    if (!isAsFine(decoded->sampling, sampling))
        return std::nullopt;
    const std::array<uchar, 3> surroundings = differencesOf(corners);
    std::vector<PlaneTurner> turners;
    std::vector<int> widths;
    for (const Plane &plane : decoded->planes) {
        const bool isColour = !turners.empty();
        PlaneTurn how = {made.facts()->stored, turn.degrees, turn.centre};
        if (isColour) {
            how.had = decoded->sampling;
            how.made = sampling;
        }
        how.surroundings = surroundings[turners.size()];
        turners.emplace_back(plane, how);
        widths.push_back((turn.canvas.width() + how.made.width() - 1) / how.made.width());
    }
    const auto draw = [&](int plane, int first, int count, uchar *const *rows) {
        turners[size_t(plane)].draw(first, count, widths[size_t(plane)], rows);
    };
    return made.finished(encodeJpegRows(turn.canvas, planes, draw, made.facts()->profile, made.settings()),
                         turn.canvas);
}

} // namespace

std::optional<QByteArray> turnedJpeg(const ImageSource &source, const FreeTurn &turn, const QColor &corners,
                                     const EncodeOptions &options)
{
    const ImageSource::File *file = source.file();
    if (!file || !isPossible(*file, turn, corners))
        return std::nullopt;
    try {
        return turnedFile(*file, turn, corners, options);
    } catch (const vips::VError &error) {
        takeVipsError(error);
    } catch (const std::bad_alloc &) {
    }
    return std::nullopt; // the other way reports it properly
}

} // namespace platform
