#pragma once

#include "jobs/pages/page_content.h"

#include <functional>

class QPainter;

namespace app {

/** Draws a picture into its place; nothing for one whose pixels are not there. */
using DrawPicture = std::function<void(QPainter &painter, const jobs::PicturePlace &place)>;

/**
 * Draws a page, in whose painter a unit is a point and the origin the corner of the paper: the same into a PDF, on a printer and on the
 * screen. Texts that are too long for their places end in an ellipsis.
 */
void drawPage(QPainter &painter, const jobs::PageContent &page, const DrawPicture &drawPicture);

} // namespace app
