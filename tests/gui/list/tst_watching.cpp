#include "app/window/folders/side_bar.h"

#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

/** A watched folder: what arrives in it is worked on, and nothing else. */
class TestWatching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void whatArrivesIsWorkedOn();
    void settingsStayAsTheyAreMeanwhile();
    void whatNobodyCanBeAskedIsRefused();
    void saysThatTheFolderIsGone();
    void recipesAreCarriedOutToo();
    void theDesktopOpensWithIt();

private:
    QString path(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }
    void picture(const QString &name);
    void watch();
    QWidget *part(const char *name) { return m_driver->control<QWidget>(name); }

    std::unique_ptr<WindowDriver> m_driver;
};

void TestWatching::init()
{
    m_driver = WindowDriver::showing("resize");
    WindowDriver::answerPanels({m_driver->inputFolder()});
}

void TestWatching::picture(const QString &name)
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QVERIFY(image.save(path(name)));
}

void TestWatching::watch()
{
    m_driver->trigger("watchAction");
    QVERIFY(part("watchBar")->isVisible());
}

void TestWatching::whatArrivesIsWorkedOn()
{
    picture(QStringLiteral("before.png"));
    watch();
    picture(QStringLiteral("one.png"));
    picture(QStringLiteral("day/two.png"));
    QFile broken(path(QStringLiteral("three.png")));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();
    const auto says = [this](const char *text) { return m_driver->text("watchText").contains(QLatin1String(text)); };
    QVERIFY(m_driver->waitFor([&] { return says("2 pictures done") && says("1 failed"); }));
    QVERIFY(QFile::exists(path(QStringLiteral("Resized/one.png"))));
    QVERIFY(QFile::exists(path(QStringLiteral("day/Resized/two.png"))));
    QVERIFY(!QFile::exists(path(QStringLiteral("Resized/before.png"))));

    // A later one, after results had the time to be taken for arrivals.
    QTest::qWait(3000);
    picture(QStringLiteral("four.png"));
    QVERIFY(m_driver->waitFor([&] { return says("3 pictures done"); }));
    QCOMPARE(m_driver->pictures().count(), 4);
    QVERIFY(!QDir(path(QStringLiteral("Resized/Resized"))).exists());
    m_driver->click("watchStop");
    QVERIFY(!part("watchBar")->isVisible());
    picture(QStringLiteral("after.png"));
    QTest::qWait(3000);
    QCOMPARE(m_driver->pictures().count(), 4);
}

void TestWatching::settingsStayAsTheyAreMeanwhile()
{
    picture(QStringLiteral("a.png"));
    m_driver->drop({path(QStringLiteral("a.png"))});
    QVERIFY(m_driver->waitFor([this] { return part("startButton")->isEnabled(); }));
    watch();
    for (const char *name : {"startButton", "actionHost", "outputHost", "addFolderButton", "clearButton"})
        QVERIFY2(!part(name)->isEnabled(), name);
    QVERIFY(!m_driver->control<QAction>("watchAction")->isEnabled());
    QVERIFY2(part("watchBar")->height() <= 48, qPrintable(QString::number(part("watchBar")->height())));
    m_driver->click("watchStop");
    QVERIFY(part("startButton")->isEnabled() && part("outputHost")->isEnabled());
    m_driver->show("rename"); // files are not moved without the user's knowledge
    QVERIFY(!m_driver->control<QAction>("watchAction")->isEnabled());
}

void TestWatching::whatNobodyCanBeAskedIsRefused()
{
    m_driver->choose("ifTaken", QStringLiteral("ask"));
    m_driver->trigger("watchAction");
    QVERIFY(!part("watchBar")->isVisible());
    QVERIFY(m_driver->text("statusText").startsWith(QLatin1String("A watched folder cannot ask")));
    m_driver->choose("ifTaken", QStringLiteral("number"));
    m_driver->control<QAbstractButton>("simulation")->setChecked(true);
    m_driver->trigger("watchAction");
    QVERIFY(!part("watchBar")->isVisible());
    QVERIFY(m_driver->text("statusText").contains(QLatin1String("turn the dry run off")));
}

void TestWatching::saysThatTheFolderIsGone()
{
    watch();
    QVERIFY(QDir(m_driver->inputFolder()).removeRecursively());
    QVERIFY(m_driver->waitFor([this] { return !part("watchBar")->isVisible(); }));
    QVERIFY(m_driver->text("statusText").contains(QLatin1String("no longer exists and is no longer watched")));
}

void TestWatching::recipesAreCarriedOutToo()
{
    m_driver->show("recipe");
    m_driver->choose("recipeChoice", m_driver->control<QComboBox>("recipeChoice")->itemData(0).toString());
    QVERIFY(m_driver->waitFor([this] { return m_driver->control<QAction>("watchAction")->isEnabled(); }));
    watch();
    picture(QStringLiteral("one.png"));
    picture(QStringLiteral("two.png"));
    const auto says = [this](const char *text) { return m_driver->text("watchText").contains(QLatin1String(text)); };
    QVERIFY(m_driver->waitFor([&] { return says("2 pictures done"); }));
    QTest::qWait(3000); // results would have been taken by now
    QCOMPARE(m_driver->pictures().count(), 2);
    QVERIFY(says("2 pictures done"));
}

void TestWatching::theDesktopOpensWithIt()
{
    m_driver->show("rename"); // remembered, and nothing that can watch
    m_driver->startAgain(QStringLiteral("watch"));
    WindowDriver::answerPanels({m_driver->inputFolder()});
    QVERIFY(m_driver->waitFor([this] { return part("watchBar")->isVisible(); }));
    m_driver->click("watchStop");
    m_driver->startAgain(QStringLiteral("recipe"));
    QCOMPARE(m_driver->control<window::SideBar>("sideBar")->currentAction(), QStringLiteral("recipe"));
}

QUORLIN_GUI_TEST(TestWatching)

#include "tst_watching.moc"
