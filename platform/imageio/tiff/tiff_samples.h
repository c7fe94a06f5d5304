#pragma once

// Private to the platform.

#include <QIODevice>
#include <QList>

namespace platform {

/** How a page of a TIFF file says that its samples are meant. */
struct TiffSamples
{
    bool isKnown = false; ///< the directory could be read
    int photometric = -1;
    int bits = 1;
    QList<int> others; ///< what the samples behind the colours are: 1 and 2 are transparency

    bool isLogarithmic() const;
};

/** Reads a few tags of page @p page of a file, classic or with offsets of 64 bits. */
TiffSamples readTiffSamples(QIODevice &file, int page);

} // namespace platform
