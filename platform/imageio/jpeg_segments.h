#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

namespace platform {

/** The header of a JPEG file: where its metadata is, and where new metadata goes. All empty where it is no JPEG. */
struct JpegSegments
{
    struct Range
    {
        qsizetype start = 0;
        qsizetype size = 0;
    };

    bool valid = false; ///< the header is sound as far as the first scan
    QByteArray exif;    ///< the first EXIF block, TIFF header first, its continuations joined
    int exifSegments = 0;
    QByteArray jfif; ///< what the JFIF segment holds, its name first
    bool isProgressive = false;
    QSize size;             ///< pixels as stored
    qsizetype insertAt = 0; ///< behind the JFIF segment, or behind the start of the image
    QList<Range> metadata;  ///< EXIF, XMP and Photoshop segments with their markers, in order
    QList<Range> bound;     ///< segments that other pixels make wrong: a small picture, an index of pictures behind it
};

/** Reads the segments in front of the first scan. Never reads outside @p bytes. */
JpegSegments findJpegSegments(const QByteArray &bytes);

} // namespace platform
