#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>

namespace platform {

/**
 * Replaces the file at @p path, or makes it, with exactly @p bytes.
 *
 * @param path  absolute; its folder must exist
 *
 * The bytes go to a hidden temporary file in the same folder, are flushed to the disk and renamed into place, so that
 * a reader sees the old file or the new one and a failure at any moment leaves the old one. A symbolic link at @p path
 * is replaced, not written through. A file that is replaced hands on its permissions.
 *
 * Fails with WriteFailed; nothing of the temporary file is left behind.
 */
Result<void> replaceFile(const QString &path, const QByteArray &bytes);

/** The whole file as bytes. Fails with NotFound or Unreadable. */
Result<QByteArray> readFile(const QString &path);

} // namespace platform
