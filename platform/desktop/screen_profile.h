#pragma once

#include <QByteArray>

namespace platform {

/**
 * The ICC profile that the X window system holds for a screen; empty if it has none, or if no such system answers.
 *
 * @param number  of the screen among those of the display, from 0
 */
QByteArray profileOfX11Screen(int number);

} // namespace platform
