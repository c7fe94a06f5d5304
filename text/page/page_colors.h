#pragma once

#include <QString>

namespace text {

/** The colours of a page, light or dark, "#rrggbb" each, in which every text is readable. */
struct PageColors
{
    QString paper;  ///< behind everything
    QString ink;    ///< of texts
    QString soft;   ///< of captions and words
    QString accent; ///< of links
};

/**
 * Colours that go with a paper and an accent, each "#rrggbb": ink is black or white, whichever is more readable; the
 * accent is moved towards the ink until its contrast is 4.5 to 1, and so are soft texts. An invalid colour becomes
 * white, or blue for the accent.
 */
PageColors pageColors(const QString &paper, const QString &accent);

/** The contrast of two colours "#rrggbb", 1 to 21, as defined by the accessibility guidelines. */
double contrastOf(const QString &one, const QString &other);

} // namespace text
