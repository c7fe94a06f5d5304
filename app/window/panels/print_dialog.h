#pragma once

#include "platform/controls/panels.h"

namespace window {

/** Shows the desktop's print dialog, with paper and orientation, and answers with the printer as it was set up there. */
platform::PanelAnswer runPrintDialog(const platform::PanelRequest &request);

/** Lets the user choose paper and orientation; @p page is as it was where that is cancelled. Margins stay. */
void runPageSetup(QPageLayout &page);

} // namespace window
