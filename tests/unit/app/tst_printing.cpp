#include "app/printing/print_job.h"
#include "app/printing/print_settings.h"
#include "app/services/cPrint.h"

#include "platform/controls/panels.h"
#include "platform/imageio/source/picture.h"
#include "tests/support/corpus.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QColorSpace>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace {

constexpr int dotsPerInch = 72; // a pixel of the raster is a point of the page

/** Answers print panels with the path that was laid out, or cancels. */
class PrintPanels : public platform::PanelProvider
{
public:
    platform::PanelAnswer run(const platform::PanelRequest &request) override
    {
        shown.append(request);
        return {!path.isNull(), path.isEmpty() ? QStringList() : QStringList{path}, {}, nullptr, pages};
    }

    platform::PrintPages pages;

    QString path;
    QList<platform::PanelRequest> shown;
};

/** The part of a page that is not white; pixels that the edge of a picture only touches do not count. */
QRect inkOf(const QImage &page)
{
    QRect ink;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (qGray(page.pixel(x, y)) < 200)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

bool areNear(QRgb one, QRgb other, int tolerance)
{
    return std::abs(qRed(one) - qRed(other)) <= tolerance && std::abs(qGreen(one) - qGreen(other)) <= tolerance &&
           std::abs(qBlue(one) - qBlue(other)) <= tolerance;
}

bool areNear(const QRectF &one, const QRectF &other, double tolerance)
{
    return std::abs(one.left() - other.left()) <= tolerance && std::abs(one.top() - other.top()) <= tolerance &&
           std::abs(one.right() - other.right()) <= tolerance && std::abs(one.bottom() - other.bottom()) <= tolerance;
}

QByteArray described(const QRectF &r)
{
    return QStringLiteral("%1 %2 %3 %4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height()).toUtf8();
}

/** Red, green, blue and grey quarters: top left, top right, bottom left, bottom right. */
QImage quarters(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y,
                           y * 2 < height ? (x * 2 < width ? qRgb(200, 20, 20) : qRgb(20, 160, 20))
                                          : (x * 2 < width ? qRgb(20, 20, 200) : qRgb(110, 110, 110)));
    return image;
}

} // namespace

Q_DECLARE_METATYPE(platform::PrintPages)

/** Pages as they come out of a printer that writes PDF, rasterised and looked at. */
class TestPrinting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { platform::setPanelProvider({}); }
    void placesPicturesOnThePage_data();
    void placesPicturesOnThePage();
    void fitsAndCentres_data();
    void fitsAndCentres();
    void keepsTheOrientationThatIsSet();
    void handsItsSettingsOn();
    void printsNothingWhenCancelled();
    void printsAnEmptyPageForWhatCannotBeRead_data();
    void printsAnEmptyPageForWhatCannotBeRead();
    void printsPicturesUpright_data();
    void printsPicturesUpright();
    void printsColoursAsTheyLook_data();
    void printsColoursAsTheyLook();
    void printsLargePictures();
    void printsOnePageForEachPicture();
    void printsThePagesThatWereChosen_data();
    void printsThePagesThatWereChosen();
    void replacesTheFileAndLeavesTheSource();
    void survivesAFolderThatCannotBeWritten();

private:
    QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    QString saved(const QImage &image, const char *name, int dpi = 72);
    QImage printed(const QString &picture);
    QImage page(int number = 1);
    int pageCount() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QTemporaryDir m_colors; ///< what the rows of a data function name must outlive a single test
    PrintPanels *m_panels = nullptr;
};

void TestPrinting::printsThePagesThatWereChosen_data()
{
    QTest::addColumn<platform::PrintPages>("pages");
    QTest::addColumn<QByteArray>("order"); // a: red, b: green, c: blue
    QTest::newRow("all") << platform::PrintPages() << QByteArray("abc");
    QTest::newRow("a range") << platform::PrintPages{2, 3, 1, true, false} << QByteArray("bc");
    QTest::newRow("one page") << platform::PrintPages{2, 2, 1, true, false} << QByteArray("b");
    QTest::newRow("beyond the end") << platform::PrintPages{3, 9, 1, true, false} << QByteArray("c");
    QTest::newRow("backwards") << platform::PrintPages{0, 0, 1, true, true} << QByteArray("cba");
    QTest::newRow("collated copies") << platform::PrintPages{0, 0, 2, true, false} << QByteArray("abcabc");
    QTest::newRow("copies") << platform::PrintPages{1, 2, 2, false, false} << QByteArray("aabb");
    QTest::newRow("everything") << platform::PrintPages{1, 2, 2, true, true} << QByteArray("baba");
}

