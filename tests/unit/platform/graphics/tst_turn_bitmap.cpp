#include "platform/graphics/turn.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <algorithm>
#include <limits>

using platform::Bitmap;
using platform::ExactTurn;
using platform::FreeTurn;
using platform::Result;

namespace {

constexpr int pictureWidth = 24;
constexpr int pictureHeight = 16;

/** No two pixels are alike, so that every place shows which one came there. */
QImage uniquePixels(QImage::Format format)
{
    QImage image(pictureWidth, pictureHeight, QImage::Format_RGBA64);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y,
                                QColor::fromRgba64(quint16(x * 2570), quint16(y * 4112 + 3), quint16((x + y) * 1542),
                                                   format == QImage::Format_RGBA8888 || format == QImage::Format_RGBA64
                                                       ? quint16(65535 - x * 1285)
                                                       : quint16(65535)));
    return image.convertToFormat(format);
}

/** Where a pixel of the turned picture was before. */
QPoint origin(ExactTurn turn, int x, int y)
{
    const int right = pictureWidth - 1;
    const int bottom = pictureHeight - 1;
    switch (turn) {
    case ExactTurn::None:
        return {x, y};
    case ExactTurn::Quarter:
        return {right - y, x};
    case ExactTurn::Half:
        return {right - x, bottom - y};
    case ExactTurn::ThreeQuarters:
        return {y, bottom - x};
    case ExactTurn::MirrorAcross:
        return {right - x, y};
    case ExactTurn::MirrorDown:
        return {x, bottom - y};
    }
    return {};
}

FreeTurn centred(double degrees, QSize canvas)
{
    FreeTurn turn;
    turn.degrees = degrees;
    turn.canvas = canvas;
    turn.centre = QPointF(canvas.width() / 2.0, canvas.height() / 2.0);
    return turn;
}

int brightest(const Bitmap &bitmap, int x, int y)
{
    const auto pixel = bitmap.pixel(x, y);
    return std::max({pixel[0], pixel[1], pixel[2]});
}

} // namespace

Q_DECLARE_METATYPE(platform::ExactTurn)

