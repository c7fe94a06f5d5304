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

/** Gives columns part of what they lack; of @p sparePx, which becomes less. */
void giveAll(std::vector<int> &widths, const std::vector<int> &lacks, int &sparePx)
{
    const int lacking = std::accumulate(lacks.begin(), lacks.end(), 0);
    const int given = std::min(lacking, sparePx);
    for (size_t i = 0; lacking > 0 && i < widths.size(); ++i)
        widths[i] += lacks[i] * given / lacking;
    sparePx -= given;
}

/** The same for the columns one after the other, as far as there is something. */
void giveInOrder(std::vector<int> &widths, const std::vector<int> &lacks, int &sparePx)
{
    for (size_t i = 0; i < widths.size(); ++i) {
        const int given = std::min(lacks[i], sparePx);
        widths[i] += given;
        sparePx -= given;
    }
}

/** Takes from texts @p takenPx of what they do not need, which is no less; from the last first, the status. */
void takeFrom(std::vector<int> &widths, const std::vector<int> &spares, int takenPx)
{
    for (size_t i = widths.size(); i-- > 0;) {
        const int taken = std::min(takenPx, spares[i]);
        widths[i] -= taken;
        takenPx -= taken;
    }
}

/**
 * Lets texts pass on what they do not need, and names what they have beyond leastPx: to sizes, then to names that are
 * short of it, then to all.
 */
void passOn(const std::vector<ColumnNeed> &needs, std::vector<int> &widths)
{
    std::vector<int> spares;
    for (size_t i = 0; i < needs.size(); ++i) {
        const int content = needs[i].isName ? std::min(needs[i].contentPx, needs[i].leastPx) : needs[i].contentPx;
        const int needed = std::max({content, needs[i].headingPx, narrowestTextPx});
        spares.push_back(isText(needs[i]) && needs[i].contentPx > 0 ? std::max(0, widths[i] - needed) : 0);
    }
    const int spare = std::accumulate(spares.begin(), spares.end(), 0);
    int left = spare;
    const auto lacks = [&](const auto &counts, bool isLimited) {
        std::vector<int> lacking;
        for (size_t i = 0; i < needs.size(); ++i) {
            const int wanted = isLimited ? std::min(needs[i].contentPx, needs[i].leastPx) : needs[i].contentPx;
            lacking.push_back(counts(needs[i]) ? std::max(0, wanted - widths[i]) : 0);
        }
        return lacking;
    };
    giveInOrder(widths, lacks([](const ColumnNeed &each) { return !isText(each); }, false), left);
    giveInOrder(widths, lacks([](const ColumnNeed &each) { return each.isName; }, true), left);
    giveAll(widths, lacks([](const ColumnNeed &) { return true; }, false), left);
    takeFrom(widths, spares, spare - left);
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
    passOn(needs, widths);
    return widths;
}

} // namespace window
