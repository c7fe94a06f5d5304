#include "app/window/desktop_signs.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>

namespace window {

namespace {

constexpr int answerMs = 5000;
const QString notifications = QStringLiteral("org.freedesktop.Notifications");
const QString notificationsPath = QStringLiteral("/org/freedesktop/Notifications");

QDBusMessage inhibitCall(const QString &title)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call.setArguments({QStringLiteral("sleep:idle"), QStringLiteral("Quorlin"), title, QStringLiteral("block")});
    return call;
}

/** No window of the program is in front. */
bool isInBackground()
{
    const QWidget *active = QApplication::activeWindow();
    return !active || active->isMinimized();
}

} // namespace

DesktopSigns::DesktopSigns(QObject *parent) : QObject(parent)
{
    QDBusConnection::sessionBus().connect(QString(), notificationsPath, notifications, QStringLiteral("ActionInvoked"),
                                          this, SLOT(notificationChosen(uint, QString)));
    connect(&m_portal, &PortalSigns::chosen, this, &DesktopSigns::leadBack);
}

DesktopSigns::~DesktopSigns() = default;

void DesktopSigns::jobGoesOn(const QString &title, int percent)
{
    if (!m_isOn) {
        m_isOn = true;
        m_jobs += 1;
        stayAwake(title);
    }
    showProgress(percent >= 0 && percent <= 100 ? percent : -1);
}

void DesktopSigns::jobEnded(const QString &title, const QString &summary)
{
    m_isOn = false;
    letSleep();
    showProgress(-1);
    if (summary.isEmpty() || !isInBackground())
        return;
    if (m_window)
        QApplication::alert(m_window);
    notify(title, summary);
}

void DesktopSigns::stayAwake(const QString &title)
{
    m_portal.stayAwake(title, [this, title, job = m_jobs](const QString &promise) {
        const bool isStillWanted = m_isOn && job == m_jobs;
        if (!promise.isEmpty() && isStillWanted)
            m_promise = promise;
        else if (!promise.isEmpty())
            PortalSigns::letSleep(promise);
        else if (isStillWanted)
            stayAwakeWithoutPortal(title);
    });
}

void DesktopSigns::letSleep()
{
    m_awake.reset();
    if (!m_promise.isEmpty())
        PortalSigns::letSleep(std::exchange(m_promise, {}));
}

// The inhibition lasts as long as the returned descriptor is open, so it ends with this process too.
void DesktopSigns::stayAwakeWithoutPortal(const QString &title)
{
    const QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected())
        return;
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(inhibitCall(title), answerMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, job = m_jobs] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *answer;
        if (m_isOn && job == m_jobs && !reply.isError())
            m_awake = std::make_unique<QDBusUnixFileDescriptor>(reply.value());
    });
}

void DesktopSigns::showProgress(int percent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (percent == m_percent || !bus.isConnected())
        return;
    m_percent = percent;
    QDBusMessage signal =
        QDBusMessage::createSignal(QStringLiteral("/com/brelmark/Quorlin"),
                                   QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    signal.setArguments({QStringLiteral("application://com.brelmark.Quorlin.desktop"),
                         QVariantMap{{QStringLiteral("progress"), qMax(0, percent) / 100.0},
                                     {QStringLiteral("progress-visible"), percent >= 0}}});
    bus.send(signal);
}

void DesktopSigns::notify(const QString &title, const QString &summary)
{
    m_portal.notify(title, summary, [this, title, summary](bool isTaken) {
        if (!isTaken)
            notifyWithoutPortal(title, summary);
    });
}

void DesktopSigns::notifyWithoutPortal(const QString &title, const QString &summary)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage call =
        QDBusMessage::createMethodCall(notifications, notificationsPath, notifications, QStringLiteral("Notify"));
    // Servers interpret the text as markup.
    const QStringList actions = {QStringLiteral("default"), tr("Show")};
    call.setArguments({QStringLiteral("Quorlin"), m_notification, QStringLiteral("com.brelmark.Quorlin"), title,
                       summary.toHtmlEscaped(), actions,
                       QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("com.brelmark.Quorlin")}}, -1});
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call, answerMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<uint> reply = *answer;
        if (!reply.isError())
            m_notification = reply.value();
    });
}

void DesktopSigns::notificationChosen(uint id, const QString &action)
{
    if (m_notification != 0 && id == m_notification && action == QLatin1String("default"))
        leadBack();
}

void DesktopSigns::leadBack()
{
    if (!m_window)
        return;
    if (m_window->isMinimized())
        m_window->showNormal();
    m_window->raise();
    m_window->activateWindow();
}

} // namespace window
