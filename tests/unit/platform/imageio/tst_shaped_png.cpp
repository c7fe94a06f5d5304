#include "platform/imageio/convert/png_from_jpeg.h"

#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"
#include "tests/unit/platform/imageio/jpeg/jpeg_difference.h"

#include <QRandomGenerator>
#include <QTest>

using platform::Bitmap;
using platform::EncodeOptions;
using platform::FileFormat;
using platform::ImageSource;
using platform::Result;
using platform::RoundedRect;
using tests::jpegOf;
using tests::photograph;

namespace {

RoundedRect roundedBy(double radius, QSize size)
{
    return {QRectF(QPointF(0, 0), size), radius, radius};
}

EncodeOptions withResolution()
{
    EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    return options;
}

/** All pixels decoded, then seen through the shape. */
Result<Bitmap> shapedTheLongWay(const ImageSource &source, const RoundedRect &shape)
{
    return source.decode().and_then([&](const Bitmap &bitmap) {
        return platform::shapedBy(bitmap, QRect(QPoint(0, 0), bitmap.size()), shape, std::nullopt);
    });
}

/** The same bytes and pixels as the long way, and all that a bitmap knows besides them. */
void compare(const ImageSource &source, const RoundedRect &shape, const EncodeOptions &options)
{
    const auto png = platform::rowsAsShapedPng(source, shape, options);
    QVERIFY(png);
    const Result<Bitmap> bitmap = shapedTheLongWay(source, shape);
    QVERIFY(bitmap);
    QCOMPARE(png->file, platform::encodeImage(*bitmap, FileFormat::Png, options).value_or(QByteArray()));
    const Bitmap again = png->bitmap();
    QCOMPARE(again.toRawImage(), bitmap->toRawImage());
    QCOMPARE(again.bandCount(), bitmap->bandCount());
    QCOMPARE(again.iccProfile(), bitmap->iccProfile());
    QCOMPARE(again.horizontalDpi(), bitmap->horizontalDpi());
    QCOMPARE(again.verticalDpi(), bitmap->verticalDpi());
    QCOMPARE(again.jpegQuantisation()->tables, bitmap->jpegQuantisation()->tables);
}

} // namespace

/** JPEGs whose corners are rounded row by row. */
class ShapedPng : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheSameAtAnySize();
    void isTheSameOfCameras_data();
    void isTheSameOfCameras();
    void carriesWhatIsAskedFor();
    void leavesOtherPicturesToTheLongWay_data();
    void leavesOtherPicturesToTheLongWay();
    void leavesDamagedScansToTheLongWay();
};

/** Radii up to more than the picture allows, ellipses, and edges between pixels. */
void ShapedPng::isTheSameAtAnySize()
{
    QRandomGenerator random(68);
    for (int i = 0; i < tests::repetitions(20, 500); ++i) {
        const QSize size(random.bounded(1, 400), random.bounded(1, 300));
        const QImage image = photograph(size, quint32(i));
        const bool isGrey = i % 5 == 4;
        const Bitmap pixels = Bitmap::fromImage(isGrey ? image.convertToFormat(QImage::Format_Grayscale8) : image);
        const auto source = ImageSource::fromData(jpegOf(pixels, i % 2 == 0 ? 85 : 93));
        QVERIFY(source);
        RoundedRect shape = roundedBy(random.bounded(1, 220), size);
        if (i % 3 == 1)
            shape = {shape.rect, size.width() / 2.0, size.height() / 2.0};
        if (i % 3 == 2)
            shape.rect.adjust(random.bounded(9.0), random.bounded(9.0), -random.bounded(9.0), -random.bounded(9.0));
        compare(*source, shape, withResolution());
    }
    const auto wide = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph({9000, 30}, 1)), 85));
    compare(*wide, roundedBy(12, {9000, 30}), withResolution());
}

void ShapedPng::isTheSameOfCameras_data()
{
    QTest::addColumn<QString>("path");
    constexpr int mostPixels = 4'000'000;
    for (const expected::Row &row : expected::rows())
        if (row.format == QLatin1String("JPEG") && row.isDecodable &&
            row.stored.width() * row.stored.height() < mostPixels)
            QTest::newRow(qPrintable(row.name)) << row.path;
    for (const char *name : {"grey.jpg", "odd-size.jpg", "progressive.jpg", "restart-markers.jpg", "arithmetic.jpg",
                             "sampled-3x1.jpg", "sampled-411.jpg", "sampled-422.jpg", "sampled-440.jpg"})
        QTest::newRow(name) << QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromLatin1(name);
}

void ShapedPng::isTheSameOfCameras()
{
    QFETCH(QString, path);
    const auto source = ImageSource::open(path);
    if (!source)
        QSKIP("no decoder reads it");
    const RoundedRect shape = roundedBy(20, source->uprightSize());
    const bool isPossible = platform::rowsAsShapedPng(*source, shape, withResolution()).has_value();
    QVERIFY(isPossible || QString::fromUtf8(QTest::currentDataTag()) != QLatin1String("exif-real/Canon_40D.jpg"));
    if (isPossible)
        compare(*source, shape, withResolution());
}

void ShapedPng::carriesWhatIsAskedFor()
{
    const auto source = ImageSource::open(picturePath("own/metadata/every-group.jpg"));
    QVERIFY(source);
    const RoundedRect shape = roundedBy(7, source->uprightSize());
    EncodeOptions options;
    options.metadata = source->metadata()->withOrientation(1);
    compare(*source, shape, options); // which a PNG does not hold
    options.carried = platform::Carried::Everything;
    compare(*source, shape, options);
    options.resolution = platform::WriteResolution::Yes;
    compare(*source, shape, options);
    options.dpi = 123;
    compare(*source, shape, options);
}

void ShapedPng::leavesOtherPicturesToTheLongWay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"cmyk-adobe.jpg", "rgb-without-conversion.jpg"})
        QTest::newRow(name) << QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromLatin1(name);
    QTest::newRow("turned") << picturePath("own/orientation/landscape_6.jpg");
    QTest::newRow("a PNG") << picturePath("own/formats/rgb8.png");
}

void ShapedPng::leavesOtherPicturesToTheLongWay()
{
    QFETCH(QString, name);
    const auto source = ImageSource::open(name);
    QVERIFY(source);
    QVERIFY(!platform::rowsAsShapedPng(*source, roundedBy(5, source->uprightSize()), withResolution()));
    const auto plain = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph({60, 40}, 1)), 80));
    QVERIFY(plain);
    QVERIFY(platform::rowsAsShapedPng(*plain, roundedBy(5, {60, 40}), withResolution()));
    QVERIFY(!platform::rowsAsShapedPng(*plain, roundedBy(0, {60, 40}), withResolution())); // nothing is transparent
    QVERIFY(!platform::rowsAsShapedPng(ImageSource(), roundedBy(5, {60, 40}), withResolution()));
}

void ShapedPng::leavesDamagedScansToTheLongWay()
{
    QByteArray jpeg = jpegOf(Bitmap::fromImage(photograph({200, 100}, 1)), 80);
    jpeg.replace(jpeg.size() / 2, 2, "\xff\xd3"); // a marker in the middle of the coefficients
    const auto source = ImageSource::fromData(jpeg);
    QVERIFY(source);
    QVERIFY(!platform::rowsAsShapedPng(*source, roundedBy(5, {200, 100}), withResolution()));
}

QUORLIN_TEST(ShapedPng)
#include "tst_shaped_png.moc"
