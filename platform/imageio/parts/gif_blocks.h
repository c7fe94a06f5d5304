#pragma once

// Inside platform/ only: a GIF file as the chain of blocks that it is.

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QStringList>

namespace platform {

/** One block of a GIF file with what leads to it. */
struct GifBlock
{
    enum Kind { Xmp, Comment, Other };
    Kind kind = Other;
    qsizetype start = 0;
    qsizetype dataAt = 0; ///< of its pieces, each behind its length
    qsizetype end = 0;
};

struct GifParts
{
    bool valid = false;    ///< all blocks up to the end of the file are sound
    QSize screen;          ///< in pixels
    qsizetype headEnd = 0; ///< behind the colours of the screen
    QList<GifBlock> blocks;
    qsizetype end = 0; ///< behind the mark of the end, or where the blocks stop being sound
};

/** Never reads outside @p bytes. */
GifParts gifPartsOf(const QByteArray &bytes);

/** The packet of a block of kind Xmp, as it is or cut into pieces; empty where it is longer than 64 MB. */
QByteArray gifXmpOf(const QByteArray &bytes, const GifBlock &block);

/** The texts of the comments. */
QStringList gifCommentsOf(const QByteArray &bytes, const GifParts &parts);

/** The file with @p xmp and @p comments, either of which may be empty, in place of those that it has. */
QByteArray gifWithMetadata(const QByteArray &bytes, const GifParts &parts, const QByteArray &xmp,
                           const QStringList &comments);

} // namespace platform
