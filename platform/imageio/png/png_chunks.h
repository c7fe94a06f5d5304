#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QList>
#include <QSize>

namespace platform {

/** Adds one chunk to a PNG file: its length, its four letters, @p data and the checksum. */
void appendPngChunk(QByteArray &file, const char *name, const QByteArray &data);

/** Completes the chunk whose data is at the end of @p file, after room for length and name from @p at on. */
void closePngChunk(QByteArray &file, const char *name, qsizetype at);

/** The chunks between the header of a PNG file and its pixels, and those after them, that concern metadata. */
struct PngParts
{
    bool valid = false; ///< a PNG file with pixels
    QSize pixels;
    QByteArray exif;        ///< the block of its EXIF chunk, TIFF header first
    qsizetype exifAt = 0;   ///< where that chunk begins; 0 if there is none
    qsizetype exifSize = 0; ///< all of the chunk
    QByteArray carried;     ///< whole chunks that fit another file with these pixels: texts, gamma, primaries
    qsizetype pixelsAt = 0; ///< where the first chunk of pixels begins
};

/**
 * Of chunks in the form of PngParts::carried: those that are not texts, and texts with one of these keywords.
 */
QByteArray pngChunksWithTexts(const QByteArray &chunks, const QList<QByteArray> &keywords);

/** The texts among such chunks. */
QByteArray pngTextsOf(const QByteArray &chunks);

/** Never reads outside @p bytes; damaged chunks are skipped. */
PngParts findPngParts(const QByteArray &bytes);

} // namespace platform
