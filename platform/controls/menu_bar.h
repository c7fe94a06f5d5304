#pragma once

#include <functional>

namespace platform {

/** Whether the menu bar of the application is visible; it is at the start. Main thread only. */
bool isMenuBarVisible();
void setMenuBarVisible(bool visible);

/**
 * Sets the function that shows and hides the real menu bar; it is called at once with the current state. Empty for
 * none.
 */
void setMenuBarPresenter(std::function<void(bool visible)> presenter);

} // namespace platform
