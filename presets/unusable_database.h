#pragma once

#include <QString>

namespace presets {

/**
 * Renames a presets database that can never hold a preset: an empty file, or a database with none of the store's three
 * tables, as left by a full disk or a kill at the very first start. It becomes "NAME.unusable-1", or the next free
 * number, and its path is free for a new one.
 *
 * Anything else is left alone: a database with one of the tables, one in use, a damaged file and what is not a
 * database at all.
 *
 * @return the new path; empty if nothing was renamed
 */
QString setAsideUnusableDatabase(const QString &path);

} // namespace presets
