#pragma once

#include <QStringList>

namespace platform {

/**
 * Ends what processes left under hidden names that live no more: unfinished files and placeholders go, copies go if what they were made
 * from is there, and items get their names back unless the copy has all of them. Answers the paths of items that got a name again.
 */
QStringList sweepHiddenItems();

} // namespace platform
