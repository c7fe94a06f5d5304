#include "image/ZtImageHandling.h"
#include "platform/file/atomic_file.h"
#include "platform/imageio/formats/type_identifiers.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::ImageSource;
using platform::Picture;

namespace {

Bitmap storedPixels(const QString &path)
{
    platform::DecodeOptions options;
    options.orientation = platform::Orientation::AsStored;
    return ImageSource::open(path)
        .and_then([&](const ImageSource &source) { return source.decode(options); })
        .value_or(Bitmap());
}

/** Three quarters white, with a red corner at the top right: it distinguishes every rotation. */
QImage asymmetric(int width, int height)
{
    QImage image = pictures::plain(width, height, Qt::white, QImage::Format_RGB888);
    for (int y = 0; y < height / 2; ++y)
        for (int x = width / 2; x < width; ++x)
            image.setPixelColor(x, y, Qt::red);
    return image;
}

bool isRed(const Bitmap &bitmap, double x, double y)
{
    const auto pixel = bitmap.pixel(int(x * bitmap.width()), int(y * bitmap.height()));
    return pixel[0] > 200 && pixel[1] < 60 && pixel[2] < 60;
}

const char *const types[] = {"png", "tiff", "tif", "bmp", "gif", "jpg", "jpeg", "jp2"};

} // namespace

class Turning : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString at(const QString &name) const { return m_folder.filePath(name); }
    QString out() const { return m_folder.filePath(QStringLiteral("out/")); }
    QStringList written() const { return QDir(out()).entryList(QDir::Files | QDir::Hidden); }

    /** A picture in the format of its extension. */
    QString made(const QString &name, const QImage &image)
    {
        const auto format = platform::fileFormatForType(platform::typeIdentifierForPath(name));
        const auto done = platform::writeImageFile(at(name), Bitmap::fromImage(image), *format);
        return done ? at(name) : QString();
    }

    static QString turn(ZtImageHandling &service, const QString &operation, const QString &path, const QString &prefix)
    {
        if (operation == QLatin1String("horizontal"))
            return service.hFlipHorizontalPicture(path, prefix);
        if (operation == QLatin1String("vertical"))
            return service.hFlipVerticalPicture(path, prefix);
        return service.hRotatePicture(path, prefix, operation);
    }

