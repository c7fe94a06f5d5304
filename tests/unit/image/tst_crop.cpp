#include "image/crop.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>

using image::CropKind;
using image::CropRect;
using image::CropSettings;
using image::CropSpace;

Q_DECLARE_METATYPE(CropRect)
Q_DECLARE_METATYPE(CropSettings)

namespace {

constexpr qint32 largest = std::numeric_limits<qint32>::max();
constexpr qint32 smallest = std::numeric_limits<qint32>::min();

std::array<int, 4> colorAt(const platform::Picture &picture, int x, int y)
{
    return picture.bitmap().pixel(x, y);
}

/** How much of a pixel, counted from the bottom left corner, the frame covers: 0 to 255. */
int alphaAt(const platform::Picture &picture, int x, int yFromBottom)
{
    return colorAt(picture, x, picture.bitmap().height() - 1 - yFromBottom)[3];
}

} // namespace

/** Which rectangle a crop means, and how its frame looks. */
class Crop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheKindByTheLabel();
    void takesTheRectangleOfEveryKind_data();
    void takesTheRectangleOfEveryKind();
    void placesNineRectangles_data();
    void placesNineRectangles();
    void keepsThePreviousOriginForOtherPositions();
    void dividesTowardZeroAndWraps_data();
    void dividesTowardZeroAndWraps();
    void cutsWhatReachesOutside_data();
    void cutsWhatReachesOutside();
    void frameAndCutAgree();
    void choosesTheLineWidth_data();
    void choosesTheLineWidth();
    void dashesByLineWidth_data();
    void dashesByLineWidth();
    void drawsDashesWithSquareEnds();
    void drawsHalfPixelsAsHalfCovered();
    void drawsWhatOfTheFrameLiesOnThePicture();
    void drawsFramesOfAnySize();
    void keepsTheDashesInStepFarOutside();
    void drawsAtAnyScale();
    void refusesWhatCannotBeDrawn();
};

void Crop::knowsTheKindByTheLabel()
{
    QCOMPARE(image::cropKind(QStringLiteral("W x H")), CropKind::Size);
    QCOMPARE(image::cropKind(QStringLiteral("%")), CropKind::Percentage);
    for (const char *other : {"", "Pixels", "w x h", "W x H ", "%%", "25%"})
        QCOMPARE(image::cropKind(QString::fromLatin1(other)), CropKind::Pixels);
    QCOMPARE(image::cropKind(QString()), CropKind::Pixels);
}

void Crop::takesTheRectangleOfEveryKind_data()
{
    QTest::addColumn<CropSettings>("settings");
    QTest::addColumn<CropRect>("cut");
    QTest::addColumn<CropRect>("frame");
    const auto settings = [](CropKind kind, QSize size, int percentage, int pixels, int position) {
        CropSettings result;
        result.kind = kind;
        result.size = size;
        result.percentage = percentage;
        result.pixels = pixels;
        result.position = position;
        return result;
    };
    QTest::newRow("a quarter less, centred") << settings(CropKind::Percentage, {}, 25, 0, 4)
                                             << CropRect{500, 375, 3000, 2250} << CropRect{500, 375, 3000, 2250};
    QTest::newRow("100 pixels less, bottom right")
        << settings(CropKind::Pixels, {}, 0, 100, 8) << CropRect{100, 100, 3900, 2900} << CropRect{100, 0, 3900, 2900};
    QTest::newRow("a size, top left") << settings(CropKind::Size, {800, 600}, 25, 100, 0) << CropRect{0, 0, 800, 600}
                                      << CropRect{0, 2400, 800, 600};
    QTest::newRow("nothing less") << settings(CropKind::Percentage, {}, 0, 7, 4) << CropRect{0, 0, 4000, 3000}
                                  << CropRect{0, 0, 4000, 3000};
    QTest::newRow("fractions are cut off")
        << settings(CropKind::Percentage, {}, 67, 0, 0) << CropRect{0, 0, 1320, 990} << CropRect{0, 2010, 1320, 990};
    QTest::newRow("all is cut away") << settings(CropKind::Percentage, {}, 100, 0, 0) << CropRect{0, 0, 0, 0}
                                     << CropRect{0, 3000, 0, 0};
    QTest::newRow("more than all") << settings(CropKind::Percentage, {}, 150, 0, 4)
                                   << CropRect{3000, 2250, -2000, -1500} << CropRect{3000, 2250, -2000, -1500};
    QTest::newRow("a larger one") << settings(CropKind::Percentage, {}, -50, 0, 4) << CropRect{-1000, -750, 6000, 4500}
                                  << CropRect{-1000, -750, 6000, 4500};
    QTest::newRow("pixels more") << settings(CropKind::Pixels, {}, 0, -10, 2) << CropRect{-10, 0, 4010, 3010}
                                 << CropRect{-10, -10, 4010, 3010};
}

