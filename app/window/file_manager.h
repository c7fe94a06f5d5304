#pragma once

#include <QString>

namespace window {

/**
 * Shows the file at @p path in its folder, chosen, in the desktop's file manager; where there is none that can do that, only the
 * folder is opened. Where the file is gone, its folder is shown. Does not wait.
 */
void showInFolder(const QString &path);

} // namespace window
