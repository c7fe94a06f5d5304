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
    bool isHuffmanCoded = false;    ///< in whole or progressively; false for arithmetic, lossless and layered coding
    bool isPlainRgb = false;        ///< nothing but the names of its components says that they are red, green and blue
    bool contradictsItself = false; ///< one segment says that its colours are converted, another that they are not
};

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
    QList<Range> exifRanges; ///< the segments that the block was joined from, with their markers
    QByteArray jfif;         ///< what the JFIF segment holds, its name first
    QList<Range> comments;   ///< with their markers
    bool isProgressive = false;
    QSize size; ///< pixels as stored
    JpegFrame frame;
    qsizetype insertAt = 0; ///< behind the JFIF segment, or behind the start of the image
    QList<Range> metadata;  ///< EXIF, XMP and Photoshop segments with their markers, in order
    QList<Range> bound;     ///< segments that other pixels make wrong: a small picture, an index of pictures behind it
};

/** Reads the segments in front of the first scan. Never reads outside @p bytes. */
JpegSegments findJpegSegments(const QByteArray &bytes);

} // namespace platform
