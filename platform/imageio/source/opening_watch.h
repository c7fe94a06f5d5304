#pragma once

#include <QString>

#include <functional>

namespace platform {

/**
 * From now on calls @p watch with the name of each picture that this process opens, for whatever purpose, before it is
 * read; cannot be undone. For proving that a process opens none.
 */
void watchOpening(std::function<void(const QString &name)> watch);

/** Inside platform/imageio/source: a picture is opened. */
void tellOpening(const QString &name);

} // namespace platform
