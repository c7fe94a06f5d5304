#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "jobs/desk/worker_desk.h"

#include "platform/file/file_note.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <csignal>

#include <unistd.h>

using jobs::WorkerDesk;
using window::PictureModel;

/** Runs of the window are carried out by workers, whose number is unknown. */
class WorkerRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_pictures = m_driver->folder() + QStringLiteral("/in");
        QVERIFY(QDir().mkpath(m_pictures));
    }

    void cleanup()
    {
        m_driver.reset();
        WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
    }

    void makesTheSameWithAnyNumber();
    void losesNothingWhenWorkersAreKilled();
    void failsOnePictureInWords_data();
    void failsOnePictureInWords();
    void startsAWorkerEarly();
    void saysThatAPictureIsGone();
    void leavesNothingWhereItIsGivenUp();
    void bringsBackWhatItReplaced();
    void saysWhatConfinesWorkers();
    void leavesItsOwnResultsOut();
    void leavesOutWhatIsUpToDate();
    void goesOnWhereItWasInterrupted_data();
    void goesOnWhereItWasInterrupted();

private:
    QString add(const QString &name, QSize size = {300, 200})
    {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.setPixel(x, y, qRgb(x % 256, y % 256, int(qHash(name) % 256)));
        const QString path = m_pictures + u'/' + name;
        if (!image.save(path))
            qFatal("no picture");
        return path;
    }

    /** Names that are not in the order in which their pictures are ready: the first are the largest. */
    void addMany(int count)
    {
        for (int i = 0; i < count; ++i)
            add(QStringLiteral("p%1.jpg").arg(i, 2, 10, QChar(u'0')), {2400 / (i + 1), 1600 / (i + 1)});
    }

    QString runToTheEnd()
    {
        m_driver->click("startButton");
        return m_driver->waitForSummary();
    }

    QString resultFolder() const { return m_pictures + QStringLiteral("/Resized"); }

    QMap<QString, QByteArray> results() const
    {
        QMap<QString, QByteArray> all;
        QDirIterator files(resultFolder(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        while (files.hasNext()) {
            QFile file(files.next());
            all.insert(files.fileName(), file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable"));
        }
        return all;
    }

    /** What the log has of each row but times and the name of its run, in its order. */
    QList<QJsonObject> logRows() const
    {
        QList<QJsonObject> rows;
        QDirIterator found(m_driver->folder() + QStringLiteral("/.local/share"), {QStringLiteral("log.jsonl")},
                           QDir::Files, QDirIterator::Subdirectories);
        QFile log(found.hasNext() ? found.next() : QString());
        if (!log.open(QIODevice::ReadOnly))
            return rows;
        for (const QByteArray &line : log.readAll().split('\n')) {
            QJsonObject row = QJsonDocument::fromJson(line).object();
            row.remove(QStringLiteral("date"));
            row.remove(QStringLiteral("run"));
            if (!row.isEmpty())
                rows.append(row);
        }
        return rows;
    }

    static QList<pid_t> children()
    {
        QList<pid_t> found;
        QFile children(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
        if (children.open(QIODevice::ReadOnly))
            for (const QByteArray &number : children.readAll().simplified().split(' '))
                if (number.toInt() > 0)
                    found.append(number.toInt());
        return found;
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

void WorkerRuns::makesTheSameWithAnyNumber()
{
    addMany(12);
    QMap<int, QMap<QString, QByteArray>> made;
    QMap<int, QList<QJsonObject>> rows;
    for (const int workers : {1, 5}) {
        WorkerDesk::ofProcess().setSize(workers);
        if (m_driver->pictures().model()->rowCount() == 0)
            m_driver->drop({m_pictures});
        QVERIFY2(runToTheEnd().startsWith(QStringLiteral("12 pictures done")),
                 qPrintable(m_driver->text("statusText")));
        for (int row = 0; row < 12; ++row)
            QCOMPARE(m_driver->cell(row, PictureModel::Status), QStringLiteral("OK"));
        made[workers] = results();
        rows[workers] = logRows().mid(rows.isEmpty() ? 0 : 12);
        QVERIFY(QDir(resultFolder()).removeRecursively());
    }
    QCOMPARE(made[1].size(), 12);
    QCOMPARE(made[1], made[5]);
    QCOMPARE(rows[1].size(), 12);
    QCOMPARE(rows[1], rows[5]);
    for (int row = 0; row < 12; ++row)
        QCOMPARE(rows[5][row][QLatin1String("input")].toString(),
                 QStringLiteral("p%1.jpg").arg(row, 2, 10, QChar(u'0')));
}

void WorkerRuns::losesNothingWhenWorkersAreKilled()
{
    addMany(10);
    m_driver->drop({m_pictures});
    m_driver->click("startButton");
    QVERIFY(m_driver->waitFor([this] { return !results().isEmpty(); }));
    const QList<pid_t> workers = children();
    QVERIFY(!workers.isEmpty());
    ::kill(workers.constFirst(), SIGKILL);
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("10 pictures done")));
    QCOMPARE(results().size(), 10);
}

void WorkerRuns::failsOnePictureInWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("crash") << "try-crash.jpg";
    QTest::newRow("nonsense") << "try-nonsense.jpg";
}

void WorkerRuns::failsOnePictureInWords()
{
    QFETCH(QString, name);
    WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
    addMany(4);
    add(name);
    m_driver->drop({m_pictures});
    QVERIFY(runToTheEnd().startsWith(QStringLiteral("4 pictures done · 1 failed")));
    QCOMPARE(m_driver->cell(4, PictureModel::Status), QStringLiteral("Failed: its reader crashed"));
    QCOMPARE(results().size(), 4);
}

void WorkerRuns::startsAWorkerEarly()
{
    QVERIFY(WorkerDesk::ofProcess().count() >= 1);
}

void WorkerRuns::saysThatAPictureIsGone()
{
    addMany(3);
    m_driver->drop({m_pictures});
    WorkerDesk::ofProcess().setSize(1);
    m_driver->click("startButton");
    // The plan is made; the last picture is removed before it is processed.
    QVERIFY(m_driver->waitFor([this] { return m_driver->cell(0, PictureModel::Status) != QStringLiteral("Ready"); }));
    QVERIFY(QFile::remove(m_pictures + QStringLiteral("/p02.jpg")));
    const QString summary = m_driver->waitForSummary();
    QVERIFY2(summary.startsWith(QStringLiteral("2 pictures done · 1 failed")), qPrintable(summary));
    QCOMPARE(m_driver->cell(2, PictureModel::Status), QStringLiteral("Failed: the picture no longer exists"));
}

/** Said once more, Cancel does not wait for what is in progress. */
void WorkerRuns::leavesNothingWhereItIsGivenUp()
{
    WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
    add(QStringLiteral("try-hang.jpg"));
    m_driver->drop({m_pictures});
    m_driver->click("startButton");
    QVERIFY(m_driver->waitFor([this] { return !results().isEmpty(); })); // the folder for unfinished files
    m_driver->trigger("cancelAction");
    QVERIFY(m_driver->text("statusDetail").startsWith(QStringLiteral("stopping after the current pictures")));
    m_driver->trigger("cancelAction");
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("Cancelled:")));
    QVERIFY(!QFileInfo::exists(resultFolder()));
}

