#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"
#include "app/window/web/page_sketch.h"
#include "meta/metadata_file.h"
#include "platform/imageio/metadata/metadata.h"
#include "platform/imageio/source/opening_watch.h"

#include <QBuffer>
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
    void captionsAreWhatTheFormShows();
    void sketchesTheLayout();
    void sketchesEachStyle_data();
    void sketchesEachStyle();

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

void Web::captionsAreWhatTheFormShows()
{
    // Programs disagree about this one; the form shows what EXIF says.
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly) && pictures::gradient(200, 150).save(&buffer, "jpeg"));
    const QVariantMap said = {
        {QStringLiteral("{TIFF}"), QVariantMap{{QStringLiteral("ImageDescription"), QStringLiteral("In EXIF")}}},
        {QStringLiteral("{XMP}"), QVariantMap{{QStringLiteral("dc:description"), QStringLiteral("In XMP")}}}};
    const auto jpeg = platform::Metadata::fromProperties(said).writtenInto(buffer.data());
    QVERIFY(jpeg);
    QFile file(in(QStringLiteral("a.jpg")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(*jpeg) == jpeg->size());
    file.close();
    // The fields of this one are in a sidecar.
    QVERIFY(pictures::gradient(200, 150).save(in(QStringLiteral("b.bmp"))));
    meta::MetadataWork work;
    work.fields.insert(QStringLiteral("caption"), {meta::FieldEdit::What::Set, {QStringLiteral("In the sidecar")}});
    QVERIFY(meta::writeFields(in(QStringLiteral("b.bmp")), work));
    QVERIFY(QFile::exists(in(QStringLiteral("b.bmp.xmp"))));
    m_driver->drop({m_pictures});
    QVERIFY(m_driver->waitFor([&] { return m_driver->pictures().count() == 2; }));
    m_driver->control<QLineEdit>("webName")->setText(QStringLiteral("site"));
    m_driver->control<QLineEdit>("webCaption")->setText(QStringLiteral("{caption}"));
    const QString summary = run();
    const QByteArray html = page(QStringLiteral("site"));
    QVERIFY2(html.contains("In EXIF") && html.contains("In the sidecar"), qPrintable(summary));
    QVERIFY(!html.contains("In XMP"));
}

/** Drawn in the colours of the page, light and dark, without reading any picture. */
void Web::sketchesTheLayout()
{
    addSome(3);
    QStringList opened;
    platform::watchOpening([&opened](const QString &name) { opened.append(name); });
    auto *sketch = m_driver->control<window::PageSketch>("webSketch");
    QVERIFY(m_driver->waitFor([&] { return sketch->title() == QStringLiteral("Two <b>rivers"); }));
    auto *styles = m_driver->control<window::SegmentedControl>("webStyle");
    const QStringList styleWords = {QStringLiteral("grid"), QStringLiteral("rows"), QStringLiteral("story")};
    QList<QImage> seen;
    for (int i = 0; i < styles->segments().size(); ++i) {
        styles->setSelectedSegment(i);
        Q_EMIT styles->chosen(i);
        QVERIFY(m_driver->waitFor([&] { return sketch->style() == styleWords[i]; }));
        const QImage drawn = sketch->grab().toImage();
        QVERIFY2(!seen.contains(drawn), qPrintable(sketch->style()));
        seen.append(drawn);
        QCOMPARE(drawn.pixelColor(drawn.width() / 4, 3), QColor(sketch->lightPaper()));
        QCOMPARE(drawn.pixelColor(drawn.width() * 7 / 8, 3), QColor(sketch->darkPaper()));
    }
    platform::watchOpening({});
    QVERIFY2(opened.isEmpty(), qPrintable(opened.join(u' ')));
}

void Web::sketchesEachStyle_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("captions");
    for (const char *style : {"grid", "rows", "story"})
        for (const bool captions : {false, true})
            QTest::addRow("%s%s", style, captions ? " with captions" : "") << style << captions;
}

void Web::sketchesEachStyle()
{
    QFETCH(const QString, style);
    QFETCH(const bool, captions);
    constexpr double width = 180;
    const QList<double> ratios = {1.5, 0.67, 10, 0.1, 1, 1.78, 1.33, 0.75};
    const QList<QRectF> places = window::PageSketch::places(style, ratios, width, captions);
    QCOMPARE(places.size(), ratios.size());
    QMap<double, double> ends; // of each row
    for (int i = 0; i < places.size(); ++i) {
        QVERIFY(places[i].left() >= 0 && places[i].right() <= width + 0.01);
        for (int other = 0; other < i; ++other)
            QVERIFY(!places[i].intersects(places[other]));
        const double ratio = style == QStringLiteral("grid") ? 1 : ratios[i];
        QVERIFY(qAbs(places[i].width() / places[i].height() - ratio) < 0.001);
        ends[places[i].top()] = places[i].right();
    }
    if (style == QStringLiteral("story"))
        QCOMPARE(ends.size(), places.size()); // one below the other
    ends.remove(ends.lastKey());
    if (style == QStringLiteral("rows")) // each is filled, except the last
        for (const double end : std::as_const(ends))
            QVERIFY2(qAbs(end - width) < 0.01, qPrintable(QString::number(end)));
}

QUORLIN_GUI_TEST(Web)

#include "tst_web.moc"
