#pragma once

#include <QString>

namespace files {

/**
 * Creates a hidden folder in @p folder that only this user may enter. Empty if it cannot be created.
 *
 * The answer ends in "/" and leads to the folder itself, by its descriptor, whatever others put under its name. It is
 * locked as in use until removeStaging() or the end of the process, and costs a descriptor that long.
 */
QString makeStaging(const QString &folder);

/** Removes a folder from makeStaging() of this process, with its contents. Does nothing with any other path. */
void removeStaging(const QString &staging);

/** Removes the folders that makeStaging() made in @p folder for this user and whose process has ended. */
void sweepStagings(const QString &folder);

} // namespace files
