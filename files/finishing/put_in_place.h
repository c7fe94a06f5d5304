#pragma once

#include <QString>

namespace platform {
class FileSystem;
}

namespace files {

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
PlaceResult placeFile(platform::FileSystem &disk, const QString &from, const QString &to);

/**
 * The same, but the one file or link whose platform::itemIdentity() is @p known may be replaced; anything else at @p to,
 * also if it got there a moment ago, is Taken. The new file takes the permissions of a regular file that was there.
 *
 * Only a file system that cannot swap two names, such as FAT, looks first and then renames: what gets there in between is replaced.
 */
PlaceResult placeFileInsteadOf(platform::FileSystem &disk, const QString &from, const QString &to,
                               const QString &known);

} // namespace files
