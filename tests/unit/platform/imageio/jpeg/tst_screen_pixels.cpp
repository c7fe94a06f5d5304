#include "platform/imageio/source/screen_pixels.h"

#include "platform/graphics/resample.h"
#include "platform/imageio/encode/image_destination.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/platform/imageio/jpeg/jpeg_difference.h"

#include <QTest>

using platform::Bitmap;
using platform::ImageSource;
using tests::Difference;
using tests::differenceOf;
using tests::jpegOf;
using tests::photograph;

namespace {

QImage colours(const Bitmap &bitmap)
{
    return bitmap.toRawImage().convertToFormat(QImage::Format_RGB888);
}

} // namespace

/** JPEGs that are shown small, made from the decoder's planes. */
class ScreenPixels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areAsGoodAsTheLongWayAtAnySize();
    void areTheSameForThePixelLibrary_data();
    void areTheSameForThePixelLibrary();
    void becomeTheSameTiffStraightFromTheRows();
    void areUpright_data();
    void areUpright();
    void leaveOtherPicturesToTheLongWay_data();
    void leaveOtherPicturesToTheLongWay();
};

/** Both ways against all pixels scaled. */
void ScreenPixels::areAsGoodAsTheLongWayAtAnySize()
{
    QRandomGenerator random(3);
    int largest = 0;
    for (int i = 0; i < tests::repetitions(20, 500); ++i) {
        const QSize size(random.bounded(100, 900), random.bounded(100, 700));
        const QImage image = photograph(size, quint32(i));
        const bool isGrey = i % 5 == 4;
        const Bitmap pixels = Bitmap::fromImage(isGrey ? image.convertToFormat(QImage::Format_Grayscale8) : image);
        const auto source = ImageSource::fromData(jpegOf(pixels, i % 2 == 0 ? 85 : 93));
        QVERIFY(source);
        const QSize wanted(random.bounded(size.width() / 9 + 1, size.width() / 2 + 1),
                           random.bounded(size.height() / 9 + 1, size.height() / 2 + 1));
        const auto made = platform::screenPixelsOf(*source, wanted);
        QVERIFY(made);
        QCOMPARE(made->size(), wanted);
        QCOMPARE(made->bandCount(), isGrey ? 1 : 3);
        const auto whole = source->decode().and_then([&](const Bitmap &b) { return platform::resample(b, wanted); });
        const auto halved =
            source->decodeAtLeast(wanted).and_then([&](const Bitmap &b) { return platform::resample(b, wanted); });
        QVERIFY(whole && halved);
        const Difference found = differenceOf(colours(*made), colours(*whole));
        const Difference long_ = differenceOf(colours(*halved), colours(*whole));
        largest = std::max(largest, differenceOf(colours(*made), colours(*halved)).largest);
        const QByteArray about = QStringLiteral("%1x%2 to %3x%4: %5 dB, the long way %6 dB")
                                     .arg(size.width())
                                     .arg(size.height())
                                     .arg(wanted.width())
                                     .arg(wanted.height())
                                     .arg(found.decibels)
                                     .arg(long_.decibels)
                                     .toUtf8();
        // Colours are halved with brightness and not decoded at twice the size, which is seen below 45 dB at the most.
        constexpr double nobodySees = 45;
        QVERIFY2(found.decibels > std::min(long_.decibels - 0.3, nobodySees), about.constData());
    }
    qInfo("at most %d levels from the long way", largest);
}

void ScreenPixels::areTheSameForThePixelLibrary_data()
{
    QTest::addColumn<bool>("isGrey");
    QTest::addColumn<bool>("isPlaced");
    QTest::newRow("colours") << false << false;
    QTest::newRow("grey") << true << false;
    QTest::newRow("colours on a page") << false << true;
    QTest::newRow("grey on a page") << true << true;
}

/** They are rows of a Qt image until an operation asks for them in another form. */
void ScreenPixels::areTheSameForThePixelLibrary()
{
    QFETCH(bool, isGrey);
    QFETCH(bool, isPlaced);
    const QImage image = photograph({300, 200}, 1);
    const Bitmap whole = Bitmap::fromImage(isGrey ? image.convertToFormat(QImage::Format_Grayscale8) : image);
    const auto source = ImageSource::fromData(jpegOf(whole, 90));
    QVERIFY(source);
    const auto shown = platform::screenPixelsOf(*source, {101, 67}); // rows of an odd number of bytes
    QVERIFY(shown);
    const QSize page(120, 80);
    const auto before = isPlaced ? platform::placed(*shown, {4, 9}, page) : platform::Result<Bitmap>(*shown);
    QVERIFY(before);
    const QImage screen = before->toScreenImage();
    const QImage raw = before->toRawImage();
    const auto corner = before->pixel(50, 30);
    const auto after = platform::placed(*before, {-1, -1}, before->size() - QSize(1, 1)); // all but a row and a column
    QVERIFY(after);
    QCOMPARE(before->toScreenImage(), screen);
    QCOMPARE(before->toRawImage(), raw);
    QCOMPARE(before->pixel(50, 30), corner);
    QCOMPARE(after->pixel(49, 29), corner);
    QCOMPARE(after->toRawImage(), raw.copy(1, 1, raw.width() - 1, raw.height() - 1));
    QCOMPARE(after->bandCount(), before->bandCount());
    QCOMPARE(after->hasAlpha(), isPlaced);
    QCOMPARE(after->colorModel(), isGrey ? platform::ColorModel::Gray : platform::ColorModel::Rgb);
    QCOMPARE(after->iccProfile(), before->iccProfile());
    QCOMPARE(after->bitsPerComponent(), 8);
}

