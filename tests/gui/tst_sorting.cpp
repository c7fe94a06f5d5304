#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/folders/folder_tree.h"

#include "tests/support/dated_pictures.h"
#include "tests/support/test_pictures.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <ctime>
#include <unistd.h>
#include <utility>

using window::FolderTree;
using window::PictureModel;

class Sorting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_pictures = m_driver->folder() + QStringLiteral("/in");
        QVERIFY(QDir().mkpath(m_pictures));
        m_driver->show("sort");
    }

    void cleanup() { m_driver.reset(); }

    void showsTheFoldersThatWillComeToBe()
    {
        QVERIFY(QDir().mkpath(at("2026")));
        threeDays();
        m_driver->drop({m_pictures});
        QVERIFY(waitForTree(6));
        QCOMPARE(folders(), QStringList({QStringLiteral("~/in 4"), QStringLiteral("2025 1 new"),
                                         QStringLiteral("2025-12-31 1 new"), QStringLiteral("2026 2"),
                                         QStringLiteral("2026-08-14 2 new"), QStringLiteral("Undated 1 new")}));
        QCOMPARE(m_driver->text("sortTreeSummary"),
                 QStringLiteral("4 files into 3 folders (4 folders will be made, counting parents)"));
        QCOMPARE(m_driver->cell(0, PictureModel::NewName), QStringLiteral("2026/2026-08-14"));
        QCOMPARE(m_driver->cell(3, PictureModel::Status), QStringLiteral("No date taken"));
        QCOMPARE(button("startButton")->text(), QStringLiteral("Sort 4 Files into Folders"));
        QCOMPARE(m_driver->text("startNote"), QStringLiteral("4 ready · 1 sidecar file · can be undone"));
        QCOMPARE(filesBelow(m_pictures).size(), 5);
    }

    void movesAndPutsBack()
    {
        threeDays();
        const QStringList before = filesBelow(m_pictures);
        const QByteArray bytes = pictures::bytesOf(at("a.jpg"));
        m_driver->drop({m_pictures});
        run(QStringLiteral("4 files moved into 3 folders · 5 folders made, no problems"));
        QVERIFY(button("openFolderButton")->isVisible());
        QCOMPARE(m_driver->text("sortTreeSummary"), QString());
        QCOMPARE(filesBelow(m_pictures),
                 QStringList({QStringLiteral("2025/2025-12-31/c.jpg"), QStringLiteral("2026/2026-08-14/a.jpg"),
                              QStringLiteral("2026/2026-08-14/a.xmp"), QStringLiteral("2026/2026-08-14/b.jpg"),
                              QStringLiteral("Undated/d.jpg")}));
        QCOMPARE(pictures::bytesOf(at("2026/2026-08-14/a.jpg")), bytes);
        QVERIFY(!folders().join(QLatin1Char(',')).contains(QLatin1String("new")));
        m_driver->click("undoButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("5 files restored"))); // the sidecar too
        QCOMPARE(filesBelow(m_pictures), before);
        QCOMPARE(pictures::bytesOf(at("a.jpg")), bytes);
    }

    void saysThatSidecarsGoAlongAndWhatIsLeftOut()
    {
        threeDays();
        m_driver->drop({m_pictures});
        QCOMPARE(m_driver->text("statusText"), QStringLiteral("4 pictures added · 1 sidecar file"));
        m_driver->click("clearButton");
        writeFile("lone.xmp", "<x/>");
        m_driver->drop({m_pictures});
        QCOMPARE(m_driver->text("statusText"),
                 QStringLiteral(
                     "4 pictures added · 1 sidecar file · “lone.xmp” was not added: it is not a supported picture."));
        m_driver->click("clearButton");
        m_driver->drop({at("b.jpg"), at("a.xmp")}); // without its picture
        QCOMPARE(m_driver->text("statusText"),
                 QStringLiteral("1 picture added · “a.xmp” was not added: it is not a supported picture."));
        m_driver->show("resize");
        m_driver->click("clearButton");
        m_driver->drop({m_pictures});
        QCOMPARE(m_driver->text("statusText"),
                 QStringLiteral("4 pictures added · 2 files were not added: they are not supported pictures."));
    }

    void doesNotCallSidecarsOfTheListHidden()
    {
        threeDays();
        m_driver->show("rename");
        m_driver->drop({m_pictures});
        QCOMPARE(m_driver->pictures().count(), 5);
        m_driver->show("sort");
        QCOMPARE(m_driver->pictures().count(), 4);
        QVERIFY(!m_driver->control<QLabel>("hiddenNote")->isVisible());
        m_driver->show("resize");
        QVERIFY(m_driver->control<QLabel>("hiddenNote")->isVisible());
    }

    void sortsNothingTwice()
    {
        threeDays();
        m_driver->drop({m_pictures});
        run(QStringLiteral("4 files moved"));
        m_driver->click("dismissButton");
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->text("sortTreeSummary") == QLatin1String("No file will be moved."); }));
        QVERIFY(!button("startButton")->isEnabled());
    }

    void copiesAndLinksIntoAChosenFolder_data()
    {
        QTest::addColumn<int>("segment");
        QTest::addColumn<QString>("summary");
        QTest::addColumn<bool>("isLink");
        QTest::newRow("copy") << 1 << QStringLiteral("4 files copied") << false;
        QTest::newRow("link") << 2 << QStringLiteral("4 files linked") << true;
    }

    void copiesAndLinksIntoAChosenFolder()
    {
        QFETCH(int, segment);
        QFETCH(QString, summary);
        QFETCH(bool, isLink);
        threeDays();
        const QStringList before = filesBelow(m_pictures);
        const QString target = m_driver->folder() + QStringLiteral("/sorted");
        QVERIFY(QDir().mkpath(target));
        m_driver->drop({m_pictures});
        WindowDriver::answerPanels({target});
        m_driver->choose("sortDestination", QStringLiteral("choose"));
        chooseKind(segment);
        QVERIFY(waitForTree(6));
        QCOMPARE(m_driver->control<QLabel>("sortTreeSpaceNote")->isVisible(), !isLink);
        run(summary);
        QCOMPARE(filesBelow(m_pictures), before);
        QCOMPARE(filesBelow(target).size(), 5);
        const QFileInfo made(target + QStringLiteral("/2026/2026-08-14/a.jpg"));
        QCOMPARE(made.isSymLink(), isLink);
        QCOMPARE(pictures::bytesOf(made.filePath()), pictures::bytesOf(at("a.jpg")));
    }

    void choosingAFolderShowsItsFilesOnly()
    {
        threeDays();
        m_driver->drop({m_pictures});
        QVERIFY(waitForTree(6));
        tree().setChosen(at("2026"));
        QCOMPARE(m_driver->pictures().model()->rowCount(), 2);
        QCOMPARE(m_driver->pictures().count(), 4);
        m_driver->click("sortShowAll");
        QCOMPARE(m_driver->pictures().model()->rowCount(), 4);
        QCOMPARE(tree().chosen(), QString());
        tree().setChosen(at("2025/2025-12-31"));
        QCOMPARE(m_driver->pictures().model()->rowCount(), 1);
        m_driver->choose("sortLevel1", QStringLiteral("{type}"));
        QVERIFY(waitForTree(5));
        QCOMPARE(m_driver->pictures().model()->rowCount(), 4);
        tree().setChosen(at("JPEG"));
        m_driver->show("resize");
        QCOMPARE(m_driver->pictures().model()->rowCount(), 4);
    }

    void levelsAndPatternSayTheSame()
    {
        auto *pattern = m_driver->control<QLineEdit>("sortPattern");
        QCOMPARE(pattern->text(), QStringLiteral("{taken:yyyy}/{taken:yyyy-MM-dd}"));
        m_driver->choose("sortLevel1", QStringLiteral("{camera}"));
        QCOMPARE(pattern->text(), QStringLiteral("{camera}/{taken:yyyy-MM-dd}"));
        m_driver->choose("sortLevel3", QStringLiteral("{type}"));
        QCOMPARE(pattern->text(), QStringLiteral("{camera}/{taken:yyyy-MM-dd}/{type}"));
        m_driver->choose("sortLevel2", QString());
        QCOMPARE(pattern->text(), QStringLiteral("{camera}"));
        QVERIFY(!m_driver->control<QComboBox>("sortUndated")->isVisible());
        write("Photos/{orientation}");
        QCOMPARE(m_driver->control<QComboBox>("sortLevel1")->currentText(), QStringLiteral("Custom pattern"));
        QVERIFY(!m_driver->control<QComboBox>("sortLevel2")->isVisible());
        write("{size:class}");
        QCOMPARE(m_driver->control<QComboBox>("sortLevel1")->currentData().toString(), QStringLiteral("{size:class}"));
    }

    void putsATokenWhereTheCaretIs()
    {
        auto *pattern = m_driver->control<QLineEdit>("sortPattern");
        write("ab");
        pattern->setCursorPosition(1);
        const QList<QAction *> tokens = m_driver->control<QPushButton>("sortToken")->menu()->actions();
        const auto camera = std::find_if(tokens.begin(), tokens.end(), [](const QAction *action) {
            return action->text().contains(QLatin1String("{camera}"));
        });
        QVERIFY(camera != tokens.end());
        (*camera)->trigger();
        QCOMPARE(pattern->text(), QStringLiteral("a{camera}b"));
        QCOMPARE(pattern->cursorPosition(), 9);
        (*camera)->trigger();
        QCOMPARE(pattern->text(), QStringLiteral("a{camera}{camera}b"));
    }

    void saysWhatIsWrongWithAPattern_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("word");
        QTest::newRow("nothing") << QString() << QStringLiteral("Choose a rule");
        QTest::newRow("unknown") << QStringLiteral("{weather}") << QStringLiteral("{weather}");
        QTest::newRow("leads out") << QStringLiteral("../x") << QStringLiteral("“..”");
        QTest::newRow("not closed") << QStringLiteral("{taken") << QStringLiteral("not closed");
    }

    void saysWhatIsWrongWithAPattern()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, word);
        threeDays();
        m_driver->drop({m_pictures});
        QVERIFY(waitForTree(6));
        write(pattern.toUtf8().constData());
        QVERIFY2(m_driver->text("sortProblem").contains(word), qPrintable(m_driver->text("sortProblem")));
        QVERIFY(m_driver->control<QLabel>("sortProblem")->isVisible());
        QVERIFY(!button("startButton")->isEnabled());
        QVERIFY(waitForTree(0));
        write("{type}");
        QVERIFY(!m_driver->control<QLabel>("sortProblem")->isVisible());
        QVERIFY(waitForTree(2));
    }

    void hasARuleForPicturesWithoutADate()
    {
        threeDays();
        m_driver->drop({m_pictures});
        QVERIFY(waitForTree(6));
        m_driver->choose("sortUndated", QStringLiteral("leave"));
        QVERIFY(waitForTree(5));
        QCOMPARE(m_driver->cell(3, PictureModel::Status), QStringLiteral("No date taken: not moved"));
        QVERIFY(!m_driver->control<QLineEdit>("sortUndatedName")->isVisible());
        QVERIFY(m_driver->text("startNote").contains(QLatin1String("1 unchanged")));
        m_driver->choose("sortUndated", QStringLiteral("changed"));
        QVERIFY(m_driver->waitFor([this] {
            return m_driver->cell(3, PictureModel::NewName) ==
                   QFileInfo(at("d.jpg")).lastModified().toString(QStringLiteral("yyyy/yyyy-MM-dd"));
        }));
    }

    void aSimulationMovesNothing()
    {
        threeDays();
        const QStringList before = filesBelow(m_pictures);
        m_driver->drop({m_pictures});
        m_driver->click("moveSimulation");
        QVERIFY(waitForTree(6));
        run(QStringLiteral("Dry run: Sort 4 Files into Folders"));
        QCOMPARE(filesBelow(m_pictures), before);
    }

    void numbersOrLeavesWhatHasATakenName()
    {
        threeDays();
        QVERIFY(QDir().mkpath(at("2026/2026-08-14")));
        writeFile("2026/2026-08-14/a.jpg", "there before");
        m_driver->drop({at("a.jpg"), at("b.jpg")});
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->cell(0, PictureModel::Status).contains(QLatin1String("numbered")); }));
        m_driver->choose("sortTaken", QStringLiteral("skip"));
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->cell(0, PictureModel::Status).startsWith(QLatin1String("Stays")); }));
        m_driver->choose("sortTaken", QStringLiteral("number"));
        run(QStringLiteral("2 files moved"));
        QCOMPARE(pictures::bytesOf(at("2026/2026-08-14/a.jpg")), QByteArray("there before"));
        QVERIFY(QFile::exists(at("2026/2026-08-14/a (2).jpg")));
        QVERIFY(QFile::exists(at("2026/2026-08-14/a (2).xmp")));
    }

    void presetsBringTheirRule()
    {
        threeDays();
        m_driver->drop({m_pictures});
        m_driver->choose("preset", QStringLiteral("=By type"));
        QVERIFY(waitForTree(2));
        QCOMPARE(m_driver->control<QComboBox>("sortLevel1")->currentData().toString(), QStringLiteral("{type}"));
        m_driver->choose("preset", QStringLiteral("=By year and day taken"));
        QVERIFY(waitForTree(6));
    }

    void keepsItsSettingsOverAStart()
    {
        write("Mine/{type}");
        chooseKind(1);
        m_driver->startAgain();
        QCOMPARE(m_driver->control<QLineEdit>("sortPattern")->text(), QStringLiteral("Mine/{type}"));
        QCOMPARE(m_driver->control<window::SegmentedControl>("sortKind")->selectedSegment(), 1);
    }

    void everyControlCanBeReachedAndHasAName()
    {
        threeDays();
        m_driver->drop({m_pictures});
        QVERIFY(waitForTree(6));
        for (const char *form : {"sortPane", "sortTreePanel"}) {
            const QList<QWidget *> all = m_driver->control<QWidget>(form)->findChildren<QWidget *>();
            for (const QWidget *each : all) {
                const bool isOwn = each->objectName().startsWith(QLatin1String("sort"));
                if (!isOwn || !each->isVisible() || !(each->focusPolicy() & Qt::TabFocus))
                    continue;
                const auto *push = qobject_cast<const QPushButton *>(each);
                QVERIFY2(!each->accessibleName().isEmpty() || (push && push->text().size() > 1),
                         qPrintable(each->objectName()));
            }
        }
        QVERIFY(tree().focusPolicy() & Qt::TabFocus);
    }

    void aRunThatIsCancelledLosesNothing()
    {
        constexpr int count = 400;
        const QByteArray jpeg = pictures::datedJpeg(QStringLiteral("2026:08:14 10:20:30"));
        for (int i = 0; i < count; ++i)
            writeFile(QStringLiteral("%1.jpg").arg(i).toUtf8().constData(), jpeg);
        m_driver->drop({m_pictures});
        QVERIFY(waitForTree(3));
        auto *progress = m_driver->control<QProgressBar>("progress");
        // As soon as the first file has moved: a fast machine would be done before anybody could click.
        connect(progress, &QProgressBar::valueChanged, this, [&](int value) {
            if (value > 0 && value < count)
                m_driver->trigger("cancelAction");
        });
        m_driver->click("startButton");
        const QString said = m_driver->waitForSummary();
        progress->disconnect(this);
        QVERIFY2(said.startsWith(QLatin1String("Cancelled")), qPrintable(said));
        QCOMPARE(filesBelow(m_pictures).size(), count);
        QVERIFY(!QFile::exists(at("399.jpg")) || !QFile::exists(at("2026/2026-08-14/399.jpg")));
        m_driver->click("undoButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("restored")));
        for (int i = 0; i < count; ++i)
            QVERIFY(QFile::exists(at(QStringLiteral("%1.jpg").arg(i).toUtf8().constData())));
    }

    void followsSettingsForTenThousandFilesWithoutAStall()
    {
        constexpr int count = 10000;
        writeFile("IMG_0.jpg", pictures::datedJpeg(QStringLiteral("2026:08:14 10:20:30"), QStringLiteral("X1")));
        for (int i = 1; i < count; ++i) {
            const QByteArray name = "IMG_" + QByteArray::number(i) + ".jpg";
            QCOMPARE(::link(qPrintable(at("IMG_0.jpg")), qPrintable(at(name.constData()))), 0);
        }
        m_driver->drop({m_pictures});
        measure(
            "first look", [] {}, 3);
        measure(
            "a level less", [this] { m_driver->choose("sortLevel2", QString()); }, 2);
        measure(
            "another pattern", [this] { enter("{camera}/{name:word} of {taken:yyyy}"); }, 3);
        measure(
            "ten thousand folders", [this] { enter("{name}"); }, count + 1);
    }

private:
    /**
     * Makes a change, waits until the tree shows it, and reports how long that and the longest pause of the window
     * took.
     */
    void measure(const char *what, const std::function<void()> &change, int folders)
    {
        qint64 longest = 0;
        qint64 longestWork = 0; // without what other programs took of the machine
        qint64 worked = workedMs();
        QElapsedTimer since;
        QElapsedTimer all;
        QTimer beat;
        connect(&beat, &QTimer::timeout, this, [&] {
            longest = std::max(longest, since.restart());
            longestWork = std::max(longestWork, workedMs() - std::exchange(worked, workedMs()));
        });
        since.start();
        all.start();
        beat.start(0);
        change();
        const int total = m_driver->pictures().count();
        QVERIFY(m_driver->waitFor(
            [&] {
                const QVariantList shown =
                    all.elapsed() > 50 && button("startButton")->isEnabled() ? tree().folders() : QVariantList();
                return shown.size() == folders && shown.first().toMap().value(QStringLiteral("total")).toInt() == total;
            },
            60000));
        qInfo("%s: followed in %lld ms, longest pause %lld ms, longest work without a pause %lld ms", what,
              all.elapsed(), longest, longestWork);
        // However busy the machine is: no pause is a large part of the whole.
        QVERIFY2(longest < 150 || longest * 4 < all.elapsed(), qPrintable(QString::number(longest)));
        QVERIFY2(longestWork < 150 || longestWork * 4 < all.elapsed(), qPrintable(QString::number(longestWork)));
    }

    /** The processor time of this thread. */
    static qint64 workedMs()
    {
        timespec time = {};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
    }

    QString at(const char *name) const { return m_pictures + QLatin1Char('/') + QString::fromUtf8(name); }
    FolderTree &tree() { return *m_driver->control<FolderTree>("sortTree"); }
    QAbstractButton *button(const char *name) { return m_driver->control<QAbstractButton>(name); }

    void writeFile(const char *name, const QByteArray &bytes)
    {
        QFile file(at(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", name);
    }

    /** a and b of one day, a with a sidecar; c of the year before; d without a date. */
    void threeDays()
    {
        writeFile("a.jpg", pictures::datedJpeg(QStringLiteral("2026:08:14 10:20:30")));
        writeFile("a.xmp", "<x/>");
        writeFile("b.jpg", pictures::datedJpeg(QStringLiteral("2026:08:14 23:59:59"), {}, {20, 30}));
        writeFile("c.jpg", pictures::datedJpeg(QStringLiteral("2025:12:31 23:59:59")));
        writeFile("d.jpg", pictures::datedJpeg(QString()));
    }

    static QStringList filesBelow(const QString &folder)
    {
        QStringList found;
        QDirIterator files(folder, QDir::Files | QDir::System | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext())
            found.append(QDir(folder).relativeFilePath(files.next()));
        found.sort();
        return found;
    }

    /** "name total", and "new" for those that are. */
    QStringList folders()
    {
        QStringList all;
        const QVariantList shown = tree().folders();
        for (const QVariant &each : shown) {
            const QVariantMap folder = each.toMap();
            const bool isNew = folder.value(QStringLiteral("isNew")).toBool();
            all.append(folder.value(QStringLiteral("name")).toString() + QLatin1Char(' ') +
                       folder.value(QStringLiteral("total")).toString() + (isNew ? QStringLiteral(" new") : QString()));
        }
        return all;
    }

    bool waitForTree(int folders)
    {
        return m_driver->waitFor([this, folders] { return tree().folders().size() == folders; });
    }

    void write(const char *pattern)
    {
        auto *field = m_driver->control<QLineEdit>("sortPattern");
        field->setFocus();
        field->selectAll();
        if (qstrlen(pattern) == 0)
            QTest::keyClick(field, Qt::Key_Delete);
        else
            QTest::keyClicks(field, QString::fromUtf8(pattern));
    }

    /** The whole pattern at once, as when it is pasted. */
    void enter(const char *pattern)
    {
        auto *field = m_driver->control<QLineEdit>("sortPattern");
        field->setText(QString::fromUtf8(pattern));
        Q_EMIT field->textEdited(field->text());
    }

    void chooseKind(int segment)
    {
        auto *kind = m_driver->control<window::SegmentedControl>("sortKind");
        QTest::keyClick(kind, Qt::Key_Home);
        for (int i = 0; i < segment; ++i)
            QTest::keyClick(kind, Qt::Key_Right);
    }

    void run(const QString &summary)
    {
        QVERIFY(m_driver->waitFor([this] { return button("startButton")->isEnabled(); }));
        m_driver->click("startButton");
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(summary), qPrintable(said));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

QUORLIN_GUI_TEST(Sorting)
#include "tst_sorting.moc"
