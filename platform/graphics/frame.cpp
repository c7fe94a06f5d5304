#include "platform/graphics/frame.h"

#include "platform/graphics/coverage.h"
#include "platform/graphics/pixels.h"
#include "platform/graphics/resample.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <sys/mman.h>

namespace platform {
namespace {

using vips::VImage;

constexpr int rgba = 4;

struct Mapping
{
    void *address;
    size_t bytes;
};

void unmap(VipsImage *, gpointer data)
{
    const std::unique_ptr<Mapping> mapping(static_cast<Mapping *>(data));
    ::munmap(mapping->address, mapping->bytes);
}

/** An image of zeros. Its memory pages are allocated one by one when something is drawn on them. */
VImage transparentImage(QSize size)
{
    const size_t bytes = size_t(size.width()) * size_t(size.height()) * rgba;
    void *address = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (address == MAP_FAILED)
        throw vips::VError("out of memory");
    // A huge page would be cleared as a whole for the few pixels of a line.
    ::madvise(address, bytes, MADV_NOHUGEPAGE);
    auto mapping = std::make_unique<Mapping>(Mapping{address, bytes});
    VImage image = VImage::new_from_memory(address, bytes, size.width(), size.height(), rgba, VIPS_FORMAT_UCHAR);
    image.get_image()->Type = VIPS_INTERPRETATION_sRGB;
    g_signal_connect(image.get_image(), "postclose", G_CALLBACK(unmap), mapping.release());
    return image;
}

/** The rectangles of the canvas that a line can touch, in pieces that the drawing library can handle. */
QList<QRect> surroundings(const QLineF &line, double width, QSize canvas)
{
    const double reach = width / 2 + 1;
    const QRectF box = QRectF(line.p1(), line.p2()).normalized().adjusted(-reach, -reach, reach, reach);
    const QRectF seen = box.intersected(QRectF(QPointF(0, 0), canvas));
    QList<QRect> pieces;
    if (seen.isEmpty())
        return pieces;
    const QRect whole = seen.toAlignedRect();
    for (int y = whole.top(); y <= whole.bottom(); y += Coverage::longestSide)
        for (int x = whole.left(); x <= whole.right(); x += Coverage::longestSide)
            pieces << whole.intersected(QRect(x, y, Coverage::longestSide, Coverage::longestSide));
    return pieces;
}

/** Along one axis: the ends moved to just outside the visible area, the start by whole periods of the dashes. */
void shorten(double &from, double &to, double last, double margin, double period)
{
    const bool isForward = to >= from;
    const auto skipped = [period](double hidden) { return hidden > 0 ? std::floor(hidden / period) * period : 0; };
    if (isForward) {
        from += skipped(-margin - from);
        to = std::min(to, last + margin);
    } else {
        from -= skipped(from - (last + margin));
        to = std::max(to, -margin);
    }
}

/** The visible part of a line; lines may be millions of dashes long. None if no part is visible. */
std::optional<QLineF> seenPart(const QLineF &line, const DashedLines &style, QSize canvas)
{
    const double period = 2 * style.dash;
    const double margin = style.width + period;
    double x1 = line.x1();
    double y1 = line.y1();
    double x2 = line.x2();
    double y2 = line.y2();
    shorten(x1, x2, canvas.width(), margin, period);
    shorten(y1, y2, canvas.height(), margin, period);
    const auto isOutside = [](double from, double to, double low, double high) {
        return std::max(from, to) < low || std::min(from, to) > high;
    };
    if (isOutside(x1, x2, -margin - period, canvas.width() + margin + period) ||
        isOutside(y1, y2, -margin - period, canvas.height() + margin + period))
        return std::nullopt;
    return QLineF(x1, y1, x2, y2);
}

void paint(const VImage &image, const Coverage &coverage, const QRect &piece, const QColor &color)
{
    const std::array<uchar, 3> rgb = {uchar(color.red()), uchar(color.green()), uchar(color.blue())};
    auto *data = reinterpret_cast<uchar *>(image.get_image()->data);
    for (int y = 0; y < piece.height(); ++y) {
        const uchar *covered = coverage.row(y);
        uchar *pixel = data + (size_t(piece.y() + y) * size_t(image.width()) + size_t(piece.x())) * rgba;
        for (int x = 0; x < piece.width(); ++x, pixel += rgba) {
            if (covered[x] == 0)
                continue;
            std::copy(rgb.begin(), rgb.end(), pixel);
            pixel[3] = covered[x];
        }
    }
}

bool isDrawable(const DashedLines &lines)
{
    const auto isPositive = [](double value) { return std::isfinite(value) && value > 0; };
    return isPositive(lines.width) && isPositive(lines.dash) &&
           std::all_of(lines.lines.begin(), lines.lines.end(), [](const QLineF &line) {
               return std::isfinite(line.x1()) && std::isfinite(line.y1()) && std::isfinite(line.x2()) &&
                      std::isfinite(line.y2());
           });
}

} // namespace

Result<Bitmap> drawnLines(QSize canvas, const DashedLines &lines)
{
    if (canvas.isEmpty() || !isDrawable(lines))
        return failure(ErrorCode::InvalidValue, QCoreApplication::translate("platform", "There is nothing to draw"));
    if (!fitsMemoryBudget(canvas.width(), canvas.height(), rgba, 1))
        return failure(ErrorCode::TooLarge,
                       QCoreApplication::translate("platform", "A picture of %1 × %2 pixels cannot be made")
                           .arg(canvas.width())
                           .arg(canvas.height()));
    try {
        initVips();
        const VImage image = transparentImage(canvas);
        QList<QLineF> seen;
        for (const QLineF &line : lines.lines)
            if (const std::optional<QLineF> part = seenPart(line, lines, canvas))
                seen << *part;
        for (const QLineF &line : seen)
            for (const QRect &piece : surroundings(line, lines.width, canvas))
                paint(image, coverageOfLines(seen, lines.width, lines.dash, piece), piece, lines.color);
        return Bitmap(std::make_shared<Bitmap::Pixels>(image));
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

} // namespace platform
