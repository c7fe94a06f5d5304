#include "platform/planes/plane.h"

#include "platform/planes/plane_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace platform {
namespace {

constexpr int wholeWeight = 1 << planeWeightBits;

/**
 * The kernel of Lanczos with three lobes at places that lie evenly: the sines of the next place come of those of the last one, which
 * takes a few products where the library takes much longer for each.
 */
class Lanczos
{
public:
    static constexpr double lobes = 3;

    Lanczos(double first, double step)
        : m_place(first), m_step(step), m_wave(pi * first), m_lobe(pi * first / lobes), m_waveStep(pi * step),
          m_lobeStep(pi * step / lobes)
    {
    }

    double next()
    {
        const double x = m_place;
        const double sines = m_wave.sine * m_lobe.sine;
        m_place += m_step;
        m_wave.turn(m_waveStep);
        m_lobe.turn(m_lobeStep);
        if (std::abs(x) < 1e-9)
            return 1;
        return std::abs(x) < lobes ? lobes * sines / (pi * pi * x * x) : 0;
    }

private:
    static constexpr double pi = 3.14159265358979323846;

    struct Angle
    {
        explicit Angle(double angle) : sine(std::sin(angle)), cosine(std::cos(angle)) {}
        void turn(const Angle &by)
        {
            const double turned = sine * by.cosine + cosine * by.sine;
            cosine = cosine * by.cosine - sine * by.sine;
            sine = turned;
        }
        double sine;
        double cosine;
    };

    double m_place;
    double m_step;
    Angle m_wave;
    Angle m_lobe;
    Angle m_waveStep;
    Angle m_lobeStep;
};

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
        const int reach = int(std::ceil(Lanczos::lobes * scale)) + 1;
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
    void weigh(int index, double centre, double scale, int reach, int samples, std::vector<double> &exact)
    {
        std::fill(exact.begin(), exact.end(), 0);
        const int first = int(std::floor(centre)) - reach;
        const int start = std::clamp(first, 0, samples - 1);
        double sum = 0;
        Lanczos kernel((first + 0.5 - centre) / scale, 1 / scale);
        for (int at = first; at <= first + 2 * reach; ++at) {
            const double weight = kernel.next();
            exact[size_t(std::max(0, std::min(at, samples - 1) - start))] += weight;
            sum += weight;
        }
        starts[size_t(index)] = start;
        qint16 *whole = values.data() + size_t(index) * size_t(taps);
        int rest = wholeWeight;
        for (int tap = 0; tap < taps; ++tap) {
            whole[tap] = qint16(std::lrint(exact[size_t(tap)] / sum * wholeWeight));
            rest -= whole[tap];
        }
        qint16 *most = std::max_element(whole, whole + taps);
        *most = qint16(*most + rest);
    }
};

/** A window of rows in the form that is summed; neighbouring windows share most of theirs. */
class WideRows
{
public:
    WideRows(const Plane &plane, int count)
        : m_plane(plane), m_count(count), m_samples(size_t(plane.rowBytes()) * size_t(count)), m_window(size_t(count))
    {
    }

    /** As many as there are, from this one on; the last of the plane stands for those behind it. Asked for from top to bottom. */
    const qint16 *const *from(int first)
    {
        for (int i = 0; i < m_count; ++i) {
            const int y = std::min(first + i, m_plane.height() - 1);
            qint16 *wide = m_samples.data() + size_t(y % m_count) * size_t(m_plane.rowBytes());
            if (y >= m_ready) {
                planeKernels().widenRow(m_plane.row(y), wide, m_plane.rowBytes());
                m_ready = y + 1;
            }
            m_window[size_t(i)] = wide;
        }
        return m_window.data();
    }

private:
    const Plane &m_plane;
    int m_count;
    int m_ready = 0; ///< rows above this one were widened
    std::vector<qint16> m_samples;
    std::vector<const qint16 *> m_window;
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
    WideRows wide(plane, rows.taps);
    // Behind the row there is room for what the last windows reach beyond it; it weighs nothing.
    std::vector<qint16> sums(size_t(plane.rowBytes() + columns.taps), 0);
    std::vector<uchar> made(size_t(roundedUp(across.count, planeOutputUnit)));
    Plane scaled(QSize(across.count, down.count));
    for (int y = 0; y < down.count; ++y) {
        kernels.sumRows(wide.from(rows.starts[size_t(y)]), rows.of(y), rows.taps, sums.data(), plane.rowBytes());
        kernels.sumColumns(sums.data(), columns.starts.data(), columns.values.data(), columns.taps, made.data(),
                           int(made.size()));
        std::memcpy(scaled.row(y), made.data(), size_t(across.count));
    }
    return scaled;
}

} // namespace platform
