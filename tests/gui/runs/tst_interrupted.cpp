#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "files/moving/journal_shelf.h"
#include "files/moving/move_run.h"
#include "files/moving/move_undo.h"

#include "platform/disk/disk_file_system.h"

#include <QDir>
#include <QImage>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

/** A run that moves files was interrupted: a bar asks at the next start what is to be done about it. */
class Interrupted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        for (const char *name : {"a", "b", "c", "d"}) {
            QImage image(40, 30, QImage::Format_RGB32);
            image.fill(Qt::darkGreen);
            QVERIFY(image.save(m_driver->inputFolder() + u'/' + QLatin1String(name) + QStringLiteral(".jpg")));
        }
    }

    void cleanup() { m_driver.reset(); }

    void bringsTheListBackAndAsks()
    {
        interrupt(2);
        m_driver->startAgain();
        QVERIFY(isAsked());
        QCOMPARE(m_driver->text("interruptedNote"),
                 QStringLiteral("Renaming was interrupted: 2 of 4 files have their new names."));
        QCOMPARE(m_driver->control<QAbstractButton>("interruptedGo")->text(), QStringLiteral("Rename the Rest"));
        QCOMPARE(list(), (QStringList{QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("c.jpg"),
                                      QStringLiteral("d.jpg")}));
        // Who did not answer is asked again.
        m_driver->startAgain();
        QVERIFY(isAsked());
        QCOMPARE(list().size(), 4);
    }

    void bringsTheListBackWithoutARun()
    {
        m_driver->drop({m_driver->inputFolder()});
        QDir lists;
        QVERIFY(m_driver->waitFor([&] {
            lists = QDir(listsFolder());
            return !lists.isEmpty();
        }));
        const QString kept = lists.filePath(lists.entryList(QDir::Files).constFirst());
        QByteArray lines;
        QVERIFY(m_driver->waitFor([&] {
            QFile file(kept);
            lines = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            return lines.contains("whole");
        }));
        m_driver->startAgain(); // an end in order
        QVERIFY(list().isEmpty());
        QVERIFY(!QFile::exists(kept));
        QVERIFY(QFile::remove(at("b.jpg")));
        QFile left(kept); // a crash would have left it
        QVERIFY(left.open(QIODevice::WriteOnly) && left.write(lines) == lines.size());
        left.close();
        m_driver->startAgain();
        QCOMPARE(list(), (QStringList{QStringLiteral("a.jpg"), QStringLiteral("c.jpg"), QStringLiteral("d.jpg")}));
        m_driver->startAgain();
        QVERIFY(list().isEmpty());
    }

    void bringsTheListBackWhereThePreferencesSaySo()
    {
        m_driver->trigger("preferencesAction");
        QVERIFY(!m_driver->control<QAbstractButton>("wishList")->isChecked());
        m_driver->control<QAbstractButton>("wishList")->click();
        m_driver->click("preferencesDone");
        m_driver->drop({m_driver->inputFolder()});
        QVERIFY(m_driver->window().close());
        QVERIFY(QFile::remove(at("b.jpg")));
        const QStringList left = {QStringLiteral("a.jpg"), QStringLiteral("c.jpg"), QStringLiteral("d.jpg")};
        m_driver->startAgain();
        QCOMPARE(list(), left);
        // What was read is kept for the next time too.
        QVERIFY(m_driver->window().close());
        m_driver->startAgain();
        QCOMPARE(list(), left);
        m_driver->trigger("preferencesAction");
        QVERIFY(m_driver->control<QAbstractButton>("wishList")->isChecked());
        m_driver->control<QAbstractButton>("wishList")->click();
        m_driver->click("preferencesDone");
        QVERIFY(m_driver->window().close());
        m_driver->startAgain();
        QVERIFY(list().isEmpty());
    }

    void renamesTheRest()
    {
        interrupt(1);
        m_driver->startAgain();
        m_driver->click("interruptedGo");
        QVERIFY(!isAsked());
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QLatin1String("3 files renamed, no problems")), qPrintable(said));
        QCOMPARE(names(), newNames());
        QCOMPARE(list(), newNames());
        m_driver->trigger("undoAction");
        QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("3 names restored")));
        m_driver->trigger("undoAction"); // what was done before the end too, and nobody is asked
        QVERIFY(m_driver->waitFor([this] { return names() == oldNames(); }));
        m_driver->startAgain();
        QVERIFY(!isAsked());
    }

    void undoesIt_data()
    {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("button") << false;
        QTest::newRow("Ctrl+Z") << true;
    }

    void undoesIt()
    {
        QFETCH(bool, isByKey);
        interrupt(2);
        m_driver->startAgain();
        QCOMPARE(m_driver->control<QAction>("undoAction")->text(), QStringLiteral("Undo Rename of 2 Files"));
        if (isByKey)
            m_driver->trigger("undoAction");
        else
            m_driver->click("interruptedUndo");
        QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("2 names restored")));
        QVERIFY(!isAsked());
        QCOMPARE(names(), oldNames());
        QCOMPARE(list(), oldNames());
        m_driver->startAgain();
        QVERIFY(!isAsked());
    }

    void leavesIt()
    {
        interrupt(2);
        m_driver->startAgain();
        m_driver->click("interruptedLeave");
        QVERIFY(!isAsked());
        QCOMPARE(names(), (QStringList{QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("c.jpg"),
                                       QStringLiteral("d.jpg")}));
        QCOMPARE(list().size(), 4);
        // It is one of an earlier start again, about which somebody is asked.
        WindowDriver::answerNextQuestion(QStringLiteral("Leave It"));
        m_driver->trigger("undoAction");
        QVERIFY(QFile::exists(at("1.jpg")));
        m_driver->startAgain();
        QVERIFY(!isAsked());
        QVERIFY(list().isEmpty());
    }

    void goesOnWithAnUndo()
    {
        interrupt(4);
        {
            platform::DiskFileSystem disk;
            files::DiskJournalShelf shelf(journals());
            const auto undo =
                files::MoveRun::begin(disk, shelf, files::planUndo(disk, shelf, shelf.names().constFirst()).form);
            QVERIFY(undo);
            QVERIFY((*undo)->next());
        }
        m_driver->startAgain();
        QCOMPARE(m_driver->text("interruptedNote"),
                 QStringLiteral("Undoing “Rename” was interrupted: 1 of 4 files is done."));
        m_driver->click("interruptedGo");
        QVERIFY(m_driver->waitFor([this] { return names() == oldNames(); }));
        QVERIFY(m_driver->waitForSummary().startsWith(QLatin1String("3 names restored")));
    }

