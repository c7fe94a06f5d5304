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
 * The sidecar of a picture: the one that lies beside it, "name.ext.xmp" before "name.xmp" and in whatever case, else where it would lie,
 * "name.ext.xmp".
 */
struct Sidecar
{
    QString path;
    bool isThere = false;
};
Sidecar sidecarOf(const QString &picturePath);

/** The packet of a sidecar; empty where there is none. Fails as platform::readFile() does, and with TooLarge for more than 16 MB. */
platform::Result<QByteArray> packetOf(const Sidecar &sidecar);
/** That of a picture; empty also where it cannot be read. */
QByteArray packetBeside(const QString &picturePath);

/** {fields: see fieldMap(), inPlace: whether they stand in the file itself}. @param packet  of its sidecar */
platform::Result<QVariantMap> readFields(const std::shared_ptr<const platform::LentFile> &picture,
                                         const QByteArray &packet);

/** The same of a path. Also {sidecar: its path} where the fields stand there, or will. */
platform::Result<QVariantMap> readFields(const QString &path);

/** What became of a picture. */
struct WrittenFields
{
    bool isChanged = false;
    QString file; ///< that was written, or would have been: the picture or its sidecar
};

/**
 * Does the work to a picture in the file itself, see platform::editMetadata(), or in its sidecar, which is replaced or made as
 * platform::replaceFile() does it and keeps its other properties. On failure both are as they were.
 */
platform::Result<WrittenFields> writeFields(const QString &path, const MetadataWork &work);

/** Writes the rating of XMP, from -1 (rejected) to 5; 0 takes it out. */
platform::Result<WrittenFields> writeRating(const QString &path, int rating);

} // namespace meta
