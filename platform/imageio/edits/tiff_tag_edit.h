#pragma once

// Inside platform/ only.

#include "platform/file/atomic_file.h"
#include "platform/imageio/edits/metadata_change.h"

#include <optional>

namespace platform {

/** Whether what is behind the first directory is a small picture of the first, or a page of the file. */
enum class SecondDirectory { IsPage, IsThumbnail };

/**
 * What has to change in a TIFF file or EXIF block for its tags to say something else.
 *
 * No byte that stays in use is moved, so that every offset still holds, those in maker notes included. A value goes where the old one
 * was if there is room, else to the end; a directory that gets more entries moves to the end, one that gets fewer stays in its
 * place. Values that give way become zeros. A block without a directory gets a first one.
 *
 * @param dropsThumbnail  the second directory is unlinked and becomes zeros, with its picture; only where it is a thumbnail
 * @return splices in ascending order; none where @p bytes do not begin like a TIFF file, where a directory does not lie within them, or
 *         where pixels would change
 */
std::optional<QList<Splice>> tagSplices(const QByteArray &bytes, const QList<TagChange> &changes, bool dropsThumbnail);

/** An EXIF block with these changes; a new one around what is no TIFF at all. None where it is damaged. */
std::optional<QByteArray> exifBlockWith(const QByteArray &block, const QList<TagChange> &changes, bool dropsThumbnail);

/** The bytes of a tag's value; none where it is not there or cannot be read, or is longer than @p longest. */
std::optional<QByteArray> tagValue(const QByteArray &block, TagChange::Directory directory, quint16 tag,
                                   qint64 longest = 16 << 20);

/** The text of such a tag, up to its first zero. UTF-8, or else Latin 1. */
QString tagText(const QByteArray &block, TagChange::Directory directory, quint16 tag);

} // namespace platform
