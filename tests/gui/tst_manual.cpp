#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/controls/page_list.h"
#include "app/window/manual/manual_view.h"
#include "tests/support/pseudo_texts.h"
#include "tests/support/test_pictures.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

/** The window of the manual, with pages of this test. */
class ManualWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qputenv("QUORLIN_INTERFACE", (m_folder.path() + QStringLiteral("/interface")).toLocal8Bit());
        m_driver = std::make_unique<WindowDriver>(*qobject_cast<QApplication *>(QCoreApplication::instance()));
    }
    void cleanup() { m_driver.reset(); }

    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        QVERIFY(
            pseudo::copyTree(QStringLiteral(QUORLIN_INTERFACE_FOLDER), m_folder.path() + QStringLiteral("/interface")));
        QVERIFY(QDir().mkpath(manual()) && QDir().mkpath(m_folder.path() + QStringLiteral("/docs/screenshots")));
        page("index", "# The manual\n\n- [Crop](crop.md)\n- "
                      "[Resize](resize.md#two-words)\n\n![Window](../screenshots/a-light.png)\n");
        page("crop", "# Crop\n\nCuts. See [elsewhere](https://example.org/a?b=c).\n");
        page("resize", "# Resize\n\nMakes smaller.\n" + QByteArray(4000, ' ').replace(" ", "More words. ") +
                           "\n\n## Two words\n\nA needle.\n\n" + QByteArray(4000, ' ').replace(" ", "Still more. "));
        QVERIFY(pictures::plain(2000, 100, Qt::white)
                    .save(m_folder.path() + QStringLiteral("/docs/screenshots/a-light.png")));
        QVERIFY(pictures::plain(2000, 100, Qt::black)
                    .save(m_folder.path() + QStringLiteral("/docs/screenshots/a-dark.png")));
    }

    void opensAtThePageOfWhatIsShown()
    {
        m_driver->show("resize");
        open();
        QCOMPARE(view()->page(), QStringLiteral("resize"));
        QCOMPARE(list()->current(), QStringLiteral("resize"));
        QVERIFY(view()->toPlainText().startsWith(QStringLiteral("Resize")));
        m_driver->show("crop");
        open();
        QCOMPARE(view()->page(), QStringLiteral("crop"));
        // An action without a page leads to the first one.
        m_driver->show("log");
        open();
        QCOMPARE(view()->page(), QStringLiteral("index"));
    }

    // A link opens the heading in its language, code the one with that name on the English page.
    void pagesAreThoseOfTheLanguage()
    {
        QVERIFY(QDir().mkpath(manual() + QStringLiteral("/de")));
        page("de/index", "# Das Handbuch\n\n- [Zuschneiden](crop.md)\n- [Größe](resize.md#größer-als-zuvor)\n");
        page("de/resize", "# Größe\n\n" + QByteArray(4000, ' ').replace(" ", "Mehr Worte. ") +
                              "\n\n## Größer als zuvor\n\nEine\nNadel.\n\n" +
                              QByteArray(4000, ' ').replace(" ", "Noch mehr. "));
        qputenv("QUORLIN_LANGUAGE", "de");
        m_driver->startAgain();
        m_driver->show("log");
        open();
        QCOMPARE(list()->item(0)->text(), QStringLiteral("Das Handbuch"));
        QCOMPARE(list()->item(1)->text(), QStringLiteral("Crop"));
        QCOMPARE(list()->item(2)->text(), QStringLiteral("Größe"));
        follow("resize.md#gr%C3%B6%C3%9Fer-als-zuvor");
        const int place = view()->verticalScrollBar()->value();
        QVERIFY(place > 500);
        view()->open(QStringLiteral("resize"), QString());
        QCOMPARE(view()->verticalScrollBar()->value(), 0);
        view()->open(QStringLiteral("resize"), QStringLiteral("two-words"));
        QCOMPARE(view()->verticalScrollBar()->value(), place);
        view()->open(QStringLiteral("crop"), QString());
        QVERIFY(view()->toPlainText().contains(QStringLiteral("Cuts.")));
        control<QLineEdit>("manualSearch")->setText(QStringLiteral("Eine Nadel"));
        QTest::keyClick(control<QLineEdit>("manualSearch"), Qt::Key_Return);
        QCOMPARE(view()->page(), QStringLiteral("resize"));
        QCOMPARE(view()->textCursor().selectedText(), QStringLiteral("Eine Nadel"));
        qunsetenv("QUORLIN_LANGUAGE");
        QVERIFY(QDir(manual() + QStringLiteral("/de")).removeRecursively());
        m_driver->startAgain();
    }

    void keyOpensIt() { QCOMPARE(m_driver->control<QAction>("manualAction")->shortcut(), QKeySequence(Qt::Key_F1)); }

    void listsThePagesAsTheFirstOneLinksToThem()
    {
        open();
        QStringList titles;
        for (int i = 0; i < list()->count(); ++i)
            titles.append(list()->item(i)->text());
        QCOMPARE(titles, (QStringList{QStringLiteral("The manual"), QStringLiteral("Crop"), QStringLiteral("Resize")}));
        list()->setCurrentRow(1);
        QCOMPARE(view()->page(), QStringLiteral("crop"));
    }

    void linksLeadToHeadingsAndBack()
    {
        m_driver->show("log");
        open();
        follow("resize.md#two-words");
        QCOMPARE(view()->page(), QStringLiteral("resize"));
        QVERIFY(view()->verticalScrollBar()->value() > 500);
        QVERIFY(!control<QPushButton>("manualForwardButton")->isEnabled());
        control<QPushButton>("manualBackButton")->click();
        QCOMPARE(view()->page(), QStringLiteral("index"));
        QVERIFY(!control<QPushButton>("manualBackButton")->isEnabled());
        control<QAction>("manualForward")->trigger();
        QCOMPARE(view()->page(), QStringLiteral("resize"));
        follow("nowhere.md");
        QVERIFY(view()->toPlainText().contains(QStringLiteral("missing")));
    }

    // A document by itself would leave out pixels of a picture that is wider than the text.
    void picturesAreScaledSmoothlyAndOpenLarge()
    {
        QImage stripes(2000, 100, QImage::Format_RGB32);
        for (int x = 0; x < stripes.width(); ++x)
            for (int y = 0; y < stripes.height(); ++y)
                stripes.setPixelColor(x, y, x % 2 == 0 ? Qt::white : Qt::black);
        for (const char *appearance : {"light", "dark"})
            QVERIFY(stripes.save(m_folder.path() +
                                 QStringLiteral("/docs/screenshots/a-%1.png").arg(QString::fromLatin1(appearance))));
        m_driver->show("log");
        open();
        const QImage drawn =
            view()
                ->document()
                ->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("../screenshots/a-light.png")))
                .value<QImage>();
        QVERIFY(drawn.width() > 200 && drawn.width() <= 760);
        const int grey = qGray(drawn.pixel(drawn.width() / 2, drawn.height() / 2));
        QVERIFY2(grey > 90 && grey < 165, qPrintable(QString::number(grey)));
        // By keyboard: the picture is a link after those of the text.
        view()->setFocus();
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(view(), Qt::Key_Tab);
        QTest::keyClick(view(), Qt::Key_Return);
        auto *large = view()->findChild<QDialog *>(QStringLiteral("manualPicture"));
        QVERIFY(large && large->isVisible() && QTest::qWaitForWindowActive(large));
        const QPixmap shown = large->findChild<QLabel *>()->pixmap(Qt::ReturnByValue);
        QVERIFY(shown.width() > 0 && shown.width() <= view()->screen()->availableSize().width());
        QPointer<QDialog> closing = large;
        QTest::keyClick(large, Qt::Key_Escape);
        QVERIFY(m_driver->waitFor([&closing] { return !closing || !closing->isVisible(); }));
        QVERIFY(view()->isVisible());
        for (const auto &[appearance, color] : {std::pair{"light", Qt::white}, std::pair{"dark", Qt::black}})
            QVERIFY(pictures::plain(2000, 100, color)
                        .save(m_folder.path() +
                              QStringLiteral("/docs/screenshots/a-%1.png").arg(QString::fromLatin1(appearance))));
    }

    void externalLinksGoToTheBrowser()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "take");
        open();
        follow("https://example.org/a?b=c");
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QCOMPARE(m_taken, QStringLiteral("https://example.org/a?b=c"));
        QCOMPARE(view()->page(), QStringLiteral("resize"));
    }

    void findsOnThisPageAndThenOnTheOthers()
    {
        m_driver->show("crop");
        open();
        control<QLineEdit>("manualSearch")->setText(QStringLiteral("needle"));
        QTest::keyClick(control<QLineEdit>("manualSearch"), Qt::Key_Return);
        QCOMPARE(view()->page(), QStringLiteral("resize"));
        QCOMPARE(view()->textCursor().selectedText(), QStringLiteral("needle"));
        control<QAction>("manualFindNext")->trigger();
        QCOMPARE(view()->textCursor().selectedText(), QStringLiteral("needle"));
        control<QLineEdit>("manualSearch")->setText(QStringLiteral("haystack"));
        QTest::keyClick(control<QLineEdit>("manualSearch"), Qt::Key_Return);
        QVERIFY(control<QLabel>("manualNote")->text().contains(QStringLiteral("haystack")));
    }

    void picturesFitAndFollowTheAppearance()
    {
        m_driver->show("log");
        for (const bool dark : {false, true}) {
            m_driver->control<QAction>(dark ? "darkAppearanceAction" : "lightAppearanceAction")->trigger();
            open();
            const QImage shown = view()->viewport()->grab().toImage();
            int found = 0;
            int widest = 0;
            for (int y = 0; y < shown.height(); y += 3) {
                int run = 0;
                for (int x = 0; x < shown.width(); ++x)
                    run += shown.pixelColor(x, y) == QColor(dark ? Qt::black : Qt::white) ? 1 : 0;
                found += run > 500 ? 1 : 0;
                widest = qMax(widest, run);
            }
            QVERIFY2(found > 3, dark ? "dark" : "light");
            QVERIFY2(!dark || widest <= 760, qPrintable(QString::number(widest)));
        }
        m_driver->control<QAction>("systemAppearanceAction")->trigger();
    }

    void saysThatThereIsNone()
    {
        QVERIFY(QFile::rename(manual() + QStringLiteral("/index.md"), manual() + QStringLiteral("/gone")));
        m_driver->trigger("manualAction");
        QVERIFY(QFile::rename(manual() + QStringLiteral("/gone"), manual() + QStringLiteral("/index.md")));
        QCOMPARE(m_driver->text("statusText"), QStringLiteral("The manual is not installed."));
    }

    void escapeClosesItAndTheProgramEndsWithoutIt()
    {
        open();
        QVERIFY(!window()->testAttribute(Qt::WA_QuitOnClose));
        control<QAction>("manualClose")->trigger();
        QVERIFY(!window()->isVisible());
    }

public Q_SLOTS:
    void take(const QUrl &address) { m_taken = address.toString(); }

private:
    QString manual() const { return m_folder.path() + QStringLiteral("/docs/manual"); }

    void page(const char *name, const QByteArray &text)
    {
        QFile file(manual() + u'/' + QString::fromLatin1(name) + QStringLiteral(".md"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void open()
    {
        m_driver->trigger("manualAction");
        QVERIFY(window() && window()->isVisible());
        QCoreApplication::processEvents();
    }

    void follow(const char *link) { Q_EMIT view()->anchorClicked(QUrl(QString::fromLatin1(link))); }

    static QWidget *window()
    {
        for (QWidget *each : QApplication::topLevelWidgets())
            if (each->objectName() == QLatin1String("manualWindow"))
                return each;
        return nullptr;
    }

    template<typename T> T *control(const char *name) { return window()->findChild<T *>(QString::fromLatin1(name)); }
    window::ManualView *view() { return control<window::ManualView>("manualView"); }
    window::PageList *list() { return control<window::PageList>("manualPages"); }

    QTemporaryDir m_folder;
    QString m_taken;
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(ManualWindow)

#include "tst_manual.moc"
