#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "jobs/desk/worker_desk.h"

#include "platform/desktop/user_defaults.h"

#include <QDir>
#include <QImage>
#include <QTest>

using window::PictureModel;

/** While a run is under way pictures can be added, which join it, and the list can be looked at. */
class Joining : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::started(); }
    void cleanup() { m_driver.reset(); }

    void takesWhatIsAddedInTheMiddle()
    {
        beginPaused(4);
        QVERIFY(m_driver->control<QWidget>("addPicturesButton")->isEnabled());
        QVERIFY(!m_driver->control<QWidget>("actionHost")->isEnabled());
        m_driver->drop({picture("q", 0), picture("q", 1)});
        m_driver->drop({picture("q", 2)});
        QVERIFY(m_driver->waitFor([this] { return m_driver->text("statusText").endsWith(QStringLiteral("of 7")); }));
        m_driver->click("pauseButton");
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QStringLiteral("7 pictures done")), qPrintable(said));
        QCOMPARE(list().size(), 7);
        for (int row = 0; row < 7; ++row)
            QCOMPARE(m_driver->cell(row, PictureModel::Status), QStringLiteral("OK"));
        QCOMPARE(results(), (QStringList{QStringLiteral("p0.jpg"), QStringLiteral("p1.jpg"), QStringLiteral("p2.jpg"),
                                         QStringLiteral("p3.jpg"), QStringLiteral("q0.jpg"), QStringLiteral("q1.jpg"),
                                         QStringLiteral("q2.jpg")}));
    }

    /** Names were given to those that were there before. */
    void givesNoNameTwice()
    {
        const QString other = m_driver->folder() + QStringLiteral("/other");
        QVERIFY(QDir().mkpath(other));
        WindowDriver::answerPanels({other});
        m_driver->choose("destination", QStringLiteral("choose"));
        beginPaused(3);
        QVERIFY(QDir(m_driver->inputFolder()).mkdir(QStringLiteral("more")));
        const QString same = m_driver->inputFolder() + QStringLiteral("/more/p0.jpg");
        QVERIFY(QFile::copy(picture("p", 0), same));
        m_driver->drop({same});
        QVERIFY(m_driver->waitFor([this] { return m_driver->text("statusText").endsWith(QStringLiteral("of 4")); }));
        QCOMPARE(m_driver->cell(3, PictureModel::NewName), QStringLiteral("p0 (2).jpg"));
        m_driver->click("pauseButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("4 pictures done")));
    }

    void goesOnWithWhatJoinedAfterAnInterruption()
    {
        beginPaused(3);
        m_driver->drop({picture("q", 0)});
        QVERIFY(m_driver->waitFor([this] { return m_driver->text("statusText").endsWith(QStringLiteral("of 4")); }));
        m_driver->startAgain();
        QCOMPARE(list().size(), 4);
        m_driver->click("interruptedGo");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("4 pictures done")));
        QCOMPARE(results().size(), 4);
    }

    /** What comes when no picture is begun any more stays in the list. */
    void leavesWhatComesAfterCancel()
    {
        beginPaused(3);
        m_driver->trigger("cancelAction");
        QVERIFY(m_driver->text("statusDetail").startsWith(QStringLiteral("stopping")) ||
                m_driver->text("statusText").startsWith(QStringLiteral("Cancelled:"))); // it is said at once
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("Cancelled:")));
        m_driver->drop({picture("q", 0)});
        QCOMPARE(list().size(), 4);
        QVERIFY(
            m_driver->waitFor([this] { return m_driver->cell(3, PictureModel::Status) == QStringLiteral("Ready"); }));
    }

    void showsOtherPicturesMeanwhile()
    {
        beginPaused(4);
        auto &table = m_driver->pictures();
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(&table, Qt::Key_Down);
        QCOMPARE(table.photo(table.currentId()).toMap().value(QStringLiteral("name")).toString(),
                 QStringLiteral("p3.jpg"));
        m_driver->click("pauseButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("4 pictures done")));
        // The run has not taken the reader elsewhere.
        QCOMPARE(table.photo(table.currentId()).toMap().value(QStringLiteral("name")).toString(),
                 QStringLiteral("p3.jpg"));
    }

    /** A rename is planned as a whole, and so are a page and a sheet: what is added waits in the list. */
    void saysThatOtherRunsTakeNothing_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("summary");
        QTest::newRow("rename") << "rename"
                                << "400 files renamed";
        QTest::newRow("sort") << "sort"
                              << "400 files moved";
        QTest::newRow("contact") << "contact"
                                 << "Contact sheet.pdf: ";
        QTest::newRow("web") << "web"
                             << "";
    }

    void saysThatOtherRunsTakeNothing()
    {
        QFETCH(QString, action);
        QFETCH(QString, summary);
        platform::setUserDefault(QStringLiteral("Settings-rename"),
                                 QStringLiteral(R"({"what":"files","steps":[{"kind":"text","on":true,"pattern":)"
                                                R"("new {counter:00001}"}],"sidecars":true,"simulation":false})"));
        m_driver->startAgain();
        m_driver->show(action.toLatin1().constData());
        const int count = summary.startsWith(QLatin1String("400")) ? 400 : 40; // moves take no time on some machines
        for (int i = 0; i < count; ++i)
            QVERIFY(QFile::copy(picture("p", 0), m_driver->inputFolder() + QStringLiteral("/r%1.jpg").arg(i)));
        QVERIFY(QFile::remove(picture("p", 0)));
        m_driver->drop({m_driver->inputFolder()});
        if (action == QLatin1String("sort")) {
            m_driver->choose("sortLevel1", QStringLiteral("{type}"));
            m_driver->choose("sortLevel2", QString());
        }
        QVERIFY(m_driver->waitFor([&] {
            return m_driver->control<QAbstractButton>("startButton")->isEnabled() &&
                   m_driver->cell(count - 1, PictureModel::Status) == QStringLiteral("Ready");
        }));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([this] { return m_driver->control<QWidget>("pauseButton")->isVisible(); }));
        m_driver->click("pauseButton");
        QVERIFY(m_driver->text("statusDetail").startsWith(QStringLiteral("paus")));
        QVERIFY(m_driver->control<QWidget>("addPicturesButton")->isEnabled());
        m_driver->drop({picture("q", 0)});
        QCOMPARE(m_driver->text("statusDetail"),
                 QStringLiteral("1 %1 added. What you add now is not part of this run.")
                     .arg(action == QLatin1String("rename") ? QStringLiteral("file") : QStringLiteral("picture")));
        // The list can be looked at.
        QTest::keyClick(&m_driver->pictures(), Qt::Key_Down);
        QVERIFY(m_driver->pictures().isEnabled());
        m_driver->click("pauseButton");
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(summary) && !said.startsWith(QString::number(count + 1)), qPrintable(said));
        QCOMPARE(list().size(), count + 1);
        QVERIFY(
            m_driver->waitFor([&] { return m_driver->cell(count, PictureModel::Status) == QStringLiteral("Ready"); }));
        QVERIFY(QFile::exists(picture("q", 0)));
    }

