#include "app/printing/print_settings.h"

#include <QLocale>

#include <algorithm>

namespace app {
namespace {

QPageSize usualPaper()
{
    const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4);
}

PrintSettings firstSettings()
{
    PrintSettings settings;
    settings.page = QPageLayout(usualPaper(), QPageLayout::Portrait, QMarginsF(72, 72, 72, 72), QPageLayout::Point);
    return settings;
}

double offset(double area, double length, bool isCentred)
{
    return isCentred ? (area - length) / 2 : 0;
}

} // namespace

PrintSettings &sharedPrintSettings()
{
    static PrintSettings settings = firstSettings();
    return settings;
}

void fitOnPage(PrintSettings &settings)
{
    settings.horizontal = Pagination::Fit;
    settings.vertical = Pagination::Fit;
    settings.page.setMode(QPageLayout::FullPageMode);
    settings.page.setMinimumMargins({});
    settings.page.setMargins({});
    settings.isCentredHorizontally = true;
    settings.isCentredVertically = true;
}

QRectF placeOnPage(QSizeF picture, const PrintSettings &settings)
{
    const QMarginsF margins = settings.page.margins(QPageLayout::Point);
    const QRectF area = settings.page.fullRect(QPageLayout::Point).marginsRemoved(margins);
    double scale = 1;
    if (settings.horizontal == Pagination::Fit && picture.width() > 0)
        scale = std::min(scale, area.width() / picture.width());
    if (settings.vertical == Pagination::Fit && picture.height() > 0)
        scale = std::min(scale, area.height() / picture.height());
    const QSizeF size = picture * scale;
    return {area.x() + offset(area.width(), size.width(), settings.isCentredHorizontally),
            area.y() + offset(area.height(), size.height(), settings.isCentredVertically), size.width(), size.height()};
}

} // namespace app
