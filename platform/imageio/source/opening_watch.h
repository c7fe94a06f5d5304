#pragma once

#include <QString>

#include <functional>

namespace platform {

/**
 * Has @p watch called with the name of each picture that this process opens, whatever for, before it looks into it; nothing ends that.
 * For those who show that a process opens none.
 */
void watchOpening(std::function<void(const QString &name)> watch);

/** Inside platform/imageio/source: a picture is opened. */
void tellOpening(const QString &name);

} // namespace platform
