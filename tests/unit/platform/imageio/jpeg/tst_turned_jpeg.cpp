#include "platform/imageio/convert/turned_jpeg.h"

#include "platform/graphics/compose.h"
#include "platform/planes/turn_kernels.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"
#include "tests/unit/platform/imageio/jpeg/jpeg_difference.h"

#include <QTest>

#include <vector>

using platform::Bitmap;
using platform::FreeTurn;
using platform::ImageSource;
using tests::Difference;
using tests::differenceOf;
using tests::jpegOf;
using tests::photograph;
using tests::pixelsOf;

namespace {

FreeTurn turnOf(QSize size, double degrees)
{
    const double radians = degrees * 0.017453292519943295;
    const double across = std::abs(std::cos(radians));
    const double down = std::abs(std::sin(radians));
    FreeTurn turn;
    turn.degrees = degrees;
    turn.canvas = QSize(int(size.width() * across + size.height() * down) + 1,
                        int(size.width() * down + size.height() * across) + 1);
    turn.centre = QPointF(turn.canvas.width() / 2.0, turn.canvas.height() / 2.0);
    turn.surroundings = platform::Surroundings::Transparent;
    return turn;
}

/** All pixels decoded and turned: what either JPEG is made from. */
Bitmap referenceOf(const ImageSource &source, const FreeTurn &turn, const QColor &corners)
{
    platform::DecodeOptions asStored;
    asStored.orientation = platform::Orientation::AsStored;
    return source.decode(asStored)
        .and_then([&](const Bitmap &bitmap) { return platform::turned(bitmap, turn); })
        .and_then([&](const Bitmap &turned) { return platform::laidOn(turned, corners); })
        .value_or(Bitmap());
}

std::optional<QByteArray> made(const ImageSource &source, const FreeTurn &turn, std::optional<int> quality,
                               const QColor &corners = Qt::black)
{
    platform::EncodeOptions options;
    options.quality = quality;
    return platform::turnedJpeg(source, turn, corners, options);
}

} // namespace

/** JPEGs that are turned by any angle as planes of brightness and colour. */
class TurnedJpeg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsGoodAsTheLongWay_data();
    void isAsGoodAsTheLongWay();
    void isAsGoodAtAnySizeAndAngle();
    void coloursTheCorners_data();
    void coloursTheCorners();
    void leavesOtherPicturesToTheLongWay_data();
    void leavesOtherPicturesToTheLongWay();
    void takesWhatIsKnownAlong();
    void vectorsGiveTheSameNumbers();
};

/** Both ways against the turned pixels, and against each other. */
static void compare(const ImageSource &source, const FreeTurn &turn, int quality, const QColor &corners, int &largest)
{
    const auto file = made(source, turn, quality, corners);
    QVERIFY(file);
    const Bitmap reference = referenceOf(source, turn, corners);
    const QImage wanted = reference.toRawImage().convertToFormat(QImage::Format_RGB888);
    const QImage ours = pixelsOf(*file);
    const QImage other = pixelsOf(jpegOf(reference, quality));
    QCOMPARE(ours.size(), turn.canvas);
    QCOMPARE(other.size(), turn.canvas);
    const Difference found = differenceOf(ours, wanted);
    const Difference long_ = differenceOf(other, wanted);
    largest = std::max(largest, differenceOf(ours, other).largest);
    const QByteArray about = QStringLiteral("%1x%2 by %3: %4 dB, the long way %5 dB")
                                 .arg(source.storedSize().width())
                                 .arg(source.storedSize().height())
                                 .arg(turn.degrees)
                                 .arg(found.decibels)
                                 .arg(long_.decibels)
                                 .toUtf8();
    // The long way doubles colours with a filter of the decoder that smooths them; from 90 on they are kept that finely.
    const double less = quality < 90 ? 0.3 : 0.5;
    QVERIFY2(found.decibels > long_.decibels - less, about.constData());
    for (const double shift : found.shift)
        QVERIFY2(std::abs(shift) < 0.5, about.constData());
}

