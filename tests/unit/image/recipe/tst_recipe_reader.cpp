#include "image/recipe/recipe_reader.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QImage>
#include <QTest>
#include <QTranslator>

using image::Recipe;

/** A recipe is accepted unchanged or rejected in one sentence that begins with the place. */
class TestRecipeReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAllKeys();
    void knowsDefaults();
    void refuses_data();
    void refuses();
    void takes_data();
    void takes();
    void findsPathsBesideTheRecipe();
    void namesTheLineOfWhatIsNoJson();
    void complainsInTheReadersLanguage();
};

namespace {

QByteArray withOperation(const QByteArray &operation)
{
    return R"({"quorlin": 1, "operations": [{"do": "sharpen"}, )" + operation + R"(], "outputs": [{}]})";
}

QByteArray withOutput(const QByteArray &output)
{
    return R"({"quorlin": 1, "outputs": [)" + output + "]}";
}

template<typename T> T operationOf(const Recipe &recipe, int index)
{
    return std::get<T>(recipe.operations[index].operation);
}

/** A row for each refusal: of an operation, or of an output. */
void refusedOperation(const char *name, const QByteArray &json, const char *place)
{
    QTest::newRow(name) << withOperation(json) << QString::fromUtf8(place);
}

void refusedOutput(const char *name, const QByteArray &json, const char *place)
{
    QTest::newRow(name) << withOutput(json) << QString::fromUtf8(place);
}

void refusedSizes()
{
    refusedOperation("a text for a number", R"({"do": "resize", "longest": "big"})",
                     "operations[1].longest: a whole number from 1 to 100000, not \"big\"");
    refusedOperation("a fraction of a pixel", R"({"do": "resize", "width": 10.5})", "operations[1].width: ");
    refusedOperation("too large", R"({"do": "resize", "width": 100001})", "operations[1].width: ");
    refusedOperation("nothing", R"({"do": "resize", "percent": 0})", "operations[1].percent: ");
    refusedOperation("two sizes", R"({"do": "resize", "width": 1, "height": 1})", "operations[1].height: ");
    refusedOperation("no size", R"({"do": "resize"})", "operations[1]: ");
    refusedOperation("a fit without a box", R"({"do": "resize", "width": 1, "fit": "fill"})", "operations[1].fit: ");
    refusedOperation("a colour without padding", R"({"do": "resize", "box": [1, 1], "color": "#ffffff"})",
                     "operations[1].color: ");
    refusedOperation("a box of one side", R"({"do": "resize", "box": [1]})", "operations[1].box: ");
    refusedOperation("a box of text", R"({"do": "resize", "box": [1, "x"]})", "operations[1].box[1]: ");
    refusedOperation("an unknown key", R"({"do": "resize", "width": 1, "wdith": 1})", "operations[1].wdith: ");
    refusedOperation("an unknown operation", R"({"do": "melt"})", "operations[1].do: ");
    refusedOperation("no operation", R"({"width": 1})", "operations[1].do: ");
    refusedOperation("a crop of one side", R"({"do": "crop", "width": 1})", "operations[1].height: ");
    refusedOperation("a crop of the other side", R"({"do": "crop", "height": 1})", "operations[1].width: ");
    refusedOperation("a crop of nothing", R"({"do": "crop"})", "operations[1]: ");
    refusedOperation("a crop in two ways", R"({"do": "crop", "ratio": "1:1", "percent": 3})",
                     "operations[1].percent: ");
    refusedOperation("a fraction of a pixel cut away", R"({"do": "crop", "trim": 1.5})", "operations[1].trim: ");
    refusedOperation("trimmed to a ratio", R"({"do": "crop", "ratio": "1:1", "trim": 3})", "operations[1].trim: ");
    refusedOperation("no ratio", R"({"do": "crop", "ratio": "3x2"})", "operations[1].ratio: ");
    refusedOperation("a ratio of zero", R"({"do": "crop", "ratio": "0:2"})", "operations[1].ratio: ");
}

void refusedOperations()
{
    refusedOperation("all cut away", R"({"do": "crop", "percent": 100})", "operations[1].percent: ");
    refusedOperation("no angle", R"({"do": "turn"})", "operations[1].degrees: ");
    refusedOperation("a large angle", R"({"do": "turn", "degrees": 361})", "operations[1].degrees: ");
    refusedOperation("no direction", R"({"do": "flip", "direction": "up"})", "operations[1].direction: ");
    refusedOperation("no radius", R"({"do": "round"})", "operations[1].radius: ");
    refusedOperation("a radius of a circle", R"({"do": "round", "shape": "circle", "radius": 3})",
                     "operations[1].radius: ");
    refusedOperation("a band without a width", R"({"do": "round", "radius": 3, "band": {"color": "#000000"}})",
                     "operations[1].band.width: ");
    refusedOperation("a colour by name", R"({"do": "frame", "width": 3, "color": "red"})", "operations[1].color: ");
    refusedOperation("a short colour", R"({"do": "frame", "width": 3, "color": "#fff"})", "operations[1].color: ");
    refusedOperation("a background of nothing", R"({"do": "background"})", "operations[1]: ");
    refusedOperation("a missing pattern", R"({"do": "background", "pattern": "none.png"})", "operations[1].pattern: ");
    refusedOperation("a missing picture", R"({"do": "watermark", "picture": "none.png"})", "operations[1].picture: ");
    refusedOperation("text and picture", R"({"do": "watermark", "picture": "none.png", "text": "a"})",
                     "operations[1].picture: ");
    refusedOperation("an unknown font", R"({"do": "watermark", "text": "a", "font": "No Such Letters"})",
                     "operations[1].font: ");
    refusedOperation("an unknown token", R"({"do": "watermark", "text": "{nmae}"})", "operations[1].text: ");
    refusedOperation("attention of a watermark", R"({"do": "watermark", "text": "a", "position": "attention"})",
                     "operations[1].position: ");
    refusedOperation("a missing profile", R"({"do": "profile", "to": "none.icc"})", "operations[1].to: ");
    refusedOperation("a number for a truth value", R"({"do": "sharpen", "off": 1})", "operations[1].off: ");
    refusedOperation("no object", R"(7)", "operations[1]: ");
}

void refusedOutputs()
{
    refusedOutput("a quality of PNG", R"({"type": "png", "quality": 3})", "outputs[0].quality: ");
    refusedOutput("lossless JPEG", R"({"type": "jpeg", "lossless": true})", "outputs[0].lossless: ");
    refusedOutput("quality and lossless", R"({"type": "webp", "lossless": true, "quality": 3})",
                  "outputs[0].lossless: ");
    refusedOutput("no quality", R"({"type": "jpeg", "quality": 0})", "outputs[0].quality: ");
    refusedOutput("an unknown type", R"({"type": "psd"})", "outputs[0].type: ");
    refusedOutput("an unknown token in a name", R"({"name": "{nmae}"})", "outputs[0].name: ");
    refusedOutput("an empty name", R"({"name": ""})", "outputs[0].name: ");
    refusedOutput("a name with a folder", R"({"name": "a/b"})", "outputs[0].name: ");
    refusedOutput("a wrong form", R"({"folder": "{taken:week}"})", "outputs[0].folder: ");
    refusedOutput("metadata in other words", R"({"metadata": true})", "outputs[0].metadata: ");
    refusedOutput("an operation of an output", R"({"operations": [{"do": "resize", "width": -1}]})",
                  "outputs[0].operations[0].width: ");
}

} // namespace

/** Keys and texts that cannot be quoted as they are. */
static void refusedOddities()
{
    refusedOperation("a key of two lines", R"({"do": "sharpen", "a\nb": 1})", R"(operations[1]."a\nb": unknown key)");
    refusedOperation("a key that turns the line", R"({"do": "sharpen", "a\u202eb": 1})",
                     R"(operations[1]."a\u202eb": unknown key)");
    refusedOperation("an empty key", R"({"do": "sharpen", "": 1})", R"(operations[1]."": unknown key)");
    refusedOperation("a long key", R"({"do": "sharpen", ")" + QByteArray(100'000, 'k') + R"(": 1})",
                     "operations[1].kkk");
    refusedOperation("a long token", R"({"do": "watermark", "text": "{)" + QByteArray(100'000, 'k') + R"(}"})",
                     "operations[1].text: ");
    refusedOperation("a token of two lines", R"({"do": "watermark", "text": "{a\nb}"})", "operations[1].text: ");
    refusedOperation("a ratio of two lines", R"({"do": "crop", "ratio": "1\n2"})", "operations[1].ratio: ");
    refusedOperation("a long picture", R"({"do": "watermark", "picture": ")" + QByteArray(100'000, 'k') + R"("})",
                     "operations[1].picture: there is no picture \"kkk");
    refusedOperation("a font with a size", R"({"do": "watermark", "text": "a", "font": "Sans 400"})",
                     "operations[1].font: there is no font \"Sans 400\"");
    refusedOutput("half a character", R"({"name": "a\ud800b"})",
                  R"(outputs[0].name: it contains half a character, \ud800)");
    refusedOutput("the other half", R"({"folder": "a\udfffb"})",
                  R"(outputs[0].folder: it contains half a character, \udfff)");
    refusedOutput("more bytes than there are", R"({"maxBytes": 1e16})",
                  "outputs[0].maxBytes: a whole number from 1 to 1000000000000000, not 1");
    refusedOperation("a key twice", R"({"do": "resize", "width": 5, "width": 6})",
                     "operations[1].width: it is there twice");
    refusedOperation("a key twice, escaped", R"({"do": "resize", "width": 5, "\u0077idth": 5})",
                     "operations[1].width: it is there twice");
    refusedOutput("a key of an operation twice",
                  R"({"operations": [{"do": "sharpen"}, {"do": "flip", "do": "flip", "direction": "vertical"}]})",
                  "outputs[0].operations[1].do: it is there twice");
}

void TestRecipeReader::readsAllKeys()
{
    const auto recipe = image::readRecipe(R"({
        "quorlin": 1, "name": "All",
        "operations": [
            { "do": "resize", "box": [10, 2.5], "unit": "cm", "dpi": 254, "fit": "fill", "position": "attention",
              "enlarge": true },
            { "do": "crop", "ratio": "16:9", "turn": false, "position": "top left", "offset": [3, -4] },
            { "do": "turn", "degrees": -12.5, "color": "#11223344" },
            { "do": "flip", "direction": "vertical", "off": true },
            { "do": "round", "shape": "rectangle", "radius": 5, "band": { "width": 2, "color": "#abcdef" } },
            { "do": "watermark", "text": "{name}", "size": 3, "margin": 1, "angle": 45, "opacity": 30, "tile": true },
            { "do": "sharpen", "amount": "high" },
            { "do": "profile", "to": "Adobe RGB" }
        ],
        "outputs": [ { "type": "webp", "lossless": true, "name": "{name} {width}", "folder": "a/{camera}",
            "profile": "Display P3", "metadata": "copyright", "location": false, "dpi": 300, "matte": "#000000",
            "dates": "keep", "ifTaken": "current", "maxBytes": 1000 } ]
    })",
                                          QStringLiteral("/"));
    QVERIFY2(recipe.has_value(), recipe ? "" : qPrintable(recipe.error().message));
    QCOMPARE(recipe->name, QStringLiteral("All"));
    const auto resize = operationOf<image::ResizeOperation>(*recipe, 0);
    QCOMPARE(resize.boxHeight, 2.5);
    QCOMPARE(resize.scale.dpi.value_or(0), 254.0);
    QVERIFY(resize.scale.unit == image::RecipeUnit::Centimetre && resize.fit == image::BoxFit::Fill);
    QVERIFY(resize.position == image::Place::Attention && resize.enlarges);
    const auto crop = operationOf<image::CropOperation>(*recipe, 1);
    QVERIFY(crop.by == image::CropBy::Ratio && !crop.turns && crop.position == image::Place::TopLeft);
    QCOMPARE(crop.width / crop.height, 16.0 / 9.0);
    QCOMPARE(crop.down, -4.0);
    QCOMPARE(operationOf<image::TurnOperation>(*recipe, 2).color->alpha(), 0x44);
    QVERIFY(recipe->operations[3].isOff);
    QCOMPARE(operationOf<image::RoundOperation>(*recipe, 4).band->color, QColor(0xab, 0xcd, 0xef));
    QVERIFY(operationOf<image::WatermarkOperation>(*recipe, 5).isTiled);
    QVERIFY(!operationOf<image::ProfileOperation>(*recipe, 7).profile.isEmpty());
    const image::RecipeOutput &output = recipe->outputs.first();
    QVERIFY(output.type == image::OutputType::Webp && output.isLossless && !output.keepsLocation);
    QVERIFY(output.metadata == image::KeptMetadata::Copyright && output.ifTaken == image::IfTaken::Current);
    QCOMPARE(output.maxBytes.value_or(0), 1000);
}

