#pragma once

#include "platform/controls/panels.h"

namespace window {

/** Shows the desktop's print dialog, with paper and orientation, and answers with the printer as it was set up there. */
platform::PanelAnswer runPrintDialog(const platform::PanelRequest &request);

/** What a printer was set up for, as the command of the print system takes it. */
struct PrinterChoice
{
    QString file;          ///< a PDF is written to this path in place of printing; empty for a printer
    QStringList arguments; ///< of lp, without the file
};

/** @param answer  of runPrintDialog(), accepted */
PrinterChoice chosenPrinter(const platform::PanelAnswer &answer);

/** Lets the user choose paper and orientation; @p page is as it was where that is cancelled. Margins stay. */
void runPageSetup(QPageLayout &page);

} // namespace window
