#include "platform/controls/menu_bar.h"

#include <utility>

namespace platform {
namespace {

bool menuBarIsVisible = true;

std::function<void(bool)> &currentPresenter()
{
    static std::function<void(bool)> presenter;
    return presenter;
}

void present()
{
    if (currentPresenter())
        currentPresenter()(menuBarIsVisible);
}

} // namespace

bool isMenuBarVisible()
{
    return menuBarIsVisible;
}

void setMenuBarVisible(bool visible)
{
    menuBarIsVisible = visible;
    present();
}

void setMenuBarPresenter(std::function<void(bool visible)> presenter)
{
    currentPresenter() = std::move(presenter);
    present();
}

} // namespace platform