void TestPrinting::printsThePagesThatWereChosen()
{
    QFETCH(platform::PrintPages, pages);
    QFETCH(QByteArray, order);
    QStringList pictures;
    for (const QRgb color : {qRgb(200, 0, 0), qRgb(0, 160, 0), qRgb(0, 0, 200)}) {
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(color);
        pictures.append(saved(image, qPrintable(QStringLiteral("%1.png").arg(pictures.size()))));
    }
    m_panels->pages = pages;
    app::printPictures(pictures, app::sharedPrintSettings());
    QCOMPARE(m_panels->shown.constLast().pageCount, 3);
    QCOMPARE(pageCount(), int(order.size()));
    QByteArray seen;
    for (int number = 1; number <= order.size(); ++number) {
        const QImage sheet = page(number);
        const QRgb middle = sheet.pixel(inkOf(sheet).center());
        seen.append(qRed(middle) > 100 ? 'a' : qGreen(middle) > 100 ? 'b' : 'c');
    }
    QCOMPARE(seen, order);
}

void TestPrinting::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    auto panels = std::make_unique<PrintPanels>();
    panels->path = path("out.pdf");
    m_panels = panels.get();
    platform::setPanelProvider(std::move(panels));
    app::PrintSettings fresh;
    fresh.page =
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(72, 72, 72, 72), QPageLayout::Point);
    app::sharedPrintSettings() = fresh;
}

QString TestPrinting::saved(const QImage &image, const char *name, int dpi)
{
    QImage copy = image;
    copy.setDotsPerMeterX(int(std::lround(dpi / 0.0254)));
    copy.setDotsPerMeterY(int(std::lround(dpi / 0.0254)));
    return copy.save(path(name)) ? path(name) : QString();
}

QImage TestPrinting::page(int number)
{
    const QString stem = path("page");
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-r"), QString::number(dotsPerInch), QStringLiteral("-png"),
                       QStringLiteral("-singlefile"), QStringLiteral("-f"), QString::number(number), path("out.pdf"),
                       stem});
    return QImage(stem + QStringLiteral(".png"));
}

int TestPrinting::pageCount() const
{
    QProcess info;
    info.start(QStringLiteral("pdfinfo"), {path("out.pdf")});
    info.waitForFinished();
    const QString text = QString::fromUtf8(info.readAllStandardOutput());
    return text.section(QStringLiteral("Pages:"), 1).section(u'\n', 0, 0).trimmed().toInt();
}

QImage TestPrinting::printed(const QString &picture)
{
    cPrint().printService(picture);
    return page();
}

void TestPrinting::placesPicturesOnThePage_data()
{
    QTest::addColumn<QSizeF>("picture");
    QTest::addColumn<bool>("fits");
    QTest::addColumn<QRectF>("place");
    const double scale = 595.0 / 1190;
    QTest::newRow("small") << QSizeF(95, 42) << true << QRectF(250, 400, 95, 42);
    QTest::newRow("just as large") << QSizeF(595, 842) << true << QRectF(0, 0, 595, 842);
    QTest::newRow("too wide") << QSizeF(1190, 100) << true << QRectF(0, (842 - 100 * scale) / 2, 595, 100 * scale);
    QTest::newRow("too high") << QSizeF(100, 1684) << true << QRectF(272.5, 0, 50, 842);
    QTest::newRow("too large both ways") << QSizeF(1190, 842) << true << QRectF(0, 210.5, 595, 421);
    QTest::newRow("a line") << QSizeF(5950, 0.1) << true << QRectF(0, 420.995, 595, 0.01);
    QTest::newRow("nothing") << QSizeF(0, 0) << true << QRectF(297.5, 421, 0, 0);
    QTest::newRow("small, cut off") << QSizeF(95, 42) << false << QRectF(72, 72, 95, 42);
    QTest::newRow("large, cut off") << QSizeF(1190, 842) << false << QRectF(72, 72, 1190, 842);
}

void TestPrinting::placesPicturesOnThePage()
{
    QFETCH(QSizeF, picture);
    QFETCH(bool, fits);
    QFETCH(QRectF, place);
    app::PrintSettings settings = app::sharedPrintSettings();
    if (fits)
        app::fitOnPage(settings);
    const QRectF found = app::placeOnPage(picture, settings);
    QVERIFY2(areNear(found, place, 0.001), described(found));
}

void TestPrinting::fitsAndCentres_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QRectF>("place");
    QTest::newRow("small") << QSize(100, 60) << 72 << QRectF(247.5, 391, 100, 60);
    QTest::newRow("by its resolution") << QSize(600, 300) << 300 << QRectF(225.5, 385, 144, 72);
    QTest::newRow("wider than the page") << QSize(1200, 600) << 72 << QRectF(0, 272.25, 595, 297.5);
    QTest::newRow("higher than the page") << QSize(400, 1684) << 72 << QRectF(197.5, 0, 200, 842);
    QTest::newRow("far more pixels than points") << QSize(6000, 3000) << 72 << QRectF(0, 272.25, 595, 297.5);
}

