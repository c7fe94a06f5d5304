#pragma once

// Inside platform/ only: the few tags of an EXIF block or a TIFF file that tell when and with what a picture was taken.

#include <QByteArray>
#include <QString>

class QIODevice;

namespace platform {

struct ExifTags
{
    QString original;  ///< when the picture was taken, as the camera wrote it
    QString digitized; ///< when it was scanned
    QString changed;   ///< when the file was written, by what its writer says
    QString make;
    QString model;
    QString lens;
    int orientation = 0; ///< 1 to 8; 0 where none or no valid one is stated
    QByteArray xmp;      ///< a TIFF file keeps its packet among the tags
};

/**
 * Reads those tags, and nothing else of the file: a directory and a dozen short values. @p block begins with the TIFF header.
 * All empty where it is none (also for TIFF files with offsets of 64 bits); what is damaged is left out.
 */
ExifTags readExifTags(QIODevice &block);

} // namespace platform
