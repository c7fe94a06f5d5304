#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

namespace platform {

/**
 * A lock on an open item, held until its last descriptor is closed or the process ends, for whatever reason, says that
 * somebody is still working on it. Unlike a process number it means the same in every container that shares a disk.
 */
enum class Life {
    Shown,  ///< it was free, and this process holds the lock now
    Others, ///< somebody holds it already
    Unknown ///< the file system has no such locks
};
Life showLife(int descriptor);

/** Whether the name still leads to what was opened under it. A link there counts as another item. */
bool isStillNamed(int descriptor, const QByteArray &path);

/** The prefix of the hidden names of unfinished files, which may be removed once nobody holds a lock on them. */
inline constexpr char unfinishedName[] = ".quorlin-part-";

/** Removes an unfinished file: a regular file of this user, under such a name, on which nobody holds a lock. */
void sweepUnfinishedFile(const QString &path);

/**
 * Removes unfinished files of ended processes from a folder: regular files of this user whose names begin with
 * unfinishedName and on which nobody holds a lock. Costs one read of the folder.
 */
void sweepUnfinished(const QString &folder);

/** The same, but once per folder in the life of this process. */
void sweepUnfinishedOnce(const QString &folder);

} // namespace platform