class TurnBitmap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void putsEveryPixelInItsPlace_data()
    {
        QTest::addColumn<ExactTurn>("turn");
        QTest::addColumn<QImage::Format>("format");
        const std::pair<const char *, QImage::Format> formats[] = {
            {"rgb8", QImage::Format_RGB888},      {"rgba8", QImage::Format_RGBA8888},
            {"grey8", QImage::Format_Grayscale8}, {"rgba16", QImage::Format_RGBA64},
            {"rgb16", QImage::Format_RGBX64},     {"grey16", QImage::Format_Grayscale16}};
        const std::pair<const char *, ExactTurn> turns[] = {{"none", ExactTurn::None},
                                                            {"quarter", ExactTurn::Quarter},
                                                            {"half", ExactTurn::Half},
                                                            {"three quarters", ExactTurn::ThreeQuarters},
                                                            {"mirror across", ExactTurn::MirrorAcross},
                                                            {"mirror down", ExactTurn::MirrorDown}};
        for (const auto &[turnName, turn] : turns)
            for (const auto &[formatName, format] : formats)
                QTest::addRow("%s %s", turnName, formatName) << turn << format;
    }

    void putsEveryPixelInItsPlace()
    {
        QFETCH(ExactTurn, turn);
        QFETCH(QImage::Format, format);
        const Bitmap source = Bitmap::fromImage(uniquePixels(format));
        const Result<Bitmap> result = platform::turned(source, turn);
        QVERIFY(result.has_value());
        const QSize size(pictureWidth, pictureHeight);
        QCOMPARE(result->size(), platform::swapsSides(turn) ? size.transposed() : size);
        QCOMPARE(result->bitsPerComponent(), source.bitsPerComponent());
        QCOMPARE(result->bandCount(), source.bandCount());
        QCOMPARE(result->colorModel(), source.colorModel());
        const QImage before = source.toRawImage();
        const QImage after = result->toRawImage();
        QCOMPARE(after.format(), before.format());
        for (int y = 0; y < after.height(); ++y)
            for (int x = 0; x < after.width(); ++x)
                QCOMPARE(after.pixelColor(x, y).rgba64(), before.pixelColor(origin(turn, x, y)).rgba64());
    }

    void comesBackAfterItsCounterpart_data()
    {
        QTest::addColumn<QList<ExactTurn>>("turns");
        using Turns = QList<ExactTurn>;
        QTest::newRow("across twice") << Turns(2, ExactTurn::MirrorAcross);
        QTest::newRow("down twice") << Turns(2, ExactTurn::MirrorDown);
        QTest::newRow("four quarters") << Turns(4, ExactTurn::Quarter);
        QTest::newRow("two halves") << Turns(2, ExactTurn::Half);
        QTest::newRow("quarter and three") << Turns{ExactTurn::Quarter, ExactTurn::ThreeQuarters};
        QTest::newRow("two quarters and a half") << Turns{ExactTurn::Quarter, ExactTurn::Quarter, ExactTurn::Half};
        QTest::newRow("both mirrors are a half")
            << Turns{ExactTurn::MirrorAcross, ExactTurn::MirrorDown, ExactTurn::Half};
    }

    void comesBackAfterItsCounterpart()
    {
        QFETCH(QList<ExactTurn>, turns);
        const Bitmap source = Bitmap::fromImage(uniquePixels(QImage::Format_RGBA64));
        Bitmap bitmap = source;
        for (const ExactTurn turn : turns)
            bitmap = platform::turned(bitmap, turn).value_or(Bitmap());
        QCOMPARE(bitmap.toRawImage(), source.toRawImage());
    }

    void namesTheExactTurnOfAnAngle_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<int>("turn");
        constexpr int none = -1;
        const auto row = [](double degrees, int turn) {
            QTest::newRow(qPrintable(QString::number(degrees))) << degrees << turn;
        };
        row(0, int(ExactTurn::None));
        row(-0.0, int(ExactTurn::None));
        row(90, int(ExactTurn::Quarter));
        row(180, int(ExactTurn::Half));
        row(270, int(ExactTurn::ThreeQuarters));
        row(360, int(ExactTurn::None));
        row(450, int(ExactTurn::Quarter));
        row(-90, int(ExactTurn::ThreeQuarters));
        row(-180, int(ExactTurn::Half));
        row(-270, int(ExactTurn::Quarter));
        row(-360, int(ExactTurn::None));
        row(36090, int(ExactTurn::Quarter));
        row(45, none);
        row(90.0001, none);
        row(1e-30, none);
        row(qInf(), none);
        row(qQNaN(), none);
    }

    void namesTheExactTurnOfAnAngle()
    {
        QFETCH(double, degrees);
        QFETCH(int, turn);
        const auto exact = platform::exactTurn(degrees);
        QCOMPARE(exact ? int(*exact) : -1, turn);
    }

    void swapsResolutionAndTablesWithTheSides()
    {
        QImage image = pictures::gradient(32, 16);
        image.setDotsPerMeterX(4000);
        image.setDotsPerMeterY(2000);
        const Bitmap plain = Bitmap::fromImage(image);
        const Bitmap onItsSide = platform::turned(plain, ExactTurn::Quarter).value_or(Bitmap());
        QCOMPARE(onItsSide.horizontalDpi(), plain.verticalDpi());
        QCOMPARE(onItsSide.verticalDpi(), plain.horizontalDpi());
        const Bitmap upsideDown = platform::turned(plain, ExactTurn::Half).value_or(Bitmap());
        QCOMPARE(upsideDown.horizontalDpi(), plain.horizontalDpi());

        platform::EncodeOptions halfQuality;
        halfQuality.lossyQuality = 0.5;
        const auto jpeg = platform::encodeImage(plain, platform::FileFormat::Jpeg, halfQuality);
        QVERIFY(jpeg.has_value());
        const Bitmap decoded = platform::ImageSource::fromData(*jpeg)->decode().value_or(Bitmap());
        const auto before = decoded.jpegQuantisation();
        const auto after = platform::turned(decoded, ExactTurn::ThreeQuarters).value_or(Bitmap()).jpegQuantisation();
        QVERIFY(before && after);
        QCOMPARE(after->tables[0][1], before->tables[0][8]);
        QCOMPARE(after->tables[0][8 * 2 + 5], before->tables[0][8 * 5 + 2]);
        QVERIFY(before->tables[0][1] != before->tables[0][8]);
        QCOMPARE(platform::turned(decoded, ExactTurn::Half)->jpegQuantisation()->tables, before->tables);
    }

    void keepsColoursOfEveryKind_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : picturesThere(
                 {"own/formats/cmyk.jpg", "own/formats/profile.tif", "own/formats/lab8.tif", "own/formats/grey.jpg",
                  "own/formats/rgba16.tif", "own/formats/cmyk16.tif", "own/formats/grey-alpha16.png",
                  "formats/pil_sample_cmyk.jpg", "formats/hopper.iccprofile.tif", "formats/hopper.Lab.tif",
                  "formats/hopper_gray.jpg", "formats/tiff_16bit_RGBa.tiff", "formats/tiff_strip_cmyk_jpeg.tif",
                  "formats/pngsuite-basn4a16.png"}))
            QTest::newRow(qPrintable(name)) << name;
    }

    void keepsColoursOfEveryKind()
    {
        QFETCH(QString, name);
        const QString path = picturePath(name);
        const Bitmap source = platform::ImageSource::open(path)->decode().value_or(Bitmap());
        QVERIFY(!source.isNull());
        const int longest = std::max(source.width(), source.height());
        const Bitmap exact = platform::turned(source, ExactTurn::Quarter).value_or(Bitmap());
        const Bitmap free = platform::turned(source, centred(180.0001, source.size())).value_or(Bitmap());
        const Bitmap wide = platform::turned(source, centred(30, QSize(longest * 2, longest * 2))).value_or(Bitmap());
        for (const Bitmap &result : {exact, free, wide}) {
            QCOMPARE(result.iccProfile(), source.iccProfile());
            QCOMPARE(result.colorModel(), source.colorModel());
            QCOMPARE(result.bandCount(), source.bandCount());
            QCOMPARE(result.bitsPerComponent(), source.bitsPerComponent());
        }
        const auto there = source.pixel(source.width() / 3, source.height() / 4);
        const auto here =
            free.pixel(source.width() - 1 - source.width() / 3, source.height() - 1 - source.height() / 4);
        for (size_t part = 0; part < there.size(); ++part)
            QVERIFY2(std::abs(there[part] - here[part]) <= 1, qPrintable(QString::number(here[part])));
    }

    void turnsFreelyAsExactly_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<QImage::Format>("format");
        for (const double degrees : {0.0, 90.0, 180.0, -90.0})
            for (const QImage::Format format :
                 {QImage::Format_RGB888, QImage::Format_RGBA64, QImage::Format_RGBX64, QImage::Format_Grayscale16})
                QTest::addRow("%g %d", degrees, int(format)) << degrees << format;
    }

    /** The two roads agree on direction and on where the centre is. */
    void turnsFreelyAsExactly()
    {
        QFETCH(double, degrees);
        QFETCH(QImage::Format, format);
        const Bitmap source = Bitmap::fromImage(uniquePixels(format));
        const Bitmap exact = platform::turned(source, *platform::exactTurn(degrees)).value_or(Bitmap());
        const QImage free = platform::turned(source, centred(degrees, exact.size())).value_or(Bitmap()).toRawImage();
        const QImage wanted = exact.toRawImage();
        QCOMPARE(free.size(), wanted.size());
        for (int y = 0; y < wanted.height(); ++y)
            for (int x = 0; x < wanted.width(); ++x) {
                const QRgba64 a = free.pixelColor(x, y).rgba64();
                const QRgba64 b = wanted.pixelColor(x, y).rgba64();
                // Weighing by alpha and back rounds.
                constexpr int rounding = 2;
                QVERIFY2(std::abs(a.red() - b.red()) <= rounding && std::abs(a.green() - b.green()) <= rounding &&
                             std::abs(a.blue() - b.blue()) <= rounding && a.alpha() == b.alpha(),
                         qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            }
    }

    void leavesTheCornersEmpty_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<bool>("isTransparent");
        QTest::newRow("rgb8") << QImage::Format_RGB888 << false;
        QTest::newRow("rgba8") << QImage::Format_RGBA8888 << true;
        QTest::newRow("rgb16") << QImage::Format_RGBX64 << false;
        QTest::newRow("rgba16") << QImage::Format_RGBA64 << true;
        QTest::newRow("grey8") << QImage::Format_Grayscale8 << false;
    }

    void leavesTheCornersEmpty()
    {
        QFETCH(QImage::Format, format);
        QFETCH(bool, isTransparent);
        const Bitmap white = Bitmap::fromImage(pictures::plain(60, 60, Qt::white, format));
        const Bitmap turned = platform::turned(white, centred(45, QSize(84, 84))).value_or(Bitmap());
        QCOMPARE(turned.size(), QSize(84, 84));
        QCOMPARE(turned.hasAlpha(), isTransparent);
        const std::array<int, 4> empty = {0, 0, 0, isTransparent ? 0 : 255};
        for (const QPoint corner : {QPoint(0, 0), QPoint(83, 0), QPoint(0, 83), QPoint(83, 83), QPoint(19, 19)})
            QCOMPARE(turned.pixel(corner.x(), corner.y()), empty);
        const std::array<int, 4> full = {255, 255, 255, 255};
        for (const QPoint inside : {QPoint(42, 42), QPoint(42, 4), QPoint(4, 42), QPoint(79, 42), QPoint(22, 22)})
            QCOMPARE(turned.pixel(inside.x(), inside.y()), full);
    }

    void addsTransparencyWhereItIsAskedFor()
    {
        const Bitmap red = Bitmap::fromImage(pictures::plain(60, 40, Qt::red, QImage::Format_RGB888));
        FreeTurn turn = centred(30, QSize(80, 80));
        turn.surroundings = platform::Surroundings::Transparent;
        const Bitmap turned = platform::turned(red, turn).value_or(Bitmap());
        QVERIFY(turned.hasAlpha());
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 80; ++x) {
                const auto pixel = turned.pixel(x, y);
                if (pixel[3] > 0) // what can be seen is red, however little of it
                    QCOMPARE(std::vector<int>(pixel.begin(), pixel.begin() + 3), std::vector<int>({255, 0, 0}));
            }
        QCOMPARE(turned.pixel(0, 0)[3], 0);
        QCOMPARE(turned.pixel(40, 40)[3], 255);
    }

    /** Neither jagged nor with a rim: along each edge there are levels between nothing and all, and none beyond. */
    void smoothsTheEdges()
    {
        const Bitmap grey = Bitmap::fromImage(pictures::plain(60, 60, QColor(200, 200, 200), QImage::Format_RGB888));
        const Bitmap turned = platform::turned(grey, centred(20, QSize(80, 80))).value_or(Bitmap());
        QList<int> levels(256, 0);
        double sum = 0;
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 80; ++x) {
                const int level = brightest(turned, x, y);
                QVERIFY(level <= 200);
                ++levels[level];
                sum += level;
            }
        const int between = int(std::count_if(levels.begin() + 1, levels.begin() + 200, [](int n) { return n > 0; }));
        QVERIFY(between > 40);
        // The area of the picture is still there, no side cut off.
        QVERIFY2(std::abs(sum / 200 - 3600) < 5, qPrintable(QString::number(sum / 200)));
    }

    void placesThePictureByItsCentre()
    {
        QImage image = pictures::plain(21, 21, Qt::black, QImage::Format_RGB888);
        image.setPixelColor(10, 10, Qt::white);
        FreeTurn turn = centred(30, QSize(50, 40));
        turn.centre = QPointF(15.5, 20.5);
        const Bitmap turned = platform::turned(Bitmap::fromImage(image), turn).value_or(Bitmap());
        QVERIFY(brightest(turned, 15, 20) > 200);
        QVERIFY(brightest(turned, 17, 20) < 60);
        QVERIFY(brightest(turned, 15, 22) < 60);
    }

    void doesNotMixInTheColoursOfPixelsThatCannotBeSeen()
    {
        QImage image = pictures::plain(40, 40, QColor(0, 255, 0, 0));
        for (int y = 10; y < 30; ++y)
            for (int x = 10; x < 30; ++x)
                image.setPixelColor(x, y, QColor(255, 0, 0, 255));
        const Bitmap turned = platform::turned(Bitmap::fromImage(image), centred(33, QSize(56, 56))).value_or(Bitmap());
        for (int y = 0; y < 56; ++y)
            for (int x = 0; x < 56; ++x) {
                const auto pixel = turned.pixel(x, y);
                if (pixel[3] > 16)
                    QVERIFY2(pixel[1] <= 16, qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            }
    }

    void refusesWhatCannotBeDrawn_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<QSize>("canvas");
        QTest::newRow("not a number") << qQNaN() << QSize(10, 10);
        QTest::newRow("infinite") << qInf() << QSize(10, 10);
        QTest::newRow("no canvas") << 5.0 << QSize(0, 10);
        QTest::newRow("less than none") << 5.0 << QSize(-3, 10);
        QTest::newRow("too large") << 5.0 << QSize(9'000'000, 9'000'000);
        QTest::newRow("too long") << 5.0 << QSize(std::numeric_limits<int>::max(), 1);
    }

    void refusesWhatCannotBeDrawn()
    {
        QFETCH(double, degrees);
        QFETCH(QSize, canvas);
        const Bitmap source = Bitmap::fromImage(pictures::gradient(20, 10));
        QVERIFY(!platform::turned(source, centred(degrees, canvas)).has_value());
    }

    void refusesNoPicture()
    {
        QVERIFY(!platform::turned(Bitmap(), ExactTurn::Half).has_value());
        QVERIFY(!platform::turned(Bitmap(), centred(5, QSize(10, 10))).has_value());
    }

    void turnsPicturesOfOnePixel()
    {
        const Bitmap one = Bitmap::fromImage(pictures::plain(1, 1, Qt::white, QImage::Format_RGB888));
        QCOMPARE(platform::turned(one, ExactTurn::Quarter)->pixel(0, 0), (std::array<int, 4>{255, 255, 255, 255}));
        const Result<Bitmap> free = platform::turned(one, centred(45, QSize(1, 1)));
        QVERIFY(free.has_value());
        QCOMPARE(free->pixel(0, 0), (std::array<int, 4>{255, 255, 255, 255}));
    }
};

QUORLIN_TEST(TurnBitmap)
#include "tst_turn_bitmap.moc"
