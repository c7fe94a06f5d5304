#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QSize>

namespace platform {

/** What drawing an SVG file takes, reckoned from its text. */
struct SvgWork
{
    double seconds = 0; ///< of one processor of today
    double bytes = 0;   ///< the pixels included
};

/**
 * Reckons from the shapes, filters, masks and copies of a drawing, as large as they become, what it takes to draw it at @p size. A copy of a group with a filter
 * counts as often as it is drawn.
 */
SvgWork svgWork(const QByteArray &text, QSize size);

/** False for a drawing that would keep the program busy for long, or that needs more memory than a picture may. */
bool canDrawSvg(const SvgWork &work);

} // namespace platform
