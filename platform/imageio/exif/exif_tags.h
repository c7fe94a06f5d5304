#pragma once

// Inside platform/ only: the few tags of an EXIF block or a TIFF file that say when and with what a picture was taken.

#include <QByteArray>
#include <QString>

class QIODevice;

namespace platform {

struct ExifTags
{
    QString original;  ///< when the picture was taken, as the camera wrote it
    QString digitized; ///< when it was scanned
    QString changed;   ///< when the file was written, according to its writer
    QString make;
    QString model;
    QString lens;
    int orientation = 0; ///< 1 to 8; 0 if none or no valid one is stated
    QByteArray xmp;      ///< a TIFF file stores its packet as a tag
};

/**
 * Reads those tags, and nothing else of the file: a directory and a dozen short values. @p block begins with the TIFF header.
 * All empty if it does not (also for TIFF files with 64-bit offsets); damaged values are skipped.
 */
ExifTags readExifTags(QIODevice &block);

} // namespace platform
