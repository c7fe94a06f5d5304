#include "files/items/placing.h"

#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"

namespace files {
namespace {

platform::Result<void> placed(Placing placing, const QString &source, const QString &destination)
{
    switch (placing) {
    case Placing::Move:
        return platform::moveItem(source, destination);
    case Placing::Copy:
        return platform::copyItem(source, destination);
    case Placing::Link:
        return platform::makeLink(source, destination);
    }
    Q_UNREACHABLE();
}

} // namespace

bool place(Placing placing, const QString &source, const QString &destination)
{
    const QString folder = platform::parentFolder(destination);
    (void)platform::makeFolder(folder);
    if (!platform::folderExists(folder))
        return false;
    if (platform::isTaken(destination))
        (void)platform::removeItem(destination);
    return placed(placing, source, destination).has_value();
}

} // namespace files
