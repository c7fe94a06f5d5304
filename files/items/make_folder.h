#pragma once

#include <QString>

namespace files {

/** How making a folder went. */
enum class FolderMade {
    Yes,
    WasThere, ///< anything at all is at the path, a file too
    No,       ///< it could not be made
};

/** Makes a folder with all folders above it that are missing. */
FolderMade makeFolder(const QString &path);

} // namespace files
