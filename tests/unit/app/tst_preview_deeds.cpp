#include "app/preview/preview_deeds.h"
#include "image/overlay.h"
#include "image/recipe/render.h"
#include "image/round_corners.h"
#include "image/turn.h"
#include "platform/graphics/resample.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using window::Rendition;

namespace {

QVariantMap deed(const char *name, const QVariantMap &values = {})
{
    QVariantMap map = values;
    map.insert(QStringLiteral("do"), QString::fromLatin1(name));
    return map;
}

QVariantMap rect(int x, int y, int width, int height)
{
    return {{QStringLiteral("x"), x},
            {QStringLiteral("y"), y},
            {QStringLiteral("width"), width},
            {QStringLiteral("height"), height}};
}

QVariantMap size(int width, int height)
{
    return {{QStringLiteral("width"), width}, {QStringLiteral("height"), height}};
}

QVariantMap one(const char *name, const QVariant &value)
{
    return {{QString::fromLatin1(name), value}};
}

QVariantMap corners(const char *shape, double radius, const char *color, double band)
{
    return {{QStringLiteral("shape"), QString::fromLatin1(shape)},
            {QStringLiteral("radius"), radius},
            {QStringLiteral("color"), QString::fromLatin1(color)},
            {QStringLiteral("band"), band}};
}

QVariantMap recipe(const QVariantList &operations)
{
    return deed("recipe", {{QStringLiteral("operations"), operations},
                           {QStringLiteral("path"), QStringLiteral("/pictures/Lake.png")}});
}

QVariantMap mark(const char *text)
{
    return deed("watermark", {{QStringLiteral("text"), QString::fromLatin1(text)},
                              {QStringLiteral("size"), 20},
                              {QStringLiteral("color"), QStringLiteral("#000000")},
                              {QStringLiteral("opacity"), 100}});
}

/** The picture that is meant, and the same with @p factor times fewer pixels on each side. */
Rendition small(const QImage &image, int factor)
{
    const Bitmap full = Bitmap::fromImage(image);
    return {platform::resample(full, full.size() / factor).value(), full.size()};
}

Rendition whole(const QImage &image)
{
    const Bitmap full = Bitmap::fromImage(image);
    return {full, full.size()};
}

Rendition made(const QVariantList &list, const Rendition &start)
{
    const auto deeds = window::deedsFrom(list);
    if (!deeds)
        qFatal("%s", qPrintable(deeds.error().message));
    const auto result = window::done(*deeds, start);
    if (!result)
        qFatal("%s", qPrintable(result.error().message));
    return *result;
}

/** Four quarters of one colour each: red, green, blue, yellow from the top left. */
QImage quarters(int width, int height, int alpha = 255)
{
    QImage image(width, height, QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const bool isRight = x >= width / 2;
            const bool isLow = y >= height / 2;
            QColor color = isLow ? (isRight ? Qt::yellow : Qt::blue) : (isRight ? Qt::green : Qt::red);
            color.setAlpha(alpha);
            image.setPixelColor(x, y, color);
        }
    return image;
}

using Pixel = std::array<int, 4>;

} // namespace

/** The deeds of the preview against the functions that write the files. */
class TestPreviewDeeds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWhatIsNoDeed_data();
    void refusesWhatIsNoDeed();
    void doesAtFullSizeWhatTheOperationsDo_data();
    void doesAtFullSizeWhatTheOperationsDo();
    void framesTheWholePictureWhateverItsResolution();
    void framesWithWholePixels_data();
    void framesWithWholePixels();
    void knowsTheSizeOfTheWholeResult_data();
    void knowsTheSizeOfTheWholeResult();
    void looksTheSameWithFewerPixels_data();
    void looksTheSameWithFewerPixels();
    void givesNoMorePixelsThanTheResultHas();
    void laysAPatternAtItsScale();
    void failsWhereNothingIsLeft();
    void doesARecipeAsTheFileIsMade();
    void doesARecipeWithFewerPixels();
};

