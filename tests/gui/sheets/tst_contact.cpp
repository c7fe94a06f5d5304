#include "tests/gui/support/screen_tools.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/preview/pages_view.h"
#include "platform/desktop/user_defaults.h"
#include "platform/imageio/source/opening_watch.h"

#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QImage>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

using window::PictureModel;

/** Pages of pictures, from an empty window to the PDF. */
class Contact : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void makesPagesOfTheList();
    void showsThePages();
    void keepsWhatIsThere();
    void replacesOnlyWhereAsked();
    void simulates();
    void leavesOutWhatCannotBeRead();
    void leavesNothingWhenCancelled();
    void saysWhatIsWrong();
    void keepsPresets();

private:
    void add(const QString &name, QSize size = {240, 160});
    void addSome(int count);
    QString run();
    QString pdf(const char *name = "Contact sheet.pdf") const
    {
        return m_pictures + QStringLiteral("/Pages/") + QLatin1String(name);
    }
    QStringList filesBeside() const;
    /** A line for each picture in a PDF; -1 if unknown. */
    int picturesIn(const QString &path) const;

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
    QStringList m_opened;
};

void Contact::init()
{
    m_driver = WindowDriver::showing("contact");
    m_pictures = m_driver->folder() + QStringLiteral("/in");
    QVERIFY(QDir().mkpath(m_pictures));
    m_opened.clear();
    platform::watchOpening([this](const QString &name) { m_opened.append(name); });
}

void Contact::cleanup()
{
    platform::watchOpening({});
    m_driver.reset();
}

void Contact::add(const QString &name, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(90, 120, int(qHash(name) % 256)));
    QVERIFY(image.save(m_pictures + u'/' + name));
}

void Contact::addSome(int count)
{
    for (int i = 0; i < count; ++i)
        add(QStringLiteral("p%1.jpg").arg(i, 2, 10, QLatin1Char('0')), i % 2 == 0 ? QSize(240, 160) : QSize(120, 160));
    m_driver->drop({m_pictures});
    QVERIFY(m_driver->waitFor([&] { return m_driver->control<QAbstractButton>("startButton")->isEnabled(); }));
}

QString Contact::run()
{
    // The button says how many pages there will be once they are planned.
    const bool isPlanned = m_driver->waitFor([&] {
        return m_driver->control<QAbstractButton>("startButton")->isEnabled() &&
               m_driver->control<QAbstractButton>("startButton")->text().contains(QStringLiteral("Page"));
    });
    if (!isPlanned)
        return QStringLiteral("nothing was planned");
    m_driver->click("startButton");
    return m_driver->waitForSummary();
}

/** What is in the folder of the pages, hidden or not; that there is such a folder is said too. */
QStringList Contact::filesBeside() const
{
    const QDir folder(m_pictures + QStringLiteral("/Pages"));
    if (!folder.exists())
        return {};
    return QStringList(QStringLiteral(".")) +
           folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

int Contact::picturesIn(const QString &path) const
{
    QProcess process;
    process.start(QStringLiteral("pdfimages"), {QStringLiteral("-list"), path});
    if (!process.waitForFinished(60000))
        return -1;
    return int(process.readAllStandardOutput().count('\n')) - 2;
}

void Contact::makesPagesOfTheList()
{
    addSome(23);
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->control<QAbstractButton>("startButton")->text() == QStringLiteral("Make 2 Pages"); }));
    const QString said = run();
    QVERIFY2(said.startsWith(QStringLiteral("Contact sheet.pdf: 2 pages · ")), qPrintable(said));
    QCOMPARE(filesBeside(), QStringList({QStringLiteral("."), QStringLiteral("Contact sheet.pdf")}));
    QVERIFY(pictures::bytesOf(pdf()).startsWith("%PDF-"));
    if (!QStandardPaths::findExecutable(QStringLiteral("pdfimages")).isEmpty())
        QCOMPARE(picturesIn(pdf()), 23);
    for (int row = 0; row < 23; ++row)
        QCOMPARE(m_driver->cell(row, PictureModel::Status), QStringLiteral("OK"));
    QVERIFY2(m_opened.isEmpty(), qPrintable(m_opened.join(u' ')));
    m_driver->show("log");
    QVERIFY(m_driver->waitFor([&] { return m_driver->text("logCount").contains(QStringLiteral("23")); }));
}

void Contact::showsThePages()
{
    addSome(23);
    auto *view = m_driver->control<window::PagesView>("pagesView");
    QVERIFY(m_driver->waitFor([&] { return view->pages() == 2; }));
    QVERIFY(view->isVisible() && view->height() > 100);
    QVERIFY(m_driver->waitFor([&] {
        view->grab();
        return view->isComplete();
    }));
    m_driver->control<QDoubleSpinBox>("rows")->setValue(1);
    m_driver->control<QDoubleSpinBox>("columns")->setValue(1);
    QVERIFY(m_driver->waitFor([&] { return view->pages() == 23; }));
    QVERIFY(m_driver->text("pagesPlace").endsWith(QStringLiteral("of 23")));
    m_driver->click("pagesOn");
    QVERIFY(view->first() > 0);
    QTest::keyClick(view, Qt::Key_End);
    QVERIFY(!m_driver->control<QAbstractButton>("pagesOn")->isEnabled());
    QVERIFY2(m_opened.isEmpty(), qPrintable(m_opened.join(u' ')));
}

