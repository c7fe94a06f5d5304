#pragma once

// Inside platform/ only: which bytes of a TIFF file are in use.

#include "platform/imageio/tiff/tiff_reader.h"

#include <QList>

namespace platform {

/** Byte ranges known to be referenced, and whether the list is complete. */
struct TiffExtents
{
    QList<TiffRange> ranges;
    QList<TiffRange> pixels; ///< those of them that are pixels
    bool isComplete = true;  ///< nothing was found that may point to bytes elsewhere
};

enum class TiffPages { First, All };

/**
 * Everything reachable from the first directory, or from all of them. Each directory is entered once, and 256 at most.
 */
TiffExtents tiffExtents(const TiffReader &reader, TiffPages pages);

} // namespace platform
