#include "image/cMConversion.h"
#include "image/unit_conversion.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/log_capture.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

using image::LengthUnit;

/** Lengths as pixels of a picture. */
class UnitConversion : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    /** A picture of 20 x 10 pixels that states this resolution. */
    QString pictureAt(double dpi, platform::FileFormat format, const char *name) const
    {
        QImage image = pictures::gradient(20, 10);
        image.setDotsPerMeterX(qRound(dpi / 0.0254));
        image.setDotsPerMeterY(qRound(dpi / 0.0254));
        platform::EncodeOptions options;
        options.resolution = platform::WriteResolution::Yes;
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        return platform::writeImageFile(path, platform::Bitmap::fromImage(image), format, options) ? path : QString();
    }

private Q_SLOTS:
    void convertsEveryUnit_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("dpi");
        QTest::addColumn<int>("pixels");
        const auto row = [](const char *unit, float value, float dpi, int pixels) {
            QTest::addRow("%g %s at %g", double(value), unit, double(dpi))
                << QString::fromUtf8(unit) << value << dpi << pixels;
        };
        row("mm", 10, 300, 118);
        row("cm", 2.5F, 300, 295);
        row("inch", 1, 300, 300);
        row("inch", 1, 72, 71); // 71.999997: the product in single precision is a little too small
        row("pica", 1, 300, 50);
        row("punt", 12, 300, 49); // 49.999995
        row("punt", 72, 72, 71);
        row("pixel", 12.9F, 300, 12);
        row("pixel", -12.9F, 300, -12);
        row("MM", 12.9F, 300, 12);
        row("", 12.9F, 300, 12);
        row("mm", 25.4F, 72, 71);
        row("mm", 0, 300, 0);
        row("mm", -10, 300, -118);
        row("pica", -1, 300, -50);
        row("pica", 0.01F, 300, 0);
        row("cm", 1, 1, 0);
    }

    void convertsEveryUnit()
    {
        QFETCH(QString, unit);
        QFETCH(float, value);
        QFETCH(float, dpi);
        QTEST(image::inPixels(value, image::lengthUnit(unit), dpi), "pixels");
    }

    // The same steps once more, each forced into memory, for many lengths and resolutions.
    void roundsAfterEveryStep()
    {
        for (int step = 1; step < 4000; ++step) {
            const float value = float(step) / 16;
            for (const float dpi : {72.0F, 96.0F, 150.0F, 240.0F, 299.0F, 300.0F, 600.0F}) {
                const auto truncated = [dpi](float millimetres) {
                    volatile float product = millimetres * dpi;
                    volatile double pixels = double(product) / 25.4;
                    return int(pixels);
                };
                volatile float inches = float(double(value) * 25.4);
                volatile float points = float(double(value) * 0.3527777777778);
                volatile float picas = float(double(value) * 4.2175176);
                volatile float centimetres = value * 10.0F;
                QCOMPARE(image::inPixels(value, LengthUnit::Millimetre, dpi), truncated(value));
                QCOMPARE(image::inPixels(value, LengthUnit::Centimetre, dpi), truncated(centimetres));
                QCOMPARE(image::inPixels(value, LengthUnit::Inch, dpi), truncated(inches));
                QCOMPARE(image::inPixels(value, LengthUnit::Point, dpi), truncated(points));
                volatile float product = picas * dpi;
                volatile float pixels = float(double(product) / 25.4);
                QCOMPARE(image::inPixels(value, LengthUnit::Pica, dpi), int(std::lround(float(pixels))));
            }
        }
    }

    void boundsWhatIsNoWholeNumber_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<float>("dpi");
        QTest::addColumn<int>("pixels");
        constexpr float infinite = std::numeric_limits<float>::infinity();
        constexpr float none = std::numeric_limits<float>::quiet_NaN();
        QTest::newRow("no resolution") << 10.0F << 0.0F << 0;
        QTest::newRow("an infinite one") << 10.0F << infinite << 0;
        QTest::newRow("none at all") << 10.0F << none << 0;
        QTest::newRow("an infinite length") << -infinite << 300.0F << 0;
        QTest::newRow("no length") << none << 300.0F << 0;
        QTest::newRow("too long") << 1e12F << 300.0F << std::numeric_limits<int>::max();
        QTest::newRow("too short") << -1e12F << 300.0F << std::numeric_limits<int>::min();
        QTest::newRow("beyond single precision") << 1e38F << 300.0F << 0;
    }

    void boundsWhatIsNoWholeNumber()
    {
        QFETCH(float, value);
        QFETCH(float, dpi);
        for (const LengthUnit unit : {LengthUnit::Millimetre, LengthUnit::Pica})
            QTEST(image::inPixels(value, unit, dpi), "pixels");
    }

    void remembersTheLastResult()
    {
        cMConversion conversion;
        const QString path = pictureAt(300, platform::FileFormat::Jpeg, "300.jpg");
        const auto convert = [&](const char *target, const char *unit, float value) {
            return conversion.convertXtoPixel(path, QString::fromUtf8(target), QString::fromUtf8(unit), value);
        };
        QCOMPARE(convert("inch", "mm", 10), 0.0F);
        QCOMPARE(convert("pixel", "mm", 10), 118.0F);
        QCOMPARE(conversion.property("myNewValue").toInt(), 118);
        QCOMPARE(conversion.property("myDPIvalue").toFloat(), 300.0F);
        QCOMPARE(convert("inch", "mm", 20), 118.0F);
        QCOMPARE(convert("", "pixel", 20), 118.0F);
        QCOMPARE(convert("pixel", "pixel", 20.7F), 20.0F);
        QCOMPARE(convert("pixel", "ell", 21.7F), 21.0F);
        QCOMPARE(convert("mm", "inch", 1), 21.0F);
        conversion.setProperty("myNewValue", 5);
        QCOMPARE(convert("mm", "inch", 1), 5.0F);
    }

    void readsNoResolutionForPixels()
    {
        cMConversion conversion;
        conversion.setProperty("myDPIvalue", 17.0F);
        const QString missing = m_folder.filePath(QStringLiteral("missing.png"));
        for (const char *unit : {"pixel", "furlong"})
            QCOMPARE(conversion.convertXtoPixel(missing, QStringLiteral("pixel"), QString::fromUtf8(unit), 9.5F), 9.0F);
        QCOMPARE(conversion.property("myDPIvalue").toFloat(), 17.0F);
        QCOMPARE(conversion.convertXtoPixel(missing, QStringLiteral("pixel"), QStringLiteral("mm"), 9.5F), 0.0F);
        QCOMPARE(conversion.property("myDPIvalue").toFloat(), 0.0F);
    }

    void readsTheResolutionOfTheSharedPictures_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<double>("dpi");
        for (const char *folder : {"dpi/", "formats/", "exif-real/", "metadata/", "orientation/"})
            for (const expected::Row &row : expected::rows(QString::fromLatin1(folder)))
                QTest::newRow(qPrintable(row.name)) << row.path << row.dpi;
    }

    void readsTheResolutionOfTheSharedPictures()
    {
        QFETCH(QString, path);
        QFETCH(double, dpi);
        cMConversion conversion;
        if (!platform::ImageSource::open(path))
            QSKIP("not a picture that can be read");
        // Whole dots per inch that were rounded to whole pixels per metre are read as what was meant.
        const bool isWhole = std::round(std::round(dpi) / 0.0254) == std::round(dpi / 0.0254);
        const double wanted = dpi > 0 ? dpi : 72;
        QCOMPARE(conversion.getPictureDPI(path), isWhole ? float(std::round(wanted)) : std::ceil(float(wanted)));
    }

    void readsBackWholeNumbers_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("name");
        QTest::newRow("png") << int(platform::FileFormat::Png) << QStringLiteral("photo.png");
        QTest::newRow("bmp") << int(platform::FileFormat::Bmp) << QStringLiteral("photo.bmp");
        QTest::newRow("tiff") << int(platform::FileFormat::Tiff) << QStringLiteral("photo.tiff");
        QTest::newRow("jpeg") << int(platform::FileFormat::Jpeg) << QStringLiteral("photo.jpg");
    }

    void readsBackWholeNumbers()
    {
        QFETCH(int, format);
        QFETCH(QString, name);
        cMConversion conversion;
        for (const int dpi : {10, 72, 96, 100, 144, 150, 180, 240, 299, 300, 350, 600, 1200, 2400, 9600}) {
            const QString path = pictureAt(dpi, platform::FileFormat(format), qPrintable(name));
            QCOMPARE(conversion.getPictureDPI(path), float(dpi));
        }
    }

    void roundsFractionsUp()
    {
        cMConversion conversion;
        platform::EncodeOptions options;
        options.metadata = platform::Metadata::fromProperties(
            {{QStringLiteral("DPIWidth"), 299.5}, {QStringLiteral("DPIHeight"), 150.0}});
        const platform::Bitmap bitmap = platform::Bitmap::fromImage(pictures::gradient(20, 10));
        const QString path = m_folder.filePath(QStringLiteral("fraction.jpg"));
        QVERIFY(platform::writeImageFile(path, bitmap, platform::FileFormat::Jpeg, options));
        QCOMPARE(conversion.getPictureDPI(path), 300.0F);
        options.metadata = platform::Metadata::fromProperties({{QStringLiteral("DPIWidth"), 299.5},
                                                               {QStringLiteral("DPIHeight"), 150.0},
                                                               {QStringLiteral("Orientation"), 6}});
        QVERIFY(platform::writeImageFile(path, bitmap, platform::FileFormat::Jpeg, options));
        QCOMPARE(conversion.getPictureDPI(path), 150.0F); // the upright picture's horizontal one
        QCOMPARE(platform::ImageSource::open(path)->decode()->horizontalDpi(), 150.0);
        QCOMPARE(platform::ImageSource::open(path)->pointSize(), QSizeF(10 * 72 / 150.0, 20 * 72 / 299.5));
    }

    void countsUnreadableFilesAsZero()
    {
        cMConversion conversion;
        LogCapture log;
        QCOMPARE(conversion.getPictureDPI(QString()), 0.0F);
        QCOMPARE(conversion.getPictureDPI(m_folder.path()), 0.0F);
        for (const expected::Row &row : expected::rows(QStringLiteral("broken/")))
            QVERIFY(
                std::isfinite(conversion.convertXtoPixel(row.path, QStringLiteral("pixel"), QStringLiteral("cm"), 3)));
        QCOMPARE(conversion.getPictureDPI(picturePath("own/broken/zero-byte.jpg")), 0.0F);
        QCOMPARE(log.text(), QByteArray());
    }
};

QUORLIN_TEST(UnitConversion)
#include "tst_unit_conversion.moc"
