#include "image/recipe/recipe_reader.h"
#include "jobs/presets/preset_recipe.h"
#include "jobs/presets/preset_settings.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

namespace {

/** A preset with these settings over those that a new pane has. */
jobs::Preset presetOf(const char *action, const QJsonObject &changes, const QJsonObject &output = {})
{
    jobs::Preset preset = {QString::fromLatin1(action), QStringLiteral("mine"),
                           jobs::standardSettings(QString::fromLatin1(action))};
    for (auto each = changes.begin(); each != changes.end(); ++each)
        preset.settings.insert(each.key(), *each);
    QJsonObject block = preset.settings.value(QStringLiteral("output")).toObject();
    for (auto each = output.begin(); each != output.end(); ++each)
        block.insert(each.key(), *each);
    preset.settings.insert(QStringLiteral("output"), block);
    return preset;
}

QJsonObject recipeFor(const jobs::Preset &preset)
{
    const auto recipe = jobs::recipeOf(preset);
    return recipe ? QJsonDocument::fromJson(*recipe).object() : QJsonObject();
}

} // namespace

/** Presets of the window as recipes. */
class TestPresetRecipe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksWithText();
    void marksWithAPicture();
    void countsAnglesClockwise();
    void cropsAsThePresetSays_data();
    void cropsAsThePresetSays();
    void keepsTheMetadataOfThePreset();
    void writesTheTypeOfThePreset_data();
    void writesTheTypeOfThePreset();
    void statesTheQualityThatIsChosen_data();
    void statesTheQualityThatIsChosen();
    void readsTheQualityOfARow();
};

void TestPresetRecipe::marksWithText()
{
    const QJsonObject recipe = recipeFor(presetOf("Watermark", {{QStringLiteral("position"), 0}}));
    const QJsonObject mark = recipe[QStringLiteral("operations")][0].toObject();
    QCOMPARE(mark, (QJsonObject{{QStringLiteral("do"), QStringLiteral("watermark")},
                                {QStringLiteral("text"), QStringLiteral("© {date:yyyy}")},
                                {QStringLiteral("size"), 4},
                                {QStringLiteral("color"), QStringLiteral("#ffffff")},
                                {QStringLiteral("position"), QStringLiteral("top left")},
                                {QStringLiteral("margin"), 2},
                                {QStringLiteral("opacity"), 70},
                                {QStringLiteral("tile"), false}}));
    QCOMPARE(recipe[QStringLiteral("outputs")][0][QStringLiteral("quality")].toInt(), 90);
    QVERIFY(image::readRecipe(QJsonDocument(recipe).toJson(), QStringLiteral("/")));
}

void TestPresetRecipe::marksWithAPicture()
{
    const QTemporaryDir folder;
    const QString logo = folder.filePath(QStringLiteral("logo.png"));
    QVERIFY(pictures::gradient(8, 8).save(logo));
    const QJsonObject recipe = recipeFor(presetOf("Watermark", {{QStringLiteral("mark"), QStringLiteral("picture")},
                                                                {QStringLiteral("picture"), logo},
                                                                {QStringLiteral("pictureSize"), 15}}));
    const QJsonObject mark = recipe[QStringLiteral("operations")][0].toObject();
    QCOMPARE(mark[QStringLiteral("picture")].toString(), logo);
    QCOMPARE(mark[QStringLiteral("size")].toInt(), 15);
    QVERIFY(!mark.contains(QStringLiteral("text")) && !mark.contains(QStringLiteral("color")));
    QVERIFY(image::readRecipe(QJsonDocument(recipe).toJson(), QStringLiteral("/")));
}

void TestPresetRecipe::countsAnglesClockwise()
{
    const QJsonObject recipe = recipeFor(presetOf("Watermark", {{QStringLiteral("angle"), 30}}));
    QCOMPARE(recipe[QStringLiteral("operations")][0][QStringLiteral("angle")].toInt(), -30);
}

void TestPresetRecipe::cropsAsThePresetSays_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QByteArray>("operation");
    const std::pair<const char *, const char *> rows[] = {
        {R"({"mode": "ratio", "ratio": "4:5"})", R"({"do": "crop", "ratio": "4:5", "position": "center"})"},
        {R"({"mode": "ratio", "ratio": "custom", "ratioWidth": 8.5, "ratioHeight": 11, "turnsRatio": false, "position": 9})",
         R"({"do": "crop", "ratio": "8.5:11", "turn": false, "position": "attention"})"},
        {R"({"mode": "size", "width": 5, "height": 4, "unit": "cm", "dpi": 300, "position": 0, "offsetX": 1})",
         R"({"do": "crop", "width": 5, "height": 4, "unit": "cm", "dpi": 300, "position": "top left", "offset": [1, 0]})"},
        {R"({"mode": "percent", "percent": 5, "unit": "inch", "offsetY": 1})",
         R"({"do": "crop", "percent": 5, "unit": "in", "position": "center", "offset": [0, 1]})"},
        {R"({"mode": "percent", "percent": 5, "unit": "inch"})",
         R"({"do": "crop", "percent": 5, "position": "center"})"},
        {R"({"mode": "pixels", "pixels": 7, "unit": "mm", "position": 9, "offsetX": 3})",
         R"({"do": "crop", "trim": 7, "position": "attention"})"},
    };
    for (const auto &[settings, operation] : rows)
        QTest::newRow(settings) << QByteArray(settings) << QByteArray(operation);
}

