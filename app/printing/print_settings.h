#pragma once

#include <QPageLayout>
#include <QRectF>
#include <QSizeF>

namespace app {

/** How a picture that is larger than the page is fitted in one direction. */
enum class Pagination {
    Clip, ///< what does not fit is cut off
    Fit,  ///< the picture is scaled down until it fits
};

/** How pictures are laid on pages. */
struct PrintSettings
{
    /** Paper, orientation and margins. */
    QPageLayout page;
    Pagination horizontal = Pagination::Clip;
    Pagination vertical = Pagination::Clip;
    bool isCentredHorizontally = false;
    bool isCentredVertically = false;
};

/**
 * The settings of this run, which every print job changes in place and passes on to the next. Initially: the paper of
 * the user's country, upright, with margins of an inch.
 */
PrintSettings &sharedPrintSettings();

/** No margins, fitted in both directions, centred; paper and orientation stay. */
void fitOnPage(PrintSettings &settings);

/**
 * The position of a picture on the page.
 *
 * @param picture  its size in points
 * @return points from the top left corner of the paper. The picture keeps its proportions and is never enlarged; where it is
 *         larger than the page and only cut off, it begins at the top left of the area inside the margins, or reaches out on
 *         both sides evenly where it is centred
 */
QRectF placeOnPage(QSizeF picture, const PrintSettings &settings);

} // namespace app
