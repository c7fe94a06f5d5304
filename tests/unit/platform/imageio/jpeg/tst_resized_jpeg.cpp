#include "platform/imageio/convert/resized_jpeg.h"

#include "platform/graphics/resample.h"
#include "platform/planes/plane_kernels.h"
#include "platform/planes/plane_weights.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"
#include "tests/unit/platform/imageio/jpeg/jpeg_difference.h"

#include <QTest>

#include <vector>

using platform::Bitmap;
using platform::ImageSource;
using tests::Difference;
using tests::differenceOf;
using tests::jpegOf;
using tests::photograph;
using tests::pixelsOf;

namespace {

/** The best that a JPEG of that quality can be: all pixels decoded, then scaled, cut and encoded. */
QImage referenceOf(const ImageSource &source, const platform::JpegResize &resize)
{
    const auto scaled =
        source.decode().and_then([&](const Bitmap &whole) { return platform::resample(whole, resize.size); });
    return scaled ? platform::cut(*scaled, resize.kept).toRawImage().convertToFormat(QImage::Format_RGB888) : QImage();
}

/** The long way: colours are made of the planes, scaled, cut and encoded. */
QImage madeTheLongWay(const ImageSource &source, const platform::JpegResize &resize, int quality)
{
    const auto scaled = resize.finer == 1
                            ? source.decodeScaled(resize.size)
                            : source.decodeAtLeast(resize.size * resize.finer).and_then([&](const Bitmap &b) {
                                  return platform::resample(b, resize.size);
                              });
    return scaled ? pixelsOf(jpegOf(platform::cut(*scaled, resize.kept), quality)) : QImage();
}

std::optional<QByteArray> made(const ImageSource &source, const platform::JpegResize &resize, int quality)
{
    platform::EncodeOptions options;
    options.quality = quality;
    return platform::resizedJpeg(source, resize, options);
}

platform::JpegResize wholeAt(QSize size, double finer = 1)
{
    return {size, QRect(QPoint(0, 0), size), finer};
}

} // namespace

/** JPEGs that are reduced to smaller JPEGs as planes of brightness and colour. */
class ResizedJpeg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsGoodAsTheLongWay_data();
    void isAsGoodAsTheLongWay();
    void isAsGoodAtAnySize();
    void leavesOtherPicturesToTheLongWay_data();
    void leavesOtherPicturesToTheLongWay();
    void takesWhatIsKnownAlong();
    void vectorsGiveTheSameNumbers();
    void weightsAreTheSameAtTheSamePlaces();
    void keptWeightsAreThoseOfTheirSpan();
};

/** Both ways against the reference, and against each other; sizes have to be the same. */
static void compare(const ImageSource &source, const platform::JpegResize &resize, int quality, int &largest)
{
    const auto file = made(source, resize, quality);
    QVERIFY(file);
    const QImage reference = referenceOf(source, resize);
    const QImage ours = pixelsOf(*file);
    const QImage other = madeTheLongWay(source, resize, quality);
    QCOMPARE(ours.size(), resize.kept.size());
    QCOMPARE(other.size(), resize.kept.size());
    const Difference found = differenceOf(ours, reference);
    const Difference long_ = differenceOf(other, reference);
    largest = std::max(largest, differenceOf(ours, other).largest);
    const QByteArray about = QStringLiteral("%1x%2: %3 dB, the long way %4 dB")
                                 .arg(resize.size.width())
                                 .arg(resize.size.height())
                                 .arg(found.decibels)
                                 .arg(long_.decibels)
                                 .toUtf8();
    // The reference doubles colours with a filter of the decoder that smooths them, and from 90 on they are kept that finely.
    const double less = quality < 90 ? 0.3 : 0.5;
    QVERIFY2(found.decibels > long_.decibels - less, about.constData());
    constexpr int enough = 10'000; // the mean of few blocks moves as they are quantised, either way
    const bool isSmall = ours.width() * ours.height() < enough;
    for (const double shift : found.shift)
        QVERIFY2(std::abs(shift) < (isSmall ? 1 : 0.5), about.constData());
}

void ResizedJpeg::isAsGoodAsTheLongWay_data()
{
    QTest::addColumn<int>("sourceQuality"); // from 90 on with colour at full resolution
    QTest::addColumn<int>("quality");
    QTest::newRow("420 to 420") << 89 << 80;
    QTest::newRow("420 to 444") << 89 << 92;
    QTest::newRow("444 to 420") << 95 << 80;
    QTest::newRow("444 to 444") << 95 << 92;
}

void ResizedJpeg::isAsGoodAsTheLongWay()
{
    QFETCH(int, sourceQuality);
    QFETCH(int, quality);
    const QSize size(803, 601);
    const auto source = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph(size, 1)), sourceQuality));
    QVERIFY(source);
    int largest = 0;
    for (const double finer : {1.0, 3.0})
        for (const QSize wanted : {QSize(802, 600), QSize(402, 301), QSize(401, 300), QSize(300, 225), QSize(201, 150)})
            compare(*source, wholeAt(wanted, finer), quality, largest);
    compare(*source, {QSize(400, 300), QRect(51, 20, 299, 260), 1}, quality, largest);
    qInfo("at most %d levels from the long way", largest);
}

