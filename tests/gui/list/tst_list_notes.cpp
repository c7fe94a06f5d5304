#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QUrl>

using window::PictureModel;

namespace {

/** Stands in for a file manager. */
class FolderOpener : public QObject
{
    Q_OBJECT

public:
    FolderOpener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~FolderOpener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url.toLocalFile()); }
};

} // namespace

/** What the window says over and under its list: counts, what is left out, what is filtered, and where results are. */
class TestListNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::showing("resize"); }
    void cleanup() { m_driver.reset(); }
    void theButtonCountsWhatWillBeWritten();
    void saysThatOnlyWhatFailedIsShown();
    void whatIsLeftOutIsSaidInOneLine();
    void theTitleTellsHowFarARunIs_data();
    void theTitleTellsHowFarARunIs();
    void manyFoldersOpenInTheOneThatHoldsThem();
    void saysWhereAFolderIsThatNobodyOpens();
    void whoBeginsIsOfferedSamples();

private:
    QString path(const QString &name) const { return m_driver->inputFolder() + u'/' + name; }
    QAbstractButton *button(const char *name) { return m_driver->control<QAbstractButton>(name); }
    QWidget *part(const char *name) { return m_driver->control<QWidget>(name); }
    void picture(const QString &name, QSize size = {40, 30});
    void broken(const QString &name);
    void run();

    std::unique_ptr<WindowDriver> m_driver;
};

void TestListNotes::picture(const QString &name, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
    QVERIFY(image.save(path(name)));
}

void TestListNotes::broken(const QString &name)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
}

void TestListNotes::run()
{
    QVERIFY(m_driver->waitFor([this] { return button("startButton")->isEnabled(); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
}

void TestListNotes::theButtonCountsWhatWillBeWritten()
{
    for (const char *name : {"a.png", "b.png", "c.png"})
        picture(QString::fromLatin1(name));
    broken(QStringLiteral("d.png"));
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(m_driver->pictures().count(), 4);
    QVERIFY(m_driver->waitFor([this] { return button("startButton")->text() == QLatin1String("Resize 3 Pictures"); }));
    run();
    QVERIFY(m_driver->text("statusText").startsWith(QLatin1String("3 pictures done")));
}

void TestListNotes::saysThatOnlyWhatFailedIsShown()
{
    picture(QStringLiteral("a.png"));
    picture(QStringLiteral("b.png"));
    broken(QStringLiteral("c.png"));
    m_driver->drop({m_driver->inputFolder()});
    QVERIFY(!part("filterBar")->isVisible());
    run();
    QCOMPARE(button("startButton")->text(), QStringLiteral("Resize 2 Pictures"));
    QCOMPARE(m_driver->pictures().currentPlace(), 1);
    m_driver->click("showFailedButton");
    QCOMPARE(m_driver->text("filterNote"), QStringLiteral("Only failed pictures are shown: 1"));
    QVERIFY(part("filterBar")->isVisible());
    QCOMPARE(m_driver->pictures().model()->rowCount(), 1);
    QCOMPARE(m_driver->pictures().currentPlace(), 1);
    QCOMPARE(m_driver->cell(m_driver->pictures().currentIndex().row(), PictureModel::Name), QStringLiteral("c.png"));
    m_driver->click("filterShowAll");
    QVERIFY(!part("filterBar")->isVisible() && !button("showFailedButton")->isChecked());
    QCOMPARE(m_driver->pictures().model()->rowCount(), 3);
}

void TestListNotes::whatIsLeftOutIsSaidInOneLine()
{
    picture(QStringLiteral("a.png"));
    m_driver->show("convert");
    broken(QStringLiteral("b.pdf"));
    m_driver->drop({m_driver->inputFolder()});
    QVERIFY(!part("hiddenBar")->isVisible());
    for (const char *action : {"resize", "crop", "background"}) {
        m_driver->show(action);
        QVERIFY(part("hiddenBar")->isVisible());
        QCoreApplication::processEvents();
        QVERIFY2(part("hiddenBar")->height() <= 40, qPrintable(QString::number(part("hiddenBar")->height())));
    }
    QString named;
    QTimer::singleShot(100, this, [&named] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            named = box->informativeText();
            box->reject();
        }
    });
    m_driver->click("hiddenShow");
    QCOMPARE(named, QStringLiteral("b.pdf"));
    m_driver->click("hiddenConvert");
    QCOMPARE(m_driver->text("windowTitle"), QStringLiteral("Quorlin – Convert"));
    QCOMPARE(m_driver->pictures().count(), 2);
    QVERIFY(!part("hiddenBar")->isVisible());
}

void TestListNotes::theTitleTellsHowFarARunIs_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::newRow("English") << QStringLiteral("en") << QStringLiteral("^[1-9][0-9]?% – Resize – Quorlin$");
    // The space before the sign does not break.
    QTest::newRow("German") << QStringLiteral("de") << QStringLiteral("^[1-9][0-9]?\u00A0% – Skalieren – Quorlin$");
    QTest::newRow("French") << QStringLiteral("fr")
                            << QStringLiteral("^[1-9][0-9]?\u00A0% – Redimensionner – Quorlin$");
    QTest::newRow("Dutch") << QStringLiteral("nl") << QStringLiteral("^[1-9][0-9]?% – Schalen – Quorlin$");
}

