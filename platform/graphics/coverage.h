#pragma once

// Private to the platform: how much of each pixel a shape covers.

#include "platform/graphics/compose.h"

#include <QLineF>
#include <QList>

#include <memory>

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

} // namespace platform
