#pragma once

#include <QString>

namespace window {

/**
 * Makes a hidden folder in @p folder that only this user may enter, named after this machine and process; ends in "/".
 * Empty where it cannot be made.
 */
QString makeStaging(const QString &folder);

/** Removes a folder made by makeStaging(), by any process, with the files in it. Does nothing with any other path. */
void removeStaging(const QString &staging);

/** Removes the staging folders in @p folder that processes of this machine left behind that have ended. */
void sweepStagings(const QString &folder);

enum class IfTaken { Refuse, Replace };
enum class PlaceOutcome { Placed, Taken, Failed };

struct PlaceResult
{
    PlaceOutcome outcome = PlaceOutcome::Failed;
    QString message; ///< a sentence where it failed
};

/**
 * Renames @p from to @p to inside one file system, in one step: at every moment @p to is the old file or the new one.
 *
 * With Refuse nothing that is at @p to, a link included, is ever touched, not even if it appears at the last moment.
 * With Replace a file or link is replaced, and the new file takes the permissions of a regular file that was there; a
 * folder is never replaced.
 */
PlaceResult placeFile(const QString &from, const QString &to, IfTaken ifTaken);

} // namespace window
