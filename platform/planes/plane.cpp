#include "platform/planes/plane.h"

#include "platform/planes/plane_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace platform {
namespace {

constexpr int wholeWeight = 1 << planeWeightBits;

double lanczos(double x)
{
    constexpr double pi = 3.14159265358979323846;
    constexpr double lobes = 3;
    if (std::abs(x) < 1e-9)
        return 1;
    if (std::abs(x) >= lobes)
        return 0;
    return lobes * std::sin(pi * x) * std::sin(pi * x / lobes) / (pi * pi * x * x);
}

int roundedUp(int value, int unit)
{
    return (value + unit - 1) / unit * unit;
}

/** For each new sample, the first old one that it is made of and what that and the following ones weigh. */
class Weights
{
public:
    Weights(const PlaneSpan &span, int samples)
    {
        const double scale = std::max(1.0, span.step);
        const int reach = int(std::ceil(lobes * scale)) + 1;
        taps = roundedUp(2 * reach + 1, planeTapUnit);
        const int count = roundedUp(span.count, planeOutputUnit); // those behind the last weigh nothing
        starts.assign(size_t(count), 0);
        values.assign(size_t(count) * size_t(taps), 0);
        std::vector<double> exact(static_cast<size_t>(taps));
        for (int i = 0; i < span.count; ++i)
            weigh(i, span.start + (i + 0.5) * span.step, scale, reach, samples, exact);
    }

    const qint16 *of(int index) const { return values.data() + size_t(index) * size_t(taps); }

    int taps = 0;
    std::vector<int> starts;
    std::vector<qint16> values;

private:
    static constexpr double lobes = 3;

    void weigh(int index, double centre, double scale, int reach, int samples, std::vector<double> &exact)
    {
        std::fill(exact.begin(), exact.end(), 0);
        const int first = int(std::floor(centre)) - reach;
        const int start = std::clamp(first, 0, samples - 1);
        double sum = 0;
        for (int at = first; at <= first + 2 * reach; ++at) {
            const double weight = lanczos((at + 0.5 - centre) / scale);
            exact[size_t(std::max(0, std::min(at, samples - 1) - start))] += weight;
            sum += weight;
        }
        starts[size_t(index)] = start;
        qint16 *whole = values.data() + size_t(index) * size_t(taps);
        int rest = wholeWeight;
        for (int tap = 0; tap < taps; ++tap) {
            whole[tap] = qint16(std::lround(exact[size_t(tap)] / sum * wholeWeight));
            rest -= whole[tap];
        }
        qint16 *most = std::max_element(whole, whole + taps);
        *most = qint16(*most + rest);
    }
};

/** Nothing to compute: the new samples are old ones. */
bool isPart(const PlaneSpan &span, int samples)
{
    return span.step == 1 && span.start == std::floor(span.start) && span.start >= 0 &&
           int(span.start) + span.count <= samples;
}

Plane partOf(const Plane &plane, const PlaneSpan &across, const PlaneSpan &down)
{
    Plane part(QSize(across.count, down.count));
    for (int y = 0; y < down.count; ++y)
        std::memcpy(part.row(y), plane.row(int(down.start) + y) + int(across.start), size_t(across.count));
    return part;
}

} // namespace

Plane::Plane(QSize size)
    : m_size(size), m_rowBytes(roundedUp(size.width(), planeRowUnit)),
      m_bytes(std::make_unique_for_overwrite<uchar[]>(size_t(m_rowBytes) * size_t(size.height())))
{
}

Plane scaledPlane(const Plane &plane, const PlaneSpan &across, const PlaneSpan &down)
{
    if (isPart(across, plane.width()) && isPart(down, plane.height()))
        return partOf(plane, across, down);
    const Weights columns(across, plane.width());
    const Weights rows(down, plane.height());
    const PlaneKernels &kernels = planeKernels();
    // Behind the row there is room for what the last windows reach beyond it; it weighs nothing.
    std::vector<qint16> sums(size_t(plane.rowBytes() + columns.taps), 0);
    std::vector<const uchar *> window(static_cast<size_t>(rows.taps));
    std::vector<uchar> made(size_t(roundedUp(across.count, planeOutputUnit)));
    Plane scaled(QSize(across.count, down.count));
    for (int y = 0; y < down.count; ++y) {
        for (int tap = 0; tap < rows.taps; ++tap)
            window[size_t(tap)] = plane.row(std::min(rows.starts[size_t(y)] + tap, plane.height() - 1));
        kernels.sumRows(window.data(), rows.of(y), rows.taps, sums.data(), plane.rowBytes());
        kernels.sumColumns(sums.data(), columns.starts.data(), columns.values.data(), columns.taps, made.data(),
                           int(made.size()));
        std::memcpy(scaled.row(y), made.data(), size_t(across.count));
    }
    return scaled;
}

} // namespace platform
