#pragma once

#include "jobs/pages/page_content.h"

#include <functional>

class QPainter;

namespace app {

/** Draws a picture into its box; nothing if its pixels are missing. */
using DrawPicture = std::function<void(QPainter &painter, const jobs::PicturePlace &place)>;

/**
 * Draws a page, in points from the corner of the paper: the same for a PDF, a printer and the screen. Texts that are
 * too long for their boxes end in an ellipsis.
 */
void drawPage(QPainter &painter, const jobs::PageContent &page, const DrawPicture &drawPicture);

} // namespace app
