#pragma once

#include "platform/disk/file_system.h"

namespace platform {

/**
 * Moves the file, link or folder at @p path into the user's trash, from where file managers can restore it.
 *
 * The trash is the one in the user's data folder, and for an item on another file system the one of that file system;
 * if that cannot be used, the item is copied into the user's. Folders that the trash needs are created first, private
 * to the user. A name that is taken there gets a number; a link is moved, not its target.
 *
 * Answers the item's new path. If it is copied, the original is renamed to a hidden name that begins with ".quorlin-"
 * once the copy is complete; only a kill leaves that behind.
 *
 * Fails with NotFound, with InvalidValue for "/" and paths that end in "." or "..", and with WriteFailed. On failure the item
 * is still in its place and nothing of it is in the trash.
 */
Result<TrashedItem> moveToTrash(const QString &path);

/**
 * The folder whose file system keeps what moveToTrash() is given from @p folder: the trash of the user, or the topmost folder of another
 * file system that has a trash or can have one. It need not exist; nothing is created.
 */
QString trashPlaceFor(const QString &folder);

/**
 * Restores an item from the trash to the free path @p path, and removes its info file.
 *
 * Answers the system's error, none on success: std::errc::file_exists if @p path is taken. The item is then still in
 * the trash. The folder of @p path must exist.
 */
std::error_code restoreFromTrash(const TrashedItem &item, const QString &path);

/**
 * Removes what a kill left of copying the item at @p path, which still exists, into the user's trash: the info file
 * without an item, and an unfinished copy under a hidden name. A copy is removed only if it contains nothing but the
 * beginnings of what is in the item, and nobody has written to it for some seconds.
 */
void discardHalfTrashed(const QString &path);

/** All items in the trash that were at @p path, latest first. Reads every info file of the trash. */
std::vector<TrashedItem> trashedFrom(const QString &path);

} // namespace platform
