#pragma once

// Private to the platform: how much of each pixel a shape covers.

#include "platform/graphics/compose.h"

#include <QLineF>
#include <QList>

#include <memory>
#include <vector>

namespace platform {

/** The coverage of a rectangle of pixels: 0 outside the shape, 255 inside, values in between on its edges. */
class Coverage
{
public:
    /** Of one side; larger rectangles are processed in pieces. */
    static constexpr int longestSide = 8192;

    explicit Coverage(QSize size);
    ~Coverage();
    Coverage(Coverage &&other) noexcept;
    Coverage &operator=(Coverage &&) = delete;
    Coverage(const Coverage &) = delete;
    Coverage &operator=(const Coverage &) = delete;

    const uchar *row(int y) const;

    struct Surface;
    Surface &surface() { return *m_surface; }

private:
    std::unique_ptr<Surface> m_surface;
};

/** These throw vips::VError if memory fails. @p piece is in the coordinates of the shape. */
Coverage coverageOf(const RoundedRect &shape, const QRect &piece);
Coverage coverageOfLines(const QList<QLineF> &lines, double width, double dash, const QRect &piece);

/** Whether nothing of a canvas is outside the shape. */
bool coversAll(const RoundedRect &shape, QSize canvas);

/** The rows of a shape, drawn in strips. Rows between the corners are equal, so one strip serves for all of them. */
class ShapeRows
{
public:
    ShapeRows(const RoundedRect &shape, int width);

    /** How much of each pixel is covered, 0 to 255. Throws vips::VError if memory fails. */
    const uchar *row(int y);

    /** Makes pixels of 8 bits, whose last component is an opaque alpha, as transparent as Layers would. */
    void uncover(int y, uchar *pixels, int bands);

private:
    bool isDrawn(int y) const { return y >= m_first && y < m_end; }
    void draw(int y);
    const uchar *joined(int index);

    RoundedRect m_shape;
    std::vector<uchar> m_row;
    std::vector<Coverage> m_strips;
    int m_first = 0;
    int m_end = 0;
    int m_joinedRow = -1;
    bool m_isAlike = false;
    bool m_isWhole = false; ///< all rows of the strip are covered
};

} // namespace platform
