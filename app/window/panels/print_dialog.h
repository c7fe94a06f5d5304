#pragma once

#include "platform/controls/panels.h"

namespace window {

/** Shows the desktop's print dialog, with paper and orientation, and answers the printer as configured there. */
platform::PanelAnswer runPrintDialog(const platform::PanelRequest &request);

/** A printer's settings as options of the print system's command. */
struct PrinterChoice
{
    QString file;          ///< a PDF is written to this path instead of being printed; empty for a printer
    QStringList arguments; ///< of lp, without the file
};

/** @param answer  of runPrintDialog(), accepted */
PrinterChoice chosenPrinter(const platform::PanelAnswer &answer);

/** Lets the user choose paper and orientation; @p page is unchanged if that is cancelled. Margins stay. */
void runPageSetup(QPageLayout &page);

} // namespace window
