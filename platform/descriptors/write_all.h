#pragma once

#include "platform/descriptors/descriptor.h"

#include <QByteArray>

namespace platform {

/** Writes all bytes to an open file and syncs it. Answers 0, or an errno. */
int writeAll(const Descriptor &file, const QByteArray &bytes);

} // namespace platform
