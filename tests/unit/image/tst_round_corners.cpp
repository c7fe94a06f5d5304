#include "image/round_corners.h"
#include "platform/imageio/source/picture.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <cmath>

using image::CornerBackground;
using image::CornerOptions;
using image::CornerShape;
using platform::Bitmap;

using Pixel = std::array<int, 4>;

Q_DECLARE_METATYPE(CornerOptions)

namespace {

const Pixel nothing = {0, 0, 0, 0};

CornerOptions shaped(CornerShape shape, double radius = 0)
{
    CornerOptions options;
    options.shape = shape;
    options.radius = radius;
    return options;
}

CornerOptions on(CornerOptions options, const QColor &color, double band = 0)
{
    options.background = CornerBackground{color, band};
    return options;
}

Bitmap gradient(int width, int height, QImage::Format format = QImage::Format_RGB32)
{
    return Bitmap::fromImage(pictures::gradient(width, height).convertToFormat(format));
}

Bitmap picture(const QString &name)
{
    return platform::Picture::fromFile(picturePath(name)).bitmap();
}

Pixel opaque(Pixel pixel)
{
    pixel[3] = 255;
    return pixel;
}

} // namespace

/** Pictures cut to round shapes. */
class RoundCorners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheLengthsOfEveryShape_data();
    void takesTheLengthsOfEveryShape();
    void givesThePlainCopyWithoutARadius();
    void cutsTheCornersAway_data();
    void cutsTheCornersAway();
    void keepsTheDepth_data();
    void keepsTheDepth();
    void keepsTheSquareAtTheBottomLeft();
    void fillsTheCornersWithTheColor();
    void laysABandOverTheEdge();
    void leavesOnlyColorUnderAWideBand();
    void boundsTheRadius();
    void showsTheColorThroughTransparency();
    void keepsGreyForGreyColors();
    void keepsWhatBelongsToThePicture();
    void convertsTheColorIntoThePicturesProfile();
    void leavesTheProfileThatTakesNoColor();
    void turnsInkAndLabIntoRgb_data();
    void turnsInkAndLabIntoRgb();
    void drawsTheSameShapeSmaller();
    void drawsLargePicturesInPieces();
    void failsWithoutAPicture();
};

void RoundCorners::takesTheLengthsOfEveryShape_data()
{
    QTest::addColumn<CornerOptions>("options");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("part");
    QTest::addColumn<QRectF>("outline");
    QTest::addColumn<QPointF>("radii");
    const QSize wide(4000, 3000);
    const QSize tall(3000, 4000);
    const CornerOptions rectangle = shaped(CornerShape::Rectangle, 200);
    const CornerOptions circle = shaped(CornerShape::Circle, 200);
    const CornerOptions ellipse = shaped(CornerShape::Ellipse, 200);
    QTest::newRow("rectangle") << rectangle << wide << QRect({}, wide) << QRectF({}, wide) << QPointF(200, 200);
    QTest::newRow("circle on a wide picture")
        << circle << wide << QRect(0, 0, 3000, 3000) << QRectF(0, 0, 3000, 3000) << QPointF(1500, 1500);
    QTest::newRow("circle on a tall picture")
        << circle << tall << QRect(0, 1000, 3000, 3000) << QRectF(0, 0, 3000, 3000) << QPointF(1500, 1500);
    QTest::newRow("circle on a square") << circle << QSize(7, 7) << QRect(0, 0, 7, 7) << QRectF(0, 0, 7, 7)
                                        << QPointF(3, 3);
    QTest::newRow("ellipse") << ellipse << QSize(301, 201) << QRect(0, 0, 301, 201) << QRectF(0, 0, 301, 201)
                             << QPointF(150, 100);
    QTest::newRow("band") << on(rectangle, Qt::red, 20) << wide << QRect({}, wide) << QRectF(20, 20, 3960, 2960)
                          << QPointF(200, 200);
    QTest::newRow("band of a circle") << on(circle, Qt::red, 20) << tall << QRect(0, 1000, 3000, 3000)
                                      << QRectF(20, 20, 2960, 2960) << QPointF(1500, 1500);
    QTest::newRow("no band") << on(ellipse, Qt::red) << QSize(10, 20) << QRect(0, 0, 10, 20) << QRectF(0, 0, 10, 20)
                             << QPointF(5, 10);
}