void Crop::takesTheRectangleOfEveryKind()
{
    QFETCH(CropSettings, settings);
    const QSize picture(4000, 3000);
    QTEST(image::cropRect(settings, picture, CropSpace::TopLeft), "cut");
    QTEST(image::cropRect(settings, picture, CropSpace::BottomLeft), "frame");
}

void Crop::placesNineRectangles_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("cutY");
    QTest::addColumn<int>("frameY");
    // A rectangle of 60 x 40 on 101 x 83: 41 and 43 are outside it. Moved by 7 to the right and 3 down.
    QTest::newRow("top left") << 0 << 7 << 3 << 43 - 3;
    QTest::newRow("top centre") << 1 << 20 + 7 << 3 << 43 - 3;
    QTest::newRow("top right") << 2 << 41 + 7 << 3 << 43 - 3;
    QTest::newRow("middle left") << 3 << 7 << 21 + 3 << 21 - 3;
    QTest::newRow("centre") << 4 << 20 + 7 << 21 + 3 << 21 - 3;
    QTest::newRow("middle right") << 5 << 41 + 7 << 21 + 3 << 21 - 3;
    QTest::newRow("bottom left") << 6 << 7 << 43 + 3 << -3;
    QTest::newRow("bottom centre") << 7 << 20 + 7 << 43 + 3 << -3;
    QTest::newRow("bottom right") << 8 << 41 + 7 << 43 + 3 << -3;
}

void Crop::placesNineRectangles()
{
    QFETCH(int, position);
    QFETCH(int, x);
    QFETCH(int, cutY);
    QFETCH(int, frameY);
    CropSettings settings;
    settings.kind = CropKind::Size;
    settings.size = QSize(60, 40);
    settings.position = position;
    settings.xOffset = 7;
    settings.yOffset = 3;
    QCOMPARE(image::cropRect(settings, {101, 83}, CropSpace::TopLeft), (CropRect{x, cutY, 60, 40}));
    QCOMPARE(image::cropRect(settings, {101, 83}, CropSpace::BottomLeft), (CropRect{x, frameY, 60, 40}));
}

void Crop::keepsThePreviousOriginForOtherPositions()
{
    CropSettings settings;
    settings.pixels = 10;
    settings.xOffset = 5;
    for (const int position : {9, 10, 1000, -1, largest, smallest}) {
        settings.position = position;
        for (const CropSpace space : {CropSpace::TopLeft, CropSpace::BottomLeft})
            QCOMPARE(image::cropRect(settings, {100, 50}, space, {11, 12, 13, 14}), (CropRect{11, 12, 90, 40}));
    }
}

