#pragma once

#include "platform/imageio/source/picture_facts.h"

#include <QByteArray>

#include <memory>

namespace platform {
class LentFile;
}

namespace meta {

/**
 * What is known of a picture with what its sidecar says of it: the date taken. As it is where metadata stands in the file itself, or
 * where the packet is empty or damaged.
 *
 * @param packet  see packetOf()
 */
platform::PictureFacts withSidecar(platform::PictureFacts facts,
                                   const std::shared_ptr<const platform::LentFile> &picture, const QByteArray &packet);

} // namespace meta
