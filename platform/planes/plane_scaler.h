#pragma once

// Private to the platform.

#include "platform/planes/plane.h"
#include "platform/planes/plane_weights.h"

#include <vector>

namespace platform {

/**
 * Makes a plane of another size from the rows of one, by Lanczos of three lobes, in whole numbers: the same on every machine. Samples
 * beyond an edge are as the last one before it. It keeps as many rows as a new one is made of, so the old plane need never be whole.
 */
class PlaneScaler
{
public:
    /** Throws std::bad_alloc. */
    PlaneScaler(QSize from, const PlaneSpan &across, const PlaneSpan &down);

    /** The next row, from top to bottom: rowBytes() that may be read. Rows behind the last one are passed over. */
    void add(const uchar *row);
    int rowBytes() const { return m_rowBytes; }

    /** The new plane, once every row was added. */
    Plane &&plane() { return std::move(m_plane); }

private:
    void copy(const uchar *row);
    void keep(const uchar *row);
    void make();

    QSize m_from;
    PlaneSpan m_across;
    PlaneSpan m_down;
    bool m_isPart; ///< nothing to compute: the new samples are old ones
    int m_rowBytes;
    PlaneWeights m_columns;
    PlaneWeights m_rows;
    int m_added = 0;
    int m_made = 0;
    std::vector<qint16> m_kept; ///< the rows of a window, widened, in a ring
    std::vector<const qint16 *> m_window;
    std::vector<qint16> m_sums;
    std::vector<uchar> m_row;
    Plane m_plane;
};

/** A whole plane at another size. Throws std::bad_alloc. */
Plane scaledPlane(const Plane &plane, const PlaneSpan &across, const PlaneSpan &down);

} // namespace platform
