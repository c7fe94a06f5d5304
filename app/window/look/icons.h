#pragma once

#include <QIcon>
#include <QString>

namespace window {

/** Sets the folder of the interface, from which icon() reads. */
void setIconsOf(const QString &interfaceFolder);

/**
 * The line icon @p name, from icons/ or from the folder of the action of that name, in the text colour of the palette, and in
 * the colour of selected text where it is drawn selected. Drawn from the vector file at each size, so that it is sharp at any
 * scale. An unknown name gives an empty icon.
 */
QIcon icon(const QString &name);

} // namespace window
