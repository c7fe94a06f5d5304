#include "app/window/main_frame.h"

#include "platform/desktop/menu_bar.h"

#include <QAction>
#include <QMenuBar>

namespace window {

MainFrame::MainFrame(QMainWindow &window) : m_window(&window)
{
    // Keys of menu entries work only while something that holds the entry can be seen, and the menu bar goes away.
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (QAction *action : actions)
        if (!action->shortcut().isEmpty())
            window.addAction(action);
    platform::setMenuBarPresenter([this](bool visible) {
        QMainWindow *shown = m_window.data();
        if (QWidget *bar = shown ? shown->menuWidget() : nullptr)
            bar->setVisible(visible);
    });
}

MainFrame::~MainFrame()
{
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
        window->showFullScreen();
    } else {
        window->showNormal();
        window->setGeometry(frame.toRect());
    }
}

} // namespace window
