#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/card_handle.h"
#include "app/window/controls/segmented_control.h"
#include "app/window/log/run_list.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <ctime>

using window::PictureModel;

namespace {

/** The longest time for which the event loop did not get round, while this lives. */
class LoopWatch
{
public:
    LoopWatch()
    {
        m_clock.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            m_longest = qMax(m_longest, m_clock.elapsed());
            m_clock.restart();
        });
        m_timer.start(0);
    }

    qint64 longestMs() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};

} // namespace

class RenameAction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::showing("rename");
        m_folder = m_driver->inputFolder();
    }

    void cleanup() { m_driver.reset(); }

    void renamesFilesAndTheListFollowsThem()
    {
        files({"IMG_1.JPG", "IMG_2.JPG", "notes.TXT"});
        m_driver->drop({m_folder});
        QCOMPARE(m_driver->pictures().count(), 3);
        m_driver->choose("preset", QStringLiteral("=Lower-case extensions"));
        QVERIFY(waitForNames({"IMG_1.jpg", "IMG_2.jpg", "notes.txt"}));
        QVERIFY(waitForOperation("Rename 3 Files"));
        QCOMPARE(m_driver->text("startNote"), QStringLiteral("3 ready · can be undone"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("3 files renamed, no problems")));
        QCOMPARE(namesIn(m_folder), texts({"IMG_1.jpg", "IMG_2.jpg", "notes.txt"}));
        QCOMPARE(m_driver->cell(0, PictureModel::Name), QStringLiteral("IMG_1.jpg"));
        QCOMPARE(contentOf("IMG_2.jpg"), QByteArray("IMG_2.JPG"));
        QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
    }

    void undoBringsTheOldNamesBackAndRedoTheNewOnes()
    {
        files({"IMG_1.JPG", "IMG_1.xmp", "IMG_2.JPG"});
        m_driver->drop({path("IMG_1.JPG"), path("IMG_2.JPG")});
        m_driver->choose("preset", QStringLiteral("=Number suffix"));
        QVERIFY(waitForOperation("Rename 2 Files"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        const QStringList renamed = texts({"IMG_1 001.JPG", "IMG_1 001.xmp", "IMG_2 002.JPG"});
        QCOMPARE(namesIn(m_folder), renamed);
        m_driver->click("undoButton");
        QVERIFY(waitForNamesOnDisk({"IMG_1.JPG", "IMG_1.xmp", "IMG_2.JPG"}));
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("names restored, no problems")));
        QCOMPARE(m_driver->cell(0, PictureModel::Name), QStringLiteral("IMG_1.JPG"));
        QCOMPARE(m_driver->control<QAbstractButton>("undoButton")->text(), QStringLiteral("Redo"));
        m_driver->click("undoButton");
        QVERIFY(waitForNamesOnDisk({"IMG_1 001.JPG", "IMG_1 001.xmp", "IMG_2 002.JPG"}));
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QCOMPARE(m_driver->cell(1, PictureModel::Name), QStringLiteral("IMG_2 002.JPG"));
        m_driver->show("log");
        const QAbstractItemModel *runs = m_driver->control<window::RunList>("logRuns")->model();
        QVERIFY(m_driver->waitFor([runs] { return runs->rowCount() == 4; }));
        QCOMPARE(runs->index(1, 0).data().toString(), QStringLiteral("Redo of Rename"));
        QCOMPARE(runs->index(2, 0).data().toString(), QStringLiteral("Undo of Rename"));
        QCOMPARE(runs->index(3, 0).data().toString(), QStringLiteral("Rename"));
    }

    void undoWorksAfterARestart()
    {
        files({"A.JPG", "b.jpg"});
        m_driver->drop({m_folder});
        m_driver->choose("preset", QStringLiteral("=Lower-case extensions"));
        QVERIFY(waitForOperation("Rename 1 File"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        m_driver->startAgain();
        QCOMPARE(m_driver->text("statusText"), QStringLiteral("Last run: 1 file renamed, no problems"));
        m_driver->answerNextQuestion(QStringLiteral("Undo It"));
        m_driver->click("undoButton");
        QVERIFY(waitForNamesOnDisk({"A.JPG", "b.jpg"}));
    }

    void undoTellsWhatCannotGoBack()
    {
        files({"A.JPG", "B.JPG"});
        m_driver->drop({m_folder});
        m_driver->choose("preset", QStringLiteral("=Lower-case extensions"));
        QVERIFY(waitForOperation("Rename 2 Files"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        files({"A.JPG"});
        m_driver->click("undoButton");
        QVERIFY(waitForNamesOnDisk({"A.JPG", "A.jpg", "B.JPG"}));
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("1 problem")));
        QCOMPARE(contentOf("A.jpg"), QByteArray("A.JPG"));
    }

    void simulationMovesNothing()
    {
        files({"A.JPG"});
        m_driver->drop({m_folder});
        m_driver->choose("preset", QStringLiteral("=Lower-case extensions"));
        m_driver->control<QCheckBox>("moveSimulation")->setChecked(true);
        QVERIFY(waitForOperation("Dry Run: Rename 1 File"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("nothing was moved")));
        QCOMPARE(namesIn(m_folder), texts({"A.JPG"}));
    }

    void everyKeystrokeIsFollowed()
    {
        files({"a.jpg"});
        m_driver->drop({m_folder});
        addStep("New text");
        auto *field = m_driver->control<QLineEdit>("firstText");
        QCOMPARE(m_driver->window().focusWidget(), field);
        for (const QChar letter : QStringLiteral("lake")) {
            QTest::keyClick(field, letter.toLatin1());
            QVERIFY(waitForNames({qPrintable(field->text() + QStringLiteral(".jpg"))}));
        }
        QCOMPARE(field->text(), QStringLiteral("lake"));
    }

    void insertsAValueWhereTheCursorIs()
    {
        files({"a.jpg"});
        m_driver->drop({m_folder});
        addStep("New text");
        auto *field = m_driver->control<QLineEdit>("firstText");
        field->setText(QStringLiteral("x-y"));
        field->setCursorPosition(2);
        m_driver->click("cardTokens");
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QTest::keyClicks(menu->focusWidget(), QStringLiteral("camera"));
        QTest::keyClick(menu->focusWidget(), Qt::Key_Return);
        QCOMPARE(field->text(), QStringLiteral("x-{camera}y"));
    }

    void swapsTwoNames()
    {
        files({"c.jpg", "d.jpg"});
        m_driver->drop({m_folder});
        // "c" becomes "d" and vice versa, by way of a letter that neither has.
        replaceBy("c", "#");
        replaceBy("d", "c");
        replaceBy("#", "d");
        QVERIFY(waitForNames({"d.jpg", "c.jpg"}));
        QVERIFY(waitForStatus(0, "Swaps names with d.jpg"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("2 files renamed")));
        QCOMPARE(contentOf("d.jpg"), QByteArray("c.jpg"));
        QCOMPARE(contentOf("c.jpg"), QByteArray("d.jpg"));
        QCOMPARE(m_driver->cell(0, PictureModel::Name), QStringLiteral("d.jpg"));
        QCOMPARE(namesIn(m_folder).size(), 2);
    }

    void leavesOutWhatCannotBeRenamed()
    {
        files({"a.jpg", "b.jpg", "x.jpg"});
        m_driver->drop({path("a.jpg"), path("b.jpg")});
        replaceBy("a", "x");
        QVERIFY(waitForStatus(0, "Name in use by a file that is not in this list"));
        QVERIFY(waitForStatus(1, "Unchanged"));
        QCOMPARE(m_driver->text("startNote"), QStringLiteral("0 ready · 1 needs attention · 1 unchanged"));
        QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
        addStep("Add before");
        m_driver->control<QLineEdit>("secondText")->setText(QStringLiteral("-"));
        QVERIFY(waitForOperation("Rename 2 Files"));
    }

    void twoFilesDoNotGetOneName()
    {
        files({"a1.jpg", "a2.jpg"});
        m_driver->drop({m_folder});
        addStep("Strip");
        m_driver->control<QSpinBox>("firstNumber")->setValue(1);
        m_driver->choose("firstChoice", QStringLiteral("fRight"));
        QVERIFY(waitForStatus(1, "Same new name as a1.jpg"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().contains(QLatin1String("1 left out")));
        QCOMPARE(namesIn(m_folder), texts({"a.jpg", "a2.jpg"}));
        QCOMPARE(contentOf("a.jpg"), QByteArray("a1.jpg"));
    }

    void sidecarsGoAlong()
    {
        files({"A.ARW", "A.xmp", "B.JPG", "B.JPG.xmp"});
        m_driver->drop({path("A.ARW"), path("B.JPG")});
        m_driver->choose("preset", QStringLiteral("=Clean for the web"));
        QVERIFY(waitForStatus(0, "Ready, with its .xmp"));
        m_driver->click("startButton");
        QVERIFY(!m_driver->waitForSummary().isEmpty());
        QCOMPARE(namesIn(m_folder), texts({"a.arw", "a.xmp", "b.jpg", "b.jpg.xmp"}));
    }

    void renamesFoldersWithTheirContents()
    {
        QVERIFY(QDir().mkpath(m_folder + QStringLiteral("/OUT/IN")));
        files({"OUT/IN/a.jpg"});
        m_driver->drop({m_folder + QStringLiteral("/OUT"), m_folder + QStringLiteral("/OUT/IN")});
        QCOMPARE(m_driver->pictures().count(), 1);
        m_driver->control<window::SegmentedControl>("what")->setFocus();
        QTest::keyClick(m_driver->control<window::SegmentedControl>("what"), Qt::Key_Right);
        QCOMPARE(m_driver->pictures().count(), 0);
        m_driver->drop({m_folder + QStringLiteral("/OUT"), m_folder + QStringLiteral("/OUT/IN")});
        QCOMPARE(m_driver->pictures().count(), 2);
        addStep("Change case");
        QVERIFY(waitForNames({"out", "in"}));
        QVERIFY(waitForOperation("Rename 2 Folders"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("2 folders renamed, no problems")));
        QCOMPARE(contentOf("out/in/a.jpg"), QByteArray("OUT/IN/a.jpg"));
        QCOMPARE(namesIn(m_folder), texts({"out"}));
    }

    void theKeyboardDoesItAll()
    {
        files({"A.JPG"});
        m_driver->drop({m_folder});
        m_driver->window().activateWindow();
        addStep("change case");
        addStep("add before");
        m_driver->control<QLineEdit>("firstText")->setFocus();
        QTest::keyClicks(m_driver->control<QLineEdit>("firstText"), QStringLiteral("X "));
        QVERIFY(waitForNames({"X a.JPG"}));
        QTest::keyClick(handle(1), Qt::Key_Up);
        QVERIFY(waitForNames({"x a.JPG"}));
        QTest::keyClick(handle(0), Qt::Key_Down);
        QVERIFY(waitForNames({"X a.JPG"}));
        QTest::keyClick(switches().at(0), Qt::Key_Space);
        QVERIFY(waitForNames({"X A.JPG"}));
    }

    void aCardIsDraggedToAnotherPlace()
    {
        files({"A.JPG"});
        m_driver->drop({m_folder});
        addStep("change case");
        addStep("add before");
        m_driver->control<QLineEdit>("firstText")->setText(QStringLiteral("X "));
        QVERIFY(waitForNames({"X a.JPG"}));
        QWidget *first = handle(0);
        QTest::mousePress(first, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        for (int y = 10; y <= 130; y += 10)
            dragTo(first, QPoint(8, y));
        QTest::mouseRelease(first, Qt::LeftButton, Qt::NoModifier, QPoint(8, 130));
        QVERIFY(waitForNames({"x a.JPG"}));
    }

    void aStepThatIsTooLongForANameSaysSo()
    {
        files({"abc.jpg", "abcdefgh.jpg"});
        m_driver->drop({m_folder});
        addStep("Strip");
        m_driver->control<QSpinBox>("firstNumber")->setValue(5);
        QVERIFY(waitForNames({"abc.jpg", "fgh.jpg"}));
        QVERIFY(m_driver->waitFor([this] {
            return m_driver->text("cardProblem") == QStringLiteral("1 name is too short and stays unchanged.");
        }));
    }

    void chainAndSettingsAreThereAfterAStart()
    {
        files({"A.JPG"});
        addStep("change case");
        m_driver->startAgain();
        m_driver->drop({path("A.JPG")});
        QVERIFY(waitForNames({"a.JPG"}));
    }

    void filesThatAreNoPicturesComeBackForThisAction()
    {
        files({"notes.txt"});
        m_driver->drop({m_folder});
        QCOMPARE(m_driver->pictures().count(), 1);
        m_driver->show("resize");
        QCOMPARE(m_driver->pictures().count(), 0);
        m_driver->show("rename");
        QCOMPARE(m_driver->pictures().count(), 1);
    }

    // Prints how long it takes; see bench/README.md.
    void tenThousandNamesFollowEveryKeystroke()
    {
        QStringList paths;
        for (int i = 0; i < 10000; ++i) {
            paths.append(path(qPrintable(QStringLiteral("IMG_%1.txt").arg(i))));
            QFile file(paths.constLast());
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        m_driver->drop(paths);
        QCOMPARE(m_driver->pictures().count(), 10000);
        addStep("New text");
        auto *field = m_driver->control<QLineEdit>("firstText");
        field->setText(QStringLiteral("{name} {counter:00001}"));
        QVERIFY(waitForOperation("Rename 10,000 Files"));
        QElapsedTimer clock;
        qint64 longest = 0;
        qint64 worked = 0;
        {
            LoopWatch watch;
            for (const QChar letter : QStringLiteral(" lake")) {
                QTest::keyClick(field, letter.toLatin1());
                QTest::qWait(120);
            }
            clock.start();
            worked = workedMs();
            QVERIFY(m_driver->waitFor([this] {
                return m_driver->cell(9999, PictureModel::NewName) == QStringLiteral("IMG_9999 10000 lake.txt") &&
                       m_driver->cell(9999, PictureModel::Status) == QStringLiteral("Ready");
            }));
            longest = watch.longestMs();
            worked = workedMs() - worked;
        }
        qInfo("10000 names: planned %lld ms after the last key, %lld ms of processor time, longest stop of the window "
              "%lld ms",
              clock.elapsed(), worked, longest);
        QVERIFY(waitForOperation("Rename 10,000 Files"));
        clock.restart();
        m_driver->click("startButton");
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("10,000 files renamed, no problems")));
        qInfo("10000 files renamed in %lld ms", clock.elapsed());
        QCOMPARE(namesIn(m_folder).size(), 10000);
        QVERIFY(QFile::exists(path("IMG_9999 10000 lake.txt")));
    }

private:
    /** The processor time of this program. */
    static qint64 workedMs()
    {
        timespec time = {};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
    }

    static QStringList texts(std::initializer_list<const char *> all)
    {
        QStringList list;
        for (const char *text : all)
            list.append(QString::fromUtf8(text));
        return list;
    }

    static QStringList namesIn(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QString path(const char *name) const { return m_folder + QLatin1Char('/') + QString::fromUtf8(name); }

    QByteArray contentOf(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing there");
    }

    /** Files that hold their own names. */
    void files(std::initializer_list<const char *> names)
    {
        for (const char *name : names) {
            QFile file(path(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(name);
        }
    }

    /** Adds a step as a person would: opens the menu, types some of its name, chooses it. */
    void addStep(const char *words)
    {
        m_driver->click("addStep");
        auto *field = m_driver->control<QWidget>("addMenu")->findChild<QLineEdit *>();
        QTest::keyClicks(field, QString::fromUtf8(words));
        QTest::keyClick(field, Qt::Key_Return);
    }

    void replaceBy(const char *search, const char *replacement)
    {
        addStep("Replace");
        m_driver->control<QLineEdit>("firstText")->setText(QString::fromUtf8(search));
        m_driver->control<QLineEdit>("secondText")->setText(QString::fromUtf8(replacement));
    }

    static void dragTo(QWidget *widget, QPoint place)
    {
        QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &move);
    }

    QWidget *handle(int card) { return shown<window::CardHandle>().at(card); }
    QList<QCheckBox *> switches() { return shown<QCheckBox>(QStringLiteral("cardOn")); }

    template<typename T> QList<T *> shown(const QString &name = {})
    {
        QList<T *> found;
        for (T *each : m_driver->window().findChildren<T *>(name))
            if (each->isVisible())
                found.append(each);
        return found;
    }

    bool waitForNames(std::initializer_list<const char *> names)
    {
        const QStringList wanted = texts(names);
        QStringList now;
        const bool came = m_driver->waitFor(
            [this, &now, &wanted] {
                now.clear();
                for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
                    now.append(m_driver->cell(row, PictureModel::NewName));
                return now == wanted;
            },
            5000);
        if (!came)
            qWarning("the names are %s", qPrintable(now.join(QStringLiteral(", "))));
        return came;
    }

    bool waitForNamesOnDisk(std::initializer_list<const char *> names)
    {
        const QStringList wanted = texts(names);
        return m_driver->waitFor([&] { return namesIn(m_folder) == wanted; }, 10000);
    }

    bool waitForStatus(int row, const char *status)
    {
        const QString wanted = QString::fromUtf8(status);
        const bool came = m_driver->waitFor([&] { return m_driver->cell(row, PictureModel::Status) == wanted; }, 5000);
        if (!came)
            qWarning("the status is %s", qPrintable(m_driver->cell(row, PictureModel::Status)));
        return came;
    }

    bool waitForOperation(const char *text)
    {
        auto *button = m_driver->control<QAbstractButton>("startButton");
        const bool came = m_driver->waitFor([&] { return button->text() == QString::fromUtf8(text); }, 15000);
        if (!came)
            qWarning("the button says %s", qPrintable(button->text()));
        return came;
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_folder;
};

QUORLIN_GUI_TEST(RenameAction)

#include "tst_rename_action.moc"
