#pragma once

#include <QIcon>
#include <QString>

namespace window {

/** Sets the folder that icon() reads from. */
void setIconFolder(const QString &folder);

/**
 * The line icon @p name of the icon folder, in the text colour of the palette, and in the colour of selected text
 * where it is drawn selected. Drawn from the vector file at each size, so that it is sharp at any scale. An unknown
 * name gives an empty icon.
 */
QIcon icon(const QString &name);

} // namespace window
