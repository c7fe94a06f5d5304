#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "jobs/desk/worker_desk.h"

#include <QDateTime>
#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using jobs::WorkerDesk;
using window::PictureModel;

/** Runs of a recipe are written down, gone on with, joined and undone, as all runs are. */
class RecipeRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
        m_driver = WindowDriver::showing("recipe");
        WorkerDesk::ofProcess().setSize(1);
    }

    void cleanup() { m_driver.reset(); }

    void goesOnWhereItWasInterrupted_data();
    void goesOnWhereItWasInterrupted();
    void takesWhatIsAddedInTheMiddle();
    void goesOnWithWhatJoined();
    void neverReplacesWhatJoined();
    void undoesWhatAContinuedRunReplaced();

private:
    QString at(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString add(const QString &name, QSize size = {1600, 1200})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(int(qHash(name) % 360), 200, 200));
        if (!QDir().mkpath(QFileInfo(at(name)).path()) || !image.save(at(name)))
            qFatal("no picture");
        return at(name);
    }

    void use(const QString &recipe)
    {
        QFile file(at(QStringLiteral("r.quorlin")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(recipe.toUtf8()) > 0);
        file.close();
        m_driver->drop({file.fileName()});
    }

    /** A run of so many pictures that waits after some of them. */
    void beginPaused(int count, const QString &recipe, const std::function<bool()> &isUnderWay)
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths.append(add(QStringLiteral("p%1.jpg").arg(i)));
        use(recipe);
        m_driver->drop(paths);
        const QStringList planned = {QStringLiteral("Ready"), QStringLiteral("Replaces original")};
        QVERIFY(m_driver->waitFor([&] { return planned.contains(m_driver->cell(0, PictureModel::Status)); }));
        if (m_replacesOriginals)
            WindowDriver::answerNextQuestion(QStringLiteral("Replace"));
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor(isUnderWay));
        m_driver->click("pauseButton");
        QVERIFY(m_driver->text("statusDetail").startsWith(QStringLiteral("paus"))); // it is said at once
        QVERIFY(
            m_driver->waitFor([this] { return m_driver->text("statusDetail").startsWith(QStringLiteral("paused")); }));
    }

    QStringList results(const char *folder = "Out") const
    {
        return QDir(at(QLatin1String(folder))).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    bool isAsked() { return m_driver->control<QWidget>("interruptedBar")->isVisible(); }

    QStringList logged() const
    {
        QStringList rows;
        for (const QByteArray &line :
             contentOf(m_driver->folder() + QStringLiteral("/.local/share/quorlin/log.jsonl")).trimmed().split('\n')) {
            const QJsonObject row = QJsonDocument::fromJson(line).object();
            rows.append(row[QStringLiteral("status")].toString() + u' ' + row[QStringLiteral("output")].toString());
        }
        return rows;
    }

    std::unique_ptr<WindowDriver> m_driver;
    bool m_replacesOriginals = false;
    QString m_two = QStringLiteral(R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 900}], "outputs": [
        {"type": "jpeg", "folder": "Out"},
        {"type": "png", "folder": "Out", "name": "{name}-{counter:01}", "operations": [{"do": "resize", "longest": 40}]}]})");
    QString m_own = QStringLiteral(R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 300}],
        "outputs": [{"type": "jpeg", "ifTaken": "replace"}]})");
};

void RecipeRuns::goesOnWhereItWasInterrupted_data()
{
    QTest::addColumn<bool>("isContinued");
    QTest::newRow("Continue") << true;
    QTest::newRow("Leave") << false;
}

