#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QSize>

namespace platform {

/** The cost of drawing an SVG file, computed from its text. */
struct SvgWork
{
    double seconds = 0; ///< of one present-day processor
    double bytes = 0;   ///< including the pixels
};

/**
 * Computes the cost of drawing at @p size from the shapes, filters, masks and copies of a drawing, at their final size.
 * A copy of a group with a filter counts as often as it is drawn.
 */
SvgWork svgWork(const QByteArray &text, QSize size);

/** False for a drawing that would keep the program busy for long, or that needs more memory than a picture may use. */
bool canDrawSvg(const SvgWork &work);

} // namespace platform
