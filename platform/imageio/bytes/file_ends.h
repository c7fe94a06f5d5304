#pragma once

#include <QByteArray>

namespace platform {

/** A file without the pixels in its middle: what precedes them, and what follows them. */
struct FileEnds
{
    QByteArray head;
    QByteArray tail;
};

} // namespace platform
