#include "image/recipe/stage.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace image;

Q_DECLARE_METATYPE(image::ResizeOperation)
Q_DECLARE_METATYPE(image::CropOperation)

/** Sizes and places, worked out without a picture. */
class TestRecipeStages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resizes_data();
    void resizes();
    void crops_data();
    void crops();
    void turnsInOneOfEightWays();
    void knowsWhatLeavesAPictureAsItIs();
    void takesLengthsAtAResolution();
};

namespace {

Stage stageOf(int width, int height)
{
    Stage stage;
    stage.size = QSize(width, height);
    return stage;
}

ResizeOperation by(ResizeBy way, double number, bool enlarges = false)
{
    ResizeOperation resize;
    resize.by = way;
    resize.number = number;
    resize.enlarges = enlarges;
    return resize;
}

ResizeOperation box(BoxFit fit, int width, int height, bool enlarges = false)
{
    ResizeOperation resize = by(ResizeBy::Box, 0, enlarges);
    resize.fit = fit;
    resize.boxWidth = width;
    resize.boxHeight = height;
    return resize;
}

CropOperation crop(CropBy way, double width, double height, Place position = Place::Center)
{
    CropOperation operation;
    operation.by = way;
    operation.width = width;
    operation.height = height;
    operation.percent = width;
    operation.position = position;
    return operation;
}

} // namespace

void TestRecipeStages::resizes_data()
{
    QTest::addColumn<ResizeOperation>("resize");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("expected");
    const QSize photo(4000, 3000);
    QTest::newRow("width") << by(ResizeBy::Width, 1000) << photo << QSize(1000, 750);
    QTest::newRow("height") << by(ResizeBy::Height, 1000) << photo << QSize(1333, 1000);
    QTest::newRow("longest of a wide one") << by(ResizeBy::Longest, 1000) << photo << QSize(1000, 750);
    QTest::newRow("longest of a high one") << by(ResizeBy::Longest, 1000) << QSize(3000, 4000) << QSize(750, 1000);
    QTest::newRow("shortest") << by(ResizeBy::Shortest, 300) << photo << QSize(400, 300);
    QTest::newRow("percent") << by(ResizeBy::Percent, 12.5) << photo << QSize(500, 375);
    QTest::newRow("megapixels") << by(ResizeBy::Megapixels, 3) << photo << QSize(2000, 1500);
    QTest::newRow("small enough") << by(ResizeBy::Longest, 9000) << photo << photo;
    QTest::newRow("enlarged") << by(ResizeBy::Longest, 8000, true) << photo << QSize(8000, 6000);
    QTest::newRow("more than all of it") << by(ResizeBy::Percent, 300) << photo << photo;
    QTest::newRow("less than a pixel") << by(ResizeBy::Width, 1) << QSize(100, 10) << QSize(1, 1);
    QTest::newRow("inside a box") << box(BoxFit::Inside, 800, 800) << photo << QSize(800, 600);
    QTest::newRow("inside a high box") << box(BoxFit::Inside, 800, 300) << photo << QSize(400, 300);
    QTest::newRow("inside a large box") << box(BoxFit::Inside, 8000, 8000) << photo << photo;
    QTest::newRow("enlarged into a box") << box(BoxFit::Inside, 8000, 9000, true) << photo << QSize(8000, 6000);
    QTest::newRow("filling a box") << box(BoxFit::Fill, 800, 800) << photo << QSize(800, 800);
    QTest::newRow("filling a large box") << box(BoxFit::Fill, 200, 50) << QSize(100, 100) << QSize(100, 50);
    QTest::newRow("filling a box, enlarged") << box(BoxFit::Fill, 200, 50, true) << QSize(100, 100) << QSize(200, 50);
    QTest::newRow("stretched") << box(BoxFit::Stretch, 800, 100) << photo << QSize(800, 100);
    QTest::newRow("stretched, not longer") << box(BoxFit::Stretch, 5000, 100) << photo << QSize(4000, 100);
    QTest::newRow("stretched, longer") << box(BoxFit::Stretch, 5000, 100, true) << photo << QSize(5000, 100);
    QTest::newRow("padded") << box(BoxFit::Pad, 800, 800) << photo << QSize(800, 800);
    QTest::newRow("padded, small") << box(BoxFit::Pad, 800, 800) << QSize(10, 10) << QSize(800, 800);
}

void TestRecipeStages::resizes()
{
    QFETCH(ResizeOperation, resize);
    QFETCH(QSize, size);
    QFETCH(QSize, expected);
    const auto change = changeOf(resize, stageOf(size.width(), size.height()));
    QVERIFY(change.has_value());
    QCOMPARE(change->after.size, expected);
    QCOMPARE(change->effect == Effect::None, expected == size);
}

