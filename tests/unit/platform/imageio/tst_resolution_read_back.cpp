#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/test_program.h"

#include <QImage>
#include <QTest>

#include <cmath>

using platform::Bitmap;
using platform::FileFormat;
using platform::ImageSource;

Q_DECLARE_METATYPE(platform::FileFormat)

/** The resolution that is written into a file is the one that is read from it. */
class ResolutionReadBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheOneThatWasAskedFor_data();
    void isTheOneThatWasAskedFor();
    void isThatOfThePixels_data() { isTheOneThatWasAskedFor_data(); }
    void isThatOfThePixels();
};

namespace {

struct Dpi
{
    double across = 0;
    double down = 0;
};

/** What a file states; nothing where it cannot be read. */
Dpi statedIn(const platform::Result<QByteArray> &file)
{
    const auto bitmap = file.and_then([](const QByteArray &bytes) { return ImageSource::fromData(bytes); })
                            .and_then([](const ImageSource &source) { return source.decode(); });
    return bitmap ? Dpi{bitmap->horizontalDpi(), bitmap->verticalDpi()} : Dpi();
}

platform::EncodeOptions options()
{
    platform::EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    options.carried = platform::Carried::Everything;
    return options;
}

Bitmap picture()
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(QColor(120, 60, 30));
    return Bitmap::fromImage(image);
}

QByteArray told(double dpi, const Dpi &found)
{
    return QByteArray::number(dpi) + " became " + QByteArray::number(found.across) + " and " +
           QByteArray::number(found.down);
}

} // namespace

void ResolutionReadBack::isTheOneThatWasAskedFor_data()
{
    QTest::addColumn<FileFormat>("format");
    QTest::newRow("jpeg") << FileFormat::Jpeg;
    QTest::newRow("png") << FileFormat::Png;
    QTest::newRow("tiff") << FileFormat::Tiff;
    QTest::newRow("bmp") << FileFormat::Bmp;
    QTest::newRow("gif") << FileFormat::Gif;
    QTest::newRow("jp2") << FileFormat::Jpeg2000;
    QTest::newRow("webp") << FileFormat::Webp;
    QTest::newRow("avif") << FileFormat::Avif;
    QTest::newRow("jxl") << FileFormat::JpegXl;
}

void ResolutionReadBack::isTheOneThatWasAskedFor()
{
    QFETCH(FileFormat, format);
    for (const double dpi : {1.0, 72.0, 96.5, 118.11, 150.0, 300.0, 1270.0, 10'000.0}) {
        platform::EncodeOptions asked = options();
        asked.dpi = dpi;
        const Dpi found = statedIn(platform::encodeImage(picture(), format, asked));
        constexpr double ofAMetre = 0.013; // half a dot per metre, which is what some files count in
        QVERIFY2(std::abs(found.across - dpi) <= ofAMetre && std::abs(found.down - dpi) <= ofAMetre, told(dpi, found));
    }
}

void ResolutionReadBack::isThatOfThePixels()
{
    QFETCH(FileFormat, format);
    const Dpi found = statedIn(platform::encodeImage(picture().withDpi(300, 150), format, options()));
    constexpr double ofAMetre = 0.013;
    QVERIFY2(std::abs(found.across - 300) <= ofAMetre && std::abs(found.down - 150) <= ofAMetre, told(300, found));
}

QUORLIN_TEST(ResolutionReadBack)
#include "tst_resolution_read_back.moc"