void RoundCorners::takesTheLengthsOfEveryShape()
{
    QFETCH(CornerOptions, options);
    QFETCH(QSize, size);
    const image::RoundedShape shape = image::roundedShape(options, size);
    QTEST(shape.part, "part");
    QTEST(shape.outline, "outline");
    QTEST(QPointF(shape.xRadius, shape.yRadius), "radii");
    QCOMPARE(shape.background.has_value(), options.background.has_value());
}

void RoundCorners::givesThePlainCopyWithoutARadius()
{
    for (const QImage::Format format :
         {QImage::Format_RGB32, QImage::Format_RGBA8888, QImage::Format_Grayscale8, QImage::Format_RGBX64}) {
        const Bitmap source = gradient(40, 30, format);
        const auto copy = image::roundCorners(source, shaped(CornerShape::Rectangle, 0));
        QVERIFY(copy);
        QCOMPARE(copy->toRawImage(), source.toRawImage());
        QCOMPARE(copy->bandCount(), source.bandCount());
    }
}

void RoundCorners::cutsTheCornersAway_data()
{
    QTest::addColumn<CornerOptions>("options");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("xRadius");
    QTest::addColumn<double>("yRadius");
    QTest::newRow("rectangle") << shaped(CornerShape::Rectangle, 20) << QSize(100, 80) << 20.0 << 20.0;
    QTest::newRow("circle") << shaped(CornerShape::Circle) << QSize(80, 80) << 40.0 << 40.0;
    QTest::newRow("ellipse") << shaped(CornerShape::Ellipse) << QSize(100, 60) << 50.0 << 30.0;
    QTest::newRow("odd circle") << shaped(CornerShape::Circle) << QSize(61, 61) << 30.0 << 30.0;
}

/** Every pixel against the ellipse of its corner: inside as it was, outside nothing, on the edge between. */
void RoundCorners::cutsTheCornersAway()
{
    QFETCH(CornerOptions, options);
    QFETCH(QSize, size);
    QFETCH(double, xRadius);
    QFETCH(double, yRadius);
    const Bitmap source = gradient(size.width(), size.height());
    const auto cut = image::roundCorners(source, options);
    QVERIFY(cut);
    QCOMPARE(cut->size(), size);
    QVERIFY(cut->hasAlpha());
    const auto beyond = [](double at, double side, double radius) {
        return std::max({radius - at, at - (side - radius), 0.0}) / radius;
    };
    int edges = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const double distance =
                std::hypot(beyond(x + 0.5, size.width(), xRadius), beyond(y + 0.5, size.height(), yRadius));
            const double half = 0.75 / std::min(xRadius, yRadius); // a pixel's half diagonal and a little
            const Pixel pixel = cut->pixel(x, y);
            if (distance < 1 - half)
                QCOMPARE(pixel, opaque(source.pixel(x, y)));
            else if (distance > 1 + half)
                QCOMPARE(pixel, nothing);
            else if (pixel[3] > 0 && pixel[3] < 255)
                ++edges;
            if (pixel[3] > 0)
                QCOMPARE(opaque(pixel), opaque(source.pixel(x, y)));
            // The edge is sampled on 15 lines a pixel, so that opposite corners may differ by two of them.
            QVERIFY(std::abs(cut->pixel(size.width() - 1 - x, size.height() - 1 - y)[3] - pixel[3]) <= 34);
        }
    QVERIFY(edges > 4 * int(std::min(xRadius, yRadius)) / 2);
}

void RoundCorners::keepsTheDepth_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("bands");
    QTest::newRow("8 bit") << int(QImage::Format_RGB32) << 8 << 4;
    QTest::newRow("8 bit with alpha") << int(QImage::Format_RGBA8888) << 8 << 4;
    QTest::newRow("16 bit") << int(QImage::Format_RGBX64) << 16 << 4;
    QTest::newRow("16 bit with alpha") << int(QImage::Format_RGBA64) << 16 << 4;
    QTest::newRow("grey") << int(QImage::Format_Grayscale8) << 8 << 2;
    QTest::newRow("16 bit grey") << int(QImage::Format_Grayscale16) << 16 << 2;
}

