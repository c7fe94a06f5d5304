#pragma once

#include <QString>

namespace window {

/**
 * Shows the file at @p path selected in its folder, in the desktop's file manager; if that cannot select files, only
 * the folder is opened. If the file is gone, its folder is shown. Does not wait.
 */
void showInFolder(const QString &path);

} // namespace window
