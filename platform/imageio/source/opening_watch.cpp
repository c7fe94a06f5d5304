#include "platform/imageio/source/opening_watch.h"

#include <utility>

namespace platform {

namespace {
std::function<void(const QString &name)> openingWatch; // NOLINT: one for the process, as its decoders are
}

void watchOpening(std::function<void(const QString &name)> watch)
{
    openingWatch = std::move(watch);
}

void tellOpening(const QString &name)
{
    if (openingWatch)
        openingWatch(name);
}

} // namespace platform
