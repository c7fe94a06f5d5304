#pragma once

// Private to the platform.

#include "platform/graphics/turn.h"

#include <QByteArray>

namespace platform {

/**
 * A complete JPEG file turned without decoding its pixels: the same coefficients in other places. A progressive file
 * stays progressive; all its segments are copied except those with offsets into the old file or thumbnails. The
 * metadata still states the old size.
 *
 * None if that cannot be done exactly: a mirrored side is not a whole number of blocks, the file is damaged, its colour
 * sampling is unsupported, or memory fails. Takes up to 12 bytes a pixel.
 */
std::optional<QByteArray> losslesslyTurned(const QByteArray &jpeg, ExactTurn turn);

} // namespace platform
