#pragma once

// Private to the platform: the meaning of encoding options, however the pixels are encoded.

#include "platform/graphics/pixels.h"
#include "platform/imageio/encode/image_destination.h"

namespace platform {

/** What is stated of pixels that are known to have @p known. */
Resolution writtenResolution(Resolution known, const EncodeOptions &options);

/** 0.01 to 1; none if the tables of the source are kept. */
std::optional<double> jpegQualityOf(const EncodeOptions &options);

/** Files that cannot be given metadata after they are encoded. */
bool isEncodedWithMetadata(FileFormat format);

/** The metadata for the file, consistent with its pixels. */
Metadata carriedMetadata(Resolution ofPixels, FileFormat format, const EncodeOptions &options);

/** The file with its metadata; @p options has the result of carriedMetadata(). */
Result<QByteArray> withMetadata(const QByteArray &encoded, QSize pixels, FileFormat format,
                                const EncodeOptions &options);

} // namespace platform