void Crop::dividesTowardZeroAndWraps_data()
{
    QTest::addColumn<CropSettings>("settings");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<CropRect>("cut");
    CropSettings settings;
    settings.kind = CropKind::Size;
    settings.size = QSize(13, 16);
    settings.position = 4;
    QTest::newRow("halves of negative numbers") << settings << QSize(10, 11) << CropRect{-1, -2, 13, 16};
    settings.size = QSize(largest, smallest);
    QTest::newRow("the largest rectangle")
        << settings << QSize(10, 11) << CropRect{-1073741818, -1073741818, largest, smallest};
    settings.size = QSize(0, 0);
    settings.position = 8;
    settings.xOffset = largest;
    settings.yOffset = largest;
    QTest::newRow("the largest offset") << settings << QSize(1, 2) << CropRect{smallest, smallest + 1, 0, 0};
    settings = {};
    settings.kind = CropKind::Percentage;
    settings.percentage = -900000;
    QTest::newRow("a product beyond 32 bits")
        << settings << QSize(4000, 3000)
        << CropRect{0, 0, (900100 * 4000LL - 4294967296LL) / 100, (900100 * 3000LL - 4294967296LL) / 100};
    settings.percentage = smallest;
    QTest::newRow("the smallest percentage")
        << settings << QSize(100, 1) << CropRect{0, 0, 100, (smallest + 100) / 100};
    settings = {};
    settings.pixels = smallest;
    QTest::newRow("the smallest number of pixels") << settings << QSize(1, 0) << CropRect{0, 0, smallest + 1, smallest};
}

void Crop::dividesTowardZeroAndWraps()
{
    QFETCH(CropSettings, settings);
    QFETCH(QSize, picture);
    QTEST(image::cropRect(settings, picture, CropSpace::TopLeft), "cut");
}

void Crop::cutsWhatReachesOutside_data()
{
    QTest::addColumn<CropRect>("rect");
    QTest::addColumn<QRect>("visible");
    QTest::newRow("inside") << CropRect{10, 20, 30, 25} << QRect(10, 20, 30, 25);
    QTest::newRow("over the top left corner") << CropRect{-5, -6, 20, 20} << QRect(0, 0, 15, 14);
    QTest::newRow("over the bottom right corner") << CropRect{95, 40, 20, 20} << QRect(95, 40, 5, 10);
    QTest::newRow("larger") << CropRect{-1000, -1000, largest, largest} << QRect(0, 0, 100, 50);
    QTest::newRow("beside it") << CropRect{100, 0, 10, 10} << QRect();
    QTest::newRow("above it") << CropRect{0, -10, 10, 10} << QRect();
    QTest::newRow("no width") << CropRect{10, 10, 0, 10} << QRect();
    QTest::newRow("a negative width") << CropRect{50, 10, -20, 10} << QRect();
    QTest::newRow("at the end of numbers") << CropRect{largest, smallest, largest, largest} << QRect();
}

void Crop::cutsWhatReachesOutside()
{
    QFETCH(CropRect, rect);
    QTEST(image::visiblePart(rect, QSize(100, 50)), "visible");
}

// In the middle row an odd remainder is halved from two sides, so that the two may be one pixel apart there.
void Crop::frameAndCutAgree()
{
    QRandomGenerator random(20261121);
    for (int round = 0; round < 20000; ++round) {
        const QSize picture(random.bounded(1, 9000), random.bounded(1, 9000));
        CropSettings settings;
        settings.kind = CropKind(random.bounded(3));
        settings.size = QSize(random.bounded(-100, 9100), random.bounded(-100, 9100));
        settings.percentage = random.bounded(-20, 120);
        settings.pixels = random.bounded(-100, 9000);
        settings.xOffset = random.bounded(-500, 500);
        settings.yOffset = random.bounded(-500, 500);
        for (settings.position = 0; settings.position < 9; ++settings.position) {
            const CropRect cut = image::cropRect(settings, picture, CropSpace::TopLeft);
            const CropRect frame = image::cropRect(settings, picture, CropSpace::BottomLeft);
            QCOMPARE(frame.x, cut.x);
            QCOMPARE(QSize(frame.width, frame.height), QSize(cut.width, cut.height));
            const int rest = picture.height() - cut.height;
            const int apart = settings.position / 3 == 1 ? rest % 2 : 0;
            QCOMPARE(picture.height() - frame.y - frame.height, cut.y + apart);
        }
    }
}