void TurnedJpeg::isAsGoodAsTheLongWay_data()
{
    QTest::addColumn<int>("sourceQuality"); // from 90 on with colour at full resolution
    QTest::addColumn<int>("quality");
    QTest::newRow("420 to 420") << 89 << 85;
    QTest::newRow("420 to 444") << 89 << 92;
    QTest::newRow("444 to 444") << 95 << 92;
}

void TurnedJpeg::isAsGoodAsTheLongWay()
{
    QFETCH(int, sourceQuality);
    QFETCH(int, quality);
    const QSize size(403, 301);
    const auto source = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph(size, 1)), sourceQuality));
    QVERIFY(source);
    int largest = 0;
    for (const double degrees : {7.5, -7.5, 0.3, 45.0, 89.0, 133.0, 181.0, 359.5})
        compare(*source, turnOf(size, degrees), quality, Qt::black, largest);
    qInfo("at most %d levels from the long way", largest);
}

void TurnedJpeg::isAsGoodAtAnySizeAndAngle()
{
    QRandomGenerator random(7);
    int largest = 0;
    for (int i = 0; i < tests::repetitions(20, 500); ++i) {
        const QSize size(random.bounded(100, 500), random.bounded(100, 400));
        const QImage image = photograph(size, quint32(i));
        const bool isGrey = i % 5 == 4;
        const bool isFine = i % 2 == 1; // colour at full resolution
        const Bitmap pixels = Bitmap::fromImage(isGrey ? image.convertToFormat(QImage::Format_Grayscale8) : image);
        const auto source = ImageSource::fromData(jpegOf(pixels, isFine ? 93 : 85));
        QVERIFY(source);
        compare(*source, turnOf(size, random.bounded(360.0)), isFine || i % 3 == 0 ? 92 : 80,
                i % 4 == 0 ? Qt::white : Qt::black, largest);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("at most %d levels from the long way", largest);
}

void TurnedJpeg::coloursTheCorners_data()
{
    QTest::addColumn<QColor>("colour");
    for (const QColor &colour : {QColor(Qt::black), QColor(Qt::white), QColor(200, 30, 90), QColor(0, 90, 255)})
        QTest::newRow(qPrintable(colour.name())) << colour;
}

void TurnedJpeg::coloursTheCorners()
{
    QFETCH(QColor, colour);
    const QSize size(203, 151);
    const auto source = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph(size, 1)), 85));
    QVERIFY(source);
    const FreeTurn turn = turnOf(size, 20);
    const auto file = made(*source, turn, 95, colour);
    QVERIFY(file);
    const QImage pixels = pixelsOf(*file);
    const QSize last = turn.canvas - QSize(1, 1);
    for (const QPoint corner :
         {QPoint(0, 0), QPoint(last.width(), 0), QPoint(0, last.height()), QPoint(last.width(), last.height())}) {
        const QColor found = pixels.pixelColor(corner);
        const int apart = std::max({std::abs(found.red() - colour.red()), std::abs(found.green() - colour.green()),
                                    std::abs(found.blue() - colour.blue())});
        QVERIFY2(apart <= 2, qPrintable(found.name()));
    }
}

void TurnedJpeg::leavesOtherPicturesToTheLongWay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"cmyk-adobe.jpg", "rgb-without-conversion.jpg", "sampled-3x1.jpg"})
        QTest::newRow(name) << QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromLatin1(name);
}

