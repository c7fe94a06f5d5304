#pragma once

#include "platform/controls/panels.h"

#include <QStringList>

#include <vector>

namespace app {

struct PrintSettings;

/** The numbers of the pages, from 0, in the order in which they are printed, each as often as it is. */
std::vector<int> pagesToPrint(int count, const platform::PrintPages &pages);

/**
 * Shows the print panel and, unless it is cancelled, prints each picture on a page of its own: on the printer that was chosen in
 * the panel, or into the PDF file that the panel named, which is written atomically.
 *
 * @param paths  a picture that cannot be read gives an empty page
 * @param settings  how they are laid on the pages; paper and orientation that the user chooses in the panel go before
 *
 * Pictures are upright and in sRGB, on white where they are transparent. Nothing reports what fails. Main thread; modal.
 */
void printPictures(const QStringList &paths, const PrintSettings &settings);

} // namespace app
