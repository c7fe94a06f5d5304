#pragma once

#include "platform/disk/file_system.h"

namespace platform {

/**
 * Moves the file, link or folder at @p path into the user's trash, from where file managers can put it back.
 *
 * The trash is the one in the user's data folder, and for an item on another file system the one of that file system; where
 * that cannot be used the item is copied into the user's. Folders that the trash needs are made first, for the user
 * alone. A name that is taken there gets a number; a link is moved, not what it leads to.
 *
 * Answers where the item lies now. Where it is copied, it leaves its place under a hidden name that begins with ".quorlin-" when the copy is
 * whole; only an end by force leaves that behind.
 *
 * Fails with NotFound, with InvalidValue for "/" and paths that end in "." or "..", and with WriteFailed. On failure the item
 * is still in its place and the trash holds nothing of it.
 */
Result<TrashedItem> moveToTrash(const QString &path);

/**
 * Brings an item back from the trash to @p path, which nothing may be at, and takes its info file away.
 *
 * Answers the system's error, none on success: std::errc::file_exists where @p path is taken. The item is then still in the
 * trash. The folder of @p path must be there.
 */
std::error_code restoreFromTrash(const TrashedItem &item, const QString &path);

/**
 * Takes away what an end by force left of copying the item at @p path, which is still there, into the user's trash: the info file
 * without an item, and an unfinished copy under a hidden name. A copy goes only if it holds nothing but the beginnings of what is in
 * the item, and nobody has written to it for some seconds.
 */
void discardHalfTrashed(const QString &path);

/** What lies in the trash and was at @p path, the latest first. Reads every info file of the trash. */
std::vector<TrashedItem> trashedFrom(const QString &path);

} // namespace platform
