#pragma once

// Inside platform/ only.

#include "platform/file/atomic_file.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

enum class OtherPages { Keep, Drop };

/**
 * The changes to a TIFF file or EXIF block that give it @p comment as its EXIF user comment, and nothing else.
 *
 * No byte that stays in use is moved, so that every offset stays valid, including those in maker notes. The comment is
 * written where the old one was if there is room, which is then filled with zeros; otherwise it goes to the end, with a
 * new EXIF directory if the old one has no entry for it, and the old comment's bytes become zeros. A block without a
 * directory gets a first one; one whose first directory is truncated is not edited, since everything that it leads to
 * would be lost.
 *
 * @param pages  Drop: the directories after the first are unlinked, and what follows the first picture's bytes is cut
 *               off if it is certainly not needed
 * @return splices in ascending order; none if @p bytes do not begin like a TIFF file, or would grow beyond 4 GB, or if
 *         the first directory is not within them
 */
std::optional<QList<Splice>> userCommentSplices(const QByteArray &bytes, const QString &comment, OtherPages pages);

/** False if the first directory has pixels and does not reliably say which bytes they are. */
bool tellsWhereItsPixelsAre(const QByteArray &bytes);

/** How many directories follow the first one of a TIFF file: its further pages. */
int otherPageCount(const QByteArray &bytes);

/**
 * An EXIF block, TIFF header first, with another user comment; built from scratch if that is no TIFF at all. Empty if
 * the block is too damaged to hold the comment.
 */
QByteArray exifBlockWithUserComment(const QByteArray &block, const QString &comment);

} // namespace platform
