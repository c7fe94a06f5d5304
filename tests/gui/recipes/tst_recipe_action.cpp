#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/folders/side_bar.h"
#include "app/window/look/icons.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/preview/step_picture.h"

#include "jobs/desk/worker_desk.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QResizeEvent>
#include <QSignalSpy>
#include <QTest>

using window::PictureModel;

/** The largest width that a control has had. */
class WidthRecord : public QObject
{
public:
    int largest = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            largest = qMax(largest, static_cast<QResizeEvent *>(event)->size().width());
        return false;
    }
};

/** The Recipe action, as a person works it. */
class RecipeAction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
        m_driver = WindowDriver::showing("recipe");
        m_folder = m_driver->inputFolder();
    }

    void cleanup() { m_driver.reset(); }

    void runsASuppliedRecipeFromAnEmptyWindow()
    {
        QVERIFY(!window::icon(QStringLiteral("recipe")).pixmap(16, 16).isNull());
        QCOMPARE(m_driver->text("paneTitle"), QStringLiteral("Recipe"));
        save("a.png", QSize(4000, 2000));
        save("b.png", QSize(1000, 3000));
        m_driver->drop({m_folder});
        QCOMPARE(m_driver->control<QComboBox>("recipeChoice")->currentText(), QStringLiteral("Web gallery"));
        QCOMPARE(titles(), QStringLiteral("Resize, Sharpen, Output 1: JPEG, Output 2: JPEG, Resize, Sharpen"));
        QVERIFY2(m_driver->waitFor([this] { return m_driver->cell(1, PictureModel::NewSize).contains(u','); }),
                 "no plan");
        QCOMPARE(m_driver->cell(0, PictureModel::NewName), QStringLiteral("a.jpg, a-small.jpg"));
        QCOMPARE(m_driver->cell(0, PictureModel::NewSize), QStringLiteral("2048×1024, 480×240"));
        QCOMPARE(m_driver->cell(1, PictureModel::NewSize), QStringLiteral("682×2048, 159×480"));
        QCOMPARE(m_driver->control<QAbstractButton>("startButton")->text(), QStringLiteral("Run Recipe on 2 Pictures"));
        run(QStringLiteral("4 files made"));
        QCOMPARE(QImage(at("Web/a.jpg")).size(), QSize(2048, 1024));
        QCOMPARE(QImage(at("Web/a-small.jpg")).size(), QSize(480, 240));
        QCOMPARE(QImage(at("Web/b-small.jpg")).size(), QSize(159, 480));
        QCOMPARE(QDir(at("Web")).entryList(QDir::Files | QDir::Hidden).size(), 4);
        QCOMPARE(m_driver->cell(0, PictureModel::Status), QStringLiteral("OK"));
    }

    void writesALineOfTheLogForEachFile()
    {
        for (int i = 0; i < 6; ++i)
            save(QStringLiteral("p%1.png").arg(i).toLatin1().constData(), QSize(i % 2 ? 1500 : 30, 30));
        write("broken.png", "no picture");
        m_driver->drop({m_folder});
        run(QStringLiteral("12 files made · 2 failed"));
        QCOMPARE(m_driver->cell(0, PictureModel::Status).left(7), QStringLiteral("Failed:"));
        QFile log(m_driver->folder() + QStringLiteral("/.local/share/quorlin/log.jsonl"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        QStringList lines;
        for (const QByteArray &line : log.readAll().trimmed().split('\n')) {
            const QJsonObject row = QJsonDocument::fromJson(line).object();
            QCOMPARE(row[QStringLiteral("process")].toString(), QStringLiteral("Recipe"));
            QCOMPARE(row[QStringLiteral("action")].toString(), QStringLiteral("Web gallery"));
            lines.append(row[QStringLiteral("status")].toString() + u' ' + row[QStringLiteral("output")].toString());
        }
        // In the order of the list, whatever the order in which they were ready.
        QStringList expected = {QStringLiteral("Failed "), QStringLiteral("Failed ")};
        for (int i = 0; i < 6; ++i)
            expected += {QStringLiteral("OK p%1.jpg").arg(i), QStringLiteral("OK p%1-small.jpg").arg(i)};
        QCOMPARE(lines, expected);
        QVERIFY(m_driver->control<QAbstractButton>("retryButton")->isVisible());
    }

    void stopsAndLeavesNoHalfFile()
    {
        for (int i = 0; i < 40; ++i)
            save(QStringLiteral("p%1.png").arg(i, 2, 10, QLatin1Char('0')).toLatin1().constData(), QSize(1200, 900));
        m_driver->drop({m_folder});
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([this] { return QFile::exists(at("Web/p00.jpg")); }));
        m_driver->click("cancelButton");
        const QString text = m_driver->waitForSummary();
        QVERIFY2(text.startsWith(QStringLiteral("Cancelled: ")), qPrintable(text));
        QVERIFY(m_driver->cell(39, PictureModel::Status).startsWith(QStringLiteral("Skipped")));
        const QStringList files = QDir(at("Web")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        QVERIFY(files.size() > 1 && files.size() < 80);
        for (const QString &name : files)
            QVERIFY2(!QImage(at("Web/") + name).isNull(), qPrintable(name));
    }

    void editsTheSettingsOfACard()
    {
        save("a.png", QSize(400, 200));
        m_driver->drop({m_folder});
        newRecipe();
        QCOMPARE(titles(), QStringLiteral("Output 1: Original file type"));
        QVERIFY(m_driver->control<QLabel>("noOperations")->isVisible());
        add("resize");
        QCOMPARE(titles(), QStringLiteral("Resize, Output 1: Original file type"));
        field<QDoubleSpinBox>("Length")->setValue(100);
        QTRY_COMPARE(m_driver->text("resultText"), QStringLiteral("400×200 → 100×50"));
        choose("By", QStringLiteral("percent"));
        QTRY_COMPARE(m_driver->text("resultText"), QStringLiteral("400×200 → 200×100"));
        QVERIFY(!hasField("Length"));
        add("turn");
        QTRY_COMPARE(m_driver->text("resultText"), QStringLiteral("400×200 → 100×200"));
        // Switched off it stays and does nothing.
        card<QCheckBox>("Rotate", "cardOn")->click();
        QTRY_COMPARE(m_driver->text("resultText"), QStringLiteral("400×200 → 200×100"));
        card<QAbstractButton>("Output 1: Original file type", "cardTitle")->click();
        choose("File type", QStringLiteral("jpeg"));
        field<QLineEdit>("Name")->setText(QStringLiteral("{name}-{width}"));
        field<QLineEdit>("Folder")->setText(QStringLiteral("Made"));
        run(QStringLiteral("1 file made"));
        QCOMPARE(QImage(at("Made/a-200.jpg")).size(), QSize(200, 100));
    }

    void keepsTheWidthOfTheSettings()
    {
        save("a.png", QSize(400, 200));
        m_driver->drop({m_folder});
        newRecipe();
        QTRY_COMPARE(m_driver->text("resultText"), QStringLiteral("400×200 → 400×200"));
        auto *settings = m_driver->control<QWidget>("settingsScroll");
        const int before = settings->width();
        WidthRecord widths;
        settings->installEventFilter(&widths);
        for (const char *words : {"watermark", "crop", "round"}) {
            add(words);
            QTest::qWait(50);
        }
        QTRY_COMPARE(titles(), QStringLiteral("Watermark, Crop, Round corners, Output 1: Original file type"));
        constexpr int ofLabels = 8; // which differ from card to card
        QVERIFY2(widths.largest <= qMax(before, settings->width()) + ofLabels,
                 qPrintable(QString::number(widths.largest)));
        settings->removeEventFilter(&widths);
    }

    void movesCopiesAndRemovesCards()
    {
        newRecipe();
        add("resize");
        add("crop");
        add("flip");
        const QString output = QStringLiteral(", Output 1: Original file type");
        QCOMPARE(titles(), QStringLiteral("Resize, Crop, Flip") + output);
        press("Flip", Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(titles(), QStringLiteral("Resize, Flip, Crop") + output);
        // The focus moves with it, and at the end nothing happens.
        QTest::keyClick(m_driver->window().focusWidget(), Qt::Key_Up, Qt::AltModifier);
        QTest::keyClick(m_driver->window().focusWidget(), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(titles(), QStringLiteral("Flip, Resize, Crop") + output);
        press("Flip", Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(titles(), QStringLiteral("Resize, Flip, Crop") + output);
        press("Flip", Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(titles(), QStringLiteral("Resize, Flip, Flip, Crop") + output);
        press("Resize", Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(titles(), QStringLiteral("Flip, Flip, Crop") + output);
        card<QAbstractButton>("Crop", "cardDelete")->click();
        QCOMPARE(titles(), QStringLiteral("Flip, Flip") + output);
        // By the mouse: the card follows the pointer past the one below it.
        add("sharpen");
        card<QAbstractButton>("Sharpen", "cardTitle")->click();
        auto *handle = card<QWidget>("Sharpen", "cardHandle");
        const QPoint from = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, from);
        for (int y = 0; y >= -140; y -= 20)
            QTest::mouseMove(handle, from + QPoint(0, y));
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, from + QPoint(0, -140));
        QCOMPARE(titles(), QStringLiteral("Sharpen, Flip, Flip") + output);
        // The last output cannot go.
        QVERIFY(!card<QAbstractButton>("Output 1: Original file type", "cardDelete")->isEnabled());
        m_driver->click("addOutput");
        QCOMPARE(titles(),
                 QStringLiteral("Sharpen, Flip, Flip") + output + QStringLiteral(", Output 2: Original file type"));
        card<QAbstractButton>("Output 2: Original file type", "cardDelete")->click();
        QCOMPARE(titles(), QStringLiteral("Sharpen, Flip, Flip") + output);
    }

    void showsThePictureAtEachPoint()
    {
        save("a.png", QSize(400, 200));
        m_driver->drop({m_folder});
        newRecipe();
        add("resize");
        add("turn");
        const auto pictureOf = [this](const char *title) {
            return card<window::StepPicture>(title, "cardPicture")->image().size();
        };
        QTRY_COMPARE_WITH_TIMEOUT(pictureOf("Resize"), QSize(48, 24), 20000);
        QTRY_VERIFY_WITH_TIMEOUT(pictureOf("Rotate").height() > pictureOf("Rotate").width(), 20000);
        // One that is off changes nothing, and its card says so.
        card<QCheckBox>("Rotate", "cardOn")->click();
        QTRY_COMPARE_WITH_TIMEOUT(pictureOf("Rotate"), QSize(48, 24), 20000);
    }

    void showsTheOutputThatIsChosen()
    {
        save("a.png", QSize(1000, 500));
        m_driver->drop({m_folder});
        QTRY_COMPARE(m_driver->text("resultText"), QStringLiteral("1000×500 → 1000×500"));
        auto *preview = m_driver->control<window::ComparePreview>("preview");
        QSignalSpy shown(preview, &window::ComparePreview::resultShown);
        card<QAbstractButton>("Output 2: JPEG", "cardShow")->click();
        QCOMPARE(m_driver->text("resultText"), QStringLiteral("1000×500 → 480×240"));
        QVERIFY(shown.wait(5000));
    }

    void savesRenamesAndDeletes()
    {
        const QString folder = m_driver->folder() + QStringLiteral("/.local/share/quorlin/Recipes");
        menu("Save As…");
        m_driver->control<QLineEdit>("recipeName")->setText(QStringLiteral("Web gallery"));
        QCOMPARE(m_driver->text("recipeNameProblem"), QStringLiteral("A recipe named “Web gallery” already exists."));
        QVERIFY(!m_driver->control<QAbstractButton>("recipeOk")->isEnabled());
        m_driver->control<QLineEdit>("recipeName")->setText(QStringLiteral("Mine"));
        m_driver->click("recipeOk");
        QVERIFY(QFile::exists(folder + QStringLiteral("/Mine.quorlin")));
        QCOMPARE(chosen(), QStringLiteral("Mine"));
        add("sharpen");
        QCOMPARE(chosen(), QStringLiteral("• Mine"));
        menu("Save");
        QCOMPARE(chosen(), QStringLiteral("Mine"));
        menu("Rename…");
        m_driver->control<QLineEdit>("recipeName")->setText(QStringLiteral("Sharp"));
        m_driver->click("recipeOk");
        QVERIFY(QFile::exists(folder + QStringLiteral("/Sharp.quorlin")) &&
                !QFile::exists(folder + QStringLiteral("/Mine.quorlin")));
        // It is there in another session, and goes to the trash.
        m_driver->startAgain();
        m_driver->show("recipe");
        QCOMPARE(chosen(), QStringLiteral("Sharp"));
        QCOMPARE(titles().count(QStringLiteral("Sharpen")), 3);
        m_driver->answerNextQuestion(QStringLiteral("Delete"));
        menu("Delete…");
        QVERIFY(!QFile::exists(folder + QStringLiteral("/Sharp.quorlin")));
        QCOMPARE(m_driver->control<QComboBox>("recipeChoice")->findText(QStringLiteral("Sharp")), -1);
    }

    void exportsAndImports()
    {
        const QString file = m_folder + QStringLiteral("/out.quorlin");
        m_driver->answerPanels({file});
        menu("Export…");
        QVERIFY(QFile::exists(file));
        menu("Import…");
        QCOMPARE(chosen(), QStringLiteral("out"));
        QVERIFY(QFile::exists(m_driver->folder() + QStringLiteral("/.local/share/quorlin/Recipes/out.quorlin")));
        write("broken.quorlin", "{\"quorlin\": 1, ");
        m_driver->answerPanels({at("broken.quorlin")});
        menu("Import…");
        QVERIFY2(m_driver->text("recipeProblem").startsWith(QStringLiteral("broken.quorlin is not a recipe: ")),
                 qPrintable(m_driver->text("recipeProblem")));
        QCOMPARE(chosen(), QStringLiteral("out"));
    }

    void opensADroppedRecipeAndRunsNothing()
    {
        m_driver->show("resize");
        save("a.png", QSize(400, 200));
        write("mail.quorlin", R"({"quorlin": 1, "name": "Mail",
            "operations": [{"do": "resize", "longest": 40}], "outputs": [{"type": "png", "folder": "Mail"}]})");
        m_driver->drop({at("mail.quorlin"), at("a.png")});
        QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Recipe"));
        QCOMPARE(chosen(), QStringLiteral("mail"));
        QCOMPARE(titles(), QStringLiteral("Resize, Output 1: PNG"));
        QTRY_COMPARE(m_driver->cell(0, PictureModel::NewSize), QStringLiteral("40×20"));
        QVERIFY(!QFile::exists(at("Mail")));
        QVERIFY(!m_driver->control<QWidget>("reachBar")->isVisible());
        run(QStringLiteral("1 file made"));
        QCOMPARE(QImage(at("Mail/a.png")).size(), QSize(40, 20));
    }

    void showsWhatAStrangersRecipeTouches()
    {
        save("a.png", QSize(400, 200));
        const QString elsewhere = m_driver->folder() + QStringLiteral("/Elsewhere");
        const QString logo = m_driver->folder() + QStringLiteral("/logo.png");
        QImage mark(20, 20, QImage::Format_RGB32);
        mark.fill(Qt::red);
        QVERIFY(mark.save(logo));
        write("agency.quorlin", QStringLiteral(R"({"quorlin": 1, "operations": [{"do": "watermark", "picture": "%1"}],
            "outputs": [{"type": "png", "folder": "%2"}, {"type": "png", "folder": "../Up"}, {"type": "png"}]})")
                                    .arg(logo, elsewhere)
                                    .toUtf8());
        m_driver->drop({at("a.png"), at("agency.quorlin")});
        QVERIFY(m_driver->control<QWidget>("reachBar")->isVisible());
        QCOMPARE(m_driver->text("reachText"),
                 QStringLiteral("It reads:\n%1\n\nIt writes to:\n%2\n../Up").arg(logo, elsewhere));
        QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
        QVERIFY(!QFile::exists(elsewhere));
        QTRY_COMPARE(m_driver->cell(0, PictureModel::Status), QStringLiteral("Check the recipe"));
        QCOMPARE(m_driver->cell(0, PictureModel::NewName), QStringLiteral("–"));
        m_driver->click("reachAllow");
        QVERIFY(!m_driver->control<QWidget>("reachBar")->isVisible());
        QVERIFY(m_driver->control<QAbstractButton>("startButton")->isEnabled());
        run(QStringLiteral("3 files made"));
        QVERIFY(QFile::exists(elsewhere + QStringLiteral("/a.png")));
        // It is known when it is opened again; another one that touches the same is not.
        m_driver->drop({at("agency.quorlin")});
        QVERIFY(!m_driver->control<QWidget>("reachBar")->isVisible());
        QVERIFY(QFile::copy(at("agency.quorlin"), at("other.quorlin")));
        m_driver->drop({at("other.quorlin")});
        QVERIFY(m_driver->control<QWidget>("reachBar")->isVisible());
    }

    void refusesWhatIsNotThere()
    {
        save("a.png", QSize(400, 200));
        write("logo.quorlin",
              R"({"quorlin": 1, "operations": [{"do": "watermark", "picture": "logo.png"}], "outputs": [{}]})");
        m_driver->drop({at("a.png"), at("logo.quorlin")});
        QVERIFY2(m_driver->text("problemText").startsWith(QStringLiteral("operations[0].picture: ")),
                 qPrintable(m_driver->text("problemText")));
        QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
        write(
            "font.quorlin",
            R"({"quorlin": 1, "operations": [{"do": "watermark", "text": "x", "font": "No Such Font"}], "outputs": [{}]})");
        m_driver->drop({at("font.quorlin")});
        QVERIFY2(m_driver->text("problemText").startsWith(QStringLiteral("operations[0].font: ")),
                 qPrintable(m_driver->text("problemText")));
    }

    void takesTheSettingsOfAnotherAction()
    {
        m_driver->show("turn");
        m_driver->click("turnLeft");
        presetMenu("Add to a Recipe…");
        m_driver->click("addToOk");
        QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Recipe"));
        QCOMPARE(titles(), QStringLiteral("Rotate, Output 1: Original file type"));
        menu("Save As…");
        m_driver->control<QLineEdit>("recipeName")->setText(QStringLiteral("Both"));
        m_driver->click("recipeOk");
        m_driver->show("resize");
        presetMenu("Add to a Recipe…");
        auto *choice = m_driver->control<QComboBox>("addToChoice");
        m_driver->choose("addToChoice", choice->itemData(1).toString());
        m_driver->click("addToOk");
        QCOMPARE(titles(), QStringLiteral("Rotate, Resize, Output 1: Original file type"));
        QCOMPARE(chosen(), QStringLiteral("• Both"));
    }

    void simulatesAndReplacesOnlyWhenAsked()
    {
        save("a.png", QSize(400, 200));
        m_driver->drop({m_folder});
        newRecipe();
        add("resize");
        field<QDoubleSpinBox>("Length")->setValue(100);
        m_driver->control<QCheckBox>("moveSimulation")->click();
        run(QStringLiteral("Dry run: 1 file would be written"));
        QVERIFY(!QFile::exists(at("Results")));
        m_driver->control<QCheckBox>("moveSimulation")->click();
        card<QAbstractButton>("Output 1: Original file type", "cardTitle")->click();
        field<QLineEdit>("Folder")->setText(QString());
        choose("If the file exists", QStringLiteral("replace"));
        auto *start = m_driver->control<QAbstractButton>("startButton");
        QTRY_COMPARE(start->text(), QStringLiteral("Run Recipe on 1 Picture, Replace 1 Original"));
        m_driver->answerNextQuestion(QStringLiteral("Cancel"));
        run(QStringLiteral("Cancelled"));
        QCOMPARE(QImage(at("a.png")).size(), QSize(400, 200));
        m_driver->answerNextQuestion(QStringLiteral("Replace"));
        run(QStringLiteral("1 file made"));
        QCOMPARE(QImage(at("a.png")).size(), QSize(100, 50));
        QVERIFY(m_driver->control<QAbstractButton>("undoButton")->isVisible());
        m_driver->click("undoButton");
        QVERIFY(m_driver->waitFor([this] { return QImage(at("a.png")).size() == QSize(400, 200); }));
        QCOMPARE(QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{QStringLiteral("a.png")});
    }

    void putsFoldersIntoOneThatIsChosen()
    {
        save("a.png", QSize(60, 40));
        const QString other = m_driver->folder() + QStringLiteral("/other");
        QVERIFY(QDir().mkpath(other));
        m_driver->drop({m_folder});
        WindowDriver::answerPanels({other});
        m_driver->choose("base", QStringLiteral("choose"));
        QCOMPARE(m_driver->control<QComboBox>("base")->currentData().toString(), other);
        run(QStringLiteral("2 files made"));
        QVERIFY(QFile::exists(other + QStringLiteral("/Web/a.jpg")) && !QFile::exists(at("Web")));
        m_driver->choose("base", QString());
        run(QStringLiteral("2 files made"));
        QVERIFY(QFile::exists(at("Web/a.jpg")));
    }

    void keepsSubfoldersOfFoldersThatWereAdded()
    {
        QVERIFY(QDir().mkpath(at("lake")));
        save("a.png", QSize(60, 40));
        save("lake/b.png", QSize(60, 40));
        const QString other = m_driver->folder() + QStringLiteral("/other");
        QVERIFY(QDir().mkpath(other));
        m_driver->drop({m_folder});
        auto *keeps = m_driver->control<QCheckBox>("keepSubfolders");
        QVERIFY(!keeps->isVisible()); // results go beside their pictures
        WindowDriver::answerPanels({other});
        m_driver->choose("base", QStringLiteral("choose"));
        QVERIFY(keeps->isVisible());
        keeps->click();
        run(QStringLiteral("4 files made"));
        QVERIFY(QFile::exists(other + QStringLiteral("/Web/a.jpg")));
        QVERIFY(QFile::exists(other + QStringLiteral("/lake/Web/b.jpg")) && !QFile::exists(at("lake/Web")));
        keeps->click();
        run(QStringLiteral("4 files made"));
        QVERIFY(QFile::exists(other + QStringLiteral("/Web/b.jpg")));
    }

    void asksWhereADiskIsFull()
    {
        useOneTrialWorker();
        for (const char *name : {"a.png", "b.png", "full-c.png"})
            save(name, QSize(60, 40));
        const QString other = m_driver->folder() + QStringLiteral("/other");
        QVERIFY(QDir().mkpath(other));
        m_driver->drop({m_folder});
        WindowDriver::answerPanels({other});
        m_driver->answerNextQuestion(QStringLiteral("Choose Folder…"));
        run(QStringLiteral("6 files made"));
        for (const char *name : {"/Web/full-c.jpg", "/Web/full-c-small.jpg"})
            QVERIFY2(QFile::exists(other + QLatin1String(name)), name);
        // What was done before stays where it is.
        QVERIFY(!QFile::exists(at("Web/full-c.jpg")));
    }

    void endsWhereADiskIsFullAndNobodyMakesRoom()
    {
        useOneTrialWorker();
        save("full-a.png", QSize(60, 40));
        m_driver->drop({m_folder});
        m_driver->answerNextQuestion(QStringLiteral("Cancel"));
        run(QStringLiteral("Cancelled: 0 files made · 2 failed"));
        QVERIFY2(m_driver->cell(0, PictureModel::Status).startsWith(QStringLiteral("Failed: ")),
                 qPrintable(m_driver->cell(0, PictureModel::Status)));
        QVERIFY(!QFile::exists(at("Web")) || QDir(at("Web")).isEmpty());
    }

private:
    /** Each of these finds no room once: several would ask more than once. */
    static void useOneTrialWorker()
    {
        jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
        jobs::WorkerDesk::ofProcess().setSize(1);
    }

    void write(const char *name, const QByteArray &text) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    static void trigger(QAbstractButton *button, const char *entry)
    {
        for (QAction *action : qobject_cast<QPushButton *>(button)->menu()->actions())
            if (action->text() == QString::fromUtf8(entry)) {
                QVERIFY2(action->isEnabled(), entry);
                action->trigger();
                return;
            }
        QFAIL(entry);
    }

    void menu(const char *entry) { trigger(m_driver->control<QPushButton>("recipeMenu"), entry); }
    void presetMenu(const char *entry) { trigger(m_driver->control<QPushButton>("presetMenu"), entry); }
    void newRecipe() { menu("New Recipe"); }
    QString chosen() { return m_driver->control<QComboBox>("recipeChoice")->currentText(); }

    /** Adds an operation by searching for it in the menu. */
    void add(const char *words)
    {
        m_driver->click("addOperation");
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QTest::keyClicks(menu->focusWidget() ? menu->focusWidget() : menu, QString::fromLatin1(words));
        QTest::keyClick(menu->focusWidget() ? menu->focusWidget() : menu, Qt::Key_Return);
    }

    /** A control of the card with that title. */
    template<typename T> T *card(const char *title, const char *name)
    {
        for (const auto *head : m_driver->window().findChildren<QAbstractButton *>(QStringLiteral("cardTitle")))
            if (head->isVisible() && head->text() == QString::fromUtf8(title))
                for (QWidget *at = head->parentWidget(); at; at = at->parentWidget())
                    if (at->objectName() == QLatin1String("recipeCard"))
                        return at->findChild<T *>(QString::fromLatin1(name));
        qFatal("no card %s", title);
    }

    void press(const char *title, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        auto *head = card<QWidget>(title, "cardTitle");
        m_driver->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
        head->setFocus();
        QTest::keyClick(head, key, modifiers);
    }

    /** The control of the setting with that label, in the card that is open. */
    template<typename T> T *field(const char *label)
    {
        for (T *control : m_driver->window().findChildren<T *>())
            if (control->isVisible() && control->accessibleName() == QString::fromUtf8(label))
                return control;
        qFatal("no field %s", label);
    }

    bool hasField(const char *label)
    {
        for (const auto *shown : m_driver->window().findChildren<QLabel *>(QStringLiteral("fieldLabel")))
            if (shown->isVisible() && shown->text() == QString::fromUtf8(label))
                return true;
        return false;
    }

    void choose(const char *label, const QString &value)
    {
        auto *box = field<QComboBox>(label);
        box->setCurrentIndex(box->findData(value));
        Q_EMIT box->activated(box->currentIndex());
    }

    QString at(const char *name) const { return m_folder + QLatin1Char('/') + QLatin1String(name); }

    void save(const char *name, QSize size) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkBlue);
        QVERIFY(image.save(at(name)));
    }

    /** The titles of all cards, from above. */
    QString titles()
    {
        QList<std::pair<int, QString>> found;
        for (const auto *title : m_driver->window().findChildren<QAbstractButton *>(QStringLiteral("cardTitle")))
            if (title->isVisible())
                found.append({title->mapTo(&m_driver->window(), QPoint()).y(), title->text()});
        std::sort(found.begin(), found.end());
        QStringList all;
        for (const auto &[y, text] : found)
            all.append(text);
        return all.join(QStringLiteral(", "));
    }

    void run(const QString &summary)
    {
        m_driver->click("startButton");
        const QString text = m_driver->waitForSummary();
        QVERIFY2(text.startsWith(summary),
                 qPrintable(text + QLatin1Char(' ') + m_driver->cell(0, PictureModel::Status)));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_folder;
};

QUORLIN_GUI_TEST(RecipeAction)

#include "tst_recipe_action.moc"
