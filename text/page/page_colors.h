#pragma once

#include <QString>

namespace text {

/** The colours of a page by daylight or in the dark, "#rrggbb" each, in which every text can be read. */
struct PageColors
{
    QString paper;  ///< behind everything
    QString ink;    ///< of texts
    QString soft;   ///< of captions and words
    QString accent; ///< of links
};

/**
 * Colours that go with a paper and an accent, each "#rrggbb": ink is black or white, what can be read better; the accent comes as much
 * nearer to the ink as it takes for a contrast of 4.5 to 1, and so do soft texts. A text that is no colour is white, or blue for the accent.
 */
PageColors pageColors(const QString &paper, const QString &accent);

/** The contrast of two colours "#rrggbb", 1 to 21, as the guidelines for accessible pages reckon it. */
double contrastOf(const QString &one, const QString &other);

} // namespace text