void RoundCorners::keepsTheDepth()
{
    QFETCH(int, format);
    QImage image(60, 40, QImage::Format(format));
    image.fill(QColor::fromRgba64(0x1234, 0x5678, 0x9abc, 0xffff));
    const Bitmap source = Bitmap::fromImage(image);
    const auto cut = image::roundCorners(source, shaped(CornerShape::Rectangle, 12));
    QVERIFY(cut);
    QTEST(cut->bitsPerComponent(), "bits");
    QTEST(cut->bandCount(), "bands");
    QCOMPARE(cut->colorModel(), source.colorModel());
    QCOMPARE(cut->pixel(0, 0), nothing);
    const QImage before = source.toRawImage();
    const QImage after = cut->toRawImage();
    QCOMPARE(after.pixelColor(30, 20).rgba64(), before.pixelColor(30, 20).rgba64());
    QCOMPARE(after.pixelColor(12, 0).rgba64(), before.pixelColor(12, 0).rgba64());
    const QColor edge = after.pixelColor(3, 4);
    QVERIFY(edge.alpha() > 0 && edge.alpha() < 255);
    QCOMPARE(edge.rgba64().red(), before.pixelColor(3, 4).rgba64().red());
}

void RoundCorners::keepsTheSquareAtTheBottomLeft()
{
    const Bitmap tall = gradient(30, 50);
    const auto fromBelow = image::roundCorners(tall, shaped(CornerShape::Circle));
    QVERIFY(fromBelow);
    QCOMPARE(fromBelow->size(), QSize(30, 30));
    QCOMPARE(fromBelow->pixel(15, 15), tall.pixel(15, 35));
    const Bitmap wide = gradient(50, 30);
    const auto fromTheLeft = image::roundCorners(wide, shaped(CornerShape::Circle));
    QVERIFY(fromTheLeft);
    QCOMPARE(fromTheLeft->size(), QSize(30, 30));
    QCOMPARE(fromTheLeft->pixel(15, 15), wide.pixel(15, 15));
}

void RoundCorners::fillsTheCornersWithTheColor()
{
    const Bitmap source = Bitmap::fromImage(pictures::plain(60, 40, Qt::white, QImage::Format_RGB888));
    const auto cut = image::roundCorners(source, on(shaped(CornerShape::Rectangle, 15), QColor(10, 200, 30, 7)));
    QVERIFY(cut);
    QVERIFY(!cut->hasAlpha());
    QCOMPARE(cut->pixel(0, 0), (Pixel{10, 200, 30, 255}));
    QCOMPARE(cut->pixel(59, 39), (Pixel{10, 200, 30, 255}));
    QCOMPARE(cut->pixel(30, 0), (Pixel{255, 255, 255, 255}));
    int between = 0;
    for (int x = 0; x < 15; ++x)
        if (const int red = cut->pixel(x, 4)[0]; red > 10 && red < 255)
            ++between;
    QVERIFY(between > 0);
}

void RoundCorners::laysABandOverTheEdge()
{
    const Bitmap source = gradient(200, 120);
    const auto cut = image::roundCorners(source, on(shaped(CornerShape::Rectangle, 30), Qt::blue, 20));
    QVERIFY(cut);
    QCOMPARE(cut->size(), QSize(200, 120));
    const Pixel blue = {0, 0, 255, 255};
    for (int x = 0; x < 200; ++x) {
        QCOMPARE(cut->pixel(x, 19), blue);
        QCOMPARE(cut->pixel(x, 100), blue);
    }
    QCOMPARE(cut->pixel(19, 60), blue);
    QCOMPARE(cut->pixel(180, 60), blue);
    QCOMPARE(cut->pixel(20, 20), blue); // the corner inside the band is round
    QCOMPARE(cut->pixel(20, 60), opaque(source.pixel(20, 60)));
    QCOMPARE(cut->pixel(100, 20), opaque(source.pixel(100, 20)));
    QCOMPARE(cut->pixel(179, 60), opaque(source.pixel(179, 60)));
    // A radius of 30 that is not reduced by the band: the arc begins 30 after the band.
    QCOMPARE(cut->pixel(50, 20), opaque(source.pixel(50, 20)));
    QVERIFY(cut->pixel(46, 20) != opaque(source.pixel(46, 20)));
}

