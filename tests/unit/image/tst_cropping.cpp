#include "image/ZtImageHandling.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/log_capture.h"
#include "tests/support/sheet_stand_ins.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::Picture;

namespace {

const QString ok = QStringLiteral("OK");
const QString failed = QStringLiteral("Failed");
const QString png = QStringLiteral("public.png");
const QString ownType = QStringLiteral("original file type");

int number(const ZtImageHandling &service, const char *field)
{
    return service.property(field).toInt();
}

} // namespace

/** Crops and their frames as the service makes them from its sheet. */
class Cropping : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString m_out;

    QString source(const QImage &image, const char *name = "photo.png") const
    {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        return image.save(path) ? path : QString();
    }
    QStringList written() const { return QDir(m_out).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot); }
    Bitmap result(const char *name = "photo.png") const
    {
        return Picture::fromFile(m_out + QString::fromUtf8(name)).bitmap();
    }

private Q_SLOTS:
    void init()
    {
        m_folder = QTemporaryDir();
        QVERIFY(m_folder.isValid());
        m_out = m_folder.filePath(QStringLiteral("out/"));
        QVERIFY(QDir().mkpath(m_out));
    }

    void cutsTheShareThatIsLeft()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("%", 4);
        SheetStandIns::write(sheet.percentage, "25");
        const QString path = source(pictures::gradient(400, 300));
        const QByteArray before = pictures::bytesOf(path);
        QCOMPARE(service.cropImage(path, 1, 2, m_out, ownType, {}), ok);
        QCOMPARE(written(), QStringList{QStringLiteral("photo.png")});
        QCOMPARE(result().toRawImage(),
                 pictures::gradient(400, 300).copy(50, 37, 300, 225).convertToFormat(QImage::Format_RGB888));
        QCOMPARE(number(service, "myXWOffset"), 50);
        QCOMPARE(number(service, "myYHOffset"), 37);
        QCOMPARE(number(service, "myImageCropPercentage"), 75);
        QCOMPARE(number(service, "myImageCropPos"), 4);
        QCOMPARE(service.property("myCropType").toString(), QStringLiteral("%"));
        QCOMPARE(number(service, "myXWSize"), 0);
        QCOMPARE(pictures::bytesOf(path), before);
    }

    void readsTheShareAfreshInEveryCall()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("%", 0);
        SheetStandIns::write(sheet.percentage, "50");
        const QString path = source(pictures::gradient(40, 30));
        for (int call = 0; call < 2; ++call) {
            QCOMPARE(service.cropImage(path, 0, 0, m_out, png, {}), ok);
            QCOMPARE(result().size(), QSize(20, 15));
            QCOMPARE(number(service, "myImageCropPercentage"), 50);
        }
        sheet.choose("Pixels", 0);
        SheetStandIns::write(sheet.percentage, "20");
        SheetStandIns::write(sheet.pixels, "10px");
        QCOMPARE(service.cropImage(path, 0, 0, m_out, png, {}), ok);
        QCOMPARE(result().size(), QSize(30, 20));
        QCOMPARE(number(service, "myImageCropPercentage"), 20);
        QCOMPARE(number(service, "myImageCropPixels"), 10);
        QCOMPARE(service.property("myCropType").toString(), QStringLiteral("Pixels"));
    }

    void takesTheSizeFromItsArguments()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("W x H", 8);
        SheetStandIns::write(sheet.width, "3");
        SheetStandIns::write(sheet.height, "3");
        SheetStandIns::write(sheet.xOffset, "-2");
        SheetStandIns::write(sheet.yOffset, "-1");
        QCOMPARE(service.cropImage(source(pictures::gradient(40, 30)), 12, 7, m_out, png, {}), ok);
        QCOMPARE(result().size(), QSize(12, 7));
        QCOMPARE(result().pixel(0, 0), Bitmap::fromImage(pictures::gradient(40, 30)).pixel(26, 22));
        QCOMPARE(number(service, "myXWOffsetPlus"), -2);
        QCOMPARE(number(service, "myYHOffsetPlus"), -1);
    }

    void countsUnconnectedControlsAsZero()
    {
        ZtImageHandling service;
        QCOMPARE(service.property("myCropType").toInt(), 0);
        const QImage image = pictures::gradient(40, 30);
        QCOMPARE(service.cropImage(source(image), 5, 5, m_out, png, {}), ok);
        QCOMPARE(result().toRawImage(), image.convertToFormat(QImage::Format_RGB888));
        QCOMPARE(service.property("myCropType").toInt(), 0);
        QCOMPARE(service.property("cropBoxLine").toFloat(), 0.0F);
    }

    void leavesTheOriginAloneForOtherPositions()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("W x H", 9);
        service.setProperty("myXWOffset", 4);
        service.setProperty("myYHOffset", 6);
        SheetStandIns::write(sheet.xOffset, "100");
        const QString path = source(pictures::gradient(40, 30));
        QCOMPARE(service.cropImage(path, 10, 10, m_out, png, {}), ok);
        QCOMPARE(result().pixel(0, 0), Bitmap::fromImage(pictures::gradient(40, 30)).pixel(4, 6));
        QCOMPARE(number(service, "myXWOffset"), 4);
        QCOMPARE(number(service, "myXWOffsetPlus"), 100);
        QVERIFY(!service.hShowCropBox(path).isNull());
        QCOMPARE(number(service, "myYHOffset"), 6);
    }

    void cutsWhatReachesOutside()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("W x H", 0);
        SheetStandIns::write(sheet.xOffset, "-5");
        SheetStandIns::write(sheet.yOffset, "25");
        QCOMPARE(service.cropImage(source(pictures::gradient(40, 30)), 100, 100, m_out, png, {}), ok);
        QCOMPARE(result().size(), QSize(40, 5));
        QCOMPARE(result().pixel(0, 0), Bitmap::fromImage(pictures::gradient(40, 30)).pixel(0, 25));
        QCOMPARE(number(service, "myXWOffset"), -5);
    }

    void failsWhereNothingIsLeft()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("W x H", 0);
        const QString path = source(pictures::gradient(40, 30));
        for (const QSize size : {QSize(0, 10), QSize(10, 0), QSize(-5, 10), QSize(2147483647, -2147483647)}) {
            LogCapture log;
            QCOMPARE(service.cropImage(path, size.width(), size.height(), m_out, png, {}), failed);
            QCOMPARE(log.text(), "Failed to write image to file://" + (m_out + QStringLiteral("photo.png\n")).toUtf8());
        }
        QCOMPARE(written(), QStringList());
    }

    void failsInSilenceWithoutASource()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("Pixels", 4);
        SheetStandIns::write(sheet.pixels, "7");
        LogCapture log;
        for (const char *name : {"missing.png", "own/broken/zero-byte.jpg", "own/broken/truncated.jpg"})
            QCOMPARE(service.cropImage(picturePath(name), 10, 10, m_out, png, {}), failed);
        QCOMPARE(log.text(), QByteArray());
        QCOMPARE(written(), QStringList());
        QCOMPARE(number(service, "myXWOffset"), 3);
        QVERIFY(service.hShowCropBox(m_folder.filePath(QStringLiteral("missing.png"))).isNull());
        QCOMPARE(number(service, "myXWSize"), -7);
        QCOMPARE(service.property("cropBoxLine").toFloat(), 1.5F);
    }

    void writesEveryType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *type, const char *status, const char *name) {
            QTest::newRow(type) << QString::fromUtf8(type) << QString::fromUtf8(status) << QString::fromUtf8(name);
        };
        row("original file type", "OK", "photo.jpg");
        row("public.png", "OK", "photo.png");
        row("public.tiff", "OK", "photo.tiff");
        row("public.bmp", "OK", "photo.bmp");
        row("com.compuserve.gif", "OK", "photo.gif");
        row("public.jpeg", "OK", "photo.jpg");
        row("public.jp2", "OK", "photo.jp2");
        row("com.adobe.photoshop-image", "Not Supported", "");
        row("com.adobe.pdf", "Not Supported", "");
        row("public.webp", "Failed", "");
        row("", "Failed", "");
    }

    void writesEveryType()
    {
        QFETCH(QString, type);
        QFETCH(QString, name);
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("%", 4);
        SheetStandIns::write(sheet.percentage, "50");
        const QString path = source(pictures::gradient(40, 30), "photo.jpeg");
        QTEST(service.cropImage(path, 0, 0, m_out, type, QStringLiteral("5")), "status");
        QCOMPARE(written(), name.isEmpty() ? QStringList() : QStringList{name});
        if (!name.isEmpty())
            QCOMPARE(result(qPrintable(name)).size(), QSize(20, 15));
        QCOMPARE(service.property("myFileType").toString(), type == ownType ? QStringLiteral("public.jpeg") : type);
        QCOMPARE(service.property("fileExtension").toString(), QStringLiteral("jpeg"));
    }

    void readsNothingForTypesThatAreNeverWritten()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("%", 4);
        QCOMPARE(service.cropImage(QStringLiteral("/nowhere/a.psd"), 1, 1, m_out, ownType, {}),
                 QStringLiteral("Not Supported"));
        QCOMPARE(number(service, "myImageCropPos"), 0);
        QCOMPARE(service.property("fileExtensionNSString").toString(), QStringLiteral("psd"));
    }

    void cutsThePictureUpright()
    {
        const QString path = picturePath("own/orientation/portrait_6.jpg");
        const Bitmap upright = Picture::fromFile(path).bitmap();
        QCOMPARE(upright.size(), QSize(40, 60));
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("W x H", 2);
        SheetStandIns::write(sheet.yOffset, "10");
        QCOMPARE(service.cropImage(path, 30, 20, m_out, png, {}), ok);
        const Bitmap cut = result("portrait_6.png");
        QCOMPARE(cut.size(), QSize(30, 20));
        for (const int at : {0, 10, 19})
            QCOMPARE(cut.pixel(at, at), upright.pixel(10 + at, 10 + at));
    }

    void carriesMetadataIntoTiffOnly()
    {
        const QString path = picturePath("own/metadata/every-group.jpg");
        ZtImageHandling service;
        for (const char *type : {"public.tiff", "public.jpeg"})
            QCOMPARE(service.cropImage(path, 0, 0, m_out, QString::fromUtf8(type), QStringLiteral("9")), ok);
        const auto model = [this](const char *name) {
            const auto written = platform::ImageSource::open(m_out + QString::fromUtf8(name));
            return written
                       ? written->properties()->value(QStringLiteral("{TIFF}")).toMap().value(QStringLiteral("Model"))
                       : QVariant();
        };
        QCOMPARE(model("every-group.tiff").toString(), QStringLiteral("Test Camera"));
        QVERIFY(!model("every-group.jpg").isValid());
        QCOMPARE(service.property("properties").toMap().first().toDouble(), 0.9);
    }

    void showsTheFrameOnAnEmptyPicture()
    {
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("W x H", 4);
        SheetStandIns::write(sheet.width, "200");
        SheetStandIns::write(sheet.height, "100");
        SheetStandIns::write(sheet.yOffset, "20");
        const Picture frame = service.hShowCropBox(source(pictures::gradient(400, 300)));
        QCOMPARE(frame.bitmap().size(), QSize(400, 300));
        QCOMPARE(frame.size(), QSizeF(400, 300));
        QCOMPARE(service.property("cropBoxLine").toFloat(), 3.0F);
        QCOMPARE(number(service, "myXWOffset"), 100);
        QCOMPARE(number(service, "myYHOffset"), 80); // from the bottom
        QCOMPARE(number(service, "myXWSize"), 200);
        QCOMPARE(number(service, "myYHSize"), 100);
        const std::array<int, 4> red = {255, 59, 48, 255};
        const std::array<int, 4> nothing = {0, 0, 0, 0};
        QCOMPARE(frame.bitmap().pixel(102, 120), red);
        QCOMPARE(frame.bitmap().pixel(102, 219), red);
        QCOMPARE(frame.bitmap().pixel(200, 170), nothing);
        QCOMPARE(frame.bitmap().pixel(0, 0), nothing);
    }

    // The corner of the frame's line is where the cut begins, to half a line's width.
    void showsWhatIsCut()
    {
        QRandomGenerator random(7);
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        for (int round = 0; round < 18; ++round) {
            const QSize size(random.bounded(60, 200), random.bounded(60, 200));
            const QString path = source(pictures::gradient(size.width(), size.height()));
            sheet.choose("Pixels", round % 9);
            SheetStandIns::write(sheet.pixels, QByteArray::number(2 * random.bounded(5, 20)));
            SheetStandIns::write(sheet.xOffset, QByteArray::number(random.bounded(-4, 4)));
            SheetStandIns::write(sheet.yOffset, QByteArray::number(random.bounded(-4, 4)));
            const Bitmap frame = service.hShowCropBox(path).bitmap();
            const int left = number(service, "myXWOffset");
            const int bottom = size.height() - number(service, "myYHOffset");
            QCOMPARE(service.cropImage(path, 0, 0, m_out, png, {}), ok);
            const int top = number(service, "myYHOffset");
            QCOMPARE(number(service, "myXWOffset"), left);
            QCOMPARE(bottom - top, number(service, "myYHSize"));
            if (left > 2 && top > 2)
                QCOMPARE(result().pixel(0, 0),
                         Bitmap::fromImage(pictures::gradient(size.width(), size.height())).pixel(left, top));
            if (left > 0 && bottom < size.height())
                QVERIFY(frame.pixel(left, bottom)[3] > 128);
        }
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
        ZtImageHandling service;
        SheetStandIns sheet;
        sheet.connectTo(service);
        sheet.choose("%", 4);
        SheetStandIns::write(sheet.percentage, "40");
        LogCapture log;
        const Bitmap upright = Picture::fromFile(path).bitmap();
        const Picture frame = service.hShowCropBox(path);
        const QString status = service.cropImage(path, 0, 0, m_out, png, {});
        log.text();
        if (upright.isNull()) {
            QCOMPARE(written().isEmpty(), status != ok);
            return;
        }
        QCOMPARE(frame.bitmap().size(), upright.size());
        const QSize size(60 * upright.width() / 100, 60 * upright.height() / 100);
        QCOMPARE(status, size.isEmpty() ? failed : ok);
        if (!size.isEmpty())
            QCOMPARE(result(qPrintable(written().value(0))).size(), size);
    }
};

QUORLIN_TEST(Cropping)
#include "tst_cropping.moc"
