#pragma once

#include "platform/foundation/result.h"

#include <QString>
#include <QStringList>

namespace files {

/**
 * Replaces the file at @p path, or creates it, with @p text in UTF-8 without a byte-order mark. Atomic. Fails with
 * WriteFailed.
 */
platform::Result<void> writeText(const QString &path, const QString &text);

/**
 * The lines of a file in UTF-8.
 *
 * Every newline character ends a line: U+000A to U+000D, U+0085, U+2028 and U+2029. There is an empty line between
 * carriage return and line feed, and one after a final line break; an empty file is one empty line.
 *
 * Fails with NotFound or Unreadable, the latter also if the file is not valid UTF-8.
 */
platform::Result<QStringList> readLines(const QString &path);

} // namespace files