private Q_SLOTS:
    void init()
    {
        m_folder = QTemporaryDir();
        QVERIFY(m_folder.isValid());
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("out")));
    }

    void turnsIntoTheSourcesOwnTypeAndName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPointF>("red");
        for (const char *type : types) {
            const auto row = [type](const char *operation, QSize size, QPointF red) {
                QTest::addRow("%s %s", type, operation) << QStringLiteral("a picture.") + QString::fromLatin1(type)
                                                        << QString::fromLatin1(operation) << size << red;
            };
            row("horizontal", {96, 64}, {0.25, 0.25});
            row("vertical", {96, 64}, {0.75, 0.75});
            row("90", {64, 96}, {0.25, 0.25});
            row("180", {96, 64}, {0.25, 0.75});
            row("270", {64, 96}, {0.75, 0.75});
            row("-90", {64, 96}, {0.75, 0.75});
            row("0", {96, 64}, {0.75, 0.25});
            row("360", {96, 64}, {0.75, 0.25});
            row("7", {103, 75}, {0.7, 0.25});
            row("45", {113, 113}, {0.5, 0.3});
        }
    }

    void turnsIntoTheSourcesOwnTypeAndName()
    {
        QFETCH(QString, name);
        QFETCH(QString, operation);
        QFETCH(QSize, size);
        QFETCH(QPointF, red);
        const QString source = made(name, asymmetric(96, 64));
        const QByteArray before = pictures::bytesOf(source);
        ZtImageHandling service;
        QCOMPARE(turn(service, operation, source, out()), QStringLiteral("OK"));
        QCOMPARE(written(), QStringList{name});
        QCOMPARE(pictures::bytesOf(source), before);
        const Bitmap result = storedPixels(out() + name);
        QCOMPARE(result.size(), size);
        QCOMPARE(ImageSource::open(out() + name)->typeIdentifier(), platform::typeIdentifierForPath(name));
        for (const QPointF place : {QPointF(0.25, 0.25), QPointF(0.75, 0.25), QPointF(0.25, 0.75), QPointF(0.75, 0.75)})
            if (size != QSize(113, 113)) // there the corner points upwards
                QCOMPARE(isRed(result, place.x(), place.y()),
                         std::abs(place.x() - red.x()) < 0.1 && std::abs(place.y() - red.y()) < 0.1);
        QVERIFY(isRed(result, red.x(), red.y()));
        QCOMPARE(service.property("myFileType").toString(), platform::typeIdentifierForPath(name));
        QCOMPARE(service.property("fileExtension").toString(), name.section(u'.', -1));
        QCOMPARE(service.property("fileUTI").toString(), platform::typeIdentifierForPath(name));
    }

    void remembersTheAngle_data()
    {
        QTest::addColumn<QVariant>("angle");
        QTest::addColumn<double>("degrees");
        QTest::newRow("text") << QVariant(QStringLiteral("90")) << 90.0;
        QTest::newRow("number") << QVariant(90) << 90.0;
        QTest::newRow("single precision") << QVariant(0.1) << double(0.1F);
        QTest::newRow("text in single precision") << QVariant(QStringLiteral("0.1")) << double(0.1F);
        QTest::newRow("with a unit") << QVariant(QStringLiteral("12.5deg")) << 12.5;
        QTest::newRow("no number") << QVariant(QStringLiteral("abc")) << 0.0;
        QTest::newRow("nothing") << QVariant() << 0.0;
    }

    void remembersTheAngle()
    {
        QFETCH(QVariant, angle);
        QFETCH(double, degrees);
        const QString source = made(QStringLiteral("a.png"), asymmetric(20, 10));
        ZtImageHandling service;
        QCOMPARE(service.hRotatePicture(source, out(), angle), QStringLiteral("OK"));
        QCOMPARE(service.property("degrees").toDouble(), degrees);
        QCOMPARE(service.property("wmAngle").toDouble(), 0.0);
        QVERIFY(!service.hRotatePictureBase(Picture::fromFile(source), angle).isNull());
        QCOMPARE(service.property("wmAngle").toDouble(), degrees);
    }

    void neverWritesPhotoshopAndPdf_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"a.psd", "a.PSD", "a.pdf", "a.Pdf"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void neverWritesPhotoshopAndPdf()
    {
        QFETCH(QString, name);
        LogCapture log;
        ZtImageHandling service;
        for (const char *operation : {"horizontal", "vertical", "90"})
            QCOMPARE(turn(service, QString::fromLatin1(operation), at(name), out()), QStringLiteral("Not Supported"));
        QCOMPARE(log.text(), QByteArray());
        QVERIFY(written().isEmpty());
    }

    void saysThatThereIsNoImage_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("message");
        QTest::newRow("no file") << QByteArray() << QByteArray("Image source is NULL.");
        QTest::newRow("no picture") << QByteArray("text, not a picture") << QByteArray("Image source is NULL.");
        QImage image = asymmetric(96, 64);
        const QByteArray jpeg = *platform::encodeImage(Bitmap::fromImage(image), platform::FileFormat::Jpeg);
        const QByteArray png = *platform::encodeImage(Bitmap::fromImage(image), platform::FileFormat::Png);
        const QByteArray unread("Image not created from image source.");
        QTest::newRow("cut JPEG") << jpeg.left(jpeg.size() / 2) << unread;
        QTest::newRow("cut PNG") << png.left(png.size() / 2) << unread;
        QTest::newRow("only a header") << png.left(8) << unread;
        QByteArray damaged = png;
        damaged[damaged.size() / 2] = char(damaged[damaged.size() / 2] ^ 0x55);
        QTest::newRow("damaged PNG") << damaged << unread;
        QByteArray huge = jpeg;
        const qsizetype frame = huge.indexOf(QByteArray("\xff\xc0", 2));
        huge.replace(frame + 5, 4, QByteArray("\xff\xff\xff\xff", 4));
        QTest::newRow("billions of pixels") << huge << unread;
    }

    void saysThatThereIsNoImage()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, message);
        if (!content.isEmpty())
            QVERIFY(platform::replaceFile(at(QStringLiteral("a.jpg")), content));
        for (const char *operation : {"horizontal", "vertical", "90", "7"}) {
            LogCapture log;
            ZtImageHandling service;
            const QString answer = turn(service, QString::fromLatin1(operation), at(QStringLiteral("a.jpg")), out());
            QCOMPARE(log.text(), message);
            QVERIFY(answer.isNull());
            QVERIFY(written().isEmpty());
        }
    }

    void failsForTypesThatAreNotWritten()
    {
        const QString source = made(QStringLiteral("a.png"), asymmetric(20, 10));
        for (const char *name : {"a.heic", "a.unknown", "a"}) {
            QVERIFY(QFile::copy(source, at(QString::fromLatin1(name))));
            LogCapture log;
            ZtImageHandling service;
            QCOMPARE(service.hRotatePicture(at(QString::fromLatin1(name)), out(), 90), QStringLiteral("Failed"));
            QCOMPARE(log.text(), QByteArray());
        }
        QVERIFY(written().isEmpty());
    }

    void failsWhereItCannotWrite_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("through pixels") << QStringLiteral("a.png");
        QTest::newRow("without loss") << QStringLiteral("a.jpg");
    }

    void failsWhereItCannotWrite()
    {
        QFETCH(QString, name);
        const QString source = made(name, asymmetric(96, 64));
        const QString prefix = at(QStringLiteral("not there/"));
        LogCapture log;
        ZtImageHandling service;
        QCOMPARE(service.hFlipVerticalPicture(source, prefix), QStringLiteral("Failed"));
        QCOMPARE(log.text(), "Failed to write image to file://" + m_folder.path().toUtf8() + "/not%20there/" +
                                 name.toUtf8() + "\n");
    }

    void failsForAnglesThatNoCanvasHolds_data()
    {
        QTest::addColumn<QVariant>("angle");
        QTest::newRow("infinite") << QVariant(qInf());
        QTest::newRow("no number") << QVariant(qQNaN());
        QTest::newRow("beyond single precision") << QVariant(QStringLiteral("-1e99"));
    }

    void failsForAnglesThatNoCanvasHolds()
    {
        QFETCH(QVariant, angle);
        const QString source = made(QStringLiteral("a.png"), asymmetric(20, 10));
        LogCapture log;
        ZtImageHandling service;
        QCOMPARE(service.hRotatePicture(source, out(), angle), QStringLiteral("Failed"));
        QVERIFY(service.hRotatePictureBase(Picture::fromFile(source), angle).isNull());
        QVERIFY(log.text().startsWith("Failed to write image to file://"));
        QVERIFY(written().isEmpty());
    }

    void overwritesTheSourceWhereThePrefixIsItsFolder_data() { failsWhereItCannotWrite_data(); }

    void overwritesTheSourceWhereThePrefixIsItsFolder()
    {
        QFETCH(QString, name);
        const QString source = made(name, asymmetric(96, 64));
        ZtImageHandling service;
        QCOMPARE(service.hRotatePicture(source, m_folder.path() + u'/', QStringLiteral("90")), QStringLiteral("OK"));
        QCOMPARE(storedPixels(source).size(), QSize(64, 96));
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    }

    /**
     * The tag is neither applied nor dropped: if a properties dictionary reaches the file, it says the same as before.
     */
    void leavesTheOrientationTagAlone_data()
    {
        QTest::addColumn<QString>("path");
        for (const expected::Row &row : expected::rows(QStringLiteral("orientation/")))
            if (row.isDecodable)
                QTest::newRow(qPrintable(row.name)) << row.path;
    }

    void leavesTheOrientationTagAlone()
    {
        QFETCH(QString, path);
        const auto source = ImageSource::open(path);
        QVERIFY(source.has_value());
        const QString name = QFileInfo(path).fileName();
        const QString type = platform::typeIdentifierForPath(path);
        const bool carries = type == QLatin1String("public.jpeg") || type == QLatin1String("public.tiff");
        for (const char *operation : {"horizontal", "90", "7"}) {
            ZtImageHandling service;
            const QString answer = turn(service, QString::fromLatin1(operation), path, out());
            if (!platform::fileFormatForType(type)) {
                QCOMPARE(answer, QStringLiteral("Failed"));
                continue;
            }
            QCOMPARE(answer, QStringLiteral("OK"));
            const auto result = ImageSource::open(out() + name);
            QVERIFY(result.has_value());
            QCOMPARE(result->orientation(), carries ? source->orientation() : 1);
            if (operation[0] == 'h')
                QCOMPARE(result->storedSize(), source->storedSize());
            if (operation[0] == '9')
                QCOMPARE(result->storedSize(), source->storedSize().transposed());
        }
    }

    void writesTheSamePixelsWithAndWithoutDecoding()
    {
        // The same picture as a JPEG whose sides are whole blocks, and less one row and one column.
        const QString whole = made(QStringLiteral("whole.jpg"), pictures::gradient(96, 64));
        const QString odd = made(QStringLiteral("odd.jpg"), pictures::gradient(95, 63));
        ZtImageHandling service;
        for (const QString &path : {whole, odd}) {
            QCOMPARE(service.hFlipHorizontalPicture(path, out()), QStringLiteral("OK"));
            const Bitmap before = storedPixels(path);
            const Bitmap after = storedPixels(out() + QFileInfo(path).fileName());
            QCOMPARE(after.jpegQuantisation()->tables, before.jpegQuantisation()->tables);
            const int exact = path == whole ? 0 : 6; // what encoding once more with the same tables costs
            for (int y = 0; y < before.height(); ++y)
                for (int x = 0; x < before.width(); ++x)
                    for (size_t part = 0; part < 3; ++part)
                        QVERIFY(std::abs(before.pixel(x, y)[part] - after.pixel(before.width() - 1 - x, y)[part]) <=
                                exact);
        }
    }

    void turnsTheResolutionWithThePicture_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::newRow("TIFF") << QStringLiteral("a.tif") << QSize(40, 30);
        QTest::newRow("JPEG through pixels") << QStringLiteral("a.jpg") << QSize(39, 31);
        QTest::newRow("JPEG without loss") << QStringLiteral("a.jpg") << QSize(48, 32);
    }

    void turnsTheResolutionWithThePicture()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        QImage image = asymmetric(size.width(), size.height());
        image.setDotsPerMeterX(qRound(204 / 0.0254)); // as a fax has it
        image.setDotsPerMeterY(qRound(98 / 0.0254));
        platform::EncodeOptions options;
        options.resolution = platform::WriteResolution::Yes;
        options.metadata = platform::Metadata::fromProperties(
            {{QStringLiteral("DPIWidth"), 204.0}, {QStringLiteral("DPIHeight"), 98.0}});
        const auto format = platform::fileFormatForType(platform::typeIdentifierForPath(name));
        QVERIFY(platform::writeImageFile(at(name), Bitmap::fromImage(image), *format, options));
        const auto dpi = [](const QString &path) {
            const Bitmap bitmap = storedPixels(path);
            return QSize(qRound(bitmap.horizontalDpi()), qRound(bitmap.verticalDpi()));
        };
        QCOMPARE(dpi(at(name)), QSize(204, 98));
        ZtImageHandling service;
        for (const char *operation : {"90", "-90"}) {
            QCOMPARE(turn(service, QString::fromLatin1(operation), at(name), out()), QStringLiteral("OK"));
            QCOMPARE(dpi(out() + name), QSize(98, 204));
            const QVariantMap properties = ImageSource::open(out() + name)->metadata()->toProperties();
            QCOMPARE(properties.value(QStringLiteral("DPIWidth")).toDouble(), 98.0);
            QCOMPARE(properties.value(QStringLiteral("DPIHeight")).toDouble(), 204.0);
        }
        for (const char *operation : {"horizontal", "180", "7"}) {
            QCOMPARE(turn(service, QString::fromLatin1(operation), at(name), out()), QStringLiteral("OK"));
            QCOMPARE(dpi(out() + name), QSize(204, 98));
        }
    }

    void turnsPicturesInMemory()
    {
        const Picture picture(Bitmap::fromImage(asymmetric(100, 100)), QSizeF(50, 50));
        ZtImageHandling service;
        const Picture turned = service.hRotatePictureBase(picture, QStringLiteral("45"));
        QCOMPARE(turned.bitmap().size(), QSize(141, 141));
        QVERIFY(std::abs(turned.size().width() - 70.7106781) < 1e-6);
        QCOMPARE(turned.bitmap().pixel(0, 0)[3], 0);
        QVERIFY(isRed(turned.bitmap(), 0.5, 0.3));
        const Picture quarter = service.hRotatePictureBase(picture, 90);
        QVERIFY(isRed(quarter.bitmap(), 0.25, 0.25));
        QCOMPARE(quarter.bitmap().size(), QSize(100, 100));
        QVERIFY(service.hRotatePictureBase(Picture(), 45).isNull());
    }
};

QUORLIN_TEST(Turning)
#include "tst_turning.moc"
