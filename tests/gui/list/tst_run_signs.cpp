#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QUrl>

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace {

/** Stands in for the service that lets a machine sleep: who holds the other end of a pipe keeps it awake. */
class Sleep : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    QStringList asked;

    /** Whether somebody keeps the machine awake. */
    bool isHeld() const
    {
        char byte = 0;
        return m_reading >= 0 && ::read(m_reading, &byte, 1) != 0; // 0 is the end of the pipe
    }

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &who, const QString &why, const QString &mode)
    {
        asked << what + u'|' + who + u'|' + why + u'|' + mode;
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
            return {};
        if (m_reading >= 0)
            ::close(m_reading);
        m_reading = ends[0];
        QDBusUnixFileDescriptor given(ends[1]);
        ::close(ends[1]);
        return given;
    }

private:
    int m_reading = -1;
};

/** Stands in for the desktop that shows notifications. */
class Notices : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList shown;

public Q_SLOTS:
    uint Notify(const QString &, uint, const QString &, const QString &title, const QString &text, const QStringList &,
                const QVariantMap &, int)
    {
        shown << title + u'|' + text;
        return 7;
    }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);
};

/** Stands in for the portal of a desktop, with the promise that it gave. */
class Portal : public QObject
{
    Q_OBJECT

public:
    /** Whether there is one; a bus answers no if there is none. */
    void answerOn(QDBusConnection bus, bool answers)
    {
        if (answers)
            bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
        else
            bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        asked.clear();
        shown.clear();
        isHeld = false;
    }

    QStringList asked;
    QStringList shown;
    bool isHeld = false;
};

class PortalInhibit : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Inhibit")

public:
    explicit PortalInhibit(Portal &portal) : QDBusAbstractAdaptor(&portal), m_portal(portal) {}

public Q_SLOTS:
    QDBusObjectPath Inhibit(const QString &, uint flags, const QVariantMap &options)
    {
        m_portal.asked << QString::number(flags) + u'|' + options.value(QStringLiteral("reason")).toString();
        m_portal.isHeld = true;
        return QDBusObjectPath(QStringLiteral("/org/freedesktop/portal/desktop/request/1"));
    }

private:
    Portal &m_portal;
};

class PortalRequest : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

public:
    explicit PortalRequest(Portal &portal) : m_portal(portal) {}

public Q_SLOTS:
    void Close() { m_portal.isHeld = false; }

private:
    Portal &m_portal;
};

class PortalNotification : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Notification")

public:
    explicit PortalNotification(Portal &portal) : QDBusAbstractAdaptor(&portal), m_portal(portal) {}

public Q_SLOTS:
    void AddNotification(const QString &id, const QVariantMap &notification)
    {
        m_portal.shown << id + u'|' + notification.value(QStringLiteral("title")).toString() + u'|' +
                              notification.value(QStringLiteral("body")).toString();
    }

Q_SIGNALS:
    void ActionInvoked(const QString &id, const QString &action, const QVariantList &parameter);

private:
    Portal &m_portal;
};

/** Stands in for the task bar. */
class TaskBar : public QObject
{
    Q_OBJECT

public:
    QList<double> shares;
    bool isShown = false;

public Q_SLOTS:
    void update(const QString &, const QVariantMap &properties)
    {
        isShown = properties.value(QStringLiteral("progress-visible")).toBool();
        if (isShown)
            shares << properties.value(QStringLiteral("progress")).toDouble();
    }
};

class FolderOpener : public QObject
{
    Q_OBJECT

public:
    FolderOpener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~FolderOpener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    QStringList opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url.toLocalFile()); }
};

} // namespace

/** What the desktop is told about a run, over buses of the test's own. */
class TestRunSigns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_driver.reset(); }
    void cleanupTestCase();
    void theMachineStaysAwakeWhileARunGoesOn();
    void theEndIsToldWhereTheWindowIsInTheBackground();
    void aPortalIsAskedFirst();
    void nothingIsToldToWhoeverLooks();
    void theFolderOpensWhenTheRunIsDone();
    void theWindowClosesWhenTheRunIsDone();
    void aCancelledRunOpensAndClosesNothing();

private:
    void begin();
    bool isVisible() { return m_driver->window().isVisible(); }

    QProcess m_bus;
    Sleep m_sleep;
    Notices m_notices;
    TaskBar m_taskBar;
    Portal m_portal;
    PortalRequest m_request{m_portal};
    PortalInhibit *m_inhibit = new PortalInhibit(m_portal);
    PortalNotification *m_portalNotices = new PortalNotification(m_portal);
    std::unique_ptr<WindowDriver> m_driver;
};

void TestRunSigns::initTestCase()
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (program.isEmpty())
        QSKIP("there is no dbus-daemon");
    m_bus.start(program, {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY(m_bus.waitForStarted() && m_bus.waitForReadyRead());
    const QByteArray address = m_bus.readLine().trimmed();
    QVERIFY(!address.isEmpty());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    QDBusConnection bus = QDBusConnection::connectToBus(QString::fromLatin1(address), QStringLiteral("stand-ins"));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.login1")));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.Notifications")));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/login1"), &m_sleep, QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &m_notices,
                               QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &m_portal,
                               QDBusConnection::ExportAdaptors));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop/request/1"), &m_request,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.connect(QString(), QString(), QStringLiteral("com.canonical.Unity.LauncherEntry"),
                        QStringLiteral("Update"), &m_taskBar, SLOT(update(QString, QVariantMap))));
}

