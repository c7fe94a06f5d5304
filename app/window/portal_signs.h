#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QDBusMessage;

namespace window {

/**
 * What the desktop portal does for programs, also for sandboxed ones that reach nothing else: it keeps the machine
 * awake and shows notifications. Nothing here waits for an answer.
 */
class PortalSigns : public QObject
{
    Q_OBJECT

public:
    explicit PortalSigns(QObject *parent = nullptr);

    /**
     * Requests that the machine does not go to sleep.
     *
     * @param answered  receives the handle of the request, for letSleep(); empty if no portal granted one
     */
    void stayAwake(const QString &reason, const std::function<void(const QString &promise)> &answered);
    static void letSleep(const QString &promise);

    /** Shows a notification that replaces the previous one. @param answered  whether a portal accepted it */
    void notify(const QString &title, const QString &text, const std::function<void(bool isTaken)> &answered);

Q_SIGNALS:
    /** The notification was clicked on. */
    void chosen();

private Q_SLOTS:
    void actionInvoked(const QString &id, const QString &action);

private:
    void ask(const QDBusMessage &call, const std::function<void(const QDBusMessage &reply)> &answered);
};

} // namespace window
