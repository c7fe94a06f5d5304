#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QList>

#include <functional>

class QFile;

namespace platform {

/**
 * Replaces the file at @p path, or creates it, with exactly @p bytes.
 *
 * @param path  absolute; its folder must exist
 *
 * The bytes go to a temporary file in the same folder, are flushed to the disk and renamed into place, so that a reader
 * sees the old file or the new one and a failure at any moment leaves the old one. A symbolic link at @p path
 * is replaced, not written through. The new file gets the permissions of the replaced one.
 *
 * Fails with WriteFailed; the temporary file is removed.
 */
Result<void> replaceFile(const QString &path, const QByteArray &bytes);

/** @p removed bytes at @p at are replaced by @p inserted. */
struct Splice
{
    qint64 at = 0;
    qint64 removed = 0;
    QByteArray inserted;
};

/**
 * Replaces a file by itself with some of its bytes changed.
 *
 * @param source   the file, open for reading; its name is the path of the file to be replaced
 * @param splices  in ascending order, not overlapping, all within the file
 *
 * Atomic like replaceFile(), and the rest of the file is copied without passing through this process. The new file has
 * the old one's permissions, access lists, extended attributes and, as far as the user may give it, its owner. A
 * symbolic link is replaced by a changed copy of its target; another hard link keeps the old file.
 *
 * @param check  is called before the new file replaces the old one, with a path to the new file; if it objects, its
 *               failure is returned and the old file stays
 *
 * Fails with WriteFailed, also if somebody else writes to the source meanwhile; the file is then unchanged.
 */
Result<void> spliceFile(const QFile &source, const QList<Splice> &splices,
                        const std::function<Result<void>(const QString &path)> &check = {});

/**
 * Writes a file with these changes into another one that is open for writing, without the kernel's copying. Answers 0,
 * or an errno; EINVAL for splices that do not meet the conditions of spliceFile().
 */
int copySpliced(int source, const QList<Splice> &splices, int copy);

/** The same for bytes in memory. */
QByteArray spliced(const QByteArray &bytes, const QList<Splice> &splices);

/** The whole file as bytes. Fails with NotFound or Unreadable. */
Result<QByteArray> readFile(const QString &path);

} // namespace platform
