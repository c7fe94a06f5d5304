#pragma once

#include <QString>

namespace files {

/** What is put at the destination: the item itself, a copy of it, or a link to it. */
enum class Placing { Move, Copy, Link };

/**
 * Puts @p source, or a copy of it, or a link to it, at @p destination; true on success.
 *
 * In this order: the destination's folder is created with all missing parents; if it still does not exist, the
 * operation ends. Then whatever is at the destination is permanently removed, but not the target of a link. Then the
 * item is placed. So the destination is removed even if the source turns out to be missing, and an item that is moved
 * onto itself is lost: callers decide about existing files before they call. A link has exactly the text @p source, and
 * may dangle.
 */
bool place(Placing placing, const QString &source, const QString &destination);

} // namespace files
