#pragma once

// Private to the platform.

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * The numbers of the palette, one byte a pixel, that stand as runs of @p bits (4 or 8) in a bitmap file, in the order of its
 * rows. Pixels that the runs jump over are 0. Throws vips::VError where the runs end before the picture does without saying so.
 */
QByteArray bmpRuns(const QByteArray &packed, QSize size, int bits);

} // namespace platform
