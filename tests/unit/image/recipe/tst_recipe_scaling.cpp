#include "image/recipe/encoding.h"
#include "image/recipe/make.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/convert/resized_jpeg.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QDirIterator>
#include <QImage>
#include <QTest>

#include <cmath>

using namespace image;
using platform::Bitmap;
using platform::ImageSource;

/** However few pixels a recipe has decoded for a result: it is as if all of them had been used. */
class TestRecipeScaling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsIfAllPixelsWereThere_data();
    void isAsIfAllPixelsWereThere();
    void isSoFromJpegToJpeg_data();
    void isSoFromJpegToJpeg();
    void isSoBeforeTheEncoderRounds_data();
    void isSoBeforeTheEncoderRounds();
    void isSoWhicheverWayAPictureIsStored_data();
    void isSoWhicheverWayAPictureIsStored();
};

namespace {

enum class Pattern { Checks, Upright, Level, Slanted, Colours };

/** A fine pattern in middle tones, so that it is no line art, with cells of so many pixels. */
QImage patterned(Pattern pattern, int cell, QSize size)
{
    const QRgb light = pattern == Pattern::Colours ? qRgb(210, 120, 60) : qRgb(208, 208, 208);
    const QRgb dark = pattern == Pattern::Colours ? qRgb(60, 110, 200) : qRgb(48, 48, 48);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const int across = pattern == Pattern::Level ? 0 : x / cell;
            const int down = pattern == Pattern::Upright ? 0 : y / cell;
            const bool isLight = (pattern == Pattern::Slanted ? (x + 2 * y) / cell : across + down) % 2 == 0;
            image.setPixel(x, y, isLight ? light : dark);
        }
    return image;
}

Recipe withSides(const QList<int> &longest, OutputType type)
{
    Recipe recipe;
    for (const int each : longest) {
        ResizeOperation resize;
        resize.number = each;
        RecipeOutput output;
        output.type = type;
        output.operations.append({resize, false});
        recipe.outputs.append(output);
    }
    return recipe;
}

QList<QImage> madeFrom(const Recipe &recipe, const ImageSource &source)
{
    QList<QImage> all(recipe.outputs.size());
    makeOutputs(recipe, source, planOf(recipe, source), {}, [&](int index, const platform::Result<MadeOutput> &made) {
        const auto file = made ? ImageSource::fromData(made->bytes) : platform::Result<ImageSource>(ImageSource());
        const auto bitmap = file.and_then([](const ImageSource &opened) { return opened.decode(); });
        if (bitmap)
            all[index] = bitmap->toRawImage().convertToFormat(QImage::Format_RGBA8888);
    });
    return all;
}

/** The same from all pixels, by one operation after the other. */
platform::Result<Rendition> plainPixels(const Recipe &recipe, int index, const ImageSource &source)
{
    return source.decode().and_then([&](const Bitmap &all) {
        return rendered(recipe.outputs[index].operations, {all, stageOf(all)}, {});
    });
}

/** And of these the file. */
QImage plainly(const Recipe &recipe, int index, const ImageSource &source)
{
    const auto made = plainPixels(recipe, index, source);
    if (!made)
        return {};
    const auto file = encodedFile(made->bitmap, source, recipe.outputs[index], planOf(recipe, source)[index])
                          .and_then([](const QByteArray &bytes) { return ImageSource::fromData(bytes); });
    const auto bitmap = file.and_then([](const ImageSource &opened) { return opened.decode(); });
    return bitmap ? bitmap->toRawImage().convertToFormat(QImage::Format_RGBA8888) : QImage();
}

