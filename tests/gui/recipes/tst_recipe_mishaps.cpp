#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/pictures/picture_table.h"
#include "jobs/desk/worker_desk.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

using window::PictureModel;

/** The Recipe action with files that are odd, large, gone or in the way: each says so, and the recipe shown before stays. */
class RecipeMishaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
        m_driver = WindowDriver::showing("recipe");
        m_folder = m_driver->inputFolder();
        m_recipes = m_driver->folder() + QStringLiteral("/.local/share/quorlin/Recipes");
        save("a.png");
        m_driver->drop({m_folder});
    }

    void cleanup() { m_driver.reset(); }

    void saysWhatIsWrongWithARecipe_data()
    {
        QTest::addColumn<QByteArray>("operations");
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QString>("place");
        const auto row = [](const char *operations, const char *output, const char *place) {
            QTest::newRow(place) << QByteArray(operations) << QByteArray(output) << QString::fromLatin1(place);
        };
        row(R"({"do": 7})", "", "operations[0].do");
        row(R"({"do": "resize", "box": 4})", "", "operations[0].box");
        row(R"({"do": "flip", "direction": "vertical"}, {"do": "resize", "box": [null, "x"]})", "",
            "operations[1].box");
        row(R"({"do": "crop", "ratio": 3})", "", "operations[0].ratio");
        row(R"({"do": "crop", "percent": 3, "offset": {}})", "", "operations[0].offset");
        row(R"({"do": "round", "radius": 5, "band": []})", "", "operations[0].band");
        row(R"({"do": "watermark", "text": 4})", "", "operations[0].text");
        row(R"({"do": "turn", "degrees": {}})", "", "operations[0].degrees");
        row(R"({"do": "frame", "width": "a"})", "", "operations[0].width");
        row(R"({"do": "profile", "to": 6})", "", "operations[0].to");
        row("", R"("type": 5)", "outputs[0].type");
        row("", R"("name": {})", "outputs[0].name");
        row("", R"("folder": [])", "outputs[0].folder");
        row("", R"("operations": [{"do": null}])", "outputs[0].operations[0].do");
        row("", R"("type": "constructor")", "outputs[0].type: ");
        row(R"({"do": "toString"})", "", "operations[0].do: ");
    }

    void saysWhatIsWrongWithARecipe()
    {
        QFETCH(QByteArray, operations);
        QFETCH(QByteArray, output);
        QFETCH(QString, place);
        const QString shown = titles();
        const QByteArray recipe =
            R"({"quorlin": 1, "operations": [)" + operations + R"(], "outputs": [{)" + output + "}]}";
        const QString said = opened("odd.quorlin", recipe);
        QVERIFY2(said.startsWith(QStringLiteral("odd.quorlin is not a recipe: ") + place), qPrintable(said));
        QCOMPARE(titles(), shown);
        QVERIFY(m_driver->control<QAbstractButton>("startButton")->isEnabled());
    }

    void importsOneWithoutOperations()
    {
        write("plain.quorlin", R"({"quorlin": 1, "outputs": [{"type": "png"}]})");
        WindowDriver::answerPanels({at("plain.quorlin")});
        menu("Import…");
        QCOMPARE(m_driver->text("recipeProblem"), QString());
        QCOMPARE(chosen(), QStringLiteral("plain"));
        QVERIFY(QFile::exists(m_recipes + QStringLiteral("/plain.quorlin")));
    }

    void showsANewerOneWithoutRunningIt()
    {
        QCOMPARE(opened("new.quorlin", R"({"quorlin": 2, "steps": [1], "outputs": [{"type": "heic"}]})"), QString());
        QVERIFY2(m_driver->text("problemText").startsWith(QStringLiteral("quorlin: ")),
                 qPrintable(m_driver->text("problemText")));
        QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
    }

    void keepsWhatIsShownWhereItsFileIsGone()
    {
        saveAs("One");
        QVERIFY(QFile::remove(m_recipes + QStringLiteral("/One.quorlin")));
        const QString shown = titles();
        saveAs("Two", "Rename…");
        QVERIFY(QFile::exists(m_recipes + QStringLiteral("/Two.quorlin")));
        QCOMPARE(m_driver->text("recipeProblem"), QStringLiteral("One.quorlin could not be moved to the trash."));
        QVERIFY(QFile::remove(m_recipes + QStringLiteral("/Two.quorlin")));
        WindowDriver::answerNextQuestion(QStringLiteral("Delete"));
        menu("Delete…");
        QCOMPARE(m_driver->text("recipeProblem"), QStringLiteral("Two.quorlin could not be moved to the trash."));
        QCOMPARE(titles(), shown);
        // A file where the folder of recipes belongs.
        QVERIFY(QDir(m_recipes).removeRecursively());
        QFile file(m_recipes);
        QVERIFY(file.open(QIODevice::WriteOnly));
        saveAs("Three");
        QVERIFY2(m_driver->text("recipeProblem").startsWith(QStringLiteral("Cannot write ")),
                 qPrintable(m_driver->text("recipeProblem")));
        QCOMPARE(titles(), shown);
        QVERIFY(QFile::remove(m_recipes));
        saveAs("Three");
        QVERIFY(QFile::exists(m_recipes + QStringLiteral("/Three.quorlin")));
        QCOMPARE(chosen(), QStringLiteral("Three"));
    }

    void keepsChangesThatAnotherRecipeReplaces()
    {
        const char *restore = "Restore Unsaved Changes";
        saveAs("One");
        QVERIFY(!entryOf("recipeMenu", restore)->isEnabled());
        m_driver->control<QAbstractButton>("cardDelete")->click();
        const QString changed = titles();
        QCOMPARE(opened("two.quorlin", R"({"quorlin": 1, "outputs": [{"type": "png"}]})"), QString());
        QCOMPARE(titles(), QStringLiteral("Output 1: PNG"));
        menu(restore);
        QCOMPARE(titles(), changed);
        QCOMPARE(chosen(), QStringLiteral("• One"));
        QVERIFY(!entryOf("recipeMenu", restore)->isEnabled()); // the other one had no changes
        menu("New Recipe");
        menu(restore);
        QCOMPARE(titles(), changed);
        menu("Save");
        QCOMPARE(opened("two.quorlin", R"({"quorlin": 1, "outputs": [{"type": "png"}]})"), QString());
        QVERIFY(!entryOf("recipeMenu", restore)->isEnabled());
    }

    void addsNothingToOneThatIsGone()
    {
        saveAs("One");
        saveAs("Two");
        m_driver->show("turn");
        m_driver->click("turnLeft");
        trigger("presetMenu", "Add to a Recipe…");
        m_driver->choose("addToChoice", m_recipes + QStringLiteral("/One.quorlin"));
        QVERIFY(QFile::remove(m_recipes + QStringLiteral("/One.quorlin")));
        m_driver->click("addToOk");
        QCOMPARE(chosen(), QStringLiteral("Two"));
        QCOMPARE(m_driver->text("recipeProblem"), QStringLiteral("One.quorlin cannot be read."));
        for (const auto *label : m_driver->window().findChildren<QLabel *>())
            QVERIFY2(!label->isVisible() || !label->text().startsWith(QStringLiteral("Added")),
                     qPrintable(label->text()));
    }

    /** Cards are removed, and other pictures chosen, while the small pictures on the cards are made. */
    void takesSixtyOperations()
    {
        for (const char *name : {"b.png", "c.png"})
            save(name);
        m_driver->drop({m_folder});
        QByteArrayList steps;
        for (int i = 0; i < 60; ++i)
            steps.append(i % 3 == 0 ? R"({"do": "resize", "percent": 101, "enlarge": true})"
                                    : R"({"do": "flip", "direction": "vertical"})");
        const QByteArray output = R"({"type": "png", "name": "same", "folder": "Out"})";
        QCOMPARE(opened("sixty.quorlin", R"({"quorlin": 1, "operations": [)" + steps.join(", ") + R"(], "outputs": [)" +
                                             output + ", " + output + "]}"),
                 QString());
        auto *pictures = m_driver->control<window::PictureTable>("pictures");
        for (int left = 60; left > 2; --left) {
            pictures->setCurrentIndex(pictures->model()->index(left % 3, 0));
            m_driver->control<QAbstractButton>("cardDelete")->click();
            if (left % 7 == 0)
                QCoreApplication::processEvents();
        }
        QCOMPARE(titles(), QStringLiteral("Flip, Flip, Output 1: PNG, Output 2: PNG"));
        QTRY_COMPARE(m_driver->cell(1, PictureModel::NewName), QStringLiteral("same (3).png, same (4).png"));
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QStringLiteral("6 files made")), qPrintable(summary));
        QCOMPARE(QDir(at("Out")).entryList(QDir::Files).size(), 6);
    }

    void opensNoRecipeDuringARun()
    {
        for (int i = 0; i < 40; ++i)
            save("p" + QByteArray::number(i) + ".png", QSize(1200, 900));
        m_driver->drop({m_folder});
        write("mail.quorlin", R"({"quorlin": 1, "outputs": [{"type": "png", "folder": "Mail"}]})");
        const QString shown = titles();
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([this] { return QFile::exists(at("Web/a.jpg")); }));
        m_driver->drop({at("mail.quorlin")});
        QCOMPARE(titles(), shown);
        QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("82 files made")));
        QVERIFY(!QFile::exists(at("Mail")));
    }

