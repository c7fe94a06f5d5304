#pragma once

#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture_facts.h"

#include <QByteArray>

#include <memory>

namespace platform {
class LentFile;
}

namespace meta {

/**
 * The picture with the fields of its sidecar in its metadata, for results made of it: in EXIF, IPTC and XMP, instead of
 * what these say. Anything else in a sidecar, such as settings of a raw converter, is left out. Unchanged if metadata is
 * stored in the file itself, or if the packet is empty or damaged.
 *
 * @param picture  the file of @p source
 * @param packet   see packetOf()
 */
platform::ImageSource withSidecar(const platform::ImageSource &source,
                                  const std::shared_ptr<const platform::LentFile> &picture, const QByteArray &packet);

/** Opens a picture, see platform::ImageSource::open(), with the metadata of the sidecar beside it. */
platform::Result<platform::ImageSource> openedWithSidecar(const QString &path);

/**
 * What is known about a picture, completed by its sidecar: the date taken. Unchanged if metadata is stored in the file
 * itself, or if the packet is empty or damaged.
 *
 * @param packet  see packetOf()
 */
platform::PictureFacts withSidecar(platform::PictureFacts facts,
                                   const std::shared_ptr<const platform::LentFile> &picture, const QByteArray &packet);

/** The same for a path. */
platform::PictureFacts factsWithSidecar(const QString &path);

} // namespace meta