void TestListNotes::theTitleTellsHowFarARunIs()
{
    QFETCH(QString, language);
    QFETCH(QString, title);
    qputenv("QUORLIN_LANGUAGE", language.toLatin1());
    m_driver->startAgain();
    qunsetenv("QUORLIN_LANGUAGE");
    for (int i = 0; i < 20; ++i)
        picture(QStringLiteral("p%1.png").arg(i), {800, 600});
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(m_driver->window().windowTitle(), QStringLiteral("Quorlin"));
    QStringList titles;
    connect(&m_driver->window(), &QWidget::windowTitleChanged, this,
            [&titles](const QString &each) { titles << each; });
    run();
    // How many are done at once is the workers' affair.
    QVERIFY2(titles.indexOf(QRegularExpression(title)) >= 0, qPrintable(titles.join(u'|')));
    QCOMPARE(m_driver->window().windowTitle(), QStringLiteral("Quorlin"));
}

void TestListNotes::manyFoldersOpenInTheOneThatHoldsThem()
{
    FolderOpener opener;
    for (int i = 0; i < 6; ++i)
        picture(QStringLiteral("day/%1/a.png").arg(i));
    m_driver->drop({m_driver->inputFolder()});
    run();
    m_driver->click("openFolderButton");
    QCOMPARE(opener.opened, QStringList(path(QStringLiteral("day"))));
    QVERIFY(m_driver->text("statusDetail").contains(QLatin1String("which contains the 6 folders")));
}

void TestListNotes::saysWhereAFolderIsThatNobodyOpens()
{
    picture(QStringLiteral("a.png"));
    m_driver->drop({m_driver->inputFolder()});
    run();
    m_driver->click("openFolderButton");
    QCOMPARE(m_driver->text("statusDetail"),
             QStringLiteral("No file manager could open the folder. It is %1").arg(path(QStringLiteral("Resized"))));
}

void TestListNotes::whoBeginsIsOfferedSamples()
{
    QVERIFY(button("emptyAddSamples")->isVisible());
    QVERIFY(!part("supportBar")->isVisible() && !part("hiddenBar")->isVisible());
    m_driver->show("rename"); // works on files of any kind
    QVERIFY(!button("emptyAddSamples")->isVisible());
    m_driver->show("resize");
    m_driver->click("emptyAddSamples");
    QCOMPARE(m_driver->pictures().count(), 5);
    const QString first = m_driver->pictures().paths().constFirst();
    QVERIFY2(first.startsWith(m_driver->folder()) && first.contains(QLatin1String("/Quorlin Samples/")),
             qPrintable(first));
    m_driver->trigger("clearAction");
    QVERIFY(!button("emptyAddSamples")->isVisible());
    m_driver->startAgain();
    QVERIFY(!button("emptyAddSamples")->isVisible());
}

QUORLIN_GUI_TEST(TestListNotes)

#include "tst_list_notes.moc"
