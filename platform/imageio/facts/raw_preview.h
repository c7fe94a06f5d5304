#pragma once

// Inside platform/ only.

#include "platform/foundation/result.h"
#include "platform/imageio/bytes/picture_bytes.h"

namespace platform {

/**
 * The largest JPEG that the camera put into its raw file; empty if there is none, or none that is complete. Fails with
 * NotFound, and with Unreadable if a required part of the file cannot be read; the message is a reason, no sentence.
 */
Result<QByteArray> rawPreview(const PictureBytes &file);

} // namespace platform
