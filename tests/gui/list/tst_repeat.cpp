#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/log/run_list.h"

#include <QDir>
#include <QDoubleSpinBox>
#include <QImage>
#include <QTest>

/** What a run was made with is there again: for the pictures that were added later, and from the log. */
class Repeat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void thePicturesThatWereAddedLaterGetTheSameSettings();
    void theLastRunOfAnEarlierStartIsRepeated();
    void theLogGivesTheSettingsOfARun();
    void aRunThatMovesFilesIsRepeated();
    void theLogGivesTheSettingsOfARunThatMovedFiles();

private:
    QString picture(const char *name);
    QDoubleSpinBox &size() { return *m_driver->control<QDoubleSpinBox>("value"); }
    bool canRepeat() { return m_driver->control<QAction>("repeatAction")->isEnabled(); }
    void run(double longest);

    std::unique_ptr<WindowDriver> m_driver;
};

void Repeat::init()
{
    m_driver = WindowDriver::showing("resize");
    m_driver->drop({picture("a.png"), picture("b.png")});
}

QString Repeat::picture(const char *name)
{
    const QString path = m_driver->inputFolder() + u'/' + QString::fromLatin1(name);
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(Qt::darkMagenta);
    return image.save(path) ? path : QString();
}

void Repeat::run(double longest)
{
    size().setValue(longest);
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled(); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
}

void Repeat::thePicturesThatWereAddedLaterGetTheSameSettings()
{
    QVERIFY(!canRepeat());
    run(80);
    QVERIFY(!canRepeat()); // nothing was added since
    const QString made = m_driver->inputFolder();
    m_driver->drop({picture("c.png")});
    QVERIFY(canRepeat());
    size().setValue(200); // what was changed since is not what the run had
    m_driver->show("crop");
    m_driver->trigger("repeatAction");
    QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("1 picture done")));
    QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Resize"));
    QCOMPARE(size().value(), 80.0);
    QStringList found;
    QDir folder(made);
    for (const QString &sub : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (const QString &name : QDir(folder.filePath(sub)).entryList(QDir::Files))
            found << name + u' ' + QString::number(QImage(folder.filePath(sub + u'/' + name)).width());
    found.sort();
    QCOMPARE(found, (QStringList{QStringLiteral("a.png 80"), QStringLiteral("b.png 80"), QStringLiteral("c.png 80")}));
    QVERIFY(!canRepeat());
}

void Repeat::theLastRunOfAnEarlierStartIsRepeated()
{
    run(64);
    size().setValue(222);
    m_driver->startAgain();
    QVERIFY(!canRepeat());
    m_driver->drop({picture("d.png")});
    QVERIFY(canRepeat());
    m_driver->trigger("repeatAction");
    QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("1 picture done")));
    QCOMPARE(size().value(), 64.0);
}

void Repeat::theLogGivesTheSettingsOfARun()
{
    run(90);
    m_driver->click("dismissButton");
    run(50);
    m_driver->show("log");
    auto *runs = m_driver->control<window::RunList>("logRuns");
    QVERIFY(m_driver->waitFor([runs] { return runs->model()->rowCount() == 3; }));
    QVERIFY(!m_driver->control<QAbstractButton>("logSettings")->isVisible());
    runs->setCurrentIndex(runs->model()->index(2, 0)); // the earlier of the two
    QVERIFY(m_driver->waitFor([this] { return m_driver->control<QAbstractButton>("logSettings")->isVisible(); }));
    m_driver->click("logSettings");
    QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Resize"));
    QCOMPARE(size().value(), 90.0);
}

void Repeat::aRunThatMovesFilesIsRepeated()
{
    m_driver->show("rename");
    m_driver->choose("preset", QStringLiteral("=Lower-case extensions"));
    m_driver->drop({picture("E.PNG")});
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled(); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    const QDir folder(m_driver->inputFolder());
    QVERIFY(!canRepeat());
    m_driver->drop({picture("F.PNG")});
    m_driver->choose("preset", QStringLiteral("=Clean for the web")); // not what the run had
    m_driver->show("resize");
    QVERIFY(canRepeat());
    m_driver->trigger("repeatAction");
    QVERIFY(m_driver->waitFor([&] { return folder.exists(QStringLiteral("F.png")); }));
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Rename"));
    QVERIFY(folder.exists(QStringLiteral("E.png"))); // the first run's file keeps its name
    QVERIFY(!canRepeat());
    QVERIFY(m_driver->control<QAction>("undoAction")->isEnabled());
}

void Repeat::theLogGivesTheSettingsOfARunThatMovedFiles()
{
    m_driver->show("rename");
    m_driver->choose("preset", QStringLiteral("=Number suffix"));
    m_driver->drop({picture("g.png")});
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled(); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    m_driver->choose("preset", QStringLiteral("=Lower-case extensions"));
    m_driver->show("log");
    auto *runs = m_driver->control<window::RunList>("logRuns");
    QVERIFY(m_driver->waitFor([runs] { return runs->model()->rowCount() == 2; }));
    runs->setCurrentIndex(runs->model()->index(1, 0));
    QVERIFY(m_driver->waitFor([this] { return m_driver->control<QAbstractButton>("logSettings")->isVisible(); }));
    m_driver->click("logSettings");
    QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Rename"));
    const auto isPlanned = [this] {
        return m_driver->cell(0, window::PictureModel::NewName).endsWith(QStringLiteral(" 001.png"));
    };
    QVERIFY2(m_driver->waitFor(isPlanned), qPrintable(m_driver->cell(0, window::PictureModel::NewName)));
}

QUORLIN_GUI_TEST(Repeat)

#include "tst_repeat.moc"
