#pragma once

// Private to the platform.

#include "platform/planes/plane.h"
#include "platform/planes/plane_weights.h"

#include <QPoint>

#include <memory>
#include <optional>
#include <vector>

namespace platform {

/**
 * Scales a plane from its rows, with three-lobed Lanczos in integers: the same on every machine. Samples beyond an edge
 * repeat the last one. It buffers as many rows as a new one needs, so the old plane is never complete.
 */
class PlaneScaler
{
public:
    /** Throws std::bad_alloc. */
    PlaneScaler(QSize from, const PlaneSpan &across, const PlaneSpan &down);
    /** The same as of the picture's pixels. Throws std::bad_alloc. */
    PlaneScaler(QSize from, const PixelSpan &across, const PixelSpan &down);

    /** The next row, from top to bottom: rowBytes() must be readable. Rows after the last one are ignored. */
    void add(const uchar *row);
    int rowBytes() const { return m_rowBytes; }

    /** The new plane, once every row has been added. */
    Plane &&plane() { return std::move(m_plane); }

private:
    void makeRoom();
    void copy(const uchar *row);
    void keep(const uchar *row);
    void make();
    void sumColumns();

    QSize m_from;
    QSize m_to;
    std::optional<QPoint> m_part; ///< nothing to compute: the new samples are the old ones from here on
    int m_rowBytes;
    std::shared_ptr<const PlaneWeights> m_columns;
    std::shared_ptr<const PlaneWeights> m_rows;
    int m_added = 0;
    int m_made = 0;
    std::vector<qint16> m_kept; ///< the rows of a window, widened, in a ring buffer
    std::vector<const qint16 *> m_window;
    std::vector<qint16> m_sums;
    std::vector<uchar> m_row;
    Plane m_plane;
};

/** A whole plane at another size. Throws std::bad_alloc. */
Plane scaledPlane(const Plane &plane, const PlaneSpan &across, const PlaneSpan &down);

} // namespace platform
