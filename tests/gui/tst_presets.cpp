#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/position_pad.h"
#include "app/window/controls/segmented_control.h"

#include "platform/desktop/user_defaults.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

const QString oddName = QStringLiteral("Größe – Anna’s 日本 🙂");

} // namespace

class Presets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::started(); }

    void cleanup() { m_driver.reset(); }

    void everyActionStartsWithPresets_data() { eachAction(); }

    void everyActionStartsWithPresets()
    {
        QFETCH(QString, action);
        QFETCH(QString, starting);
        m_driver->show(qPrintable(action));
        QVERIFY(names().size() >= 4);
        QVERIFY(names().contains(starting));
        QCOMPARE(chosen(), QStringLiteral("No preset"));
        QStringList all = names();
        all.removeFirst();
        for (const QString &name : all) {
            m_driver->choose("preset", QLatin1Char('=') + name);
            QCOMPARE(chosen(), name);
            QVERIFY(m_driver->control<QLabel>("problemText")->text().isEmpty());
        }
    }

    void aPresetThatWasDeletedDoesNotComeBack()
    {
        m_driver->choose("preset", QStringLiteral("=Mail 1024"));
        WindowDriver::answerNextQuestion(QStringLiteral("Keep"));
        act("Delete…");
        QVERIFY(names().contains(QStringLiteral("Mail 1024")));
        WindowDriver::answerNextQuestion(QStringLiteral("Delete"));
        act("Delete…");
        QVERIFY(!names().contains(QStringLiteral("Mail 1024")));
        QCOMPARE(chosen(), QStringLiteral("No preset"));
        QCOMPARE(number("value"), 1024.0);
        m_driver->startAgain();
        QVERIFY(!names().contains(QStringLiteral("Mail 1024")));
        QVERIFY(names().contains(QStringLiteral("Web 1600")));
    }

    void aSavedPresetIsThereAfterARestart_data() { eachAction(); }

    void aSavedPresetIsThereAfterARestart()
    {
        QFETCH(QString, action);
        QFETCH(QString, starting);
        m_driver->show(qPrintable(action));
        const QStringList standard = state();
        change(action);
        const QStringList changed = state();
        QVERIFY(changed != standard);
        saveAs(oddName);
        QCOMPARE(chosen(), oddName);
        m_driver->choose("preset", QLatin1Char('=') + starting);
        QVERIFY(state() != changed);
        m_driver->startAgain();
        QCOMPARE(chosen(), starting);
        m_driver->choose("preset", QLatin1Char('=') + oddName);
        QCOMPARE(chosen(), oddName);
        QCOMPARE(state(), changed);
        m_driver->startAgain();
        QCOMPARE(chosen(), oddName);
        QCOMPARE(state(), changed);
    }

    void goesThroughAFile_data() { eachAction(); }

    void goesThroughAFile()
    {
        QFETCH(QString, action);
        QFETCH(QString, starting);
        m_driver->show(qPrintable(action));
        change(action);
        const QStringList changed = state();
        saveAs(oddName);
        const QString path = m_driver->folder() + QStringLiteral("/Größe 🙂.c-action");
        m_driver->answerPanels({path});
        act("Export…");
        QVERIFY(QFile::exists(path));
        act("Import…");
        QCOMPARE(chosen(), oddName + QStringLiteral(" 2"));
        WindowDriver::answerNextQuestion(QStringLiteral("Delete"));
        act("Delete…");
        m_driver->choose("preset", QLatin1Char('=') + oddName);
        WindowDriver::answerNextQuestion(QStringLiteral("Delete"));
        act("Delete…");
        QVERIFY(!names().contains(oddName));
        m_driver->choose("preset", QLatin1Char('=') + starting);
        act("Import…");
        QCOMPARE(chosen(), oddName);
        QCOMPARE(state(), changed);
        QVERIFY(m_driver->text("statusText").contains(QLatin1String("1 preset imported")));
        WindowDriver::answerNextQuestion(QStringLiteral("Delete"));
        act("Delete…");
        m_driver->drop({path}); // as a double click in a file manager does
        QVERIFY(m_driver->waitFor([this] { return chosen() == oddName; }));
        QCOMPARE(m_driver->pictures().model()->rowCount(), 0);
    }

    void changedSettingsAreShownAndSaved()
    {
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        QVERIFY(!entry("Save")->isEnabled());
        m_driver->control<QDoubleSpinBox>("value")->setValue(1500);
        QCOMPARE(chosen(), QStringLiteral("• Web 1600"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(1600);
        QCOMPARE(chosen(), QStringLiteral("Web 1600"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(1400);
        m_driver->choose("quality", QStringLiteral("5"));
        act("Save");
        QCOMPARE(chosen(), QStringLiteral("Web 1600"));
        QCOMPARE(names().count(QStringLiteral("Web 1600")), 1);
        m_driver->choose("preset", QStringLiteral("=Mail 1024"));
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        QCOMPARE(number("value"), 1400.0);
        QCOMPARE(m_driver->control<QComboBox>("quality")->currentData().toString(), QStringLiteral("5"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(1300);
        m_driver->startAgain();
        QCOMPARE(chosen(), QStringLiteral("• Web 1600"));
    }

    void noneStaysAChoiceAndKeepsTheSettings()
    {
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        QCOMPARE(names().constFirst(), QStringLiteral("No preset"));
        m_driver->choose("preset", QString());
        QCOMPARE(chosen(), QStringLiteral("No preset"));
        QCOMPARE(number("value"), 1600.0);
        QVERIFY(!entry("Delete…")->isEnabled());
        m_driver->startAgain();
        QCOMPARE(chosen(), QStringLiteral("No preset"));
    }

    void aSimulationIsNoChangeOfAPreset()
    {
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        m_driver->control<QCheckBox>("simulation")->setChecked(true);
        QCOMPARE(chosen(), QStringLiteral("Web 1600"));
        m_driver->control<QCheckBox>("simulation")->setChecked(false);
        QCOMPARE(chosen(), QStringLiteral("Web 1600"));
    }

    void choosingAgainBringsTheSettingsBack()
    {
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        m_driver->control<QDoubleSpinBox>("value")->setValue(77);
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        QCOMPARE(number("value"), 1600.0);
        QCOMPARE(chosen(), QStringLiteral("Web 1600"));
    }

    void aPresetIsRenamed()
    {
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        act("Rename…");
        QCOMPARE(nameField()->text(), QStringLiteral("Web 1600"));
        nameField()->setText(oddName);
        QTest::keyClick(nameField(), Qt::Key_Return);
        QCOMPARE(chosen(), oddName);
        QVERIFY(names().contains(oddName) && !names().contains(QStringLiteral("Web 1600")));
        QCOMPARE(number("value"), 1600.0);
        m_driver->startAgain();
        QCOMPARE(chosen(), oddName);
    }

    void saysWhatANameCannotBe_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("words");
        QTest::newRow("none") << QStringLiteral("  ") << QStringLiteral("Enter a name");
        QTest::newRow("taken") << QStringLiteral("web 1600") << QStringLiteral("Web 1600 already");
    }

    void saysWhatANameCannotBe()
    {
        QFETCH(QString, name);
        QFETCH(QString, words);
        const QStringList before = names();
        act("Save As…");
        nameField()->setText(name);
        auto *problem = m_driver->control<QLabel>("nameProblem");
        QVERIFY(problem->isVisible());
        QVERIFY2(problem->text().contains(words), qPrintable(problem->text()));
        QVERIFY(!m_driver->control<QPushButton>("presetOk")->isEnabled());
        QTest::keyClick(nameField(), Qt::Key_Return);
        QVERIFY(nameField()->isVisible());
        m_driver->trigger("presetEscape");
        QVERIFY(!nameField()->isVisible());
        QCOMPARE(names(), before);
    }

    void aNameShowsWhatItIsStoredWithWhileItIsTyped()
    {
        for (const char *expected : {"Anna’s 1¦2", "Anna’s 1¦2 2"}) {
            act("Save As…");
            nameField()->clear();
            for (const char key : {'A', 'n', 'n', 'a', 's', ' ', '1', '|', '2'})
                QTest::keyClick(nameField(), key);
            QCOMPARE(nameField()->text(), QStringLiteral("Annas 1¦2"));
            nameField()->setCursorPosition(4);
            QTest::keyClick(nameField(), '\'');
            QCOMPARE(nameField()->text(), QStringLiteral("Anna’s 1¦2"));
            QCOMPARE(nameField()->cursorPosition(), 5);
            const QString name = QString::fromUtf8(expected);
            auto *note = m_driver->control<QLabel>("nameProblem");
            QCOMPARE(note->isVisible(), name.endsWith(QLatin1String(" 2")));
            QVERIFY2(!note->isVisible() || note->text().contains(name), qPrintable(note->text()));
            QTest::keyClick(nameField(), Qt::Key_Return);
            QCOMPARE(chosen(), name);
        }
    }

    void anImportedNameShowsWhatItIsStoredWith()
    {
        const QString path = m_driver->folder() + QStringLiteral("/odd.c-action");
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        m_driver->answerPanels({path});
        act("Export…");
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray odd = file.readAll().replace("Web 1600", "Tom's|1");
        file.close();
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(odd) == odd.size());
        file.close();
        for (const char *expected : {"Tom’s¦1", "Tom’s¦1 2"}) {
            m_driver->answerPanels({path});
            act("Import…");
            QCOMPARE(chosen(), QString::fromUtf8(expected));
        }
    }

    void filesThatHoldNoPresetsAreRefusedInWords()
    {
        const QString path = m_driver->folder() + QStringLiteral("/x.c-action");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{}") == 2);
        file.close();
        m_driver->answerPanels({path});
        const QStringList before = names();
        act("Import…");
        QCOMPARE(names(), before);
        QCOMPARE(m_driver->text("presetProblem"), QStringLiteral("This file contains no presets."));
    }

    void aPresetOfANewerFormIsShownAndLeftAlone()
    {
        const QString path = m_driver->folder() + QStringLiteral("/newer.c-action");
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        m_driver->answerPanels({path});
        act("Export…");
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray newer = file.readAll().replace("Quorlin 1", "Quorlin 9").replace("Web 1600", "From later");
        file.close();
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(newer) == newer.size());
        file.close();
        act("Import…");
        QCOMPARE(chosen(), QStringLiteral("Web 1600"));
        const QStringList before = state();
        const int row = int(names().indexOf(QStringLiteral("From later (newer version)")));
        QVERIFY(row > 0);
        m_driver->choose("preset", m_driver->control<QComboBox>("preset")->itemData(row).toString());
        QCOMPARE(state(), before);
        QVERIFY(m_driver->text("presetNote").contains(QLatin1String("newer version of Quorlin")));
        for (const char *text : {"Save", "Rename…", "Delete…"})
            QVERIFY2(!entry(text)->isEnabled(), text);
        QVERIFY(file.remove());
        act("Export…");
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), newer);
    }

    void aDatabaseThatIsNoneIsLeftAloneAndThePanesWork()
    {
        QFile file(m_driver->folder() + QStringLiteral("/.local/share/BrelmarkCom/QuorlinPS.sql"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write("No database at all.\n") > 0);
        file.close();
        m_driver->startAgain();
        auto *problem = m_driver->control<QLabel>("presetProblem");
        QVERIFY(problem->isVisible() && problem->text().contains(QLatin1String("damaged")));
        QVERIFY(!entry("Save As…")->isEnabled());
        m_driver->control<QDoubleSpinBox>("value")->setValue(900);
        m_driver->show("crop");
        m_driver->show("resize");
        QCOMPARE(number("value"), 900.0);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("No database at all.\n"));
        file.close();
        QVERIFY(file.remove());
        act("Try Again");
        QVERIFY(!problem->isVisible());
        QVERIFY(entry("Save As…")->isEnabled());
    }

    void theSupportFolderIsOfferedUntilItIsPutOff()
    {
        platform::removeUserDefault(QStringLiteral("SupportFolderPutOff"));
        m_driver->startAgain();
        m_driver->show("resize");
        QVERIFY(!m_driver->control<QWidget>("supportBar")->isVisible()); // patterns are for Background & Border
        m_driver->show("background");
        QVERIFY(m_driver->control<QWidget>("supportBar")->isVisible());
        m_driver->click("supportLater");
        QVERIFY(!m_driver->control<QWidget>("supportBar")->isVisible());
        m_driver->startAgain();
        QVERIFY(!m_driver->control<QWidget>("supportBar")->isVisible());
    }

    void theChosenSupportFolderHoldsThePatterns()
    {
        platform::removeUserDefault(QStringLiteral("SupportFolderPutOff"));
        m_driver->startAgain();
        const QString folder = m_driver->folder() + QStringLiteral("/Support");
        QVERIFY(QDir().mkpath(folder));
        m_driver->answerPanels({folder});
        m_driver->show("background");
        m_driver->click("supportChoose");
        QVERIFY(!m_driver->control<QWidget>("supportBar")->isVisible());
        const QString patterns = folder + QStringLiteral("/Brelmark_SupportFiles/Patterns");
        QVERIFY(QDir(patterns).entryList(QDir::Files).size() >= 5);
        m_driver->control<window::SegmentedControl>("under")->setSelectedSegment(1);
        QVERIFY(m_driver->control<QComboBox>("pattern")->findData(patterns + QStringLiteral("/paper.png")) >= 0);
        QCOMPARE(m_driver->control<QComboBox>("pattern")->findText(QStringLiteral("paper.png")), -1);
        // The preset means the pattern of that name, wherever it is.
        m_driver->choose("preset", QStringLiteral("=On paper"));
        QCOMPARE(chosen(), QStringLiteral("On paper"));
        QCOMPARE(m_driver->control<QComboBox>("pattern")->currentData().toString(),
                 patterns + QStringLiteral("/paper.png"));
        QVERIFY(QDir(folder).removeRecursively());
        m_driver->startAgain();
        QCOMPARE(chosen(), QStringLiteral("On paper"));
        QVERIFY(QFile::exists(m_driver->control<QComboBox>("pattern")->currentData().toString()));
    }

    void thePreferencesShowTheSupportFolderAndThatItIsGone()
    {
        const QString folder = m_driver->folder() + QStringLiteral("/Support");
        QVERIFY(QDir().mkpath(folder));
        m_driver->trigger("preferencesAction");
        auto *sheet = m_driver->control<QDialog>("preferencesWindow");
        QVERIFY(sheet->isVisible() && sheet->isModal());
        QVERIFY(m_driver->text("libraryFilePath").contains(QLatin1String("None")));
        m_driver->answerPanels({folder});
        m_driver->click("libraryChange");
        QCOMPARE(m_driver->text("libraryFilePath"), folder);
        m_driver->click("preferencesDone");
        QVERIFY(!sheet->isVisible());
        m_driver->startAgain();
        m_driver->trigger("preferencesAction");
        QCOMPARE(m_driver->text("libraryFilePath"), folder);
        m_driver->click("preferencesDone");
        QVERIFY(QDir(folder).removeRecursively());
        m_driver->trigger("preferencesAction");
        QVERIFY(m_driver->control<QDialog>("preferencesWindow")->isVisible());
        QVERIFY(m_driver->text("libraryFilePath").contains(QLatin1String("folder has gone!?")));
    }

private:
    static void eachAction()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("starting");
        QTest::newRow("resize") << QStringLiteral("resize") << QStringLiteral("Mail 1024");
        QTest::newRow("crop") << QStringLiteral("crop") << QStringLiteral("3:2, 1800 × 1200");
        QTest::newRow("turn") << QStringLiteral("turn") << QStringLiteral("Upside down");
        QTest::newRow("round") << QStringLiteral("round") << QStringLiteral("Circle portrait");
        QTest::newRow("background") << QStringLiteral("background") << QStringLiteral("On paper");
        QTest::newRow("watermark") << QStringLiteral("watermark") << QStringLiteral("Tiled draft");
    }

    QString chosen() { return m_driver->control<QComboBox>("preset")->currentText(); }
    double number(const char *field) { return m_driver->control<QDoubleSpinBox>(field)->value(); }
    QLineEdit *nameField() { return m_driver->control<QLineEdit>("presetName"); }

    QStringList names()
    {
        QStringList all;
        const auto *box = m_driver->control<QComboBox>("preset");
        for (int i = 0; i < box->count(); ++i)
            all.append(box->itemText(i));
        return all;
    }

    QAction *entry(const char *text)
    {
        const QList<QAction *> actions = m_driver->control<QPushButton>("presetMenu")->menu()->actions();
        for (QAction *action : actions)
            if (action->text() == QString::fromUtf8(text))
                return action;
        qFatal("no entry %s", text);
    }

    void act(const char *text) { entry(text)->trigger(); }

    void saveAs(const QString &name)
    {
        act("Save As…");
        nameField()->setText(name);
        m_driver->click("presetOk");
    }

    /** Changes something of every kind of control that the action has, and the output. */
    void change(const QString &action)
    {
        m_driver->choose("ifTaken", QStringLiteral("skip"));
        m_driver->control<QCheckBox>("simulation")->setChecked(true);
        if (action == QLatin1String("resize")) {
            m_driver->control<QDoubleSpinBox>("value")->setValue(333);
            m_driver->control<QCheckBox>("neverEnlarge")->setChecked(false);
            m_driver->choose("fileType", QStringLiteral("public.png"));
            m_driver->choose("metadata", QStringLiteral("copyright"));
            m_driver->control<QCheckBox>("removeLocation")->setChecked(true);
        } else if (action == QLatin1String("crop")) {
            m_driver->control<QDoubleSpinBox>("cropPercent")->setValue(33);
            m_driver->control<QDoubleSpinBox>("offsetX")->setValue(-12);
            QTest::keyClick(m_driver->control<window::PositionPad>("position"), Qt::Key_Home);
        } else if (action == QLatin1String("turn")) {
            m_driver->control<QDoubleSpinBox>("angle")->setValue(-12.5);
            m_driver->control<QAbstractButton>("flipVertical")->setChecked(true);
        } else if (action == QLatin1String("round")) {
            m_driver->control<QDoubleSpinBox>("radius")->setValue(33);
            m_driver->control<QCheckBox>("roundBackground")->setChecked(true);
            m_driver->control<QDoubleSpinBox>("roundBand")->setValue(7);
        } else if (action == QLatin1String("watermark")) {
            m_driver->control<QPlainTextEdit>("markText")->setPlainText(QStringLiteral("Jane\n{name}"));
            m_driver->control<QDoubleSpinBox>("markAngle")->setValue(12.5);
            m_driver->control<QCheckBox>("markTile")->setChecked(true);
            QTest::keyClick(m_driver->control<window::PositionPad>("markPosition"), Qt::Key_Home);
            m_driver->choose("fileType", QStringLiteral("public.png"));
        } else {
            m_driver->choose("frame", QStringLiteral("band"));
            m_driver->control<QDoubleSpinBox>("bandWidth")->setValue(77);
        }
    }

    /** What all fields, boxes and menus of the shown pane say, but for the preset's own. */
    QStringList state()
    {
        QStringList all;
        const auto *settings = m_driver->control<QWidget>("settings");
        for (const auto *box : settings->findChildren<QComboBox *>())
            if (box->isVisible() && box->objectName() != QLatin1String("preset"))
                all.append(box->objectName() + QLatin1Char('=') + box->currentText());
        for (const auto *box : settings->findChildren<QDoubleSpinBox *>())
            if (box->isVisible())
                all.append(box->objectName() + QLatin1Char('=') + box->text());
        for (const auto *button : settings->findChildren<QAbstractButton *>())
            if (button->isVisible() && button->isCheckable())
                all.append(button->objectName() + QLatin1Char('=') + QString::number(int(button->isChecked())));
        for (const auto *row : settings->findChildren<window::SegmentedControl *>())
            if (row->isVisible())
                all.append(row->objectName() + QLatin1Char('=') + QString::number(row->selectedSegment()));
        for (const auto *pad : settings->findChildren<window::PositionPad *>())
            if (pad->isVisible())
                all.append(pad->objectName() + QLatin1Char('=') + QString::number(pad->selectedSegment()));
        for (const auto *text : settings->findChildren<QPlainTextEdit *>())
            if (text->isVisible())
                all.append(text->objectName() + QLatin1Char('=') + text->toPlainText());
        all.sort();
        return all;
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Presets)

#include "tst_presets.moc"
