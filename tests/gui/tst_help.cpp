#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/network/download.h"
#include "app/script/ScriptEngine.h"
#include "app/setup/crash_file.h"
#include "platform/desktop/user_defaults.h"
#include "tests/support/test_pictures.h"
#include "tests/support/web_server.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QJSEngine>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

namespace {

const QByteArray newer = "9.9;999999;Finds faces <b>too</b>;And prints them.\n";

} // namespace

/** The sheets of the Help menu and of the info buttons, new versions, and printing. */
class HelpSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        for (const char *variable : {"QUORLIN_UPDATE_HOST", "QUORLIN_PRODUCT_PAGE", "QUORLIN_LANGUAGE", "http_proxy",
                                     "HTTP_PROXY", "all_proxy", "ALL_PROXY"})
            qunsetenv(variable);
        app::usualDownloadLimits().silenceMs = 1000;
        app::usualDownloadLimits().wholeMs = 3000;
        m_driver = WindowDriver::started();
    }
    void cleanup() { m_driver.reset(); }

    void aboutNamesTheLibraries()
    {
        m_driver->trigger("aboutAction");
        auto *about = sheet("aboutWindow");
        QVERIFY(isOpen(about));
        QCOMPARE(m_driver->text("aboutTitle"), QStringLiteral("Quorlin " QUORLIN_VERSION));
        const QString libraries = m_driver->text("libraries");
        for (const char *name :
             {"Qt", "libvips", "exiv2", "Cairo", "libjpeg-turbo", "libdeflate", "libplist", "SQLite"}) {
            const QString row = libraries.section(QString::fromLatin1(name) + QStringLiteral("</td>"), 1);
            QVERIFY2(row.contains(QRegularExpression(QStringLiteral("^<td[^>]*>\\d+\\.\\d+"))), name);
        }
        m_driver->click("aboutCopy");
        const QStringList copied = QApplication::clipboard()->text().split(u'\n');
        QCOMPARE(copied.first(), QStringLiteral("Quorlin " QUORLIN_VERSION));
        QVERIFY(copied.filter(QRegularExpression(QStringLiteral("^libvips \\d+\\."))).size() == 1);
        m_driver->click("aboutClose");
        QVERIFY(!about->isVisible());
        m_driver->trigger("aboutAction");
        QTest::keyClick(about, Qt::Key_Escape);
        QVERIFY(!about->isVisible());
    }

    void aCrashIsToldOnceAndItsReportCanBeCopied()
    {
        const QString report = QStringLiteral("Quorlin 9.9\nSignal: 11\n");
        QFile file(app::crashFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(report.toUtf8()) > 0);
        file.close();
        QApplication::clipboard()->clear();
        WindowDriver::answerNextQuestion(QStringLiteral("Copy Report"));
        m_driver->startAgain();
        QCOMPARE(QApplication::clipboard()->text(), report);
        QVERIFY(!QFile::exists(app::crashFile()));
        m_driver->startAgain(); // a question would hold it up
    }

    void infoButtonsShowTheirTexts_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("title");
        QTest::newRow("infoSimulation") << "resize"
                                        << "Dry run";
        QTest::newRow("infoMoveSimulation") << "rename"
                                            << "Dry run";
        QTest::newRow("infoFolder") << "crop"
                                    << "Choosing a folder";
        QTest::newRow("infoPresets") << "turn"
                                     << "Saving presets";
        QTest::newRow("infoPatterns") << "background"
                                      << "Files of the support folder";
        QTest::newRow("infoWatermarks") << "watermark"
                                        << "Files of the support folder";
    }

    void infoButtonsShowTheirTexts()
    {
        QFETCH(QString, action);
        m_driver->show(qPrintable(action));
        auto *button = m_driver->control<QPushButton>(QTest::currentDataTag());
        QCOMPARE(button->text(), QStringLiteral("?"));
        QVERIFY(!button->accessibleName().isEmpty());
        // The first text leaves no trace in the second.
        m_driver->control<QPushButton>("infoSimulation")->click();
        m_driver->click("infoClose");
        button->click();
        auto *info = sheet("infoSheet");
        QVERIFY(isOpen(info));
        QTEST(m_driver->text("infoTitle"), "title");
        const QString text = m_driver->control<QPlainTextEdit>("infoDescription")->toPlainText();
        QVERIFY2(text.size() > 100 && text.endsWith(u'.'), qPrintable(text));
        QVERIFY(m_driver->control<QPlainTextEdit>("infoDescription")->isReadOnly());
        m_driver->click("infoClose");
        QVERIFY(!info->isVisible());
        QVERIFY(m_driver->window().isEnabled());
    }

    void infoTextsAreInTheLanguageThatIsChosen()
    {
        platform::setUserDefault(QStringLiteral("Language"), QStringLiteral("de"));
        m_driver->startAgain();
        m_driver->click("infoFolder");
        QCOMPARE(m_driver->text("infoTitle"), QStringLiteral("Einen Ordner wählen"));
        platform::removeUserDefault(QStringLiteral("Language"));
    }

    void tellsOfANewerVersion()
    {
        const WebServer server(WebServer::page(newer));
        qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
        qputenv("QUORLIN_PRODUCT_PAGE", "https://example.org/quorlin");
        m_driver->startAgain();
        for (int i = 0; i < 2; ++i) {
            m_driver->trigger("updateAction");
            QVERIFY(m_driver->waitFor([] { return QApplication::activeModalWidget() != nullptr; }));
            auto *version = sheet("newVersionWindow");
            QVERIFY(isOpen(version));
            QCOMPARE(m_driver->text("newApplicationVersion"), QStringLiteral("Quorlin 9.9"));
            QCOMPARE(m_driver->control<QPlainTextEdit>("whatsNew")->toPlainText(),
                     QStringLiteral("Finds faces <b>too</b>\n\nAnd prints them."));
            m_driver->click("newVersionClose");
            QVERIFY(!version->isVisible());
        }
        m_driver->trigger("updateAction");
        QVERIFY(m_driver->waitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        m_driver->click("productPage");
        QVERIFY(!sheet("newVersionWindow")->isVisible());
    }

    void offersNoProductPageThatNobodyConfigured()
    {
        const WebServer server(WebServer::page(newer));
        qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
        m_driver->trigger("updateAction");
        QVERIFY(m_driver->waitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        QVERIFY(isOpen(sheet("newVersionWindow")));
        QVERIFY(!m_driver->control<QPushButton>("productPage")->isVisible());
        m_driver->click("newVersionClose");
    }

    void saysInTheStatusBarThatThereIsNone_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("words");
        QTest::newRow("the same") << QByteArray("0.1;100;a;b") << "up to date";
        QTest::newRow("older") << QByteArray("0.0;1;a;b") << "up to date";
        QTest::newRow("too short") << QByteArray("9.9;999999") << "Could not reach";
        QTest::newRow("a page to sign in")
            << QByteArray("<html><style>a{b:c;d:e;f:g}</style></html>") << "Could not reach";
        QTest::newRow("garbage") << QByteArray("\xff\xfe\x00garbage", 10) << "Could not reach";
        QTest::newRow("no server configured") << QByteArray() << "No update server";
    }

    void saysInTheStatusBarThatThereIsNone()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, words);
        const WebServer server(WebServer::page(file));
        if (!file.isEmpty())
            qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
        m_driver->startAgain();
        m_driver->trigger("updateAction");
        m_driver->waitFor([&] { return m_driver->text("statusText").contains(words); });
        QVERIFY2(m_driver->text("statusText").contains(words), qPrintable(m_driver->text("statusText")));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void aServerThatMisbehavesHoldsNobodyUp_data()
    {
        QTest::addColumn<WebServer::Answer>("answer");
        QTest::newRow("slow") << WebServer::silence();
        QTest::newRow("a byte now and then") << WebServer::endless("x", 100);
        QTest::newRow("huge") << WebServer::page("9.9;999999;a;" + QByteArray(8 << 20, 'x'));
        QTest::newRow("redirect loop") << WebServer::redirect("/version/Quorlin.txt");
        QTest::newRow("closed port") << WebServer::Answer();
    }

    void aServerThatMisbehavesHoldsNobodyUp()
    {
        QFETCH(WebServer::Answer, answer);
        auto server = std::make_unique<WebServer>(answer);
        qputenv("QUORLIN_UPDATE_HOST", server->host().toLatin1());
        if (!answer)
            server.reset();
        QElapsedTimer clock;
        clock.start();
        m_driver->trigger("updateAction");
        QVERIFY2(clock.elapsed() < 900, qPrintable(QString::number(clock.elapsed())));
        m_driver->waitFor([&] { return m_driver->text("statusText").contains(QStringLiteral("Could not")); });
        QVERIFY2(m_driver->text("statusText").contains(QStringLiteral("Could not reach")),
                 qPrintable(m_driver->text("statusText")));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void looksAtTheStartOnlyWhereThatIsAllowed()
    {
        const WebServer server(WebServer::page(newer));
        qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
        m_driver->startAgain();
        QTest::qWait(2500);
        QCOMPARE(server.requests().size(), 0);
        platform::setUserDefault(QStringLiteral("UpdateCheck"), QStringLiteral("{\"onStart\":true}"));
        m_driver->startAgain();
        QVERIFY(m_driver->waitFor([] { return QApplication::activeModalWidget() != nullptr; }));
        QVERIFY(isOpen(sheet("newVersionWindow")));
        QCOMPARE(server.requests().size(), 1);
    }

    void tellsOfANewerVersionAfterTheRun()
    {
        const WebServer server(WebServer::page(newer));
        qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
        m_driver->startAgain();
        script::ScriptEngine &scripts = m_driver->startUp().scripts();
        const QString path = m_driver->inputFolder() + QStringLiteral("/probe.js");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("import { Help } from 'file://" QUORLIN_INTERFACE_FOLDER "/windows/main/help.js';\n"
                   "const tell = Help.prototype.tell, g = Function('return this')(); g.busy = true;\n"
                   "Help.prototype.tell = function () { this.window.run.isBusy = () => g.busy; g.help = this; "
                   "tell.call(this); };\n");
        file.close();
        const auto loaded = scripts.importFile(path);
        QVERIFY2(loaded.has_value(), loaded ? "" : qPrintable(loaded.error().message));
        m_driver->trigger("updateAction");
        QVERIFY(m_driver->waitFor([&server] { return !server.requests().isEmpty(); }));
        QTest::qWait(300);
        QVERIFY(!QApplication::activeModalWidget());
        QJSValue global = scripts.engine().globalObject();
        global.setProperty(QStringLiteral("busy"), false);
        const QJSValue help = global.property(QStringLiteral("help"));
        QVERIFY(scripts.call(help.property(QStringLiteral("tell")), {}, help));
        QVERIFY(isOpen(sheet("newVersionWindow")));
    }

    void saysNothingAtTheStartWhereNobodyAnswers()
    {
        const WebServer server(WebServer::silence());
        qputenv("QUORLIN_UPDATE_HOST", server.host().toLatin1());
        platform::setUserDefault(QStringLiteral("UpdateCheck"), QStringLiteral("{\"onStart\":true}"));
        m_driver->startAgain();
        const QString before = m_driver->text("statusText");
        QVERIFY(m_driver->waitFor([&server] { return !server.requests().isEmpty(); }));
        QElapsedTimer clock;
        clock.start();
        // The check goes on beside the window, and gives up by itself.
        QTest::qWait(1500);
        QVERIFY2(clock.elapsed() < 4500, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(m_driver->text("statusText"), before);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void printsTheChosenPictures()
    {
        const QString folder = m_driver->folder() + QStringLiteral("/Pictures");
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(!m_driver->control<QAction>("printAction")->isEnabled());
        for (int i = 0; i < 3; ++i)
            QVERIFY(pictures::plain(60, 40, Qt::red).save(folder + QStringLiteral("/%1.png").arg(i)));
        m_driver->drop({folder});
        QVERIFY(m_driver->control<QAction>("printAction")->isEnabled());
        const QString out = m_driver->folder() + QStringLiteral("/out.pdf");
        m_driver->answerPanels({out});
        printNow();
        QCOMPARE(m_driver->text("printText"), QStringLiteral("out.pdf: 1 page"));
        QCOMPARE(pictures::bytesOf(out).count("/Type /Page\n"), 1);
        m_driver->trigger("selectAllAction");
        printNow();
        QCOMPARE(m_driver->text("printText"), QStringLiteral("out.pdf: 3 pages"));
        QCOMPARE(pictures::bytesOf(out).count("/Type /Page\n"), 3);
        m_driver->answerPanels({});
        QVERIFY(QFile::remove(out));
        m_driver->trigger("printAction");
        m_driver->click("printStart");
        QVERIFY(!QFile::exists(out));
        QCOMPARE(m_driver->text("printText"), QStringLiteral("3 pictures"));
    }

private:
    /** Prints what is chosen, and waits until that is over. */
    void printNow()
    {
        m_driver->trigger("printAction");
        m_driver->click("printStart");
        QVERIFY(
            m_driver->waitFor([this] { return m_driver->text("printText").startsWith(QStringLiteral("out.pdf")); }));
    }

    QDialog *sheet(const char *name) { return m_driver->control<QDialog>(name); }

    static bool isOpen(const QDialog *sheet)
    {
        return sheet->isVisible() && sheet->windowModality() == Qt::WindowModal && sheet->parentWidget() &&
               QApplication::activeModalWidget() == sheet;
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(HelpSheets)

#include "tst_help.moc"
