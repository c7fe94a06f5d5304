#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/preview/pages_view.h"
#include "app/window/program_desk.h"
#include "platform/imageio/source/opening_watch.h"

#include <QDialog>
#include <QDir>
#include <QDoubleSpinBox>
#include <QProgressBar>
#include <QTest>

/** The window that prints pictures on pages. */
class PrintWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::showing("resize"); }
    void cleanup()
    {
        platform::watchOpening({});
        m_driver.reset();
    }

    void printsManyOnAPage()
    {
        const QString folder = m_driver->folder() + QStringLiteral("/Pictures");
        QVERIFY(QDir().mkpath(folder));
        for (int i = 0; i < 5; ++i)
            QVERIFY(pictures::plain(60, 40, Qt::red).save(folder + QStringLiteral("/%1.png").arg(i)));
        QStringList opened;
        platform::watchOpening([&opened](const QString &name) { opened.append(name); });
        m_driver->drop({folder});
        m_driver->trigger("selectAllAction");
        m_driver->trigger("printAction");
        auto *view = m_driver->control<window::PagesView>("pagesView");
        QCOMPARE(view->pages(), 5);
        m_driver->control<QDoubleSpinBox>("rows")->setValue(2);
        QCOMPARE(view->pages(), 3);
        const QString out = m_driver->folder() + QStringLiteral("/out.pdf");
        m_driver->answerPanels({out});
        m_driver->click("printStart");
        QVERIFY(
            m_driver->waitFor([this] { return m_driver->text("printText") == QStringLiteral("out.pdf: 3 pages"); }));
        QCOMPARE(pictures::bytesOf(out).count("/Subtype /Image"), 5);
        QVERIFY2(opened.isEmpty(), qPrintable(opened.join(u' ')));
        // The next print begins with the same settings, and the action has separate settings.
        m_driver->click("printClose");
        m_driver->startAgain();
        m_driver->drop({folder});
        m_driver->trigger("printAction");
        QCOMPARE(m_driver->control<QDoubleSpinBox>("rows")->value(), 2.0);
        m_driver->click("printClose");
        m_driver->show("contact");
        QCOMPARE(m_driver->control<QDoubleSpinBox>("rows")->value(), 5.0);
    }

    void leavesNothingOfAPrintThatIsCancelled()
    {
        const QString folder = m_driver->folder() + QStringLiteral("/Pictures");
        const QString prints = m_driver->folder() + QStringLiteral("/Prints");
        QVERIFY(QDir().mkpath(folder) && QDir().mkpath(prints));
        for (int i = 0; i < 40; ++i)
            QVERIFY(pictures::plain(600, 400, Qt::red).save(folder + QStringLiteral("/%1.png").arg(i)));
        m_driver->drop({folder});
        m_driver->trigger("selectAllAction");
        m_driver->answerPanels({prints + QStringLiteral("/out.pdf")});
        m_driver->trigger("printAction");
        m_driver->click("printStart");
        QVERIFY(m_driver->waitFor([this] { return m_driver->control<QProgressBar>("printProgress")->value() > 0; }));
        m_driver->click("printClose");
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->text("printText") == QStringLiteral("Cancelled. Nothing was printed."); }));
        QVERIFY(QDir(prints).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
        m_driver->click("printClose");
        QVERIFY(!m_driver->control<QDialog>("printWindow")->isVisible());
    }

    void handsPagesToThePrintSystem()
    {
        // A program of the name that the print system has notes what it is given.
        const QString programs = m_driver->folder() + QStringLiteral("/bin");
        QVERIFY(QDir().mkpath(programs));
        QFile lp(programs + QStringLiteral("/lp"));
        QVERIFY(lp.open(QIODevice::WriteOnly));
        lp.write("#!/bin/sh\nfor last; do :; done\nhead -c 5 \"$last\" > \"$0.head\"\necho \"$@\" > \"$0.args\"\n");
        lp.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        lp.close();
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(programs) + ':' + path);
        window::ProgramDesk desk;
        const QString pdf = m_driver->folder() + QStringLiteral("/pages.pdf");
        QFile file(pdf);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("%PDF-1.4") > 0);
        file.close();
        desk.sendToPrinter(pdf, {QStringLiteral("-d"), QStringLiteral("Photo")}, {});
        const QString noted = programs + QStringLiteral("/lp.args");
        QVERIFY(m_driver->waitFor([&] { return pictures::bytesOf(noted).endsWith('\n'); }));
        qputenv("PATH", path);
        QCOMPARE(pictures::bytesOf(noted), QFile::encodeName(QStringLiteral("-d Photo -- ") + pdf + u'\n'));
        QCOMPARE(pictures::bytesOf(programs + QStringLiteral("/lp.head")), QByteArrayLiteral("%PDF-"));
    }

private:
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(PrintWindow)
#include "tst_print_window.moc"
