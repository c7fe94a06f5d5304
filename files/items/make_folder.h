#pragma once

#include <QString>

namespace files {

/** The result of creating a folder. */
enum class FolderMade {
    Yes,
    WasThere, ///< anything at all is at the path, even a file
    No,       ///< it could not be created
};

/** Creates a folder with all missing parents. */
FolderMade makeFolder(const QString &path);

} // namespace files
