#include "platform/imageio/convert/jpeg_straight.h"
#include "platform/imageio/convert/png_from_jpeg.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

using platform::FileFormat;
using platform::ImageSource;
using platform::Metadata;

namespace {

QString dataFile(const char *name)
{
    return QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromUtf8(name);
}

/** The bytes of the file that is made by decoding into memory and encoding that. */
QByteArray encoded(const ImageSource &source, FileFormat format, platform::Orientation orientation)
{
    platform::EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    const auto bitmap = source.decode({0, orientation});
    return bitmap ? platform::encodeImage(*bitmap, format, options).value_or(QByteArray()) : QByteArray();
}

} // namespace

/** JPEGs that go into uncompressed files row by row. */
class JpegStraight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<ScratchFolder>(); }
    void makesTheSameFiles_data();
    void makesTheSameFiles();
    void makesTheSameFilesOfCameras_data();
    void makesTheSameFilesOfCameras();
    void makesTheSamePngsOfAnySize();
    void leavesDamagedScansToTheOtherWay();
    void tellsWhatCannotBeWritten();

private:
    QString at(const char *name) const { return m_home->path(name); }
    std::unique_ptr<ScratchFolder> m_home;
};

void JpegStraight::makesTheSameFiles_data()
{
    QTest::addColumn<bool>("goes");
    for (const char *name : {"grey.jpg", "odd-size.jpg", "progressive.jpg", "restart-markers.jpg", "arithmetic.jpg",
                             "rgb-without-conversion.jpg", "sampled-3x1.jpg", "sampled-411.jpg", "sampled-420.jpg",
                             "sampled-422.jpg", "sampled-440.jpg", "sampled-444.jpg"})
        QTest::newRow(name) << true;
    QTest::newRow("cmyk-adobe.jpg") << false;
}

void JpegStraight::makesTheSameFiles()
{
    QFETCH(bool, goes);
    const auto source = ImageSource::open(dataFile(QTest::currentDataTag()));
    QVERIFY(source);
    QCOMPARE(writeRowsAsBmp(*source, at("made.bmp")).value(), goes);
    QCOMPARE(writeRowsAsTiff(*source, at("made.tif"), Metadata()).value(), goes);
    QCOMPARE(m_home->names().size(), goes ? 2 : 0);
    const auto png = platform::rowsAsPng(*source);
    QVERIFY(!png || *png == encoded(*source, FileFormat::Png, platform::Orientation::AsStored));
    if (!goes)
        return;
    QVERIFY(m_home->read("made.bmp") == encoded(*source, FileFormat::Bmp, platform::Orientation::Upright));
    QVERIFY(m_home->read("made.tif") == encoded(*source, FileFormat::Tiff, platform::Orientation::AsStored));
}

void JpegStraight::makesTheSameFilesOfCameras_data()
{
    QTest::addColumn<QString>("path");
    constexpr int mostPixels = 4'000'000;
    for (const expected::Row &row : expected::rows())
        if (row.format == QLatin1String("JPEG") && row.isDecodable &&
            row.stored.width() * row.stored.height() < mostPixels)
            QTest::newRow(qPrintable(row.name)) << row.path;
}

/** With all their metadata, in either byte order, and turned pictures as they are stored. */
void JpegStraight::makesTheSameFilesOfCameras()
{
    QFETCH(QString, path);
    const auto source = ImageSource::open(path);
    if (!source)
        QSKIP("no decoder reads it");
    const Metadata metadata = source->metadata()->withOrientation(source->orientation());
    const bool isTiff = writeRowsAsTiff(*source, at("made.tif"), metadata).value();
    if (isTiff) {
        const QByteArray plain = encoded(*source, FileFormat::Tiff, platform::Orientation::AsStored);
        QVERIFY(m_home->read("made.tif") == metadata.writtenInto(plain).value());
    }
    const bool isBmp = writeRowsAsBmp(*source, at("made.bmp")).value();
    QVERIFY(!isBmp || source->orientation() == 1);
    if (isBmp)
        QVERIFY(m_home->read("made.bmp") == encoded(*source, FileFormat::Bmp, platform::Orientation::Upright));
    QCOMPARE(m_home->names().size(), int(isTiff) + int(isBmp));
    const auto png = platform::rowsAsPng(*source);
    QVERIFY(!png || *png == encoded(*source, FileFormat::Png, platform::Orientation::AsStored));
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    QVERIFY(png || name != QLatin1String("exif-real/Canon_40D.jpg"));
    const bool isPlainPhotograph = name == QLatin1String("exif-real/Canon_40D.jpg"); // sRGB by its profile, upright
    QVERIFY(!isPlainPhotograph || (isTiff && isBmp));
    const bool hasOtherColours = name == QLatin1String("exif-real/Reagan.jpg");
    QVERIFY(!hasOtherColours || (isTiff && !isBmp));
}

void JpegStraight::makesTheSamePngsOfAnySize()
{
    QRandomGenerator random(63);
    for (int i = 0; i < tests::repetitions(20, 500); ++i) {
        QImage image(random.bounded(1, 400), random.bounded(1, 300),
                     i % 4 == 0 ? QImage::Format_Grayscale8 : QImage::Format_RGB888);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.bytesPerLine(); ++x)
                image.scanLine(y)[x] = uchar((x * 3 + y * 5) / 7 + random.bounded(20));
        platform::EncodeOptions options;
        options.quality = i % 2 == 0 ? 80 : 95;
        const auto jpeg = platform::encodeImage(platform::Bitmap::fromImage(image), FileFormat::Jpeg, options);
        QVERIFY(jpeg);
        const auto source = ImageSource::fromData(*jpeg);
        QVERIFY(source);
        const auto png = platform::rowsAsPng(*source);
        QVERIFY(png);
        QVERIFY(*png == encoded(*source, FileFormat::Png, platform::Orientation::AsStored));
    }
}

void JpegStraight::leavesDamagedScansToTheOtherWay()
{
    QByteArray jpeg = pictures::bytesOf(dataFile("restart-markers.jpg"));
    const qsizetype mark = jpeg.indexOf("\xff\xd0");
    QVERIFY(mark > 0);
    jpeg[mark + 1] = '\xd5'; // a mark out of turn, about which the decoder only warns
    const auto source = ImageSource::fromData(jpeg);
    QVERIFY(source);
    QVERIFY(!platform::rowsAsPng(*source));
    QCOMPARE(writeRowsAsBmp(*source, at("made.bmp")).value(), false);
    QCOMPARE(writeRowsAsTiff(*source, at("made.tif"), *source->metadata()).value(), false);
    QCOMPARE(m_home->names(), QStringList());
}

void JpegStraight::tellsWhatCannotBeWritten()
{
    const auto source = ImageSource::open(dataFile("sampled-420.jpg"));
    QVERIFY(source);
    const auto bmp = writeRowsAsBmp(*source, at("nowhere/made.bmp"));
    QVERIFY(!bmp && bmp.error().code == platform::ErrorCode::WriteFailed);
    const auto tiff = writeRowsAsTiff(*source, at("nowhere/made.tif"), Metadata());
    QVERIFY(!tiff && tiff.error().code == platform::ErrorCode::WriteFailed);
    QVERIFY(bmp.error().message.contains(at("nowhere/made.bmp")));
}

QUORLIN_TEST(JpegStraight)
#include "tst_jpeg_straight.moc"
