#include "tests/gui/runs/window_session.h"
#include "tests/support/test_program.h"

#include "files/moving/journal_shelf.h"
#include "files/moving/move_run.h"
#include "platform/desktop/user_defaults.h"
#include "platform/disk/disk_file_system.h"

#include <QImage>
#include <QProgressBar>

using session::Ended;
using session::Home;

namespace {

/** Waits for the other window: for a line that it is given. */
void waitToGoOn()
{
    char line[16];
    if (!std::fgets(line, sizeof line, stdin))
        std::abort();
}

/** A run that has begun, pauses, and goes on when the other window has done its work. */
int holdARun(const QString &home, const QString &does)
{
    auto driver = WindowDriver::started(home);
    jobs::WorkerDesk::ofProcess().setSize(1);
    platform::setUserDefault(QStringLiteral("Settings-rename"),
                             QStringLiteral(R"({"what":"files","steps":[{"kind":"text","on":true,"pattern":)"
                                            R"("new {counter:001}"}],"sidecars":true,"simulation":false})"));
    driver->startAgain();
    driver->show(qPrintable(does));
    driver->drop({driver->inputFolder()});
    driver->waitFor([&] { return driver->control<QAbstractButton>("startButton")->isEnabled(); });
    bool isPaused = false;
    auto *progress = driver->control<QProgressBar>("progress");
    QObject::connect(progress, &QProgressBar::valueChanged, progress, [&](int value) {
        if (value > 0 && !std::exchange(isPaused, true))
            driver->click("pauseButton");
    });
    driver->click("startButton");
    const bool isHeld =
        driver->waitFor([&] { return isPaused && driver->text("statusDetail").startsWith(QStringLiteral("paused")); });
    session::say(isHeld ? QStringLiteral("held") : QStringLiteral("not held: ") + driver->text("statusText"));
    waitToGoOn();
    platform::setUserDefault(QStringLiteral("OfTheFirst"), QStringLiteral("1"));
    driver->click("pauseButton");
    session::say(QStringLiteral("summary ") + driver->waitForSummary());
    return 0;
}

/** Another window: what it finds, and a run of its own. */
int lookAndRun(const QString &home)
{
    auto driver = WindowDriver::started(home);
    const bool isAsked = driver->control<QWidget>("interruptedBar")->isVisible();
    session::say(isAsked ? QStringLiteral("asked") : QStringLiteral("not asked"));
    session::say(QStringLiteral("list %1").arg(driver->pictures().model()->rowCount()));
    session::say(QStringLiteral("undo %1").arg(driver->control<QAction>("undoAction")->isEnabled()));
    platform::setUserDefault(QStringLiteral("OfTheSecond"), QStringLiteral("2"));
    driver->show("resize");
    driver->drop({home + QStringLiteral("/other")});
    driver->waitFor([&] { return driver->control<QAbstractButton>("startButton")->isEnabled(); });
    driver->click("startButton");
    session::say(QStringLiteral("summary ") + driver->waitForSummary());
    return 0;
}

/** A rename of two files as a crash leaves it after the first one. */
void interruptARename(const QString &folder, const QString &home)
{
    platform::DiskFileSystem disk;
    files::DiskJournalShelf shelf(home + QStringLiteral("/.local/share/quorlin/moves"));
    files::MoveOrderForm form;
    form.title = QStringLiteral("Rename");
    for (const char *number : {"00", "01"})
        form.items.push_back({files::Operation::Move, folder + QStringLiteral("/p%1.jpg").arg(QLatin1String(number)),
                              folder + QStringLiteral("/new %1.jpg").arg(QLatin1String(number))});
    const auto run = files::MoveRun::begin(disk, shelf, form);
    if (!run || !(*run)->next())
        qFatal("no run");
}

/** Says what it asks about, and answers "Leave" when it is told to. */
int ask(const QString &home)
{
    auto driver = WindowDriver::started(home);
    const bool isAsked = driver->control<QWidget>("interruptedBar")->isVisible();
    session::say(isAsked ? QStringLiteral("asked") : QStringLiteral("not asked"));
    waitToGoOn();
    driver->click("interruptedLeave");
    session::say(driver->control<QWidget>("interruptedBar")->isVisible() ? QStringLiteral("asks for more")
                                                                         : QStringLiteral("answered"));
    return 0;
}

/** A list that is kept on disk by now. */
int keepAList(const QString &home, const QString &folder)
{
    auto driver = WindowDriver::started(home);
    session::say(QStringLiteral("list %1").arg(driver->pictures().model()->rowCount()));
    const QDir lists(home + QStringLiteral("/.local/share/quorlin/lists"));
    const auto before = lists.entryList(QDir::Files).size();
    driver->drop({home + u'/' + folder});
    const auto isKept = [&] {
        const QFileInfoList found = lists.entryInfoList(QDir::Files, QDir::Time);
        return found.size() > before && std::all_of(found.begin(), found.end(), [&](const QFileInfo &each) {
                   return Home::files(lists.path())[each.fileName()].contains("\"whole\"");
               });
    };
    session::say(driver->waitFor(isKept) ? QStringLiteral("kept") : QStringLiteral("not kept"));
    waitToGoOn();
    return 0;
}

} // namespace