/** Of one picture one of two files is there; what is there stays as it is, and what is made has the name that was planned. */
void RecipeRuns::goesOnWhereItWasInterrupted()
{
    QFETCH(bool, isContinued);
    beginPaused(8, m_two, [this] { return results().contains(QStringLiteral("p1-02.png")); });
    if (QTest::currentTestFailed())
        return;
    QStringList made = QDir(at(QStringLiteral("Out"))).entryList(QDir::Files);
    const int done = int(made.size()) / 2;
    QVERIFY(done >= 2 && done < 8 && made.size() == 2 * done);
    m_driver->startAgain();
    QCOMPARE(m_driver->text("interruptedNote"),
             QStringLiteral("Work on the recipe was interrupted: %1 of 8 pictures are done.").arg(done));
    QVERIFY(QFile::remove(at(QStringLiteral("Out/p0-01.png"))) && made.removeOne(QStringLiteral("p0-01.png")));
    QVERIFY(
        QDir(at(QStringLiteral("Out"))).mkdir(QStringLiteral(".quorlin-unfinished-1-0"))); // of a process that is gone
    m_driver->startAgain(); // who did not answer is asked again, and the disk decides
    QVERIFY(isAsked());
    QCOMPARE(m_driver->text("interruptedNote"),
             done == 2
                 ? QStringLiteral("Work on the recipe was interrupted: 1 of 8 pictures is done.")
                 : QStringLiteral("Work on the recipe was interrupted: %1 of 8 pictures are done.").arg(done - 1));
    QCOMPARE(results(), made); // nothing unfinished
    QCOMPARE(m_driver->pictures().model()->rowCount(), 8);
    QMap<QString, QDateTime> before;
    for (const QString &name : made)
        before.insert(name, QFileInfo(at(QStringLiteral("Out/") + name)).lastModified());
    m_driver->click(isContinued ? "interruptedGo" : "interruptedLeave");
    QVERIFY(!isAsked());
    if (isContinued) {
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QStringLiteral("16 files made")), qPrintable(said));
        QStringList rows;
        QStringList all;
        for (int i = 0; i < 8; ++i) {
            all += {QStringLiteral("p%1-0%2.png").arg(i).arg(i + 1), QStringLiteral("p%1.jpg").arg(i)};
            rows += {QStringLiteral("OK p%1.jpg").arg(i), QStringLiteral("OK p%1-0%2.png").arg(i).arg(i + 1)};
            QCOMPARE(m_driver->cell(i, PictureModel::Status), QStringLiteral("OK"));
        }
        QCOMPARE(results(), all);
        QCOMPARE(logged(), rows);
    } else {
        QCOMPARE(results(), made);
        // The log has what was done, and what was not.
        QVERIFY(m_driver->waitFor([this] { return logged().size() == 16; }));
        QCOMPARE(logged().filter(QStringLiteral("OK ")).size(), made.size());
        QCOMPARE(logged().filter(QStringLiteral("Skipped ")).size(), 16 - made.size());
    }
    for (const QString &name : made)
        QCOMPARE(QFileInfo(at(QStringLiteral("Out/") + name)).lastModified(), before[name]);
    m_driver->startAgain(); // it is asked once
    QVERIFY(!isAsked());
}

void RecipeRuns::takesWhatIsAddedInTheMiddle()
{
    beginPaused(8, m_two, [this] { return results().contains(QStringLiteral("p0.jpg")); });
    if (QTest::currentTestFailed())
        return;
    m_driver->drop({add(QStringLiteral("more/p0.jpg")), add(QStringLiteral("q.jpg"))});
    QVERIFY(m_driver->waitFor([this] { return m_driver->text("statusText").endsWith(QStringLiteral("of 10")); }));
    // Counters go on; each has its own folder here.
    QCOMPARE(m_driver->cell(8, PictureModel::NewName), QStringLiteral("p0.jpg, p0-09.png"));
    m_driver->click("pauseButton");
    const QString said = m_driver->waitForSummary();
    QVERIFY2(said.startsWith(QStringLiteral("20 files made")), qPrintable(said));
    QCOMPARE(results("more/Out"), (QStringList{QStringLiteral("p0-09.png"), QStringLiteral("p0.jpg")}));
    QVERIFY(results().contains(QStringLiteral("q-10.png")));
    for (int row = 0; row < 10; ++row)
        QCOMPARE(m_driver->cell(row, PictureModel::Status), QStringLiteral("OK"));
}

