#pragma once

#include <vector>

namespace window {

/** What a visible column of the picture list needs; all widths in pixels. */
struct ColumnNeed
{
    int fixedPx;   ///< 0: a text, which shares what the others leave
    int headingPx; ///< for its heading
    int share;     ///< of a text
    int leastPx;   ///< of a text beside columns that the user added
    int contentPx; ///< for all that it shows; 0 if that does not matter
    bool isName;
    bool isAdded; ///< by the user
};

/**
 * Widths in which texts stay readable beside columns that the user added, wider than the room together; none if all
 * fits or the user added no column.
 */
std::vector<int> sidewaysWidths(const std::vector<ColumnNeed> &needs, int roomPx);

/**
 * Widths for the room that there is. Without added columns, headings and then texts become as narrow as necessary. What
 * texts do not need for their content goes to columns that lack room for theirs: first to sizes, then to short names.
 */
std::vector<int> fittingWidths(const std::vector<ColumnNeed> &needs, int roomPx);

} // namespace window
