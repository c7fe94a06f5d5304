#include "platform/graphics/coverage.h"

#include "platform/graphics/pixels.h"

#include <cairo.h>

#include <algorithm>
#include <array>
#include <numbers>

namespace platform {

struct Coverage::Surface
{
    explicit Surface(QSize size)
        : pixels(cairo_image_surface_create(CAIRO_FORMAT_A8, size.width(), size.height())), pen(cairo_create(pixels))
    {
        if (cairo_status(pen) != CAIRO_STATUS_SUCCESS)
            reportAndClose();
    }
    Surface(const Surface &) = delete;
    Surface &operator=(const Surface &) = delete;
    ~Surface() { close(); }

    cairo_surface_t *pixels;
    cairo_t *pen;

private:
    void close()
    {
        cairo_destroy(pen);
        cairo_surface_destroy(pixels);
    }
    [[noreturn]] void reportAndClose()
    {
        close();
        throw vips::VError("out of memory");
    }
};

namespace {

/** A quarter of an ellipse round @p centre, from one angle to the next in quarters of a circle. */
void addCorner(cairo_t *pen, QPointF centre, const RoundedRect &shape, int quarter)
{
    constexpr double quarterTurn = std::numbers::pi / 2;
    cairo_save(pen);
    cairo_translate(pen, centre.x(), centre.y());
    cairo_scale(pen, shape.xRadius, shape.yRadius);
    cairo_arc(pen, 0, 0, 1, quarter * quarterTurn, (quarter + 1) * quarterTurn);
    cairo_restore(pen);
}

void addOutline(cairo_t *pen, const RoundedRect &shape)
{
    const QRectF inner = shape.rect.adjusted(shape.xRadius, shape.yRadius, -shape.xRadius, -shape.yRadius);
    if (!(shape.xRadius > 0) || !(shape.yRadius > 0)) {
        cairo_rectangle(pen, shape.rect.x(), shape.rect.y(), shape.rect.width(), shape.rect.height());
        return;
    }
    cairo_new_sub_path(pen);
    addCorner(pen, inner.bottomRight(), shape, 0);
    addCorner(pen, inner.bottomLeft(), shape, 1);
    addCorner(pen, inner.topLeft(), shape, 2);
    addCorner(pen, inner.topRight(), shape, 3);
    cairo_close_path(pen);
}

constexpr uchar covered = 255;

RoundedRect withBoundedRadii(const RoundedRect &shape)
{
    RoundedRect bounded = shape;
    bounded.xRadius = std::clamp(shape.xRadius, 0.0, std::max(0.0, shape.rect.width() / 2));
    bounded.yRadius = std::clamp(shape.yRadius, 0.0, std::max(0.0, shape.rect.height() / 2));
    return bounded;
}

} // namespace

Coverage::Coverage(QSize size) : m_surface(std::make_unique<Surface>(size)) {}
Coverage::~Coverage() = default;
Coverage::Coverage(Coverage &&other) noexcept = default;

const uchar *Coverage::row(int y) const
{
    cairo_surface_flush(m_surface->pixels);
    return cairo_image_surface_get_data(m_surface->pixels) +
           size_t(cairo_image_surface_get_stride(m_surface->pixels)) * size_t(y);
}

Coverage coverageOf(const RoundedRect &shape, const QRect &piece)
{
    Coverage coverage(piece.size());
    // Anything far outside is invisible and would exceed the library's coordinates.
    constexpr double far = 1'000'000;
    if (shape.rect.width() <= 0 || shape.rect.height() <= 0)
        return coverage;
    RoundedRect drawn = shape;
    drawn.rect = drawn.rect.intersected(QRectF(piece).adjusted(-far, -far, far, far));
    drawn.xRadius = std::min(drawn.xRadius, drawn.rect.width() / 2);
    drawn.yRadius = std::min(drawn.yRadius, drawn.rect.height() / 2);
    cairo_t *pen = coverage.surface().pen;
    constexpr double finestStep = 0.02;
    cairo_set_tolerance(pen, finestStep);
    cairo_set_antialias(pen, CAIRO_ANTIALIAS_BEST);
    cairo_translate(pen, -piece.x(), -piece.y());
    addOutline(pen, drawn);
    cairo_fill(pen);
    return coverage;
}

Coverage coverageOfLines(const QList<QLineF> &lines, double width, double dash, const QRect &piece)
{
    Coverage coverage(piece.size());
    cairo_t *pen = coverage.surface().pen;
    cairo_translate(pen, -piece.x(), -piece.y());
    for (const QLineF &line : lines) {
        cairo_move_to(pen, line.x1(), line.y1());
        cairo_line_to(pen, line.x2(), line.y2());
    }
    const std::array<double, 2> dashes = {dash, dash};
    cairo_set_dash(pen, dashes.data(), int(dashes.size()), 0);
    cairo_set_line_width(pen, width);
    cairo_set_line_cap(pen, CAIRO_LINE_CAP_SQUARE);
    cairo_set_line_join(pen, CAIRO_LINE_JOIN_MITER);
    cairo_stroke(pen);
    return coverage;
}

bool coversAll(const RoundedRect &shape, QSize canvas)
{
    const bool isSquare = !(shape.xRadius > 0) || !(shape.yRadius > 0);
    return isSquare && shape.rect.contains(QRectF(QPointF(0, 0), canvas));
}

ShapeRows::ShapeRows(const RoundedRect &shape, int width) : m_shape(withBoundedRadii(shape)), m_row(size_t(width)) {}

const uchar *ShapeRows::row(int y)
{
    if (!isDrawn(y))
        draw(y);
    return m_strips.empty() ? nullptr : joined(y - m_first);
}

void ShapeRows::uncover(int y, uchar *pixels, int bands)
{
    if (isDrawn(y) && m_isWhole)
        return;
    const uchar *coverage = row(y);
    const size_t width = m_row.size();
    m_isWhole = m_isAlike && std::all_of(coverage, coverage + width, [](uchar part) { return part == covered; });
    for (size_t x = 0; x < width; ++x, pixels += bands) {
        if (coverage[x] == 0) // an invisible pixel leaves no trace
            std::fill_n(pixels, bands, uchar(0));
        else
            pixels[bands - 1] = coverage[x];
    }
}

void ShapeRows::draw(int y)
{
    constexpr int stripRows = 64;
    const double straightTop = m_shape.rect.top() + m_shape.yRadius;
    const double straightBottom = m_shape.rect.bottom() - m_shape.yRadius;
    const bool isStraight = y >= straightTop && y + 1 <= straightBottom;
    const int rows = isStraight ? 1 : stripRows;
    m_isAlike = isStraight;
    m_isWhole = false;
    m_first = y;
    m_end = isStraight ? int(straightBottom) : y + rows;
    m_strips.clear();
    const int width = int(m_row.size());
    for (int x = 0; x < width; x += Coverage::longestSide)
        m_strips.push_back(coverageOf(m_shape, QRect(x, y, std::min(Coverage::longestSide, width - x), rows)));
    m_joinedRow = -1;
}

const uchar *ShapeRows::joined(int index)
{
    const int wanted = m_isAlike ? 0 : index;
    if (m_strips.size() == 1)
        return m_strips.front().row(wanted);
    if (wanted != m_joinedRow) {
        size_t x = 0;
        for (const Coverage &strip : m_strips) {
            const size_t length = std::min(size_t(Coverage::longestSide), m_row.size() - x);
            std::copy_n(strip.row(wanted), length, m_row.data() + x);
            x += length;
        }
        m_joinedRow = wanted;
    }
    return m_row.data();
}

} // namespace platform
