#pragma once

// Inside platform/ only.

#include "platform/imageio/bytes/picture_bytes.h"

namespace platform {

/** The largest JPEG that the camera put into its raw file; empty where there is none, or none that is whole. */
QByteArray rawPreview(const PictureBytes &file);

} // namespace platform