private:
    QString picture(const char *name, int number)
    {
        const QString path = m_driver->inputFolder() + QStringLiteral("/%1%2.jpg").arg(QLatin1String(name)).arg(number);
        QImage image(2400, 1800, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(40 * number % 360, 200, 200));
        if (!QFile::exists(path) && !image.save(path))
            qFatal("no picture");
        return path;
    }

    QStringList list() const
    {
        QStringList names;
        for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
            names.append(m_driver->cell(row, PictureModel::Name));
        return names;
    }

    QStringList results() const
    {
        return QDir(m_driver->inputFolder() + QStringLiteral("/Resized")).entryList(QDir::Files, QDir::Name);
    }

    /** A run of so many pictures that waits in the middle. */
    void beginPaused(int count)
    {
        jobs::WorkerDesk::ofProcess().setSize(1);
        for (int i = 0; i < count; ++i)
            picture("p", i);
        m_driver->drop({m_driver->inputFolder()});
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([this] { return m_driver->control<QWidget>("pauseButton")->isVisible(); }));
        m_driver->click("pauseButton");
        QVERIFY(m_driver->text("statusDetail").startsWith(QStringLiteral("paus"))); // it is said at once
        QVERIFY(
            m_driver->waitFor([this] { return m_driver->text("statusDetail").startsWith(QStringLiteral("paused")); }));
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Joining)
#include "tst_joining.moc"
