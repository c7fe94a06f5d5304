#pragma once

// Private to the platform.

#include <QByteArray>

#include <vips/vips8>

namespace platform {

/**
 * The pixels of an image in memory, 8 or 16 bits a component, as the rows of a PNG file: components of two bytes high byte
 * first, each row with the number of its filter in front, which is the one that leaves least to be compressed.
 */
QByteArray filteredRows(const vips::VImage &image);

} // namespace platform
