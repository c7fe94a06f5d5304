#include "app/window/main_frame.h"

#include "platform/controls/menu_bar.h"
#include "platform/controls/screens.h"

#include <QAction>
#include <QMenuBar>
#include <QScreen>

#include <utility>

namespace window {

MainFrame::MainFrame(QMainWindow &window) : m_window(&window)
{
    // Shortcuts of menu entries work only while something that contains the entry is visible, and the menu bar gets
    // hidden.
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (QAction *action : actions)
        if (!action->shortcut().isEmpty())
            window.addAction(action);
    platform::setMenuBarPresenter([this](bool visible) {
        QMainWindow *shown = m_window.data();
        if (QWidget *bar = shown ? shown->menuWidget() : nullptr)
            bar->setVisible(visible);
    });
    // The first screen is the one that the window is on.
    platform::setScreenProvider([this] {
        const QWidget *shown = m_window.data();
        return shown ? QRectF(shown->screen()->geometry()) : QRectF();
    });
}

MainFrame::~MainFrame()
{
    platform::setScreenProvider({});
    platform::setMenuBarPresenter({});
}

QRectF MainFrame::frame() const
{
    if (!m_screenFrame.isNull())
        return m_screenFrame;
    const QWidget *window = m_window.data();
    return window ? QRectF(window->geometry()) : QRectF();
}

void MainFrame::setFrame(const QRectF &frame, app::WindowExtent extent)
{
    QWidget *window = m_window.data();
    if (!window)
        return;
    const bool whole = extent == app::WindowExtent::WholeScreen;
    m_screenFrame = whole ? frame : QRectF();
    window->setProperty("fullScreen", whole);
    if (whole) {
        m_wasMaximised = m_wasMaximised || window->isMaximized();
        window->setWindowState(window->windowState() | Qt::WindowFullScreen);
        window->show();
        return;
    }
    const bool isMaximised = std::exchange(m_wasMaximised, false);
    window->setWindowState(isMaximised ? Qt::WindowMaximized : Qt::WindowNoState);
    window->show();
    // A maximised window keeps its normal frame.
    if (!isMaximised)
        window->setGeometry(frame.toRect());
}

} // namespace window
