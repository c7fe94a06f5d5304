#pragma once

// Private to the platform.

#include <QByteArray>

#include <vips/vips8>

namespace platform {

/**
 * The pixels of an image in memory, 8 or 16 bits a component, as the rows of a PNG file: two-byte components
 * big-endian, each row preceded by the number of its filter, the one that compresses best.
 */
QByteArray filteredRows(const vips::VImage &image);

} // namespace platform