void RecipeRuns::goesOnWithWhatJoined()
{
    beginPaused(8, m_two, [this] { return results().contains(QStringLiteral("p0.jpg")); });
    if (QTest::currentTestFailed())
        return;
    m_driver->drop({add(QStringLiteral("q.jpg"))});
    QVERIFY(m_driver->waitFor([this] { return m_driver->text("statusText").endsWith(QStringLiteral("of 9")); }));
    m_driver->startAgain();
    QCOMPARE(m_driver->pictures().model()->rowCount(), 9);
    m_driver->click("interruptedGo");
    QVERIFY(m_driver->waitForSummary().startsWith(QStringLiteral("18 files made")));
    QCOMPARE(results().size(), 18);
    QVERIFY(results().contains(QStringLiteral("q-09.png")));
}

/** It was planned that a result takes the place of what is a picture of the list now. */
void RecipeRuns::neverReplacesWhatJoined()
{
    add(QStringLiteral("Out/p7.jpg"), {200, 100});
    const QByteArray other = contentOf(at(QStringLiteral("Out/p7.jpg")));
    const QString recipe = QStringLiteral(R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 900}],
        "outputs": [{"type": "jpeg", "folder": "Out", "ifTaken": "replace"}]})");
    beginPaused(8, recipe, [this] { return results().contains(QStringLiteral("p0.jpg")); });
    if (QTest::currentTestFailed())
        return;
    QCOMPARE(contentOf(at(QStringLiteral("Out/p7.jpg"))), other);
    m_driver->drop({at(QStringLiteral("Out/p7.jpg"))});
    QVERIFY(m_driver->waitFor([this] { return m_driver->text("statusText").endsWith(QStringLiteral("of 9")); }));
    m_driver->click("pauseButton");
    const QString said = m_driver->waitForSummary();
    QVERIFY2(said.startsWith(QStringLiteral("9 files made")), qPrintable(said));
    QCOMPARE(contentOf(at(QStringLiteral("Out/p7.jpg"))), other);
    QVERIFY(results().contains(QStringLiteral("p7 (2).jpg")));
}

void RecipeRuns::undoesWhatAContinuedRunReplaced()
{
    m_replacesOriginals = true;
    QMap<QString, QByteArray> old;
    for (int i = 0; i < 12; ++i)
        old.insert(QStringLiteral("p%1.jpg").arg(i), contentOf(add(QStringLiteral("p%1.jpg").arg(i))));
    const auto isOld = [&](const QString &name) { return contentOf(at(name)) == old[name]; };
    beginPaused(12, m_own,
                [&] { return !isOld(QStringLiteral("p0.jpg")) && QFile::exists(at(QStringLiteral("p0.jpg"))); });
    m_replacesOriginals = false;
    if (QTest::currentTestFailed())
        return;
    QVERIFY(isOld(QStringLiteral("p11.jpg")));
    m_driver->startAgain();
    QVERIFY(isAsked());
    m_driver->click("interruptedGo");
    const QString said = m_driver->waitForSummary();
    QVERIFY2(said.startsWith(QStringLiteral("12 files made")), qPrintable(said));
    const QStringList names = old.keys();
    QCOMPARE(QDir(m_driver->inputFolder()).entryList({QStringLiteral("*.jpg")}, QDir::Files), names);
    for (const QString &name : names)
        QCOMPARE(QImage(at(name)).width(), 300);
    // What was replaced before the end comes back too, and nobody is asked.
    m_driver->trigger("undoAction");
    QVERIFY(m_driver->waitFor([&] { return std::all_of(names.begin(), names.end(), isOld); }));
}

QUORLIN_GUI_TEST(RecipeRuns)

#include "tst_recipe_runs.moc"
