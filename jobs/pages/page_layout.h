#pragma once

#include "jobs/pages/page_settings.h"

#include <QLineF>
#include <QRectF>

#include <vector>

/** The positions of pictures and texts on pages. Pure; lengths are points from the top left corner of the paper. */
namespace jobs {

/** The place of one picture, and what is written beneath it. */
struct PageCell
{
    QRectF picture;
    QRectF caption; ///< no height if there is none
};

/** What all pages of a job have in common. */
struct PageGrid
{
    QRectF header; ///< no height if there is none
    QRectF footer;
    std::vector<PageCell> cells; ///< row by row
};

PageGrid gridOf(const PageSettings &settings);

/** Whether each place has room for a picture, of a millimetre at least. */
bool hasRoom(const PageGrid &grid);

/** Pages for so many pictures; 0 for none. */
int pageCount(const PageSettings &settings, int pictures);

/** The picture at a position of a page, all counted from 0; -1 if that stays empty. */
int pictureAt(const PageSettings &settings, int pictures, int page, int cell);

/** A picture in its place. */
struct PlacedPicture
{
    QRectF place;
    bool isTurned = false;
    /** What is seen of the picture as it is turned, from 0 to 1 of its sides. */
    QRectF part = {0, 0, 1, 1};
};

/**
 * Lays a picture into a place: in its middle, or at its foot where a caption follows.
 *
 * @param pixels  of the upright picture
 * @param points  how large its resolution says that it is
 */
PlacedPicture placed(QSize pixels, QSizeF points, const QRectF &place, const PageSettings &settings);

/**
 * The pixels that a placed picture is made of: no more than it has, and no more than the paper shows at so many for an inch. As it is
 * turned, and without what is cut off; 1 at least.
 */
QSize pixelsOf(const PlacedPicture &picture, QSize pixels, int dpi);

/**
 * The lines by which a picture is cut out: at each corner two, that begin a little outside of it.
 *
 * @param room  a line never extends beyond this, and is left out if it would be shorter than a millimetre
 */
std::vector<QLineF> cropMarks(const QRectF &picture, const QRectF &room);

/** As far around a place as half of what parts it from the next one, and at the edge of the page to its edge. */
QRectF roomAround(const PageSettings &settings, const PageGrid &grid, int cell);

/** The lines of a text in an area, from its top: where each is positioned, with its left end, middle or right end. */
struct TextPlace
{
    QPointF anchor; ///< on the base line
    double width = 0;
};
std::vector<TextPlace> linesIn(const QRectF &area, double size, PageSide side);

/** How high so many lines of a size are. */
double heightOfLines(int lines, double size);

} // namespace jobs
