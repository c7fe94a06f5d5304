#pragma once

#include <QString>

namespace window {

/**
 * Makes a hidden folder in @p folder that only this user may enter. Empty where it cannot be made.
 *
 * The answer ends in "/" and leads to the folder itself, by its descriptor, whatever others put in the place of its name.
 * It is held, with a sign of life, until removeStaging() or the end of the process, and costs a descriptor that long.
 */
QString makeStaging(const QString &folder);

/** Removes a folder that makeStaging() of this process gave, with all that is in it. Does nothing with any other path. */
void removeStaging(const QString &staging);

/** Removes the folders that makeStaging() made in @p folder for this user and whose process has ended. */
void sweepStagings(const QString &folder);

enum class PlaceOutcome { Placed, Taken, Failed };

struct PlaceResult
{
    PlaceOutcome outcome = PlaceOutcome::Failed;
    QString message; ///< a sentence where it failed
};

/**
 * Renames @p from to @p to inside one file system, in one step: at every moment @p to is the old file or the new one.
 * Whatever is at @p to, a link included, is never touched, not even if it appears at the last moment: the outcome is Taken.
 */
PlaceResult placeFile(const QString &from, const QString &to);

/**
 * The same, but the one file or link whose platform::itemIdentity() is @p known may be replaced; anything else at @p to,
 * also if it got there a moment ago, is Taken. The new file takes the permissions of a regular file that was there.
 */
PlaceResult placeFileInsteadOf(const QString &from, const QString &to, const QString &known);

} // namespace window
