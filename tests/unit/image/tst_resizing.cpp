#include "image/ZtImageHandling.h"
#include "tests/support/corpus.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using platform::Picture;

namespace {
const QString ok = QStringLiteral("OK");
const QString png = QStringLiteral("public.png");
const QString ownType = QStringLiteral("original file type");
} // namespace

class Resizing : public QObject
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
    QSize sizeOf(const char *name) const { return Picture::fromFile(m_out + QString::fromUtf8(name)).bitmap().size(); }

private Q_SLOTS:
    void init()
    {
        m_folder = QTemporaryDir();
        QVERIFY(m_folder.isValid());
        m_out = m_folder.filePath(QStringLiteral("out/"));
        QVERIFY(QDir().mkpath(m_out));
    }

    void scalesByOneNumber_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<quint32>("mode");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("factor");
        QTest::newRow("width") << 100U << 0U << QSize(100, 75) << 25.0;
        QTest::newRow("height") << 100U << 1U << QSize(133, 100) << 10000 / 300.0;
        QTest::newRow("longest side") << 100U << 2U << QSize(100, 75) << 25.0;
        QTest::newRow("per cent") << 25U << 3U << QSize(100, 75) << 0.0;
        QTest::newRow("larger") << 800U << 0U << QSize(800, 600) << 200.0;
        QTest::newRow("one pixel") << 2U << 0U << QSize(2, 1) << 0.5;
    }

    void scalesByOneNumber()
    {
        QFETCH(quint32, number);
        QFETCH(quint32, mode);
        QFETCH(QSize, size);
        ZtImageHandling service;
        const QString path = source(pictures::gradient(400, 300));
        const QByteArray before = pictures::bytesOf(path);
        QCOMPARE(service.resizeImage(path, number, mode, m_out, ownType, QStringLiteral("8")), ok);
        QCOMPARE(written(), QStringList{QStringLiteral("photo.png")});
        QCOMPARE(sizeOf("photo.png"), size);
        QCOMPARE(service.property("newImgW").toInt(), size.width());
        QCOMPARE(service.property("newImgH").toInt(), size.height());
        QTEST(service.property("myScaleFactor").toDouble(), "factor");
        QCOMPARE(pictures::bytesOf(path), before);
    }

    void keepsTheSizeOfTheCallBeforeFromModeFourOn()
    {
        ZtImageHandling service;
        const QString path = source(pictures::gradient(40, 30));
        service.resizeImage(path, 20, 0, m_out, png, {});
        QCOMPARE(service.resizeImage(source(pictures::gradient(64, 64), "other.png"), 999, 4, m_out, png, {}), ok);
        QCOMPARE(sizeOf("other.png"), QSize(20, 15));
        QCOMPARE(service.resizeImage(path, 1, 4000000000U, m_out, png, {}), ok);
        QCOMPARE(sizeOf("photo.png"), QSize(20, 15));
    }

    void leavesTheScaleFactorAloneInPerCent()
    {
        ZtImageHandling service;
        const QString path = source(pictures::gradient(40, 30));
        service.resizeImage(path, 20, 0, m_out, png, {});
        service.resizeImage(path, 10, 3, m_out, png, {});
        QCOMPARE(service.property("myScaleFactor").toDouble(), 50.0);
    }

    void fillsAndCuts()
    {
        ZtImageHandling service;
        const QString path = source(pictures::gradient(400, 300));
        QCOMPARE(service.resizeImage2(path, 100, 100, 1, m_out, png, {}), ok);
        QCOMPARE(sizeOf("photo.png"), QSize(100, 100));
        QCOMPARE(service.property("newImgW").toInt(), 133);
        QCOMPARE(service.property("newImgH").toInt(), 100);
        QCOMPARE(service.property("myXWOffset").toInt(), 16);
        QCOMPARE(service.property("myYHOffset").toInt(), 0);
        QCOMPARE(service.property("myScaleFactor").toDouble(), 0.0);
    }

    void cutsWhatTheFilledPictureDoesNotReach()
    {
        ZtImageHandling service;
        QCOMPARE(service.resizeImage2(source(pictures::gradient(74, 74)), 1000, 1000, 1, m_out, png, {}), ok);
        QCOMPARE(sizeOf("photo.png"), QSize(1000, 999));
    }

    void stretchesInEveryOtherMode_data()
    {
        QTest::addColumn<int>("mode");
        for (const int mode : {0, 2, -1, 100})
            QTest::addRow("%d", mode) << mode;
    }

    void stretchesInEveryOtherMode()
    {
        QFETCH(int, mode);
        ZtImageHandling service;
        const QString path = source(pictures::gradient(40, 30));
        service.resizeImage(path, 20, 0, m_out, png, {});
        QCOMPARE(service.resizeImage2(path, 50, 90, mode, m_out, png, {}), ok);
        QCOMPARE(sizeOf("photo.png"), QSize(50, 90));
        QCOMPARE(service.property("newImgW").toInt(), 20);
        QCOMPARE(service.property("newImgH").toInt(), 15);
    }

    void cutsTheCentre()
    {
        QImage stripes = pictures::plain(300, 100, Qt::red);
        for (int y = 0; y < 100; ++y)
            for (int x = 100; x < 200; ++x)
                stripes.setPixelColor(x, y, Qt::green);
        ZtImageHandling service;
        QCOMPARE(service.resizeImage2(source(stripes), 100, 100, 1, m_out, png, {}), ok);
        const platform::Bitmap cut = Picture::fromFile(m_out + QStringLiteral("photo.png")).bitmap();
        const std::array<int, 4> green = {0, 255, 0, 255};
        for (const int x : {0, 50, 99})
            QCOMPARE(cut.pixel(x, 50), green);
    }

    void answersOkWithoutAFile_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<quint32>("mode");
        QTest::newRow("zero") << 0U << 0U;
        QTest::newRow("zero per cent") << 0U << 3U;
        QTest::newRow("a side below one pixel") << 1U << 0U;
        QTest::newRow("too many pixels") << 1000000U << 0U;
        QTest::newRow("a width that is negative in 32 bits") << 4294967295U << 0U;
        QTest::newRow("a wrapped product") << 42949673U << 0U;
        QTest::newRow("no size computed yet") << 100U << 7U;
    }

    void answersOkWithoutAFile()
    {
        QFETCH(quint32, number);
        QFETCH(quint32, mode);
        ZtImageHandling service;
        LogCapture log;
        QCOMPARE(service.resizeImage(source(pictures::gradient(400, 300)), number, mode, m_out, png, {}), ok);
        QCOMPARE(log.text(), QByteArray());
        QCOMPARE(written(), QStringList());
    }

    void answersOkWithoutAFileForASourceItCannotRead_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &name : picturesThere(
                 {"own/broken/zero-byte.jpg", "own/broken/text-named.jpg", "own/broken/truncated.jpg",
                  "own/broken/truncated.gif", "own/broken/truncated.png", "own/broken/truncated.tif",
                  "own/broken/spoilt-data.png", "own/broken/bomb-60000x60000.png", "own/broken/bomb-100000x100000.tif",
                  "own/broken/bomb-30000x30000.bmp", "own/broken/no such file.png", "broken/truncated-real-camera.jpg",
                  "broken/truncated_image.png", "broken/17000x17000.avif", "broken/decompression_bomb.gif",
                  "broken/crash-4f085cc12ece8cde18758d42608bed6a2a2cfb1c.tif"}))
            QTest::newRow(qPrintable(name)) << picturePath(name);
    }

    void answersOkWithoutAFileForASourceItCannotRead()
    {
        QFETCH(QString, path);
        ZtImageHandling service;
        LogCapture log;
        for (quint32 mode = 0; mode < 5; ++mode)
            QCOMPARE(service.resizeImage(path, 50, mode, m_out, png, {}), ok);
        QCOMPARE(service.resizeImage2(path, 50, 50, 1, m_out, png, {}), ok);
        QCOMPARE(service.resizeImage2(path, 50, 50, 0, m_out, png, {}), ok);
        QCOMPARE(log.text(), QByteArray());
        QCOMPARE(written(), QStringList());
    }

    void decidesTheType()
    {
        ZtImageHandling service;
        const QString path = source(pictures::gradient(8, 8), "photo.PNG");
        QCOMPARE(service.property("myFileType").toString(), QString());
        service.resizeImage(path, 4, 0, m_out, QStringLiteral("public.jpeg"), {});
        QCOMPARE(service.property("fileExtension").toString(), QStringLiteral("PNG"));
        QCOMPARE(service.property("fileUTI").toString(), png);
        QCOMPARE(service.property("myFileType").toString(), QStringLiteral("public.jpeg"));
        QVERIFY(service.property("fileExtensionNSString").toString().isNull());
        service.resizeImage(path, 4, 0, m_out, ownType, {});
        QCOMPARE(service.property("fileExtensionNSString").toString(), QStringLiteral("PNG"));
        QCOMPARE(service.property("myFileType").toString(), png);
        QCOMPARE(written(), (QStringList{QStringLiteral("photo.jpg"), QStringLiteral("photo.png")}));
    }

    void doesNotSupportPhotoshopAndPdf_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::newRow("Photoshop source") << QStringLiteral("a.psd") << ownType;
        QTest::newRow("PDF source") << QStringLiteral("a.PDF") << ownType;
        QTest::newRow("Photoshop wanted") << QStringLiteral("a.png") << QStringLiteral("com.adobe.photoshop-image");
        QTest::newRow("PDF wanted") << QStringLiteral("a.png") << QStringLiteral("com.adobe.pdf");
    }

    void doesNotSupportPhotoshopAndPdf()
    {
        QFETCH(QString, name);
        QFETCH(QString, type);
        ZtImageHandling service;
        const QString missing = m_folder.filePath(name);
        QCOMPARE(service.resizeImage(missing, 4, 0, m_out, type, {}), QStringLiteral("Not Supported"));
        QCOMPARE(service.resizeImage2(missing, 4, 4, 0, m_out, type, {}), QStringLiteral("Not Supported"));
        QCOMPARE(service.property("newImgW").toInt(), 0);
        QCOMPARE(written(), QStringList());
    }

    void failsForATypeItDoesNotWrite()
    {
        ZtImageHandling service;
        const QString path = source(pictures::gradient(8, 8));
        QCOMPARE(service.resizeImage(path, 4, 0, m_out, QStringLiteral("public.heic"), {}), QStringLiteral("Failed"));
        QCOMPARE(service.resizeImage(path, 4, 0, m_out, 12, {}), QStringLiteral("Failed"));
        QCOMPARE(written(), QStringList());
    }

    void failsWithALogLineWhereItCannotWrite()
    {
        ZtImageHandling service;
        const QString path = source(pictures::gradient(8, 8));
        LogCapture log;
        QCOMPARE(service.resizeImage(path, 4, 0, m_folder.filePath(QStringLiteral("none/")), png, {}),
                 QStringLiteral("Failed"));
        QVERIFY(log.text().startsWith("Failed to write image to file:///"));
    }

    void readsUpright_data()
    {
        QTest::addColumn<QString>("path");
        for (int orientation = 1; orientation <= 8; ++orientation)
            QTest::addRow("%d", orientation) << picturePath("own/orientation/landscape_%1.jpg").arg(orientation);
    }

    void readsUpright()
    {
        QFETCH(QString, path);
        ZtImageHandling service;
        QCOMPARE(service.hGetPixelSize(path), QStringLiteral("60x40px"));
        QCOMPARE(service.resizeImage(path, 30, 0, m_out + QStringLiteral("turned-"), png, {}), ok);
        service.resizeImage(picturePath("own/orientation/landscape_2.jpg"), 30, 0, m_out, png, {});
        const QStringList turned = written().filter(QStringLiteral("turned-"));
        QCOMPARE(turned.size(), 1);
        const platform::Bitmap one = Picture::fromFile(m_out + turned.first()).bitmap();
        const platform::Bitmap other = Picture::fromFile(m_out + QStringLiteral("landscape_2.png")).bitmap();
        QCOMPARE(one.size(), QSize(30, 20));
        for (const QPoint corner : {QPoint(1, 1), QPoint(28, 1), QPoint(1, 18), QPoint(28, 18)})
            for (size_t part = 0; part < 3; ++part)
                QVERIFY(std::abs(one.pixel(corner.x(), corner.y())[part] - other.pixel(corner.x(), corner.y())[part]) <=
                        12);
    }

    void answersTheSizeOfWhatCannotBeRead()
    {
        ZtImageHandling service;
        QCOMPARE(service.hGetPixelSize(m_folder.filePath(QStringLiteral("missing.jpg"))), QStringLiteral("0x0px"));
        QCOMPARE(service.hGetPixelSize(picturePath("own/broken/zero-byte.jpg")), QStringLiteral("0x0px"));
        QVERIFY(
            service.hNSURLtoCIImage(QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("missing.jpg")))).isNull());
    }

    void keepsAColourThatIsEverywhereTheSame_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("8 bit") << int(QImage::Format_RGB32);
        QTest::newRow("8 bit with alpha") << int(QImage::Format_RGBA8888);
        QTest::newRow("16 bit") << int(QImage::Format_RGBX64);
        QTest::newRow("16 bit with alpha") << int(QImage::Format_RGBA64);
        QTest::newRow("grey") << int(QImage::Format_Grayscale8);
        QTest::newRow("16 bit grey") << int(QImage::Format_Grayscale16);
    }

    void keepsAColourThatIsEverywhereTheSame()
    {
        QFETCH(int, format);
        QImage image = pictures::plain(50, 40, QColor(90, 90, 90, 200), QImage::Format_RGBA8888)
                           .convertToFormat(QImage::Format(format));
        ZtImageHandling service;
        const QString path = source(image);
        const std::array<int, 4> before = Picture::fromFile(path).bitmap().pixel(1, 1);
        for (const quint32 width : {7U, 50U, 131U}) {
            QCOMPARE(service.resizeImage(path, width, 0, m_out, png, {}), ok);
            const platform::Bitmap scaled = Picture::fromFile(m_out + QStringLiteral("photo.png")).bitmap();
            QCOMPARE(scaled.bitsPerComponent(), Picture::fromFile(path).bitmap().bitsPerComponent());
            QCOMPARE(scaled.pixel(3, 2), before);
            QCOMPARE(scaled.pixel(0, 0), before);
        }
    }
};

QUORLIN_TEST(Resizing)
#include "tst_resizing.moc"