/** Two windows of one person at the same time: what one does is neither offered nor lost by the other. */
class TwoWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leaveEachOthersRunsAlone_data();
    void leaveEachOthersRunsAlone();
    void bringBothListsBack();
    void keepTheQuestionsOfEachOther();

private:
    static constexpr int pictureCount = 12;
    static constexpr int otherCount = 3;

    static void addPictures(const QString &folder, int count)
    {
        QVERIFY(QDir().mkpath(folder));
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        for (int i = 0; i < count; ++i)
            QVERIFY(image.save(QStringLiteral("%1/p%2.jpg").arg(folder).arg(i, 2, 10, QChar(u'0'))));
    }

    static QString lineOf(QProcess &process, const char *begin)
    {
        constexpr int mostMs = 60'000;
        while (process.canReadLine() || process.waitForReadyRead(mostMs))
            if (const QString line = QString::fromUtf8(process.readLine()).trimmed();
                line.startsWith(QLatin1String(begin)))
                return line;
        return {};
    }

    static std::unique_ptr<QProcess> window(const Home &home, const char *kind, const QString &does = {})
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kind), home.path(), does});
        return process;
    }
};

void TwoWindows::leaveEachOthersRunsAlone_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("result");
    QTest::newRow("pictures") << QStringLiteral("resize") << QStringLiteral("12 pictures done");
    QTest::newRow("several outputs") << QStringLiteral("web") << QStringLiteral("36 files made");
    QTest::newRow("names") << QStringLiteral("rename") << QStringLiteral("12 files renamed, no problems");
}

void TwoWindows::leaveEachOthersRunsAlone()
{
    QFETCH(QString, action);
    QFETCH(QString, result);
    const Home home;
    addPictures(home.input(), pictureCount);
    addPictures(home.path() + QStringLiteral("/other"), otherCount);
    const auto first = window(home, "--hold", action);
    QCOMPARE(lineOf(*first, "held"), QStringLiteral("held"));
    const auto before = Home::files(home.input());
    const auto second = window(home, "--look");
    QCOMPARE(lineOf(*second, ""), QStringLiteral("not asked"));
    QCOMPARE(lineOf(*second, "list"), QStringLiteral("list 0"));
    QCOMPARE(lineOf(*second, "undo"), QStringLiteral("undo 0"));
    QVERIFY(lineOf(*second, "summary").startsWith(QStringLiteral("summary 3 pictures done")));
    QVERIFY(second->waitForFinished());
    QCOMPARE(Home::files(home.input()).keys(), before.keys()); // unfinished files of the first one too
    first->write("go\n");
    const QString said = lineOf(*first, "summary");
    QVERIFY2(said.startsWith(QStringLiteral("summary ") + result), qPrintable(said));
    QVERIFY(first->waitForFinished());
    QVERIFY2(home.records().isEmpty(), qPrintable(home.records().join(u' ')));
    QCOMPARE(Home::files(home.path() + QStringLiteral("/other")).size(), 2 * otherCount + 1);
    for (const QString &name : Home::files(home.input()).keys())
        QVERIFY2(!name.startsWith(u'.') && !name.contains(QLatin1String("/.")), qPrintable(name));
    int ofOther = 0;
    const QList<QJsonObject> rows = home.logRows();
    for (const QJsonObject &row : rows) {
        QCOMPARE(row[QStringLiteral("status")].toString(), QStringLiteral("OK"));
        ofOther += row[QStringLiteral("inputPath")].toString().contains(QLatin1String("/other/")) ? 1 : 0;
    }
    QCOMPARE(ofOther, otherCount);
    QVERIFY(rows.size() >= otherCount + pictureCount);
    QFile preferences(home.path() + QStringLiteral("/.config/Quorlin/Quorlin.ini"));
    QVERIFY(preferences.open(QIODevice::ReadOnly));
    const QByteArray kept = preferences.readAll();
    QVERIFY(kept.contains("OfTheFirst=") && kept.contains("OfTheSecond="));
}