void TestRecipeReader::knowsDefaults()
{
    const auto recipe = image::readRecipe(withOutput("{}"), QStringLiteral("/"));
    QVERIFY(recipe.has_value());
    const image::RecipeOutput &output = recipe->outputs.first();
    QVERIFY(output.type == image::OutputType::Original && !output.quality && output.keepsLocation);
    QCOMPARE(output.name, QStringLiteral("{name}"));
    QVERIFY(output.metadata == image::KeptMetadata::Keep && output.ifTaken == image::IfTaken::Number);
    const auto marked = image::readRecipe(withOperation(R"({"do": "watermark", "text": "a"})"), QStringLiteral("/"));
    QCOMPARE(operationOf<image::WatermarkOperation>(*marked, 1).size, 4.0);
    QVERIFY(operationOf<image::WatermarkOperation>(*marked, 1).position == image::Place::BottomRight);
}

void TestRecipeReader::refuses_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("place");
    refusedSizes();
    refusedOperations();
    refusedOutputs();
    refusedOddities();
    QTest::newRow("no outputs") << QByteArray(R"({"quorlin": 1})") << QStringLiteral("outputs: ");
    QTest::newRow("an empty list of outputs")
        << QByteArray(R"({"quorlin": 1, "outputs": []})") << QStringLiteral("outputs: ");
    QTest::newRow("no version") << QByteArray(R"({"outputs": [{}]})") << QStringLiteral("quorlin: ");
    QTest::newRow("a later version") << QByteArray(R"({"quorlin": 2, "new": 3, "outputs": [{}]})")
                                     << QStringLiteral("quorlin: ");
    QTest::newRow("an unknown key above")
        << QByteArray(R"({"quorlin": 1, "outputs": [{}], "x": 1})") << QStringLiteral("x: ");
}

