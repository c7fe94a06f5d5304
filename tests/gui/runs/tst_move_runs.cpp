#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"
#include "files/items/file_facts.h"

#include "files/moving/journal_shelf.h"
#include "files/moving/move_run.h"
#include "files/services/move_service.h"

#include "platform/desktop/user_defaults.h"
#include "platform/disk/disk_file_system.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using window::PictureModel;

/** Runs that move files: paused, cancelled, retried, interrupted, and without room. */
class MoveRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        QVERIFY(QDir().mkpath(at("")));
    }

    void cleanup()
    {
        files::setDiskSpaceSource({});
        files::MoveService::setDiskSource({});
        m_driver.reset();
    }

    void pausesBetweenTwoFilesAndGoesOn()
    {
        begin(many);
        int done = 0;
        atTheFirstFile([&](int value) {
            done = value;
            m_driver->click("pauseButton");
        });
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([&] { return done > 0; }));
        const QStringList paused = names();
        QCOMPARE(paused.filter(QStringLiteral("new ")).size(), done);
        QTest::qWait(150);
        QCOMPARE(names(), paused);
        QVERIFY2(m_driver->text("statusDetail").startsWith(QLatin1String("paused")),
                 qPrintable(m_driver->text("statusDetail")));
        QCOMPARE(m_driver->control<QAbstractButton>("pauseButton")->text(), QStringLiteral("Resume"));
        m_driver->click("pauseButton");
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QStringLiteral("%1 files renamed, no problems").arg(many)), qPrintable(said));
        QCOMPARE(names().filter(QStringLiteral("new ")).size(), many);
    }

    void cancelsWhilePausedAndPutsBack()
    {
        begin(many);
        const QStringList before = names();
        bool isPaused = false;
        atTheFirstFile([&](int) {
            m_driver->click("pauseButton");
            isPaused = true;
        });
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([&] { return isPaused; }));
        const qsizetype moved = names().filter(QStringLiteral("new ")).size();
        QTest::keyClick(&m_driver->window(), Qt::Key_Escape);
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QLatin1String("Cancelled:")), qPrintable(said));
        QCOMPARE(names().filter(QStringLiteral("new ")).size(), moved);
        QCOMPARE(names().size(), many);
        QVERIFY(m_driver->cell(many - 1, PictureModel::Status).contains(QLatin1String("cancelled")));
        m_driver->click("undoButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("restored")));
        QCOMPARE(names(), before);
    }

    void retriesWhatFailedUnderItsPlannedName()
    {
        begin(many);
        const QString last = at("IMG_%1.jpg", many);
        atTheFirstFile([&](int) { QVERIFY(QFile::rename(last, at("away"))); });
        m_driver->click("startButton");
        QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QStringLiteral("%1 files renamed, 1 problem").arg(many - 1)), qPrintable(said));
        m_driver->click("retryButton"); // it is still not there
        said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QLatin1String("0 files renamed, 1 problem")), qPrintable(said));
        QCOMPARE(m_driver->cell(many - 1, PictureModel::Status), QStringLiteral("Failed: the file no longer exists"));
        QVERIFY(QFile::rename(at("away"), last));
        m_driver->click("retryButton");
        said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QLatin1String("1 file renamed, no problems")), qPrintable(said));
        QVERIFY(QFile::exists(at("new %1.jpg", many)));
        QVERIFY(!QFile::exists(last));
        QCOMPARE(names().size(), many);
        QVERIFY(!m_driver->control<QAbstractButton>("retryButton")->isVisible());
        QCOMPARE(m_driver->cell(0, PictureModel::Status), QStringLiteral("Done")); // as the first run left it
        m_driver->click("undoButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("1 name restored")));
        QVERIFY(QFile::exists(last));
    }

    void theLogCountsOnceWhatCannotGoBack()
    {
        begin(3);
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("3 files renamed, no problems")));
        m_driver->click("dismissButton");
        QVERIFY(QFile::remove(at("new 002.jpg")));
        m_driver->show("log");
        auto *log = m_driver->control<window::LogTable>("logTable");
        QVERIFY(m_driver->waitFor([log] { return log->totalCount() == 3; }));
        auto *runs = m_driver->control<window::RunList>("logRuns");
        runs->setCurrentIndex(runs->model()->index(1, 0));
        m_driver->click("logUndo");
        QVERIFY(m_driver->waitFor([log] { return log->totalCount() == 6; }));
        const QString said = m_driver->text("statusText");
        QVERIFY2(said.endsWith(QStringLiteral("2 files restored · 1 problem")), qPrintable(said));
        QCOMPARE(names(), QStringList({QStringLiteral("IMG_001.jpg"), QStringLiteral("IMG_003.jpg")}));
    }

    void asksToReadWhatCouldNotBePutRight()
    {
        write(QStringLiteral("b.jpg"));
        write(QStringLiteral("d.jpg"));
        interrupt();
        QVERIFY(QFile::remove(at("d.jpg")));
        QString text;
        QString detail;
        readNextBox(text, detail);
        m_driver->startAgain();
        QVERIFY2(text.startsWith(QLatin1String("Rename was interrupted and has been cleaned up")), qPrintable(text));
        QCOMPARE(m_driver->text("interruptedNote"),
                 QStringLiteral("Renaming was interrupted: 1 of 3 files has its new name."));
        QVERIFY2(detail.contains(QLatin1String("d.jpg no longer exists")), qPrintable(detail));
        QCOMPARE(names(), QStringList({QStringLiteral("1.jpg"), QStringLiteral("b.jpg")}));
    }

    void asksBeforeADiskIsFilled()
    {
        sortIntoAFullDisk();
        QString text;
        QString detail;
        readNextBox(text, detail);
        m_driver->click("startButton");
        QCOMPARE(m_driver->waitForSummary(), QStringLiteral("Cancelled. Nothing was moved."));
        QVERIFY2(text.startsWith(QLatin1String("The files need ")), qPrintable(text));
        QVERIFY2(text.contains(QLatin1String("has only 999 bytes free")), qPrintable(text));
        QVERIFY(QDir(at("../sorted")).isEmpty());
        WindowDriver::answerNextQuestion(QStringLiteral("Start Anyway"));
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("3 files copied into ")) && summary.contains(u", no problems"),
                 qPrintable(summary));
        QVERIFY(!QDir(at("../sorted")).isEmpty());
    }

    void asksNothingWhereThereIsRoom()
    {
        sortIntoAFullDisk();
        files::setDiskSpaceSource([](const QString &) { return files::DiskSpace{1000000000, 1}; });
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("3 files copied into ")) && summary.contains(u", no problems"),
                 qPrintable(summary));
    }

    void goesOnWhereThereIsRoomAgain()
    {
        copyIntoATightDisk();
        WindowDriver::answerNextQuestion(QStringLiteral("Retry"));
        TightDisk::roomLater = 100;
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("5 files copied into 1 folder")) &&
                     summary.contains(u", no problems"),
                 qPrintable(summary));
        QCOMPARE(TightDisk::refused, 1);
        QCOMPARE(filesBelow("../sorted"), 5);
        m_driver->click("undoButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("5 files restored")));
        QCOMPARE(filesBelow("../sorted"), 0);
    }

    void putsTheRestElsewhereWhereADiskIsFull()
    {
        copyIntoATightDisk();
        QVERIFY(QDir().mkpath(at("../more")));
        WindowDriver::answerPanels({QDir::cleanPath(at("../more"))});
        WindowDriver::answerNextQuestion(QStringLiteral("Choose Folder…"));
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("5 files copied into 2 folders")) &&
                     summary.contains(u", no problems"),
                 qPrintable(summary));
        QCOMPARE(filesBelow("../sorted"), 2);
        QCOMPARE(filesBelow("../more"), 3);
        for (int row = 0; row < 5; ++row)
            QCOMPARE(m_driver->cell(row, PictureModel::Status), QStringLiteral("Done"));
        for (const int left : {2, 0}) { // two runs, the later one first
            m_driver->control<QAction>("undoAction")->trigger();
            QVERIFY(m_driver->waitForSummary().contains(QLatin1String("restored")));
            QCOMPARE(filesBelow("../sorted"), left);
            QCOMPARE(filesBelow("../more"), 0);
        }
    }

    void keepsWhatIsDoneWhereADiskIsFull()
    {
        copyIntoATightDisk();
        WindowDriver::answerNextQuestion(QStringLiteral("Cancel"));
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("Cancelled: 2 files copied into 1 folder")) &&
                     summary.contains(u", 1 problem"),
                 qPrintable(summary));
        QCOMPARE(filesBelow("../sorted"), 2);
        QCOMPARE(TightDisk::refused, 1); // the others were not tried
    }

