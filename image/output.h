#pragma once

#include "image/types/output_types.h"
#include "platform/graphics/bitmap.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include <QString>
#include <QVariant>

/** What the operations on pictures answer and how they name their files; output_types.h has the types and qualities. */
namespace image {

/** The words with which an operation answers. */
QString statusOk();
QString statusFailed();
QString statusNotSupported();

/** True for the request to keep the source's own type; any value is compared as text. */
bool keepsSourceType(const QVariant &requestedType);

/** Types that are recognised but never written. */
bool isNeverWritten(const QString &typeIdentifier);

/** The forms of pixels that a type can hold. */
platform::Forms formsFor(const QString &typeIdentifier);

/** ".png" for "public.png" and so on; empty for a type that is not written. */
QString extensionForType(const QString &typeIdentifier);

/** The output prefix followed directly by the source's name without extension. */
QString outputBase(const QString &prefix, const QString &sourcePath);

/**
 * Options that carry a source's metadata and the resolution of the result, if the type can hold them. Fails with
 * Unreadable if it is unknown what metadata there is.
 */
platform::Result<platform::EncodeOptions> optionsCarrying(const platform::ImageSource &source);

/**
 * Writes one bitmap to a new file, replacing an existing one.
 *
 * @param path    absolute, extension included; the folder must exist
 * @param type    type identifier of one of the six written types
 * @param bitmap  may be null, which fails
 * @param options if an error, that is a failure too
 * @return "OK"; "Failed" if the file could not be written or the type is unknown; "Not Supported" for Photoshop and PDF
 *
 * Atomic: on failure the old file at @p path remains. Logs "Failed to write image to " and the location when encoding
 * or writing fails, and nothing for a type that is not written.
 */
QString writeAnswering(const QString &path, const QString &type, const platform::Bitmap &bitmap,
                       const platform::Result<platform::EncodeOptions> &options);

/** The same for a file that is already encoded: "OK", or "Failed" and the line in the log. */
QString writeAnswering(const QString &path, const QByteArray &encoded);

} // namespace image