void TestPreviewDeeds::refusesWhatIsNoDeed_data()
{
    QTest::addColumn<QVariant>("entry");
    QTest::newRow("no dictionary") << QVariant(3);
    QTest::newRow("no name") << QVariant(QVariantMap());
    QTest::newRow("another name") << QVariant(deed("sharpen"));
    QTest::newRow("cut without a side") << QVariant(deed("cut", size(3, 4)));
    QTest::newRow("a side as text") << QVariant(deed("cut", {{QStringLiteral("x"), 0},
                                                             {QStringLiteral("y"), 0},
                                                             {QStringLiteral("width"), QStringLiteral("3")},
                                                             {QStringLiteral("height"), 4}}));
    QTest::newRow("scale to nothing") << QVariant(deed("scale", size(0, 4)));
    QTest::newRow("no axis") << QVariant(deed("flip", one("axis", QStringLiteral("both"))));
    QTest::newRow("no number") << QVariant(deed("turn", one("degrees", qQNaN())));
    QTest::newRow("no colour") << QVariant(deed("lay", one("color", QStringLiteral("#12"))));
    QTest::newRow("no path") << QVariant(deed("pattern"));
    QTest::newRow("no operations") << QVariant(deed("recipe", one("path", QStringLiteral("/a.png"))));
    QTest::newRow("operations as text") << QVariant(
        deed("recipe", {{QStringLiteral("path"), QStringLiteral("/a.png")},
                        {QStringLiteral("operations"), QStringLiteral("x")}}));
    QTest::newRow("a recipe for no picture") << QVariant(deed("recipe", one("operations", QVariantList())));
    QTest::newRow("an operation that recipes refuse") << QVariant(recipe({deed("watermark")}));
    QTest::newRow("a font that is not there")
        << QVariant(recipe({deed("watermark", {{QStringLiteral("text"), QStringLiteral("x")},
                                               {QStringLiteral("font"), QStringLiteral("No Such Font")}})}));
}

void TestPreviewDeeds::refusesWhatIsNoDeed()
{
    QFETCH(QVariant, entry);
    const auto deeds = window::deedsFrom({deed("frame"), entry});
    QVERIFY(!deeds);
    QVERIFY(!deeds.error().message.isEmpty());
}

void TestPreviewDeeds::doesAtFullSizeWhatTheOperationsDo_data()
{
    QTest::addColumn<QVariantList>("deeds");
    QTest::addColumn<QImage>("expected");
    const Bitmap start = Bitmap::fromImage(quarters(60, 40, 200));
    const auto row = [](const char *name, const QVariantMap &entry, const platform::Result<Bitmap> &bitmap) {
        QTest::newRow(name) << QVariantList{entry} << bitmap.value().toRawImage();
    };
    row("cut", deed("cut", rect(5, 6, 20, 30)), platform::cut(start, QRect(5, 6, 20, 30)));
    row("cut outside", deed("cut", rect(-5, 30, 20, 30)), platform::cut(start, QRect(0, 30, 15, 10)));
    row("scale", deed("scale", size(30, 20)), platform::resample(start, QSize(30, 20)));
    row("flip", deed("flip", one("axis", QStringLiteral("horizontal"))), image::flipped(start, Qt::Horizontal));
    row("flip down", deed("flip", one("axis", QStringLiteral("vertical"))), image::flipped(start, Qt::Vertical));
    row("turn", deed("turn", one("degrees", 30)), image::turned(start, 30.0));
    row("quarter", deed("turn", one("degrees", -90)), image::turned(start, -90.0));
    row("lay", deed("lay", one("color", QStringLiteral("#102030"))),
        image::laidOnColor(start, QColor(0x10, 0x20, 0x30)));
    row("flatten", deed("flatten"), image::laidOnColor(start, Qt::black));
    image::CornerOptions options;
    options.radius = 12;
    row("round", deed("round", corners("0", 12, "", 0)), image::roundCorners(start, options));
    options.shape = image::CornerShape::Circle;
    row("circle", deed("round", corners("1", 12, "", 0)), image::roundCorners(start, options));
    options.shape = image::CornerShape::Ellipse;
    options.background = image::CornerBackground{QColor(Qt::white), 3};
    row("ellipse with a band", deed("round", corners("2", 12, "#ffffff", 3)), image::roundCorners(start, options));
    // The step says first that a pixel is a point.
    row("frame", deed("frame"), image::withWhiteFrame(platform::Picture(start, QSizeF(start.size()))).bitmap());
}

void TestPreviewDeeds::doesAtFullSizeWhatTheOperationsDo()
{
    QFETCH(QVariantList, deeds);
    QFETCH(QImage, expected);
    const Rendition result = made(deeds, whole(quarters(60, 40, 200)));
    QCOMPARE(result.full, expected.size());
    QCOMPARE(result.bitmap.toRawImage(), expected);
}

void TestPreviewDeeds::framesTheWholePictureWhateverItsResolution()
{
    const QVariantList deeds{deed("frame")};
    QImage image = quarters(60, 40, 255);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    const Rendition fine = small(image, 2);
    QVERIFY(fine.bitmap.horizontalDpi() > 100);
    const QImage framed = made(deeds, fine).bitmap.toRawImage();
    QCOMPARE(framed.size(), QSize(40, 30));
    QCOMPARE(framed, made(deeds, small(quarters(60, 40, 255), 2)).bitmap.toRawImage());
    for (const QPoint corner : {QPoint(4, 4), QPoint(35, 4), QPoint(4, 25), QPoint(35, 25)})
        QCOMPARE(framed.pixelColor(corner), QColor(Qt::white));
    for (const QPoint corner : {QPoint(5, 5), QPoint(34, 5), QPoint(5, 24)})
        QVERIFY(framed.pixelColor(corner) != QColor(Qt::white));
}

