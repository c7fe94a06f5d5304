#pragma once

#include "platform/controls/panels.h"

#include <QString>

namespace files {

/** The extension of the program's own files of actions and settings. */
QString actionFileExtension();

/** What a panel is asked that saves one file of one type under a proposed name, and takes no other type. */
platform::PanelRequest saveRequest(const QString &type, const QString &name);

/** What a panel is asked that opens one action file. */
platform::PanelRequest actionFileRequest();

/** The path that was chosen; null where the panel was cancelled. */
QString chosenPath(const platform::PanelAnswer &answer);

/** The user's desktop folder, where pictures are saved at first; empty where its path cannot be read as a location. */
QString startFolder();

} // namespace files