void TestRecipeStages::crops_data()
{
    QTest::addColumn<CropOperation>("crop");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("expected");
    const QSize photo(400, 300);
    QTest::newRow("centre") << crop(CropBy::Size, 100, 50) << photo << QRect(150, 125, 100, 50);
    QTest::newRow("bottom right") << crop(CropBy::Size, 100, 50, Place::BottomRight) << photo
                                  << QRect(300, 250, 100, 50);
    QTest::newRow("larger") << crop(CropBy::Size, 500, 50) << photo << QRect(0, 125, 400, 50);
    QTest::newRow("3:2") << crop(CropBy::Ratio, 3, 2) << photo << QRect(0, 16, 400, 267);
    QTest::newRow("3:2 of a high one") << crop(CropBy::Ratio, 3, 2) << QSize(300, 400) << QRect(16, 0, 267, 400);
    QTest::newRow("2:3 of a wide one") << crop(CropBy::Ratio, 2, 3) << photo << QRect(0, 16, 400, 267);
    QTest::newRow("1:1") << crop(CropBy::Ratio, 1, 1) << photo << QRect(50, 0, 300, 300);
    QTest::newRow("percent") << crop(CropBy::Percent, 10, 0) << photo << QRect(20, 15, 360, 270);
    QTest::newRow("trimmed") << crop(CropBy::Trim, 100, 100) << photo << QRect(50, 50, 300, 200);
    QTest::newRow("trimmed at an edge") << crop(CropBy::Trim, 10, 10, Place::TopLeft) << photo << QRect(0, 0, 390, 290);
    QTest::newRow("trimmed to nothing") << crop(CropBy::Trim, 300, 300) << photo << QRect();
    CropOperation kept = crop(CropBy::Ratio, 2, 3);
    kept.turns = false;
    QTest::newRow("2:3 as it is") << kept << photo << QRect(100, 0, 200, 300);
    CropOperation moved = crop(CropBy::Size, 100, 100, Place::TopLeft);
    moved.right = -50;
    moved.down = 250;
    QTest::newRow("reaching out") << moved << photo << QRect(0, 250, 50, 50);
    moved.right = 400;
    QTest::newRow("outside") << moved << photo << QRect();
}

void TestRecipeStages::crops()
{
    QFETCH(CropOperation, crop);
    QFETCH(QSize, size);
    QFETCH(QRect, expected);
    const Stage stage = stageOf(size.width(), size.height());
    QCOMPARE(cropPartOf(crop, stage), expected);
    const auto change = changeOf(crop, stage);
    QCOMPARE(change.has_value(), !expected.isEmpty());
    if (change)
        QCOMPARE(change->after.size, expected.size());
}

void TestRecipeStages::turnsInOneOfEightWays()
{
    using platform::ExactTurn;
    const QList<ExactTurn> turns = {ExactTurn::None,          ExactTurn::Quarter,      ExactTurn::Half,
                                    ExactTurn::ThreeQuarters, ExactTurn::MirrorAcross, ExactTurn::MirrorDown};
    QImage dots(3, 2, QImage::Format_RGB32);
    for (int i = 0; i < 6; ++i)
        dots.setPixelColor(i % 3, i / 3, QColor(40 * i, 10, 200 - 30 * i));
    const platform::Bitmap start = platform::Bitmap::fromImage(dots);
    // Three in a row, one by one and all at once.
    for (const ExactTurn a : turns)
        for (const ExactTurn b : turns)
            for (const ExactTurn c : turns) {
                platform::Bitmap slow = start;
                for (const ExactTurn turn : {a, b, c})
                    slow = platform::turned(slow, turn).value();
                const RightTurn all = RightTurn(a).then(RightTurn(b)).then(RightTurn(c));
                QVERIFY(all.steps().size() <= 2);
                platform::Bitmap fast = start;
                for (const ExactTurn turn : all.steps())
                    fast = platform::turned(fast, turn).value();
                QCOMPARE(fast.toRawImage(), slow.toRawImage());
                QCOMPARE(all.isNothing(), slow.toRawImage() == start.toRawImage());
            }
}

void TestRecipeStages::knowsWhatLeavesAPictureAsItIs()
{
    const Stage photo = stageOf(400, 300);
    const auto effectOf = [&photo](const Operation &operation) { return changeOf(operation, photo)->effect; };
    QVERIFY(effectOf(TurnOperation{360, {}}) == Effect::None);
    QVERIFY(effectOf(TurnOperation{-90, {}}) == Effect::RightTurn);
    QVERIFY(effectOf(TurnOperation{45, {}}) == Effect::Pixels);
    QVERIFY(effectOf(FlipOperation{}) == Effect::RightTurn);
    QVERIFY(effectOf(RoundOperation{}) == Effect::None);
    QVERIFY(effectOf(BackgroundOperation{Qt::red, {}}) == Effect::None);
    QVERIFY(effectOf(FrameOperation{}) == Effect::None);
    QVERIFY(effectOf(SharpenOperation{}) == Effect::Pixels);
    WatermarkOperation unseen;
    unseen.opacity = 0;
    QVERIFY(effectOf(unseen) == Effect::None);
    Stage clear = photo;
    clear.hasAlpha = true;
    QVERIFY(changeOf(BackgroundOperation{Qt::red, {}}, clear)->effect == Effect::Pixels);
    QVERIFY(!changeOf(BackgroundOperation{Qt::red, {}}, clear)->after.hasAlpha);
}

void TestRecipeStages::takesLengthsAtAResolution()
{
    Stage photo = stageOf(4000, 3000);
    photo.horizontalDpi = photo.verticalDpi = 254;
    ResizeOperation resize = by(ResizeBy::Width, 10);
    resize.scale.unit = RecipeUnit::Centimetre;
    QCOMPARE(changeOf(resize, photo)->after.size, QSize(1000, 750));
    QCOMPARE(changeOf(resize, photo)->after.horizontalDpi, 254.0);
    resize.scale.dpi = 127;
    QCOMPARE(changeOf(resize, photo)->after.size, QSize(500, 375));
    QCOMPARE(changeOf(resize, photo)->after.verticalDpi, 127.0);
    resize.scale = {RecipeUnit::Pica, 72};
    QCOMPARE(changeOf(resize, photo)->after.size.width(), 120);
}

QUORLIN_TEST(TestRecipeStages)
#include "tst_recipe_stages.moc"
