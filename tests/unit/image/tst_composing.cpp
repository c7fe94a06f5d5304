#include "image/ZtImageHandling.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/log_capture.h"
#include "tests/support/sheet_stand_ins.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::ImageSource;
using platform::Picture;

using Pixel = std::array<int, 4>;

namespace {

const QString ok = QStringLiteral("OK");
const QString failed = QStringLiteral("Failed");
const QString notSupported = QStringLiteral("Not Supported");

QString text(const char *chars)
{
    return QString::fromUtf8(chars);
}

QString pictureNamed(const char *name)
{
    return picturePath(name);
}

} // namespace

/** Round corners, overlays, borders and the check box as the service does them. */
class Composing : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_out;
    std::unique_ptr<SheetStandIns> m_sheet;
    std::unique_ptr<ZtImageHandling> m_service;

    QString source(const QImage &image, const char *name = "photo.png") const
    {
        const QString path = m_folder.filePath(text(name));
        return image.save(path) ? path : QString();
    }
    QStringList written() const { return QDir(m_out).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot); }
    Bitmap result(const char *name) const { return Picture::fromFile(m_out + text(name)).bitmap(); }
    QString rounded(const QString &path, quint32 radius, const char *shape, const char *format)
    {
        return m_service->roundCornersOfImage(path, m_out, radius, text(shape), text(format));
    }
    QString laid(const QString &path, const char *format)
    {
        return m_service->addOverlayColor(path, m_out, {}, {}, text(format));
    }
    QString field(const char *name) const { return m_service->property(name).toString(); }

