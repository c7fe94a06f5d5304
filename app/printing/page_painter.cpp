#include "app/printing/page_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

namespace app {
namespace {

/** Text is measured at this size and drawn smaller, so that it has the same width on every device. */
constexpr int fontPixels = 100;
constexpr double hairline = 0.25;
constexpr double fineLine = 0.5;

QFont fontOf(const jobs::PageContent &page)
{
    QFont font;
    if (!page.font.isEmpty())
        font.setFamily(page.font);
    font.setPixelSize(fontPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void drawText(QPainter &painter, const jobs::PageText &text, const QFontMetricsF &metrics)
{
    const double scale = text.size / fontPixels;
    const QString shown = metrics.elidedText(text.text, Qt::ElideRight, text.width / scale);
    const double width = metrics.horizontalAdvance(shown);
    const double left = text.side == jobs::PageSide::Left    ? 0
                        : text.side == jobs::PageSide::Right ? -width
                                                             : -width / 2;
    painter.save();
    painter.translate(text.anchor);
    painter.scale(scale, scale);
    painter.drawText(QPointF(left, 0), shown);
    painter.restore();
}

void drawTexts(QPainter &painter, const jobs::PageContent &page)
{
    const QFont font = fontOf(page);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(page.ink());
    for (const jobs::PageText &text : page.texts)
        drawText(painter, text, metrics);
}

/** The box of a picture that cannot be read. */
void drawMissing(QPainter &painter, const QRectF &place, const QColor &ink)
{
    QColor faint = ink;
    constexpr double share = 0.35;
    faint.setAlphaF(share);
    painter.setPen(QPen(faint, fineLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place);
    painter.drawLine(place.topLeft(), place.bottomRight());
    painter.drawLine(place.topRight(), place.bottomLeft());
}

void drawLines(QPainter &painter, const jobs::PageContent &page)
{
    for (const QRectF &place : page.missing)
        drawMissing(painter, place, page.ink());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(page.ink(), fineLine));
    if (page.hasFrames)
        for (const jobs::PicturePlace &picture : page.pictures)
            painter.drawRect(picture.placed.place);
    painter.setPen(QPen(page.ink(), hairline));
    for (const QLineF &mark : page.marks)
        painter.drawLine(mark);
}

} // namespace

void drawPage(QPainter &painter, const jobs::PageContent &page, const DrawPicture &drawPicture)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    if (page.paperColor != Qt::white)
        painter.fillRect(QRectF(QPointF(), page.paper), page.paperColor);
    for (const jobs::PicturePlace &picture : page.pictures)
        drawPicture(painter, picture);
    drawLines(painter, page);
    drawTexts(painter, page);
}

} // namespace app