void Crop::choosesTheLineWidth_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<float>("width");
    struct Row
    {
        int longer;
        float landscape;
        float other;
    };
    for (const Row &row : std::initializer_list<Row>{{1, 3, 1.5F},
                                                     {500, 3, 1.5F},
                                                     {501, 6, 3},
                                                     {1000, 6, 3},
                                                     {1001, 8, 4},
                                                     {2000, 8, 4},
                                                     {2001, 10, 5},
                                                     {4000, 10, 5},
                                                     {4001, 15, 7},
                                                     {5000, 15, 7},
                                                     {5001, 20, 10},
                                                     {6000, 20, 10},
                                                     {6001, 25, 12},
                                                     {100000, 25, 12}}) {
        QTest::addRow("landscape %d", row.longer) << QSize(row.longer, row.longer - 1) << row.landscape;
        QTest::addRow("portrait %d", row.longer) << QSize(row.longer - 1, row.longer) << row.other;
        QTest::addRow("square %d", row.longer) << QSize(row.longer, row.longer) << row.other;
    }
    QTest::newRow("nothing") << QSize(0, 0) << 1.5F;
    QTest::newRow("4000 x 3000") << QSize(4000, 3000) << 10.0F;
    QTest::newRow("3000 x 4000") << QSize(3000, 4000) << 5.0F;
}

void Crop::choosesTheLineWidth()
{
    QFETCH(QSize, picture);
    QTEST(image::frameLineWidth(picture), "width");
}

void Crop::dashesByLineWidth_data()
{
    QTest::addColumn<float>("width");
    QTest::addColumn<double>("dash");
    for (const auto &[width, dash] : std::initializer_list<std::pair<float, double>>{
             {1.5F, 15}, {3, 15}, {10, 15}, {10.5F, 40}, {12, 40}, {15, 40}, {20, 40}, {25, 90}, {30, 90}, {31, 120}})
        QTest::addRow("%g", double(width)) << width << dash;
}

void Crop::dashesByLineWidth()
{
    QFETCH(float, width);
    QTEST(image::frameDash(width), "dash");
}

void Crop::drawsDashesWithSquareEnds()
{
    const QSize canvas(300, 200);
    const image::CropBox box = {QRectF(40, 50, 200, 100), 4, 15};
    const auto frame = image::drawCropBox(canvas, box);
    QVERIFY(frame);
    QCOMPARE(frame->size(), QSizeF(300, 200));
    QCOMPARE(frame->bitmap().size(), canvas);
    const std::array<int, 4> red = {255, 59, 48, 255};
    const std::array<int, 4> nothing = {0, 0, 0, 0};
    // The bottom edge: on for 15, off for 15, each end 2 longer, the line from 2 below to 2 above.
    const auto bottom = [&](int x, int y) { return colorAt(*frame, x, 200 - 1 - y); };
    for (int x = 40; x < 238; ++x) { // from there on the right side covers it
        const int along = (x - 40) % 30;
        const bool isOn = along < 15 + 2 || along >= 30 - 2;
        QCOMPARE(bottom(x, 50), isOn ? red : nothing);
        QCOMPARE(bottom(x, 49), isOn ? red : nothing);
        if (x > 42 && x < 237) {
            QCOMPARE(bottom(x, 51), isOn ? red : nothing);
            QCOMPARE(bottom(x, 52), nothing);
        }
        QCOMPARE(bottom(x, 47), nothing);
    }
    QCOMPARE(bottom(38, 48), red);
    QCOMPARE(bottom(37, 48), nothing);
    // The sides begin at the bottom too, so that all corners there are closed.
    QCOMPARE(bottom(241, 50 + 16), red);
    QCOMPARE(bottom(240, 50 + 20), nothing);
    QCOMPARE(bottom(140, 100), nothing);
}

void Crop::drawsHalfPixelsAsHalfCovered()
{
    const auto frame = image::drawCropBox(QSize(100, 100), {QRectF(20, 20, 60, 60), 3, 15});
    QVERIFY(frame);
    QCOMPARE(alphaAt(*frame, 25, 20), 255);
    QCOMPARE(alphaAt(*frame, 25, 19), 255);
    QVERIFY(std::abs(alphaAt(*frame, 25, 21) - 128) <= 2);
    QVERIFY(std::abs(alphaAt(*frame, 25, 18) - 128) <= 2);
    QCOMPARE(alphaAt(*frame, 25, 17), 0);
    const std::array<int, 4> half = colorAt(*frame, 25, 99 - 21);
    QCOMPARE((std::array<int, 3>{half[0], half[1], half[2]}), (std::array<int, 3>{255, 59, 48}));
}

