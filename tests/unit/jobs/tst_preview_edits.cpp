#include "image/overlay.h"
#include "image/recipe/render.h"
#include "jobs/reading/preview_edits.h"
#include "platform/graphics/resample.h"
#include "tests/support/test_program.h"

#include <QTest>

using jobs::Rendition;
using platform::Bitmap;

namespace {

QVariantMap edit(const char *name, const QVariantMap &values = {})
{
    QVariantMap map = values;
    map.insert(QStringLiteral("do"), QString::fromLatin1(name));
    return map;
}

QVariantMap one(const char *name, const QVariant &value)
{
    return {{QString::fromLatin1(name), value}};
}

QVariantMap recipe(const QVariantList &operations)
{
    return edit("recipe", {{QStringLiteral("operations"), operations},
                           {QStringLiteral("path"), QStringLiteral("/pictures/Lake.png")}});
}

QVariantMap mark(const char *text)
{
    return edit("watermark", {{QStringLiteral("text"), QString::fromLatin1(text)},
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

/** What is known of the picture that the recipes are for. */
text::TokenFacts lake()
{
    text::TokenFacts facts;
    facts.path = QStringLiteral("/pictures/Lake.png");
    return facts;
}

Rendition made(const QVariantList &list, const Rendition &start)
{
    const auto edits = jobs::editsFrom(list);
    if (!edits)
        qFatal("%s", qPrintable(edits.error().message));
    const auto result = jobs::done(*edits, start, lake());
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

} // namespace

/** The edits of the preview against the functions that write the files. */
class TestPreviewEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWhatIsNoEdit_data();
    void refusesWhatIsNoEdit();
    void doesAtFullSizeWhatTheOperationsDo_data();
    void doesAtFullSizeWhatTheOperationsDo();
    void doesARecipeAsTheFileIsMade();
    void doesARecipeWithFewerPixels();
};

void TestPreviewEdits::refusesWhatIsNoEdit_data()
{
    QTest::addColumn<QVariant>("entry");
    QTest::newRow("no dictionary") << QVariant(3);
    QTest::newRow("no name") << QVariant(QVariantMap());
    QTest::newRow("another name") << QVariant(edit("sharpen"));
    QTest::newRow("no colour") << QVariant(edit("lay", one("color", QStringLiteral("#12"))));
    QTest::newRow("no operations") << QVariant(edit("recipe", one("path", QStringLiteral("/a.png"))));
    QTest::newRow("operations as text") << QVariant(
        edit("recipe", {{QStringLiteral("path"), QStringLiteral("/a.png")},
                        {QStringLiteral("operations"), QStringLiteral("x")}}));
    QTest::newRow("a recipe for no picture") << QVariant(edit("recipe", one("operations", QVariantList())));
    QTest::newRow("an operation that recipes refuse") << QVariant(recipe({edit("watermark")}));
    QTest::newRow("a font that is not there")
        << QVariant(recipe({edit("watermark", {{QStringLiteral("text"), QStringLiteral("x")},
                                               {QStringLiteral("font"), QStringLiteral("No Such Font")}})}));
}

void TestPreviewEdits::refusesWhatIsNoEdit()
{
    QFETCH(QVariant, entry);
    const auto edits = jobs::editsFrom({edit("flatten"), entry});
    QVERIFY(!edits);
    QVERIFY(!edits.error().message.isEmpty());
}

void TestPreviewEdits::doesAtFullSizeWhatTheOperationsDo_data()
{
    QTest::addColumn<QVariantList>("edits");
    QTest::addColumn<QImage>("expected");
    const Bitmap start = Bitmap::fromImage(quarters(60, 40, 200));
    const auto row = [](const char *name, const QVariantMap &entry, const platform::Result<Bitmap> &bitmap) {
        QTest::newRow(name) << QVariantList{entry} << bitmap.value().toRawImage();
    };
    row("lay", edit("lay", one("color", QStringLiteral("#102030"))),
        image::laidOnColor(start, QColor(0x10, 0x20, 0x30)));
    row("flatten", edit("flatten"), image::laidOnColor(start, Qt::black));
}

void TestPreviewEdits::doesAtFullSizeWhatTheOperationsDo()
{
    QFETCH(QVariantList, edits);
    QFETCH(QImage, expected);
    const Rendition result = made(edits, whole(quarters(60, 40, 200)));
    QCOMPARE(result.full, expected.size());
    QCOMPARE(result.bitmap.toRawImage(), expected);
}

void TestPreviewEdits::doesARecipeAsTheFileIsMade()
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
    // The value of a token is that of the picture at the path.
    QCOMPARE(made({recipe({mark("{name}")})}, start).bitmap.toRawImage(), expected->bitmap.toRawImage());
    QVERIFY(made({recipe({mark("{extension}")})}, start).bitmap.toRawImage() != expected->bitmap.toRawImage());
    const Rendition sized = made({recipe({edit("resize", one("longest", 60))}), edit("flatten")}, start);
    QCOMPARE(sized.full, QSize(60, 40));
}

void TestPreviewEdits::doesARecipeWithFewerPixels()
{
    const Rendition start = small(quarters(1200, 800), 4);
    const Rendition result = made({recipe({mark("{width}")})}, start);
    QCOMPARE(result.full, QSize(1200, 800));
    QCOMPARE(result.bitmap.size(), QSize(300, 200));
    const Rendition expected = made({recipe({mark("1200")})}, start);
    QCOMPARE(result.bitmap.toRawImage(), expected.bitmap.toRawImage());
    QVERIFY(result.bitmap.toRawImage() != start.bitmap.toRawImage());
}

QUORLIN_TEST(TestPreviewEdits)
#include "tst_preview_edits.moc"
