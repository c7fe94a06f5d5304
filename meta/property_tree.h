#pragma once

#include <QVariant>

namespace meta {

/**
 * The nodes of a tree that shows nested dictionaries: one for each key, ascending by the numbers of its UTF-16 units.
 *
 * A node is a dictionary of "key", the property's label in words or the key itself where it has none; "val", the value as
 * it is, or "" for a dictionary; and, for a dictionary only, "children", its nodes. Lists are values like others.
 */
QVariantList nodesOf(const QVariantMap &properties);

} // namespace meta
