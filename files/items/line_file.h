#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QString>

namespace files {

/**
 * Adds lines to the end of a file, which is made if need be. They begin a line of their own also where the file ends in the
 * middle of one, as a program that was ended by force leaves it. Not atomic. Fails with WriteFailed.
 */
platform::Result<void> appendLines(const QString &path, const QByteArray &lines);

/**
 * The same for a file that nobody else may read, in a folder that is made if need be; the lines are on the disk afterwards. Fails with
 * WriteFailed.
 */
platform::Result<void> appendPrivateLines(const QString &path, const QByteArray &lines);

/**
 * Keeps the last @p most lines of a file that has more than @p limit of them; touches no other. Atomic.
 *
 * @param limit  more than @p most, so that the file is not rewritten for each line that is added
 *
 * Fails with NotFound, Unreadable or WriteFailed.
 */
platform::Result<void> keepNewestLines(const QString &path, int most, int limit);

} // namespace files
