#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

using window::PictureModel;

/** Ctrl+Z undoes the latest change since the start, and says beforehand what that is. */
class TestUndo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void editsOfTheListAreUndoneAndDoneAgain();
    void hundredEditsAreKept();
    void theLatestThingIsUndoneFirst();
    void aRunIsUndoneFromAnotherAction();
    void aRunOfAnEarlierStartIsUndoneAfterAQuestion();
    void aTextFieldHasItsOwnUndo();
    void theLogShowsAnUndoAtOnce();
    void theLogSaysThatARunIsUnderWay();

private:
    QString path(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }
    QStringList onDisk() const { return QDir(m_driver->inputFolder()).entryList(QDir::Files, QDir::Name); }
    QString listed();
    QString entry(const char *action) { return m_driver->control<QAction>(action)->text(); }
    bool isEnabled(const char *action) { return m_driver->control<QAction>(action)->isEnabled(); }
    void renameAll();

    const QStringList m_old = {QStringLiteral("A.JPG"), QStringLiteral("B.JPG"), QStringLiteral("C.JPG")};
    const QStringList m_new = {QStringLiteral("A.jpg"), QStringLiteral("B.jpg"), QStringLiteral("C.jpg")};
    std::unique_ptr<WindowDriver> m_driver;
};

void TestUndo::init()
{
    m_driver = WindowDriver::showing("rename");
    for (const QString &name : m_old) {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    }
}

/** The names in the list, from the top. */
QString TestUndo::listed()
{
    QStringList names;
    for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
        names << m_driver->cell(row, PictureModel::Name);
    return names.join(u' ');
}

void TestUndo::renameAll()
{
    m_driver->drop({m_driver->inputFolder()});
    m_driver->choose("preset", QStringLiteral("=Lower-case extensions"));
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->text() == QLatin1String("Rename 3 Files"); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    QCOMPARE(onDisk(), m_new);
}

void TestUndo::editsOfTheListAreUndoneAndDoneAgain()
{
    QVERIFY(!isEnabled("undoAction") && !isEnabled("redoAction"));
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(entry("undoAction"), QStringLiteral("Undo Adding 3 Files"));
    m_driver->pictures().selectRow(1);
    m_driver->trigger("removeAction");
    QCOMPARE(entry("undoAction"), QStringLiteral("Undo Removing 1 File"));
    m_driver->trigger("clearAction");
    QCOMPARE(entry("undoAction"), QStringLiteral("Undo Clear List"));
    QCOMPARE(m_driver->pictures().count(), 0);
    const QStringList states = {QString(), QStringLiteral("A.JPG B.JPG C.JPG"), QStringLiteral("A.JPG C.JPG"),
                                QString()};
    for (int i = 2; i >= 0; --i) {
        m_driver->trigger("undoAction");
        QCOMPARE(listed(), states[i]);
    }
    QVERIFY(!isEnabled("undoAction"));
    QCOMPARE(entry("redoAction"), QStringLiteral("Redo Adding 3 Files"));
    for (int i = 1; i <= 3; ++i) {
        m_driver->trigger("redoAction");
        QCOMPARE(listed(), states[i]);
    }
    QVERIFY(!isEnabled("redoAction"));
    m_driver->trigger("undoAction");
    m_driver->drop({path(QStringLiteral("B.JPG"))});
    QCOMPARE(listed(), QStringLiteral("A.JPG C.JPG B.JPG"));
    QVERIFY(!isEnabled("redoAction")); // another way was taken
}

void TestUndo::hundredEditsAreKept()
{
    m_driver->drop({m_driver->inputFolder()});
    const QString first = listed();
    window::PictureTable &list = m_driver->pictures();
    list.selectRow(0);
    constexpr int edits = 104; // an even number: the row is where it was
    for (int i = 0; i < edits; ++i)
        m_driver->trigger(i % 2 == 0 ? "moveDownAction" : "moveUpAction");
    QCOMPARE(listed(), first);
    constexpr int kept = 100;
    for (int i = 0; i < kept; ++i) {
        QVERIFY2(isEnabled("undoAction"), qPrintable(QString::number(i)));
        m_driver->trigger("undoAction");
        QCOMPARE(listed() == first, i % 2 == 1);
    }
    QVERIFY(!isEnabled("undoAction"));
    for (int i = 0; i < kept; ++i)
        m_driver->trigger("redoAction");
    QVERIFY(!isEnabled("redoAction"));
    QCOMPARE(listed(), first);
}