/** A sentence if they differ by more than allowed. */
QString tooFar(const QImage &one, const QImage &other, int mostOfOne = 8)
{
    constexpr double mostMean = 1;
    if (one.isNull() || one.size() != other.size())
        return QStringLiteral("%1 × %2 pixels, not %3 × %4")
            .arg(one.width())
            .arg(one.height())
            .arg(other.width())
            .arg(other.height());
    double sum = 0;
    int most = 0;
    QPoint place;
    for (int y = 0; y < one.height(); ++y)
        for (int i = 0; i < 4 * one.width(); ++i) {
            const int each = std::abs(one.constScanLine(y)[i] - other.constScanLine(y)[i]);
            sum += each;
            if (each > most) {
                most = each;
                place = QPoint(i / 4, y);
            }
        }
    const double mean = sum / (4.0 * one.width() * one.height());
    return mean > mostMean || most > mostOfOne ? QStringLiteral("%1 on average, %2 at most, at %3, %4")
                                                     .arg(mean)
                                                     .arg(most)
                                                     .arg(place.x())
                                                     .arg(place.y())
                                               : QString();
}

} // namespace

/** Stripes, checks and slants of several widths, in sizes that a decoder can halve and in others. */
static void addPatterns(const QList<int> &cells)
{
    QTest::addColumn<int>("pattern");
    QTest::addColumn<int>("cell");
    QTest::addColumn<QSize>("size");
    const char *names[] = {"checks", "upright", "level", "slanted", "colours"};
    for (int pattern = 0; pattern < 5; ++pattern)
        for (const int cell : cells)
            for (const QSize size : {QSize(1203, 905), QSize(1204, 906)}) // a decoder can halve the second
                QTest::addRow("%s of %d, %d", names[pattern], cell, size.width()) << pattern << cell << size;
}

void TestRecipeScaling::isAsIfAllPixelsWereThere_data()
{
    addPatterns(tests::isSlowRun() ? QList<int>{3, 5, 8, 11, 16} : QList<int>{3, 11});
}

/** What is wrong with the outputs, in sentences; @p way says which they are. */
static QStringList problemsOf(const Recipe &recipe, const ImageSource &source, const char *way)
{
    QStringList problems;
    const QList<QImage> made = madeFrom(recipe, source);
    for (int i = 0; i < made.size(); ++i)
        if (const QString problem = tooFar(made[i], plainly(recipe, i, source)); !problem.isEmpty())
            problems.append(
                QStringLiteral("%1 %2: %3").arg(QLatin1String(way), QString::number(made[i].width()), problem));
    return problems;
}

static QByteArray jpegOf(const QImage &image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "jpeg", quality);
    return bytes;
}

