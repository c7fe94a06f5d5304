#include "platform/imageio/convert/resized_jpeg.h"

#include "platform/foundation/memory_left.h"
#include "platform/imageio/convert/jpeg_from_jpeg.h"
#include "platform/imageio/jpeg/plane_rows.h"
#include "platform/imageio/jpeg/shrunk_jpeg.h"
#include "platform/planes/plane_scaler.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <new>
#include <utility>

#include <vips/version.h>

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

/** One direction of a picture that is made smaller. */
struct Direction
{
    int stored;
    int wanted;
    int first; ///< new pixel that is kept
    int kept;

    /** For a plane with one sample per @p had decoded pixels that becomes one with a sample per @p made. */
    PlaneSpan of(int shrink, int had, int made) const
    {
        const double pixels = double(stored) / shrink / wanted;
        return {first * pixels / had, pixels * made / had, (kept + made - 1) / made, 1};
    }
    /** For a plane with one sample per @p had pixels of a decoder that has made each of @p shrink of the picture. */
    PixelSpan fineOf(int shrink, int had, int made, int block, bool isCoarse) const
    {
        PixelSpan span;
        span.step = double(stored) / wanted;
        span.pixels = stored;
        span.block = block;
        span.halved = shrink;
        span.isInterpolated = had > 1;
        span.first = first;
        span.kept = kept;
        span.shared = made;
        span.isCoarse = isCoarse;
        return span;
    }
};

/**
 * The pixel library rounds its weights along columns, but not along rows, where it computes with vectors. It is not
 * asked: that would load it for pictures that need nothing else of it.
 */
bool hasCoarseColumns()
{
    constexpr bool isCoarse = VIPS_MAJOR_VERSION == 8 && VIPS_MINOR_VERSION <= 14;
    return isCoarse && !qEnvironmentVariableIsSet("VIPS_NOVECTOR");
}

/** How the planes of a picture are scaled. */
struct Scaling
{
    QSize stored;
    JpegResize resize;
    QSize made; ///< how many new samples of brightness share one of colour
    int shrink; ///< of the decoder

    /** None where weights would be too small, or in doubt what the decoder makes of its samples. */
    std::optional<PlaneScaler> scaler(QSize plane, bool isColour, QSize decodedSampling, int finerColours) const
    {
        const Direction across = {stored.width(), resize.size.width(), resize.kept.x(), resize.kept.width()};
        const Direction down = {stored.height(), resize.size.height(), resize.kept.y(), resize.kept.height()};
        const QSize had = isColour ? decodedSampling : QSize(1, 1);
        const QSize to = isColour ? made : QSize(1, 1);
        if (resize.isFine) {
            constexpr int mostInterpolated = 2;
            const QSize blocks = blocksOf(stored, resize.size);
            // Samples that are as fine as brightness at half the size are those of the file, which the decoder would
            // interpolate in the whole picture.
            const int finer = isColour ? finerColours : 1;
            const QSize shared = had * finer;
            const PixelSpan columns = across.fineOf(shrink / finer, shared.width(), to.width(), blocks.width(), false);
            const PixelSpan rows =
                down.fineOf(shrink / finer, shared.height(), to.height(), blocks.height(), hasCoarseColumns());
            const bool isPossible = std::max(columns.step, rows.step) <= mostPlaneStep &&
                                    std::max(shared.width(), shared.height()) <= mostInterpolated;
            return isPossible ? std::optional<PlaneScaler>(std::in_place, plane, columns, rows) : std::nullopt;
        }
        const PlaneSpan columns = across.of(shrink, had.width(), to.width());
        const PlaneSpan rows = down.of(shrink, had.height(), to.height());
        const bool isPossible = columns.step <= mostPlaneStep && rows.step <= mostPlaneStep;
        return isPossible ? std::optional<PlaneScaler>(std::in_place, plane, columns, rows) : std::nullopt;
    }
};

