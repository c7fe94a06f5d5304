#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/preview/pages_view.h"
#include "app/window/program_desk.h"
#include "platform/controls/panels.h"
#include "platform/imageio/source/opening_watch.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

/** Somebody who chooses a printer, and not a file. */
class QueueChosen : public platform::PanelProvider
{
public:
    platform::PanelAnswer run(const platform::PanelRequest &request) override
    {
        const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFileName({});
        printer->setPageLayout(request.page);
        printer->setColorMode(QPrinter::GrayScale);
        platform::PanelAnswer answer;
        answer.accepted = true;
        answer.printer = printer;
        return answer;
    }
};

} // namespace

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
        qputenv("PATH", m_path);
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

    /** The panel of the toolkit and its printer that writes PDFs, with a range of pages and copies. */
    void printsThroughThePanelOfTheToolkit()
    {
        addPictures(5);
        m_driver->trigger("printAction");
        const QString out = m_driver->folder() + QStringLiteral("/printed.pdf");
        answerPrintDialog([out](QPrintDialog &dialog) {
            dialog.findChild<QLineEdit *>(QStringLiteral("filename"))->setText(out);
            choosePages(dialog, 2, 3, 2);
        });
        m_driver->click("printStart");
        QVERIFY(m_driver->waitFor(
            [this] { return m_driver->text("printText") == QStringLiteral("printed.pdf: 4 pages"); }));
        const QByteArray pdf = pictures::bytesOf(out);
        QVERIFY(pdf.startsWith("%PDF-") && pdf.endsWith("%%EOF\n"));
        QCOMPARE(pdf.count("/Subtype /Image"), 2); // each is in the file once, however often it is printed
        QCOMPARE(pdf.count("/Type /Page\n"), 4);
    }

    /** Only where QUORLIN_PRINT_QUEUE names a queue of a print system that runs; see docs/building.md. */
    void printsToAQueueOfTheSystem()
    {
        const QString queue = qEnvironmentVariable("QUORLIN_PRINT_QUEUE");
        if (queue.isEmpty())
            QSKIP("no queue was named");
        addPictures(5);
        m_driver->trigger("printAction");
        answerPrintDialog([queue](QPrintDialog &dialog) {
            auto *printers = dialog.findChild<QComboBox *>(QStringLiteral("printers"));
            printers->setCurrentIndex(printers->findText(queue));
            choosePages(dialog, 2, 3, 2);
        });
        m_driver->click("printStart");
        QVERIFY2(
            m_driver->waitFor([this] { return m_driver->text("printText") == QStringLiteral("Printing: 2 pages"); }),
            qPrintable(m_driver->text("printText")));
    }

    void printsToAQueue()
    {
        addPictures(3);
        const QString queue = layOutQueue(0);
        m_driver->trigger("printAction");
        platform::setPanelProvider(std::make_unique<QueueChosen>());
        m_driver->click("printStart");
        QVERIFY2(
            m_driver->waitFor([this] { return m_driver->text("printText") == QStringLiteral("Printing: 3 pages"); }),
            qPrintable(m_driver->text("printText")));
        const QByteArray pdf = pictures::bytesOf(queue + QStringLiteral(".job"));
        QVERIFY(pdf.startsWith("%PDF-") && pdf.endsWith("%%EOF\n"));
        QCOMPARE(pdf.count("/Subtype /Image"), 3);
        const QByteArray told = pictures::bytesOf(queue + QStringLiteral(".args"));
        QVERIFY2(told.contains("-t Quorlin -o print-color-mode=monochrome -o media=Custom.210x297mm -o "
                               "print-scaling=none\n"),
                 told.constData());
    }

    void saysWhatThePrintSystemSays()
    {
        addPictures(1);
        layOutQueue(1);
        m_driver->trigger("printAction");
        platform::setPanelProvider(std::make_unique<QueueChosen>());
        m_driver->click("printStart");
        QVERIFY2(m_driver->waitFor([this] {
            return m_driver->text("printText") ==
                   QStringLiteral("The print system did not accept the pages: the queue is closed");
        }),
                 qPrintable(m_driver->text("printText")));
    }

    void handsPagesToThePrintSystem()
    {
        const QString queue = layOutQueue(0);
        window::ProgramDesk desk;
        const QString pdf = m_driver->folder() + QStringLiteral("/pages.pdf");
        QFile file(pdf);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("%PDF-1.4") > 0);
        file.close();
        desk.sendToPrinter(pdf, {QStringLiteral("-d"), QStringLiteral("Photo")}, {});
        const QString noted = queue + QStringLiteral(".args");
        QVERIFY(m_driver->waitFor([&] { return pictures::bytesOf(noted).endsWith('\n'); }));
        QCOMPARE(pictures::bytesOf(noted), QByteArrayLiteral("-d Photo\n"));
        QCOMPARE(pictures::bytesOf(queue + QStringLiteral(".job")), QByteArrayLiteral("%PDF-1.4"));
    }

private:
    void addPictures(int count)
    {
        const QString folder = m_driver->inputFolder();
        for (int i = 0; i < count; ++i)
            QVERIFY(pictures::plain(60, 40 + i, Qt::red).save(folder + QStringLiteral("/%1.png").arg(i)));
        m_driver->drop({folder});
        QVERIFY(m_driver->waitFor([&] { return m_driver->pictures().count() == count; }));
        m_driver->trigger("selectAllAction");
    }

    /** A program with the name of the one of the print system, which keeps what it gets; returns its path. */
    QString layOutQueue(int exitCode)
    {
        const QString programs = m_driver->folder() + QStringLiteral("/bin");
        QDir().mkpath(programs);
        QFile lp(programs + QStringLiteral("/lp"));
        if (!lp.open(QIODevice::WriteOnly))
            qFatal("no program");
        lp.write("#!/bin/sh\ncat > \"$0.job\"\necho \"$@\" > \"$0.args\"\n"
                 "echo the queue is closed >&2\nexit " +
                 QByteArray::number(exitCode) + '\n');
        lp.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(programs) + ':' + m_path);
        return lp.fileName();
    }

    /** Fills in the panel of the toolkit as soon as it is there, and accepts it. */
    static void answerPrintDialog(const std::function<void(QPrintDialog &)> &fill)
    {
        QTimer::singleShot(20, [fill] {
            auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return answerPrintDialog(fill);
            fill(*dialog);
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        });
    }

    static void choosePages(const QPrintDialog &dialog, int from, int to, int copies)
    {
        const auto spin = [&dialog](const char *name) { return dialog.findChild<QSpinBox *>(QLatin1String(name)); };
        dialog.findChild<QRadioButton *>(QStringLiteral("printRange"))->click();
        spin("from")->setValue(from);
        spin("to")->setValue(to);
        spin("copies")->setValue(copies);
    }

    const QByteArray m_path = qgetenv("PATH");
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(PrintWindow)
#include "tst_print_window.moc"
