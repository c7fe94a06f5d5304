#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/models/log_model.h"
#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"
#include "app/window/preview/compare_preview.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QUrl>

namespace {

QByteArray line(const QString &name, const char *status, const char *run, const char *process)
{
    const QString text = QStringLiteral(
        R"({"date":"2026-11-20T10:00:00.000Z","process":"%4","action":"x","status":"%2","reason":"","input":"%1","output":"",)"
        R"("inputPath":"/p/%1","outputPath":"","bytes":1,"run":"%3"})");
    return text.arg(name, QString::fromLatin1(status), QString::fromLatin1(run), QString::fromLatin1(process))
               .toUtf8() +
           '\n';
}

} // namespace

/** Receives what would be opened on the desktop. */
class Desktop : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url.toLocalFile()); }

public:
    QStringList opened;
};

/** The log page. */
class Log : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::started(); }

    void cleanup() { m_driver.reset(); }

    void saysThatNothingWasDoneYet()
    {
        show({});
        QVERIFY(m_driver->text("logEmpty").contains(QStringLiteral("100,000")) ||
                m_driver->text("logEmpty").contains(QStringLiteral("100000")));
        QVERIFY(!m_driver->control<QPushButton>("logExport")->isEnabled());
        QVERIFY(!entry("Clear Log…")->isEnabled());
    }

    void showsTheEntriesOfOneRun()
    {
        show(line(QStringLiteral("a.jpg"), "OK", "1", "Resize") + line(QStringLiteral("b.jpg"), "OK", "1", "Resize") +
             line(QStringLiteral("c.jpg"), "Failed", "2", "Crop"));
        QCOMPARE(table()->shownCount(), 3);
        QVERIFY(!m_driver->control<QWidget>("logRunBar")->isVisible());
        QVERIFY(runs()->choose(QStringLiteral("2")));
        QCOMPARE(names(), QStringLiteral("c.jpg"));
        QCOMPARE(m_driver->text("logRunTitle"), QStringLiteral("Crop · 1 entry · 1 problem"));
        QVERIFY(m_driver->text("logRunNote").contains(QStringLiteral("There is no record of this run")));
        QVERIFY(!m_driver->control<QPushButton>("logUndo")->isEnabled());
        QTest::keyClick(runs(), Qt::Key_Down);
        QCOMPARE(names(), QStringLiteral("b.jpg a.jpg"));
        runs()->chooseAll();
        QCOMPARE(table()->shownCount(), 3);
    }

    void saysThatARunThatWroteNewFilesCannotBeUndone()
    {
        show(line(QStringLiteral("a.jpg"), "OK", "2026-11-20T10:00:00.000Z", "Resize"));
        QVERIFY(runs()->choose(QStringLiteral("2026-11-20T10:00:00.000Z")));
        QVERIFY(m_driver->text("logRunNote").contains(QStringLiteral("wrote new files")));
        QVERIFY(!m_driver->control<QPushButton>("logUndo")->isEnabled());
    }

    void saysOfARunThatTookAnotherBackWhichOneThatWas()
    {
        const auto back = [](const char *run, const char *undone) {
            QByteArray text = line(QStringLiteral("b.jpg"), "OK", run, "Rename");
            return text.replace("\"run\":", QByteArray("\"undoes\":\"") + undone + "\",\"run\":");
        };
        show(line(QStringLiteral("a.jpg"), "OK", "m1", "Rename") + back("m2", "m1") + back("m3", "m2") +
             back("m4", "gone"));
        QStringList titles;
        for (int row = 1; row < runs()->model()->rowCount(); ++row)
            titles << runs()->model()->index(row, 0).data().toString();
        QCOMPARE(titles.join(u'|'), QStringLiteral("Undo of Rename|Redo of Rename|Undo of Rename|Rename"));
        QVERIFY(runs()->choose(QStringLiteral("m2")));
        const QString date =
            QLocale().toString(QDateTime::fromString(QStringLiteral("2026-11-20T10:00:00Z"), Qt::ISODate).toLocalTime(),
                               QLocale::ShortFormat);
        QCOMPARE(m_driver->text("logRunTitle"), QStringLiteral("Undo of Rename (run of %1) · 1 entry").arg(date));
        const QString spoken = runs()->model()->index(3, 0).data(Qt::AccessibleTextRole).toString();
        QVERIFY2(spoken.startsWith(QStringLiteral("Undo of Rename (run of ")), qPrintable(spoken));
    }

    void showsAndExportsOldAndNewComments()
    {
        QByteArray edit = line(QStringLiteral("b.jpg"), "OK", "2", "Metadata");
        edit.replace("\"run\":", "\"before\":\"old, one\",\"after\":\"new\",\"run\":");
        show(line(QStringLiteral("a.jpg"), "OK", "1", "Resize") + edit);
        QVERIFY(table()->isColumnHidden(window::LogModel::After));
        QCOMPARE(table()->model()->index(0, window::LogModel::Status).data().toString(),
                 QStringLiteral("OK: “old, one” became “new”"));
        m_driver->control<QLineEdit>("logSearch")->setText(QStringLiteral("one NEW"));
        QCOMPARE(names(), QStringLiteral("b.jpg"));
        m_driver->control<QLineEdit>("logSearch")->clear();
        m_driver->choose("logKind", QStringLiteral("comments"));
        QCOMPARE(table()->model()->index(0, window::LogModel::Status).data().toString(), QStringLiteral("OK"));
        QCOMPARE(names(), QStringLiteral("b.jpg"));
        QVERIFY(!table()->isColumnHidden(window::LogModel::After));
        const QString target = m_driver->folder() + QStringLiteral("/edits.csv");
        m_driver->answerPanels({target});
        m_driver->click("logExport");
        QVERIFY(m_driver->waitFor([target] { return QFile::exists(target); }));
        QFile file(target);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray csv = file.readAll();
        QVERIFY(csv.contains(",Bytes,Before,After\r\n") && csv.endsWith(",\"old, one\",new\r\n"));
        m_driver->choose("logKind", QString());
        QVERIFY(runs()->choose(QStringLiteral("2")));
        QVERIFY(!table()->isColumnHidden(window::LogModel::Before));
        runs()->chooseAll();
        QVERIFY(table()->isColumnHidden(window::LogModel::Before));
    }

    // At each size, also after the other columns of comments were shown.
    void isNeverScrolledSidewaysByItself()
    {
        QByteArray text;
        for (int i = 0; i < 40; ++i)
            text += line(QStringLiteral("IMG_20%1.JPG").arg(i), "OK", i < 30 ? "1" : "2", "Resize, longest side 1600");
        show(text);
        const auto fits = [this] {
            return m_driver->waitFor([this] { return table()->horizontalScrollBar()->maximum() == 0; }, 3000);
        };
        for (const QSize size : {QSize(1440, 900), QSize(1280, 720), QSize(1440, 900), QSize(1280, 720)}) {
            m_driver->window().resize(size);
            QVERIFY(fits());
            QVERIFY(runs()->choose(QStringLiteral("2"))); // no bar for scrolling down
            QVERIFY(fits());
            runs()->chooseAll();
            QVERIFY(fits());
            m_driver->choose("logKind", QStringLiteral("comments"));
            QVERIFY(fits());
            m_driver->choose("logKind", QString());
            QVERIFY(fits());
            const QModelIndex first = table()->model()->index(0, window::LogModel::Action);
            QVERIFY(table()->columnWidth(window::LogModel::Action) >=
                    table()->fontMetrics().horizontalAdvance(first.data().toString()) + 15);
        }
        // Widths that nobody chose are not kept for a smaller window.
        m_driver->window().resize(1440, 900);
        QVERIFY(fits());
        m_driver->window().close();
        m_driver->startAgain();
        m_driver->window().resize(1280, 720);
        m_driver->show("log");
        QVERIFY(m_driver->waitFor([this] { return table()->shownCount() == 40; }));
        QVERIFY(fits());
    }

    void searchAndStatusHoldTogether()
    {
        show(line(QStringLiteral("a.jpg"), "OK", "1", "Resize") +
             line(QStringLiteral("ab.jpg"), "Failed", "1", "Resize") +
             line(QStringLiteral("b.jpg"), "Failed", "1", "Crop"));
        m_driver->choose("logStatus", QStringLiteral("Failed"));
        m_driver->trigger("logFind");
        auto *search = m_driver->control<QLineEdit>("logSearch");
        search->setText(QStringLiteral("resize A"));
        QCOMPARE(names(), QStringLiteral("ab.jpg"));
        QCOMPARE(m_driver->text("logCount"), QStringLiteral("1 of 3 entries"));
        search->setText(QStringLiteral("nowhere"));
        QVERIFY(m_driver->control<QLabel>("logEmpty")->isVisible());
    }

    void sortsByColumnAndRemembersIt()
    {
        show(line(QStringLiteral("a.jpg"), "OK", "1", "Resize") + line(QStringLiteral("c.jpg"), "OK", "1", "Resize") +
             line(QStringLiteral("b.jpg"), "OK", "1", "Resize"));
        table()->sortByColumn(window::LogModel::File, Qt::AscendingOrder);
        QCOMPARE(names(), QStringLiteral("a.jpg b.jpg c.jpg"));
        table()->horizontalHeader()->moveSection(0, 2);
        table()->setColumnWidth(window::LogModel::Action, 222);
        m_driver->window().close();
        m_driver->startAgain();
        m_driver->show("log");
        QVERIFY(m_driver->waitFor([this] { return table()->shownCount() == 3; }));
        QCOMPARE(names(), QStringLiteral("a.jpg b.jpg c.jpg"));
        QCOMPARE(table()->horizontalHeader()->visualIndex(window::LogModel::Date), 2);
        QCOMPARE(table()->columnWidth(window::LogModel::Action), 222);
    }

    void exportsWhatIsShown()
    {
        QByteArray text;
        for (int i = 0; i < 1000; ++i)
            text += line(QStringLiteral("=%1.jpg").arg(i), i % 2 ? "Failed" : "OK", "1", "Resize");
        show(text);
        m_driver->choose("logStatus", QStringLiteral("Failed"));
        const QString target = m_driver->folder() + QStringLiteral("/log.csv");
        m_driver->answerPanels({target});
        m_driver->click("logExport");
        QVERIFY(m_driver->waitFor([target] { return QFile::exists(target); }));
        QFile file(target);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray csv = file.readAll();
        QVERIFY(csv.startsWith("\xef\xbb\xbf"
                               "Date,"));
        QCOMPARE(csv.count("\r\n"), 501);
        QVERIFY(csv.contains("\"'=999.jpg\""));
        QVERIFY(m_driver->text("statusText").contains(target));
    }

    void copiesTheChosenRows()
    {
        show(line(QStringLiteral("a.jpg"), "OK", "1", "Resize") + line(QStringLiteral("b.jpg"), "OK", "1", "Resize"));
        table()->selectAll();
        QTest::keyClick(table(), Qt::Key_C, Qt::ControlModifier);
        const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[1].split(QLatin1Char('\t')).value(window::LogModel::File), QStringLiteral("a.jpg"));
        QVERIFY(entry("Copy 2 Rows")->isEnabled());
    }

    void opensTheFolderAndShowsThePictureWhereItIsStillThere()
    {
        const QString picture = m_driver->folder() + QStringLiteral("/a.png");
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(image.save(picture));
        QByteArray there = line(QStringLiteral("a.png"), "OK", "1", "Resize");
        there.replace("/p/a.png", picture.toUtf8());
        show(there + line(QStringLiteral("b.png"), "OK", "1", "Resize"));
        Desktop desktop;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &desktop, "open");
        table()->selectRow(0);
        QVERIFY(!m_driver->control<QPushButton>("logPicture")->isEnabled());
        m_driver->click("logOpen");
        QVERIFY(m_driver->waitFor([&desktop] { return !desktop.opened.isEmpty(); }, 6000));
        QCOMPARE(desktop.opened, QStringList(QStringLiteral("/p")));
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        table()->selectRow(1);
        m_driver->click("logPicture");
        auto *large = m_driver->control<window::ComparePreview>("largePreview");
        QVERIFY(large->isVisible());
        m_driver->trigger("cancelAction");
        QVERIFY(!large->isVisible());
    }

    void clearsTheLogOnlyWhenAsked()
    {
        show(line(QStringLiteral("a.jpg"), "OK", "1", "Resize"));
        WindowDriver::answerNextQuestion(QStringLiteral("Keep"));
        entry("Clear Log…")->trigger();
        QCOMPARE(table()->totalCount(), 1);
        WindowDriver::answerNextQuestion(QStringLiteral("Clear"));
        entry("Clear Log…")->trigger();
        QCOMPARE(table()->totalCount(), 0);
        QCOMPARE(runs()->model()->rowCount(), 1);
    }

    void everyControlHasANameThatIsSpoken()
    {
        show(line(QStringLiteral("a.jpg"), "OK", "1", "Resize"));
        for (const char *name : {"logTable", "logRuns", "logSearch", "logStatus", "logKind", "logMore"})
            QVERIFY2(!m_driver->control<QWidget>(name)->accessibleName().isEmpty(), name);
        const QString spoken = runs()->model()->index(1, 0).data(Qt::AccessibleTextRole).toString();
        QVERIFY2(spoken.startsWith(QStringLiteral("Resize, ")) && spoken.endsWith(QStringLiteral(", 1 entry")),
                 qPrintable(spoken));
    }

private:
    window::LogTable *table() { return m_driver->control<window::LogTable>("logTable"); }
    window::RunList *runs() { return m_driver->control<window::RunList>("logRuns"); }

    void show(const QByteArray &text)
    {
        const QString folder = m_driver->folder() + QStringLiteral("/.local/share/quorlin");
        QDir().mkpath(folder);
        QFile file(folder + QStringLiteral("/log.jsonl"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        file.close();
        m_driver->show("log");
        QVERIFY(m_driver->waitFor([this] { return !table()->isReading(); }));
    }

    QString names()
    {
        QStringList all;
        for (int row = 0; row < table()->shownCount(); ++row)
            all.append(table()->model()->index(row, window::LogModel::File).data().toString());
        return all.join(QLatin1Char(' '));
    }

    QAction *entry(const char *text)
    {
        for (QAction *action : m_driver->control<QPushButton>("logMore")->menu()->actions())
            if (action->text() == QString::fromUtf8(text))
                return action;
        qFatal("no entry %s", text);
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Log)
#include "tst_log.moc"
