#include "image/recipe/make.h"

#include "image/recipe/encoding.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <array>
#include <cmath>

using namespace image;
using platform::Bitmap;
using platform::ImageSource;

/** What a recipe makes of a picture, and that it is what was planned. */
class TestRecipeMaking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheSameComposedAndOneByOne();
    void keepsTheBytesOfWhatStaysAsItIs();
    void turnsAJpegWithoutEncodingIt();
    void makesWhatWasPlanned_data();
    void makesWhatWasPlanned();
    void staysBelowABound();
    void saysWhatCannotBeMade();
    void refusesAJpegXlThatTakesTooMuchMemory();
    void sharpensEdgesAndNothingElse();
    void laysAWatermarkWhereItBelongs();
    void paddingAndFramesHaveTheirColour();
    void turnsFillTheNewCornersAlone();
    void carriesAsMuchMetadataAsIsAskedFor();
    void roundsCornersAsItWouldInMemory_data();
    void roundsCornersAsItWouldInMemory();
};

namespace {

/** Soft colours with some edges, so that two ways of scaling can be compared. */
QImage photograph(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const int stripe = (x / 37 + y / 23) % 2 == 0 ? 40 : 0;
            image.setPixel(x, y, qRgb(60 + stripe + 90 * x / size.width(), 200 - 120 * y / size.height(), 90 + stripe));
        }
    return image;
}