void ResizedJpeg::isAsGoodAtAnySize()
{
    QRandomGenerator random(23);
    int largest = 0;
    for (int i = 0; i < tests::repetitions(12, 500); ++i) {
        const QSize size(random.bounded(100, 900), random.bounded(100, 700));
        const QImage image = photograph(size, quint32(i));
        const bool isGrey = i % 5 == 4;
        const Bitmap pixels = Bitmap::fromImage(isGrey ? image.convertToFormat(QImage::Format_Grayscale8) : image);
        const auto source = ImageSource::fromData(jpegOf(pixels, i % 2 == 0 ? 85 : 93));
        QVERIFY(source);
        const QSize wanted(random.bounded(size.width() / 9 + 1, size.width()),
                           random.bounded(size.height() / 9 + 1, size.height()));
        const QRect kept(random.bounded(wanted.width() / 2 + 1), random.bounded(wanted.height() / 2 + 1),
                         (wanted.width() + 1) / 2, (wanted.height() + 1) / 2);
        platform::JpegResize resize = wholeAt(wanted, i % 3 == 0 ? 3 : 1);
        if (i % 4 == 3)
            resize.kept = kept.intersected(resize.kept);
        compare(*source, resize, i % 7 < 4 ? 80 : 92, largest);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("at most %d levels from the long way", largest);
}

void ResizedJpeg::leavesOtherPicturesToTheLongWay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"cmyk-adobe.jpg", "rgb-without-conversion.jpg", "sampled-3x1.jpg"})
        QTest::newRow(name) << QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromLatin1(name);
    QTest::newRow("turned") << picturePath("own/orientation/landscape_6.jpg");
}

void ResizedJpeg::leavesOtherPicturesToTheLongWay()
{
    QFETCH(QString, name);
    const auto source = ImageSource::open(name);
    QVERIFY(source);
    QVERIFY(!made(*source, wholeAt(source->uprightSize() / 2), 80));
    const auto plain = ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph({200, 100}, 1)), 80));
    QVERIFY(plain);
    QVERIFY(made(*plain, wholeAt({100, 50}), 80));
    const QByteArray whole = jpegOf(Bitmap::fromImage(photograph({200, 100}, 1)), 80);
    QByteArray damaged = whole;
    damaged.replace(whole.size() * 3 / 4, 2, "\xff\xd3"); // a marker in the middle of the coefficients
    const auto odd = ImageSource::fromData(damaged);
    QVERIFY(odd);
    for (const QSize size :
         {QSize(180, 90), QSize(100, 50), QSize(50, 25)}) // decoded whole, at a half and at a quarter
        QVERIFY(!made(*odd, wholeAt(size), 80));
    QVERIFY(!made(*plain, wholeAt({201, 50}), 80));                // larger
    QVERIFY(!made(*plain, {{100, 50}, QRect(60, 0, 50, 50)}, 80)); // reaches beyond
    QVERIFY(!made(*ImageSource::fromData(jpegOf(Bitmap::fromImage(photograph({63, 63}, 1)), 80)), wholeAt({9, 9}), 80));
}

void ResizedJpeg::takesWhatIsKnownAlong()
{
    const auto source = ImageSource::open(QStringLiteral(QUORLIN_TEST_DATA "/jpeg/sampled-420.jpg"));
    QVERIFY(source);
    platform::EncodeOptions options;
    options.quality = 80;
    options.dpi = 240;
    const auto file = platform::resizedJpeg(*source, wholeAt({48, 32}), options);
    QVERIFY(file);
    const auto read = ImageSource::fromData(*file);
    QVERIFY(read);
    QCOMPARE(read->iccProfile(), source->iccProfile());
    QCOMPARE(read->decode()->horizontalDpi(), 240.0);
    options.quality.reset(); // the tables of the source
    const auto same = platform::resizedJpeg(*source, wholeAt({48, 32}), options);
    QVERIFY(same);
    QCOMPARE(ImageSource::fromData(*same)->decode()->jpegQuantisation()->tables,
             source->decode()->jpegQuantisation()->tables);
}

