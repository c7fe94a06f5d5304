#pragma once

// Inside platform/ only: how to change each kind of file so that it has another EXIF user comment.

#include "platform/file/atomic_file.h"
#include "platform/imageio/formats/content.h"

#include <QFile>

namespace platform {

/** Splices in ascending order, or why there are none, as half a sentence. The file is read where necessary. */
using CommentSplices = Result<QList<Splice>>;

CommentSplices jpegCommentSplices(QFile &file, const QString &comment);
CommentSplices tiffCommentSplices(QFile &file, const QString &comment);
CommentSplices pngCommentSplices(QFile &file, const QString &comment);
CommentSplices jpeg2000CommentSplices(QFile &file, const QString &comment);
CommentSplices webpCommentSplices(QFile &file, const QString &comment);

/** How many pages after the first tiffCommentSplices() removes from the file. */
int pagesLostToComment(QFile &file);

/** The largest EXIF block that is read into memory. */
constexpr qint64 largestExifBlock = 32 << 20;

/** "the file is damaged", with its error code. */
tl::unexpected<Error> damagedFile();
/** "the comment is too long". */
tl::unexpected<Error> commentTooLong();

/** Exactly @p size bytes from @p position on; empty if the file has fewer. */
QByteArray bytesOf(QFile &file, qint64 position, qint64 size);

} // namespace platform