void TurnedJpeg::leavesOtherPicturesToTheLongWay()
{
    QFETCH(QString, name);
    const auto source = ImageSource::open(name);
    QVERIFY(source);
    QVERIFY(!made(*source, turnOf(source->storedSize(), 10), {}));
    const QSize size(200, 100);
    const FreeTurn turn = turnOf(size, 10);
    const QByteArray whole = jpegOf(Bitmap::fromImage(photograph(size, 1)), 80);
    const auto plain = ImageSource::fromData(whole);
    QVERIFY(plain);
    QVERIFY(made(*plain, turn, 80));
    QByteArray damaged = whole;
    damaged.replace(whole.size() * 3 / 4, 2, "\xff\xd3"); // a marker in the middle of the coefficients
    const auto odd = ImageSource::fromData(damaged);
    QVERIFY(odd);
    QVERIFY(!made(*odd, turn, 80));
    QVERIFY(!made(*plain, turn, 80, QColor(0, 0, 0, 128)));
    FreeTurn impossible = turn;
    impossible.canvas = QSize(0, 100);
    QVERIFY(!made(*plain, impossible, 80));
    impossible = turn;
    impossible.canvas = QSize(70000, 100); // more than a JPEG can have
    QVERIFY(!made(*plain, impossible, 80));
    impossible = turn;
    impossible.degrees = qQNaN();
    QVERIFY(!made(*plain, impossible, 80));
    const auto fine = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph(size, 1)), 95));
    QVERIFY(fine);
    QVERIFY(!made(*fine, turn, 80)); // colours become coarser
    const QImage grey = photograph(size, 1).convertToFormat(QImage::Format_Grayscale8);
    const auto greySource = ImageSource::fromData(jpegOf(Bitmap::fromImage(grey), 80));
    QVERIFY(greySource);
    QVERIFY(made(*greySource, turn, 80, Qt::white));
    QVERIFY(!made(*greySource, turn, 80, Qt::red));
}

void TurnedJpeg::takesWhatIsKnownAlong()
{
    const auto source = ImageSource::open(QStringLiteral(QUORLIN_TEST_DATA "/jpeg/sampled-420.jpg"));
    QVERIFY(source);
    platform::EncodeOptions options;
    options.dpi = 240;
    const auto file = platform::turnedJpeg(*source, turnOf(source->storedSize(), 30), Qt::black, options);
    QVERIFY(file);
    const auto read = ImageSource::fromData(*file);
    QVERIFY(read);
    QCOMPARE(read->iccProfile(), source->iccProfile());
    const auto pixels = read->decode();
    QVERIFY(pixels);
    QCOMPARE(pixels->horizontalDpi(), 240.0);
    QCOMPARE(pixels->jpegQuantisation()->tables, source->decode()->jpegQuantisation()->tables);
    QCOMPARE(pixels->jpegQuantisation()->horizontalSampling, 2);
    QCOMPARE(pixels->jpegQuantisation()->verticalSampling, 2);
}

void TurnedJpeg::vectorsGiveTheSameNumbers()
{
    constexpr int side = 64;
    QRandomGenerator random(5);
    std::vector<uchar> samples(size_t(side) * side);
    const qint64 one = qint64(1) << platform::TurnPosition::bits;
    for (int i = 0; i < tests::repetitions(200, 20000); ++i) {
        const int extreme = i % 3; // every sum is as large or as small as it gets
        for (uchar &sample : samples)
            sample = uchar(extreme == 0 ? 255 * random.bounded(2) : random.bounded(256));
        const int count = random.bounded(1, 30);
        const auto step = [&] { return qint64((random.bounded(2.0) - 1) * double(one)); };
        const platform::TurnedRow row = {samples.data(),
                                         side,
                                         platform::turnWeights().data(),
                                         qint64((31 + random.bounded(1.0)) * double(one)),
                                         qint64((31 + random.bounded(1.0)) * double(one)),
                                         step(),
                                         step()};
        std::vector<uchar> out(static_cast<size_t>(count));
        std::vector<uchar> other = out;
        platform::plainTurnKernel()(row, count, out.data());
        platform::turnKernel()(row, count, other.data());
        QCOMPARE(other, out);
    }
}

QUORLIN_TEST(TurnedJpeg)
#include "tst_turned_jpeg.moc"