void RoundCorners::leavesOnlyColorUnderAWideBand()
{
    const Bitmap source = gradient(40, 30);
    for (const double band : {15.0, 20.0, 1000.0}) {
        const auto cut = image::roundCorners(source, on(shaped(CornerShape::Rectangle, 5), Qt::red, band));
        QVERIFY(cut);
        for (const int x : {0, 15, 20, 39})
            QCOMPARE(cut->pixel(x, 15), (Pixel{255, 0, 0, 255}));
    }
    const auto outward = image::roundCorners(source, on(shaped(CornerShape::Rectangle, 0), Qt::red, -5));
    QVERIFY(outward);
    QCOMPARE(outward->pixel(0, 0), opaque(source.pixel(0, 0)));
}

void RoundCorners::boundsTheRadius()
{
    const Bitmap source = gradient(60, 40);
    const auto bounded = image::roundCorners(source, shaped(CornerShape::Rectangle, 4294967295.0));
    const auto ellipse = image::roundCorners(source, shaped(CornerShape::Ellipse));
    QVERIFY(bounded && ellipse);
    QCOMPARE(bounded->toRawImage(), ellipse->toRawImage());
}

void RoundCorners::showsTheColorThroughTransparency()
{
    QImage image = pictures::plain(40, 40, QColor(200, 100, 0, 51));
    image.setPixelColor(20, 20, QColor(1, 2, 3, 0));
    const auto shown = image::roundCorners(Bitmap::fromImage(image), on(shaped(CornerShape::Rectangle, 5), Qt::black));
    QVERIFY(shown);
    QCOMPARE(shown->pixel(10, 10), (Pixel{40, 20, 0, 255}));
    QCOMPARE(shown->pixel(20, 20), (Pixel{0, 0, 0, 255}));
    const auto unfilled = image::roundCorners(Bitmap::fromImage(image), shaped(CornerShape::Rectangle, 5));
    QVERIFY(unfilled);
    QCOMPARE(unfilled->pixel(10, 10), (Pixel{200, 100, 0, 51}));
    QCOMPARE(unfilled->pixel(20, 20), nothing);
}

void RoundCorners::keepsGreyForGreyColors()
{
    const Bitmap source = gradient(40, 30, QImage::Format_Grayscale8);
    const auto grey = image::roundCorners(source, on(shaped(CornerShape::Rectangle, 8), QColor(90, 90, 90)));
    QVERIFY(grey);
    QCOMPARE(grey->colorModel(), platform::ColorModel::Gray);
    QCOMPARE(grey->bandCount(), 1);
    QCOMPARE(grey->pixel(0, 0), (Pixel{90, 90, 90, 255}));
    const auto colored = image::roundCorners(source, on(shaped(CornerShape::Rectangle, 8), QColor(90, 91, 90)));
    QVERIFY(colored);
    QCOMPARE(colored->colorModel(), platform::ColorModel::Rgb);
    QCOMPARE(colored->pixel(0, 0), (Pixel{90, 91, 90, 255}));
    QCOMPARE(colored->pixel(20, 15), opaque(source.pixel(20, 15)));
}

void RoundCorners::keepsWhatBelongsToThePicture()
{
    QImage image = pictures::gradient(40, 30);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(5906);
    const Bitmap source = Bitmap::fromImage(image);
    const auto cut = image::roundCorners(source, shaped(CornerShape::Ellipse));
    QVERIFY(cut);
    QCOMPARE(cut->horizontalDpi(), source.horizontalDpi());
    QCOMPARE(cut->verticalDpi(), source.verticalDpi());
}

void RoundCorners::convertsTheColorIntoThePicturesProfile()
{
    const Bitmap plain = picture(QStringLiteral("own/formats/profile.jpg"));
    QVERIFY(!plain.iccProfile().isEmpty()); // wider than sRGB: the same red has less of it
    const auto cut = image::roundCorners(plain, on(shaped(CornerShape::Ellipse), QColor(255, 0, 0)));
    QVERIFY(cut);
    QCOMPARE(cut->iccProfile(), plain.iccProfile());
    const Pixel stored = cut->pixel(0, 0);
    QVERIFY(std::abs(stored[0] - 219) <= 1 && stored[1] <= 1 && stored[2] <= 1);
    const QColor seen = cut->toScreenImage().pixelColor(0, 0);
    QVERIFY(seen.red() >= 254 && seen.green() <= 2 && seen.blue() <= 2);
    QCOMPARE(cut->pixel(30, 20), plain.pixel(30, 20));
}

