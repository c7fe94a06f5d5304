#pragma once

#include <QByteArray>

namespace platform {

/** A file without the pixels in its middle: what stands before them, and what stands behind. */
struct FileEnds
{
    QByteArray head;
    QByteArray tail;
};

} // namespace platform
