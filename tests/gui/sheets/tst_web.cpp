#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QUrl>

using window::PictureModel;

/** Takes what the program gives to the desktop to be opened. */
class Opener : public QObject
{
    Q_OBJECT

public:
    Opener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "take"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public Q_SLOTS:
    void take(const QUrl &location) { opened.append(location); }
};

/** A web page, from the empty window to its folder, as a person makes it. */
class Web : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }

    void makesAPageOfTheList();
    void numbersAFolderThatExists();
    void updatesItsOwnPageOnly();
    void opensAPreviewOfTwelve();
    void saysWhatIsWrong();

private:
    void addSome(int count);
    QString run();
    QString in(const QString &name) const { return m_pictures + u'/' + name; }
    static QStringList pictureFiles(const QString &folder);
    QByteArray page(const QString &folder) const
    {
        return pictures::bytesOf(in(folder + QStringLiteral("/index.html")));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

void Web::init()
{
    m_driver = WindowDriver::showing("web");
    m_pictures = m_driver->inputFolder();
}

void Web::addSome(int count)
{
    for (int i = 0; i < count; ++i)
        QVERIFY(pictures::gradient(200, 150).save(in(QStringLiteral("p%1.jpg").arg(i, 2, 10, QLatin1Char('0')))));
    m_driver->drop({m_pictures});
    QVERIFY(m_driver->waitFor([&] { return m_driver->pictures().count() == count; }));
    m_driver->control<QLineEdit>("webTitle")->setText(QStringLiteral("Two <b>rivers"));
    m_driver->control<QLineEdit>("webName")->setText(QStringLiteral("site"));
    m_driver->control<QLineEdit>("webCaption")->setText(QStringLiteral("Picture {name}"));
}

QString Web::run()
{
    if (!m_driver->waitFor([&] { return m_driver->control<QAbstractButton>("startButton")->isEnabled(); }))
        return QStringLiteral("not ready: ") + m_driver->text("problemText");
    m_driver->click("startButton");
    return m_driver->waitForSummary();
}

QStringList Web::pictureFiles(const QString &folder)
{
    QStringList found;
    QDirIterator files(folder, {QStringLiteral("*.jpg")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    return found;
}

void Web::makesAPageOfTheList()
{
    addSome(3);
    const QByteArray before = pictures::bytesOf(in(QStringLiteral("p00.jpg")));
    const QString said = run();
    QVERIFY2(page(QStringLiteral("site")).contains("Two &lt;b&gt;rivers"), qPrintable(said));
    QVERIFY(page(QStringLiteral("site")).contains("Picture p02"));
    QVERIFY(pictureFiles(in(QStringLiteral("site"))).size() >= 3);
    for (int row = 0; row < 3; ++row)
        QVERIFY2(m_driver->cell(row, PictureModel::Status).startsWith(QStringLiteral("OK")),
                 qPrintable(m_driver->cell(row, PictureModel::Status)));
    QCOMPARE(pictures::bytesOf(in(QStringLiteral("p00.jpg"))), before);
    const QStringList hidden =
        QDir(m_pictures).entryList({QStringLiteral(".*")}, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    QVERIFY2(hidden.isEmpty(), qPrintable(hidden.join(u' '))); // no unfinished folder
    m_driver->show("log");
    QVERIFY(m_driver->waitFor([&] { return !m_driver->text("logCount").isEmpty(); }));
}

void Web::numbersAFolderThatExists()
{
    QVERIFY(QDir().mkpath(in(QStringLiteral("site"))));
    QFile other(in(QStringLiteral("site/notes.txt")));
    QVERIFY(other.open(QIODevice::WriteOnly) && other.write("mine") == 4);
    other.close();
    addSome(2);
    const QString said = run();
    QVERIFY2(page(QStringLiteral("site (2)")).contains("Picture p01"), qPrintable(said));
    QCOMPARE(QDir(in(QStringLiteral("site"))).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("notes.txt")});
}

void Web::updatesItsOwnPageOnly()
{
    addSome(2);
    run();
    QVERIFY(page(QStringLiteral("site")).contains("Picture p01"));
    QFile other(in(QStringLiteral("site/notes.txt")));
    QVERIFY(other.open(QIODevice::WriteOnly) && other.write("mine") == 4);
    other.close();
    m_driver->choose("webTaken", QStringLiteral("update"));
    m_driver->control<QLineEdit>("webCaption")->setText(QStringLiteral("Newer {name}"));
    const QString said = run();
    QVERIFY2(page(QStringLiteral("site")).contains("Newer p01"), qPrintable(said));
    QVERIFY(!QDir(in(QStringLiteral("site (2)"))).exists());
    QCOMPARE(pictures::bytesOf(in(QStringLiteral("site/notes.txt"))), QByteArray("mine"));
    // A folder that is not a page of ours is not touched, not even where an update is wanted.
    QVERIFY(QDir(in(QStringLiteral("site"))).removeRecursively());
    QVERIFY(QDir().mkpath(in(QStringLiteral("site"))));
    QFile page(in(QStringLiteral("site/index.html")));
    QVERIFY(page.open(QIODevice::WriteOnly) && page.write("by hand") == 7);
    page.close();
    run();
    QCOMPARE(pictures::bytesOf(in(QStringLiteral("site/index.html"))), QByteArray("by hand"));
}

void Web::opensAPreviewOfTwelve()
{
    addSome(14);
    const Opener opener;
    QVERIFY(m_driver->waitFor([&] { return m_driver->control<QAbstractButton>("webPreview")->isEnabled(); }));
    m_driver->click("webPreview");
    QVERIFY(m_driver->waitFor([&] { return !opener.opened.isEmpty(); }, 60'000));
    const QString path = opener.opened.constFirst().toLocalFile();
    const QByteArray html = pictures::bytesOf(path);
    QVERIFY2(html.contains("Picture p00") && html.contains("Picture p11"), qPrintable(path));
    QVERIFY(!html.contains("Picture p12"));
    QVERIFY(!path.startsWith(m_pictures)); // a temporary folder
    QVERIFY(!QDir(in(QStringLiteral("site"))).exists());
}

void Web::saysWhatIsWrong()
{
    addSome(1);
    QVERIFY(m_driver->waitFor([&] { return m_driver->control<QAbstractButton>("startButton")->isEnabled(); }));
    m_driver->control<QLineEdit>("webCaption")->setText(QStringLiteral("{city}")); // locations are kept back
    QVERIFY(m_driver->waitFor([&] { return !m_driver->text("problemText").isEmpty(); }));
    QVERIFY(!m_driver->control<QAbstractButton>("startButton")->isEnabled());
}

QUORLIN_GUI_TEST(Web)

#include "tst_web.moc"
