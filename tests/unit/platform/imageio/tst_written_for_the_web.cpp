// WebP, AVIF and JPEG XL, and what every lossy type is asked for: quality, no loss at all, a colour under transparency.

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/formats/encoding_memory.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/formats/type_identifiers.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QColorSpace>
#include <QTest>

#include <cmath>

using namespace platform;

Q_DECLARE_METATYPE(platform::FileFormat)

namespace {

/** Soft colours with some grain, as photographs have. */
QImage photograph(QSize size, QImage::Format format = QImage::Format_RGB888)
{
    QImage image(size, format);
    quint32 noise = 1;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            noise = noise * 1664525 + 1013904223;
            const int grain = int(noise >> 28) - 8;
            const auto level = [&](double wave) { return std::clamp(int(128 + 100 * std::sin(wave)) + grain, 0, 255); };
            image.setPixelColor(x, y, QColor(level(x / 23.0), level(y / 17.0 + 1), level((x + y) / 31.0 + 2)));
        }
    return image;
}

/** Grain in all samples, by whole bytes: for large pictures. */
QImage quickPhotograph(QSize size, QImage::Format format)
{
    QImage image(size, format);
    quint32 noise = 1;
    for (int y = 0; y < size.height(); ++y) {
        uchar *row = image.scanLine(y);
        for (qsizetype i = 0; i < image.bytesPerLine(); ++i) {
            noise = noise * 1664525 + 1013904223;
            row[i] = uchar((i / 64 + y / 16) % 200 + (noise >> 27));
        }
    }
    // What is without a meaning has one value.
    return format == QImage::Format_RGBX64 ? image.convertToFormat(QImage::Format_RGBA64).convertToFormat(format)
                                           : image;
}

double meanDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 255;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y);
            const QColor other = b.pixelColor(x, y);
            sum += std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
                   std::abs(one.blue() - other.blue());
        }
    return sum / 3 / a.width() / a.height();
}

QImage readAgain(const QByteArray &file)
{
    const auto bitmap = ImageSource::fromData(file).and_then([](const ImageSource &source) { return source.decode(); });
    return bitmap ? bitmap->toRawImage() : QImage();
}

QByteArray encoded(const QImage &image, FileFormat format, const EncodeOptions &options = {})
{
    const auto file = encodeImage(Bitmap::fromImage(image), format, options);
    if (!file)
        qWarning("%s", qPrintable(file.error().message));
    return file.value_or(QByteArray());
}

Bitmap withProfile(const QImage &image, const QColorSpace &space)
{
    QImage tagged = image;
    tagged.setColorSpace(space);
    QBuffer file;
    if (!file.open(QIODevice::WriteOnly) || !tagged.save(&file, "PNG"))
        return {};
    return ImageSource::fromData(file.data())
        .and_then([](const ImageSource &source) { return source.decode(); })
        .value_or(Bitmap());
}

} // namespace

