#pragma once

#include "platform/imageio/formats/content.h"

namespace platform {

/**
 * False if a file ends before the last byte that its own structure promises, although its header may be intact. Steps
 * over the parts of the file and decodes nothing: damage inside is found when pixels are decoded. Types whose structure
 * cannot tell (drawings) count as complete.
 */
bool isWhole(QIODevice &file, Content content);

/**
 * The same for a file of any kind, including camera raw files. Also false for what cannot be opened or is no picture.
 */
bool isWholePicture(const QString &path);

/** Like isWhole(), for a camera raw file: checks the parts that are built like TIFF. */
bool isWholeRaw(QIODevice &file);

} // namespace platform
