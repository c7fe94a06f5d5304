#pragma once

#include "platform/controls/panels.h"

#include <QImage>
#include <QSizeF>
#include <QStringList>

#include <functional>
#include <vector>

namespace app {

struct PrintSettings;

/** The numbers of the pages, from 0, in the order in which they are printed, each as often as it is. */
std::vector<int> pagesToPrint(int count, const platform::PrintPages &pages);

/** Where the pictures of the pages come from. */
struct PrintSource
{
    /** In points; empty for what cannot be read. */
    std::function<QSizeF(const QString &path)> size;
    /** The pixels for the screen, no more than about @p most on a side; null if the picture cannot be read. */
    std::function<QImage(const QString &path, double most)> pixels;
};

/** They are decoded in this process. */
PrintSource decodedHere();

/**
 * Shows the print panel and, unless it is cancelled, prints each picture on a separate page: on the printer that was chosen in
 * the panel, or into the PDF file that the panel named, which is written atomically.
 *
 * @param paths  a picture that cannot be read gives an empty page
 * @param settings  how they are laid out; paper and orientation that the user chooses in the panel take precedence
 *
 * Pictures are upright and in sRGB, on white where they are transparent. Failures are not reported. Main thread; modal.
 */
void printPictures(const QStringList &paths, const PrintSettings &settings, const PrintSource &source = decodedHere());

} // namespace app