/** Black lines on white, thick and thin ones side by side. */
QImage lineArt(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const bool isComb = y > size.height() / 2 && x % 16 < 8;
            const bool isRow = x < size.width() / 3 && y % 7 == 0;
            const bool isSlope = (x + 2 * y) % 53 < 2;
            image.setPixel(x, y, isComb || isRow || isSlope ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
    return image;
}

QString saved(const ScratchFolder &folder, const char *name, const QImage &image, int quality = 95)
{
    const QString path = folder.path(name);
    return image.save(path, nullptr, quality) ? path : QString();
}

Recipe recipeOf(const QList<Operation> &operations, OutputType type = OutputType::Png)
{
    Recipe recipe;
    for (const Operation &operation : operations)
        recipe.operations.append({operation, false});
    recipe.outputs.append(RecipeOutput());
    recipe.outputs.first().type = type;
    return recipe;
}

QList<platform::Result<MadeOutput>> madeFrom(const Recipe &recipe, const QString &path)
{
    const ImageSource source = ImageSource::open(path).value();
    QList<platform::Result<MadeOutput>> all;
    makeOutputs(recipe, source, planOf(recipe, source), {},
                [&all](int, const platform::Result<MadeOutput> &made) { all.append(made); });
    return all;
}

QImage imageOf(const QByteArray &file)
{
    return ImageSource::fromData(file).value().decode().value().toRawImage().convertToFormat(QImage::Format_RGBA8888);
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int chosen(QRandomGenerator &random, int least, int most)
{
    return random.bounded(least, most + 1);
}

Operation anyOperation(QRandomGenerator &random)
{
    CropOperation crop;
    crop.width = chosen(random, 20, 260);
    crop.height = chosen(random, 20, 260);
    crop.position = Place(chosen(random, 0, 8));
    crop.right = chosen(random, -9, 9);
    ResizeOperation resize;
    resize.by = ResizeBy(chosen(random, 0, 4));
    resize.number = resize.by == ResizeBy::Percent ? chosen(random, 5, 100) : chosen(random, 20, 260);
    switch (chosen(random, 0, 4)) {
    case 0:
        return TurnOperation{90.0 * chosen(random, -4, 4), {}};
    case 1:
        return FlipOperation{random.bounded(2) == 0 ? Qt::Horizontal : Qt::Vertical};
    case 2:
        return crop;
    case 3:
        return resize;
    default:
        return TurnOperation{90.0 * chosen(random, 1, 3), {}};
    }
}

/** Each operation on all the pixels of the previous one; none if nothing is left. */
std::optional<QImage> oneByOne(const QList<Operation> &operations, const QString &path)
{
    const Bitmap bitmap = ImageSource::open(path).value().decode().value();
    Rendition now = {bitmap, stageOf(bitmap)};
    for (const Operation &operation : operations) {
        const auto next = rendered({{operation, false}}, now, {});
        if (!next)
            return std::nullopt;
        now = *next;
    }
    return now.bitmap.toRawImage().convertToFormat(QImage::Format_RGBA8888);
}

struct Difference
{
    double mean = 0;
    int most = 0;
};

Difference differenceOf(const QImage &one, const QImage &other)
{
    Difference difference;
    double sum = 0;
    const int row = 4 * one.width();
    for (int y = 0; y < one.height(); ++y)
        for (int i = 0; i < row; ++i) {
            const int each = std::abs(one.constScanLine(y)[i] - other.constScanLine(y)[i]);
            sum += each;
            difference.most = std::max(difference.most, each);
        }
    difference.mean = sum / (double(row) * one.height());
    return difference;
}

} // namespace

void TestRecipeMaking::isTheSameComposedAndOneByOne()
{
    const ScratchFolder folder;
    const QString jpeg = saved(folder, "a.jpg", photograph({333, 250}));
    const QString png = saved(folder, "a.png", photograph({250, 333}));
    // Large enough for a decoder to shrink them, and with a last column and row that are parts of what it makes of others.
    const QString large = saved(folder, "large.jpg", photograph({1001, 757}), 85);
    const QString lines = saved(folder, "lines.jpg", lineArt({757, 1003}), 75);
    const int count = tests::repetitions(120, 500);
    for (int seed = 0; seed < count; ++seed) {
        QRandomGenerator random{quint32(seed)};
        QList<Operation> operations;
        for (int i = chosen(random, 1, 6); i > 0; --i)
            operations.append(anyOperation(random));
        const QString path = std::array{jpeg, png, large, lines}[size_t(seed % 4)];
        const std::optional<QImage> slow = oneByOne(operations, path);
        const auto made = madeFrom(recipeOf(operations), path);
        const QByteArray name = "seed " + QByteArray::number(seed);
        if (!slow) {
            QVERIFY2(made.isEmpty(), name); // the plan has said so
            continue;
        }
        QVERIFY2(made.size() == 1 && made.first().has_value(), name);
        const QImage fast = imageOf(made.first()->bytes);
        QVERIFY2(fast.size() == slow->size(), name);
        const bool isScaled = std::any_of(operations.begin(), operations.end(), [](const Operation &operation) {
            return std::holds_alternative<ResizeOperation>(operation);
        });
        const Difference difference = differenceOf(fast, *slow);
        QVERIFY2(isScaled ? difference.mean <= 1 && difference.most <= 8 : difference.most == 0,
                 name + ": " + QByteArray::number(difference.mean) + ", " + QByteArray::number(difference.most));
    }
}

void TestRecipeMaking::keepsTheBytesOfWhatStaysAsItIs()
{
    const ScratchFolder folder;
    for (const char *name : {"a.jpg", "a.png", "a.bmp", "a.tif"}) {
        const QString path = saved(folder, name, photograph({64, 48}));
        ResizeOperation small;
        small.number = 4000;
        const Recipe recipe = recipeOf({small, TurnOperation{90, {}}, TurnOperation{-90, {}}}, OutputType::Original);
        const auto made = madeFrom(recipe, path);
        QVERIFY2(made.size() == 1 && made.first()->isLossless, name);
        QCOMPARE(made.first()->bytes, folder.read(name));
    }
    Recipe stated = recipeOf({}, OutputType::Jpeg);
    stated.outputs.first().quality = 95;
    QVERIFY(!madeFrom(stated, folder.path("a.jpg")).first()->isLossless);
}

void TestRecipeMaking::turnsAJpegWithoutEncodingIt()
{
    const ScratchFolder folder;
    const QString path = saved(folder, "a.jpg", photograph({64, 48}));
    const QImage start = imageOf(folder.read("a.jpg"));
    const auto made = madeFrom(recipeOf({TurnOperation{90, {}}, FlipOperation{}}, OutputType::Original), path);
    QVERIFY(made.first()->isLossless);
    const QImage turned = start.transformed(QTransform().rotate(90)).mirrored(true, false);
    QVERIFY(differenceOf(imageOf(made.first()->bytes), turned).most <= 2); // the decoder's colours
    const QString odd = saved(folder, "odd.jpg", photograph({61, 47}));
    QVERIFY(!madeFrom(recipeOf({TurnOperation{90, {}}}, OutputType::Original), odd).first()->isLossless);
}

void TestRecipeMaking::makesWhatWasPlanned_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"formats", "orientation", "metadata", "dpi"})
        for (const QFileInfo &file :
             QDir(QString::fromUtf8(QUORLIN_TEST_DATA) + QStringLiteral("/../pictures/") + QString::fromUtf8(name))
                 .entryInfoList(QDir::Files))
            if (ImageSource::canOpen(file.filePath()))
                QTest::addRow("%s/%s", name, qPrintable(file.fileName())) << file.filePath();
}