private:
    QString at(const char *name) const { return m_driver->inputFolder() + u'/' + QLatin1String(name); }
    QString journals() const { return m_driver->folder() + QStringLiteral("/.local/share/quorlin/moves"); }
    QString listsFolder() const { return m_driver->folder() + QStringLiteral("/.local/share/quorlin/lists"); }
    bool isAsked() const { return m_driver->control<QWidget>("interruptedBar")->isVisible(); }

    static QStringList oldNames()
    {
        return {QStringLiteral("a.jpg"), QStringLiteral("b.jpg"), QStringLiteral("c.jpg"), QStringLiteral("d.jpg")};
    }

    static QStringList newNames()
    {
        return {QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("3.jpg"), QStringLiteral("4.jpg")};
    }

    QStringList names() const
    {
        return QDir(m_driver->inputFolder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QStringList list() const
    {
        QStringList names;
        for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
            names.append(m_driver->cell(row, window::PictureModel::Name));
        return names;
    }

    /** A run of four files as left by a crash after some of them; one of which nothing is left has ended. */
    void interrupt(int done)
    {
        platform::DiskFileSystem disk;
        files::DiskJournalShelf shelf(journals());
        files::MoveOrderForm form;
        form.title = QStringLiteral("Rename");
        for (int i = 0; i < 4; ++i)
            form.items.push_back({files::Operation::Move, m_driver->inputFolder() + u'/' + oldNames()[i],
                                  m_driver->inputFolder() + u'/' + newNames()[i]});
        const auto run = files::MoveRun::begin(disk, shelf, form);
        QVERIFY(run);
        for (int i = 0; i < done; ++i)
            QVERIFY((*run)->next());
        if (done == 4)
            QVERIFY((*run)->end());
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Interrupted)
#include "tst_interrupted.moc"
