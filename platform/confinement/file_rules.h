#pragma once

// Inside platform/confinement.

#include <QStringList>

namespace platform {

/**
 * Forbids this process everything that a kernel with Landlock can forbid, except reading below @p readable. False if
 * that fails.
 */
bool restrictFiles(const QStringList &readable);

/** True if a folder that everybody may read cannot be opened. */
bool areFilesRestricted();

} // namespace platform
