#pragma once

// Private to the platform.

#include "platform/planes/plane.h"
#include "platform/planes/turn_placement.h"

namespace platform {

/** How a picture is turned on a canvas, and which part one of its planes has in that. */
struct PlaneTurn
{
    QSize picture; ///< in pixels
    double degrees = 0;
    QPointF centre;         ///< of the picture, on the canvas in pixels
    QSize had = {1, 1};     ///< pixels of the picture that share a sample of the plane
    QSize made = {1, 1};    ///< pixels of the canvas that share one
    uchar surroundings = 0; ///< the sample outside the picture
};

/**
 * Draws a plane turned by any angle, some rows at a time, with cubic splines through four by four samples in integers:
 * the same on every machine. Samples beyond an edge repeat the last one, and fade by how much the picture covers.
 */
class PlaneTurner
{
public:
    /** @p plane must outlive this. */
    PlaneTurner(const Plane &plane, const PlaneTurn &turn);

    /** Draws @p count rows of @p width samples from row @p first on. */
    void draw(int first, int count, int width, uchar *const *rows) const;

private:
    void drawPart(int row, TurnPlacement::Columns columns, uchar *out) const;
    void drawCovered(int row, TurnPlacement::Columns columns, uchar *out) const;
    void drawFaded(int row, TurnPlacement::Columns columns, uchar *out) const;
    uchar atEdge(int x, int y, size_t stepAcross, size_t stepDown) const;
    bool isInside(int x, int y) const;

    const Plane &m_plane;
    QSize m_had;
    int m_surroundings;
    TurnPlacement m_placement;
    TurnPosition m_stepAcross;
    TurnPosition m_stepDown;
};

} // namespace platform