private Q_SLOTS:
    void init()
    {
        m_folder = QTemporaryDir();
        QVERIFY(m_folder.isValid());
        m_out = m_folder.filePath(QStringLiteral("out/"));
        QVERIFY(QDir().mkpath(m_out));
        m_sheet = std::make_unique<SheetStandIns>();
        m_service = std::make_unique<ZtImageHandling>();
        m_sheet->connectTo(*m_service);
    }

    void namesTheFileByTheFormatCode_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        const auto row = [](const char *source, const char *code, const char *name, const char *type) {
            QTest::addRow("%s %s", source, code) << text(source) << text(code) << text(name) << text(type);
        };
        row("a.b.JPG", "0", "a.b.png", "public.png");
        row("a.b.JPG", "1", "a.b.tiff", "public.tiff");
        row("a.b.JPG", "2", "a.b.gif", "com.compuserve.gif");
        row("a.b.JPG", "3", "a.b.JPG", "public.jpeg");
        row("a.b.JPG", "", "a.b.JPG", "public.jpeg");
        row("a.b.JPG", "00", "a.b.JPG", "public.jpeg");
        row("photo.png", "7", "photo.png", "public.png");
        row("photo.bmp", "7", "photo.bmp", "public.bmp");
        row("photo.tif", "7", "photo.tif", "public.tiff");
    }

    void namesTheFileByTheFormatCode()
    {
        QFETCH(QString, source);
        QFETCH(QString, code);
        QFETCH(QString, name);
        QFETCH(QString, type);
        const QString path = this->source(pictures::gradient(40, 30), qPrintable(source));
        const QByteArray before = pictures::bytesOf(path);
        QCOMPARE(rounded(path, 5, "0", qPrintable(code)), ok);
        QCOMPARE(written(), QStringList{name});
        QCOMPARE(field("myFileType"), type);
        QCOMPARE(field("fileExtension"), source.section(u'.', -1));
        QVERIFY(!field("fileUTI").isEmpty());
        QVERIFY(QFile::remove(m_out + name));
        QCOMPARE(laid(path, qPrintable(code)), ok);
        QCOMPARE(written(), QStringList{name});
        QCOMPARE(ImageSource::open(m_out + name)->typeIdentifier(), type);
        QCOMPARE(pictures::bytesOf(path), before);
    }

    void neverWritesPhotoshopAndPdf()
    {
        for (const char *name : {"own/formats/rgb.psd", "own/formats/drawing.pdf"}) {
            QCOMPARE(rounded(pictureNamed(name), 5, "0", "9"), notSupported);
            QCOMPARE(laid(pictureNamed(name), "9"), notSupported);
            QCOMPARE(written(), QStringList());
        }
        QCOMPARE(laid(pictureNamed("own/formats/rgb.psd"), "0"), ok);
        QCOMPARE(rounded(pictureNamed("own/formats/rgb.psd"), 5, "0", "1"), ok);
        QCOMPARE(written(), (QStringList{text("rgb.png"), text("rgb.tiff")}));
    }

    void failsWithoutASource()
    {
        const auto line = [this](const char *name) {
            return QByteArray("Failed to write image to file://" + m_out.toUtf8() + name + '\n');
        };
        {
            LogCapture log;
            QCOMPARE(rounded(m_folder.filePath(text("missing.jpg")), 5, "1", "0"), failed);
            QCOMPARE(log.text(), line("missing.png"));
        }
        {
            LogCapture log;
            QCOMPARE(laid(m_folder.filePath(text("missing.jpg")), ""), failed);
            QCOMPARE(log.text(), line("missing.jpg"));
        }
        {
            LogCapture log;
            QCOMPARE(laid(source(pictures::gradient(4, 4), "photo.ppm"), ""), failed);
            QCOMPARE(log.text(), QByteArray());
        }
        QCOMPARE(written(), QStringList());
    }

    void cutsEveryShape()
    {
        const QImage wide = pictures::gradient(60, 40);
        const QString path = source(wide);
        QCOMPARE(rounded(path, 10, "0", "0"), ok);
        QCOMPARE(result("photo.png").size(), QSize(60, 40));
        QCOMPARE(result("photo.png").pixel(0, 0), (Pixel{0, 0, 0, 0}));
        QCOMPARE(result("photo.png").pixel(10, 0), (Pixel{10, 0, 10, 255}));
        QCOMPARE(rounded(path, 10, "1", "0"), ok);
        QCOMPARE(result("photo.png").size(), QSize(40, 40));
        QCOMPARE(result("photo.png").pixel(20, 20), (Pixel{20, 20, 40, 255}));
        QCOMPARE(result("photo.png").pixel(4, 4)[3], 0);
        for (const char *code : {"2", "", "ellipse"}) {
            QCOMPARE(rounded(path, 10, code, "0"), ok);
            QCOMPARE(result("photo.png").size(), QSize(60, 40));
            QCOMPARE(result("photo.png").pixel(6, 4)[3], 0);
            QCOMPARE(result("photo.png").pixel(30, 20), (Pixel{30, 20, 50, 255}));
        }
        QCOMPARE(rounded(path, 0, "0", "0"), ok);
        QCOMPARE(result("photo.png").toRawImage(), wide.convertToFormat(QImage::Format_RGB888));
    }

    void keepsTheLowerSquareOfATallPicture()
    {
        QCOMPARE(rounded(source(pictures::gradient(40, 60)), 0, "1", "0"), ok);
        QCOMPARE(result("photo.png").size(), QSize(40, 40));
        QCOMPARE(result("photo.png").pixel(20, 20), (Pixel{20, 40, 60, 255}));
    }

    void fillsWithTheColorOfTheWell()
    {
        m_sheet->fillBackground("#10c820", "");
        const QString path = source(pictures::gradient(60, 40));
        QCOMPARE(rounded(path, 10, "0", "0"), ok);
        QCOMPARE(result("photo.png").pixel(0, 0), (Pixel{16, 200, 32, 255}));
        QCOMPARE(result("photo.png").pixel(30, 0), (Pixel{30, 0, 30, 255}));
        m_sheet->fillBackground("#10c820", "7px");
        QCOMPARE(rounded(path, 10, "0", "0"), ok);
        QCOMPARE(result("photo.png").pixel(30, 6), (Pixel{16, 200, 32, 255}));
        QCOMPARE(result("photo.png").pixel(30, 7), (Pixel{30, 7, 37, 255}));
        m_sheet->check.setProperty("state", -1);
        QCOMPARE(rounded(path, 10, "0", "0"), ok);
        QCOMPARE(result("photo.png").pixel(0, 0), (Pixel{0, 0, 0, 0}));
    }

    void fillsWithBlackWithoutAWell()
    {
        ZtImageHandling service;
        service.setProperty("cbImageBgColorCheck", QVariant::fromValue<QObject *>(&m_sheet->check));
        m_sheet->check.setProperty("state", 1);
        const QString path = source(pictures::plain(60, 40, Qt::white));
        QCOMPARE(service.roundCornersOfImage(path, m_out, 10, text("0"), text("0")), ok);
        QCOMPARE(result("photo.png").pixel(0, 0), (Pixel{0, 0, 0, 255}));
        const QString clear = source(pictures::plain(4, 4, Qt::transparent), "clear.png");
        QCOMPARE(service.addOverlayColor(clear, m_out, {}, {}, text("0")), ok);
        QCOMPARE(result("clear.png").pixel(0, 0), (Pixel{0, 0, 0, 255}));
    }

    void leavesThePictureInItsFields()
    {
        QCOMPARE(rounded(source(pictures::gradient(60, 40)), 0, "1", "0"), ok);
        const auto composed = m_service->property("composedMasked").value<Picture>();
        QCOMPARE(composed.size(), QSizeF(40, 40));
        QVERIFY(m_service->property("imageMasked").value<platform::BitmapHandle>().bitmap() == composed.bitmap());
        QVERIFY(!m_service->property("imageCIImage").value<ImageSource>().isNull());
        QCOMPARE(laid(m_folder.filePath(text("missing.jpg")), "0"), failed);
        QVERIFY(m_service->property("composedMasked").value<Picture>().isNull());
    }

    /** A JPEG becomes a PNG without a bitmap, which is made when somebody asks for it, from the file as it was. */
    void leavesItThereWithoutABitmap_data()
    {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<bool>("isWritten");
        QTest::newRow("round corners") << text("0") << true;
        QTest::newRow("an ellipse") << text("2") << true;
        QTest::newRow("no folder") << text("0") << false;
    }

    void leavesItThereWithoutABitmap()
    {
        QFETCH(QString, shape);
        QFETCH(bool, isWritten);
        const QString path = m_folder.filePath(text("dense.jpg"));
        QVERIFY(QFile::copy(pictureNamed("own/dpi/jfif-300dpi.jpg"), path));
        m_sheet->fillBackground("#10c820", "0");
        QCOMPARE(m_service->roundCornersOfImage(path, m_out, 10, shape, text("1")), ok); // the long way
        const Bitmap filled = m_service->property("composedMasked").value<Picture>().bitmap();
        m_sheet->check.setProperty("state", 0);
        QCOMPARE(m_service->roundCornersOfImage(path, m_out, 10, shape, text("1")), ok);
        const Bitmap known = m_service->property("composedMasked").value<Picture>().bitmap();
        QVERIFY(known.toRawImage() != filled.toRawImage());
        const QString prefix = isWritten ? m_out : m_out + text("missing/");
        QCOMPARE(m_service->roundCornersOfImage(path, prefix, 10, shape, text("0")), isWritten ? ok : failed);
        QVERIFY(QFile::remove(path));
        const auto composed = m_service->property("composedMasked").value<Picture>();
        QCOMPARE(composed.size(), QSizeF(known.size()));
        QCOMPARE(composed.bitmap().toRawImage(), known.toRawImage());
        QCOMPARE(composed.bitmap().horizontalDpi(), known.horizontalDpi());
        QCOMPARE(composed.bitmap().jpegQuantisation()->tables, known.jpegQuantisation()->tables);
        QVERIFY(m_service->property("imageMasked").value<platform::BitmapHandle>().bitmap() == composed.bitmap());
        QVERIFY(m_service->property("composedMasked").value<Picture>() == composed);
        if (isWritten)
            QCOMPARE(result("dense.png").toRawImage(), known.toRawImage());
    }

    void keepsWhatAScriptPutsThere()
    {
        const QString path = pictureNamed("own/dpi/jfif-300dpi.jpg");
        QCOMPARE(rounded(path, 10, "0", "0"), ok);
        const Picture other(Bitmap::fromImage(pictures::gradient(3, 2)));
        QVERIFY(m_service->setProperty("composedMasked", QVariant::fromValue(other)));
        QVERIFY(m_service->property("composedMasked").value<Picture>() == other);
        QCOMPARE(m_service->property("imageMasked").value<platform::BitmapHandle>().bitmap().size(),
                 Picture::fromFile(path).bitmap().size());
        QCOMPARE(rounded(path, 10, "0", "0"), ok);
        QVERIFY(m_service->setProperty("imageMasked", QVariant::fromValue(platform::BitmapHandle())));
        QVERIFY(m_service->property("imageMasked").value<platform::BitmapHandle>().isNull());
        QVERIFY(!m_service->property("composedMasked").value<Picture>().isNull());
        QCOMPARE(rounded(m_folder.filePath(text("missing.jpg")), 5, "1", "0"), failed);
        QVERIFY(m_service->property("composedMasked").value<Picture>().isNull());
    }

    void laysTransparentPicturesOnTheColor()
    {
        m_sheet->well.setColor(text("#ff8000"));
        QImage image = pictures::plain(20, 10, QColor(0, 0, 0, 0));
        image.setPixelColor(3, 4, QColor(1, 2, 3));
        QCOMPARE(laid(source(image), "1"), ok);
        const Bitmap tiff = result("photo.tiff");
        QVERIFY(!tiff.hasAlpha());
        QCOMPARE(tiff.pixel(0, 0), (Pixel{255, 128, 0, 255}));
        QCOMPARE(tiff.pixel(3, 4), (Pixel{1, 2, 3, 255}));
        QCOMPARE(m_service->property("composedMasked").value<Picture>().bitmap().pixel(0, 0),
                 (Pixel{255, 128, 0, 255}));
    }

    void carriesMetadataOnlyWithRoundCorners()
    {
        const QString path = pictureNamed("own/metadata/every-group.jpg");
        const auto model = [this](const char *name) {
            const auto opened = ImageSource::open(m_out + text(name));
            return opened ? opened->properties()->value(text("{TIFF}")).toMap().value(text("Model")).toString()
                          : QStringLiteral("no picture");
        };
        for (const char *code : {"1", "7"})
            QCOMPARE(rounded(path, 10, "0", code), ok);
        QCOMPARE(model("every-group.tiff"), QStringLiteral("Test Camera"));
        QCOMPARE(model("every-group.jpg"), QStringLiteral("Test Camera"));
        for (const char *code : {"1", "7"})
            QCOMPARE(laid(path, code), ok);
        QCOMPARE(model("every-group.tiff"), QString());
        QCOMPARE(model("every-group.jpg"), QString());
    }

    void keepsTheTablesOfAJpeg()
    {
        const QString path = pictureNamed("own/metadata/every-group.jpg");
        QCOMPARE(laid(path, "7"), ok);
        const auto before = Picture::fromFile(path).bitmap().jpegQuantisation();
        const auto after = result("every-group.jpg").jpegQuantisation();
        QVERIFY(before && after);
        QCOMPARE(after->tables, before->tables);
    }

    void keepsPixelsAndResolution_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("dpi");
        for (const auto &[name, dpi] :
             std::initializer_list<std::pair<const char *, double>>{{"own/dpi/jfif-300dpi.jpg", 300},
                                                                    {"own/dpi/phys-144dpi.png", 144},
                                                                    {"own/dpi/exif300-jfif72.jpg", 300}})
            QTest::newRow(name) << text(name) << dpi;
    }

    void keepsPixelsAndResolution()
    {
        QFETCH(QString, name);
        QFETCH(double, dpi);
        const QString path = picturePath(name);
        const QSize size = Picture::fromFile(path).bitmap().size();
        for (const char *code : {"0", "1", "7"}) {
            for (const bool isRounded : {true, false}) {
                QCOMPARE(isRounded ? rounded(path, 10, "0", code) : laid(path, code), ok);
                QCOMPARE(written().size(), 1);
                const Bitmap bitmap = Picture::fromFile(m_out + written().first()).bitmap();
                QCOMPARE(bitmap.size(), size);
                QVERIFY2(std::abs(bitmap.horizontalDpi() - dpi) < 0.05,
                         qPrintable(QString::number(bitmap.horizontalDpi())));
                QVERIFY(QFile::remove(m_out + written().first()));
            }
        }
    }

    void keepsSixteenBits()
    {
        QImage image(20, 20, QImage::Format_RGBA64);
        image.fill(QColor::fromRgba64(0x1234, 0x5678, 0x9abc, 0xffff));
        const QString path = source(image);
        for (const char *code : {"0", "1"})
            QCOMPARE(rounded(path, 5, "0", code), ok);
        for (const char *name : {"photo.png", "photo.tiff"}) {
            QCOMPARE(result(name).bitsPerComponent(), 16);
            QCOMPARE(result(name).toRawImage().pixelColor(10, 10).rgba64().red(), quint16(0x1234));
        }
    }

    void framesPicturesInMemory()
    {
        QImage image = pictures::gradient(100, 80);
        image.setDotsPerMeterX(2835); // 72 dots per inch
        image.setDotsPerMeterY(2835);
        const Picture plain = Picture::fromFile(source(image));
        const Picture framed = m_service->addBorderToImage(plain);
        QCOMPARE(framed.size(), QSizeF(120, 100));
        QCOMPARE(framed.bitmap().pixel(9, 50), (Pixel{255, 255, 255, 255}));
        QCOMPARE(framed.bitmap().pixel(10, 10), plain.bitmap().pixel(0, 0));
        const Picture dense = m_service->addBorderToImage(Picture::fromFile(pictureNamed("own/dpi/jfif-300dpi.jpg")));
        QCOMPARE(dense.size(), QSizeF(80, 60));
        QCOMPARE(dense.bitmap().pixel(10 + 15, 49), (Pixel{255, 255, 255, 255})); // 60 pixels are 14.4 points
        QVERIFY(dense.bitmap().pixel(10 + 13, 49) != (Pixel{255, 255, 255, 255}));
        QVERIFY(dense.bitmap().pixel(10, 60 - 10 - 9) != (Pixel{255, 255, 255, 255}));
        QCOMPARE(dense.bitmap().pixel(10, 60 - 10 - 11), (Pixel{255, 255, 255, 255}));
        QVERIFY(m_service->addBorderToImage(Picture()).isNull());
    }

    void switchesFiveControls()
    {
        const std::vector<QObject *> five = {&m_sheet->well, &m_sheet->borderWidth, &m_sheet->addBorder,
                                             &m_sheet->addBorderPx, &m_sheet->borderColor};
        for (const int state : {1, 0, 1, -1, 1, 2}) {
            m_sheet->check.setProperty("state", state);
            m_service->statusAddBgColor({});
            for (const QObject *control : five)
                QCOMPARE(control->property("enabled").toBool(), state == 1);
            QVERIFY(m_sheet->format.property("enabled").toBool());
        }
        ZtImageHandling unconnected;
        unconnected.statusAddBgColor({});
    }

    void survivesWholeCorpus_data()
    {
        QTest::addColumn<QString>("path");
        for (const expected::Row &row : expected::rows())
            QTest::newRow(qPrintable(row.name)) << row.path;
    }

    void survivesWholeCorpus()
    {
        QFETCH(QString, path);
        const Bitmap upright = Picture::fromFile(path).bitmap();
        // A large one costs much in every type and shows nothing that a small one does not.
        const bool isLarge = qint64(upright.width()) * upright.height() > 50'000;
        m_sheet->fillBackground("#336699", "2");
        LogCapture log;
        QStringList statuses;
        for (const char *code :
             isLarge ? std::vector<const char *>{"7"} : std::vector<const char *>{"0", "1", "2", "7"}) {
            m_sheet->check.setProperty("state", 0);
            statuses << rounded(path, 9, "1", code) << laid(path, code);
            if (isLarge)
                continue;
            statuses << rounded(path, 9, "0", code);
            m_sheet->check.setProperty("state", 1);
            statuses << rounded(path, 9, "0", code) << rounded(path, 9, "2", code);
        }
        log.text();
        for (const QString &status : statuses)
            QVERIFY(status == ok || status == failed || status == notSupported);
        if (upright.isNull())
            QVERIFY(!statuses.contains(ok));
        else if (!isLarge)
            QVERIFY(statuses.count(ok) >= 15);
    }
};

QUORLIN_TEST(Composing)
#include "tst_composing.moc"