/** No colour can be brought into the profile of a scanner. */
void RoundCorners::leavesTheProfileThatTakesNoColor()
{
    SKIP_WITHOUT_CORPUS();
    const Bitmap scanned = picture(QStringLiteral("formats/icc_profile_big.jpg"));
    const auto asSrgb = image::roundCorners(scanned, on(shaped(CornerShape::Ellipse), QColor(255, 0, 0)));
    QVERIFY(asSrgb);
    QCOMPARE(asSrgb->pixel(0, 0), (Pixel{255, 0, 0, 255}));
    QVERIFY(asSrgb->iccProfile().isEmpty());
    QCOMPARE(asSrgb->toScreenImage().pixel(200, 100), scanned.toScreenImage().pixel(200, 100));
    const auto inSrgb = image::roundCorners(picture(QStringLiteral("formats/cat.jpg")),
                                            on(shaped(CornerShape::Ellipse), QColor(1, 128, 254)));
    QVERIFY(inSrgb);
    QCOMPARE(inSrgb->pixel(0, 0), (Pixel{1, 128, 254, 255}));
}

void RoundCorners::turnsInkAndLabIntoRgb_data()
{
    QTest::addColumn<QString>("name");
    for (const expected::Row &row : expected::rows())
        if (row.isDecodable && (row.colourModel == QLatin1String("cmyk") || row.colourModel == QLatin1String("lab")))
            QTest::newRow(qPrintable(row.name)) << row.name;
}

void RoundCorners::turnsInkAndLabIntoRgb()
{
    QFETCH(QString, name);
    const Bitmap source = picture(name);
    if (source.isNull())
        QSKIP("no decoder");
    const auto cut = image::roundCorners(source, shaped(CornerShape::Ellipse));
    QVERIFY(cut);
    QCOMPARE(cut->colorModel(), platform::ColorModel::Rgb);
    QVERIFY(cut->hasAlpha());
    QCOMPARE(cut->pixel(source.width() / 2, source.height() / 2),
             source.pixel(source.width() / 2, source.height() / 2));
}

void RoundCorners::drawsTheSameShapeSmaller()
{
    const QSize full(4000, 2000);
    const QSize small(400, 200);
    const Bitmap source = Bitmap::fromImage(pictures::plain(400, 200, Qt::white, QImage::Format_RGB888));
    const CornerOptions options = on(shaped(CornerShape::Rectangle, 300), Qt::black, 100);
    const auto preview = image::roundCorners(source, image::fitted(image::roundedShape(options, full), full, small));
    const auto same = image::roundCorners(source, on(shaped(CornerShape::Rectangle, 30), Qt::black, 10));
    QVERIFY(preview && same);
    QCOMPARE(preview->toRawImage(), same->toRawImage());
    const QSize tall(3000, 4001);
    const auto circle = image::fitted(image::roundedShape(shaped(CornerShape::Circle), tall), tall, QSize(300, 400));
    QCOMPARE(circle.part, QRect(0, 100, 300, 300));
}

void RoundCorners::drawsLargePicturesInPieces()
{
    const Bitmap source = Bitmap::fromImage(pictures::plain(20000, 150, Qt::white, QImage::Format_Grayscale8));
    const auto cut = image::roundCorners(source, shaped(CornerShape::Rectangle, 70));
    QVERIFY(cut);
    QCOMPARE(cut->pixel(0, 0), nothing);
    QCOMPARE(cut->pixel(19999, 149), nothing);
    QCOMPARE(cut->pixel(19999, 0)[3], 0);
    for (int x = 70; x < 19930; ++x) {
        QCOMPARE(cut->pixel(x, 0)[3], 255);
        QCOMPARE(cut->pixel(x, 149)[3], 255);
    }
    for (int y = 70; y < 80; ++y)
        QCOMPARE(cut->pixel(0, y)[3], 255);
}

void RoundCorners::failsWithoutAPicture()
{
    QVERIFY(!image::roundCorners(Bitmap(), shaped(CornerShape::Circle)));
    QVERIFY(!image::roundCorners(Bitmap(), on(shaped(CornerShape::Rectangle), Qt::red)));
}

QUORLIN_TEST(RoundCorners)
#include "tst_round_corners.moc"
