#pragma once

#include <QString>

namespace files {

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

} // namespace files
