#pragma once

#include "platform/controls/panels.h"

namespace window {

/**
 * Shows file dialogs: the desktop's own for opening, one of the toolkit's for saving, since that can hold a view and tags.
 *
 * A save panel gives a name the extension of the allowed type, which follows when the type changes while it is open; a name
 * with another extension gets that one behind it, unless other types are allowed. A panel whose folder is not there starts in
 * the folder of pictures, or at home.
 */
class DialogPanels : public platform::PanelProvider
{
public:
    platform::PanelAnswer run(const platform::PanelRequest &request) override;
};

/** The line of a file dialog that shows files with these extensions only. */
QString panelFilter(const QStringList &types);

} // namespace window
