#pragma once

// Private to the platform.

#include <QIODevice>
#include <QList>

namespace platform {

/** What a page of a TIFF file says about the meaning of its samples. */
struct TiffSamples
{
    bool isKnown = false; ///< the directory could be read
    int photometric = -1;
    int bits = 1;
    QList<int> others; ///< the meaning of the samples after the colours: 1 and 2 are transparency

    bool isLogarithmic() const;
};

/** Reads a few tags of page @p page of a file, classic or with 64-bit offsets. */
TiffSamples readTiffSamples(QIODevice &file, int page);

} // namespace platform
