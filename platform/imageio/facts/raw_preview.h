#pragma once

// Inside platform/ only.

#include "platform/foundation/result.h"
#include "platform/imageio/bytes/picture_bytes.h"

namespace platform {

/**
 * The largest JPEG that the camera put into its raw file; empty where there is none, or none that is whole. Fails with NotFound, and
 * with Unreadable where something of the file that is looked at cannot be read; the message is a reason, no sentence.
 */
Result<QByteArray> rawPreview(const PictureBytes &file);

} // namespace platform
