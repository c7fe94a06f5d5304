#pragma once

// Inside platform/confinement.

#include <QStringList>

namespace platform {

/** Forbids this process everything that a kernel with Landlock can forbid, but for reading below @p readable. False where that fails. */
bool restrictFiles(const QStringList &readable);

/** True where a folder that everybody may read cannot be opened. */
bool areFilesRestricted();

} // namespace platform
