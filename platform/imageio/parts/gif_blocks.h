#pragma once

// Inside platform/ only: a GIF file as a chain of blocks.

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QStringList>

namespace platform {

/** One block of a GIF file with its header. */
struct GifBlock
{
    enum Kind { Xmp, Comment, Other };
    Kind kind = Other;
    qsizetype start = 0;
    qsizetype dataAt = 0; ///< of its pieces, each after its length
    qsizetype end = 0;
};

struct GifParts
{
    bool valid = false;    ///< all blocks up to the end of the file are valid
    QSize screen;          ///< in pixels
    qsizetype headEnd = 0; ///< after the global colour table
    QList<GifBlock> blocks;
    qsizetype end = 0; ///< after the end mark, or where the blocks become invalid
};

/** Never reads outside @p bytes. */
GifParts gifPartsOf(const QByteArray &bytes);

/** The packet of a block of kind Xmp, plain or in sub-blocks; empty if it is longer than 64 MB. */
QByteArray gifXmpOf(const QByteArray &bytes, const GifBlock &block);

/** The texts of the comments. */
QStringList gifCommentsOf(const QByteArray &bytes, const GifParts &parts);

/** The file with @p xmp and @p comments, either of which may be empty, replacing those that it has. */
QByteArray gifWithMetadata(const QByteArray &bytes, const GifParts &parts, const QByteArray &xmp,
                           const QStringList &comments);

} // namespace platform
