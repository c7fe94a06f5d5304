#pragma once

#include "window_driver.h"

/** Copies the sample pictures into a person's own folder, with one file that is no picture; returns the folder. */
QString samplePictures(const QString &from, const QString &folder);

/** Gives previews and thumbnails the time to arrive. */
void settle(WindowDriver &driver);

/** Saves a picture of the window, with the focus on nothing in particular. */
void saveScreen(WindowDriver &driver, const QString &path);

/** Chooses a preset that comes with the program, by its English name. */
void choosePreset(WindowDriver &driver, const char *name);
