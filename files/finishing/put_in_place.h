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
    QString message; ///< a sentence if it failed
};

/**
 * Renames @p from to @p to within one file system, in one step: at every moment @p to is the old file or the new one.
 * Anything at @p to, including a link, is never touched, even if it appears at the last moment: the outcome is Taken.
 */
PlaceResult placeFile(platform::FileSystem &disk, const QString &from, const QString &to);

/**
 * The same, but the one file or link whose platform::itemIdentity() is @p known may be replaced; anything else at @p to,
 * even if it has just appeared, is Taken. The new file gets the permissions of a replaced regular file.
 *
 * Only file systems that cannot swap two names, such as FAT, check first and then rename: whatever appears in between
 * is replaced.
 */
PlaceResult placeFileInsteadOf(platform::FileSystem &disk, const QString &from, const QString &to,
                               const QString &known);

} // namespace files
