#pragma once

// Inside platform/ only: a WebP file as a chain of chunks.

#include <QByteArray>
#include <QList>
#include <QSize>

#include <optional>

namespace platform {

struct WebpChunk
{
    QByteArray name; ///< four letters
    QByteArray data; ///< without a copy if it was read from a file, which must then outlive it
};

/** The chunks of a WebP file; none if it is another file, or if one does not fit into it. Never reads out of bounds. */
std::optional<QList<WebpChunk>> webpChunksOf(const QByteArray &file);

/** The size in the header, or in the picture if there is no header. */
QSize webpSizeOf(const QList<WebpChunk> &chunks);

/**
 * The file of the chunks with @p exif (TIFF header first) and @p xmp replacing their metadata; either may be empty. The
 * required header is created if missing. Empty if the size of the picture is unknown, or the file would exceed the
 * format's limit.
 */
QByteArray webpWithMetadata(const QList<WebpChunk> &chunks, const QByteArray &exif, const QByteArray &xmp);

} // namespace platform
