#include "app/preview/size_estimate.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/source/picture.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QFileInfo>
#include <QTest>

#include <cmath>

using jobs::Rendition;
using platform::Bitmap;
using platform::FileFormat;
using platform::Picture;
using window::CodedSample;

Q_DECLARE_METATYPE(platform::FileFormat)

namespace {

Rendition reducedTo(const Picture &picture, int longest)
{
    const QSize full = picture.pixelSize();
    const QSize size = full.scaled(longest, longest, Qt::KeepAspectRatio).boundedTo(full).expandedTo({1, 1});
    return {picture.scaledTo(size).value_or(Bitmap()), full};
}

double scanBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? double(file.size() - platform::startOfJpegScan(file)) : 0;
}

} // namespace

/** How well the size of a file is told before it is written. */
class TestSizeEstimate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheExponentBetweenTwoSizes();
    void isExactForBitmapFiles_data();
    void isExactForBitmapFiles();
    void isExactToAHairForTiff_data();
    void isExactToAHairForTiff();
    void isExactWhereAllPixelsAreThere_data();
    void isExactWhereAllPixelsAreThere();
    void comesNearForCameraPhotos_data();
    void comesNearForCameraPhotos();
    void answersNothingWithoutAPicture();
};

void TestSizeEstimate::findsTheExponentBetweenTwoSizes()
{
    QCOMPARE(window::exponentBetween({100, 1000}, {800, 10000}, 0.7), std::log(8) / std::log(10));
    QCOMPARE(window::exponentBetween({100, 1000}, {110, 1100}, 0.7), 0.7);
    QCOMPARE(window::exponentBetween({0, 0}, {110, 1100}, 0.7), 0.7);
    QCOMPARE(window::exponentBetween({100, 1000}, {100, 100000}, 0.7), 0.5);
    QCOMPARE(window::exponentBetween({100, 1000}, {1e9, 10000}, 0.7), 1.05);
    QCOMPARE(window::grown({100, 1000}, 4000, 0.5), 200.0);
    QCOMPARE(window::grown({100, 0}, 4000, 0.5), 0.0);
}

void TestSizeEstimate::isExactForBitmapFiles_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("colour") << pictures::gradient(101, 37);
    QTest::newRow("aligned") << pictures::gradient(100, 40);
    QTest::newRow("alpha") << pictures::plain(33, 20, QColor(1, 2, 3, 40));
    QTest::newRow("grey") << pictures::gradient(101, 37).convertToFormat(QImage::Format_Grayscale8);
}

void TestSizeEstimate::isExactForBitmapFiles()
{
    QFETCH(QImage, image);
    const Bitmap bitmap = Bitmap::fromImage(image);
    const auto encoded = platform::encodeImage(bitmap, FileFormat::Bmp);
    QVERIFY(encoded);
    QCOMPARE(window::estimatedFileBytes({bitmap, bitmap.size()}, FileFormat::Bmp, {}), double(encoded->size()));
}

void TestSizeEstimate::isExactToAHairForTiff_data()
{
    QTest::addColumn<QImage>("image");
    QTest::newRow("colour") << pictures::gradient(801, 637);
    QTest::newRow("alpha") << pictures::plain(333, 1200, QColor(1, 2, 3, 40));
    QTest::newRow("16 bits") << pictures::gradient(301, 237).convertToFormat(QImage::Format_RGBA64);
    QTest::newRow("grey") << pictures::gradient(301, 237).convertToFormat(QImage::Format_Grayscale8);
}

void TestSizeEstimate::isExactToAHairForTiff()
{
    QFETCH(QImage, image);
    const Picture picture(Bitmap::fromImage(image));
    const auto encoded = platform::encodeImage(picture.bitmap(), FileFormat::Tiff);
    QVERIFY(encoded);
    const auto estimate = window::estimatedFileBytes(reducedTo(picture, 60), FileFormat::Tiff, {});
    QVERIFY(estimate);
    QVERIFY2(std::abs(*estimate - double(encoded->size())) < 600,
             qPrintable(QStringLiteral("%1 for %2").arg(*estimate).arg(encoded->size())));
}

void TestSizeEstimate::isExactWhereAllPixelsAreThere_data()
{
    QTest::addColumn<FileFormat>("format");
    QTest::newRow("JPEG") << FileFormat::Jpeg;
    QTest::newRow("PNG") << FileFormat::Png;
    QTest::newRow("TIFF") << FileFormat::Tiff;
    QTest::newRow("GIF") << FileFormat::Gif;
    QTest::newRow("JPEG 2000") << FileFormat::Jpeg2000;
    QTest::newRow("BMP") << FileFormat::Bmp;
}

void TestSizeEstimate::isExactWhereAllPixelsAreThere()
{
    QFETCH(FileFormat, format);
    const Bitmap bitmap = Bitmap::fromImage(pictures::gradient(200, 150));
    platform::EncodeOptions options;
    options.lossyQuality = 0.8;
    const auto encoded = platform::encodeImage(bitmap, format, options);
    QVERIFY(encoded);
    QCOMPARE(window::estimatedFileBytes({bitmap, bitmap.size()}, format, options), double(encoded->size()));
}

void TestSizeEstimate::comesNearForCameraPhotos_data()
{
    QTest::addColumn<QString>("path");
    SKIP_WITHOUT_CORPUS();
    for (const expected::Row &row : expected::rows(QStringLiteral("exif-real/")))
        if (row.format == QLatin1String("JPEG") && row.isDecodable && row.upright.width() >= 600 &&
            !row.name.contains(QLatin1String("/uc-"))) // of the same pixels
            QTest::newRow(qPrintable(row.name)) << row.path;
}

// What stands for the preview has as many pixels as one on a small screen has.
void TestSizeEstimate::comesNearForCameraPhotos()
{
    QFETCH(QString, path);
    const Picture picture = Picture::opened(path);
    const Rendition small = reducedTo(picture, 320);
    const auto exponent = window::jpegExponent(small, scanBytes(path));
    QVERIFY(exponent);
    using Case = std::pair<FileFormat, std::optional<double>>;
    for (const auto &[format, quality] :
         {Case{FileFormat::Jpeg, 0.9}, Case{FileFormat::Jpeg, 0.6}, Case{FileFormat::Jpeg, std::nullopt},
          Case{FileFormat::Png, std::nullopt}, Case{FileFormat::Jpeg2000, std::nullopt},
          Case{FileFormat::Gif, std::nullopt}}) {
        platform::EncodeOptions options;
        options.lossyQuality = quality;
        const auto estimate = window::estimatedFileBytes(small, format, options, *exponent);
        const auto encoded = platform::encodeImage(picture.bitmap(), format, options);
        QVERIFY(estimate && encoded);
        const double factor = *estimate / double(encoded->size());
        qInfo("format %d, quality %.1f: %.0f estimated, %lld written, factor %.2f", int(format), quality.value_or(0),
              *estimate, qlonglong(encoded->size()), factor);
        QVERIFY2(factor > 0.5 && factor < 2, qPrintable(QString::number(factor)));
    }
}

void TestSizeEstimate::answersNothingWithoutAPicture()
{
    QVERIFY(!window::estimatedFileBytes({}, FileFormat::Jpeg, {}));
    QVERIFY(!window::estimatedFileBytes({}, FileFormat::Bmp, {}));
}

QUORLIN_TEST(TestSizeEstimate)
#include "tst_size_estimate.moc"
