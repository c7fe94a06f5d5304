#pragma once

#include "platform/imageio/source/picture_facts.h"

#include <QString>
#include <QVariant>

#include <functional>

namespace files {

/**
 * What is known of the file or folder at @p path without decoding it:
 *
 * - taken, created, changed: "2026-08-14T10:20:30", local time without zone; taken is "" where the file states no date
 * - camera, lens: "" where the file states none
 * - bytes: of the file that a link leads to
 * - size: the same in words ("2.4 MB"), English in every language; see platform::byteCountText()
 * - width, height: upright pixels; 0 where the file is no picture that can be read
 * - type: in words ("JPEG"), by the content of a picture and by the name of any other file
 * - isFolder
 *
 * Null where nothing is at the path. Reads headers only; see platform::pictureFacts().
 */
QVariant fileFacts(const QString &path);
/** The same with what somebody else read in the file, where it is none of folders. */
QVariant fileFacts(const QString &path, const std::function<platform::PictureFacts(const QString &path)> &pictureFacts);

/** A file system: what may still be written to it, and a number that tells it from others; both -1 where they are not known. */
struct DiskSpace
{
    qint64 freeBytes = -1;
    qint64 disk = -1;
};

/** The file system of @p path, or of the first folder above it that is there. */
DiskSpace diskSpace(const QString &path);
/** Tests have disks as full as they like: answers in place of the file systems, until it is set to nothing. */
void setDiskSpaceSource(std::function<DiskSpace(const QString &path)> source);

} // namespace files