void TestRunSigns::cleanupTestCase()
{
    QDBusConnection::disconnectFromBus(QStringLiteral("stand-ins"));
    m_bus.kill();
    m_bus.waitForFinished();
}

void TestRunSigns::init()
{
    m_sleep.asked.clear();
    m_notices.shown.clear();
    m_taskBar.shares.clear();
    m_driver = WindowDriver::showing("resize");
    QImage image(900, 600, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    for (int i = 0; i < 12; ++i)
        QVERIFY(image.save(m_driver->inputFolder() + QStringLiteral("/p%1.png").arg(i)));
    m_driver->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
    m_driver->drop({m_driver->inputFolder()});
}

void TestRunSigns::begin()
{
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled(); }));
    m_driver->click("startButton");
}

void TestRunSigns::theMachineStaysAwakeWhileARunGoesOn()
{
    begin();
    QVERIFY(m_driver->waitFor([this] { return !m_sleep.asked.isEmpty() && m_sleep.isHeld(); }));
    QCOMPARE(m_sleep.asked, QStringList(QStringLiteral("sleep:idle|Quorlin|Resize|block")));
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    QVERIFY(m_driver->waitFor([this] { return !m_sleep.isHeld() && !m_taskBar.isShown; }));
    QVERIFY(m_taskBar.shares.size() > 1);
    QVERIFY(std::is_sorted(m_taskBar.shares.cbegin(), m_taskBar.shares.cend()));
    QVERIFY(m_taskBar.shares.constLast() > 0 && m_taskBar.shares.constLast() <= 1);
}

void TestRunSigns::theEndIsToldWhereTheWindowIsInTheBackground()
{
    begin();
    m_driver->window().showMinimized();
    QVERIFY(m_driver->waitFor([this] { return !m_notices.shown.isEmpty(); }, 60000));
    QCOMPARE(m_notices.shown.size(), 1);
    QVERIFY2(m_notices.shown.constFirst().startsWith(QLatin1String("Resize|12 pictures done")),
             qPrintable(m_notices.shown.constFirst()));
    // Once the answer is there, a click on it leads back to the window.
    QVERIFY(m_driver->waitFor([this] {
        Q_EMIT m_notices.ActionInvoked(7, QStringLiteral("default"));
        return !m_driver->window().isMinimized();
    }));
}

void TestRunSigns::aPortalIsAskedFirst()
{
    const QDBusConnection bus(QStringLiteral("stand-ins"));
    m_portal.answerOn(bus, true);
    begin();
    QVERIFY(m_driver->waitFor([this] { return m_portal.isHeld; }));
    QCOMPARE(m_portal.asked, QStringList(QStringLiteral("12|Resize")));
    m_driver->window().showMinimized();
    QVERIFY(m_driver->waitFor([this] { return !m_portal.shown.isEmpty(); }, 60000));
    QVERIFY2(m_portal.shown.constFirst().startsWith(QLatin1String("run|Resize|12 pictures done")),
             qPrintable(m_portal.shown.constFirst()));
    QVERIFY(m_driver->waitFor([this] { return !m_portal.isHeld; }));
    Q_EMIT m_portalNotices->ActionInvoked(QStringLiteral("run"), QStringLiteral("show"), {});
    QVERIFY(m_driver->waitFor([this] { return !m_driver->window().isMinimized(); }));
    QCOMPARE(m_sleep.asked, QStringList());
    QCOMPARE(m_notices.shown, QStringList());
    m_portal.answerOn(bus, false);
}

void TestRunSigns::nothingIsToldToWhoeverLooks()
{
    begin();
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    QVERIFY(m_driver->waitFor([this] { return !m_taskBar.isShown; })); // which is said after a notification would be
    QCOMPARE(m_notices.shown, QStringList());
}

void TestRunSigns::theFolderOpensWhenTheRunIsDone()
{
    FolderOpener opener;
    m_driver->choose("whenDone", QStringLiteral("open"));
    begin();
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    QCOMPARE(opener.opened.size(), 1);
    QVERIFY(QDir(opener.opened.constFirst()).exists());
    m_driver->startAgain();
    QCOMPARE(m_driver->control<QComboBox>("whenDone")->currentData().toString(), QStringLiteral("open"));
}

void TestRunSigns::theWindowClosesWhenTheRunIsDone()
{
    m_driver->choose("whenDone", QStringLiteral("close"));
    begin();
    QVERIFY(m_driver->waitFor([this] { return !isVisible(); }, 60000));
    QCOMPARE(m_sleep.isHeld(), false);
    m_driver->startAgain();
    QCOMPARE(m_driver->control<QComboBox>("whenDone")->currentData().toString(), QStringLiteral("nothing"));
}

void TestRunSigns::aCancelledRunOpensAndClosesNothing()
{
    m_driver->choose("whenDone", QStringLiteral("close"));
    begin();
    auto *pause = m_driver->control<QAbstractButton>("pauseButton");
    QVERIFY(m_driver->waitFor([pause] { return pause->isVisible(); }));
    QVERIFY(m_driver->control<QComboBox>("whenDone")->isVisible());
    m_driver->trigger("cancelAction");
    QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("Cancelled")));
    QCoreApplication::processEvents();
    QVERIFY(isVisible());
}

QUORLIN_GUI_TEST(TestRunSigns)

#include "tst_run_signs.moc"