void Crop::drawsWhatOfTheFrameLiesOnThePicture()
{
    const auto frame = image::drawCropBox(QSize(100, 80), {QRectF(-50, 30, 500, 500), 4, 15});
    QVERIFY(frame);
    int covered = 0;
    for (int x = 0; x < 100; ++x)
        covered += alphaAt(*frame, x, 30) > 0 ? 1 : 0;
    QVERIFY(covered > 50);
    QCOMPARE(alphaAt(*frame, 50, 60), 0);
}

void Crop::drawsFramesOfAnySize()
{
    for (const double far : {1e5, 2147483647.0, 4294967295.0})
        for (const double near : {-far / 2, -far / 3, 10.0}) {
            const auto frame = image::drawCropBox(QSize(64, 64), {QRectF(near, 20, far, 20), 3, 15});
            QVERIFY(frame);
            int covered = 0;
            for (int x = 10; x < 64; ++x)
                covered += alphaAt(*frame, x, 20) > 0 ? 1 : 0;
            QVERIFY(covered > 20 && covered < 54);
        }
    QVERIFY(image::drawCropBox(QSize(64, 64), {QRectF(30, 20, -4e9, -4e9), 3, 15}));
    QVERIFY(image::drawCropBox(QSize(64, 64), {QRectF(30, 20, 0, 0), 3, 15}));
}

void Crop::keepsTheDashesInStepFarOutside()
{
    const image::CropBox near = {QRectF(-60, 20, 400, 400), 4, 15};
    image::CropBox far = near;
    far.rect = QRectF(-60 - 30 * 1000000.0, 20, 400 + 30 * 1000000.0, 400);
    const auto one = image::drawCropBox(QSize(200, 100), near);
    const auto other = image::drawCropBox(QSize(200, 100), far);
    QVERIFY(one && other);
    QCOMPARE(other->bitmap().toRawImage(), one->bitmap().toRawImage());
}

void Crop::drawsAtAnyScale()
{
    const image::CropBox full = image::cropBox({400, 500, 2000, 1000}, QSize(4000, 3000));
    QCOMPARE(full.lineWidth, 10.0);
    QCOMPARE(full.dash, 15.0);
    const image::CropBox small = full.scaled(0.1);
    QCOMPARE(small.rect, QRectF(40, 50, 200, 100));
    QCOMPARE(small.lineWidth, 1.0);
    QCOMPARE(small.dash, 1.5);
    const auto large = image::drawCropBox(QSize(4000, 3000), full);
    const auto reduced = image::drawCropBox(QSize(400, 300), small);
    QVERIFY(large && reduced);
    const QImage expected =
        large->bitmap().toRawImage().scaled(400, 300, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage drawn = reduced->bitmap().toRawImage();
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x)
            QVERIFY(std::abs(qAlpha(drawn.pixel(x, y)) - qAlpha(expected.pixel(x, y))) <= 24);
}

void Crop::refusesWhatCannotBeDrawn()
{
    const QRectF rect(1, 1, 5, 5);
    QVERIFY(!image::drawCropBox(QSize(0, 10), {rect, 3, 15}));
    QVERIFY(!image::drawCropBox(QSize(10, 10), {rect, 0, 15}));
    QVERIFY(!image::drawCropBox(QSize(10, 10), {rect, 3, 0}));
    QVERIFY(!image::drawCropBox(QSize(10, 10), {QRectF(0, qQNaN(), 1, 1), 3, 15}));
    QVERIFY(!image::drawCropBox(QSize(10000000, 10000000), {rect, 3, 15}));
}

QUORLIN_TEST(Crop)
#include "tst_crop.moc"
