#include "app/window/look/screen_look.h"

#include "platform/desktop/screen_profile.h"
#include "platform/file/atomic_file.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>

namespace window {

namespace {

const QString manager = QStringLiteral("org.freedesktop.ColorManager");
constexpr int answerMs = 3000;

QByteArray heldProfile(const QScreen *screen)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return {};
    return platform::profileOfX11Screen(int(QGuiApplication::screens().indexOf(const_cast<QScreen *>(screen))));
}

QDBusMessage propertyCall(const QString &path, const QString &interface, const QString &name)
{
    QDBusMessage call = QDBusMessage::createMethodCall(manager, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                       QStringLiteral("Get"));
    call.setArguments({interface, name});
    return call;
}

/** Calls @p take(value) with the answer of a call over the system bus; without a value if it fails. */
template<typename Value, typename Take> void ask(const QDBusMessage &call, QObject *owner, const Take &take)
{
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::systemBus().asyncCall(call, answerMs), owner);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, owner, [answer, take] {
        answer->deleteLater();
        const QDBusPendingReply<Value> reply = *answer;
        if (!reply.isError())
            take(reply.value());
    });
}

} // namespace

ScreenLook &ScreenLook::ofProcess()
{
    static QPointer<ScreenLook> one;
    if (!one)
        one = new ScreenLook(QCoreApplication::instance());
    return *one;
}

ScreenLook::ScreenLook(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            lookAgain();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this] { m_screens.clear(); });
}

QImage ScreenLook::shown(const QImage &image, const QScreen *screen)
{
    const Screen &look = lookOf(screen ? screen : QGuiApplication::primaryScreen());
    return look.colours && look.colours->isNeeded() ? look.colours->converted(image) : image;
}

const ScreenLook::Screen &ScreenLook::lookOf(const QScreen *screen)
{
    const QString name = screen ? screen->name() : QString();
    if (const auto found = m_screens.constFind(name); found != m_screens.cend())
        return *found;
    const QByteArray held = screen ? heldProfile(screen) : QByteArray();
    m_screens.insert(name, {held, std::make_shared<platform::ScreenColours>(held)});
    if (held.isEmpty() && screen)
        askColourManager(name);
    return m_screens[name];
}

// A newly measured profile is picked up when the user returns to the window.
void ScreenLook::lookAgain()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        if (const QByteArray held = heldProfile(screen); !held.isEmpty() && m_screens.contains(screen->name()))
            take(screen->name(), held);
}

void ScreenLook::take(const QString &name, const QByteArray &profile)
{
    if (m_screens.value(name).profile == profile)
        return;
    m_screens.insert(name, {profile, std::make_shared<platform::ScreenColours>(profile)});
    Q_EMIT changed();
}

void ScreenLook::askColourManager(const QString &name)
{
    if (!QDBusConnection::systemBus().isConnected())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(manager, QStringLiteral("/org/freedesktop/ColorManager"),
                                                       manager, QStringLiteral("FindDeviceByProperty"));
    call.setArguments({QStringLiteral("XRANDR_name"), name});
    ask<QDBusObjectPath>(call, this,
                         [this, name](const QDBusObjectPath &device) { askForProfile(name, device.path()); });
}

// The first of its profiles is the one in use.
void ScreenLook::askForProfile(const QString &name, const QString &device)
{
    const QDBusMessage profiles = propertyCall(device, manager + QStringLiteral(".Device"), QStringLiteral("Profiles"));
    ask<QDBusVariant>(profiles, this, [this, name](const QDBusVariant &value) {
        const auto paths = qdbus_cast<QList<QDBusObjectPath>>(value.variant());
        if (paths.isEmpty())
            return;
        const QDBusMessage file =
            propertyCall(paths.constFirst().path(), manager + QStringLiteral(".Profile"), QStringLiteral("Filename"));
        ask<QDBusVariant>(file, this, [this, name](const QDBusVariant &path) {
            take(name, platform::readFile(path.variant().toString()).value_or(QByteArray()));
        });
    });
}

} // namespace window
