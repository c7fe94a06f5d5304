#include "app/script/ScriptEngine.h"
#include "app/window/start_up.h"
#include "tests/support/own_settings.h"
#include "tests/support/test_program.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

/** The desks and controls of the window with values of every wrong kind: the program is there afterwards. */
class WrongValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void desksSurvive() { survives("callDesks"); }
    void controlsSurvive() { survives("callControls"); }
    void cleanupTestCase() { m_startUp.reset(); }

private:
    void survives(const char *function);

    QTemporaryDir m_home;
    QTimer m_nobody;
    std::unique_ptr<window::StartUp> m_startUp;
};

void WrongValues::initTestCase()
{
    qputenv("QUORLIN_INTERFACE", QUORLIN_INTERFACE_FOLDER);
    qputenv("HOME", m_home.path().toUtf8());
    qputenv("XDG_DATA_HOME", m_home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("PATH", m_home.path().toUtf8()); // no browser and no file manager is to open
    keepSettingsIn(m_home.filePath(QStringLiteral("config")));
    m_startUp = std::make_unique<window::StartUp>(*qobject_cast<QApplication *>(QCoreApplication::instance()));
    QVERIFY(QDir::setCurrent(m_home.path()));
    m_startUp->scripts().engine().globalObject().setProperty(QStringLiteral("probeFolder"),
                                                             m_home.filePath(QStringLiteral("probe")));
    QVERIFY(QDir(m_home.path()).mkpath(QStringLiteral("probe/below")));
    // Whatever asks a person is closed.
    connect(&m_nobody, &QTimer::timeout, this, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    });
    m_nobody.start(5);
}

void WrongValues::survives(const char *function)
{
    script::ScriptEngine &scripts = m_startUp->scripts();
    const auto module = scripts.importFile(QStringLiteral(QUORLIN_WRONG_VALUES));
    QVERIFY2(module, module ? "" : qPrintable(module.error().message));
    const auto called = scripts.call(module->property(QString::fromLatin1(function)), {});
    QVERIFY2(called, called ? "" : qPrintable(called.error().message));
    scripts.engine().collectGarbage();
    QTest::qWait(100);
    const QJSValue done = module->property(QStringLiteral("done"));
    QVERIFY(done.property(QStringLiteral("calls")).toInt() > 1000);
    qInfo("%d calls, the slowest %s: %d ms", done.property(QStringLiteral("calls")).toInt(),
          qPrintable(done.property(QStringLiteral("slowest")).toString()),
          done.property(QStringLiteral("slowestMs")).toInt());
    QVERIFY(done.property(QStringLiteral("slowestMs")).toInt() < 10'000);
}

QUORLIN_GUI_TEST(WrongValues)
#include "tst_wrong_values.moc"