void TestPreviewDeeds::framesWithWholePixels_data()
{
    QTest::addColumn<QSize>("rendition");
    QTest::addColumn<QSize>("frame"); // 10 pixels of 840, brought to the rendition and rounded
    QTest::newRow("all") << QSize(840, 840) << QSize(10, 10);
    QTest::newRow("half") << QSize(420, 420) << QSize(5, 5);
    QTest::newRow("2.5 pixels") << QSize(210, 210) << QSize(3, 3);
    QTest::newRow("2.3 and 2.2 pixels") << QSize(189, 186) << QSize(2, 2);
    QTest::newRow("0.7 pixels") << QSize(60, 60) << QSize(1, 1);
    QTest::newRow("0.4 pixels") << QSize(30, 30) << QSize(0, 0);
    QTest::newRow("stretched") << QSize(420, 84) << QSize(5, 1);
}

void TestPreviewDeeds::framesWithWholePixels()
{
    QFETCH(QSize, rendition);
    QFETCH(QSize, frame);
    const QImage inner = quarters(rendition.width(), rendition.height());
    const Rendition framed = made({deed("frame")}, {Bitmap::fromImage(inner), QSize(840, 840)});
    QCOMPARE(framed.full, QSize(860, 860));
    QImage expected(rendition + 2 * frame, QImage::Format_RGBA8888);
    expected.fill(Qt::white);
    for (int y = 0; y < inner.height(); ++y)
        for (int x = 0; x < inner.width(); ++x)
            expected.setPixelColor(frame.width() + x, frame.height() + y, inner.pixelColor(x, y));
    QCOMPARE(framed.bitmap.toRawImage().convertToFormat(QImage::Format_RGBA8888), expected);
}

void TestPreviewDeeds::knowsTheSizeOfTheWholeResult_data()
{
    QTest::addColumn<QVariantList>("deeds");
    QTest::addColumn<QSize>("full");
    QTest::newRow("none") << QVariantList() << QSize(600, 400);
    QTest::newRow("cut") << QVariantList{deed("cut", rect(13, 17, 101, 203))} << QSize(101, 203);
    QTest::newRow("cut to one pixel") << QVariantList{deed("cut", rect(599, 399, 1, 1))} << QSize(1, 1);
    QTest::newRow("enlarged") << QVariantList{deed("scale", size(60000, 40000))} << QSize(60000, 40000);
    QTest::newRow("stretched") << QVariantList{deed("scale", size(10, 90000))} << QSize(10, 90000);
    QTest::newRow("quarter") << QVariantList{deed("turn", one("degrees", 90))} << QSize(400, 600);
    QTest::newRow("circle") << QVariantList{deed("round", corners("1", 0, "", 0))} << QSize(400, 400);
    QTest::newRow("frame") << QVariantList{deed("frame")} << QSize(620, 420);
    QTest::newRow("one after the other") << QVariantList{deed("turn", one("degrees", 90)),
                                                         deed("cut", rect(0, 0, 300, 500)),
                                                         deed("scale", size(150, 250)), deed("frame")}
                                         << QSize(170, 270);
}

void TestPreviewDeeds::knowsTheSizeOfTheWholeResult()
{
    QFETCH(QVariantList, deeds);
    QFETCH(QSize, full);
    const Rendition result = made(deeds, small(quarters(600, 400), 8));
    QCOMPARE(result.full, full);
    QVERIFY(!result.bitmap.isNull());
    QVERIFY(result.bitmap.width() <= full.width() && result.bitmap.height() <= full.height());
    QVERIFY(qint64(result.bitmap.width()) * result.bitmap.height() < 1'000'000);
}

void TestPreviewDeeds::looksTheSameWithFewerPixels_data()
{
    QTest::addColumn<QVariantList>("deeds");
    QTest::newRow("cut") << QVariantList{deed("cut", rect(200, 100, 250, 200))};
    QTest::newRow("turn") << QVariantList{deed("turn", one("degrees", 20))};
    QTest::newRow("flip and turn") << QVariantList{deed("flip", one("axis", QStringLiteral("horizontal"))),
                                                   deed("turn", one("degrees", 270))};
    QTest::newRow("round") << QVariantList{deed("round", corners("0", 120, "", 0))};
    QTest::newRow("circle with a band") << QVariantList{deed("round", corners("1", 0, "#ff00ff", 40))};
    QTest::newRow("box") << QVariantList{deed("scale", size(300, 200)), deed("cut", rect(50, 0, 200, 200))};
}

