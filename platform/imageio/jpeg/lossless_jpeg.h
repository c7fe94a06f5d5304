#pragma once

// Private to the platform.

#include "platform/graphics/turn.h"

#include <QByteArray>

namespace platform {

/**
 * A whole JPEG file turned without decoding its pixels: the same coefficients in other places. A progressive file
 * stays one; all its segments are carried but those that point to places of the old file or show its pixels small.
 * What the metadata says of the size is still that of the old file.
 *
 * None where that cannot be done exactly: the sides that are mirrored are not whole blocks, the file is damaged, its
 * colours are sampled in a way that is not known here, or memory fails. Takes up to 12 bytes a pixel.
 */
std::optional<QByteArray> losslesslyTurned(const QByteArray &jpeg, ExactTurn turn);

} // namespace platform
