#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace {

const char *const inside = "QUORLIN_TEST_UNDER_X";

/** Receives what an accessibility bus reports about changed names. */
class Listener : public QObject
{
    Q_OBJECT

public:
    QStringList names;

public Q_SLOTS:
    void changed(const QDBusMessage &message)
    {
        const QVariantList values = message.arguments();
        if (values.value(0).toString() != QLatin1String("accessible-name"))
            return;
        // The toolkit says whose name it is; the new name must be requested.
        QDBusMessage call =
            QDBusMessage::createMethodCall(message.service(), message.path(),
                                           QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        call.setArguments({QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("Name")});
        auto *answer = new QDBusPendingCallWatcher(QDBusConnection(QStringLiteral("listener")).asyncCall(call), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            names << (reply.isError() ? QString() : reply.value().variant().toString());
            answer->deleteLater();
        });
    }
};

} // namespace

/**
 * State changes are reported to screen readers. The windowless platform of the toolkit reports nothing, so the test
 * runs itself once more, on a separate display and bus.
 */
class Announcements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsUnderX();
    void startAndEndOfARunAreTold();

private:
    static bool begin(QProcess &process, const QString &program, const QStringList &arguments);
    void listen();
    bool isHeard(WindowDriver &driver);

    Listener m_listener;
};

bool Announcements::begin(QProcess &process, const QString &program, const QStringList &arguments)
{
    process.start(QStandardPaths::findExecutable(program), arguments);
    return process.waitForStarted() && process.waitForReadyRead();
}

void Announcements::runsUnderX()
{
    if (qEnvironmentVariableIsSet(inside))
        QSKIP("this is the inner run");
    for (const char *program : {"Xvfb", "dbus-daemon"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty())
            QSKIP(qPrintable(QStringLiteral("there is no %1").arg(QString::fromLatin1(program))));
    if (!QFile::exists(QStringLiteral("/usr/share/dbus-1/services/org.a11y.Bus.service")))
        QSKIP("there is no bus of accessibility");
    QProcess display;
    display.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QVERIFY(begin(display, QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                   QStringLiteral("1600x1000x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")}));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), u':' + QString::fromLatin1(display.readLine().trimmed()));
    QProcess bus;
    bus.setProcessEnvironment(environment);
    QVERIFY(begin(bus, QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")}));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(bus.readLine().trimmed()));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    environment.insert(QString::fromLatin1(inside), QStringLiteral("1"));
    QProcess again;
    again.setProcessEnvironment(environment);
    again.setProcessChannelMode(QProcess::ForwardedChannels);
    again.start(QCoreApplication::arguments().constFirst(), {QStringLiteral("startAndEndOfARunAreTold")});
    constexpr int mostMs = 180000;
    const bool isOver = again.waitForFinished(mostMs);
    for (QProcess *each : {&bus, &display}) {
        each->terminate();
        each->waitForFinished();
    }
    QVERIFY(isOver);
    QCOMPARE(again.exitCode(), 0);
}

void Announcements::listen()
{
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                                       QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    const QDBusReply<QString> address = QDBusConnection::sessionBus().call(call, QDBus::BlockWithGui);
    QVERIFY2(address.isValid(), qPrintable(address.error().message()));
    QDBusConnection bus = QDBusConnection::connectToBus(address.value(), QStringLiteral("listener"));
    QVERIFY(bus.isConnected());
    QVERIFY(bus.connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                        QStringLiteral("PropertyChange"), &m_listener, SLOT(changed(QDBusMessage))));
    QDBusMessage wish = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/registry"),
        QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("RegisterEvent"));
    wish.setArguments({QStringLiteral("object:property-change:accessible-name")});
    const QDBusMessage answer = bus.call(wish, QDBus::BlockWithGui);
    QVERIFY2(answer.type() != QDBusMessage::ErrorMessage, qPrintable(answer.errorMessage()));
}

// The toolkit drops events until the bus has told it that somebody listens, a moment after the start.
bool Announcements::isHeard(WindowDriver &driver)
{
    QLabel probe(&driver.window());
    int tries = 0;
    return driver.waitFor([&] {
        probe.setAccessibleName(QStringLiteral("probe %1").arg(++tries));
        return m_listener.names.indexOf(QRegularExpression(QStringLiteral("probe .*"))) >= 0;
    });
}

void Announcements::startAndEndOfARunAreTold()
{
    if (!qEnvironmentVariableIsSet(inside))
        QSKIP("this is the outer run");
    listen();
    const auto driver = WindowDriver::showing("resize");
    QImage image(3000, 2000, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    for (int i = 0; i < 6; ++i)
        QVERIFY(image.save(driver->inputFolder() + QStringLiteral("/p%1.png").arg(i)));
    QFile broken(driver->inputFolder() + QStringLiteral("/q.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();
    driver->drop({driver->inputFolder()});
    auto *start = driver->control<QAbstractButton>("startButton");
    QVERIFY(driver->waitFor([start] { return start->isEnabled(); }));
    QVERIFY(isHeard(*driver));
    driver->click("startButton");
    QVERIFY(!driver->waitForSummary().isEmpty());
    const auto told = [this](const QString &begin) {
        return m_listener.names.indexOf(QRegularExpression(begin + QStringLiteral(".*"))) >= 0;
    };
    // The first problem is news, the others are not.
    for (const char *news : {"Resize: started", "Resize: 1 problem", "6 pictures done · 1 failed"})
        QVERIFY2(driver->waitFor([&] { return told(QString::fromUtf8(news)); }),
                 qPrintable(m_listener.names.join(u'|')));
    // How far the run is, is no news to those who hear it.
    QVERIFY2(!told(QStringLiteral("\\d+ of \\d+")), qPrintable(m_listener.names.join(u'|')));
}

QUORLIN_GUI_TEST(Announcements)

#include "tst_announcements.moc"
