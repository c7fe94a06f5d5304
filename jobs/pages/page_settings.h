#pragma once

#include "platform/foundation/result.h"

#include <QColor>
#include <QMarginsF>
#include <QSizeF>
#include <QString>
#include <QVariantMap>

#include <vector>

namespace jobs {

/** Points in a millimetre. */
constexpr double pointsPerMillimetre = 72 / 25.4;

/** How a picture is placed in its box. */
enum class PageFit {
    Fit,     ///< as large as it can be with all of it seen
    Fill,    ///< the place is full; what of the picture has no room there is cut off on both sides
    OwnSize, ///< as large as its resolution says; made smaller where the place is
};

enum class PageSide { Left, Centre, Right };

/** A line or more at the top or the foot of a page. */
struct PageLine
{
    QString pattern; ///< tokens, and {page}, {pages}, {pictures}; empty for no line
    PageSide side = PageSide::Centre;
};

/** How pictures are laid on pages. Lengths are points. */
struct PageSettings
{
    QSizeF paper = {595, 842}; ///< whole points, as seen: wide for a landscape page
    QMarginsF margins = {28.35, 28.35, 28.35, 28.35};
    int rows = 5;
    int columns = 4;
    double gap = 11.34; ///< between two places, across and down
    PageFit fit = PageFit::Fit;
    bool turns = false;   ///< a picture is rotated anticlockwise if that makes it larger
    bool repeats = false; ///< each picture has its own pages and fills all positions of one
    bool hasCropMarks = false;
    bool hasFrames = false; ///< a thin line around each picture
    QString caption;        ///< tokens; lines are parted by line breaks; empty for none
    double captionSize = 7;
    PageLine header;
    PageLine footer;
    double lineSize = 9; ///< of the texts of header and footer
    QString font;        ///< the family; empty for the usual one
    QColor paperColor = Qt::white;
    int dpi = 300;    ///< no picture has more pixels for an inch of paper
    int quality = 90; ///< of pictures, 1 to 100
    QString profile;  ///< as in recipes, with absolute paths; empty for sRGB
};

/** A paper that is known by a word. */
struct Paper
{
    const char *word;
    QSizeF millimetres; ///< upright
};

/** "A3" to "Legal", and those of photographs. */
const std::vector<Paper> &papers();

/**
 * Reads the settings as scripts have them, see PageSettings in interface/quorlin.d.ts: lengths of the page are millimetres there, sizes
 * of texts points. What is missing is as usual.
 *
 * Fails with InvalidValue and a sentence for an impossible value, and if no room is left for pictures.
 */
platform::Result<PageSettings> pageSettingsFrom(const QVariantMap &values);

} // namespace jobs
