#include "jobs/pages/page_layout.h"

#include <algorithm>
#include <cmath>

namespace jobs {
namespace {

/** From one base line to the next, and from the top of a line to its own, in sizes of the text. */
constexpr double lineStep = 1.25;
constexpr double baseLine = 0.95;
/** Between a picture and its caption. */
constexpr double aboveCaption = 3;
/** Between the lines of a page and its pictures. */
constexpr double besideLines = 8;
constexpr double pointsPerInch = 72;

int lineCount(const QString &text)
{
    return text.isEmpty() ? 0 : int(text.count(u'\n')) + 1;
}

struct Scaled
{
    QSizeF size;
    QRectF part = {0, 0, 1, 1};
};

Scaled filled(QSizeF picture, QSizeF place)
{
    const QSizeF whole = picture.scaled(place, Qt::KeepAspectRatioByExpanding);
    const double across = std::min(1.0, place.width() / whole.width());
    const double down = std::min(1.0, place.height() / whole.height());
    return {place, {(1 - across) / 2, (1 - down) / 2, across, down}};
}

Scaled scaledInto(QSizeF pixels, QSizeF points, QSizeF place, PageFit fit)
{
    switch (fit) {
    case PageFit::Fill:
        return filled(pixels, place);
    case PageFit::OwnSize:
        if (points.width() <= place.width() && points.height() <= place.height())
            return {points};
        return {points.scaled(place, Qt::KeepAspectRatio)};
    case PageFit::Fit:
        break;
    }
    return {pixels.scaled(place, Qt::KeepAspectRatio)};
}

/** Whether one is landscape and the other portrait; a square is neither. */
bool areCrosswise(QSizeF one, QSizeF other)
{
    return (one.width() - one.height()) * (other.width() - other.height()) < 0;
}

} // namespace

double heightOfLines(int lines, double size)
{
    return lines * lineStep * size;
}

PageGrid gridOf(const PageSettings &settings)
{
    const QRectF area = QRectF(QPointF(), settings.paper).marginsRemoved(settings.margins);
    const double top = heightOfLines(lineCount(settings.header.pattern), settings.lineSize);
    const double foot = heightOfLines(lineCount(settings.footer.pattern), settings.lineSize);
    PageGrid grid;
    grid.header = {area.left(), area.top(), area.width(), top};
    grid.footer = {area.left(), area.bottom() - foot, area.width(), foot};
    const QRectF inner = area.adjusted(0, top > 0 ? top + besideLines : 0, 0, foot > 0 ? -foot - besideLines : 0);
    const int captions = lineCount(settings.caption);
    const double caption = captions > 0 ? aboveCaption + heightOfLines(captions, settings.captionSize) : 0;
    const double width = (inner.width() - settings.gap * (settings.columns - 1)) / settings.columns;
    const double height = (inner.height() - settings.gap * (settings.rows - 1)) / settings.rows;
    for (int row = 0; row < settings.rows; ++row)
        for (int column = 0; column < settings.columns; ++column) {
            const double left = inner.left() + column * (width + settings.gap);
            const double above = inner.top() + row * (height + settings.gap);
            PageCell cell;
            cell.picture = {left, above, width, height - caption};
            cell.caption = {left, above + height - caption + (captions > 0 ? aboveCaption : 0), width,
                            heightOfLines(captions, settings.captionSize)};
            grid.cells.push_back(cell);
        }
    return grid;
}

bool hasRoom(const PageGrid &grid)
{
    return !grid.cells.empty() && grid.cells.front().picture.width() >= pointsPerMillimetre &&
           grid.cells.front().picture.height() >= pointsPerMillimetre;
}

int pageCount(const PageSettings &settings, int pictures)
{
    const int places = settings.repeats ? 1 : settings.rows * settings.columns;
    return (pictures + places - 1) / places;
}

int pictureAt(const PageSettings &settings, int pictures, int page, int cell)
{
    const int picture = settings.repeats ? page : page * settings.rows * settings.columns + cell;
    return picture < pictures ? picture : -1;
}

PlacedPicture placed(QSize pixels, QSizeF points, const QRectF &place, const PageSettings &settings)
{
    PlacedPicture picture;
    picture.place = QRectF(place.center(), QSizeF());
    if (pixels.isEmpty() || points.isEmpty())
        return picture;
    // A picture whose size does not depend on the page is rotated only if it would otherwise be reduced.
    const bool isInside =
        settings.fit == PageFit::OwnSize && points.width() <= place.width() && points.height() <= place.height();
    picture.isTurned = settings.turns && !isInside && areCrosswise(pixels, place.size());
    const QSizeF size = picture.isTurned ? QSizeF(pixels).transposed() : QSizeF(pixels);
    const QSizeF onPaper = picture.isTurned ? points.transposed() : points;
    const Scaled scaled = scaledInto(size, onPaper, place.size(), settings.fit);
    picture.place = QRectF(QPointF(), scaled.size);
    picture.place.moveCenter(place.center());
    if (!settings.caption.isEmpty())
        picture.place.moveBottom(place.bottom()); // close to what is written beneath it
    picture.part = scaled.part;
    return picture;
}

QSize pixelsOf(const PlacedPicture &picture, QSize pixels, int dpi)
{
    const QSizeF turned = picture.isTurned ? QSizeF(pixels).transposed() : QSizeF(pixels);
    const QSizeF seen(turned.width() * picture.part.width(), turned.height() * picture.part.height());
    const QSizeF paper = picture.place.size() / pointsPerInch * dpi;
    const double scale = std::min({1.0, paper.width() / seen.width(), paper.height() / seen.height()});
    return QSize(int(std::lround(seen.width() * scale)), int(std::lround(seen.height() * scale))).expandedTo({1, 1});
}

std::vector<QLineF> cropMarks(const QRectF &picture, const QRectF &room)
{
    constexpr double away = 1.5;
    constexpr double length = 12;
    std::vector<QLineF> marks;
    const auto add = [&marks](QPointF from, QPointF to) {
        if (QLineF(from, to).length() >= pointsPerMillimetre)
            marks.emplace_back(from, to);
    };
    const double left = std::max(room.left(), picture.left() - away - length);
    const double right = std::min(room.right(), picture.right() + away + length);
    const double top = std::max(room.top(), picture.top() - away - length);
    const double bottom = std::min(room.bottom(), picture.bottom() + away + length);
    for (const double y : {picture.top(), picture.bottom()}) {
        if (left < picture.left() - away)
            add({left, y}, {picture.left() - away, y});
        if (right > picture.right() + away)
            add({picture.right() + away, y}, {right, y});
    }
    for (const double x : {picture.left(), picture.right()}) {
        if (top < picture.top() - away)
            add({x, top}, {x, picture.top() - away});
        if (bottom > picture.bottom() + away)
            add({x, picture.bottom() + away}, {x, bottom});
    }
    return marks;
}

QRectF roomAround(const PageSettings &settings, const PageGrid &grid, int cell)
{
    const PageCell &own = grid.cells[size_t(cell)];
    const double half = settings.gap / 2;
    const int row = cell / settings.columns;
    const int column = cell % settings.columns;
    QRectF room = own.picture.adjusted(-half, -half, half, half);
    if (column == 0)
        room.setLeft(0);
    if (column == settings.columns - 1)
        room.setRight(settings.paper.width());
    if (row == 0)
        room.setTop(grid.header.height() > 0 ? grid.header.bottom() : 0);
    if (own.caption.height() > 0)
        room.setBottom(own.picture.bottom());
    else if (row == settings.rows - 1)
        room.setBottom(grid.footer.height() > 0 ? grid.footer.top() : settings.paper.height());
    return room;
}

std::vector<TextPlace> linesIn(const QRectF &area, double size, PageSide side)
{
    std::vector<TextPlace> lines;
    const int count = int(std::lround(area.height() / (lineStep * size)));
    for (int line = 0; line < count; ++line) {
        const double y = area.top() + (line * lineStep + baseLine) * size;
        const double x = side == PageSide::Left    ? area.left()
                         : side == PageSide::Right ? area.right()
                                                   : area.center().x();
        lines.push_back({{x, y}, area.width()});
    }
    return lines;
}

} // namespace jobs
