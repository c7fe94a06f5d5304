#include "platform/planes/plane_scaler.h"

#include "platform/planes/plane_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace platform {
namespace {

bool isPart(const PlaneSpan &span, int samples)
{
    return span.step == 1 && span.block == 1 && span.start == std::floor(span.start) && span.start >= 0 &&
           int(span.start) + span.count <= samples;
}

} // namespace

PlaneScaler::PlaneScaler(QSize from, const PlaneSpan &across, const PlaneSpan &down)
    : m_from(from), m_to(across.count, down.count), m_rowBytes(wholeUnits(from.width(), planeRowUnit)),
      m_columns(keptWeights(across, from.width())), m_rows(keptWeights(down, from.height())), m_plane(m_to)
{
    if (isPart(across, from.width()) && isPart(down, from.height()))
        m_part = QPoint(int(across.start), int(down.start));
    makeRoom();
}

PlaneScaler::PlaneScaler(QSize from, const PixelSpan &across, const PixelSpan &down)
    : m_from(from), m_to(across.count(), down.count()), m_rowBytes(wholeUnits(from.width(), planeRowUnit)),
      m_columns(keptWeights(across, from.width())), m_rows(keptWeights(down, from.height())), m_plane(m_to)
{
    makeRoom();
}

void PlaneScaler::makeRoom()
{
    if (m_part)
        return;
    m_kept.resize(size_t(m_rowBytes) * size_t(m_rows->taps()));
    m_window.resize(size_t(m_rows->taps()));
    // After the row there is room for what the last windows read beyond it, with weight 0.
    m_sums.resize(size_t(m_rowBytes + m_columns->taps()));
    m_row.resize(size_t(wholeUnits(m_to.width(), planeOutputUnit)));
}

void PlaneScaler::add(const uchar *row)
{
    if (m_added == m_from.height())
        return;
    if (m_part)
        copy(row);
    else
        keep(row);
    ++m_added;
    if (!m_part)
        make();
}

void PlaneScaler::copy(const uchar *row)
{
    const int y = m_added - m_part->y();
    if (y >= 0 && y < m_to.height())
        std::memcpy(m_plane.row(y), row + m_part->x(), size_t(m_to.width()));
}

void PlaneScaler::keep(const uchar *row)
{
    const bool isOfUse = m_made < m_to.height() && m_added >= m_rows->start(m_made);
    if (isOfUse)
        planeKernels().widenRow(row, m_kept.data() + size_t(m_added % m_rows->taps()) * size_t(m_rowBytes), m_rowBytes);
}

void PlaneScaler::make()
{
    const int taps = m_rows->taps();
    while (m_made < m_to.height() && (m_rows->start(m_made) + taps <= m_added || m_added == m_from.height())) {
        for (int tap = 0; tap < taps; ++tap) {
            const int y = std::min(m_rows->start(m_made) + tap, m_from.height() - 1);
            m_window[size_t(tap)] = m_kept.data() + size_t(y % taps) * size_t(m_rowBytes);
        }
        planeKernels().sumRows(m_window.data(), m_rows->of(m_made), taps, m_sums.data(), m_rowBytes);
        sumColumns();
        std::memcpy(m_plane.row(m_made), m_row.data(), size_t(m_to.width()));
        ++m_made;
    }
}

void PlaneScaler::sumColumns()
{
    const auto [first, count] = m_columns->pairs();
    const auto sum = [this](int begin, int end) {
        planeKernels().sumColumns(m_sums.data(), m_columns->starts() + begin, m_columns->of(begin), m_columns->taps(),
                                  m_row.data() + begin, end - begin);
    };
    sum(0, first);
    if (count > 0)
        planeKernels().sumPairs(m_sums.data() + m_columns->start(first), m_columns->of(first), m_columns->taps(),
                                m_row.data() + first, count);
    sum(first + count, int(m_row.size()));
}

Plane scaledPlane(const Plane &plane, const PlaneSpan &across, const PlaneSpan &down)
{
    PlaneScaler scaler(plane.size(), across, down);
    for (int y = 0; y < plane.height(); ++y)
        scaler.add(plane.row(y));
    return scaler.plane();
}

} // namespace platform
