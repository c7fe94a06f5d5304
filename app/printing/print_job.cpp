#include "app/printing/print_job.h"

#include "app/printing/print_settings.h"

#include "platform/file/atomic_file.h"
#include "platform/imageio/source/picture.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>
#include <memory>

namespace app {
namespace {

constexpr double pointsPerInch = 72;
/** More pixels than this for an inch of paper nobody sees. */
constexpr double finestDpi = 400;
/** Up to so many pixels a PDF holds them without loss; above, what is a photograph, as JPEG. */
constexpr qint64 mostLossless = 4'000'000;

/** The pixels of a picture for a place of that size, on white; null where it cannot be read. */
QImage pixelsFor(const platform::Picture &picture, QSizeF points)
{
    const QSize stored = picture.pixelSize();
    const double most = std::max(points.width(), points.height()) / pointsPerInch * finestDpi;
    const double scale = most / std::max({stored.width(), stored.height(), 1});
    if (scale >= 1)
        return picture.bitmap().toScreenImage();
    const QSize wanted(std::max(1, int(std::lround(stored.width() * scale))),
                       std::max(1, int(std::lround(stored.height() * scale))));
    const auto bitmap = picture.scaledTo(wanted);
    return bitmap ? bitmap->toScreenImage() : QImage();
}

QImage onWhite(const QImage &pixels)
{
    if (!pixels.hasAlphaChannel())
        return pixels;
    QImage page(pixels.size(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter(&page).drawImage(0, 0, pixels);
    return page;
}

void drawPage(QPainter &painter, const QString &path, const PrintSettings &settings)
{
    const platform::Picture picture = platform::Picture::opened(path);
    const QRectF place = placeOnPage(picture.size(), settings);
    const QImage pixels = picture.isNull() ? QImage() : onWhite(pixelsFor(picture, place.size()));
    if (pixels.isNull())
        return;
    painter.setRenderHint(QPainter::LosslessImageRendering, qint64(pixels.width()) * pixels.height() <= mostLossless);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, pixels);
}

/** One page for each picture, in the device's own paper and orientation. */
void drawPages(QPagedPaintDevice &device, const QStringList &paths, PrintSettings settings,
               const platform::PrintPages &pages)
{
    settings.page = device.pageLayout();
    QPainter painter;
    if (!painter.begin(&device))
        return;
    // From here on a unit is a point and the origin the corner of the paper.
    painter.scale(device.logicalDpiX() / pointsPerInch, device.logicalDpiY() / pointsPerInch);
    bool isFirst = true;
    for (const int page : pagesToPrint(int(paths.size()), pages)) {
        if (!isFirst && !device.newPage())
            return;
        isFirst = false;
        drawPage(painter, paths.at(page), settings);
    }
}

QByteArray pdfOf(const QStringList &paths, const PrintSettings &settings, const platform::PrintPages &pages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Quorlin"));
    writer.setResolution(1200);
    writer.setPageLayout(settings.page);
    drawPages(writer, paths, settings, pages);
    return buffer.data();
}

} // namespace

std::vector<int> pagesToPrint(int count, const platform::PrintPages &pages)
{
    const int first = std::max(pages.from, 1) - 1;
    const int end = pages.from > 0 ? std::min(pages.to, count) : count;
    std::vector<int> once;
    for (int page = first; page < end; ++page)
        once.push_back(page);
    if (pages.isBackwards)
        std::reverse(once.begin(), once.end());
    const int inner = pages.areCollated ? 1 : pages.copies;
    const int outer = pages.areCollated ? pages.copies : 1;
    std::vector<int> all;
    for (int copy = 0; copy < outer; ++copy)
        for (const int page : once)
            all.insert(all.end(), size_t(std::max(inner, 0)), page);
    return all;
}

void printPictures(const QStringList &paths, const PrintSettings &settings)
{
    platform::PanelRequest request;
    request.kind = platform::PanelKind::Print;
    request.page = settings.page;
    request.pageCount = int(paths.size());
    const platform::PanelAnswer answer = platform::runPanel(request);
    if (!answer.accepted)
        return;
    if (answer.printer)
        drawPages(*answer.printer, paths, settings, answer.pages);
    else if (!answer.paths.isEmpty())
        static_cast<void>(platform::replaceFile(answer.paths.constFirst(), pdfOf(paths, settings, answer.pages)));
}

} // namespace app
