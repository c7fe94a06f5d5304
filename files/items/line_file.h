#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QString>

namespace files {

/**
 * Appends lines to a file, which is created if necessary. They start on a new line even if the file ends in the middle
 * of one, as a killed process leaves it. Not atomic. Lines that two processes append at once are all kept, also while
 * one of them calls keepNewestLines(). Fails with WriteFailed.
 */
platform::Result<void> appendLines(const QString &path, const QByteArray &lines);

/**
 * The same for a file that nobody else may read, in a folder that is created if necessary; the lines are synced to the
 * disk. Fails with WriteFailed.
 */
platform::Result<void> appendPrivateLines(const QString &path, const QByteArray &lines);

/**
 * Keeps the last @p most lines of a file that has more than @p limit; otherwise leaves it untouched, as it does if
 * another process holds the file for longer than a second. Atomic.
 *
 * @param limit  more than @p most, so that the file is not rewritten for each added line
 *
 * Fails with NotFound, Unreadable or WriteFailed.
 */
platform::Result<void> keepNewestLines(const QString &path, int most, int limit);

} // namespace files