void WorkerRuns::bringsBackWhatItReplaced()
{
    addMany(2);
    const auto content = [this](const char *name) {
        QFile file(m_pictures + u'/' + QLatin1String(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QList<QByteArray> old = {content("p00.jpg"), content("p01.jpg")};
    QFile(m_pictures + QStringLiteral("/p01.jpg"))
        .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    m_driver->drop({m_pictures});
    m_driver->choose("destination", QStringLiteral("source"));
    m_driver->choose("ifTaken", QStringLiteral("replace"));
    WindowDriver::answerNextQuestion(QStringLiteral("Replace"));
    QVERIFY2(runToTheEnd().startsWith(QStringLiteral("2 pictures done")), qPrintable(m_driver->text("statusText")));
    QCOMPARE(QImage(m_pictures + QStringLiteral("/p00.jpg")).width(), 1600);
    QVERIFY(content("p00.jpg") != old[0]);
    const auto permissions = QFile(m_pictures + QStringLiteral("/p01.jpg")).permissions();
    QVERIFY(!permissions.testFlag(QFile::ReadOther) && permissions.testFlag(QFile::ReadGroup));
    QVERIFY(m_driver->control<QAbstractButton>("undoButton")->isVisible());
    // Each picture was put aside and replaced; that is one file.
    QCOMPARE(m_driver->control<QAction>("undoAction")->text(), QStringLiteral("Undo Resize of 2 Files"));
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor([&] { return content("p00.jpg") == old[0] && content("p01.jpg") == old[1]; }));
    QCOMPARE(QDir(m_pictures).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             (QStringList{QStringLiteral("p00.jpg"), QStringLiteral("p01.jpg")}));
}

void WorkerRuns::saysWhatConfinesWorkers()
{
    QVERIFY(m_driver->waitFor([] { return WorkerDesk::ofProcess().confinement().has_value(); }));
    m_driver->trigger("aboutAction");
    const QString said = m_driver->text("aboutGuard");
    const auto active = *WorkerDesk::ofProcess().confinement();
    const bool isWhole = active.hasNoNewPrivileges && active.hasFileRules && active.hasCallRules;
    QCOMPARE(said.contains(QLatin1String("Not available on this system")), !isWhole);
    QCOMPARE(said.contains(QLatin1String("system call filter (seccomp)")), true);
}

void WorkerRuns::leavesItsOwnResultsOut()
{
    addMany(3);
    m_driver->drop({m_pictures});
    runToTheEnd();
    if (platform::attachedNote(resultFolder() + QStringLiteral("/p00.jpg")).isEmpty())
        QSKIP("the disk has no place for notes");
    m_driver->click("dismissButton");
    m_driver->trigger("clearAction");
    const auto rows = [this] { return m_driver->pictures().model()->rowCount(); };
    m_driver->drop({m_pictures});
    QCOMPARE(rows(), 3);
    QCOMPARE(m_driver->text("ownNote"), QStringLiteral("3 results of earlier runs not added"));
    m_driver->click("ownAdd");
    QCOMPARE(rows(), 6);
    QVERIFY(!m_driver->control<QWidget>("ownBar")->isVisible());
    m_driver->trigger("clearAction");
    // Whoever names one means it.
    m_driver->drop({resultFolder() + QStringLiteral("/p00.jpg")});
    QCOMPARE(rows(), 1);
    m_driver->trigger("clearAction");
    m_driver->drop({resultFolder()});
    QCOMPARE(rows(), 0);
    QVERIFY(m_driver->control<QWidget>("emptyOwnBar")->isVisible());
    m_driver->click("emptyOwnAdd");
    QCOMPARE(rows(), 3);
}

/** Nothing is done twice, also after the program was started again. */
void WorkerRuns::leavesOutWhatIsUpToDate()
{
    addMany(3);
    m_driver->drop({m_pictures});
    QVERIFY(runToTheEnd().startsWith(QStringLiteral("3 pictures done")));
    m_driver->startAgain();
    m_driver->drop({m_pictures});
    m_driver->choose("ifTaken", QStringLiteral("current"));
    const auto shows = [this](int row, const char *text) {
        return m_driver->waitFor([&] { return m_driver->cell(row, PictureModel::Status) == QLatin1String(text); });
    };
    for (int row = 0; row < 3; ++row)
        QVERIFY2(shows(row, "Skipped: up to date"), qPrintable(m_driver->cell(row, PictureModel::Status)));
    QCOMPARE(m_driver->control<QAbstractButton>("startButton")->text(), QStringLiteral("Resize"));
    const auto before = results();
    // One picture is another one now, and one result is.
    add(QStringLiteral("p01.jpg"), {500, 400});
    QFile changed(resultFolder() + QStringLiteral("/p02.jpg"));
    QVERIFY(changed.open(QIODevice::Append) && changed.write("x") == 1);
    changed.close();
    m_driver->choose("fileType", QStringLiteral("public.jpeg"));
    m_driver->choose("fileType", QStringLiteral("original file type"));
    QVERIFY(shows(1, "Ready") && shows(0, "Skipped: up to date") && shows(2, "Ready"));
    const QString summary = runToTheEnd();
    QVERIFY2(summary.startsWith(QStringLiteral("2 pictures done · 1 skipped")), qPrintable(summary));
    const auto after = results();
    QCOMPARE(after[QStringLiteral("p00.jpg")], before[QStringLiteral("p00.jpg")]);
    QCOMPARE(QStringList(after.keys()), QStringLiteral("p00.jpg|p01 (2).jpg|p01.jpg|p02 (2).jpg|p02.jpg").split(u'|'));
    // Their numbered forms are what is up to date now.
    m_driver->click("dismissButton");
    m_driver->choose("fileType", QStringLiteral("public.jpeg"));
    m_driver->choose("fileType", QStringLiteral("original file type"));
    for (int row = 0; row < 3; ++row)
        QVERIFY2(shows(row, "Skipped: up to date"), qPrintable(m_driver->cell(row, PictureModel::Status)));
    // Other settings make other results.
    m_driver->choose("quality", QStringLiteral("5"));
    for (int row = 0; row < 3; ++row)
        QVERIFY2(shows(row, "Ready"), qPrintable(m_driver->cell(row, PictureModel::Status)));
}

void WorkerRuns::goesOnWhereItWasInterrupted_data()
{
    QTest::addColumn<bool>("isContinued");
    QTest::newRow("Continue") << true;
    QTest::newRow("Leave") << false;
}

/** The program ends in the middle of a run, and the next one finds how far it was. */
void WorkerRuns::goesOnWhereItWasInterrupted()
{
    QFETCH(bool, isContinued);
    addMany(8);
    WorkerDesk::ofProcess().setSize(1);
    m_driver->drop({m_pictures});
    m_driver->click("startButton");
    QVERIFY(m_driver->waitFor([this] { return results().size() >= 3; })); // the folder for unfinished files too
    m_driver->click("pauseButton");
    QVERIFY(m_driver->waitFor([this] { return m_driver->text("statusDetail").startsWith(QStringLiteral("paused")); }));
    const QDir out(resultFolder());
    QMap<QString, QDateTime> before;
    for (const QFileInfo &file : out.entryInfoList(QDir::Files))
        before.insert(file.fileName(), file.lastModified());
    QVERIFY(before.size() >= 2 && before.size() < 8);
    m_driver->startAgain();
    QVERIFY(m_driver->control<QWidget>("interruptedBar")->isVisible());
    QCOMPARE(m_driver->text("interruptedNote"),
             QStringLiteral("Resizing was interrupted: %1 of 8 pictures are done.").arg(before.size()));
    QVERIFY(!m_driver->control<QWidget>("interruptedUndo")->isVisible());
    QCOMPARE(m_driver->pictures().model()->rowCount(), 8);
    if (!isContinued) {
        m_driver->startAgain(); // who did not answer is asked again
        QCOMPARE(m_driver->pictures().model()->rowCount(), 8);
    }
    m_driver->click(isContinued ? "interruptedGo" : "interruptedLeave");
    QVERIFY(!m_driver->control<QWidget>("interruptedBar")->isVisible());
    if (isContinued) {
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QStringLiteral("8 pictures done")), qPrintable(summary));
        QCOMPARE(logRows().size(), 8);
        for (int row = 0; row < 8; ++row)
            QCOMPARE(m_driver->cell(row, PictureModel::Status), QStringLiteral("OK"));
    }
    QCOMPARE(out.entryList(QDir::Files).size(), isContinued ? 8 : int(before.size()));
    for (const QString &name : before.keys())
        QCOMPARE(QFileInfo(out.filePath(name)).lastModified(), before[name]);
    // It is asked once.
    m_driver->startAgain();
    QCOMPARE(m_driver->pictures().model()->rowCount(), 0);
}

QUORLIN_GUI_TEST(WorkerRuns)

#include "tst_worker_runs.moc"
