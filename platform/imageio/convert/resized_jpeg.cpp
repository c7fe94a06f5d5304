#include "platform/imageio/convert/resized_jpeg.h"

#include "platform/foundation/memory_left.h"
#include "platform/imageio/convert/jpeg_from_jpeg.h"
#include "platform/imageio/jpeg/plane_rows.h"
#include "platform/imageio/jpeg/shrunk_jpeg.h"
#include "platform/planes/plane_scaler.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace platform {
namespace {

/** Below that a decoder that is asked for a size might choose another scale. */
constexpr int shortestSide = 64;

bool isPossible(const ImageSource::File &file, const JpegResize &resize)
{
    const QSize stored = file.storedSize;
    const bool isSmaller = resize.size.width() <= stored.width() && resize.size.height() <= stored.height();
    return file.content == Content::Jpeg && !file.isRaw() && file.orientation == 1 && isSmaller &&
           std::min(stored.width(), stored.height()) >= shortestSide && !resize.kept.isEmpty() &&
           QRect(QPoint(0, 0), resize.size).contains(resize.kept);
}

/** Planes before and after at full colour resolution, the file before and after. */
bool isMemoryLeft(const PlaneFacts &facts, qsizetype fileBytes, const JpegResize &resize, int shrink)
{
    constexpr qint64 components = 3;
    constexpr qint64 coefficientBytes = 2;
    const auto area = [](QSize size) { return components * size.width() * size.height(); };
    const qint64 coefficients = facts.comesInPasses ? coefficientBytes * area(facts.stored) : 0;
    const qint64 need = 2 * fileBytes + coefficients + area(facts.stored / shrink) + 2 * area(resize.kept.size());
    return need < memoryLeft();
}

/** The position of the new samples of one direction among the decoded ones. */
struct Direction
{
    double pixels; ///< decoded pixels per new one
    double block;  ///< decoded pixels that are averaged first, or 1
    int first;     ///< first new pixel that is kept
    int count;

    /** For a plane with one sample per @p had pixels that becomes one with a sample per @p made. */
    PlaneSpan of(int had, int made) const
    {
        return {first * pixels / had, pixels * made / had, (count + made - 1) / made, block > 1 ? block / had : 1};
    }
};

/** Which part of a plane becomes which, horizontally and vertically. */
struct PlaneSpans
{
    PlaneSpan columns;
    PlaneSpan rows;

    bool isPossible() const { return columns.step <= mostPlaneStep && rows.step <= mostPlaneStep; }
};

struct Directions
{
    Direction across;
    Direction down;