void ResizedJpeg::vectorsGiveTheSameNumbers()
{
    const platform::PlaneKernels &plain = platform::plainPlaneKernels();
    const platform::PlaneKernels &fast = platform::planeKernels();
    QRandomGenerator random(5);
    for (int i = 0; i < tests::repetitions(50, 2000); ++i) {
        const int taps = platform::planeTapUnit * random.bounded(1, 5);
        const int count = platform::planeRowUnit * random.bounded(1, 4);
        std::vector<std::vector<qint16>> samples(static_cast<size_t>(taps),
                                                 std::vector<qint16>(static_cast<size_t>(count)));
        std::vector<const qint16 *> rows;
        for (auto &wide : samples) {
            std::vector<uchar> row(static_cast<size_t>(count));
            std::generate(row.begin(), row.end(), [&] { return uchar(random.bounded(256)); });
            std::vector<qint16> otherWide(static_cast<size_t>(count));
            plain.widenRow(row.data(), wide.data(), count);
            fast.widenRow(row.data(), otherWide.data(), count);
            QCOMPARE(otherWide, wide);
            rows.push_back(wide.data());
        }
        std::vector<qint16> weights(size_t(taps) * size_t(count));
        std::generate(weights.begin(), weights.end(), [&] { return qint16(random.bounded(-900, 1800)); });
        weights[0] = 0; // as where a window begins before the kernel does
        std::vector<qint16> sums(size_t(count + taps), 0);
        std::vector<qint16> otherSums = sums;
        plain.sumRows(rows.data(), weights.data(), taps, sums.data(), count);
        fast.sumRows(rows.data(), weights.data(), taps, otherSums.data(), count);
        QCOMPARE(otherSums, sums);
        std::vector<int> starts(static_cast<size_t>(count));
        std::generate(starts.begin(), starts.end(), [&] { return random.bounded(count); });
        std::vector<uchar> out(static_cast<size_t>(count));
        std::vector<uchar> otherOut = out;
        plain.sumColumns(sums.data(), starts.data(), weights.data(), taps, out.data(), count);
        fast.sumColumns(sums.data(), starts.data(), weights.data(), taps, otherOut.data(), count);
        QCOMPARE(otherOut, out);
        const int pairs = (count - taps) / 2 / platform::planePairUnit * platform::planePairUnit;
        if (pairs <= 0)
            continue;
        std::fill_n(weights.begin() + random.bounded(taps), random.bounded(taps), 0); // as around the kernel
        plain.sumPairs(sums.data(), weights.data(), taps, out.data(), pairs);
        fast.sumPairs(sums.data(), weights.data(), taps, otherOut.data(), pairs);
        QCOMPARE(otherOut, out);
        for (int at = 0; at < pairs; ++at)
            starts[size_t(at)] = 2 * at;
        std::vector<qint16> same;
        for (int at = 0; at < pairs; ++at)
            same.insert(same.end(), weights.begin(), weights.begin() + taps);
        plain.sumColumns(sums.data(), starts.data(), same.data(), taps, otherOut.data(), pairs);
        QCOMPARE(otherOut, out);
    }
}

/** What is repeated and what is summed in pairs is the same as if each new sample had been computed by itself. */
void ResizedJpeg::weightsAreTheSameAtTheSamePlaces()
{
    QRandomGenerator random(6);
    for (const double step : {2.0, 1.5, 1.875, 3.0, 1.37}) {
        for (const double block : {1.0, 2.0}) {
            const platform::PlaneSpan span = {double(random.bounded(3)), step * block, 400, block};
            const int samples = int(step * block * 400) + 7;
            const platform::PlaneWeights all(span, samples);
            for (int i = 0; i < span.count; ++i) {
                const platform::PlaneSpan own = {span.start + i * span.step, span.step, 1, span.block};
                const platform::PlaneWeights one(own, samples);
                QCOMPARE(all.start(i), one.start(0));
                QVERIFY(std::equal(all.of(i), all.of(i) + all.taps(), one.of(0)));
            }
            const auto [first, count] = all.pairs();
            QCOMPARE(count > 0, step == 2.0 && block == 1.0);
            for (int i = first + 1; i < first + count; ++i) {
                QCOMPARE(all.start(i), all.start(i - 1) + 2);
                QVERIFY(std::equal(all.of(i), all.of(i) + all.taps(), all.of(first)));
            }
        }
    }
}

/** Spans and pictures that differ in one thing each, so that none is taken for another. */
void ResizedJpeg::keptWeightsAreThoseOfTheirSpan()
{
    QRandomGenerator random(23);
    for (int i = 0; i < 400; ++i) {
        const int samples = 300 + random.bounded(2);
        const platform::PlaneSpan span = {double(random.bounded(2)), 2.0 + random.bounded(2) * 0.5,
                                          100 + random.bounded(2), 1.0 + random.bounded(2)};
        const auto kept = platform::keptWeights(span, samples);
        const platform::PlaneWeights made(span, samples);
        QCOMPARE(kept->taps(), made.taps());
        QVERIFY(std::equal(kept->starts(), kept->starts() + span.count, made.starts()));
        QVERIFY(std::equal(kept->of(0), kept->of(span.count), made.of(0)));
        const platform::PixelSpan pixels = {2.0 + random.bounded(2) * 0.5, samples,           1,   1,
                                            random.bounded(2) == 0,        random.bounded(2), 100, 1,
                                            random.bounded(2) == 0};
        const auto other = platform::keptWeights(pixels, samples / (pixels.isInterpolated ? 2 : 1));
        const platform::PlaneWeights exact(pixels, samples / (pixels.isInterpolated ? 2 : 1));
        QCOMPARE(other->taps(), exact.taps());
        QVERIFY(std::equal(other->starts(), other->starts() + pixels.count(), exact.starts()));
        QVERIFY(std::equal(other->of(0), other->of(pixels.count()), exact.of(0)));
    }
}

QUORLIN_TEST(ResizedJpeg)
#include "tst_resized_jpeg.moc"
