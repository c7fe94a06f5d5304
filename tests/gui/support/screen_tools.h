#pragma once

#include "tests/gui/support/window_driver.h"

/** Copies the sample pictures into a person's own folder, with one file that is no picture; returns the folder. */
QString samplePictures(const QString &from, const QString &folder);

/** Gives previews and thumbnails the time to arrive. */
void settle(WindowDriver &driver);

/** Saves a picture of the window, with the focus on nothing in particular. */
void saveScreen(WindowDriver &driver, const QString &path);

/** Chooses a preset that comes with the program, by its English name. */
void choosePreset(WindowDriver &driver, const char *name);

/**
 * What every maker of screenshots does: reads SAMPLES, FOLDER and, if it is given, SCALE (how many pixels of the screen a pixel of the window
 * has) from its arguments, makes the folder, and starts the program once in each appearance, 1440 x 900 large.
 *
 * @param work  gets the program, the folder of the samples, and the path of a picture without its ending: "-light" or "-dark"
 *              after the name that is requested
 */
using PicturePath = std::function<QString(const char *name)>;
int makeScreenshots(int argc, char **argv,
                    const std::function<void(WindowDriver &, const QString &samples, const PicturePath &)> &work);
