#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>

namespace platform {

/**
 * The bytes of a JPEG or TIFF file that marks its picture as upright: the orientation in its EXIF block or first
 * directory, and in its XMP packet, becomes 1 if one is stated. Nothing else changes, not even the length.
 *
 * Fails with Unsupported for any other kind of file.
 */
Result<QByteArray> markedUpright(const QByteArray &file);

/**
 * Marks the file at @p path so, atomically. Also fails with NotFound, Unreadable and WriteFailed; it is then unchanged.
 */
Result<void> markUpright(const QString &path);

} // namespace platform