void TestPrinting::fitsAndCentres()
{
    QFETCH(QSize, pixels);
    QFETCH(int, dpi);
    QFETCH(QRectF, place);
    const QImage out = printed(saved(quarters(pixels.width(), pixels.height()), "a.png", dpi));
    QCOMPARE(out.size(), QSize(595, 842));
    QCOMPARE(pageCount(), 1);
    const QRectF ink(inkOf(out));
    QVERIFY2(areNear(ink, place, 1.01), described(ink));
    const auto at = [&](double x, double y) {
        return out.pixel((place.topLeft() + QPointF(place.width() * x, place.height() * y)).toPoint());
    };
    QVERIFY(areNear(at(0.25, 0.25), qRgb(200, 20, 20), 4));
    QVERIFY(areNear(at(0.75, 0.25), qRgb(20, 160, 20), 4));
    QVERIFY(areNear(at(0.25, 0.75), qRgb(20, 20, 200), 4));
    QVERIFY(areNear(at(0.75, 0.75), qRgb(110, 110, 110), 4));
}

void TestPrinting::keepsTheOrientationThatIsSet()
{
    app::sharedPrintSettings().page.setOrientation(QPageLayout::Landscape);
    const QImage out = printed(saved(quarters(1684, 400), "a.png"));
    QCOMPARE(out.size(), QSize(842, 595));
    QVERIFY2(areNear(QRectF(inkOf(out)), QRectF(0, 197.5, 842, 200), 1.01), described(QRectF(inkOf(out))));
    QVERIFY(areNear(out.pixel(100, 220), qRgb(200, 20, 20), 4));
}

void TestPrinting::handsItsSettingsOn()
{
    m_panels->path = QString();
    cPrint().printService(QString());
    const app::PrintSettings &settings = app::sharedPrintSettings();
    QCOMPARE(settings.page.margins(), QMarginsF());
    QVERIFY(settings.horizontal == app::Pagination::Fit && settings.vertical == app::Pagination::Fit);
    QVERIFY(settings.isCentredHorizontally && settings.isCentredVertically);
    QCOMPARE(settings.page.pageSize().id(), QPageSize::A4);
    QCOMPARE(m_panels->shown.size(), 1);
    QCOMPARE(m_panels->shown.first().kind, platform::PanelKind::Print);
    QCOMPARE(m_panels->shown.first().page.margins(), QMarginsF());
    QCOMPARE(m_panels->shown.first().page.orientation(), QPageLayout::Portrait);
}

void TestPrinting::printsNothingWhenCancelled()
{
    m_panels->path = QString();
    cPrint().printService(saved(quarters(100, 100), "a.png"));
    QVERIFY(!QFile::exists(path("out.pdf")));
    m_panels->path = QStringLiteral("");
    cPrint().printService(path("a.png"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("a.png")});
}

void TestPrinting::printsAnEmptyPageForWhatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("text") << QByteArray("No picture at all.");
    QTest::newRow("cut short") << QByteArray("cut");
}

void TestPrinting::printsAnEmptyPageForWhatCannotBeRead()
{
    QFETCH(QByteArray, content);
    const QString picture = saved(quarters(300, 300), "a.jpg");
    QFile file(picture);
    if (content.isEmpty()) {
        QVERIFY(file.remove());
    } else if (content == "cut") {
        QVERIFY(file.resize(file.size() / 2));
    } else {
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size());
        file.close();
    }
    const QImage out = printed(picture);
    QCOMPARE(out.size(), QSize(595, 842));
    QCOMPARE(pageCount(), 1);
    QVERIFY(inkOf(out).isEmpty());
}

void TestPrinting::printsPicturesUpright_data()
{
    QTest::addColumn<QString>("name");
    for (const char *kind : {"landscape", "portrait"})
        for (int orientation = 3; orientation <= 8; ++orientation) {
            const QString name = QStringLiteral("%1_%2.jpg").arg(QString::fromLatin1(kind)).arg(orientation);
            QTest::newRow(qPrintable(name)) << name;
        }
}