void TestUndo::theLatestThingIsUndoneFirst()
{
    renameAll();
    QCOMPARE(entry("undoAction"), QStringLiteral("Undo Rename of 3 Files"));
    m_driver->trigger("clearAction");
    m_driver->trigger("undoAction");
    QCOMPARE(listed(), m_new.join(u' '));
    m_driver->trigger("undoAction");
    QVERIFY(m_driver->waitFor([this] { return onDisk() == m_old && entry("redoAction").contains(u"Rename"); }));
    QCOMPARE(listed(), m_old.join(u' '));
    QCOMPARE(entry("redoAction"), QStringLiteral("Redo Rename of 3 Files"));
    m_driver->trigger("redoAction");
    QVERIFY(m_driver->waitFor([this] { return onDisk() == m_new && entry("undoAction").contains(u"Rename"); }));
    QCOMPARE(entry("redoAction"), QStringLiteral("Redo Clear List"));
    m_driver->trigger("redoAction");
    QCOMPARE(listed(), QString());
    for (const QString &step : {QStringLiteral("Undo Clear List"), QStringLiteral("Undo Rename of 3 Files"),
                                QStringLiteral("Undo Adding 3 Files")}) {
        QVERIFY2(m_driver->waitFor([&] { return entry("undoAction") == step && isEnabled("undoAction"); }),
                 qPrintable(step));
        m_driver->trigger("undoAction");
    }
    QCOMPARE(onDisk(), m_old);
    QCOMPARE(listed(), QString());
}

void TestUndo::aRunIsUndoneFromAnotherAction()
{
    renameAll();
    m_driver->show("resize");
    QCOMPARE(entry("undoAction"), QStringLiteral("Undo Rename of 3 Files"));
    m_driver->trigger("undoAction");
    QVERIFY(m_driver->waitFor([this] { return onDisk() == m_old; }));
    QVERIFY(m_driver->waitForSummary().contains(QStringLiteral("3 names restored")));
}

void TestUndo::aRunOfAnEarlierStartIsUndoneAfterAQuestion()
{
    renameAll();
    m_driver->startAgain();
    m_driver->show("rename");
    QCOMPARE(m_driver->pictures().count(), 0);
    for (const char *undo : {"undoAction", "undoButton"}) {
        QString asked;
        QTimer::singleShot(100, this, [&asked] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box) {
                asked = box->text() + box->informativeText();
                box->reject();
            }
        });
        if (qstrcmp(undo, "undoAction") == 0)
            m_driver->trigger(undo);
        else
            m_driver->click(undo);
        QVERIFY2(asked.startsWith(QStringLiteral("Rename (3 files) belongs to an earlier session")), qPrintable(asked));
        QVERIFY2(asked.contains(QString::number(QDate::currentDate().year())), qPrintable(asked));
        QTest::qWait(100);
        QCOMPARE(onDisk(), m_new);
    }
    m_driver->answerNextQuestion(QStringLiteral("Undo It"));
    m_driver->trigger("undoAction");
    QVERIFY(m_driver->waitFor([this] { return onDisk() == m_old; }));
    // What was undone now is done again without a question.
    QVERIFY(m_driver->waitFor([this] { return isEnabled("redoAction"); }));
    m_driver->trigger("redoAction");
    QVERIFY(m_driver->waitFor([this] { return onDisk() == m_new; }));
}

void TestUndo::aTextFieldHasItsOwnUndo()
{
    m_driver->drop({m_driver->inputFolder()});
    m_driver->show("log");
    m_driver->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_driver->window()));
    auto *field = m_driver->control<QLineEdit>("logSearch");
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("abc"));
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(field->text(), QString());
    QCOMPARE(m_driver->pictures().count(), 3);
}

void TestUndo::theLogShowsAnUndoAtOnce()
{
    renameAll();
    m_driver->show("log");
    QAbstractItemModel *runs = m_driver->control<QAbstractItemView>("logRuns")->model();
    QVERIFY(m_driver->waitFor([runs] { return runs->rowCount() == 2; }));
    m_driver->trigger("undoAction");
    QVERIFY(m_driver->waitFor([runs] { return runs->rowCount() == 3; }));
    QCOMPARE(runs->index(1, 0).data().toString(), QStringLiteral("Undo of Rename"));
}

void TestUndo::theLogSaysThatARunIsUnderWay()
{
    QImage image(1200, 900, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (int i = 0; i < 30; ++i)
        QVERIFY(image.save(path(QStringLiteral("p%1.png").arg(i))));
    m_driver->show("resize");
    m_driver->drop({m_driver->inputFolder()});
    auto *start = m_driver->control<QAbstractButton>("startButton");
    QVERIFY(m_driver->waitFor([start] { return start->isEnabled(); }));
    m_driver->click("startButton");
    auto *pause = m_driver->control<QAbstractButton>("pauseButton");
    QVERIFY(m_driver->waitFor([pause] { return pause->isVisible(); }));
    QVERIFY(!isEnabled("undoAction")); // it is no edit of the list
    m_driver->show("log");
    QVERIFY(m_driver->text("logEmpty").startsWith(QStringLiteral("A run is in progress.")));
    m_driver->trigger("cancelAction");
    auto *table = m_driver->control<QAbstractItemView>("logTable");
    QVERIFY(m_driver->waitFor([table] { return table->isVisible() && table->model()->rowCount() > 0; }));
}

QUORLIN_GUI_TEST(TestUndo)

#include "tst_undo.moc"
