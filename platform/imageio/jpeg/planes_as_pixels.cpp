#include "platform/imageio/jpeg/planes_as_pixels.h"

#include "platform/planes/plane_colours.h"
#include "platform/planes/plane_scaler.h"

#include <algorithm>
#include <new>

namespace platform {
namespace {

/** All planes at the same size; none if they would have to be reduced too much. */
std::optional<std::vector<Plane>> scaledPlanes(const DecodedPlanes &decoded, QSizeF step, QSize size)
{
    std::vector<Plane> scaled;
    for (const Plane &plane : decoded.planes) {
        const QSize sampling = scaled.empty() ? QSize(1, 1) : decoded.sampling;
        const PlaneSpan across = {0, step.width() / sampling.width(), size.width()};
        const PlaneSpan down = {0, step.height() / sampling.height(), size.height()};
        if (across.step > mostPlaneStep || down.step > mostPlaneStep)
            return std::nullopt;
        scaled.push_back(scaledPlane(plane, across, down));
    }
    return scaled;
}

QImage pixelsOf(const std::vector<Plane> &planes)
{
    const QSize size = planes.front().size();
    const bool isGrey = planes.size() == 1;
    QImage pixels(size, isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
    if (pixels.isNull())
        throw std::bad_alloc();
    for (int y = 0; y < size.height(); ++y) {
        if (isGrey)
            std::copy_n(planes[0].row(y), size.width(), pixels.scanLine(y));
        else
            coloursOf(planes[0].row(y), planes[1].row(y), planes[2].row(y), pixels.scanLine(y), size.width());
    }
    return pixels;
}

} // namespace

std::optional<QImage> pixelsOfPlanes(const QByteArray &jpeg, const PlaneFacts &facts, int shrink, QSize size)
{
    std::optional<DecodedPlanes> decoded = decodedPlanes(jpeg, shrink);
    const QSizeF step(double(facts.stored.width()) / shrink / size.width(),
                      double(facts.stored.height()) / shrink / size.height());
    const auto planes = decoded ? scaledPlanes(*decoded, step, size) : std::nullopt;
    decoded.reset(); // three times as large as what is left of them
    return planes ? std::optional(pixelsOf(*planes)) : std::nullopt;
}

} // namespace platform
