#pragma once

#include <QStringList>

namespace platform {

/**
 * Cleans up what ended processes left under hidden names: unfinished files and placeholders are removed, copies are
 * removed if their originals exist, and items get their names back unless the copy is complete. Answers the paths of
 * restored items.
 */
QStringList sweepHiddenItems();

} // namespace platform
