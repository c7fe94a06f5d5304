#pragma once

#include <QVariant>

namespace meta {

/**
 * The nodes of a tree that shows nested dictionaries: one for each key, in ascending order of UTF-16 units.
 *
 * A node is a dictionary of "key", the property's label in words or the key itself if it has none; "val", the unchanged
 * value, or "" for a dictionary; and, for a dictionary only, "children", its nodes. Lists are values like others.
 */
QVariantList nodesOf(const QVariantMap &properties);

} // namespace meta
