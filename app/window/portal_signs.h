#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QDBusMessage;

namespace window {

/**
 * What the desktop portal does for programs: it lets the machine stay awake and shows notifications, also for those that run in a box of
 * their own and reach nothing else. Nothing here waits for an answer.
 */
class PortalSigns : public QObject
{
    Q_OBJECT

public:
    explicit PortalSigns(QObject *parent = nullptr);

    /**
     * Asks that the machine does not go to sleep.
     *
     * @param answered  is told what stands for the promise, to be handed to letSleep(); empty where no portal gave one
     */
    void stayAwake(const QString &reason, const std::function<void(const QString &promise)> &answered);
    static void letSleep(const QString &promise);

    /** Shows a notification in the place of the one before. @param answered  whether a portal took it */
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
