#pragma once

#include "platform/imageio/source/picture_facts.h"

#include <QByteArray>

#include <memory>

namespace platform {
class LentFile;
}

namespace meta {

/**
 * What is known about a picture, completed by its sidecar: the date taken. Unchanged if metadata is stored in the file
 * itself, or if the packet is empty or damaged.
 *
 * @param packet  see packetOf()
 */
platform::PictureFacts withSidecar(platform::PictureFacts facts,
                                   const std::shared_ptr<const platform::LentFile> &picture, const QByteArray &packet);

} // namespace meta
