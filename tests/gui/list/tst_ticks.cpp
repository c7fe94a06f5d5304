#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QImage>
#include <QTest>

using window::PictureModel;

/** Rows without a tick are left out of runs. */
class TestTicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::showing("resize"); }
    void cleanup() { m_driver.reset(); }
    void aRunLeavesOutWhatIsNotTicked();
    void countersPassOverIt();
    void boxesAreClickedAndWorkedByKeys();
    void ticksComeBackWithTheirRows();
    void nothingTickedIsNothingToDo();

private:
    void pictures(const QStringList &names);
    void untick(int row);
    QString buttonText() { return m_driver->control<QAbstractButton>("startButton")->text(); }
    QString path(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }

    std::unique_ptr<WindowDriver> m_driver;
};

void TestTicks::pictures(const QStringList &names)
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    for (const QString &name : names)
        QVERIFY(image.save(path(name)));
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(m_driver->pictures().count(), int(names.size()));
}

void TestTicks::untick(int row)
{
    m_driver->pictures().selectRow(row);
    m_driver->trigger("tickAction");
}

void TestTicks::aRunLeavesOutWhatIsNotTicked()
{
    pictures({QStringLiteral("a.png"), QStringLiteral("b.png"), QStringLiteral("c.png")});
    QVERIFY(m_driver->waitFor([this] { return buttonText() == QLatin1String("Resize 3 Pictures"); }));
    untick(1);
    QVERIFY(m_driver->waitFor([this] { return buttonText() == QLatin1String("Resize 2 Pictures"); }));
    QVERIFY(m_driver->waitFor([this] { return m_driver->cell(1, PictureModel::Status) == QLatin1String("Left out"); }));
    QCOMPARE(m_driver->cell(1, PictureModel::NewName), QString());
    const QString counts = QStringLiteral("3 pictures · 1 left out"); // once what was added has been said
    QVERIFY(m_driver->waitFor([&] { return m_driver->text("statusText") == counts; }));
    m_driver->click("startButton");
    QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("2 pictures done")));
    QCOMPARE(QDir(path(QStringLiteral("Resized"))).entryList(QDir::Files),
             QStringList({QStringLiteral("a.png"), QStringLiteral("c.png")}));
    QCOMPARE(m_driver->cell(1, PictureModel::Status), QStringLiteral("Left out"));
}

void TestTicks::countersPassOverIt()
{
    m_driver->show("rename");
    pictures({QStringLiteral("a.png"), QStringLiteral("b.png"), QStringLiteral("c.png")});
    m_driver->choose("preset", QStringLiteral("=Number suffix"));
    const auto third = [this](const char *name) {
        return m_driver->waitFor([&] { return m_driver->cell(2, PictureModel::NewName) == QLatin1String(name); });
    };
    QVERIFY(third("c 003.png"));
    untick(0);
    QVERIFY(third("c 002.png"));
    QVERIFY(m_driver->waitFor([this] { return buttonText() == QLatin1String("Rename 2 Files"); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    QCOMPARE(QDir(m_driver->inputFolder()).entryList(QDir::Files),
             QStringList({QStringLiteral("a.png"), QStringLiteral("b 001.png"), QStringLiteral("c 002.png")}));
}

void TestTicks::boxesAreClickedAndWorkedByKeys()
{
    pictures({QStringLiteral("a.png"), QStringLiteral("b.png"), QStringLiteral("c.png")});
    window::PictureTable &list = m_driver->pictures();
    const QRect cell = list.visualRect(list.model()->index(2, PictureModel::Thumbnail));
    const QPoint box(cell.left() + 18, cell.center().y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box);
    QCOMPARE(list.tickedCount(), 2);
    QCOMPARE(list.untickedIds(), QVariantList{list.ids().at(2)});
    QCOMPARE(list.currentPlace(), 1); // the click was for the box
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box);
    QCOMPARE(list.tickedCount(), 3);
    list.selectAll();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box);
    QCOMPARE(list.tickedCount(), 0); // one of the selected rows represents all
    QCOMPARE(m_driver->control<QAction>("tickAllAction")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+T")));
    QCOMPARE(m_driver->control<QAction>("tickAction")->shortcut(), QKeySequence(QStringLiteral("Ctrl+T")));
    m_driver->trigger("tickAllAction");
    QCOMPARE(list.tickedCount(), 3);
    m_driver->trigger("tickAction");
    QCOMPARE(list.tickedCount(), 0);
}

void TestTicks::ticksComeBackWithTheirRows()
{
    pictures({QStringLiteral("a.png"), QStringLiteral("b.png")});
    untick(0);
    m_driver->trigger("clearAction");
    QCOMPARE(m_driver->pictures().tickedCount(), 0);
    m_driver->trigger("undoAction");
    QCOMPARE(m_driver->pictures().count(), 2);
    QCOMPARE(m_driver->pictures().tickedCount(), 1);
    m_driver->show("crop"); // the list is the same one
    QCOMPARE(m_driver->pictures().tickedCount(), 1);
}

void TestTicks::nothingTickedIsNothingToDo()
{
    pictures({QStringLiteral("a.png")});
    QVERIFY(m_driver->control<QAbstractButton>("startButton")->isEnabled());
    untick(0);
    QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
    m_driver->show("recipe");
    QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
}

QUORLIN_GUI_TEST(TestTicks)

#include "tst_ticks.moc"
