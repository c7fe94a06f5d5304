#pragma once

#include "meta/field_edit.h"
#include "platform/foundation/result.h"

#include <QString>
#include <QVariantMap>

#include <memory>

namespace platform {
class LentFile;
}

namespace meta {

/**
 * The sidecar of a picture: an existing one beside it, "name.ext.xmp" before "name.xmp" and in any case of letters,
 * else the path for a new one, "name.ext.xmp".
 */
struct Sidecar
{
    QString path;
    bool isThere = false;
};
Sidecar sidecarOf(const QString &picturePath);

/**
 * The packet of a sidecar; empty if there is none. Fails like platform::readFile(), and with TooLarge for more than 16
 * MB.
 */
platform::Result<QByteArray> packetOf(const Sidecar &sidecar);
/** That of a picture; empty also if it cannot be read. */
QByteArray packetBeside(const QString &picturePath);

/** {fields: see fieldMap(), inPlace: whether they are stored in the file itself}. @param packet  of its sidecar */
platform::Result<QVariantMap> readFields(const std::shared_ptr<const platform::LentFile> &picture,
                                         const QByteArray &packet);

/** The same for a path. Also {sidecar: its path} if the fields are stored there, or will be. */
platform::Result<QVariantMap> readFields(const QString &path);

/** The outcome for a picture. */
struct WrittenFields
{
    bool isChanged = false;
    QString file; ///< that was written, or would have been: the picture or its sidecar
};

/**
 * Applies the work to a picture in the file itself, see platform::editMetadata(), or to its sidecar, which is replaced
 * or created as by platform::replaceFile() and keeps its other properties. On failure both are unchanged.
 */
platform::Result<WrittenFields> writeFields(const QString &path, const MetadataWork &work);

/** Writes the rating of XMP, from -1 (rejected) to 5; 0 removes it. */
platform::Result<WrittenFields> writeRating(const QString &path, int rating);

} // namespace meta
