#pragma once

#include "platform/controls/panels.h"

namespace window {

/**
 * Shows file dialogs: the desktop's own for opening, the toolkit's for saving, since that one can contain a view and
 * tags.
 *
 * A save panel gives a name the extension of the allowed type, and updates it when the type changes while it is open; a
 * name with another extension gets it appended, unless other types are allowed. A panel whose folder does not exist
 * starts in the folder of pictures, or at home.
 */
class DialogPanels : public platform::PanelProvider
{
public:
    platform::PanelAnswer run(const platform::PanelRequest &request) override;
};

/** The line of a file dialog that shows files with these extensions only. */
QString panelFilter(const QStringList &types);

} // namespace window
