#pragma once

#include "platform/foundation/result.h"

#include <QString>

#include <memory>

namespace platform {

class LentFile;

/**
 * Writes @p comment as the EXIF user comment of the first picture into the file at @p path, and changes nothing else.
 *
 * Pixels and all other metadata stay as they are, byte for byte; an empty comment is written as such. The text is ASCII
 * where that can hold it, else UTF-16 in the byte order of the file's EXIF block. Of a TIFF file with several pages the first
 * one is kept, whatever its name; a raw file of a camera, by its content, keeps all that is in it.
 *
 * Written are JPEG (an EXIF segment), TIFF (its directories), PNG (a chunk eXIf, also in place of the same block as a text),
 * JPEG 2000 (a box of its own) and WebP (a chunk EXIF). The file is replaced as spliceFile() does it, and only where
 * something changes. Reads headers only, but of TIFF files and of JPEG 2000 and WebP the chain of their parts.
 *
 * The edited file takes the old one's place only after it was opened, has the same size and says @p comment.
 *
 * Fails with NotFound or NotAPicture; with Unsupported for every other kind of file; with Unreadable where its structure
 * is damaged, where it cannot be read as a picture, or could not be after the edit; with TooLarge where the comment does not
 * fit; with InvalidValue for a comment with a null character; with WriteFailed. The file is then as it was.
 */
Result<void> writeUserComment(const QString &path, const QString &comment);

/**
 * The same for a picture that another process has open: the edited file is written into its copy, which is checked as well. Whoever
 * opened them puts the copy into the picture's place, see EditedFile.
 *
 * @param picture     open for reading; its name stands in messages
 * @param copy        an empty file, open for writing
 * @param copyToRead  the same, open for reading
 * @return whether anything changes; where nothing does the copy stays empty
 */
Result<bool> writeUserComment(const std::shared_ptr<const LentFile> &picture, int copy,
                              const std::shared_ptr<const LentFile> &copyToRead, const QString &comment);

/**
 * The EXIF user comment of the first picture; empty where there is none. Fails as ImageSource::open() does: a comment that
 * cannot be read is not one that is not there.
 */
Result<QString> readUserComment(const QString &path);

/** How many pages writeUserComment() would take out of the file at @p path; 0 where it cannot be read. */
int pagesLostToUserComment(const QString &path);

/** Whether the file at @p path is of a kind that can hold a comment, by its first bytes; false where it cannot be read. */
bool canHoldUserComment(const QString &path);

/** The last two of a file that is open already. */
int pagesLostToUserComment(const LentFile &file);
bool canHoldUserComment(const LentFile &file);

} // namespace platform
