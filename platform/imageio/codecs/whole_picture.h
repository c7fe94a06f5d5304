#pragma once

#include "platform/imageio/formats/content.h"

namespace platform {

/**
 * False where a file ends before the last byte that its own structure promises, although its header may be whole. Steps
 * over the parts of the file and decodes nothing: what is damaged inside is found when pixels are decoded. Types without
 * a structure that could tell (drawings) are whole.
 */
bool isWhole(QIODevice &file, Content content);

/** The same for a file of any kind, a camera's raw file included. False too for what cannot be opened or is no picture. */
bool isWholePicture(const QString &path);

/** As isWhole(), of a file in which a camera has put down what its sensor saw: of the parts that are like TIFF. */
bool isWholeRaw(QIODevice &file);

} // namespace platform
