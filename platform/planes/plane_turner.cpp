#include "platform/planes/plane_turner.h"

#include "platform/planes/turn_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace platform {
namespace {

/** A row of a window, in samples. */
constexpr int windowSide = 4;

} // namespace

PlaneTurner::PlaneTurner(const Plane &plane, const PlaneTurn &turn)
    : m_plane(plane), m_had(turn.had), m_surroundings(turn.surroundings),
      m_placement(turn.picture, turn.degrees, turn.centre, turn.made),
      m_stepAcross(m_placement.step().x() / turn.had.width()), m_stepDown(m_placement.step().y() / turn.had.height())
{
}

void PlaneTurner::draw(int first, int count, int width, uchar *const *rows) const
{
    // Rows that are drawn side by side read the same samples while these are in the processor's cache.
    constexpr int atOnce = 256;
    for (int column = 0; column < width; column += atOnce)
        for (int y = 0; y < count; ++y)
            drawPart(first + y, {column, std::min(column + atOnce, width)}, rows[y] + column);
}

void PlaneTurner::drawPart(int row, TurnPlacement::Columns columns, uchar *out) const
{
    const TurnPlacement::Columns touched = m_placement.columnsTouched(row, columns);
    const TurnPlacement::Columns covered = m_placement.columnsCovered(row, touched);
    const auto at = [&](int column) { return out + (column - columns.first); };
    std::fill(out, at(touched.first), uchar(m_surroundings));
    drawFaded(row, {touched.first, covered.first}, at(touched.first));
    drawCovered(row, covered, at(covered.first));
    drawFaded(row, {covered.end, touched.end}, at(covered.end));
    std::fill(at(touched.end), at(columns.end), uchar(m_surroundings));
}

bool PlaneTurner::isInside(int x, int y) const
{
    return x >= 1 && y >= 1 && x + windowSide - 1 <= m_plane.width() && y + windowSide - 1 <= m_plane.height();
}

uchar PlaneTurner::atEdge(int x, int y, size_t stepAcross, size_t stepDown) const
{
    uchar window[windowSide][windowSide];
    for (int j = 0; j < windowSide; ++j) {
        const uchar *row = m_plane.row(std::clamp(y - 1 + j, 0, m_plane.height() - 1));
        for (int i = 0; i < windowSide; ++i)
            window[j][i] = row[std::clamp(x - 1 + i, 0, m_plane.width() - 1)];
    }
    return turnedSample(window[0], windowSide, turnWeights()[stepAcross], turnWeights()[stepDown]);
}

void PlaneTurner::drawCovered(int row, TurnPlacement::Columns columns, uchar *out) const
{
    if (columns.first >= columns.end)
        return;
    // From the edge of a sample to its centre; then the nearest step, not the previous one.
    constexpr double shift = -0.5 + 0.5 / (1 << turnStepBits);
    const QPointF start = m_placement.inPicture(columns.first, row);
    TurnPosition x(start.x() / m_had.width() + shift);
    TurnPosition y(start.y() / m_had.height() + shift);
    const auto isInsideAt = [&](int index) {
        TurnPosition across = x;
        TurnPosition down = y;
        across.step(m_stepAcross, index);
        down.step(m_stepDown, index);
        return isInside(across.pixel(), down.pixel());
    };
    const auto drawAtEdge = [&] {
        *out++ = atEdge(x.pixel(), y.pixel(), x.stepInPixel(), y.stepInPixel());
        x.step(m_stepAcross);
        y.step(m_stepDown);
    };
    int count = columns.end - columns.first;
    for (; count > 0 && !isInside(x.pixel(), y.pixel()); --count)
        drawAtEdge();
    int inside = count;
    while (inside > 0 && !isInsideAt(inside - 1)) // everything between two inside points of a line is inside
        --inside;
    const TurnedRow drawn = {m_plane.row(0), m_plane.rowBytes(),   turnWeights().data(), x.value(),
                             y.value(),      m_stepAcross.value(), m_stepDown.value()};
    turnKernel()(drawn, inside, out);
    out += inside;
    x.step(m_stepAcross, inside);
    y.step(m_stepDown, inside);
    for (int rest = count - inside; rest > 0; --rest)
        drawAtEdge();
}

void PlaneTurner::drawFaded(int row, TurnPlacement::Columns columns, uchar *out) const
{
    drawCovered(row, columns, out);
    for (int column = columns.first; column < columns.end; ++column, ++out) {
        const float part = m_placement.coverage(column, row);
        *out = uchar(std::lrint(float(m_surroundings) + float(*out - m_surroundings) * part));
    }
}

} // namespace platform
