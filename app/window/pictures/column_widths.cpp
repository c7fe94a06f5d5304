#include "app/window/pictures/column_widths.h"

#include <algorithm>
#include <numeric>

namespace window {

namespace {

constexpr int narrowestTextPx = 60;

bool hasAdded(const std::vector<ColumnNeed> &needs)
{
    return std::any_of(needs.begin(), needs.end(), [](const ColumnNeed &each) { return each.isAdded; });
}

bool isText(const ColumnNeed &need)
{
    return need.fixedPx == 0;
}

/** A numeric column with its heading. */
int wholePx(const ColumnNeed &need)
{
    return std::max(need.fixedPx, need.headingPx);
}

} // namespace

std::vector<int> sidewaysWidths(const std::vector<ColumnNeed> &needs, int roomPx)
{
    std::vector<int> widths;
    for (const ColumnNeed &each : needs)
        widths.push_back(isText(each) ? std::max(each.leastPx, each.headingPx) : wholePx(each));
    const bool fits = std::accumulate(widths.begin(), widths.end(), 0) <= roomPx;
    return fits || !hasAdded(needs) ? std::vector<int>() : widths;
}

std::vector<int> fittingWidths(const std::vector<ColumnNeed> &needs, int roomPx)
{
    const bool areNamesKept = hasAdded(needs);
    const auto least = [areNamesKept](const ColumnNeed &each) {
        return std::max(areNamesKept && each.isName ? each.leastPx : narrowestTextPx, each.headingPx);
    };
    int shares = 0;
    int headings = 0;
    int texts = 0;
    for (const ColumnNeed &each : needs) {
        roomPx -= isText(each) ? 0 : wholePx(each);
        shares += isText(each) ? each.share : 0;
        headings += isText(each) ? least(each) : 0;
        texts += isText(each) ? 1 : 0;
    }
    const bool isNarrow = headings > roomPx;
    const int spare = std::max(0, roomPx - (isNarrow ? texts * narrowestTextPx : headings));
    // If even narrow texts do not fit, a long heading is truncated: only for added columns does the list scroll sideways.
    int lacking = std::max(0, texts * narrowestTextPx - roomPx);
    std::vector<int> widths;
    for (const ColumnNeed &each : needs) {
        const int given = isText(each) ? 0 : std::min(lacking, wholePx(each) - each.fixedPx);
        lacking -= given;
        const int text = (isNarrow ? narrowestTextPx : least(each)) + spare * each.share / std::max(1, shares);
        widths.push_back(isText(each) ? text : wholePx(each) - given);
    }
    return widths;
}

} // namespace window
