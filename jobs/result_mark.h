#pragma once

#include <QString>

namespace jobs {

/**
 * Notes on a result, before it takes its place, what it was made of and how; where the disk has no place for notes, nothing.
 *
 * @param settings  the same text for the same settings
 */
void markResult(const QString &result, const QString &source, const QString &settings);

/** Removes the note again. */
void unmarkResult(const QString &result);

/** Whether the file at @p path carries the note of these settings and of the source as it is now, and is as it was made. */
bool isCurrentResult(const QString &path, const QString &source, const QString &settings);

/** Whether the file at @p path carries a note of this recipe, whatever it was made of, and is as it was made. */
bool isResultOf(const QString &path, const QString &recipeName);

/** Whether the file at @p path carries a note of any settings, and is as it was made. */
bool isResult(const QString &path);

} // namespace jobs