void TestRecipeMaking::makesWhatWasPlanned()
{
    QFETCH(QString, name);
    ResizeOperation resize;
    resize.number = 40;
    RoundOperation round;
    round.radius = 5;
    CropOperation crop;
    crop.by = CropBy::Ratio;
    crop.width = 5;
    crop.height = 4;
    const QList<QList<Operation>> lists = {
        {}, {resize}, {crop, TurnOperation{90, {}}, resize}, {FlipOperation{}, round, FrameOperation{3, Qt::blue, {}}}};
    const ImageSource source = ImageSource::open(name).value();
    for (const QList<Operation> &operations : lists) {
        Recipe recipe = recipeOf(operations);
        for (const OutputType type : {OutputType::Original, OutputType::Jpeg, OutputType::Tiff, OutputType::Bmp,
                                      OutputType::Gif, OutputType::Jpeg2000, OutputType::Pdf}) {
            recipe.outputs.append(recipe.outputs.first());
            recipe.outputs.last().type = type;
        }
        const QList<OutputPlan> plans = planOf(recipe, source);
        QCOMPARE(plans.size(), recipe.outputs.size());
        int count = 0;
        makeOutputs(recipe, source, plans, {}, [&](int index, const platform::Result<MadeOutput> &made) {
            ++count;
            const OutputPlan &plan = plans[index];
            QVERIFY2(made.has_value(), made ? "" : qPrintable(made.error().message));
            QCOMPARE(made->size, plan.size);
            QCOMPARE(made->isLossless, plan.isLossless);
            const auto opened = ImageSource::fromData(made->bytes);
            QVERIFY(opened.has_value());
            if (plan.type != OutputType::Pdf)
                QCOMPARE(opened->uprightSize(), plan.size);
        });
        const auto isMade = [](const OutputPlan &plan) { return plan.problem.isEmpty(); };
        QCOMPARE(count, int(std::count_if(plans.begin(), plans.end(), isMade)));
        QVERIFY(count >= recipe.outputs.size() - 1); // but for an own type that is only read
    }
}

void TestRecipeMaking::staysBelowABound()
{
    const ScratchFolder folder;
    const QString path = saved(folder, "a.png", photograph({400, 300}));
    Recipe recipe = recipeOf({}, OutputType::Jpeg);
    recipe.outputs.first().maxBytes = 9000;
    const QByteArray file = madeFrom(recipe, path).first()->bytes;
    QVERIFY(file.size() <= 9000);
    recipe.outputs.first().maxBytes = file.size() - 1;
    QVERIFY(madeFrom(recipe, path).first()->bytes.size() < file.size());
    recipe.outputs.first().maxBytes = 10;
    QVERIFY(!madeFrom(recipe, path).first().has_value());
    recipe.outputs.first().type = OutputType::Bmp;
    QVERIFY(!madeFrom(recipe, path).first().has_value());
    recipe.outputs.first().maxBytes = 1'000'000;
    QVERIFY(madeFrom(recipe, path).first().has_value());
}

