#pragma once

#include "platform/graphics/turn.h"
#include "platform/imageio/source/image_source.h"

namespace platform {

/**
 * The bytes of a JPEG file with the stored pixels of image 0 of @p source turned, without decoding them and so without any
 * loss; metadata, profile and orientation tag are kept, sizes in the metadata are corrected.
 *
 * None if that cannot be done exactly: for other kinds of file, if a mirrored side is not a whole number of blocks, and
 * for damaged files. Memory: twice the file and up to 12 bytes a pixel.
 */
std::optional<QByteArray> turnedWithoutLoss(const ImageSource &source, ExactTurn turn);

/** Whether that is possible, as far as the header tells; damage is found when it is turned. */
bool canTurnWithoutLoss(const ImageSource &source, ExactTurn turn);

} // namespace platform
