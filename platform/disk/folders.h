#pragma once

#include "platform/foundation/result.h"

#include <system_error>

namespace platform {

/** Whether anything exists at @p path: a dangling link does not count. */
bool itemExists(const QString &path);

/** Whether @p path is taken: as itemExists(), but a dangling link counts too. */
bool isTaken(const QString &path);

/** Whether a folder, or a link to one, is at @p path. */
bool folderExists(const QString &path);

/**
 * Creates the folder at @p path with all missing parents. An existing folder is left as it is.
 *
 * Fails with WriteFailed, also if something other than a folder is in the way.
 */
Result<void> makeFolder(const QString &path);

/** Syncs the names in a folder to the disk, as far as that can be ensured. */
void settleFolder(const QString &path);

/**
 * Removes a file, a link (never its target), or a folder with its contents.
 *
 * Fails with NotFound, with WriteFailed if part of it could not be removed, and with InvalidValue, before anything is
 * removed, for "/" and for paths that end in "." or "..".
 */
Result<void> removeItem(const QString &path);

/** Whether an item and all its contents could be removed, as far as permissions tell. */
bool mayBeTakenAway(const QString &path);

/**
 * Copies the file or folder at @p from, with its contents, to the new item @p to. Links are copied as links;
 * permissions, modification dates and the user's extended attributes are kept if the file system supports them.
 *
 * Fails with WriteFailed if anything is at @p to already, if the folder of @p to is missing or not writable, if
 * something cannot be read, or if a folder would be copied into itself, and with NotFound if there is no source. The
 * copy is made beside the target and renamed: on failure there is none.
 */
Result<void> copyItem(const QString &from, const QString &to);

/**
 * Renames within one file system without ever replacing anything. A link is renamed, not its target.
 *
 * Answers the system's error, none on success: std::errc::file_exists if @p to is taken, and
 * std::errc::cross_device_link if the two are on different file systems. On an error nothing has changed.
 */
std::error_code renameToNew(const QString &from, const QString &to);

/**
 * What renameToNew() does on a file system that cannot rename without replacing: a file gets a second hard link, and
 * then loses the first; without hard links an empty file reserves the name. No file created by others in between is
 * replaced, at most an empty folder.
 */
std::error_code renameWithoutPromise(const QString &from, const QString &to);

/**
 * Gives an item that was moved aside its name @p path back, or one with a number if another program has taken that
 * since. Answers its present path.
 */
QString giveNameBack(const QString &aside, const QString &path);

/**
 * Moves the file, link or folder at @p from to the new item @p to, to another file system too.
 *
 * Fails with WriteFailed if @p to is taken, its folder is missing, or the source cannot be removed, and with NotFound.
 * A failed move leaves the source and nothing at the target. Only where another program interferes while the source of
 * a finished copy is removed, the copy stays as well. Costs a copy between file systems, otherwise nothing.
 */
Result<void> moveItem(const QString &from, const QString &to);

/**
 * Creates a symbolic link at @p path with exactly the text @p target, which need not exist.
 *
 * Fails with WriteFailed if @p path is taken or its folder is missing, or @p target is empty.
 */
Result<void> makeLink(const QString &target, const QString &path);

} // namespace platform
