#pragma once

// Private to the platform.

#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/metadata/metadata.h"

namespace platform {

/**
 * The metadata of a file of known content. Throws vips::VError if the file cannot be read: that is not "there is none".
 */
Metadata metadataOf(const PictureBytes &bytes, Content content);

} // namespace platform
