#pragma once

#include "platform/foundation/result.h"

#include <QString>

#include <memory>

namespace platform {

class LentFile;

/**
 * Writes @p comment as the EXIF user comment of the first picture into the file at @p path, and changes nothing else.
 *
 * Pixels and all other metadata stay as they are, byte for byte; an empty comment is written as such. The text is
 * stored as ASCII if possible, else as UTF-16 in the byte order of the file's EXIF block. A TIFF file with several
 * pages keeps only the first, whatever its name; a camera raw file, recognised by its content, keeps everything.
 *
 * Supported are JPEG (an EXIF segment), TIFF (its directories), PNG (a chunk eXIf, which also replaces the same block
 * stored as a text), JPEG 2000 (a separate box) and WebP (a chunk EXIF). The file is replaced as by spliceFile(), and
 * only if something changes. Reads headers only, except for TIFF files, and for JPEG 2000 and WebP the chain of their
 * parts.
 *
 * The edited file replaces the old one only after it was opened, has the same size and contains @p comment.
 *
 * Fails with NotFound or NotAPicture; with Unsupported for every other kind of file; with Unreadable if its structure
 * is damaged, if it cannot be read as a picture, or could not be after the edit; with TooLarge if the comment does not
 * fit; with InvalidValue for a comment with a null character; with WriteFailed. The file is then unchanged.
 */
Result<void> writeUserComment(const QString &path, const QString &comment);

/**
 * The same for a picture that another process has opened: the edited file is written into its copy, which is checked as
 * well. The process that opened them replaces the picture by the copy, see EditedFile.
 *
 * @param picture     open for reading; its name appears in messages
 * @param copy        an empty file, open for writing
 * @param copyToRead  the same, open for reading
 * @return whether anything changes; if nothing does, the copy stays empty
 */
Result<bool> writeUserComment(const std::shared_ptr<const LentFile> &picture, int copy,
                              const std::shared_ptr<const LentFile> &copyToRead, const QString &comment);

/**
 * The EXIF user comment of the first picture; empty if there is none. Fails like ImageSource::open(): an unreadable
 * comment is not a missing one.
 */
Result<QString> readUserComment(const QString &path);

/** How many pages writeUserComment() would remove from the file at @p path; 0 if it cannot be read. */
int pagesLostToUserComment(const QString &path);

/** Whether the file at @p path is of a kind that can hold a comment, by its first bytes; false if it cannot be read. */
bool canHoldUserComment(const QString &path);

/** The last two of a file that is open already. */
int pagesLostToUserComment(const LentFile &file);
bool canHoldUserComment(const LentFile &file);

} // namespace platform
