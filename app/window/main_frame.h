#pragma once

#include "app/services/WindowBackend.h"

#include <QMainWindow>
#include <QPointer>

namespace window {

/**
 * The main window as the full-screen service handles it. Frames are those of the content, without the title bar. It fills the
 * screen that it is on, and is maximised again afterwards if it was before.
 */
class MainFrame : public app::WindowBackend
{
public:
    /** From now on shows and hides the menu bar of @p window when the service says so. */
    explicit MainFrame(QMainWindow &window);
    ~MainFrame() override;

    QRectF frame() const override;
    void setFrame(const QRectF &frame, app::WindowExtent extent) override;

private:
    QPointer<QMainWindow> m_window;
    bool m_wasMaximised = false;
    QRectF m_screenFrame; ///< while the window covers the screen; the desktop reports the real frame only later
};

} // namespace window