class WrittenForTheWeb : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsTheSamePicture_data()
    {
        QTest::addColumn<FileFormat>("format");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("type");
        for (const QSize size : {QSize(1, 1), QSize(41, 31), QSize(300, 200)}) {
            const QByteArray name = QByteArray::number(size.width());
            QTest::newRow(QByteArray("webp " + name).constData()) << FileFormat::Webp << size << "org.webmproject.webp";
            QTest::newRow(QByteArray("avif " + name).constData()) << FileFormat::Avif << size << "public.avif";
            QTest::newRow(QByteArray("jxl " + name).constData()) << FileFormat::JpegXl << size << "public.jpeg-xl";
        }
    }

    void comesBackAsTheSamePicture()
    {
        QFETCH(const FileFormat, format);
        QFETCH(const QSize, size);
        QFETCH(const QString, type);
        const QImage image = photograph(size);
        const QByteArray file = encoded(image, format, {.quality = 95});
        const auto source = ImageSource::fromData(file);
        QVERIFY2(source, source ? "" : qPrintable(source.error().message));
        QCOMPARE(source->typeIdentifier(), type);
        QCOMPARE(source->storedSize(), size);
        QCOMPARE(source->orientation(), 1);
        constexpr double most = 4;
        const double difference = meanDifference(readAgain(file), image);
        QVERIFY2(difference < most, qPrintable(QString::number(difference)));
    }

    void isSmallerAndFurtherAwayTheLowerItsQualityIs_data()
    {
        QTest::addColumn<FileFormat>("format");
        QTest::newRow("jpeg") << FileFormat::Jpeg;
        QTest::newRow("webp") << FileFormat::Webp;
        QTest::newRow("avif") << FileFormat::Avif;
        QTest::newRow("jxl") << FileFormat::JpegXl;
        QTest::newRow("jp2") << FileFormat::Jpeg2000;
    }

    void isSmallerAndFurtherAwayTheLowerItsQualityIs()
    {
        QFETCH(const FileFormat, format);
        const QImage image = photograph({400, 300});
        qsizetype bytes = 0;
        double difference = 255;
        for (const int quality : {1, 25, 50, 75, 95}) {
            const QByteArray file = encoded(image, format, {.quality = quality});
            const double now = meanDifference(readAgain(file), image);
            QVERIFY2(file.size() > bytes, qPrintable(QString::number(quality)));
            QVERIFY2(now < difference, qPrintable(QStringLiteral("%1: %2, %3").arg(quality).arg(now).arg(difference)));
            bytes = file.size();
            difference = now;
        }
    }

    /** One number means about the same in all types: none is much further away than the JPEG. */
    void isAsNearAsAJpegOfTheSameQuality()
    {
        const QImage image = photograph({400, 300});
        for (const int quality : {30, 60, 85}) {
            const double jpeg =
                meanDifference(readAgain(encoded(image, FileFormat::Jpeg, {.quality = quality})), image);
            for (const FileFormat format :
                 {FileFormat::Webp, FileFormat::Avif, FileFormat::JpegXl, FileFormat::Jpeg2000}) {
                const double own = meanDifference(readAgain(encoded(image, format, {.quality = quality})), image);
                QVERIFY2(
                    own < 1.5 * jpeg + 0.5,
                    qPrintable(
                        QStringLiteral("%1, type %2: %3 against %4").arg(quality).arg(int(format)).arg(own).arg(jpeg)));
            }
        }
    }

    void losesNothingWhereThatIsAsked_data()
    {
        QTest::addColumn<FileFormat>("format");
        QTest::addColumn<QImage>("image");
        for (const auto &[name, format] :
             {std::pair(QByteArray("webp"), FileFormat::Webp), std::pair(QByteArray("jxl"), FileFormat::JpegXl),
              std::pair(QByteArray("jp2"), FileFormat::Jpeg2000)}) {
            QTest::newRow(name.constData()) << format << photograph({301, 203});
            QImage alpha = photograph({300, 260}).convertToFormat(QImage::Format_RGBA8888);
            for (int x = 0; x < alpha.width(); ++x)
                alpha.setPixelColor(x, x % 260, QColor(10, 20, 30, x % 254 + 1));
            QTest::newRow(QByteArray(name + " alpha").constData()) << format << alpha;
            if (format != FileFormat::Webp) {
                QImage deep = photograph({300, 260}).convertToFormat(QImage::Format_RGBX64);
                for (int x = 0; x < deep.width(); ++x)
                    deep.setPixelColor(x, 7, QColor::fromRgba64(quint16(x * 217), quint16(65535 - x), 12345));
                QTest::newRow(QByteArray(name + " deep").constData()) << format << deep;
            }
        }
    }

    void losesNothingWhereThatIsAsked()
    {
        QFETCH(const FileFormat, format);
        QFETCH(const QImage, image);
        const QByteArray file = encoded(image, format, {.isLossless = true});
        const QImage again = readAgain(file);
        QCOMPARE(again.size(), image.size());
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (again.pixelColor(x, y).rgba64() != image.pixelColor(x, y).rgba64())
                    QFAIL(qPrintable(QStringLiteral("%1, %2: %3 is %4")
                                         .arg(x)
                                         .arg(y)
                                         .arg(image.pixelColor(x, y).name(QColor::HexArgb),
                                              again.pixelColor(x, y).name(QColor::HexArgb))));
    }

    /** A large JPEG XL consists of several frames, which are one picture to every reader. */
    void isOnePictureWhereEncodingItTakesSeveralFrames_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<QSize>("size");
        QTest::newRow("grey") << QImage::Format_Grayscale8 << QSize(3500, 3300);
        QTest::newRow("colours") << QImage::Format_RGB888 << QSize(3000, 2400);
        QTest::newRow("transparency") << QImage::Format_RGBA8888 << QSize(2500, 2100);
        QTest::newRow("16 bits") << QImage::Format_RGBX64 << QSize(3000, 2305);
    }

    void isOnePictureWhereEncodingItTakesSeveralFrames()
    {
        QFETCH(const QImage::Format, format);
        QFETCH(const QSize, size);
        const QImage image = quickPhotograph(size, format);
        const int bands = format == QImage::Format_Grayscale8 ? 1 : image.hasAlphaChannel() ? 4 : 3;
        QVERIFY(jpegXlRowsAtOnce(size, bands, true) < size.height());
        const QByteArray file = encoded(image, FileFormat::JpegXl, {.isLossless = true});
        const auto source = ImageSource::fromData(file);
        QVERIFY(source);
        QCOMPARE(source->storedSize(), size);
        QCOMPARE(source->imageCount(), 1);
        QVERIFY(readAgain(file).convertToFormat(format) == image);
        QVERIFY(readAgain(file.left(file.size() * 4 / 5)).isNull());
        QCOMPARE(encoded(image, FileFormat::JpegXl, {.isLossless = true}), file);
    }

    void framesNeverTakeMoreMemoryThanOneMay()
    {
        constexpr qint64 most = 700'000'000;
        for (const QSize size : {QSize(6364, 4243), QSize(20'000, 5000), QSize(300, 90'000), QSize(60'000, 2000)})
            for (const int bands : {1, 2, 3, 4}) {
                const QSize frame = {size.width(), jpegXlRowsAtOnce(size, bands, true)};
                QVERIFY(frame.height() >= 64);
                QVERIFY(memoryOfEncoding(FileFormat::JpegXl, frame, bands, 1, true) < most);
            }
        // Where something is lost anyway, all is one frame as long as there is room.
        QCOMPARE(jpegXlRowsAtOnce({6364, 4243}, 3, false), 4243);
        QVERIFY(jpegXlRowsAtOnce({6364, 4243}, 4, false) < 4243);
    }

    void keepsTransparencyAndProfile_data()
    {
        QTest::addColumn<FileFormat>("format");
        QTest::newRow("webp") << FileFormat::Webp;
        QTest::newRow("avif") << FileFormat::Avif;
        QTest::newRow("jxl") << FileFormat::JpegXl;
    }

    void keepsTransparencyAndProfile()
    {
        QFETCH(const FileFormat, format);
        QImage image(64, 48, QImage::Format_RGBA8888);
        image.fill(QColor(200, 100, 50, 128));
        const Bitmap bitmap = withProfile(image, QColorSpace(QColorSpace::AdobeRgb));
        QVERIFY(!bitmap.iccProfile().isEmpty());
        const auto file = encodeImage(bitmap, format, {.quality = 95});
        QVERIFY(file);
        const auto again =
            ImageSource::fromData(*file).and_then([](const ImageSource &source) { return source.decode(); });
        QVERIFY(again);
        if (format == FileFormat::JpegXl) // a lossy file has an equivalent profile
            QVERIFY(!again->iccProfile().isEmpty());
        else
            QCOMPARE(again->iccProfile(), bitmap.iccProfile());
        const QColor before = bitmap.toScreenImage().pixelColor(30, 20);
        const QColor after = again->toScreenImage().pixelColor(30, 20);
        QVERIFY2(std::abs(before.red() - after.red()) < 4 && std::abs(before.green() - after.green()) < 4 &&
                     std::abs(before.blue() - after.blue()) < 4,
                 qPrintable(before.name() + after.name()));
        QVERIFY(again->hasAlpha());
        const int alpha = again->pixel(30, 20)[3];
        QVERIFY2(std::abs(alpha - 128) < 4, qPrintable(QString::number(alpha)));
    }

    void keepsTheVeryProfileWhereNothingIsLost()
    {
        const Bitmap bitmap = withProfile(photograph({50, 40}), QColorSpace(QColorSpace::ProPhotoRgb));
        for (const FileFormat format : {FileFormat::Webp, FileFormat::JpegXl}) {
            const auto file = encodeImage(bitmap, format, {.isLossless = true});
            const auto again = file.and_then([](const QByteArray &bytes) { return ImageSource::fromData(bytes); });
            QVERIFY(again);
            QCOMPARE(again->iccProfile(), bitmap.iccProfile());
        }
    }

    /** A profile of grey would be wrong beside three colours. */
    void convertsGreyWithAProfileWhereThereIsNoGrey()
    {
        QImage image(64, 48, QImage::Format_Grayscale8);
        image.fill(100);
        for (const FileFormat format : {FileFormat::Webp, FileFormat::Avif, FileFormat::JpegXl}) {
            const QByteArray file = encoded(image, format, {.quality = 95});
            const auto again =
                ImageSource::fromData(file).and_then([](const ImageSource &source) { return source.decode(); });
            QVERIFY(again);
            QCOMPARE(again->colorModel() == ColorModel::Gray, format == FileFormat::JpegXl);
            const auto pixel = again->pixel(3, 3);
            QVERIFY2(std::abs(pixel[0] - 100) < 3 && std::abs(pixel[2] - 100) < 3,
                     qPrintable(QString::number(pixel[0])));
            QVERIFY(again->iccProfile().isEmpty() || again->iccProfile().mid(16, 4) != "GRAY" ||
                    format == FileFormat::JpegXl);
        }
    }

    void givesTheSameBytesEveryTime()
    {
        const QImage image = photograph({700, 500});
        for (const FileFormat format : {FileFormat::Webp, FileFormat::Avif, FileFormat::JpegXl, FileFormat::Jpeg2000})
            QVERIFY(encoded(image, format, {.quality = 70}) == encoded(image, format, {.quality = 70}));
    }

    void laysTransparentPartsOnTheMatte()
    {
        QImage image(32, 32, QImage::Format_RGBA8888);
        image.fill(QColor(0, 0, 0, 0));
        for (const FileFormat format : {FileFormat::Jpeg, FileFormat::Bmp}) {
            const auto colourWith = [&](const EncodeOptions &options) {
                return readAgain(encoded(image, format, options)).pixelColor(9, 9);
            };
            QCOMPARE(colourWith({}), QColor(0, 0, 0));
            QCOMPARE(colourWith({.quality = 100, .matte = QColor(Qt::white)}), QColor(Qt::white));
            const QColor made = colourWith({.quality = 100, .matte = QColor(250, 128, 20)});
            QVERIFY2(std::abs(made.red() - 250) < 3 && std::abs(made.green() - 128) < 3 &&
                         std::abs(made.blue() - 20) < 3,
                     qPrintable(made.name()));
        }
        const QColor kept = readAgain(encoded(image, FileFormat::Png, {.matte = QColor(Qt::white)})).pixelColor(9, 9);
        QCOMPARE(kept.alpha(), 0);
    }

    /** The matte is stated in sRGB, whatever the picture's colours are. */
    void bringsTheMatteIntoTheColoursOfThePicture()
    {
        QImage image(32, 32, QImage::Format_RGBA8888);
        image.fill(QColor(0, 0, 0, 0));
        const Bitmap bitmap = withProfile(image, QColorSpace(QColorSpace::AdobeRgb));
        const auto file = encodeImage(bitmap, FileFormat::Jpeg, {.quality = 100, .matte = QColor(200, 40, 40)});
        QVERIFY(file);
        const auto again =
            ImageSource::fromData(*file).and_then([](const ImageSource &source) { return source.decode(); });
        QVERIFY(again && !again->iccProfile().isEmpty());
        const QColor shown = again->toScreenImage().pixelColor(5, 5);
        QVERIFY2(std::abs(shown.red() - 200) < 4 && std::abs(shown.green() - 40) < 5, qPrintable(shown.name()));
        QVERIFY(again->pixel(5, 5)[0] < 190); // less red is needed of a stronger one
    }

    void refusesAPictureThatIsTooLongForWebp()
    {
        const auto file = encodeImage(Bitmap::fromImage(QImage(16384, 1, QImage::Format_RGB888)), FileFormat::Webp);
        QVERIFY(!file);
        QCOMPARE(file.error().code, ErrorCode::TooLarge);
        QVERIFY2(file.error().message.contains(QStringLiteral("16383")), qPrintable(file.error().message));
    }

    void isNoTypeOfTheServices()
    {
        for (const char *extension : {"webp", "avif", "jxl"}) {
            const QString type = typeIdentifierForExtension(QString::fromLatin1(extension));
            QVERIFY(!fileFormatForType(type));
            QVERIFY(writableFormatForType(type));
        }
        QCOMPARE(writableFormatForType(QStringLiteral("public.png")), FileFormat::Png);
        QVERIFY(!writableFormatForType(QStringLiteral("com.adobe.pdf")));
    }
};

QUORLIN_TEST(WrittenForTheWeb)
#include "tst_written_for_the_web.moc"
