#include "jobs/pages/page_content.h"

#include <algorithm>

namespace jobs {
namespace {

void addLines(PageContent &content, const QStringList &lines, const QRectF &area, double size, PageSide side)
{
    const std::vector<TextPlace> places = linesIn(area, size, side);
    for (size_t i = 0; i < places.size() && i < size_t(lines.size()); ++i)
        if (const QString text = lines[qsizetype(i)].trimmed(); !text.isEmpty())
            content.texts.push_back({text, places[i].anchor, side, places[i].width, size});
}

void addPicture(PageContent &content, const PageJob &job, int number, const PageGrid &grid, int cell)
{
    const PageCell &place = grid.cells[size_t(cell)];
    const PagePicture picture = job.picture(number);
    const PageSettings &settings = job.settings;
    addLines(content, captionLines(settings.caption, picture.facts), place.caption, settings.captionSize,
             PageSide::Centre);
    if (picture.pixels.isEmpty()) {
        content.missing.push_back(place.picture);
        return;
    }
    const PlacedPicture lying = placed(picture.pixels, picture.points, place.picture, settings);
    content.pictures.push_back({number, lying});
    if (settings.hasCropMarks)
        for (const QLineF &mark : cropMarks(lying.place, roomAround(settings, grid, cell)))
            content.marks.push_back(mark);
}

} // namespace

QColor PageContent::ink() const
{
    constexpr int middle = 128;
    return qGray(paperColor.rgb()) < middle ? Qt::white : Qt::black;
}

PageContent contentOf(const PageJob &job, int page)
{
    const PageSettings &settings = job.settings;
    const PageGrid grid = gridOf(settings);
    PageContent content;
    content.paper = settings.paper;
    content.paperColor = settings.paperColor;
    content.font = settings.font;
    content.hasFrames = settings.hasFrames;
    for (size_t cell = 0; cell < grid.cells.size(); ++cell)
        if (const int number = pictureAt(settings, job.pictures, page, int(cell)); number >= 0)
            addPicture(content, job, number, grid, int(cell));
    const PageNumbers numbers = {page + 1, job.pages(), job.pictures};
    const int first = pictureAt(settings, job.pictures, page, 0);
    const text::TokenFacts facts = first >= 0 ? job.picture(first).facts : text::TokenFacts();
    for (const auto &[line, area] : {std::pair(settings.header, grid.header), std::pair(settings.footer, grid.footer)})
        addLines(content, pageLines(line.pattern, numbers, facts), area, settings.lineSize, line.side);
    return content;
}

} // namespace jobs
