#pragma once

#include "text/token_values.h"

#include <QStringList>

namespace jobs {

/** What a page says of itself in its header and footer. */
struct PageNumbers
{
    int page = 0; ///< from 1
    int pages = 0;
    int pictures = 0; ///< of the whole job
};

/** What is wrong with such a text, as sentences; @p isOfPage if it may have {page}, {pages} and {pictures}. */
QStringList pageTextProblems(const QString &pattern, bool isOfPage);

/** Whether a text needs more of a picture than its path. */
bool pageTextNeedsFacts(const QString &pattern);

/** The lines beneath a picture, in the reader's words; what it lacks is left out. Empty for no pattern. */
QStringList captionLines(const QString &pattern, const text::TokenFacts &facts);

/** The lines of a header or footer. @param first  the first picture of the page */
QStringList pageLines(const QString &pattern, const PageNumbers &numbers, const text::TokenFacts &first);

} // namespace jobs