void TestPrinting::printsPicturesUpright()
{
    QFETCH(QString, name);
    const QString folder = picturePath("own/orientation/");
    const QImage right = printed(folder + name.left(name.size() - 5) + QStringLiteral("2.jpg"));
    const QImage out = printed(folder + name);
    QVERIFY(!inkOf(out).isEmpty());
    QCOMPARE(out.size(), right.size());
    qint64 difference = 0;
    for (int y = 0; y < out.height(); ++y)
        for (int x = 0; x < out.width(); ++x)
            difference += std::abs(qGray(out.pixel(x, y)) - qGray(right.pixel(x, y)));
    const double mean = double(difference) / (out.width() * out.height());
    QVERIFY2(mean < 2, qPrintable(QString::number(mean)));
}

void TestPrinting::printsColoursAsTheyLook_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QColor>("color");
    const QColor color(180, 110, 60);
    QImage plain = pictures::plain(200, 200, color, QImage::Format_RGB32);
    const auto add = [&](const char *name, const QImage &image, const QColor &expected) {
        const QString file = m_colors.filePath(QString::fromLatin1(name));
        image.save(file);
        QTest::newRow(name) << file << expected;
    };
    add("plain.png", plain, color);
    add("plain.jpg", plain, color);
    add("plain.tif", plain, color);
    for (const auto &[name, space] :
         {std::pair{"p3.png", QColorSpace::DisplayP3}, {"adobe.png", QColorSpace::AdobeRgb}}) {
        QImage other = plain;
        other.setColorSpace(QColorSpace(space));
        add(name, other, QColorSpace(space).transformationToColorSpace(QColorSpace::SRgb).map(color));
    }
    add("grey.png", pictures::plain(200, 200, QColor(90, 90, 90)).convertToFormat(QImage::Format_Grayscale8),
        QColor(90, 90, 90));
    add("half.png", pictures::plain(200, 200, QColor(100, 0, 0, 128)), QColor(177, 127, 127));
    add("none.png", pictures::plain(200, 200, QColor(100, 0, 0, 0)), QColor(255, 255, 255));
    const QString cmyk = QStringLiteral(QUORLIN_TEST_DATA "/jpeg/cmyk-adobe.jpg");
    const auto seen = platform::Picture::fromFile(cmyk).bitmap();
    const auto middle = seen.pixel(seen.width() / 2, seen.height() / 2);
    QTest::newRow("cmyk") << cmyk << QColor(middle[0], middle[1], middle[2]);
}

void TestPrinting::printsColoursAsTheyLook()
{
    QFETCH(QString, file);
    QFETCH(QColor, color);
    const QImage out = printed(file);
    const QRgb found = out.pixel(out.width() / 2, out.height() / 2);
    QVERIFY2(areNear(found, color.rgb(), 3), qPrintable(QColor(found).name() + u' ' + color.name()));
}

void TestPrinting::printsLargePictures()
{
    const QString picture = saved(quarters(8000, 6000), "a.jpg");
    const QImage out = printed(picture);
    QVERIFY2(areNear(QRectF(inkOf(out)), QRectF(0, 197.875, 595, 446.25), 1.01), described(QRectF(inkOf(out))));
    // No finer than paper can show: the 48 million pixels are not in the file.
    QVERIFY(QFileInfo(path("out.pdf")).size() < 4'000'000);
}

void TestPrinting::printsOnePageForEachPicture()
{
    const QStringList all = {saved(quarters(100, 50), "a.png"), path("missing.png"), saved(quarters(50, 100), "b.png")};
    app::PrintSettings settings = app::sharedPrintSettings();
    app::fitOnPage(settings);
    app::printPictures(all, settings);
    QCOMPARE(pageCount(), 3);
    QCOMPARE(m_panels->shown.size(), 1);
    QVERIFY(areNear(QRectF(inkOf(page(1))), QRectF(247.5, 396, 100, 50), 1.01));
    QVERIFY(inkOf(page(2)).isEmpty());
    QVERIFY(areNear(QRectF(inkOf(page(3))), QRectF(272.5, 371, 50, 100), 1.01));
}

void TestPrinting::replacesTheFileAndLeavesTheSource()
{
    const QString picture = saved(quarters(100, 50), "a.png");
    const QByteArray before = pictures::bytesOf(picture);
    QFile old(path("out.pdf"));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("something else") > 0);
    old.close();
    QVERIFY(!inkOf(printed(picture)).isEmpty());
    QCOMPARE(pictures::bytesOf(picture), before);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             (QStringList{QStringLiteral("a.png"), QStringLiteral("out.pdf"), QStringLiteral("page.png")}));
}

void TestPrinting::survivesAFolderThatCannotBeWritten()
{
    m_panels->path = path("nowhere/out.pdf");
    cPrint().printService(saved(quarters(100, 50), "a.png"));
    QVERIFY(!QFile::exists(path("nowhere")));
}

QUORLIN_GUI_TEST(TestPrinting)
#include "tst_printing.moc"
