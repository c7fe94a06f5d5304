#pragma once

#include "platform/foundation/result.h"

namespace platform {

/**
 * The folder in which programs keep their data for one user: $XDG_DATA_HOME where that is an absolute path, else
 * .local/share in the user's home folder. Without "/" at its end; not made here.
 */
QString applicationSupportFolder();

/** Whether anything is at @p path: a link to nothing is not. */
bool itemExists(const QString &path);

/** Whether a folder, or a link to one, is at @p path. */
bool folderExists(const QString &path);

/**
 * Makes the folder at @p path with all folders above it that are missing. A folder that is there is left as it is.
 *
 * Fails with WriteFailed, also where something else than a folder is in the way.
 */
Result<void> makeFolder(const QString &path);

/**
 * Removes what is at @p path: a file, a link (never what it leads to), or a folder with all that is in it.
 *
 * Fails with NotFound, or with WriteFailed when something of it could not be removed.
 */
Result<void> removeItem(const QString &path);

/**
 * Copies the file or folder at @p from, with all that is in it, to the new item @p to. Links are copied as links.
 *
 * Fails with WriteFailed when anything is at @p to already, or when the folder of @p to is missing or cannot be written, and
 * with NotFound or Unreadable for the source. The copy is made beside the target and renamed: on failure there is none.
 */
Result<void> copyItem(const QString &from, const QString &to);

} // namespace platform
