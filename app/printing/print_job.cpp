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
/** Nobody sees more pixels per inch of paper than this. */
constexpr double finestDpi = 400;
/** A PDF holds pictures of up to so many pixels without loss; larger photographs become JPEG. */
constexpr qint64 mostLossless = 4'000'000;

QImage onWhite(const QImage &pixels)
{
    if (!pixels.hasAlphaChannel())
        return pixels;
    QImage page(pixels.size(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter(&page).drawImage(0, 0, pixels);
    return page;
}

void drawPage(QPainter &painter, const QString &path, const PrintSettings &settings, const PrintSource &source)
{
    const QSizeF size = source.size(path);
    const QRectF place = placeOnPage(size, settings);
    const double most = std::max(place.width(), place.height()) / pointsPerInch * finestDpi;
    const QImage pixels = size.isEmpty() ? QImage() : onWhite(source.pixels(path, most));
    if (pixels.isNull())
        return;
    painter.setRenderHint(QPainter::LosslessImageRendering, qint64(pixels.width()) * pixels.height() <= mostLossless);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, pixels);
}

/** One page for each picture, in the device's own paper and orientation. */
void drawPages(QPagedPaintDevice &device, const QStringList &paths, PrintSettings settings,
               const platform::PrintPages &pages, const PrintSource &source)
{
    settings.page = device.pageLayout();
    QPainter painter;
    if (!painter.begin(&device))
        return;
    // From here on the unit is a point and the origin the corner of the paper.
    painter.scale(device.logicalDpiX() / pointsPerInch, device.logicalDpiY() / pointsPerInch);
    bool isFirst = true;
    for (const int page : pagesToPrint(int(paths.size()), pages)) {
        if (!isFirst && !device.newPage())
            return;
        isFirst = false;
        drawPage(painter, paths.at(page), settings, source);
    }
}

QByteArray pdfOf(const QStringList &paths, const PrintSettings &settings, const platform::PrintPages &pages,
                 const PrintSource &source)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(QStringLiteral("Quorlin"));
    writer.setResolution(1200);
    writer.setPageLayout(settings.page);
    drawPages(writer, paths, settings, pages, source);
    return buffer.data();
}

/** The last picture that was opened: both its size and its pixels are asked for. */
struct OpenedPicture
{
    QString path;
    platform::Picture picture;

    const platform::Picture &at(const QString &wanted)
    {
        if (wanted != path)
            picture = platform::Picture::opened(wanted);
        path = wanted;
        return picture;
    }
};

} // namespace

PrintSource decodedHere()
{
    const auto opened = std::make_shared<OpenedPicture>();
    PrintSource source;
    source.size = [opened](const QString &path) { return opened->at(path).size(); };
    source.pixels = [opened](const QString &path, double most) {
        const platform::Picture &picture = opened->at(path);
        const QSize stored = picture.pixelSize();
        const double scale = most / std::max({stored.width(), stored.height(), 1});
        if (scale >= 1)
            return picture.bitmap().toScreenImage();
        const QSize wanted(std::max(1, int(std::lround(stored.width() * scale))),
                           std::max(1, int(std::lround(stored.height() * scale))));
        const auto bitmap = picture.scaledTo(wanted);
        return bitmap ? bitmap->toScreenImage() : QImage();
    };
    return source;
}

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

void printPictures(const QStringList &paths, const PrintSettings &settings, const PrintSource &source)
{
    platform::PanelRequest request;
    request.kind = platform::PanelKind::Print;
    request.page = settings.page;
    request.pageCount = int(paths.size());
    const platform::PanelAnswer answer = platform::runPanel(request);
    if (!answer.accepted)
        return;
    if (answer.printer)
        drawPages(*answer.printer, paths, settings, answer.pages, source);
    else if (!answer.paths.isEmpty())
        static_cast<void>(
            platform::replaceFile(answer.paths.constFirst(), pdfOf(paths, settings, answer.pages, source)));
}

} // namespace app