std::optional<JpegPlanes> scaledPlanes(const DecodedPlanes &decoded, const Scaling &scaling)
{
    JpegPlanes scaled;
    for (const Plane &plane : decoded.planes) {
        std::optional<PlaneScaler> scaler = scaling.scaler(plane.size(), !scaled.empty(), decoded.sampling, 1);
        if (!scaler)
            return std::nullopt;
        for (int y = 0; y < plane.height(); ++y)
            scaler->add(plane.row(y));
        scaled.push_back(scaler->plane());
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

/** Whether the decoder's shrinking would be seen, from bands of rows; like showsShrinking() for pictures. */
class ShrinkingWatch
{
public:
    void add(const PlaneRows &band)
    {
        for (int plane = 0; plane < band.planes(); ++plane) {
            const int rows = std::min(band.rows(plane), band.size(plane).height());
            for (int y = 0; y + 1 < rows; y += everyRow)
                addRow(plane, band.row(plane, y), band.row(plane, y + 1), band.size(plane).width());
        }
    }
    bool isShown() const
    {
        constexpr double mostDetail = 24;
        constexpr double share = 0.1;
        return double(m_paper) > share * double(m_details[0].count) ||
               std::any_of(m_details.begin(), m_details.end(), [](const Detail &each) {
                   return double(std::max(each.across, each.down)) > mostDetail * double(each.count);
               });
    }

private:
    static constexpr int everyRow = 2;

    /** The differences of neighbours, one step to the right or down. */
    struct Detail
    {
        qint64 across = 0;
        qint64 down = 0;
        qint64 count = 0;
    };

    void addRow(int plane, const uchar *row, const uchar *below, int width)
    {
        constexpr uchar nearly = 2;
        constexpr uchar most = 255;
        int across = 0;
        int down = 0;
        for (int x = 0; x + 1 < width; ++x) {
            across += std::abs(row[x + 1] - row[x]);
            down += std::abs(below[x] - row[x]);
        }
        Detail &detail = m_details[size_t(plane)];
        detail.across += across;
        detail.down += down;
        detail.count += width;
        const auto isPaper = [](uchar sample) { return sample <= nearly || sample >= most - nearly; };
        if (plane == 0)
            m_paper += std::count_if(row, row + width, isPaper);
    }

    std::array<Detail, 3> m_details;
    qint64 m_paper = 0;
};

/** Scales the rows as the decoder delivers them, so that planes are never complete. */
std::optional<JpegPlanes> scaledRows(PlaneRows &decoder, const Scaling &scaling)
{
    std::vector<PlaneScaler> scalers;
    for (int plane = 0; plane < decoder.planes(); ++plane) {
        std::optional<PlaneScaler> scaler =
            scaling.scaler(decoder.size(plane), plane > 0, decoder.sampling(), decoder.finerColours());
        if (!scaler)
            return std::nullopt;
        scalers.push_back(std::move(*scaler));
    }
    ShrinkingWatch watch;
    while (!decoder.isAtEnd()) {
        if (!decoder.read())
            return std::nullopt;
        for (int plane = 0; plane < decoder.planes(); ++plane)
            for (int y = 0; y < decoder.rows(plane); ++y)
                scalers[size_t(plane)].add(decoder.row(plane, y));
        if (scaling.shrink > 1)
            watch.add(decoder);
    }
    if (scaling.shrink > 1 && watch.isShown())
        return std::nullopt;
    JpegPlanes scaled;
    for (PlaneScaler &scaler : scalers)
        scaled.push_back(scaler.plane());
    return scaled;
}

/** The planes at the new size; none if the file must go the plain way. */
std::optional<JpegPlanes> newPlanes(const QByteArray &jpeg, const Scaling &scaling)
{
    if (scaling.shrink == 1 || scaling.resize.isFine) {
        PlaneRows decoder(jpeg, scaling.shrink);
        if (decoder.isGood())
            return scaledRows(decoder, scaling);
        if (scaling.shrink > 1)
            return std::nullopt;
    }
    const std::optional<DecodedPlanes> decoded = decodedPlanes(jpeg, scaling.shrink);
    return decoded ? scaledPlanes(*decoded, scaling) : std::nullopt;
}

std::optional<QByteArray> resizedFile(const ImageSource::File &file, const JpegResize &resize,
                                      const EncodeOptions &options)
{
    const JpegFromJpeg made(file, options);
    const std::optional<PlaneFacts> &facts = made.facts();
    const bool isInPasses = facts && facts->comesInPasses;
    const int shrink = isInPasses && resize.isFine ? 1 : shrinkFor(file.storedSize, resize);
    if (!facts || !isMemoryLeft(*facts, made.source().size(), resize, shrink))
        return std::nullopt;
    auto planes =
        newPlanes(made.source(), {facts->stored, resize, jpegSampling(made.settings(), facts->components), shrink});
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
