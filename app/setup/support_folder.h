#pragma once

#include "platform/foundation/result.h"

#include <QString>

/** The folder of the user's own patterns and watermarks: how it is set up, and how it is remembered. */
namespace app {

/** What happens to patterns that the chosen folder has from an earlier time. */
enum class OldPatterns { Replace, Keep };

/** The patterns that come with the program. */
QString suppliedPatterns();

/**
 * Sets up the support files below @p root and remembers, in the user's settings and in this order: root as a bookmark
 * ("SupportFilesDestination", taken away if no bookmark can be made), the patterns' path ("PatternsDestination"), then, with
 * the patterns copied from @p patterns, the watermarks' path ("WatermarksDestination").
 *
 * @param root      absolute path; the paths below it are put directly behind it
 * @param patterns  the folder to copy; if patterns are kept, or cannot be removed, nothing is copied
 *
 * Replaced patterns go to the trash if any of them is not a supplied one.
 *
 * Folders that cannot be created and copies that fail are ignored; the paths are remembered all the same.
 */
void setUpSupportFolder(const QString &root, const QString &patterns, OldPatterns old);

/** Whether a support folder was ever chosen. */
bool isSupportFolderKnown();

/** The path of the chosen folder; fails if it is gone, or another has taken its place. */
platform::Result<QString> supportFolder();

} // namespace app