void TestRecipeScaling::isAsIfAllPixelsWereThere()
{
    QFETCH(int, pattern);
    QFETCH(int, cell);
    QFETCH(QSize, size);
    constexpr int good = 92;
    const ImageSource source = ImageSource::fromData(jpegOf(patterned(Pattern(pattern), cell, size), good)).value();
    QStringList problems;
    const QList<double> all = {2.3, 4.0, 6.5, 8.0, 8.3, 9.0, 10.0, 10.4, 12.0, 15.0, 17.7, 21.0, 25.5, 33.0, 50.0};
    for (const double times : tests::isSlowRun() ? all : QList<double>{4.0, 8.3, 10.0, 15.0, 25.5}) {
        const int side = int(std::lround(size.width() / times));
        problems += problemsOf(withSides({side}, OutputType::Png), source, "one");
        problems += problemsOf(withSides({side, side * 2 / 3}, OutputType::Png), source, "two");
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

void TestRecipeScaling::isSoFromJpegToJpeg_data()
{
    addPatterns(tests::isSlowRun() ? QList<int>{2, 3, 4, 5, 8, 11, 16} : QList<int>{3, 4, 11});
}

/** Planes that are scaled as they come from the decoder must not be seen. */
void TestRecipeScaling::isSoFromJpegToJpeg()
{
    QFETCH(int, pattern);
    QFETCH(int, cell);
    QFETCH(QSize, size);
    constexpr int good = 92;
    const ImageSource source = ImageSource::fromData(jpegOf(patterned(Pattern(pattern), cell, size), good)).value();
    QStringList problems;
    const QList<double> all = {2.1, 2.3, 2.7, 3.1, 4.0, 4.4, 5.3, 5.9, 6.5, 7.0, 8.0, 10.0, 12.0};
    for (const double times : tests::isSlowRun() ? all : QList<double>{2.1, 2.3, 3.1, 4.0, 5.3, 6.5, 7.0, 12.0}) {
        Recipe recipe = withSides({int(std::lround(size.width() / times))}, OutputType::Jpeg);
        recipe.outputs.first().quality = 100;
        const QSize made = planOf(recipe, source).first().size;
        const bool isWhole = size.width() % 2 != 0 || times < 5;
        const auto planes =
            platform::resizedJpeg(source, {.size = made, .kept = QRect(QPoint(), made), .isFine = true}, {});
        QVERIFY2(!isWhole || planes, "this is to be about planes");
        problems += problemsOf(recipe, source, "to");
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

void TestRecipeScaling::isSoBeforeTheEncoderRounds_data()
{
    if (tests::isSlowRun())
        return addPatterns({2, 3, 4, 5, 8, 11, 16});
    QTest::addColumn<int>("pattern");
    QTest::addColumn<int>("cell");
    QTest::addColumn<QSize>("size");
    QTest::newRow("all samples") << int(Pattern::Colours) << 8 << QSize(1203, 905);
    QTest::newRow("colour of the file, half of the brightness") << int(Pattern::Colours) << 16 << QSize(1204, 906);
}

/**
 * The pixels of a file made from planes, and those that all pixels give, before any encoder has rounded them: so the
 * rounding of one file counts, not that of two.
 */
void TestRecipeScaling::isSoBeforeTheEncoderRounds()
{
    QFETCH(int, pattern);
    QFETCH(int, cell);
    QFETCH(QSize, size);
    constexpr int good = 92;
    constexpr int mostOfOneFile = 6;
    const ImageSource source = ImageSource::fromData(jpegOf(patterned(Pattern(pattern), cell, size), good)).value();
    QStringList problems;
    const QList<double> all = {1.2, 1.5, 1.9, 2.1, 2.5,  3.0,  3.6,  4.0,  4.4,
                               5.3, 6.5, 8.0, 9.0, 10.0, 12.0, 13.5, 15.0, 20.0};
    for (const double times : tests::isSlowRun() ? all : QList<double>{3.6, 10.0, 12.0}) {
        Recipe recipe = withSides({int(std::lround(size.width() / times))}, OutputType::Jpeg);
        recipe.outputs.first().quality = 100;
        const auto pixels = plainPixels(recipe, 0, source);
        QVERIFY(pixels);
        const QImage image = pixels->bitmap.toRawImage().convertToFormat(QImage::Format_RGBA8888);
        if (const QString problem = tooFar(madeFrom(recipe, source).first(), image, mostOfOneFile); !problem.isEmpty())
            problems.append(QStringLiteral("a %1th: %2").arg(times).arg(problem));
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

void TestRecipeScaling::isSoWhicheverWayAPictureIsStored_data()
{
    QTest::addColumn<QString>("path");
    const QString pictures = QString::fromUtf8(QUORLIN_TEST_DATA) + QStringLiteral("/../pictures/");
    for (const char *folder : {"formats", "orientation"})
        for (const QFileInfo &file : QDir(pictures + QLatin1String(folder)).entryInfoList(QDir::Files))
            if (ImageSource::canOpen(file.filePath()))
                QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

void TestRecipeScaling::isSoWhicheverWayAPictureIsStored()
{
    QFETCH(QString, path);
    const ImageSource source = ImageSource::open(path).value();
    if (source.typeIdentifier() == QLatin1String("com.adobe.pdf") ||
        source.typeIdentifier() == QLatin1String("public.svg-image"))
        QSKIP("a drawing is drawn at the size that is wanted");
    const QSize all = source.uprightSize();
    const int longest = std::max(all.width(), all.height());
    QStringList problems;
    for (const int part : {2, 3, 5, 9, 13}) {
        const Recipe recipe = withSides({std::max(1, longest / part)}, OutputType::Png);
        const QString problem = tooFar(madeFrom(recipe, source).first(), plainly(recipe, 0, source));
        if (!problem.isEmpty())
            problems.append(QStringLiteral("a %1th: %2").arg(part).arg(problem));
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
}

QUORLIN_TEST(TestRecipeScaling)
#include "tst_recipe_scaling.moc"
