#pragma once

// Inside platform/ only.

#include "platform/file/atomic_file.h"
#include "platform/imageio/edits/metadata_change.h"

#include <optional>

namespace platform {

/** Whether the second directory is a thumbnail of the first, or a page of the file. */
enum class SecondDirectory { IsPage, IsThumbnail };

/**
 * The changes to a TIFF file or EXIF block that set its tags.
 *
 * No byte that stays in use is moved, so that every offset stays valid, including those in maker notes. A value
 * replaces the old one if there is room, else it is appended; a directory that gets more entries moves to the end, one
 * that gets fewer stays in its place. Replaced values become zeros. A block without a directory gets a first one.
 *
 * @param dropsThumbnail  the second directory is unlinked and becomes zeros, with its picture; only if it is a
 * thumbnail
 * @return splices in ascending order; none if @p bytes do not begin like a TIFF file, if a directory is not within
 *         them, or if pixels would change
 */
std::optional<QList<Splice>> tagSplices(const QByteArray &bytes, const QList<TagChange> &changes, bool dropsThumbnail);

/** An EXIF block with these changes; a new one if it is no TIFF at all. None if it is damaged. */
std::optional<QByteArray> exifBlockWith(const QByteArray &block, const QList<TagChange> &changes, bool dropsThumbnail);

/** The bytes of a tag's value; none if it is missing, unreadable, or longer than @p longest. */
std::optional<QByteArray> tagValue(const QByteArray &block, TagChange::Directory directory, quint16 tag,
                                   qint64 longest = 16 << 20);

/** The text of such a tag, up to its first zero. UTF-8, or else Latin 1. */
QString tagText(const QByteArray &block, TagChange::Directory directory, quint16 tag);

} // namespace platform
