#pragma once

// Private to the platform: what options of encoding come to, however the pixels are encoded.

#include "platform/graphics/pixels.h"
#include "platform/imageio/encode/image_destination.h"

namespace platform {

/** What is stated of pixels that are known to have @p known. */
Resolution writtenResolution(Resolution known, const EncodeOptions &options);

/** 0.01 to 1; none where the tables of the source are to stay. */
std::optional<double> jpegQualityOf(const EncodeOptions &options);

/** Files that cannot be given metadata once they are encoded. */
bool isEncodedWithMetadata(FileFormat format);

/** What goes into the file, in step with its pixels. */
Metadata carriedMetadata(Resolution ofPixels, FileFormat format, const EncodeOptions &options);

/** The file with its metadata; @p options has what carriedMetadata() gives. */
Result<QByteArray> withMetadata(const QByteArray &encoded, QSize pixels, FileFormat format,
                                const EncodeOptions &options);

} // namespace platform
