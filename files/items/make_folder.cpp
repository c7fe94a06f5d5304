#include "files/items/make_folder.h"

#include "platform/disk/folders.h"

namespace files {

FolderMade makeFolder(const QString &path)
{
    if (platform::itemExists(path))
        return FolderMade::WasThere;
    return platform::makeFolder(path) ? FolderMade::Yes : FolderMade::No;
}

} // namespace files
