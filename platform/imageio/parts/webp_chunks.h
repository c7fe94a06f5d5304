#pragma once

// Inside platform/ only: a WebP file as the chain of chunks that it is.

#include <QByteArray>
#include <QList>
#include <QSize>

#include <optional>

namespace platform {

struct WebpChunk
{
    QByteArray name; ///< four letters
    QByteArray data; ///< without a copy where it was read from a file, which must then outlive it
};

/** The chunks of a WebP file; none where it is another file, or where one does not fit into it. Never reads outside. */
std::optional<QList<WebpChunk>> webpChunksOf(const QByteArray &file);

/** What the header says, or the picture where there is no header. */
QSize webpSizeOf(const QList<WebpChunk> &chunks);

/**
 * The file of the chunks with @p exif (TIFF header first) and @p xmp in place of what metadata they hold; either may be empty. The
 * header that this needs is made where there is none. Empty where the size of the picture cannot be told, or the file would be
 * longer than it can say.
 */
QByteArray webpWithMetadata(const QList<WebpChunk> &chunks, const QByteArray &exif, const QByteArray &xmp);

} // namespace platform
