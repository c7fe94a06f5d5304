#include "app/window/portal_signs.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace window {

namespace {

constexpr int answerMs = 5000;
const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString notifications = QStringLiteral("org.freedesktop.portal.Notification");
const QString notificationId = QStringLiteral("run");
const QString show = QStringLiteral("show");

} // namespace

PortalSigns::PortalSigns(QObject *parent) : QObject(parent)
{
    QDBusConnection::sessionBus().connect(QString(), portalPath, notifications, QStringLiteral("ActionInvoked"), this,
                                          SLOT(actionInvoked(QString, QString)));
}

void PortalSigns::ask(const QDBusMessage &call, const std::function<void(const QDBusMessage &reply)> &answered)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        answered({});
        return;
    }
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call, answerMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, answered] {
        answer->deleteLater();
        answered(answer->reply());
    });
}

void PortalSigns::stayAwake(const QString &reason, const std::function<void(const QString &promise)> &answered)
{
    constexpr uint suspend = 4;
    constexpr uint idle = 8;
    QDBusMessage call = QDBusMessage::createMethodCall(
        portal, portalPath, QStringLiteral("org.freedesktop.portal.Inhibit"), QStringLiteral("Inhibit"));
    call.setArguments({QString(), suspend | idle, QVariantMap{{QStringLiteral("reason"), reason}}});
    ask(call, [answered](const QDBusMessage &reply) {
        const QDBusPendingReply<QDBusObjectPath> request = reply;
        answered(reply.type() == QDBusMessage::ReplyMessage ? request.value().path() : QString());
    });
}

void PortalSigns::letSleep(const QString &promise)
{
    QDBusConnection::sessionBus().send(QDBusMessage::createMethodCall(
        portal, promise, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Close")));
}

void PortalSigns::notify(const QString &title, const QString &text, const std::function<void(bool isTaken)> &answered)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(portal, portalPath, notifications, QStringLiteral("AddNotification"));
    call.setArguments({notificationId, QVariantMap{{QStringLiteral("title"), title},
                                                   {QStringLiteral("body"), text},
                                                   {QStringLiteral("default-action"), show}}});
    ask(call, [answered](const QDBusMessage &reply) { answered(reply.type() == QDBusMessage::ReplyMessage); });
}

void PortalSigns::actionInvoked(const QString &id, const QString &action)
{
    if (id == notificationId && action == show)
        Q_EMIT chosen();
}

} // namespace window
