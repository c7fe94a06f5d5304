#pragma once

// Inside platform/ only.

#include "platform/imageio/loaders.h"

namespace platform {

/** True for the head of a file in which a camera has put down what its sensor saw. */
bool isCameraRaw(const QByteArray &head);

/** The largest JPEG that the camera put into its raw file; empty where there is none, or none that is whole. */
QByteArray rawPreview(const PictureBytes &file);

} // namespace platform
