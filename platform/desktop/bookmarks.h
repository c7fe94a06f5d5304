#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>

namespace platform {

/**
 * Data by which the file or folder at @p path is found in a later run, and recognised as the same one.
 *
 * It holds the path and the identity of the file system and of the item itself, no contents. Fails with NotFound if
 * nothing is at the path, and with Unreadable if the user must not read it (a folder: not enter it).
 */
Result<QByteArray> makeBookmark(const QString &path);

/**
 * The path that makeBookmark() was given, spelled as it was.
 *
 * Fails with NotFound if nothing is there any more, or a different item is: one that was removed and recreated under
 * the same name, or another file system mounted in its place. Fails with InvalidValue for data that is no bookmark.
 */
Result<QString> resolveBookmark(const QByteArray &bookmark);

} // namespace platform
