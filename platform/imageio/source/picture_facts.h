#pragma once

#include <QDateTime>
#include <QSize>
#include <QString>

#include <memory>

namespace platform {

class LentFile;

/** What a picture file tells of itself in its header: when and with what it was taken, and how large it is. */
struct PictureFacts
{
    QDateTime taken;        ///< local time as the camera wrote it, no zone; not valid where the file states none
    QString camera;         ///< maker and model as one name; empty where the file states none
    QString lens;           ///< empty where the file states none
    QSize pixels;           ///< upright; empty where the file is no picture that can be read
    QString typeIdentifier; ///< by the content; empty where the file is no picture that can be read
};

/**
 * Reads the header of the file at @p path; a fraction of a millisecond for a JPEG of any size. A file that is no picture, is
 * cut short or damaged has no facts, and neither has one of which some cannot be read. Of a camera's raw file whose picture cannot be decoded, what it states is known and its
 * size is not.
 *
 * taken is the EXIF original date, else the date of scanning, else the TIFF date, else the date in XMP; a date that no
 * calendar knows ("0000:00:00 00:00:00") counts as none, a time that no clock knows as midnight.
 */
PictureFacts pictureFacts(const QString &path);
/** The same of a file that is open already. */
PictureFacts pictureFacts(const std::shared_ptr<const LentFile> &file);

/**
 * The date in a text such as "2026:08:14 10:20:30" (EXIF) or "2026-08-14T10:20:30.5+02:00" (XMP); a zone is passed over, and
 * a missing time is midnight. Not valid for anything else.
 */
QDateTime statedDate(const QString &text);

/** "Canon", "Canon EOS 40D" give "Canon EOS 40D"; "NIKON CORPORATION", "E995" give "NIKON E995". */
QString cameraName(const QString &make, const QString &model);

} // namespace platform
