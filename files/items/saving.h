#pragma once

#include "platform/controls/panels.h"

#include <QString>

namespace files {

/** The extension of the program's own files of actions and settings. */
QString actionFileExtension();

/** The request for a panel that saves one file of one type under a suggested name, and accepts no other type. */
platform::PanelRequest saveRequest(const QString &type, const QString &name);

/** The request for a panel that opens one action file. */
platform::PanelRequest actionFileRequest();

/** The chosen path; null if the panel was cancelled. */
QString chosenPath(const platform::PanelAnswer &answer);

/** The user's desktop folder, where pictures are saved at first; empty if its path cannot be read as a location. */
QString startFolder();

} // namespace files