private:
    /** Holds so many files. */
    class TightDisk : public platform::DiskFileSystem
    {
    public:
        static inline int room = 0;
        static inline int roomLater = 0; ///< once it was full
        static inline int refused = 0;

        std::error_code copy(const QString &from, const QString &to) override
        {
            const bool isHere = to.contains(QLatin1String("/sorted/"));
            if (!isHere || room-- > 0)
                return DiskFileSystem::copy(from, to);
            ++refused;
            room = roomLater;
            return std::make_error_code(std::errc::no_space_on_device);
        }
    };

    static constexpr int many = 400;

    QString at(const char *name, int number = 0) const
    {
        const QString text = QString::fromLatin1(name);
        return m_driver->folder() + QStringLiteral("/in/") +
               (text.contains(u'%') ? text.arg(number, 3, 10, QLatin1Char('0')) : text);
    }

    void write(const QString &name)
    {
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        QVERIFY(image.save(m_driver->folder() + QStringLiteral("/in/") + name));
    }

    QStringList names() const { return QDir(at("")).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    /** So many files that are to get a name with a counter. */
    void begin(int count)
    {
        write(QStringLiteral("IMG_001.jpg"));
        for (int i = 2; i <= count; ++i)
            QVERIFY(QFile::copy(at("IMG_001.jpg"), at("IMG_%1.jpg", i)));
        platform::setUserDefault(QStringLiteral("Settings-rename"),
                                 QStringLiteral(R"({"what":"files","steps":[{"kind":"text","on":true,"pattern":)"
                                                R"("new {counter:001}"}],"sidecars":true,"simulation":false})"));
        m_driver->startAgain();
        m_driver->show("rename");
        m_driver->drop({at("")});
        QVERIFY(m_driver->waitFor([this] { return m_driver->control<QAbstractButton>("startButton")->isEnabled(); }));
    }

    void atTheFirstFile(const std::function<void(int)> &operation)
    {
        auto *progress = m_driver->control<QProgressBar>("progress");
        connect(progress, &QProgressBar::valueChanged, this, [this, progress, operation](int value) {
            if (value > 0 && value < many) {
                progress->disconnect(this);
                operation(value);
            }
        });
    }

    /** A run of three files as a crash leaves it after the first one. */
    void interrupt()
    {
        write(QStringLiteral("a.jpg"));
        platform::DiskFileSystem disk;
        files::DiskJournalShelf shelf(m_driver->folder() + QStringLiteral("/.local/share/quorlin/moves"));
        files::MoveOrderForm form;
        form.title = QStringLiteral("Rename");
        form.items = {{files::Operation::Move, at("a.jpg"), at("1.jpg")},
                      {files::Operation::Move, at("b.jpg"), at("2.jpg")},
                      {files::Operation::Move, at("d.jpg"), at("3.jpg")}};
        const auto run = files::MoveRun::begin(disk, shelf, form);
        QVERIFY(run);
        QVERIFY((*run)->next());
    }

    /** Reads the next message box and closes it with its standard button. */
    void readNextBox(QString &text, QString &detail)
    {
        QTimer::singleShot(30, this, [this, &text, &detail] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return readNextBox(text, detail);
            text = box->text();
            detail = box->informativeText();
            box->defaultButton()->click();
        });
    }

    void sortIntoAFullDisk()
    {
        for (const char *name : {"a.jpg", "b.jpg", "c.jpg"})
            write(QString::fromLatin1(name));
        QVERIFY(QDir().mkpath(at("../sorted")));
        files::setDiskSpaceSource([](const QString &) { return files::DiskSpace{999, 1}; });
        m_driver->show("sort");
        m_driver->drop({at("")});
        WindowDriver::answerPanels({QDir::cleanPath(at("../sorted"))});
        m_driver->choose("sortDestination", QStringLiteral("choose"));
        auto *kind = m_driver->control<window::SegmentedControl>("sortKind");
        QTest::keyClick(kind, Qt::Key_Home);
        QTest::keyClick(kind, Qt::Key_Right);
        QVERIFY(m_driver->waitFor([this] {
            return m_driver->control<QAbstractButton>("startButton")->isEnabled() &&
                   m_driver->text("sortTreeProblem").contains(QLatin1String("has only 999 bytes free"));
        }));
    }

    int filesBelow(const char *folder) const
    {
        int count = 0;
        for (QDirIterator files(at(folder), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); files.hasNext();
             ++count)
            files.next();
        return count;
    }

    /** Five files are to be copied, and there is room for two. */
    void copyIntoATightDisk()
    {
        files::MoveService::setDiskSource([] { return std::make_unique<TightDisk>(); });
        m_driver->startAgain();
        for (int i = 0; i < 5; ++i)
            write(QStringLiteral("a%1.jpg").arg(i));
        QVERIFY(QDir().mkpath(at("../sorted")));
        TightDisk::room = 2;
        TightDisk::roomLater = 0;
        TightDisk::refused = 0;
        m_driver->show("sort");
        m_driver->drop({at("")});
        WindowDriver::answerPanels({QDir::cleanPath(at("../sorted"))});
        m_driver->choose("sortDestination", QStringLiteral("choose"));
        auto *kind = m_driver->control<window::SegmentedControl>("sortKind");
        QTest::keyClick(kind, Qt::Key_Home);
        QTest::keyClick(kind, Qt::Key_Right);
        QVERIFY(m_driver->waitFor([this] {
            const auto *start = m_driver->control<QAbstractButton>("startButton");
            return start->isEnabled() && start->text() == QStringLiteral("Copy 5 Files into Folders");
        }));
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(MoveRuns)
#include "tst_move_runs.moc"