void TestPreviewDeeds::looksTheSameWithFewerPixels()
{
    QFETCH(QVariantList, deeds);
    const Rendition large = made(deeds, whole(quarters(600, 400)));
    const Rendition reduced = made(deeds, small(quarters(600, 400), 4));
    QCOMPARE(reduced.full, large.full);
    // Enlarged, every edge of the reduced one would be soft.
    constexpr int side = 60;
    const QImage a = platform::resample(large.bitmap, QSize(side, side)).value().toScreenImage();
    const QImage b = platform::resample(reduced.bitmap, QSize(side, side)).value().toScreenImage();
    int different = 0;
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            const bool isClear = p.alpha() < 8 && q.alpha() < 8;
            const int most = std::max({std::abs(p.red() - q.red()), std::abs(p.green() - q.green()),
                                       std::abs(p.blue() - q.blue()), std::abs(p.alpha() - q.alpha())});
            different += !isClear && most > 40;
        }
    // What is left are edges, which fewer pixels place less exactly.
    QVERIFY2(different < side * side / 12, qPrintable(QString::number(different)));
}

void TestPreviewDeeds::givesNoMorePixelsThanTheResultHas()
{
    const Rendition result = made({deed("scale", size(30, 20))}, small(quarters(600, 400), 2));
    QCOMPARE(result.bitmap.size(), QSize(30, 20));
    QCOMPARE(result.full, QSize(30, 20));
    const Rendition enlarged = made({deed("scale", size(1200, 800))}, small(quarters(600, 400), 2));
    QCOMPARE(enlarged.bitmap.size(), QSize(300, 200));
}

void TestPreviewDeeds::laysAPatternAtItsScale()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("tile.png"));
    QVERIFY(quarters(80, 80).save(path));
    const QVariantList deeds = {deed("pattern", one("path", path))};
    QImage clear(320, 160, QImage::Format_RGBA8888);
    clear.fill(Qt::transparent);
    const Rendition result = made(deeds, small(clear, 4));
    QCOMPARE(result.bitmap.size(), QSize(80, 40));
    QCOMPARE(result.bitmap.pixel(4, 4), (Pixel{255, 0, 0, 255}));
    QCOMPARE(result.bitmap.pixel(14, 4), (Pixel{0, 255, 0, 255}));
    QCOMPARE(result.bitmap.pixel(24, 14), (Pixel{0, 0, 255, 255}));
    const auto missing =
        window::done(*window::deedsFrom({deed("pattern", one("path", folder.path()))}), small(clear, 4));
    QVERIFY(!missing);
}

void TestPreviewDeeds::failsWhereNothingIsLeft()
{
    for (const QVariantMap &part : {rect(600, 0, 10, 10), rect(0, 0, 0, 10), rect(0, 0, -5, 10), rect(-9, 0, 5, 5)})
        QVERIFY(!window::done(*window::deedsFrom({deed("cut", part)}), small(quarters(600, 400), 4)));
}

void TestPreviewDeeds::doesARecipeAsTheFileIsMade()
{
    const Rendition start = whole(quarters(120, 80));
    image::WatermarkOperation operation;
    operation.text = QStringLiteral("Lake");
    operation.size = 20;
    operation.color = Qt::black;
    operation.opacity = 100;
    const auto expected =
        image::rendered({{operation, false}}, {start.bitmap, image::stageOf(start.bitmap)}, image::FillText());
    QVERIFY(expected);
    QCOMPARE(made({recipe({mark("Lake")})}, start).bitmap.toRawImage(), expected->bitmap.toRawImage());
    // A token stands for what the picture at the path has.
    QCOMPARE(made({recipe({mark("{name}")})}, start).bitmap.toRawImage(), expected->bitmap.toRawImage());
    QVERIFY(made({recipe({mark("{extension}")})}, start).bitmap.toRawImage() != expected->bitmap.toRawImage());
    const Rendition sized = made({recipe({deed("resize", one("longest", 60))}), deed("flatten")}, start);
    QCOMPARE(sized.full, QSize(60, 40));
}

void TestPreviewDeeds::doesARecipeWithFewerPixels()
{
    const Rendition start = small(quarters(1200, 800), 4);
    const Rendition result = made({recipe({mark("{width}")})}, start);
    QCOMPARE(result.full, QSize(1200, 800));
    QCOMPARE(result.bitmap.size(), QSize(300, 200));
    const Rendition expected = made({recipe({mark("1200")})}, start);
    QCOMPARE(result.bitmap.toRawImage(), expected.bitmap.toRawImage());
    QVERIFY(result.bitmap.toRawImage() != start.bitmap.toRawImage());
}

QUORLIN_TEST(TestPreviewDeeds)
#include "tst_preview_deeds.moc"
