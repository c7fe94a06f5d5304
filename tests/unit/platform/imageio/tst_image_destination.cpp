#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <cmath>

using platform::Bitmap;
using platform::ColorModel;
using platform::FileFormat;
using platform::ImageSource;
using platform::Result;

namespace {

Bitmap bitmapOf(const QString &name, platform::Forms forms = platform::Forms::Plain)
{
    const Result<ImageSource> source = ImageSource::open(picturePath(name));
    return source ? source->decode({.forms = forms}).value_or(Bitmap()) : Bitmap();
}

Bitmap through(const Bitmap &bitmap, FileFormat format, const platform::EncodeOptions &options = {},
               platform::Forms forms = platform::Forms::Plain)
{
    const Result<QByteArray> bytes = platform::encodeImage(bitmap, format, options);
    const Result<ImageSource> source = bytes ? ImageSource::fromData(*bytes) : Result<ImageSource>(ImageSource());
    return source ? source->decode({.forms = forms}).value_or(Bitmap()) : Bitmap();
}

/** Mean difference of the screen colours of two bitmaps of one size. */
double difference(const Bitmap &one, const Bitmap &other)
{
    const QImage first = one.toScreenImage().convertToFormat(QImage::Format_RGB32);
    const QImage second = other.toScreenImage().convertToFormat(QImage::Format_RGB32);
    double sum = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
        }
    return sum / (3.0 * first.width() * first.height());
}

const QList<FileFormat> allFormats = {FileFormat::Png, FileFormat::Tiff, FileFormat::Bmp,
                                      FileFormat::Gif, FileFormat::Jpeg, FileFormat::Jpeg2000};

} // namespace

