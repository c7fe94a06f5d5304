#include "platform/graphics/resample.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::ErrorCode;
using platform::ImageSource;
using platform::Result;

namespace {

void rowsOf(const QString &folder)
{
    for (const expected::Row &row : expected::rows(folder))
        QTest::newRow(qPrintable(row.name)) << row.name;
}

expected::Row rowNamed(const QString &name)
{
    return expected::rows(name).value(0);
}

} // namespace

class ImageSources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsThePictures() { QVERIFY(expected::rows(QStringLiteral("own/")).size() > 100); }

    void saysBeforehandWhetherItOpens_data()
    {
        QTest::addColumn<QString>("name");
        rowsOf(QString());
    }

    void saysBeforehandWhetherItOpens()
    {
        QFETCH(QString, name);
        const QString path = rowNamed(name).path;
        QCOMPARE(ImageSource::canOpen(path), ImageSource::open(path).has_value());
    }

    void tellsTheFacts_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *folder : {"formats/", "orientation/", "dpi/", "exif-real/", "metadata/"})
            rowsOf(QString::fromLatin1(folder));
    }

    void tellsTheFacts()
    {
        QFETCH(QString, name);
        const expected::Row row = rowNamed(name);
        const Result<ImageSource> source = ImageSource::open(row.path);
        if (!row.isDecodable) {
            QVERIFY(!source || !source->decode());
            return;
        }
        QVERIFY2(source.has_value(), source ? "" : qPrintable(source.error().message));
        // A container that rotates its picture itself has its stored size before that rotation.
        const bool isTurnedByContainer = row.format == QLatin1String("HEIC") || row.format == QLatin1String("AVIF");
        const bool isDrawn = row.format == QLatin1String("PDF");
        if (!isDrawn)
            QCOMPARE(source->storedSize(), isTurnedByContainer ? row.upright : row.stored);
        QCOMPARE(source->uprightSize(), row.upright);
        QCOMPARE(source->imageCount(), std::max(1, row.images));
        const Result<Bitmap> bitmap = source->decode();
        QVERIFY2(bitmap.has_value(), bitmap ? "" : qPrintable(bitmap.error().message));
        QCOMPARE(bitmap->size(), row.upright);
    }

    void tellsTheResolution_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *folder : {"dpi/", "formats/", "exif-real/", "metadata/"})
            rowsOf(QString::fromLatin1(folder));
    }

    void tellsTheResolution()
    {
        QFETCH(QString, name);
        const expected::Row row = rowNamed(name);
        const Result<ImageSource> source = ImageSource::open(row.path);
        const Result<Bitmap> bitmap = source ? source->decode() : Result<Bitmap>(Bitmap());
        if (!row.isDecodable || !bitmap || bitmap->isNull())
            QSKIP("not a picture that can be decoded");
        // Whole dots per inch that were rounded to whole pixels per metre are read as what was meant.
        const bool isPerMetre = row.format == QLatin1String("PNG") || row.format == QLatin1String("BMP");
        const double perMetre = std::round(row.dpi / 0.0254);
        const bool isRounded = isPerMetre && std::round(std::round(row.dpi) / 0.0254) == perMetre;
        const double stated = row.dpi > 0 ? (isRounded ? std::round(row.dpi) : row.dpi) : 72;
        QVERIFY2(std::abs(bitmap->horizontalDpi() - stated) < 0.01,
                 qPrintable(QString::number(bitmap->horizontalDpi())));
    }

    void readsStoredAndUprightPixels()
    {
        const QString path = picturePath("own/orientation/portrait_6.jpg");
        const Result<ImageSource> source = ImageSource::open(path);
        QVERIFY(source.has_value());
        platform::DecodeOptions asStored;
        asStored.orientation = platform::Orientation::AsStored;
        const Bitmap stored = source->decode(asStored).value_or(Bitmap());
        const Bitmap upright = source->decode().value_or(Bitmap());
        QCOMPARE(stored.size(), QSize(60, 40));
        QCOMPARE(upright.size(), QSize(40, 60));
        // Orientation 6: the stored top row is the upright right column.
        for (const int step : {0, 10, 39})
            QCOMPARE(upright.pixel(39 - step, 20), stored.pixel(20, step));
    }

    void doesNotOpenWhatIsNoWholePicture_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("code");
        const auto row = [](const char *name, ErrorCode code) {
            if (QByteArray(name).startsWith("own/") || corpusIsThere())
                QTest::newRow(name) << QString::fromLatin1(name) << int(code);
        };
        row("own/broken/missing.jpg", ErrorCode::NotFound);
        row("own/broken/zero-byte.jpg", ErrorCode::NotAPicture);
        row("own/broken/text-named.jpg", ErrorCode::NotAPicture);
        for (const char *name : {"own/broken/truncated.jpg", "own/broken/truncated.png", "own/broken/truncated.gif",
                                 "own/broken/bomb-30000x30000.bmp"})
            row(name, ErrorCode::Unreadable);
        row("own/broken/bomb-60000x60000.png", ErrorCode::TooLarge);
        row("own/broken/bomb-100000x100000.tif", ErrorCode::TooLarge);
        row("broken/zero-byte.jpg", ErrorCode::NotAPicture);
        row("broken/text-named.jpg", ErrorCode::NotAPicture);
        row("broken/truncated-real-camera.jpg", ErrorCode::Unreadable);
        row("broken/truncated_image.png", ErrorCode::Unreadable);
        row("broken/truncated.gif", ErrorCode::Unreadable);
        row("broken/broken_data_stream.png", ErrorCode::Unreadable);
        row("broken/libpng-huge_IDAT.png", ErrorCode::Unreadable);
        row("broken/decompression_bomb.gif", ErrorCode::Unreadable);
        row("broken/bomb-60000x60000.png", ErrorCode::TooLarge);
        row("broken/bomb-100000x100000.tif", ErrorCode::TooLarge);
        row("broken/bomb-30000x30000.bmp", ErrorCode::Unreadable);
        row("broken/17000x17000.avif", ErrorCode::Unreadable);
    }

    void doesNotOpenWhatIsNoWholePicture()
    {
        QFETCH(QString, name);
        QFETCH(int, code);
        const Result<ImageSource> source = ImageSource::open(picturePath(name));
        QVERIFY(!source.has_value());
        QCOMPARE(int(source.error().code), code);
        QVERIFY(source.error().message.contains(QFileInfo(name).fileName()));
    }

    void refusesEveryCutOfAPicture_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name :
             picturesThere({"own/formats/rgb.jpg", "own/formats/rgba8.png", "own/formats/lossy.webp",
                            "own/formats/rgba32.bmp", "own/formats/rgb16.tif", "formats/cat.jpg", "formats/rgba.png",
                            "formats/flower.webp", "formats/bmpsuite-q-rgba32.bmp", "formats/16bit.cropped.tif"}))
            QTest::newRow(qPrintable(name)) << name;
    }

    void refusesEveryCutOfAPicture()
    {
        QFETCH(QString, name);
        const QByteArray whole = pictures::bytesOf(picturePath(name));
        QVERIFY(whole.size() > 100);
        for (const double share : {0.0, 0.01, 0.1, 0.3, 0.5, 0.7}) {
            const Result<ImageSource> source =
                ImageSource::fromData(whole.left(qsizetype(double(whole.size()) * share)));
            QVERIFY2(!source || !source->decode(), qPrintable(QString::number(share)));
        }
    }

    void namesOnlyItsOwnFileInAnError()
    {
        const Result<ImageSource> phone = ImageSource::open(picturePath("own/formats/profile.heic"));
        QVERIFY(phone && phone->decode());
        for (const QString &name : picturesThere({"own/broken/truncated.gif", "own/broken/spoilt-data.png",
                                                  "own/broken/truncated.tif", "broken/2018-01-09-exiv2-crash-001.tiff",
                                                  "broken/decompression_bomb.gif", "broken/libpng-huge_IDAT.png"})) {
            const Result<ImageSource> broken = ImageSource::open(picturePath(name));
            const Result<Bitmap> bitmap = broken ? broken->decode() : tl::make_unexpected(broken.error());
            QVERIFY(!bitmap);
            QVERIFY2(!bitmap.error().message.contains(QStringLiteral("profile.heic")),
                     qPrintable(bitmap.error().message));
        }
    }

    void takesThePrimaryItemForThePicture()
    {
        QTemporaryDir folder;
        const QString small = folder.filePath(QStringLiteral("small.png"));
        const QString large = folder.filePath(QStringLiteral("large.png"));
        const QString both = folder.filePath(QStringLiteral("both.heic"));
        QVERIFY(pictures::gradient(64, 48).save(small) && pictures::gradient(200, 100).save(large));
        QProcess program;
        program.start(QStringLiteral("heif-enc"), {small, large, QStringLiteral("-o"), both});
        QVERIFY(program.waitForFinished() && program.exitCode() == 0);
        QByteArray bytes = pictures::bytesOf(both);
        const qsizetype box = bytes.indexOf("pitm");
        QVERIFY(box > 0);
        QCOMPARE(ImageSource::fromData(bytes)->storedSize(), QSize(64, 48));
        constexpr qsizetype numberBehindName = 9;
        bool isFound = false;
        for (char item = 1; item < 8 && !isFound; ++item) { // which numbers the items have is up to the program
            bytes[box + numberBehindName] = item;
            const Result<ImageSource> source = ImageSource::fromData(bytes);
            isFound = source && source->storedSize() == QSize(200, 100);
            if (!isFound)
                continue;
            QCOMPARE(source->decode()->size(), QSize(200, 100));
            QCOMPARE(source->imageCount(), 2);
            QCOMPARE(source->decode({.index = 1})->size(), QSize(64, 48));
        }
        QVERIFY(isFound);
        const QString tiled = corpusPath("found/32Bit-72dpi-sRGB-800x600.avif");
        if (QFile::exists(tiled))
            QCOMPARE(ImageSource::open(tiled)->storedSize(), QSize(800, 600));
    }

    void enlargesAroundTheMiddle_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(8, 8), QSize(10, 8), QSize(16, 24), QSize(9, 2), QSize(2, 9), QSize(100, 101)})
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }

    // What is mirrored before it is enlarged is the mirrored enlargement: nothing moves by a part of a pixel.
    void enlargesAroundTheMiddle()
    {
        QFETCH(QSize, size);
        QImage corner(4, 4, QImage::Format_RGB32);
        corner.fill(Qt::black);
        corner.setPixel(0, 0, qRgb(255, 255, 255));
        corner.setPixel(1, 1, qRgb(0, 200, 90));
        const auto enlarged = [size](const QImage &image) {
            QBuffer file;
            (void)image.save(&file, "png");
            const Bitmap bitmap = ImageSource::fromData(file.data())->decode().value_or(Bitmap());
            return platform::resample(bitmap, size).value_or(Bitmap()).toRawImage();
        };
        const QImage expected = enlarged(corner).mirrored(true, true);
        const QImage made = enlarged(corner.mirrored(true, true));
        QCOMPARE(made.size(), size);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                QVERIFY2(qAbs(qRed(made.pixel(x, y)) - qRed(expected.pixel(x, y))) <= 1 &&
                             qAbs(qGreen(made.pixel(x, y)) - qGreen(expected.pixel(x, y))) <= 1,
                         qPrintable(QStringLiteral("at %1, %2").arg(x).arg(y)));
    }

    void doesNotStretchWhatIsNoWholeNumberOfBlocks_data()
    {
        QTest::addColumn<QSize>("stored");
        for (const QSize stored :
             {QSize(801, 601), QSize(807, 600), QSize(803, 607), QSize(800, 600), QSize(1999, 999)})
            QTest::addRow("%d x %d", stored.width(), stored.height()) << stored;
    }

    void doesNotStretchWhatIsNoWholeNumberOfBlocks()
    {
        QFETCH(QSize, stored);
        // Slopes encode positions: a shift of a pixel in the result changes its value by a known step.
        constexpr int part = 8; // only the last eighth of a side rises
        const auto height = [](int place, int side) {
            return std::max(0, (place - side + side / part) * part * 255 / side);
        };
        QImage slope(stored, QImage::Format_RGB32);
        for (int y = 0; y < stored.height(); ++y)
            for (int x = 0; x < stored.width(); ++x)
                slope.setPixel(x, y, qRgb(height(x, stored.width()), height(y, stored.height()), 128));
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("slope.jpg"));
        QVERIFY(slope.save(path, "jpg", 100));
        const Result<ImageSource> source = ImageSource::open(path);
        const QSize wanted(stored.width() / 8, stored.height() / 8);
        const Bitmap made = source->decodeScaled(wanted).value_or(Bitmap());
        const Bitmap exact = platform::resample(source->decode().value_or(Bitmap()), wanted).value_or(Bitmap());
        QCOMPARE(made.size(), wanted);
        double across = 0;
        double down = 0;
        constexpr int border = 4;
        const int right = wanted.width() - border;
        const int bottom = wanted.height() - border;
        for (int step = border; step < bottom; ++step)
            across += made.pixel(right, step)[0] - exact.pixel(right, step)[0];
        for (int step = border; step < right; ++step)
            down += made.pixel(step, bottom)[1] - exact.pixel(step, bottom)[1];
        constexpr double mostShift = 0.15; // of a pixel
        across *= wanted.width() / 255.0 / part / (bottom - border);
        down *= wanted.height() / 255.0 / part / (right - border);
        QVERIFY2(std::abs(across) < mostShift && std::abs(down) < mostShift,
                 qPrintable(QStringLiteral("%1 %2").arg(across).arg(down)));
    }

    void refusesAnImageThatIsNotThere()
    {
        const Result<ImageSource> source = ImageSource::open(picturePath("own/formats/pages.tif"));
        QVERIFY(source.has_value());
        platform::DecodeOptions options;
        for (const int index : {-1, 3, 1000}) {
            options.index = index;
            QCOMPARE(int(source->decode(options).error().code), int(ErrorCode::InvalidValue));
        }
        options.index = 2;
        QVERIFY(source->decode(options).has_value());
    }

    void scalesToExactlyTheSizeItIsAskedFor_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        for (const QString &name :
             picturesThere({"own/formats/rgb.jpg", "own/formats/profile.heic", "own/formats/rgba8.png",
                            "own/formats/rgba16.tif", "own/formats/lab8.tif", "own/formats/cmyk.jpg",
                            "own/formats/drawing.svg", "own/formats/drawing.pdf", "own/orientation/turned_6.tif",
                            "exif-real/canon_hdr_NO.jpg", "formats/IMG_5195.HEIC", "formats/rgba.png",
                            "formats/tiff_16bit_RGBa.tiff", "formats/hopper.Lab.tif", "formats/pil_sample_cmyk.jpg",
                            "formats/logo.svg", "formats/ISO_12233-reschart.pdf", "orientation/g4_orientation_6.tif"}))
            for (const QSize size : {QSize(1, 1), QSize(37, 200), QSize(400, 31), QSize(900, 900)})
                QTest::addRow("%s to %dx%d", qPrintable(name), size.width(), size.height()) << name << size;
    }

    void scalesToExactlyTheSizeItIsAskedFor()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        const Result<ImageSource> source = ImageSource::open(picturePath(name));
        QVERIFY(source.has_value());
        const Result<Bitmap> scaled = source->decodeScaled(size);
        QVERIFY2(scaled.has_value(), scaled ? "" : qPrintable(scaled.error().message));
        QCOMPARE(scaled->size(), size);
    }

    void keepsTheProfileThroughScaling_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name :
             picturesThere({"own/formats/profile.heic", "own/formats/profile.jpg", "own/formats/profile.tif",
                            "formats/IMG_5195.HEIC", "formats/cat.jpg", "formats/hopper.iccprofile.tif"}))
            QTest::newRow(qPrintable(name)) << name;
    }

    void keepsTheProfileThroughScaling()
    {
        QFETCH(QString, name);
        const Result<ImageSource> source = ImageSource::open(picturePath(name));
        const QByteArray profile = source->decode().value_or(Bitmap()).iccProfile();
        QCOMPARE(profile.mid(36, 4), QByteArray("acsp"));
        for (const int width : {50, 100, 300})
            QCOMPARE(source->decodeScaled(QSize(width, width)).value_or(Bitmap()).iccProfile(), profile);
    }

    void scalesWithoutShifting()
    {
        // Sides that are no multiple of 8: the decoder's own shrinking must not move or lose the edges.
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("halves.jpg"));
        QImage halves = pictures::plain(1607, 1205, Qt::black, QImage::Format_RGB32);
        for (int y = 0; y < halves.height(); ++y)
            for (int x = halves.width() / 2; x < halves.width(); ++x)
                halves.setPixel(x, y, qRgb(255, 255, 255));
        QVERIFY(halves.save(path, "jpg", 95));
        const Result<ImageSource> source = ImageSource::open(path);
        for (const int width : {201, 200, 150, 101, 50}) {
            const Bitmap scaled = source->decodeScaled(QSize(width, width)).value_or(Bitmap());
            double white = 0;
            for (int x = 0; x < width; ++x)
                white += scaled.pixel(x, width / 2)[0] / 255.0;
            QVERIFY2(std::abs(white - width / 2.0) < 0.6, qPrintable(QString::number(white)));
            QVERIFY(scaled.pixel(width - 1, width - 1)[0] > 250);
            QVERIFY(scaled.pixel(0, 0)[0] < 5);
        }
    }
};

QUORLIN_TEST(ImageSources)
#include "tst_image_source.moc"
