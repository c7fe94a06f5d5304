#pragma once

#include <QString>

namespace presets {

/**
 * Renames a presets database that can never hold a preset: an empty file, or a database with none of the store's three
 * tables, as a full disk or a kill at the very first start leaves it. It becomes "NAME.unusable-1", or the next number that
 * is free, and its place is free for a new one.
 *
 * Anything else is left as it is: a database with one of the tables, one that somebody is using, a damaged file and what
 * is no database at all.
 *
 * @return the new path; empty where nothing was renamed
 */
QString setAsideUnusableDatabase(const QString &path);

} // namespace presets
