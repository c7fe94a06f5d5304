#include "app/services/ZtFFullScreen.h"

#include "platform/controls/menu_bar.h"
#include "platform/controls/screens.h"

ZtFFullScreen *ZtFFullScreen::initWithContentRect(const QRectF &rect, uint styleMask, uint backing,
                                                  platform::Flag defer)
{
    Q_UNUSED(styleMask)
    Q_UNUSED(backing)
    Q_UNUSED(defer)
    place(rect, app::WindowExtent::OwnFrame);
    m_originalRect = rect;
    m_fullscreenState = 0;
    return this;
}

bool ZtFFullScreen::canBecomeKeyWindow() const
{
    return true;
}

void ZtFFullScreen::windowWillClose(platform::Sender notification)
{
    Q_UNUSED(notification)
    platform::setMenuBarVisible(true);
}

void ZtFFullScreen::toggleFullscreen()
{
    if (m_fullscreenState != 0) {
        goBack();
        return;
    }
    m_originalRect = frame();
    fillScreen();
}

void ZtFFullScreen::setFullscreenEnabled(platform::Flag enabled)
{
    if (!enabled.on) {
        goBack();
        return;
    }
    // Enabling twice must not take the screen's frame for the one to go back to.
    const QRectF present = frame();
    if (present.size() != platform::firstScreenFrame().size())
        m_originalRect = present;
    fillScreen();
}

QRectF ZtFFullScreen::frame() const
{
    return m_window ? m_window->frame() : m_frame;
}

void ZtFFullScreen::setFrame(const QRectF &frame)
{
    place(frame, app::WindowExtent::OwnFrame);
}

bool ZtFFullScreen::isMenuBarVisible() const
{
    return platform::isMenuBarVisible();
}

void ZtFFullScreen::fillScreen()
{
    platform::setMenuBarVisible(false);
    place(platform::firstScreenFrame(), app::WindowExtent::WholeScreen);
    m_fullscreenState = 1;
}

void ZtFFullScreen::goBack()
{
    place(m_originalRect, app::WindowExtent::OwnFrame);
    platform::setMenuBarVisible(true);
    m_fullscreenState = 0;
}

void ZtFFullScreen::place(const QRectF &frame, app::WindowExtent extent)
{
    m_frame = frame;
    if (m_window)
        m_window->setFrame(frame, extent);
}
