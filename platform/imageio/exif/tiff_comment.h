#pragma once

// Inside platform/ only.

#include "platform/file/atomic_file.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

enum class OtherPages { Keep, Drop };

/**
 * What has to change in a TIFF file or EXIF block for it to have @p comment as its EXIF user comment, and nothing else.
 *
 * No byte that stays in use is moved, so that every offset still holds, those in maker notes included. The comment is
 * written where the old one was if there is room, which is then filled with zeros; otherwise it goes to the end, with a
 * new EXIF directory if the old one has no entry for it, and the old comment's bytes become zeros. A block without a
 * directory gets a first one; one whose first directory is cut is not edited, for everything that it leads to would be lost.
 *
 * @param pages  Drop: the directories behind the first are unlinked, and what follows the first picture's bytes is cut
 *               off where it is certain that they are not needed
 * @return splices in ascending order; none where @p bytes do not begin like a TIFF file, or would grow beyond 4 GB, or where
 *         the first directory does not lie within them
 */
std::optional<QList<Splice>> userCommentSplices(const QByteArray &bytes, const QString &comment, OtherPages pages);

/** False where the first directory has pixels and does not say for sure which bytes they are. */
bool tellsWhereItsPixelsAre(const QByteArray &bytes);

/** How many directories follow the first one of a TIFF file: its further pages. */
int otherPageCount(const QByteArray &bytes);

/**
 * An EXIF block, TIFF header first, with another user comment in it; built from scratch if that is not a TIFF at all. Empty where the
 * block is so damaged that it would not hold the comment afterwards.
 */
QByteArray exifBlockWithUserComment(const QByteArray &block, const QString &comment);

} // namespace platform
