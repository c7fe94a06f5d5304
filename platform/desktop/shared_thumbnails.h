#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <optional>

class QImage;

/**
 * The thumbnails that the programs of a desktop share, as freedesktop.org's Thumbnail Managing Standard lays them out: a PNG for each file
 * in $XDG_CACHE_HOME/thumbnails, named by the MD5 of the file's address, which states that address and when the file was changed.
 */
namespace platform {

/** What a shared thumbnail must state, and where it lies. */
struct SharedThumbnail
{
    QString path;        ///< of the thumbnail; it need not be there
    QByteArray uri;      ///< of the picture, "file:///…"
    qint64 modified = 0; ///< the picture, in seconds since 1970
    int side = 0;        ///< the most pixels that it may have on a side: 128, 256 or 512

    bool isThere() const;
};

/** The address that file managers give to a local file. */
QByteArray fileUri(const QString &path);

/**
 * The smallest kind of thumbnail that has enough pixels.
 *
 * @param path    absolute, of the picture
 * @param pixels  that it has, upright
 * @param wanted  what the thumbnail is to cover
 *
 * None where no kind has that many, where the picture is gone, or where it is itself a shared thumbnail.
 */
std::optional<SharedThumbnail> sharedThumbnail(const QString &path, QSize pixels, QSize wanted);

/**
 * Whether others may keep a small copy of what lies there: not where its disk is encrypted or can be taken away, nor where its folder is
 * encrypted by the file system.
 */
bool mayBeThumbnailed(const QString &path);

/**
 * The same of a disk.
 *
 * @param device  its number, as stat() tells it
 * @param mounts  the text of /proc/self/mountinfo
 * @param system  the folder /sys, or what stands in for it in a test
 */
bool isPrivateDisk(quint64 device, const QByteArray &mounts, const QString &system);

/**
 * Writes the thumbnail, readable by this user alone, whole or not at all.
 *
 * @param picture  its own size in pixels
 *
 * Fails with WriteFailed, and with NotFound where the picture was changed since it was looked at.
 */
Result<void> writeSharedThumbnail(const SharedThumbnail &place, const QString &path, const QImage &image,
                                  QSize picture);

} // namespace platform
