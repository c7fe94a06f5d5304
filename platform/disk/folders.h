#pragma once

#include "platform/foundation/result.h"

#include <system_error>

namespace platform {

/** Whether anything is at @p path: a link to nothing is not. */
bool itemExists(const QString &path);

/** Whether @p path is taken: as itemExists(), and by a link to nothing too. */
bool isTaken(const QString &path);

/** Whether a folder, or a link to one, is at @p path. */
bool folderExists(const QString &path);

/**
 * Makes the folder at @p path with all folders above it that are missing. A folder that is there is left as it is.
 *
 * Fails with WriteFailed, also where something else than a folder is in the way.
 */
Result<void> makeFolder(const QString &path);

/** Waits until the names in a folder are on the disk, as far as that can be known. */
void settleFolder(const QString &path);

/**
 * Removes what is at @p path: a file, a link (never what it leads to), or a folder with all that is in it.
 *
 * Fails with NotFound, with WriteFailed when something of it could not be removed, and with InvalidValue, before anything
 * is removed, for "/" and for paths that end in "." or "..".
 */
Result<void> removeItem(const QString &path);

/** Whether an item and all that is in it could be removed, as far as permissions tell. */
bool mayBeTakenAway(const QString &path);

/**
 * Copies the file or folder at @p from, with all that is in it, to the new item @p to. Links are copied as links; permissions,
 * modification dates and the user's extended attributes are kept where the file system has them.
 *
 * Fails with WriteFailed when anything is at @p to already, when the folder of @p to is missing or cannot be written, when
 * something cannot be read, or when a folder would be copied into itself, and with NotFound where there is no source. The
 * copy is made beside the target and renamed: on failure there is none.
 */
Result<void> copyItem(const QString &from, const QString &to);

/**
 * Renames without ever replacing anything, within one file system. A link is renamed, not what it leads to.
 *
 * Answers the system's error, none on success: std::errc::file_exists where @p to is taken, and
 * std::errc::cross_device_link where the two are on different file systems. Nothing has changed then.
 */
std::error_code renameToNew(const QString &from, const QString &to);

/**
 * What renameToNew() does on a file system that cannot promise to replace nothing: a file gets a second name, and then loses
 * the first; where there are no second names, an empty file keeps the place. No file that others make in between is
 * replaced, at most an empty folder.
 */
std::error_code renameWithoutPromise(const QString &from, const QString &to);

/**
 * Gives an item that stood aside its name @p path again, or one with a number where another program has taken that since. Answers the
 * path that it has now.
 */
QString giveNameBack(const QString &aside, const QString &path);

/**
 * Moves the file, link or folder at @p from to the new item @p to, to another file system too.
 *
 * Fails with WriteFailed when @p to is taken, its folder is missing, or the source cannot be taken away, and with NotFound.
 * A failed move leaves the source and nothing at the target. Only where another program interferes while the source of a
 * finished copy is removed, the copy stays as well. Costs a copy from one file system to another, else nothing.
 */
Result<void> moveItem(const QString &from, const QString &to);

/**
 * Makes a symbolic link at @p path that says exactly @p target, which need not be there.
 *
 * Fails with WriteFailed when @p path is taken or its folder is missing, or @p target is empty.
 */
Result<void> makeLink(const QString &target, const QString &path);

} // namespace platform