/** Both are killed, and one window takes their place. */
void TwoWindows::bringBothListsBack()
{
    const Home home;
    addPictures(home.input(), pictureCount);
    addPictures(home.path() + QStringLiteral("/other"), otherCount);
    std::vector<std::unique_ptr<QProcess>> all;
    for (const char *folder : {"in", "other"}) {
        all.push_back(window(home, "--list", QString::fromLatin1(folder)));
        QCOMPARE(lineOf(*all.back(), "list"), QStringLiteral("list 0"));
        QCOMPARE(lineOf(*all.back(), "kept"), QStringLiteral("kept"));
    }
    for (const auto &each : all) {
        each->kill();
        QVERIFY(each->waitForFinished());
    }
    const auto third = window(home, "--look");
    QCOMPARE(lineOf(*third, "list"), QStringLiteral("list %1").arg(pictureCount + otherCount));
    third->kill();
    QVERIFY(third->waitForFinished());
}

/** What one asks about is asked again after its end, though another window was answered meanwhile. */
void TwoWindows::keepTheQuestionsOfEachOther()
{
    const Home home;
    addPictures(home.input(), 2);
    addPictures(home.path() + QStringLiteral("/other"), 2);
    interruptARename(home.input(), home.path());
    const auto first = window(home, "--ask");
    QCOMPARE(lineOf(*first, ""), QStringLiteral("asked"));
    interruptARename(home.path() + QStringLiteral("/other"), home.path());
    const auto second = window(home, "--ask"); // about both
    QCOMPARE(lineOf(*second, ""), QStringLiteral("asked"));
    first->write("go\n");
    QCOMPARE(lineOf(*first, ""), QStringLiteral("answered"));
    QVERIFY(first->waitForFinished());
    second->kill();
    QVERIFY(second->waitForFinished());
    const auto third = window(home, "--ask");
    QCOMPARE(lineOf(*third, ""), QStringLiteral("asked"));
    third->write("go\n");
    QCOMPARE(lineOf(*third, ""), QStringLiteral("answered"));
    QVERIFY(third->waitForFinished());
    const auto fourth = window(home, "--ask");
    QCOMPARE(lineOf(*fourth, ""), QStringLiteral("not asked"));
    fourth->kill();
    QVERIFY(fourth->waitForFinished());
}

int main(int argc, char **argv)
{
    const QByteArray kind = argc > 2 ? argv[1] : "";
    if (!QByteArrayList{"--hold", "--look", "--list", "--ask"}.contains(kind))
        return tests::mainWithoutWindows<TwoWindows>(argc, argv);
    QApplication application(argc, argv);
    const QString home = QString::fromLocal8Bit(argv[2]);
    const QString does = argc > 3 ? QString::fromLocal8Bit(argv[3]) : QString();
    if (kind == "--ask")
        return ask(home);
    if (kind == "--list")
        return keepAList(home, does);
    return kind == "--hold" ? holdARun(home, does) : lookAndRun(home);
}

#include "tst_two_windows.moc"
