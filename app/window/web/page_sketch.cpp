#include "app/window/web/page_sketch.h"

#include "text/page/page_colors.h"

#include <QPainter>
#include <QPainterPath>
#include <QVariant>

#include <algorithm>

namespace window {

namespace {

constexpr double gap = 4;
constexpr double captionHeight = 7;
constexpr double rowHeight = 30;
constexpr double margin = 10;

QList<double> usualRatios()
{
    return {1.5, 0.67, 1.33, 1.5, 1.78, 0.75, 1, 1.5, 1.33, 0.67, 1.5, 1.5};
}

QList<QRectF> gridPlaces(qsizetype count, double width, double below)
{
    constexpr double side = 40;
    const int columns = std::max(2, int((width + gap) / (side + gap)));
    const double cell = (width - gap * (columns - 1)) / columns;
    QList<QRectF> places;
    for (int i = 0; i < count; ++i)
        places.append({(i % columns) * (cell + gap), (i / columns) * (cell + gap + below), cell, cell});
    return places;
}

QList<QRectF> rowPlaces(const QList<double> &ratios, double width, double below)
{
    QList<QRectF> places;
    double top = 0;
    for (qsizetype first = 0; first < ratios.size();) {
        double sum = 0;
        qsizetype end = first;
        while (end < ratios.size() &&
               (end == first || (sum + ratios[end]) * rowHeight + gap * double(end - first) <= width))
            sum += ratios[end++];
        const double room = width - gap * double(end - first - 1);
        const double height = end == ratios.size() ? std::min(rowHeight, room / sum) : room / sum;
        double left = 0;
        for (; first < end; ++first) {
            places.append({left, top, ratios[first] * height, height});
            left += ratios[first] * height + gap;
        }
        top += height + gap + below;
    }
    return places;
}

QList<QRectF> storyPlaces(const QList<double> &ratios, double width, double below)
{
    constexpr double widest = 90;
    const double column = std::min(width, widest);
    QList<QRectF> places;
    double top = 0;
    for (const double ratio : ratios) {
        places.append({0, top, column, column / ratio});
        top += column / ratio + 2 * gap + below;
    }
    return places;
}

} // namespace

PageSketch::PageSketch(QWidget *parent) : QWidget(parent), m_ratios(usualRatios())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PageSketch::setStyle(const QString &style)
{
    if (style == QStringLiteral("grid") || style == QStringLiteral("rows") || style == QStringLiteral("story"))
        change(m_style, style);
}

void PageSketch::setRatios(const QVariantList &ratios)
{
    QList<double> numbers;
    for (const QVariant &ratio : ratios)
        if (ratio.toDouble() > 0)
            numbers.append(std::clamp(ratio.toDouble(), 0.1, 10.0));
    change(m_ratios, numbers.isEmpty() || numbers.size() < ratios.size() ? usualRatios() : numbers);
}

QList<QRectF> PageSketch::places(const QString &style, const QList<double> &ratios, double width, bool hasCaptions)
{
    const double below = hasCaptions ? captionHeight : 0;
    if (style == QStringLiteral("grid"))
        return gridPlaces(ratios.size(), width, below);
    return style == QStringLiteral("rows") ? rowPlaces(ratios, width, below) : storyPlaces(ratios, width, below);
}

// Both as large as possible; the one seen in daylight comes first.
void PageSketch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr double lightShare = 0.62;
    const double between = 8;
    const double light = (width() - between) * lightShare;
    drawPage(painter, {0, 0, light, double(height())}, m_lightPaper);
    drawPage(painter, {light + between, 0, width() - between - light, double(height())}, m_darkPaper);
}

void PageSketch::drawPage(QPainter &painter, const QRectF &page, const QString &paper) const
{
    const text::PageColors colors = text::pageColors(paper, m_accent);
    painter.save();
    QPainterPath outline;
    outline.addRoundedRect(page.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    painter.fillPath(outline, QColor(colors.paper));
    painter.setClipPath(outline);
    const QRectF inner = page.adjusted(margin, margin, -margin, 0);
    const auto placed = [&](QRectF place) {
        place.translate(inner.topLeft());
        if (m_isFromRight)
            place.moveRight(inner.left() + inner.right() - place.left());
        return place;
    };
    QFont font = this->font();
    font.setPixelSize(12);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(colors.ink));
    const QRectF title(inner.left(), inner.top(), inner.width(), 16);
    painter.drawText(title, int(m_isFromRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(m_title, Qt::ElideRight, int(inner.width())));
    painter.setPen(Qt::NoPen);
    painter.fillRect(placed({0, 21, inner.width() * 0.55, 2.5}), QColor(colors.soft));
    constexpr double top = 32;
    int i = 0;
    for (const QRectF &place : places(m_style, m_ratios, inner.width(), m_hasCaptions)) {
        const QRectF picture = placed(place.translated(0, top));
        QColor shade(i++ % 3 == 0 ? colors.accent : colors.soft);
        shade.setAlphaF(0.55F);
        painter.fillRect(picture, shade);
        if (m_hasCaptions)
            painter.fillRect(placed({place.left(), place.bottom() + top + 3, place.width() * 0.6, 2}),
                             QColor(colors.soft));
    }
    painter.setClipping(false);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    painter.restore();
}

} // namespace window
