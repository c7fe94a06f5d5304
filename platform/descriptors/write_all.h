#pragma once

#include "platform/descriptors/descriptor.h"

#include <QByteArray>

namespace platform {

/** Writes all of it to an open file. Answers 0, or an errno. What was written is on the disk then. */
int writeAll(const Descriptor &file, const QByteArray &bytes);

} // namespace platform
