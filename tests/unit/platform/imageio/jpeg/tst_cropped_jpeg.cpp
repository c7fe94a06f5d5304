#include "platform/imageio/convert/cropped_jpeg.h"

#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"
#include "tests/unit/platform/imageio/jpeg/jpeg_difference.h"

#include <QTest>

using platform::Bitmap;
using platform::EncodeOptions;
using platform::ImageSource;
using tests::jpegOf;
using tests::photograph;

namespace {

/** The part decoded, then encoded. */
QByteArray madeTheLongWay(const ImageSource &source, const QRect &part, const EncodeOptions &options)
{
    return source.decodePart(part)
        .and_then(
            [&](const Bitmap &bitmap) { return platform::encodeImage(bitmap, platform::FileFormat::Jpeg, options); })
        .value_or(QByteArray());
}

EncodeOptions atQuality(int quality)
{
    EncodeOptions options;
    options.quality = quality;
    return options;
}

} // namespace

/** Parts of JPEGs that become JPEGs row by row. */
class CroppedJpeg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheBytesOfTheLongWay_data();
    void hasTheBytesOfTheLongWay();
    void hasThemForAnyPart();
    void leavesOtherPicturesToTheLongWay_data();
    void leavesOtherPicturesToTheLongWay();
    void takesWhatIsKnownAlong();
};

void CroppedJpeg::hasTheBytesOfTheLongWay_data()
{
    QTest::addColumn<int>("sourceQuality"); // from 90 on with colour at full resolution
    QTest::addColumn<int>("quality");
    QTest::newRow("420 to 420") << 89 << 80;
    QTest::newRow("420 to 444") << 89 << 92;
    QTest::newRow("444 to 420") << 95 << 80;
}

void CroppedJpeg::hasTheBytesOfTheLongWay()
{
    QFETCH(int, sourceQuality);
    QFETCH(int, quality);
    const auto source = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph({323, 241}, 1)), sourceQuality));
    QVERIFY(source);
    for (const QRect &part :
         {QRect(0, 0, 323, 241), QRect(50, 37, 200, 150), QRect(64, 64, 128, 128), QRect(1, 1, 1, 1),
          QRect(322, 240, 1, 1), QRect(17, 200, 300, 41), QRect(0, 15, 323, 2)}) {
        const auto file = platform::croppedJpeg(*source, part, atQuality(quality));
        QVERIFY(file);
        QCOMPARE(*file, madeTheLongWay(*source, part, atQuality(quality)));
    }
}

void CroppedJpeg::hasThemForAnyPart()
{
    QRandomGenerator random(11);
    for (int i = 0; i < tests::repetitions(20, 500); ++i) {
        const QSize size(random.bounded(20, 400), random.bounded(20, 300));
        const QImage image = photograph(size, quint32(i));
        const bool isGrey = i % 5 == 4;
        const Bitmap pixels = Bitmap::fromImage(isGrey ? image.convertToFormat(QImage::Format_Grayscale8) : image);
        const auto source = ImageSource::fromData(jpegOf(pixels, i % 2 == 0 ? 85 : 93));
        QVERIFY(source);
        const QPoint corner(random.bounded(size.width()), random.bounded(size.height()));
        const QRect part(corner, QSize(random.bounded(size.width() - corner.x()) + 1,
                                       random.bounded(size.height() - corner.y()) + 1));
        const int quality = i % 3 == 0 ? 92 : 80;
        const auto file = platform::croppedJpeg(*source, part, atQuality(quality));
        QVERIFY(file);
        QCOMPARE(*file, madeTheLongWay(*source, part, atQuality(quality)));
    }
}

void CroppedJpeg::leavesOtherPicturesToTheLongWay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"cmyk-adobe.jpg", "rgb-without-conversion.jpg", "sampled-3x1.jpg"})
        QTest::newRow(name) << QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromLatin1(name);
    QTest::newRow("turned") << picturePath("own/orientation/landscape_6.jpg");
}

void CroppedJpeg::leavesOtherPicturesToTheLongWay()
{
    QFETCH(QString, name);
    const auto source = ImageSource::open(name);
    QVERIFY(source);
    const QRect part(1, 1, source->uprightSize().width() / 2, source->uprightSize().height() / 2);
    QVERIFY(!platform::croppedJpeg(*source, part, atQuality(80)));
    const QByteArray whole = jpegOf(Bitmap::fromImage(photograph({200, 100}, 1)), 80);
    const auto plain = ImageSource::fromData(whole);
    QVERIFY(plain);
    QVERIFY(platform::croppedJpeg(*plain, {20, 10, 50, 80}, atQuality(80)));
    QVERIFY(!platform::croppedJpeg(*plain, {20, 10, 50, 91}, atQuality(80)));
    QVERIFY(!platform::croppedJpeg(*plain, {-1, 10, 50, 80}, atQuality(80)));
    QVERIFY(!platform::croppedJpeg(*plain, {}, atQuality(80)));
    QByteArray damaged = whole;
    damaged.replace(whole.size() / 2, 2, "\xff\xd3"); // a marker in the middle of the coefficients
    const auto odd = ImageSource::fromData(damaged);
    QVERIFY(odd);
    QVERIFY(!platform::croppedJpeg(*odd, {20, 10, 50, 90}, atQuality(80)));
}

void CroppedJpeg::takesWhatIsKnownAlong()
{
    const auto source = ImageSource::open(QStringLiteral(QUORLIN_TEST_DATA "/jpeg/sampled-420.jpg"));
    QVERIFY(source);
    EncodeOptions options; // the tables of the source
    options.dpi = 240;
    const QRect part(QPoint(3, 3), source->storedSize() / 2);
    const auto file = platform::croppedJpeg(*source, part, options);
    QVERIFY(file);
    QCOMPARE(*file, madeTheLongWay(*source, part, options));
}

QUORLIN_TEST(CroppedJpeg)
#include "tst_cropped_jpeg.moc"
