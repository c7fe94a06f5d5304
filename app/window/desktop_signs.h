#pragma once

#include "app/window/portal_signs.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

class QDBusUnixFileDescriptor;

namespace window {

/**
 * What the desktop is told of a job: that the machine must not sleep meanwhile, how far it is, and, where the window is in the
 * background, that it has ended.
 *
 * All of it is asked over the buses of the desktop, the portal first, without waiting for an answer; a desktop that does not know one of them does
 * without it.
 */
class DesktopSigns : public QObject
{
    Q_OBJECT

public:
    explicit DesktopSigns(QObject *parent = nullptr);
    ~DesktopSigns() override;
    Q_DISABLE_COPY_MOVE(DesktopSigns)

    /** The window that the user is led back to. */
    void setWindow(QWidget *window) { m_window = window; }

    /**
     * A job is under way: the machine stays awake until jobEnded().
     *
     * @param title    what the job is called
     * @param percent  how far it is, 0 to 100; anything else where nobody knows
     */
    Q_INVOKABLE void jobGoesOn(const QString &title, int percent);

    /** The job is over; @p summary is told where no window of the program is in front. Empty: nothing is told. */
    Q_INVOKABLE void jobEnded(const QString &title, const QString &summary);

    /** Whether the desktop has promised to stay awake. */
    bool keepsAwake() const { return m_awake || !m_promise.isEmpty(); }

private Q_SLOTS:
    void notificationChosen(uint id, const QString &action);

private:
    void stayAwake(const QString &title);
    void stayAwakeWithoutPortal(const QString &title);
    void letSleep();
    void showProgress(int percent);
    void notify(const QString &title, const QString &summary);
    void notifyWithoutPortal(const QString &title, const QString &summary);
    void leadBack();

    QPointer<QWidget> m_window;
    PortalSigns m_portal;
    QString m_promise;                                ///< of the portal, that the machine stays awake
    std::unique_ptr<QDBusUnixFileDescriptor> m_awake; ///< the same of who lets it sleep
    int m_jobs = 0;                                   ///< how many have begun, so that a late answer is known to be one
    bool m_isOn = false;
    int m_percent = -1;
    uint m_notification = 0;
};

} // namespace window
