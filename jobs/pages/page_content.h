#pragma once

#include "jobs/pages/page_layout.h"
#include "jobs/pages/page_texts.h"

#include <functional>

namespace jobs {

/** What is known of a picture before it is laid on a page. */
struct PagePicture
{
    QSize pixels;  ///< upright; empty for one that cannot be read, whose place is crossed out
    QSizeF points; ///< how large its resolution says that it is
    text::TokenFacts facts;
};

/** A line of text. */
struct PageText
{
    QString text;
    QPointF anchor;                   ///< on the base line
    PageSide side = PageSide::Centre; ///< which end of the line the anchor is
    double width = 0;                 ///< what is longer is shortened
    double size = 0;
};

struct PicturePlace
{
    int picture = 0; ///< which one of the job
    PlacedPicture placed;
};

/** One page, ready to be drawn. Lengths are points. */
struct PageContent
{
    QSizeF paper;
    QColor paperColor;
    QString font;
    bool hasFrames = false;
    std::vector<PicturePlace> pictures;
    std::vector<QRectF> missing; ///< places of pictures that cannot be read
    std::vector<PageText> texts;
    std::vector<QLineF> marks;

    /** Black, or white on dark paper. */
    QColor ink() const;
};

/** A job: pictures in their order, on pages. */
struct PageJob
{
    PageSettings settings;
    int pictures = 0;
    /** What is known of one of them. */
    std::function<PagePicture(int picture)> picture;

    int pages() const { return pageCount(settings, pictures); }
};

/** @param page  from 0, below the number of pages */
PageContent contentOf(const PageJob &job, int page);

} // namespace jobs