void TestRecipeReader::refuses()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, place);
    const auto recipe = image::readRecipe(json, QStringLiteral("/"));
    QVERIFY(!recipe.has_value());
    const QString sentence = recipe.error().message;
    QVERIFY2(sentence.startsWith(place), qPrintable(sentence));
    QVERIFY2(!sentence.contains(u'\n') && sentence.size() > place.size() - 1, qPrintable(sentence));
    constexpr qsizetype longest = 500;
    QVERIFY2(sentence.size() < longest, qPrintable(sentence.left(longest)));
}

void TestRecipeReader::takes_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("a fraction in a unit") << withOperation(R"({"do": "resize", "width": 10.5, "unit": "mm"})");
    QTest::newRow("percent with a fraction") << withOperation(R"({"do": "resize", "percent": 12.5})");
    QTest::newRow("a wide ratio") << withOperation(R"({"do": "crop", "ratio": "2.35:1"})");
    QTest::newRow("the same key in two objects")
        << withOperation(R"({"do": "frame", "width": 1}, {"do": "frame", "width": 2})");
    QTest::newRow("keys and brackets in a text")
        << withOperation(R"({"do": "watermark", "text": "\"size\": 1, {{ \"size\": 2, [}\\", "size": 3})");
    QTest::newRow("a sign of two halves") << withOutput(R"({"name": "\ud83d\udcf7"})");
    QTest::newRow("a byte of a path") << withOutput(R"({"folder": "a\udcff"})");
    QTest::newRow("an ellipse") << withOperation(R"({"do": "round", "shape": "ellipse"})");
    QTest::newRow("a frame of nothing") << withOperation(R"({"do": "frame", "width": 0})");
    QTest::newRow("braces") << withOperation(R"({"do": "watermark", "text": "{{a}"})");
    QTest::newRow("quality of the own type") << withOutput(R"({"quality": 70})");
    QTest::newRow("lossless JPEG 2000") << withOutput(R"({"type": "jp2", "lossless": true})");
    QTest::newRow("an absolute folder") << withOutput(R"({"folder": "/a/{taken:yyyy}/../b"})");
}

