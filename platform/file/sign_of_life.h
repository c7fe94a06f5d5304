#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

namespace platform {

/**
 * A lock on an open item, held until the last descriptor of it is closed or the process ends, by whatever means, says that
 * somebody still works on it. Unlike the number of a process it means the same in every container that shares a disk.
 */
enum class Life {
    Shown,  ///< it was free, and this process holds it now
    Others, ///< somebody holds it already
    Unknown ///< the file system has no such locks
};
Life showLife(int descriptor);

/** Whether the name still leads to what was opened under it. A link there is another item. */
bool isStillNamed(int descriptor, const QByteArray &path);

/** How the hidden names of unfinished files begin that may be removed once nobody shows a sign of life on them. */
inline constexpr char unfinishedName[] = ".quorlin-part-";

/** Removes an unfinished file: an ordinary file of this user, under such a name, on which nobody shows a sign of life. */
void sweepUnfinishedFile(const QString &path);

/**
 * Removes what ended processes left of unfinished files in a folder: ordinary files of this user whose names begin as
 * unfinishedName says and on which nobody shows a sign of life. Costs one read of the folder.
 */
void sweepUnfinished(const QString &folder);

/** The same, once for each folder in the life of this process. */
void sweepUnfinishedOnce(const QString &folder);

} // namespace platform
