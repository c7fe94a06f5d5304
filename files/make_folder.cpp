#include "files/make_folder.h"

#include "platform/foundation/folders.h"

namespace files {

FolderMade makeFolder(const QString &path)
{
    if (platform::itemExists(path))
        return FolderMade::WasThere;
    return platform::makeFolder(path) ? FolderMade::Yes : FolderMade::No;
}

} // namespace files