void TestRecipeMaking::saysWhatCannotBeMade()
{
    const QString pictures = QString::fromUtf8(QUORLIN_TEST_DATA) + QStringLiteral("/../pictures/");
    const ImageSource psd = ImageSource::open(pictures + QStringLiteral("metadata/xmp.psd")).value();
    const QList<OutputPlan> plans = planOf(recipeOf({}, OutputType::Original), psd);
    QVERIFY(plans.first().isNotSupported && !plans.first().problem.isEmpty());
    CropOperation outside;
    outside.width = outside.height = 1;
    outside.right = 100'000;
    QVERIFY(!planOf(recipeOf({outside}), psd).first().problem.isEmpty());
}

void TestRecipeMaking::refusesAJpegXlThatTakesTooMuchMemory()
{
    const ScratchFolder folder;
    const ImageSource source = ImageSource::open(saved(folder, "a.png", photograph({60, 40}))).value();
    const auto planned = [&](OutputType type, int width, bool isLossless) {
        ResizeOperation larger;
        larger.by = ResizeBy::Width;
        larger.number = width;
        larger.enlarges = true;
        Recipe recipe = recipeOf({larger}, type);
        recipe.outputs.first().isLossless = isLossless;
        return planOf(recipe, source).first();
    };
    QVERIFY(planned(OutputType::JpegXl, 6364, false).problem.isEmpty()); // 27 megapixels
    QVERIFY(planned(OutputType::JpegXl, 6364, true).problem.isEmpty());
    QVERIFY(planned(OutputType::JpegXl, 9000, false).problem.isEmpty()); // 54 megapixels, in two frames
    QVERIFY(planned(OutputType::JpegXl, 15'000, true).problem.isEmpty());
    const QString refused = planned(OutputType::JpegXl, 18'000, true).problem;
    QVERIFY2(refused.contains(QStringLiteral("216 megapixels")), qPrintable(refused));
    const int most = QRegularExpression(QStringLiteral("at most (\\d+)")).match(refused).captured(1).toInt();
    QVERIFY(planned(OutputType::JpegXl, int(std::sqrt(1.5 * most * 1e6)), true).problem.isEmpty());
    QVERIFY(!planned(OutputType::JpegXl, int(std::sqrt(1.5 * (most + 12) * 1e6)), true).problem.isEmpty());
    QVERIFY(planned(OutputType::Avif, 9000, false).problem.isEmpty());
}

void TestRecipeMaking::sharpensEdgesAndNothingElse()
{
    QImage edge(40, 20, QImage::Format_RGB32);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 40; ++x)
            edge.setPixel(x, y, x < 20 ? qRgb(80, 90, 100) : qRgb(160, 150, 140));
    const Bitmap bitmap = Bitmap::fromImage(edge);
    int before = 0;
    for (const SharpenAmount amount : {SharpenAmount::Low, SharpenAmount::Standard, SharpenAmount::High}) {
        const auto made = rendered({{SharpenOperation{amount}, false}}, {bitmap, stageOf(bitmap)}, {});
        const QImage image = made->bitmap.toRawImage().convertToFormat(QImage::Format_RGB32);
        int most = 0;
        for (int x = 0; x < 40; ++x) {
            const int moved = std::abs(qRed(image.pixel(x, 10)) - qRed(edge.pixel(x, 10)));
            most = std::max(most, moved);
            if (x < 19 || x > 20)
                QCOMPARE(image.pixel(x, 10), edge.pixel(x, 10));
        }
        QVERIFY(most > before);
        if (amount == SharpenAmount::Standard)
            QVERIFY(most <= 12);
        before = most;
    }
}

void TestRecipeMaking::laysAWatermarkWhereItBelongs()
{
    QImage plain(400, 300, QImage::Format_RGB32);
    plain.fill(QColor(20, 40, 60));
    const Bitmap bitmap = Bitmap::fromImage(plain);
    WatermarkOperation mark;
    mark.text = QStringLiteral("{width} & <b>");
    mark.size = 8;
    mark.margin = 5;
    QString asked;
    const FillText fill = [&asked](const QString &pattern, QSize size) {
        asked = pattern;
        return QString::number(size.width()) + QStringLiteral(" & <b>");
    };
    const auto made = rendered({{mark, false}}, {bitmap, stageOf(bitmap)}, fill);
    QVERIFY(made.has_value());
    QCOMPARE(asked, mark.text);
    const QImage image = made->bitmap.toRawImage().convertToFormat(QImage::Format_RGB32);
    QRect ink;
    for (int y = 0; y < 300; ++y)
        for (int x = 0; x < 400; ++x)
            if (image.pixel(x, y) != plain.pixel(x, y))
                ink |= QRect(x, y, 1, 1);
    QVERIFY(ink.width() > 50 && ink.height() > 10 && ink.height() < 40);
    QVERIFY(QRect(200, 150, 185, 135).contains(ink)); // bottom right, 15 pixels from the edges
    QVERIFY(ink.right() >= 380 && ink.bottom() >= 275);
    const auto none =
        rendered({{mark, false}}, {bitmap, stageOf(bitmap)}, [](const QString &, QSize) { return QString(); });
    QVERIFY(none->bitmap == bitmap);
    mark.isTiled = true;
    const auto tiled = rendered({{mark, false}}, {bitmap, stageOf(bitmap)}, fill);
    const QImage many = tiled->bitmap.toRawImage().convertToFormat(QImage::Format_RGB32);
    QVERIFY(differenceOf(many.copy(0, 0, 150, 100), plain.copy(0, 0, 150, 100)).most > 50);
}

void TestRecipeMaking::paddingAndFramesHaveTheirColour()
{
    QImage half(10, 10, QImage::Format_ARGB32);
    half.fill(QColor(0, 200, 0, 0));
    const Bitmap bitmap = Bitmap::fromImage(half);
    const auto made = rendered({{FrameOperation{4, QColor(255, 0, 0), {}}, false}}, {bitmap, stageOf(bitmap)}, {});
    const QImage framed = made->bitmap.toRawImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(framed.size(), QSize(18, 18));
    QCOMPARE(framed.pixelColor(3, 9), QColor(255, 0, 0));
    QCOMPARE(framed.pixelColor(9, 9).alpha(), 0); // what was transparent stays so
    ResizeOperation pad;
    pad.by = ResizeBy::Box;
    pad.fit = BoxFit::Pad;
    pad.boxWidth = 30;
    pad.boxHeight = 20;
    pad.color = QColor(0, 0, 255, 128);
    const auto padded = rendered({{pad, false}}, {bitmap, stageOf(bitmap)}, {});
    const QImage box = padded->bitmap.toRawImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(box.size(), QSize(30, 20));
    QCOMPARE(box.pixelColor(0, 0).alpha(), 128);
}

void TestRecipeMaking::turnsFillTheNewCornersAlone()
{
    QImage hole(60, 60, QImage::Format_ARGB32);
    hole.fill(QColor(0, 200, 0));
    for (int y = 20; y < 40; ++y)
        for (int x = 20; x < 40; ++x)
            hole.setPixelColor(x, y, Qt::transparent);
    for (const QColor &color : {QColor(255, 0, 0), QColor(255, 0, 0, 128)}) {
        const Bitmap bitmap = Bitmap::fromImage(hole);
        const auto made = rendered({{TurnOperation{45, color}, false}}, {bitmap, stageOf(bitmap)}, {});
        const QImage turned = made->bitmap.toRawImage().convertToFormat(QImage::Format_ARGB32);
        const int middle = turned.width() / 2;
        QCOMPARE(turned.pixelColor(1, 1), color);
        QCOMPARE(turned.pixelColor(middle, middle).alpha(), 0);
        QCOMPARE(turned.pixelColor(middle, 12), QColor(0, 200, 0));
    }
}

void TestRecipeMaking::carriesAsMuchMetadataAsIsAskedFor()
{
    const QString path = QString::fromUtf8(QUORLIN_TEST_DATA) + QStringLiteral("/../pictures/metadata/every-group.jpg");
    ResizeOperation resize;
    resize.number = 20;
    for (const OutputType type : {OutputType::Jpeg, OutputType::Png, OutputType::Tiff, OutputType::Jpeg2000,
                                  OutputType::Webp, OutputType::Avif, OutputType::JpegXl}) {
        Recipe recipe = recipeOf({resize}, type);
        const auto groups = [&](KeptMetadata kept, bool keepsLocation) {
            recipe.outputs.first().metadata = kept;
            recipe.outputs.first().keepsLocation = keepsLocation;
            const QByteArray file = madeFrom(recipe, path).first()->bytes;
            return ImageSource::fromData(file)->properties().value();
        };
        const char *name = writtenType(type).keyword.data();
        const QVariantMap all = groups(KeptMetadata::Keep, true);
        QVERIFY2(all.contains(QStringLiteral("{GPS}")) && all.contains(QStringLiteral("{Exif}")), name);
        QVERIFY2(!groups(KeptMetadata::Keep, false).contains(QStringLiteral("{GPS}")), name);
        const QVariantMap few = groups(KeptMetadata::Copyright, true);
        QVERIFY2(!few.contains(QStringLiteral("{GPS}")) && few.size() < all.size(), name);
        QVERIFY2(few.value(QStringLiteral("{TIFF}")).toMap().contains(QStringLiteral("Copyright")), name);
        if (type == OutputType::Jpeg) { // nor are pixels encoded for it
            recipe.operations.clear();
            const MadeOutput lean = *madeFrom(recipe, path).first();
            QVERIFY(lean.isLossless);
            QVERIFY(!ImageSource::fromData(lean.bytes)->properties()->contains(QStringLiteral("{GPS}")));
            QCOMPARE(imageOf(lean.bytes), imageOf(readAll(path)));
            recipe = recipeOf({resize}, type);
        }
        const QVariantMap none = groups(KeptMetadata::None, true);
        QVERIFY2(!none.contains(QStringLiteral("{GPS}")) && !none.contains(QStringLiteral("{IPTC}")), name);
        QVERIFY2(!none.value(QStringLiteral("{TIFF}")).toMap().contains(QStringLiteral("Copyright")), name);
    }
}

void TestRecipeMaking::roundsCornersAsItWouldInMemory_data()
{
    QTest::addColumn<RoundOperation>("round");
    RoundOperation round;
    round.radius = 20;
    QTest::newRow("transparent") << round;
    RoundOperation filled = round;
    filled.color = Qt::red;
    QTest::newRow("on a colour") << filled;
    RoundOperation banded = round;
    banded.band = Band{3, Qt::blue};
    QTest::newRow("with a band") << banded;
    RoundOperation measured = round;
    measured.scale.unit = RecipeUnit::Millimetre;
    measured.scale.dpi = 100;
    QTest::newRow("in millimetres") << measured;
    round.shape = RoundShape::Ellipse;
    QTest::newRow("an ellipse") << round;
    round.shape = RoundShape::Circle;
    QTest::newRow("a circle") << round;
}

/** JPEGs are read row by row for some of these. */
void TestRecipeMaking::roundsCornersAsItWouldInMemory()
{
    QFETCH(RoundOperation, round);
    ScratchFolder folder;
    const QString path = saved(folder, "photo.jpg", photograph({300, 200}));
    const Recipe recipe = recipeOf({round});
    const auto made = madeFrom(recipe, path);
    QCOMPARE(made.size(), 1);
    QVERIFY(made.first());
    const ImageSource source = ImageSource::open(path).value();
    const Bitmap bitmap = source.decode().value();
    const auto composed = rendered(recipe.operations, {bitmap, stageOf(bitmap)}, {});
    QVERIFY(composed);
    QCOMPARE(made.first()->size, composed->bitmap.size());
    const auto plan = planOf(recipe, source).first();
    QCOMPARE(made.first()->bytes, encodedFile(composed->bitmap, source, recipe.outputs.first(), plan).value());
}

QUORLIN_TEST(TestRecipeMaking)
#include "tst_recipe_making.moc"