private:
    /** What is said about a recipe that is dropped. */
    QString opened(const char *name, const QByteArray &recipe)
    {
        write(name, recipe);
        m_driver->drop({at(name)});
        return m_driver->text("recipeProblem");
    }

    QAction *entryOf(const char *button, const char *entry)
    {
        for (QAction *action : m_driver->control<QPushButton>(button)->menu()->actions())
            if (action->text() == QString::fromUtf8(entry))
                return action;
        qFatal("no entry %s", entry);
    }

    void trigger(const char *button, const char *entry) { entryOf(button, entry)->trigger(); }

    void menu(const char *entry) { trigger("recipeMenu", entry); }

    void saveAs(const char *name, const char *entry = "Save As…")
    {
        menu(entry);
        m_driver->control<QLineEdit>("recipeName")->setText(QString::fromUtf8(name));
        m_driver->click("recipeOk");
    }

    QString chosen() { return m_driver->control<QComboBox>("recipeChoice")->currentText(); }
    QString at(const QByteArray &name) const { return m_folder + QLatin1Char('/') + QString::fromUtf8(name); }

    void write(const char *name, const QByteArray &text) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    void save(const QByteArray &name, QSize size = QSize(400, 200)) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkBlue);
        QVERIFY(image.save(at(name)));
    }

    /** The titles of all cards, from above. */
    QString titles()
    {
        std::map<int, QString> found;
        for (const auto *title : m_driver->window().findChildren<QAbstractButton *>(QStringLiteral("cardTitle")))
            if (title->isVisible())
                found[title->mapTo(&m_driver->window(), QPoint()).y()] = title->text();
        QStringList all;
        for (const auto &[y, text] : found)
            all.append(text);
        return all.join(QStringLiteral(", "));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_folder;
    QString m_recipes;
};

QUORLIN_GUI_TEST(RecipeMishaps)

#include "tst_recipe_mishaps.moc"
