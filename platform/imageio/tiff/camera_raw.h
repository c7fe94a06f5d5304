#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** True for the head of a file in which a camera has put down what its sensor saw. */
bool isCameraRaw(const QByteArray &head);

} // namespace platform
