#pragma once

#include "platform/desktop/panels.h"

namespace window {

/** Shows the desktop's own file dialogs. */
class DialogPanels : public platform::PanelProvider
{
public:
    platform::PanelAnswer run(const platform::PanelRequest &request) override;
};

} // namespace window