void TestRecipeReader::takes()
{
    QFETCH(QByteArray, json);
    const auto recipe = image::readRecipe(json, QStringLiteral("/"));
    QVERIFY2(recipe.has_value(), recipe ? "" : qPrintable(recipe.error().message));
}

void TestRecipeReader::findsPathsBesideTheRecipe()
{
    const ScratchFolder folder;
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(folder.path("mark.png")));
    const QByteArray json = withOperation(R"({"do": "watermark", "picture": "mark.png"})");
    QVERIFY(folder.write("a.quorlin", json));
    const auto recipe = image::readRecipeFile(folder.path("a.quorlin"));
    QVERIFY2(recipe.has_value(), recipe ? "" : qPrintable(recipe.error().message));
    QCOMPARE(operationOf<image::WatermarkOperation>(*recipe, 1).picture.path, folder.path("mark.png"));
    QVERIFY(!image::readRecipe(json, QStringLiteral("/")).has_value());
    QVERIFY(image::readRecipeFile(folder.path("none.quorlin")).error().code == platform::ErrorCode::NotFound);
}

void TestRecipeReader::namesTheLineOfWhatIsNoJson()
{
    const auto recipe = image::readRecipe("{\n\"quorlin\": 1,\n oops }", QStringLiteral("/"));
    QVERIFY(recipe.error().message.startsWith(QStringLiteral("line 3: ")));
    QVERIFY(!image::readRecipe("[]", QStringLiteral("/")).has_value());
}

namespace {

/** A language that puts everything said about recipes between brackets. */
class Brackets : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*note*/, int /*count*/) const override
    {
        return qstrcmp(context, "recipe") == 0 ? u'[' + QString::fromUtf8(text) + u']' : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

void TestRecipeReader::complainsInTheReadersLanguage()
{
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    const auto recipe =
        image::readRecipe(withOperation(R"({"do": "resize", "longest": "big"})"), QStringLiteral("/nowhere"));
    QCoreApplication::removeTranslator(&brackets);
    QVERIFY(!recipe);
    QCOMPARE(recipe.error().message,
             QStringLiteral("operations[1].longest: [[a whole number from 1 to 100000], not \"big\"]"));
}

QUORLIN_TEST(TestRecipeReader)
#include "tst_recipe_reader.moc"
