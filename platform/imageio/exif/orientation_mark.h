#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>

namespace platform {

/**
 * The bytes of a JPEG or TIFF file that says of its picture that it is upright: the orientation in its EXIF block or
 * first directory, and in its XMP packet, becomes 1 where one is stated. Nothing else changes, not even in length.
 *
 * Fails with Unsupported for any other kind of file.
 */
Result<QByteArray> markedUpright(const QByteArray &file);

/** Marks the file at @p path so, atomically. Fails also with NotFound, Unreadable and WriteFailed; it is then as it was. */
Result<void> markUpright(const QString &path);

} // namespace platform
