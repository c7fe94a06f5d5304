#pragma once

#include <QStringList>

namespace app {

struct PrintSettings;

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
