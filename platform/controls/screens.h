#pragma once

#include <QRectF>

#include <functional>

namespace platform {

/**
 * The frame of the first screen of the screen list, panels included: pixels, origin top left.
 * A zero rectangle if there is no screen. Main thread only.
 */
QRectF firstScreenFrame();

/** Replaces what firstScreenFrame() asks; an empty function restores the desktop's own screens. */
void setScreenProvider(std::function<QRectF()> provider);

} // namespace platform
