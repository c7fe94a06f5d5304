#pragma once

namespace window {

/** Describes our own controls to screen readers. Called once before the first window; calling it again is harmless. */
void describeOwnControls();

} // namespace window
