#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/folders/side_bar.h"

#include "platform/controls/menu_bar.h"
#include "platform/controls/panels.h"
#include "platform/controls/screens.h"
#include "platform/desktop/user_defaults.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/own_settings.h"

#include <QApplication>
#include <QCheckBox>
#include <QCryptographicHash>
#include <QDir>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QSplitter>
#include <QTest>
#include <QTimer>

#include <tuple>

using window::PictureModel;

namespace {

QByteArray digestOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1)
                                          : QByteArray();
}

QSize sizeOf(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    return source ? source->uprightSize() : QSize();
}

/** Notes which types a panel offers, and cancels it. */
class AskedTypes : public platform::PanelProvider
{
public:
    explicit AskedTypes(std::optional<QStringList> &types) : m_types(types) {}
    platform::PanelAnswer run(const platform::PanelRequest &request) override
    {
        m_types = request.types;
        return {};
    }

private:
    std::optional<QStringList> &m_types;
};

} // namespace

class MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_pictures = m_driver->folder() + QStringLiteral("/in");
        m_results = m_driver->folder() + QStringLiteral("/in/Resized");
        QVERIFY(QDir().mkpath(m_pictures));
    }

    void cleanup() { m_driver.reset(); }

    void resizesTheLongestSideOfEveryPicture()
    {
        picture("wide.jpg", 2400, 1200);
        picture("high.png", 1000, 3200);
        picture("small.jpg", 300, 200);
        const QByteArray before = digestOf(path("wide.jpg"));
        m_driver->drop({m_pictures});
        QCOMPARE(m_driver->pictures().count(), 3);
        m_driver->control<QDoubleSpinBox>("value")->setValue(1600);
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("3 pictures done")));
        QCOMPARE(sizeOf(result("wide.jpg")), QSize(1600, 800));
        QCOMPARE(sizeOf(result("high.png")), QSize(500, 1600));
        QCOMPARE(sizeOf(result("small.jpg")), QSize(300, 200));
        QCOMPARE(digestOf(path("wide.jpg")), before);
        QCOMPARE(namesIn(m_results),
                 (QStringList{QStringLiteral("high.png"), QStringLiteral("small.jpg"), QStringLiteral("wide.jpg")}));
        QCOMPARE(m_driver->cell(0, PictureModel::Status), QStringLiteral("OK"));
    }

    void addsPicturesThroughThePanel()
    {
        picture("a.jpg", 40, 30);
        m_driver->answerPanels({path("a.jpg")});
        m_driver->trigger("addPicturesAction");
        QCOMPARE(m_driver->pictures().count(), 1);
        m_driver->trigger("addPicturesAction");
        QCOMPARE(m_driver->pictures().count(), 1);
        QVERIFY(m_driver->text("statusText").contains(QLatin1String("already in the list")));
    }

    void saysWhatWasLeftOut()
    {
        picture("a.jpg", 40, 30);
        for (const char *name : {"notes.txt", "film.mov", "raw.xyz"})
            file(name, "no picture");
        m_driver->drop({m_pictures});
        QCOMPARE(m_driver->pictures().count(), 1);
        QVERIFY2(m_driver->text("statusText").contains(QLatin1String("3 files were not added")),
                 qPrintable(m_driver->text("statusText")));
    }

    void simulationShowsThePlanAndWritesNothing()
    {
        picture("a.jpg", 400, 300);
        m_driver->drop({m_pictures});
        m_driver->control<QAbstractButton>("simulation")->setChecked(true);
        m_driver->control<QDoubleSpinBox>("value")->setValue(100);
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("nothing was written")));
        QCOMPARE(m_driver->cell(0, PictureModel::NewName), QStringLiteral("a.jpg"));
        QCOMPARE(m_driver->cell(0, PictureModel::NewSize), QStringLiteral("100×75"));
        QCOMPARE(namesIn(m_pictures), QStringList{QStringLiteral("a.jpg")});
    }

    void numbersWhereANameIsTakenAndLeavesTheOriginal()
    {
        picture("a.jpg", 400, 300);
        const QByteArray before = digestOf(path("a.jpg"));
        m_driver->drop({m_pictures});
        m_driver->choose("destination", QStringLiteral("source"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(100);
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QCOMPARE(sizeOf(path("a (2).jpg")), QSize(100, 75));
        QCOMPARE(digestOf(path("a.jpg")), before);
    }

    void skipsWhereANameIsTaken()
    {
        picture("a.jpg", 400, 300);
        m_driver->drop({m_pictures});
        m_driver->choose("destination", QStringLiteral("source"));
        m_driver->choose("ifTaken", QStringLiteral("skip"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("1 skipped")));
        QVERIFY(m_driver->cell(0, PictureModel::Status).startsWith(QStringLiteral("Skipped:")));
        QCOMPARE(namesIn(m_pictures), QStringList{QStringLiteral("a.jpg")});
    }

    void replacesOriginalsOnlyAfterItWasConfirmed()
    {
        picture("a.jpg", 400, 300);
        const QByteArray before = digestOf(path("a.jpg"));
        m_driver->drop({m_pictures});
        m_driver->choose("destination", QStringLiteral("source"));
        m_driver->choose("ifTaken", QStringLiteral("replace"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(100);
        auto *start = m_driver->control<QAbstractButton>("startButton");
        QVERIFY(m_driver->waitFor([start] { return start->text().contains(QLatin1String("Replace 1 Original")); }));
        WindowDriver::answerNextQuestion(QStringLiteral("Cancel"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QCOMPARE(digestOf(path("a.jpg")), before);
        m_driver->click("dismissButton");
        WindowDriver::answerNextQuestion(QStringLiteral("Replace"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QCOMPARE(sizeOf(path("a.jpg")), QSize(100, 75));
        QCOMPARE(namesIn(m_pictures), QStringList{QStringLiteral("a.jpg")});
    }

    void knowsTheFolderOfTheOriginalsByAnyPath_data()
    {
        QTest::addColumn<QString>("spelling");
        QTest::newRow("symbolic link") << QStringLiteral("/link");
        QTest::newRow("dots") << QStringLiteral("/in/../in/.");
        QTest::newRow("dots behind a link") << QStringLiteral("/link/../in");
    }

    void knowsTheFolderOfTheOriginalsByAnyPath()
    {
        QFETCH(QString, spelling);
        picture("a.jpg", 400, 300);
        const QByteArray before = digestOf(path("a.jpg"));
        QVERIFY(QFile::link(m_pictures, m_driver->folder() + QStringLiteral("/link")));
        WindowDriver::answerPanels({m_driver->folder() + spelling});
        m_driver->drop({m_pictures});
        m_driver->choose("destination", QStringLiteral("choose"));
        m_driver->choose("ifTaken", QStringLiteral("replace"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(100);
        auto *start = m_driver->control<QAbstractButton>("startButton");
        QVERIFY(m_driver->waitFor([start] { return start->text().contains(QLatin1String("Replace 1 Original")); }));
        WindowDriver::answerNextQuestion(QStringLiteral("Cancel"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QCOMPARE(digestOf(path("a.jpg")), before);
        m_driver->click("dismissButton");
        WindowDriver::answerNextQuestion(QStringLiteral("Replace"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QCOMPARE(sizeOf(path("a.jpg")), QSize(100, 75));
        QCOMPARE(namesIn(m_pictures), QStringList{QStringLiteral("a.jpg")});
    }

    void offersInThePanelWhatTheActionTakes()
    {
        std::optional<QStringList> offered;
        for (const auto &[action, extension, other] :
             {std::tuple("resize", "heic", "pdf"), std::tuple("convert", "pdf", "txt"),
              std::tuple("sort", "nef", "txt")}) {
            m_driver->show(action);
            platform::setPanelProvider(std::make_unique<AskedTypes>(offered));
            m_driver->trigger("addPicturesAction");
            QVERIFY2(offered, action);
            QVERIFY2(offered->contains(QLatin1String(extension)), action);
            QVERIFY2(!offered->contains(QLatin1String(other)), action);
        }
        m_driver->show("rename");
        m_driver->trigger("addPicturesAction");
        QVERIFY(!offered);
    }

    /** The folder of the settings is a file, so that nobody could write them. */
    void saysThatSettingsCannotBeWrittenAndGoesOn()
    {
        const QString home = m_driver->folder();
        file("settings", "in the way");
        keepSettingsIn(path("settings"));
        m_driver->control<QAction>("fillAction")->trigger();
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->text("statusText").contains(QLatin1String("Settings cannot")); }));
        QVERIFY(platform::userDefault(QStringLiteral("Preview")).toString().contains(QLatin1String("true")));
        keepSettingsIn(home + QStringLiteral("/.config"));
        m_driver->control<QAction>("fitAction")->trigger();
        QVERIFY(platform::areUserDefaultsKept());
    }

    void asksAboutATakenNameOnceForAll()
    {
        picture("a.jpg", 400, 300);
        picture("b.jpg", 400, 300);
        QVERIFY(QDir().mkpath(m_results));
        file("Resized/a.jpg", "old");
        file("Resized/b.jpg", "old");
        m_driver->drop({path("a.jpg"), path("b.jpg")});
        m_driver->choose("ifTaken", QStringLiteral("ask"));
        QTimer::singleShot(100, [] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                box->checkBox()->setChecked(true);
        });
        WindowDriver::answerNextQuestion(QStringLiteral("Skip"));
        QTimer::singleShot(200, [] { WindowDriver::answerNextQuestion(QStringLiteral("Skip")); });
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("2 skipped")));
        QCOMPARE(digestOf(result("a.jpg")), QCryptographicHash::hash("old", QCryptographicHash::Sha1));
    }

    void cancelStopsAfterTheCurrentPictureAndLeavesNothingHalf()
    {
        for (int i = 0; i < 30; ++i)
            picture(qPrintable(QStringLiteral("p%1.jpg").arg(i)), 1600, 1200);
        m_driver->drop({m_pictures});
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([this] { return namesIn(m_results).size() >= 2; }));
        m_driver->trigger("cancelAction");
        QVERIFY(m_driver->text("statusDetail").startsWith(QStringLiteral("stopping after the current pictures")));
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QStringLiteral("Cancelled:")), qPrintable(summary));
        const QStringList names = namesIn(m_results);
        QVERIFY(names.size() >= 2 && names.size() < 30);
        for (const QString &name : names)
            QCOMPARE(sizeOf(result(qPrintable(name))), QSize(1600, 1200));
        QCOMPARE(m_driver->cell(29, PictureModel::Status), QStringLiteral("Skipped: cancelled"));
    }

    void pauseHoldsTheRun()
    {
        for (int i = 0; i < 12; ++i)
            picture(qPrintable(QStringLiteral("p%1.jpg").arg(i)), 1600, 1200);
        m_driver->drop({m_pictures});
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([this] { return !namesIn(m_results).isEmpty(); }));
        m_driver->click("pauseButton");
        // What is in progress is finished first, and that is said at once.
        const auto isHeld = [this] { return m_driver->text("statusDetail").startsWith(QStringLiteral("paused")); };
        QVERIFY(isHeld() ||
                m_driver->text("statusDetail").startsWith(QStringLiteral("pausing after the current pictures")));
        QVERIFY(m_driver->waitFor(isHeld));
        const qsizetype held = namesIn(m_results).size();
        QTest::qWait(300);
        QCOMPARE(namesIn(m_results).size(), held);
        m_driver->click("pauseButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("12 pictures done")));
    }

    void aBrokenPictureFailsInWordsAndTheOthersGoOn()
    {
        file("broken.jpg", "this is no picture");
        picture("good.jpg", 400, 300);
        m_driver->drop({m_pictures});
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("1 failed")));
        QCOMPARE(m_driver->cell(0, PictureModel::Status), QStringLiteral("Failed: not a readable picture"));
        QCOMPARE(m_driver->cell(1, PictureModel::Status), QStringLiteral("OK"));
        m_driver->click("showFailedButton");
        QCOMPARE(m_driver->pictures().model()->rowCount(), 1);
        m_driver->click("showFailedButton");
        QCOMPARE(m_driver->pictures().model()->rowCount(), 2);
    }

    void savesTheReportOfARun()
    {
        picture("a.jpg", 400, 300);
        m_driver->drop({m_pictures});
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        const QString report = m_driver->folder() + QStringLiteral("/report.csv");
        m_driver->answerPanels({report});
        m_driver->click("reportButton");
        QFile file(report);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QList<QByteArray> lines = file.readAll().split('\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines.at(1).contains(",OK,") && lines.at(1).contains(result("a.jpg").toUtf8()));
    }

    void theLogKeepsEveryRunAndCanBeSearched()
    {
        picture("a.jpg", 400, 300);
        picture("b.jpg", 400, 300);
        m_driver->drop({m_pictures});
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        m_driver->startAgain();
        m_driver->control<window::SideBar>("sideBar")->setCurrentAction(QStringLiteral("log"));
        auto *log = m_driver->control<QTableView>("logTable");
        QVERIFY(log->isVisible());
        QCOMPARE(log->model()->rowCount(), 2);
        m_driver->control<QLineEdit>("logSearch")->setText(QStringLiteral("B.JPG"));
        QCOMPARE(log->model()->rowCount(), 1);
        QCOMPARE(log->model()->index(0, 3).data().toString(), QStringLiteral("OK"));
        QCOMPARE(log->model()->index(0, 4).data().toString(), QStringLiteral("b.jpg"));
        m_driver->choose("logStatus", QStringLiteral("Failed"));
        QCOMPARE(log->model()->rowCount(), 0);
    }

    void deleteTakesARowOffTheListAndNoFileOffTheDisk()
    {
        picture("a.jpg", 40, 30);
        picture("b.jpg", 40, 30);
        m_driver->drop({m_pictures});
        m_driver->trigger("removeAction");
        QCOMPARE(m_driver->pictures().count(), 1);
        QVERIFY(QFile::exists(path("a.jpg")));
    }

    void arrowKeysWalkTheList()
    {
        picture("a.jpg", 40, 30);
        picture("b.jpg", 40, 30);
        m_driver->drop({m_pictures});
        const int first = m_driver->pictures().currentId();
        QTest::keyClick(&m_driver->pictures(), Qt::Key_Right);
        QVERIFY(m_driver->pictures().currentId() != first);
        QTest::keyClick(&m_driver->pictures(), Qt::Key_Left);
        QCOMPARE(m_driver->pictures().currentId(), first);
    }

    void aMaximisedWindowComesBackMaximised()
    {
        QMainWindow &window = m_driver->window();
        window.showMaximized();
        QTRY_VERIFY(window.isMaximized());
        m_driver->trigger("fullScreenAction");
        QTRY_VERIFY(window.isFullScreen());
        QVERIFY(window.geometry().contains(window.screen()->geometry())); // its least width is more than this screen
        m_driver->trigger("fullScreenAction");
        QTRY_VERIFY(!window.isFullScreen());
        QVERIFY(window.isMaximized());
        window.showNormal();
        QTRY_VERIFY(!window.isMaximized());
        const QRect usual(30, 40, 1100, 700);
        window.setGeometry(usual);
        m_driver->trigger("fullScreenAction");
        m_driver->trigger("fullScreenAction");
        QTRY_VERIFY(!window.isFullScreen());
        QVERIFY(!window.isMaximized());
        QCOMPARE(window.geometry(), usual);
    }

    void callsTheOperationsOfTheLifeOfAWindow()
    {
        QMainWindow &window = m_driver->window();
        QVERIFY(window.property("titlebarAppearsTransparent").toBool());
        QCOMPARE(window.windowOpacity(), 1.0);
        m_driver->trigger("fullScreenAction");
        QVERIFY(!platform::isMenuBarVisible());
        window.close();
        QVERIFY(platform::isMenuBarVisible());
        m_driver->startAgain();
    }

    void fillsTheScreenThatTheWindowStandsOn()
    {
        QMainWindow &window = m_driver->window();
        QCOMPARE(platform::firstScreenFrame(), QRectF(window.screen()->geometry()));
    }

    void panelsAskForTags()
    {
        QCOMPARE(platform::userDefault(QStringLiteral("MOS")).toString(), QStringLiteral("109+"));
    }

    void fullScreenHidesTheMenuBarAndComesBack()
    {
        m_driver->window().resize(1000, 700);
        const QRect before = m_driver->window().geometry();
        m_driver->trigger("fullScreenAction");
        QVERIFY(m_driver->window().isFullScreen());
        QVERIFY(!m_driver->window().menuBar()->isVisible());
        m_driver->trigger("fullScreenAction");
        QVERIFY(m_driver->window().menuBar()->isVisible());
        QCOMPARE(m_driver->window().geometry(), before);
    }

    void keepsTheSettingsForTheNextStart()
    {
        m_driver->control<QDoubleSpinBox>("value")->setValue(777);
        m_driver->choose("fileType", QStringLiteral("public.png"));
        m_driver->startAgain();
        QCOMPARE(m_driver->control<QDoubleSpinBox>("value")->value(), 777);
        QCOMPARE(m_driver->control<QComboBox>("fileType")->currentData().toString(), QStringLiteral("public.png"));
    }

    // Prints how long it takes; see bench/README.md.
    void tenThousandPicturesAreAddedAndWalkedThrough()
    {
        picture("p.jpg", 64, 48);
        for (int i = 0; i < 10000; ++i)
            QVERIFY(QFile::link(path("p.jpg"), path(qPrintable(QStringLiteral("l%1.jpg").arg(i)))));
        QStringList paths;
        for (int i = 0; i < 10000; ++i)
            paths.append(path(qPrintable(QStringLiteral("l%1.jpg").arg(i))));
        QElapsedTimer clock;
        clock.start();
        m_driver->drop(paths);
        const qint64 added = clock.elapsed();
        QCOMPARE(m_driver->pictures().count(), 10000);
        qint64 longest = 0;
        QSet<int> visited;
        for (int i = 0; i < 100; ++i) {
            clock.restart();
            QTest::keyClick(&m_driver->pictures(), Qt::Key_Down);
            QCoreApplication::processEvents();
            longest = qMax(longest, clock.elapsed());
            visited.insert(m_driver->pictures().currentId());
        }
        QCOMPARE(visited.size(), 100);
        qInfo("10000 pictures: added in %lld ms, longest wait for a key %lld ms", added, longest);
    }

    void everyControlHasAName()
    {
        for (QWidget *widget : m_driver->window().findChildren<QWidget *>()) {
            if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(QLatin1String("qt_")) ||
                widget->objectName().isEmpty())
                continue;
            const auto *button = qobject_cast<QAbstractButton *>(widget);
            const bool named = !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
            QVERIFY2(named || qobject_cast<QSplitter *>(widget) || qobject_cast<QMenuBar *>(widget),
                     qPrintable(widget->objectName()));
        }
    }

private:
    QString path(const char *name) const { return m_pictures + QLatin1Char('/') + QLatin1String(name); }
    QString result(const char *name) const { return m_results + QLatin1Char('/') + QLatin1String(name); }

    static QStringList namesIn(const QString &folder)
    {
        return QDir(folder)
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
            .filter(QRegularExpression(QStringLiteral("^(?!\\.quorlin-unfinished)")));
    }

    void picture(const char *name, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(QColor(90, 140, 200));
        QVERIFY(image.save(path(name)));
    }

    void file(const char *name, const QByteArray &content)
    {
        QFile made(path(name));
        QVERIFY(made.open(QIODevice::WriteOnly));
        made.write(content);
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
    QString m_results;
};

QUORLIN_GUI_TEST(MainWindow)

#include "tst_main_window.moc"
