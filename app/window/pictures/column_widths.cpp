#include "app/window/pictures/column_widths.h"

#include <algorithm>
#include <numeric>

namespace window {

namespace {

constexpr int narrowestTextPx = 60;
constexpr int shortNamePx = 112; // as cameras give them

enum class Part {
    Least,
    All,
};

struct Wish
{
    Part ofNames;
    bool areNamesKept; ///< at leastPx, beside added columns
};

bool hasAdded(const std::vector<ColumnNeed> &needs)
{
    return std::any_of(needs.begin(), needs.end(), [](const ColumnNeed &each) { return each.isAdded; });
}

bool isText(const ColumnNeed &need)
{
    return need.fixedPx == 0;
}

bool isNumbers(const ColumnNeed &need)
{
    return !isText(need);
}

bool isName(const ColumnNeed &need)
{
    return need.isName;
}

bool isAny(const ColumnNeed &)
{
    return true;
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

/** What a text wants to show of its content: of a name no more than its least part first, then all. */
int wantedPx(const ColumnNeed &need, const Wish &wish)
{
    if (!need.isName || wish.ofNames == Part::All)
        return need.contentPx;
    return std::min(need.contentPx, wish.areNamesKept ? need.leastPx : shortNamePx);
}

/** What those columns that count lack for what they want. */
std::vector<int> lacksOf(const std::vector<ColumnNeed> &needs, const std::vector<int> &widths,
                         bool (*counts)(const ColumnNeed &), const Wish &wish)
{
    std::vector<int> lacks;
    for (size_t i = 0; i < needs.size(); ++i)
        lacks.push_back(counts(needs[i]) ? std::max(0, wantedPx(needs[i], wish) - widths[i]) : 0);
    return lacks;
}

/** What texts have beyond what they want. */
std::vector<int> sparesOf(const std::vector<ColumnNeed> &needs, const std::vector<int> &widths, const Wish &wish)
{
    std::vector<int> spares;
    for (size_t i = 0; i < needs.size(); ++i) {
        const int needed = std::max({wantedPx(needs[i], wish), needs[i].headingPx, narrowestTextPx});
        spares.push_back(isText(needs[i]) && needs[i].contentPx > 0 ? std::max(0, widths[i] - needed) : 0);
    }
    return spares;
}

/**
 * Texts pass on what they have beyond their content, and names what they have beyond the least part: to sizes, then to
 * names that lack it.
 */
void passOnToShort(const std::vector<ColumnNeed> &needs, std::vector<int> &widths)
{
    const Wish wish = {Part::Least, hasAdded(needs)};
    const std::vector<int> spares = sparesOf(needs, widths, wish);
    const int spare = std::accumulate(spares.begin(), spares.end(), 0);
    int left = spare;
    giveInOrder(widths, lacksOf(needs, widths, isNumbers, wish), left);
    giveInOrder(widths, lacksOf(needs, widths, isName, wish), left);
    takeFrom(widths, spares, spare - left);
}

/** The same for the rest, to all that lack room. A name that is seen whole gives nothing to a longer one. */
void passOnToAll(const std::vector<ColumnNeed> &needs, std::vector<int> &widths)
{
    const Wish wish = {Part::All, hasAdded(needs)};
    const std::vector<int> spares = sparesOf(needs, widths, wish);
    const int spare = std::accumulate(spares.begin(), spares.end(), 0);
    int left = spare;
    giveAll(widths, lacksOf(needs, widths, isAny, wish), left);
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
    passOnToShort(needs, widths);
    passOnToAll(needs, widths);
    return widths;
}

} // namespace window
