#pragma once

#include <QDateTime>
#include <QSize>
#include <QString>

#include <memory>

namespace platform {

class LentFile;

/** What a picture file says in its header: when and with what it was taken, and how large it is. */
struct PictureFacts
{
    QDateTime taken;        ///< local time as the camera wrote it, without a zone; not valid if the file states none
    QString camera;         ///< maker and model as one name; empty if the file states none
    QString lens;           ///< empty if the file states none
    QSize pixels;           ///< upright; empty if the file is not a readable picture
    QString typeIdentifier; ///< by the content; empty if the file is not a readable picture
};

/**
 * Reads the header of the file at @p path; a fraction of a millisecond for a JPEG of any size. A file that is no picture, is
 * truncated or damaged has no facts, nor has one that cannot be read completely. For a camera raw file whose picture
 * cannot be decoded, its statements are known but not its size.
 *
 * taken is the EXIF original date, else the date of scanning, else the TIFF date, else the date in XMP; an impossible
 * date ("0000:00:00 00:00:00") counts as none, an impossible time as midnight.
 */
PictureFacts pictureFacts(const QString &path);
/** The same for a file that is open already. */
PictureFacts pictureFacts(const std::shared_ptr<const LentFile> &file);

/**
 * The date in a text such as "2026:08:14 10:20:30" (EXIF) or "2026-08-14T10:20:30.5+02:00" (XMP); a zone is ignored,
 * and a missing time is midnight. Not valid for anything else.
 */
QDateTime statedDate(const QString &text);

/** "Canon", "Canon EOS 40D" give "Canon EOS 40D"; "NIKON CORPORATION", "E995" give "NIKON E995". */
QString cameraName(const QString &make, const QString &model);

} // namespace platform
