#pragma once

#include <QString>

namespace files {

/** What is put at the destination: the item itself, a copy of it, or a link that leads to it. */
enum class Placing { Move, Copy, Link };

/**
 * Puts @p source, or a copy of it, or a link to it, at @p destination; true if that was done.
 *
 * In this order: the folder of the destination is made with all above it that are missing; if it is still not there, that
 * is all. Then what is at the destination is removed for good, a link without what it leads to. Then the item is placed. So
 * the target is gone also where the source turns out to be missing, and an item that is moved onto itself is lost:
 * callers decide about names that are taken before they call. A link says exactly @p source, and may lead nowhere.
 */
bool place(Placing placing, const QString &source, const QString &destination);

} // namespace files
