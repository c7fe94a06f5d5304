#pragma once

// Private to the platform.

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * The palette indices, one byte a pixel, that are stored as runs of @p bits (4 or 8) in a bitmap file, in the order of
 * its rows. Skipped pixels are 0. Throws vips::VError if the runs end before the picture without an end mark.
 */
QByteArray bmpRuns(const QByteArray &packed, QSize size, int bits);

} // namespace platform
