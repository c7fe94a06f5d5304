#pragma once

#include "platform/foundation/result.h"

namespace platform {

/**
 * Moves the file, link or folder at @p path into the user's trash, from where file managers can put it back.
 *
 * The trash is the one in the user's data folder, and for an item on another file system the one of that file system; where
 * that cannot be used the item is copied into the user's. Folders that the trash needs are made first, for the user
 * alone. A name that is taken there gets a number; a link is moved, not what it leads to.
 *
 * Fails with NotFound, with InvalidValue for "/" and paths that end in "." or "..", and with WriteFailed. On failure the item
 * is still in its place and the trash holds nothing of it.
 */
Result<void> moveToTrash(const QString &path);

} // namespace platform
