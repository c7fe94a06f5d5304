#pragma once

#include "app/window/portal_signs.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

class QDBusUnixFileDescriptor;

namespace window {

/**
 * What the desktop is told about a job: that the machine must not sleep, how far the job is, and, if the window is in
 * the background, that it has ended.
 *
 * All of it goes over the buses of the desktop, the portal first, without waiting for an answer; on a desktop without
 * one of these services that part has no effect.
 */
class DesktopSigns : public QObject
{
    Q_OBJECT

public:
    explicit DesktopSigns(QObject *parent = nullptr);
    ~DesktopSigns() override;
    Q_DISABLE_COPY_MOVE(DesktopSigns)

    /** The window that a notification leads back to. */
    void setWindow(QWidget *window) { m_window = window; }

    /**
     * A job has begun: the machine stays awake until jobEnded().
     *
     * @param title    the name of the job
     * @param percent  how far it is, 0 to 100; anything else if unknown
     */
    Q_INVOKABLE void jobGoesOn(const QString &title, int percent);

    /** The job is over; @p summary is shown if no window of the program is in front. Empty: nothing is shown. */
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
    QString m_promise;                                ///< from the portal, that the machine stays awake
    std::unique_ptr<QDBusUnixFileDescriptor> m_awake; ///< the same from the service that controls sleep
    int m_jobs = 0;                                   ///< how many jobs have begun, so that late answers are recognised
    bool m_isOn = false;
    int m_percent = -1;
    uint m_notification = 0;
};

} // namespace window
