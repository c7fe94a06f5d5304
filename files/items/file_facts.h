#pragma once

#include "platform/imageio/source/picture_facts.h"

#include <QString>
#include <QVariant>

#include <functional>

namespace files {

/**
 * What is known about the file or folder at @p path without decoding it:
 *
 * - taken, created, changed: "2026-08-14T10:20:30", local time without zone; taken is "" if the file states no date
 * - camera, lens: "" if the file states none
 * - bytes: for a link those of its target
 * - size: the same in words ("2.4 MB"), English in every language; see platform::byteCountText()
 * - width, height: upright pixels; 0 if the file is not a readable picture
 * - type: in words ("JPEG"), by the content of a picture and by the name of any other file
 * - isFolder
 *
 * Null if nothing is at the path. Reads headers only; see platform::pictureFacts().
 */
QVariant fileFacts(const QString &path);
/** The same with facts that somebody else has read from the file, if it is not a folder. */
QVariant fileFacts(const QString &path, const std::function<platform::PictureFacts(const QString &path)> &pictureFacts);

/** A file system: how much can still be written to it, and a number that identifies it; both -1 if unknown. */
struct DiskSpace
{
    qint64 freeBytes = -1;
    qint64 disk = -1;
};

/** The file system of @p path, or of its nearest existing parent. */
DiskSpace diskSpace(const QString &path);
/**
 * For tests, which need disks with any amount of space: replaces the answers of the file systems, until set to nothing.
 */
void setDiskSpaceSource(std::function<DiskSpace(const QString &path)> source);

} // namespace files
