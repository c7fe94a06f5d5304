#pragma once

#include "app/WindowBackend.h"

#include <QMainWindow>
#include <QPointer>

namespace window {

/** The main window as the full-screen service handles it. Frames are those of the content, without the title bar. */
class MainFrame : public app::WindowBackend
{
public:
    /** Shows and hides the menu bar of @p window from now on when the service says so. */
    explicit MainFrame(QMainWindow &window);
    ~MainFrame() override;

    QRectF frame() const override;
    void setFrame(const QRectF &frame, app::WindowExtent extent) override;

private:
    QPointer<QMainWindow> m_window;
    QRectF m_screenFrame; ///< while the window covers the screen; the desktop tells the real one only later
};

} // namespace window
