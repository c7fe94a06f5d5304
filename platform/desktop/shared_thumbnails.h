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

/** What a shared thumbnail must state, and where it is stored. */
struct SharedThumbnail
{
    QString path;        ///< of the thumbnail; it need not exist
    QByteArray uri;      ///< of the picture, "file:///…"
    qint64 modified = 0; ///< the picture, in seconds since 1970
    int side = 0;        ///< its largest possible side in pixels: 128, 256 or 512

    bool isThere() const;
};

/** The URI that file managers give to a local file. */
QByteArray fileUri(const QString &path);

/**
 * The smallest kind of thumbnail that has enough pixels.
 *
 * @param path    absolute, of the picture
 * @param pixels  that it has, upright
 * @param wanted  the size that the thumbnail must cover
 *
 * None if no kind is that large, if the picture is gone, or if it is itself a shared thumbnail.
 */
std::optional<SharedThumbnail> sharedThumbnail(const QString &path, QSize pixels, QSize wanted);

/**
 * Whether a small copy of a picture may be stored elsewhere: not if its disk is encrypted or removable, nor if its
 * folder is encrypted by the file system.
 */
bool mayBeThumbnailed(const QString &path);

/**
 * The same for a disk.
 *
 * @param device  its number, from stat()
 * @param mounts  the text of /proc/self/mountinfo
 * @param system  the folder /sys, or its replacement in a test
 */
bool isPrivateDisk(quint64 device, const QByteArray &mounts, const QString &system);

/**
 * Writes the thumbnail atomically, readable by this user alone.
 *
 * @param picture  its own size in pixels
 *
 * Fails with WriteFailed, and with NotFound if the picture has changed since it was read.
 */
Result<void> writeSharedThumbnail(const SharedThumbnail &place, const QString &path, const QImage &image,
                                  QSize picture);

} // namespace platform
