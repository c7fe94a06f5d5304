#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** True for the header of a camera raw file. */
bool isCameraRaw(const QByteArray &head);

} // namespace platform
