#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

namespace platform {

/** How the pixels of a JPEG file are stored. */
struct JpegFrame
{
    int bitsPerComponent = 0;
    int componentCount = 0;
    bool isHuffmanCoded = false;    ///< at once or progressively; not arithmetic, lossless or hierarchical coding
    bool isPlainRgb = false;        ///< only the names of its components say that they are red, green and blue
    bool contradictsItself = false; ///< one segment says that its colours are converted, another that they are not
};

/** The header of a JPEG file: where its metadata is, and where new metadata is inserted. All empty if it is no JPEG. */
struct JpegSegments
{
    struct Range
    {
        qsizetype start = 0;
        qsizetype size = 0;
    };

    bool valid = false; ///< the header is intact up to the first scan
    QByteArray exif;    ///< the first EXIF block, TIFF header first, its continuations joined
    int exifSegments = 0;
    QList<Range> exifRanges; ///< the segments of which the block consists, with their markers
    QByteArray jfif;         ///< contents of the JFIF segment, its name first
    QList<Range> comments;   ///< with their markers
    bool isProgressive = false;
    QSize size; ///< pixels as stored
    JpegFrame frame;
    qsizetype insertAt = 0; ///< after the JFIF segment, or after the start of the image
    QList<Range> metadata;  ///< EXIF, XMP and Photoshop segments with their markers, in order
    QList<Range> bound;     ///< segments that other pixels invalidate: a thumbnail, an index of further pictures
};

/** Reads the segments before the first scan. Never reads outside @p bytes. */
JpegSegments findJpegSegments(const QByteArray &bytes);

} // namespace platform
