#pragma once

#include <QString>

#include <optional>

namespace platform {

/** The formats that can be written. */
enum class FileFormat { Png, Tiff, Bmp, Gif, Jpeg, Jpeg2000 };

/** The format of a type identifier such as "public.png"; none where it cannot be written. */
std::optional<FileFormat> fileFormatForType(const QString &typeIdentifier);

} // namespace platform
