#pragma once

#include "app/services/WindowBackend.h"
#include "platform/values/flag.h"
#include "platform/values/sender.h"

#include <QObject>
#include <QRectF>

/**
 * A window that can fill the first screen, including the area of the menu bar, and return to its former place.
 *
 * Rectangles are in screen coordinates. Without a real window behind it the object stores its frame itself.
 */
class ZtFFullScreen : public QObject
{
    Q_OBJECT
    /** 1 while the window fills the screen, otherwise 0. */
    Q_PROPERTY(int fullscreenState MEMBER m_fullscreenState)
    /** The frame to return to. */
    Q_PROPERTY(QRectF originalRect MEMBER m_originalRect)
    Q_PROPERTY(QRectF frame READ frame WRITE setFrame)
    Q_PROPERTY(bool titlebarAppearsTransparent MEMBER m_titlebarAppearsTransparent)
    /** 0 to 1. */
    Q_PROPERTY(double alphaValue MEMBER m_alphaValue)
    /** Whether the menu bar of the application is visible. */
    Q_PROPERTY(bool menuBarVisible READ isMenuBarVisible)

public:
    /**
     * Starts again with @p rect as the current frame and the frame to return to, in the normal state; returns the
     * window itself. The other arguments are those of a desktop window and have no effect here.
     */
    Q_INVOKABLE ZtFFullScreen *initWithContentRect(const QRectF &rect, uint styleMask, uint backing,
                                                   platform::Flag defer);

    /** Always true. */
    Q_INVOKABLE bool canBecomeKeyWindow() const;

    /** Shows the menu bar again. */
    Q_INVOKABLE void windowWillClose(platform::Sender notification);

    /** Fills the screen and hides the menu bar, or returns to originalRect and shows it. */
    Q_INVOKABLE void toggleFullscreen();

    /**
     * Fills the screen for a flag of exactly 1, otherwise returns to originalRect, even if the window did not fill the
     * screen. A window that has the screen's size already keeps the frame to return to.
     */
    Q_INVOKABLE void setFullscreenEnabled(platform::Flag enabled);

    QRectF frame() const;
    void setFrame(const QRectF &frame);

    /** Puts a real window behind the object; it must outlive the object or be removed with null. */
    void attach(app::WindowBackend *window) { m_window = window; }

private:
    bool isMenuBarVisible() const;
    void fillScreen();
    void goBack();
    void place(const QRectF &frame, app::WindowExtent extent);

    int m_fullscreenState = 0;
    QRectF m_originalRect = QRectF(0, 0, 0, 0);
    QRectF m_frame = QRectF(0, 0, 0, 0);
    bool m_titlebarAppearsTransparent = false;
    double m_alphaValue = 1.0;
    app::WindowBackend *m_window = nullptr;
};
