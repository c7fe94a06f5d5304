#pragma once

#include <QString>

#include <optional>

namespace platform {

/** The formats that can be written. */
enum class FileFormat { Png, Tiff, Bmp, Gif, Jpeg, Jpeg2000, Webp, Avif, JpegXl };

/**
 * The format of a type identifier such as "public.png"; none if it cannot be written, or only through
 * writableFormatForType().
 */
std::optional<FileFormat> fileFormatForType(const QString &typeIdentifier);

/** The same for all formats that can be written, including WebP, AVIF and JPEG XL. */
std::optional<FileFormat> writableFormatForType(const QString &typeIdentifier);

} // namespace platform