void Contact::keepsWhatIsThere()
{
    add(QStringLiteral("p.png"));
    QVERIFY(QDir().mkpath(m_pictures + QStringLiteral("/Pages")));
    QFile taken(pdf());
    QVERIFY(taken.open(QIODevice::WriteOnly) && taken.write("mine") == 4);
    taken.close();
    m_driver->drop({m_pictures + QStringLiteral("/p.png")});
    const QString said = run();
    QVERIFY2(said.startsWith(QStringLiteral("Contact sheet (2).pdf: 1 page · ")), qPrintable(said));
    QCOMPARE(pictures::bytesOf(pdf()), QByteArrayLiteral("mine"));
    QVERIFY(pictures::bytesOf(pdf("Contact sheet (2).pdf")).startsWith("%PDF-"));
}

void Contact::replacesOnlyWhereAsked()
{
    add(QStringLiteral("p.png"));
    QVERIFY(QDir().mkpath(m_pictures + QStringLiteral("/Pages")));
    QFile taken(pdf());
    QVERIFY(taken.open(QIODevice::WriteOnly) && taken.write("mine") == 4);
    taken.close();
    m_driver->drop({m_pictures + QStringLiteral("/p.png")});
    m_driver->choose("ifTaken", QStringLiteral("replace"));
    QVERIFY(m_driver->waitFor([&] { return m_driver->text("startNote").endsWith(QStringLiteral("is replaced.")); }));
    const QString said = run();
    QVERIFY2(said.startsWith(QStringLiteral("Contact sheet.pdf: 1 page · ")), qPrintable(said));
    QVERIFY(pictures::bytesOf(pdf()).startsWith("%PDF-"));
    m_driver->click("undoButton");
    QVERIFY(m_driver->waitFor([&] { return pictures::bytesOf(pdf()) == "mine"; }));
}

void Contact::simulates()
{
    addSome(3);
    m_driver->control<QCheckBox>("simulation")->click();
    QVERIFY(m_driver->waitFor([&] {
        return m_driver->control<QAbstractButton>("startButton")->text() == QStringLiteral("Dry Run: Make 1 Page");
    }));
    QCOMPARE(run(), QStringLiteral("Dry run: Contact sheet.pdf would be written · 1 page · nothing was written"));
    QCOMPARE(filesBeside(), QStringList());
}

void Contact::leavesOutWhatCannotBeRead()
{
    add(QStringLiteral("p1.jpg"));
    QFile broken(m_pictures + QStringLiteral("/p2.jpg"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();
    m_driver->drop({m_pictures});
    const QString said = run();
    QVERIFY2(said.startsWith(QStringLiteral("Contact sheet.pdf: 1 page · 1 failed")), qPrintable(said));
    QCOMPARE(m_driver->cell(0, PictureModel::Status), QStringLiteral("OK"));
    QVERIFY(m_driver->cell(1, PictureModel::Status).startsWith(QStringLiteral("Failed")));
}

void Contact::leavesNothingWhenCancelled()
{
    for (int i = 0; i < 60; ++i)
        add(QStringLiteral("p%1.png").arg(i), {900, 600});
    m_driver->drop({m_pictures});
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->control<QAbstractButton>("startButton")->text() == QStringLiteral("Make 3 Pages"); }));
    m_driver->click("startButton");
    // Some pictures are in the file, and others are not.
    QVERIFY(m_driver->waitFor([&] {
        return m_driver->text("statusText").startsWith(QStringLiteral("1 of 60")) ||
               m_driver->text("statusText").contains(QStringLiteral(" of 60"));
    }));
    m_driver->click("cancelButton");
    QCOMPARE(m_driver->waitForSummary(), QStringLiteral("Cancelled. Nothing was written."));
    QCOMPARE(filesBeside(), QStringList());
}

void Contact::saysWhatIsWrong()
{
    addSome(2);
    m_driver->control<QPlainTextEdit>("caption")->setPlainText(QStringLiteral("{nothing}"));
    QVERIFY(m_driver->waitFor([&] { return !m_driver->control<QAbstractButton>("startButton")->isEnabled(); }));
    QVERIFY(m_driver->text("problemText").contains(QStringLiteral("{nothing}")));
    m_driver->control<QPlainTextEdit>("caption")->setPlainText(QStringLiteral("{name}"));
    QVERIFY(m_driver->waitFor([&] { return m_driver->control<QAbstractButton>("startButton")->isEnabled(); }));
    m_driver->control<QDoubleSpinBox>("marginTop")->setValue(290);
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->text("problemText").startsWith(QStringLiteral("There is no room")); }));
}

void Contact::keepsPresets()
{
    addSome(2);
    auto *view = m_driver->control<window::PagesView>("pagesView");
    choosePreset(*m_driver, "One on a page, with its name");
    QVERIFY(m_driver->waitFor([&] { return view->pages() == 2; }));
    QCOMPARE(m_driver->control<QDoubleSpinBox>("rows")->value(), 1.0);
    choosePreset(*m_driver, "Prints of 9 × 13 cm to cut");
    QVERIFY(m_driver->control<QCheckBox>("cropMarks")->isChecked());
    QVERIFY(m_driver->control<QCheckBox>("repeat")->isChecked());
}

QUORLIN_GUI_TEST(Contact)
#include "tst_contact.moc"