void TestPresetRecipe::cropsAsThePresetSays()
{
    QFETCH(QByteArray, settings);
    QFETCH(QByteArray, operation);
    const QJsonObject recipe = recipeFor(presetOf("Crop", QJsonDocument::fromJson(settings).object()));
    QCOMPARE(recipe[QStringLiteral("operations")][0].toObject(), QJsonDocument::fromJson(operation).object());
    QVERIFY(image::readRecipe(QJsonDocument(recipe).toJson(), QStringLiteral("/")));
}

void TestPresetRecipe::keepsTheMetadataOfThePreset()
{
    const auto output = [](const QString &kept, bool removesLocation) {
        const jobs::Preset preset = presetOf(
            "Resize", {}, {{QStringLiteral("metadata"), kept}, {QStringLiteral("removeLocation"), removesLocation}});
        return recipeFor(preset)[QStringLiteral("outputs")][0].toObject();
    };
    const QString metadata = QStringLiteral("metadata");
    const QString location = QStringLiteral("location");
    QVERIFY(!output(QStringLiteral("keep"), false).contains(metadata));
    QVERIFY(!output(QStringLiteral("keep"), false).contains(location));
    QCOMPARE(output(QStringLiteral("copyright"), true)[metadata], QJsonValue(QStringLiteral("copyright")));
    QCOMPARE(output(QStringLiteral("copyright"), true)[location], QJsonValue(false));
    QCOMPARE(output(QStringLiteral("none"), true)[metadata], QJsonValue(QStringLiteral("none")));
    QVERIFY(!output(QStringLiteral("none"), true).contains(location));
}

void TestPresetRecipe::writesTheTypeOfThePreset_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QString>("word");
    const std::pair<const char *, const char *> rows[] = {
        {"original file type", "original"},
        {"public.jpeg", "jpeg"},
        {"public.png", "png"},
        {"public.tiff", "tiff"},
        {"public.bmp", "bmp"},
        {"com.compuserve.gif", "gif"},
        {"public.jp2", "jp2"},
        {"org.webmproject.webp", "webp"},
        {"public.avif", "avif"},
        {"public.jpeg-xl", "jxl"},
    };
    for (const auto &[identifier, word] : rows)
        QTest::newRow(identifier) << QString::fromLatin1(identifier) << QString::fromLatin1(word);
}

void TestPresetRecipe::writesTheTypeOfThePreset()
{
    QFETCH(QString, identifier);
    for (const char *action : {"Resize", "Watermark", "Rotate and Flip"}) {
        const QJsonObject recipe = recipeFor(presetOf(action, {}, {{QStringLiteral("fileType"), identifier}}));
        QTEST(recipe[QStringLiteral("outputs")][0][QStringLiteral("type")].toString(), "word");
        QVERIFY(image::readRecipe(QJsonDocument(recipe).toJson(), QStringLiteral("/")));
    }
}

void TestPresetRecipe::statesTheQualityThatIsChosen_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<bool>("hasQuality");
    for (const char *identifier :
         {"original file type", "public.jpeg", "public.jp2", "org.webmproject.webp", "public.avif", "public.jpeg-xl"})
        QTest::newRow(identifier) << QString::fromLatin1(identifier) << true;
    for (const char *identifier : {"public.png", "public.tiff", "public.bmp", "com.compuserve.gif"})
        QTest::newRow(identifier) << QString::fromLatin1(identifier) << false;
}

void TestPresetRecipe::statesTheQualityThatIsChosen()
{
    QFETCH(QString, identifier);
    QFETCH(bool, hasQuality);
    const QString quality = QStringLiteral("quality");
    for (const char *action :
         {"Resize", "Crop", "Watermark", "Rotate and Flip", "Round Corners", "Background and Border"}) {
        const auto stated = [&](bool isOwn) {
            const QJsonObject output = {{QStringLiteral("fileType"), identifier},
                                        {quality, QStringLiteral("7")},
                                        {QStringLiteral("ownQuality"), isOwn}};
            const QJsonObject recipe = recipeFor(presetOf(action, {}, output));
            return recipe[QStringLiteral("outputs")][0][quality];
        };
        QCOMPARE(stated(false).toInt(), hasQuality ? 70 : 0);
        QVERIFY(stated(true).isUndefined());
    }
}

void TestPresetRecipe::readsTheQualityOfARow()
{
    constexpr int fields = 62;
    constexpr int column = 39;
    QStringList row;
    row.resize(fields);
    row.replace(1, QStringLiteral("Rotate and Flip"));
    row.replace(3, QStringLiteral("Quorlin 1"));
    row.replace(4, QStringLiteral("public.jpeg"));
    row.replace(5, QStringLiteral("10")); // which rows had before it could be chosen
    const auto quality = [&] {
        return recipeFor(*jobs::presetOfRow(row))[QStringLiteral("outputs")][0][QStringLiteral("quality")].toInt();
    };
    QCOMPARE(quality(), 0);
    row.replace(column, QStringLiteral("0"));
    QCOMPARE(quality(), 100);
    row.replace(column, QStringLiteral("1"));
    QCOMPARE(quality(), 0);
    for (const auto &[version, isRead] : {std::pair("Quorlin 3", true), std::pair("Quorlin 4", false)}) {
        row.replace(3, QString::fromLatin1(version));
        QCOMPARE(jobs::presetOfRow(row).has_value(), isRead);
    }
}

QUORLIN_TEST(TestPresetRecipe)
#include "tst_preset_recipe.moc"