class ImageDestinations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesEveryReadablePictureInEveryFormat_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *folder : {"formats/", "orientation/g4", "orientation/hopper", "orientation/rot",
                                   "orientation/turned", "orientation/container"})
            for (const expected::Row &row : expected::rows(QString::fromLatin1(folder)))
                if (row.isDecodable && row.upright.width() * row.upright.height() < 2'000'000)
                    QTest::newRow(qPrintable(row.name)) << row.path;
    }

    void writesEveryReadablePictureInEveryFormat()
    {
        QFETCH(QString, path);
        const Result<ImageSource> source = ImageSource::open(path);
        if (!source)
            QSKIP("no decoder reads it");
        const Bitmap bitmap = source->decode().value_or(Bitmap());
        QVERIFY(!bitmap.isNull());
        for (const FileFormat format : allFormats) {
            const Bitmap again = through(bitmap, format);
            QVERIFY2(!again.isNull(), qPrintable(QString::number(int(format))));
            QCOMPARE(again.size(), bitmap.size());
        }
    }

    void losesNothingInLosslessFormats_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name :
             picturesThere({"own/formats/rgb16.tif", "own/formats/rgba16.tif", "own/formats/grey-alpha16.png",
                            "own/formats/grey16.png", "own/formats/rgba8.png", "own/formats/grey.jpg",
                            "own/formats/profile.tif", "formats/tiff_16bit_RGB.tiff", "formats/tiff_16bit_RGBa.tiff",
                            "formats/pngsuite-basn4a16.png", "formats/pngsuite-basn0g16.png", "formats/rgba.png",
                            "formats/hopper_gray.jpg", "formats/hopper.iccprofile.tif"}))
            QTest::newRow(qPrintable(name)) << name;
    }

    void losesNothingInLosslessFormats()
    {
        QFETCH(QString, name);
        const Bitmap bitmap = bitmapOf(name);
        for (const FileFormat format : {FileFormat::Png, FileFormat::Tiff}) {
            const Bitmap again = through(bitmap, format);
            QCOMPARE(again.bitsPerComponent(), bitmap.bitsPerComponent());
            QCOMPARE(again.bandCount(), bitmap.bandCount());
            QCOMPARE(again.hasAlpha(), bitmap.hasAlpha());
            QCOMPARE(again.iccProfile(), bitmap.iccProfile());
            QCOMPARE(again.toRawImage(), bitmap.toRawImage());
        }
    }

    void keepsTheProfileWhereTheFormatHoldsOne()
    {
        // The profile of the second one is larger than a segment of a JPEG.
        for (const QString &name : picturesThere({"own/formats/profile.jpg", "formats/icc_profile_big.jpg"})) {
            const Bitmap bitmap = bitmapOf(name);
            QVERIFY(bitmap.iccProfile().size() > (name.startsWith(QLatin1String("own/")) ? 100 : 100'000));
            for (const FileFormat format : {FileFormat::Png, FileFormat::Tiff, FileFormat::Jpeg})
                QCOMPARE(through(bitmap, format).iccProfile(), bitmap.iccProfile());
        }
    }

    void keepsAProfileOfAMatrixInJpeg2000()
    {
        const Bitmap bitmap = bitmapOf(QStringLiteral("own/formats/profile.jpg"));
        QCOMPARE(bitmap.iccProfile().mid(36, 4), QByteArray("acsp"));
        const Bitmap again = through(bitmap, FileFormat::Jpeg2000);
        QCOMPARE(again.iccProfile(), bitmap.iccProfile());
        QVERIFY(difference(bitmap, again) < 2);
    }

    void keepsTheColoursWhereTheFormatHoldsNoProfile_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : picturesThere(
                 {"own/orientation/landscape_2.jpg", "own/formats/cmyk.jpg", "own/formats/ycck.jpg",
                  "own/formats/lab8.tif", "own/formats/cmyk8.tif", "orientation/landscape_2.jpg",
                  "formats/pil_sample_cmyk.jpg", "formats/hopper.Lab.tif", "formats/tiff_strip_cmyk_jpeg.tif"}))
            QTest::newRow(qPrintable(name)) << name;
    }

    void keepsTheColoursWhereTheFormatHoldsNoProfile()
    {
        QFETCH(QString, name);
        const Bitmap bitmap = bitmapOf(name);
        QVERIFY(!bitmap.isNull());
        const Bitmap bmp = through(bitmap, FileFormat::Bmp);
        QVERIFY(bmp.iccProfile().isEmpty());
        QVERIFY(difference(bitmap, bmp) < 1);
        QVERIFY(difference(bitmap, through(bitmap, FileFormat::Png)) < 1);
        QVERIFY(difference(bitmap, through(bitmap, FileFormat::Jpeg2000)) < 2);
    }

    void keepsInksWhereTheFormatHoldsThem()
    {
        const Bitmap bitmap = bitmapOf(QStringLiteral("own/formats/cmyk.jpg"));
        QCOMPARE(int(bitmap.colorModel()), int(ColorModel::Cmyk));
        for (const FileFormat format : {FileFormat::Jpeg, FileFormat::Tiff}) {
            const Bitmap again = through(bitmap, format);
            QCOMPARE(int(again.colorModel()), int(ColorModel::Cmyk));
            QVERIFY(difference(bitmap, again) < 2);
        }
        QCOMPARE(int(through(bitmap, FileFormat::Png).colorModel()), int(ColorModel::Rgb));
    }

    void keepsLabInATiffThatOthersCanRead()
    {
        const Bitmap bitmap = bitmapOf(QStringLiteral("own/formats/lab8.tif"), platform::Forms::AsTiffHolds);
        QCOMPARE(int(bitmap.colorModel()), int(ColorModel::Lab));
        const Bitmap again = through(bitmap, FileFormat::Tiff, {}, platform::Forms::AsTiffHolds);
        QCOMPARE(int(again.colorModel()), int(ColorModel::Lab));
        QVERIFY(difference(bitmap, again) < 0.5);
        const QByteArray file = platform::encodeImage(bitmap, FileFormat::Tiff).value_or(QByteArray());
        constexpr qsizetype threeBytesAPixel = 60 * 40 * 3;
        QVERIFY(file.size() > threeBytesAPixel && file.size() < threeBytesAPixel + 4000);
    }

    void keepsTheQuantisationOfAJpegUnlessAQualityIsNamed()
    {
        const Bitmap bitmap = bitmapOf(QStringLiteral("own/metadata/no-metadata.jpg"));
        const Bitmap again = through(bitmap, FileFormat::Jpeg);
        QVERIFY(bitmap.jpegQuantisation().has_value() && again.jpegQuantisation().has_value());
        QCOMPARE(again.jpegQuantisation()->tables[0], bitmap.jpegQuantisation()->tables[0]);
        QCOMPARE(again.jpegQuantisation()->horizontalSampling, bitmap.jpegQuantisation()->horizontalSampling);
        platform::EncodeOptions coarse;
        coarse.lossyQuality = 0.1;
        QVERIFY(through(bitmap, FileFormat::Jpeg, coarse).jpegQuantisation()->tables[0] !=
                bitmap.jpegQuantisation()->tables[0]);
    }

    void writesTheResolutionWhenAsked()
    {
        const Bitmap bitmap = bitmapOf(QStringLiteral("own/dpi/jfif-300dpi.jpg"));
        QCOMPARE(bitmap.horizontalDpi(), 300.0);
        platform::EncodeOptions withResolution;
        withResolution.resolution = platform::WriteResolution::Yes;
        for (const FileFormat format : {FileFormat::Png, FileFormat::Tiff, FileFormat::Jpeg, FileFormat::Bmp}) {
            QCOMPARE(std::lround(through(bitmap, format, withResolution).horizontalDpi()), 300L);
            QCOMPARE(std::lround(through(bitmap, format).horizontalDpi()), 72L);
        }
    }

    void looksLikeTheSourceInEveryFormat()
    {
        const Bitmap bitmap = bitmapOf(QStringLiteral("own/formats/profile.jpg"));
        const QList<QPair<FileFormat, double>> most = {{FileFormat::Png, 0.0},      {FileFormat::Tiff, 0.0},
                                                       {FileFormat::Bmp, 1.0},      {FileFormat::Jpeg, 1.5},
                                                       {FileFormat::Jpeg2000, 2.0}, {FileFormat::Gif, 8.0}};
        for (const auto &[format, limit] : most) {
            const double measured = difference(bitmap, through(bitmap, format));
            QVERIFY2(measured <= limit, qPrintable(QStringLiteral("%1: %2").arg(int(format)).arg(measured)));
        }
    }

    void failsForNoPicture() { QVERIFY(!platform::encodeImage(Bitmap(), FileFormat::Png).has_value()); }
};

QUORLIN_TEST(ImageDestinations)
#include "tst_image_destination.moc"