void ScreenPixels::areUpright_data()
{
    QTest::addColumn<QString>("file");
    for (const expected::Row &row : expected::rows(QStringLiteral("orientation/")))
        if (row.isDecodable && row.path.endsWith(QLatin1String(".jpg")))
            QTest::newRow(qPrintable(row.name)) << row.path;
}

void ScreenPixels::areUpright()
{
    QFETCH(QString, file);
    const auto source = ImageSource::open(file);
    QVERIFY(source);
    const QSize wanted = source->uprightSize() / 3;
    const auto made = platform::screenPixelsOf(*source, wanted);
    constexpr int shortestSide = 64;
    QCOMPARE(made.has_value(), std::min(source->storedSize().width(), source->storedSize().height()) >= shortestSide);
    if (!made)
        return;
    const auto other = source->decodeScaled(wanted);
    QVERIFY(other);
    QCOMPARE(made->size(), other->size());
    QCOMPARE(made->horizontalDpi(), other->horizontalDpi());
    QCOMPARE(made->verticalDpi(), other->verticalDpi());
    QCOMPARE(made->iccProfile(), other->iccProfile());
    QVERIFY(differenceOf(colours(*made), colours(*other)).decibels > 30);
}

void ScreenPixels::leaveOtherPicturesToTheLongWay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"cmyk-adobe.jpg", "rgb-without-conversion.jpg", "sampled-3x1.jpg"})
        QTest::newRow(name) << QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromLatin1(name);
}

void ScreenPixels::leaveOtherPicturesToTheLongWay()
{
    QFETCH(QString, name);
    const auto source = ImageSource::open(name);
    QVERIFY(source);
    QVERIFY(!platform::screenPixelsOf(*source, source->uprightSize() / 3));
    const QByteArray whole = jpegOf(Bitmap::fromImage(photograph({200, 100}, 1)), 80);
    const auto plain = ImageSource::fromData(whole);
    QVERIFY(plain);
    QVERIFY(platform::screenPixelsOf(*plain, {100, 50}));
    QVERIFY(!platform::screenPixelsOf(*plain, {101, 50})); // more than half
    QVERIFY(!platform::screenPixelsOf(*plain, {0, 50}));
    QVERIFY(!platform::screenPixelsOf(*plain, {1, 50})); // further than the weights reach
    QByteArray damaged = whole;
    damaged.replace(whole.size() * 3 / 4, 2, "\xff\xd3"); // a marker in the middle of the coefficients
    const auto odd = ImageSource::fromData(damaged);
    QVERIFY(odd);
    QVERIFY(!platform::screenPixelsOf(*odd, {50, 25}));
}

/** Grey, RGB, and RGB on a transparent page, of any size. Encoding them in memory takes the pixel library. */
void ScreenPixels::becomeTheSameTiffStraightFromTheRows()
{
    const ScratchFolder folder;
    const QByteArray wide = tests::profiledJpegOf(photograph({300, 200}, 64), QColorSpace::AdobeRgb);
    const auto profiled = ImageSource::fromData(wide);
    QVERIFY(profiled && !profiled->iccProfile().isEmpty());
    QRandomGenerator random(64);
    for (int i = 0; i < tests::repetitions(20, 500); ++i) {
        const QSize size(random.bounded(100, 500), random.bounded(100, 500));
        const QImage image = photograph(size, quint32(i))
                                 .convertToFormat(i % 3 == 0 ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
        const auto made = ImageSource::fromData(jpegOf(Bitmap::fromImage(image), 85));
        const ImageSource &source = i % 4 == 3 ? *profiled : *made;
        const QSize most(source.uprightSize().width() / 2, source.uprightSize().height() / 2);
        const QSize wanted(random.bounded(most.width() * 2 / 3, most.width() + 1),
                           random.bounded(most.height() * 2 / 3, most.height() + 1));
        const auto shown = platform::screenPixelsOf(source, wanted);
        QVERIFY(shown);
        const QSize page(wanted + QSize(random.bounded(9), random.bounded(9)));
        const Bitmap bitmap = i % 2 == 0 ? *shown : platform::placed(*shown, {0, 0}, page).value();
        const Bitmap stated = i % 5 < 2 ? bitmap.withDpi(300.5, i % 5 == 0 ? 0 : 150) : bitmap;
        platform::EncodeOptions options;
        options.resolution = i % 7 == 0 ? platform::WriteResolution::No : platform::WriteResolution::Yes;
        QVERIFY(platform::writeImageFile(folder.path("shown.tiff"), stated, platform::FileFormat::Tiff, options));
        QCOMPARE(folder.read("shown.tiff"),
                 platform::encodeImage(stated, platform::FileFormat::Tiff, options).value_or(QByteArray()));
    }
    const auto small = platform::screenPixelsOf(*profiled, {20, 14});
    QVERIFY(small);
    const auto written = platform::writeImageFile(folder.path("nowhere/a.tiff"), *small, platform::FileFormat::Tiff);
    QVERIFY(!written && written.error().code == platform::ErrorCode::WriteFailed);
    QCOMPARE(folder.names(), QStringList{QStringLiteral("shown.tiff")});
}

QUORLIN_TEST(ScreenPixels)
#include "tst_screen_pixels.moc"
