#pragma once

namespace window {

/** Tells those who do not see them what our own controls are. Called once before the first window, and again without harm. */
void describeOwnControls();

} // namespace window