    /** For the colour planes, whose sampling differs, or for the brightness plane. */
    PlaneSpans of(bool isColour, QSize had, QSize made) const
    {
        const QSize one(1, 1);
        const QSize from = isColour ? had : one;
        const QSize to = isColour ? made : one;
        return {across.of(from.width(), to.width()), down.of(from.height(), to.height())};
    }
};

std::optional<JpegPlanes> scaledPlanes(const DecodedPlanes &decoded, const Directions &directions, QSize sampling)
{
    JpegPlanes scaled;
    for (const Plane &plane : decoded.planes) {
        const PlaneSpans spans = directions.of(!scaled.empty(), decoded.sampling, sampling);
        if (!spans.isPossible())
            return std::nullopt;
        scaled.push_back(scaledPlane(plane, spans.columns, spans.rows));
    }
    return scaled;
}

int shrinkFor(QSize stored, const JpegResize &resize)
{
    const bool hasHalves = stored.width() % mostFineShrink == 0 && stored.height() % mostFineShrink == 0;
    if (resize.isFine && !hasHalves)
        return 1;
    return resize.isFine ? std::min(mostFineShrink, jpegShrinkFor(stored, resize.size * finerTimes))
                         : jpegShrinkFor(stored, resize.size * resize.finer);
}

/** The average difference of neighbours, one step to the right or down. */
double detailOf(const Plane &plane)
{
    qint64 across = 0;
    qint64 down = 0;
    for (int y = 0; y + 1 < plane.height(); ++y) {
        const uchar *row = plane.row(y);
        const uchar *below = plane.row(y + 1);
        for (int x = 0; x + 1 < plane.width(); ++x) {
            across += std::abs(row[x + 1] - row[x]);
            down += std::abs(below[x] - row[x]);
        }
    }
    return double(std::max(across, down)) / (double(plane.width()) * plane.height());
}

/** Like showsShrinking() for pictures. */
bool showsShrinking(const std::vector<Plane> &planes)
{
    constexpr double mostDetail = 24;
    const Plane &brightness = planes.front();
    constexpr double share = 0.1;
    constexpr uchar nearly = 2;
    constexpr uchar most = 255;
    const auto isPaper = [](uchar sample) { return sample <= nearly || sample >= most - nearly; };
    qint64 count = 0;
    for (int y = 0; y < brightness.height(); ++y)
        count += std::count_if(brightness.row(y), brightness.row(y) + brightness.width(), isPaper);
    return double(count) > share * brightness.width() * brightness.height() ||
           std::any_of(planes.begin(), planes.end(), [](const Plane &each) { return detailOf(each) > mostDetail; });
}

/** Scales the rows as the decoder delivers them, so that planes are never complete at full size. */
std::optional<JpegPlanes> scaledRows(PlaneRows &decoder, const Directions &directions, QSize sampling)
{
    std::vector<PlaneScaler> scalers;
    for (int plane = 0; plane < decoder.planes(); ++plane) {
        const PlaneSpans spans = directions.of(plane > 0, decoder.sampling(), sampling);
        if (!spans.isPossible())
            return std::nullopt;
        scalers.emplace_back(decoder.size(plane), spans.columns, spans.rows);
    }
    while (!decoder.isAtEnd()) {
        if (!decoder.read())
            return std::nullopt;
        for (int plane = 0; plane < decoder.planes(); ++plane)
            for (int y = 0; y < decoder.rows(plane); ++y)
                scalers[size_t(plane)].add(decoder.row(plane, y));
    }
    JpegPlanes scaled;
    for (PlaneScaler &scaler : scalers)
        scaled.push_back(scaler.plane());
    return scaled;
}

/** The planes at the new size; none if the file must go the plain way. */
std::optional<JpegPlanes> newPlanes(const QByteArray &jpeg, int shrink, const Directions &directions,
                                    const JpegSettings &settings, bool isFine)
{
    if (shrink == 1) {
        PlaneRows decoder(jpeg);
        if (decoder.isGood())
            return scaledRows(decoder, directions, jpegSampling(settings, decoder.planes()));
    }
    const std::optional<DecodedPlanes> decoded = decodedPlanes(jpeg, shrink);
    const bool isToBeWhole = decoded && isFine && shrink > 1 && showsShrinking(decoded->planes);
    return decoded && !isToBeWhole
               ? scaledPlanes(*decoded, directions, jpegSampling(settings, int(decoded->planes.size())))
               : std::nullopt;
}

Directions directionsOf(QSize stored, const JpegResize &resize, int shrink)
{
    const QSize blocks = resize.isFine ? blocksOf(stored, resize.size) : QSize(1, 1);
    const double each = shrink;
    return {
        {stored.width() / each / resize.size.width(), blocks.width() / each, resize.kept.x(), resize.kept.width()},
        {stored.height() / each / resize.size.height(), blocks.height() / each, resize.kept.y(), resize.kept.height()}};
}

std::optional<QByteArray> resizedFile(const ImageSource::File &file, const JpegResize &resize,
                                      const EncodeOptions &options)
{
    const JpegFromJpeg made(file, options);
    const std::optional<PlaneFacts> &facts = made.facts();
    const int shrink = shrinkFor(file.storedSize, resize);
    if (!facts || !isMemoryLeft(*facts, made.source().size(), resize, shrink))
        return std::nullopt;
    auto planes =
        newPlanes(made.source(), shrink, directionsOf(facts->stored, resize, shrink), made.settings(), resize.isFine);
    if (!planes)
        return std::nullopt;
    return made.finished(encodeJpegPlanes(std::move(*planes), facts->profile, made.settings()), resize.kept.size());
}

} // namespace

std::optional<QByteArray> resizedJpeg(const ImageSource &source, const JpegResize &resize, const EncodeOptions &options)
{
    const ImageSource::File *file = source.file();
    if (!file || !isPossible(*file, resize))
        return std::nullopt;
    try {
        return resizedFile(*file, resize, options);
    } catch (const vips::VError &error) {
        takeVipsError(error);
    } catch (const std::bad_alloc &) {
    }
    return std::nullopt; // the other way reports it properly
}

} // namespace platform
