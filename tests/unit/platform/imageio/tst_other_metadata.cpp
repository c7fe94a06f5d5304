// Files whose metadata changes while no pixel is encoded again, and what accompanies the picture in a file.

#include "platform/imageio/convert/other_metadata.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/parts/boxes.h"
#include "platform/imageio/png/png_chunks.h"
#include "tests/support/test_program.h"

#include <QImage>
#include <QTest>

using namespace platform;

Q_DECLARE_METATYPE(platform::FileFormat)

namespace {

Bitmap pixels()
{
    QImage image(48, 32, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 5, y * 7, 60));
    return Bitmap::fromImage(image);
}

QByteArray packetWith(const QByteArray &properties)
{
    return R"(<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">)"
           R"(<rdf:Description rdf:about="" xmlns:xmp="http://ns.adobe.com/xap/1.0/" )"
           R"(xmlns:photoshop="http://ns.adobe.com/photoshop/1.0/" xmlns:dc="http://purl.org/dc/elements/1.1/" )"
           R"(xmlns:hdrgm="http://ns.adobe.com/hdr-gain-map/1.0/" )"
           R"(xmlns:GCamera="http://ns.google.com/photos/1.0/camera/" )" +
           properties + R"(/></rdf:RDF></x:xmpmeta>)";
}

Metadata full()
{
    return Metadata::fromBlocks({}, packetWith(R"(xmp:Rating="5" photoshop:City="Hamburg" photoshop:Headline="Boat")"));
}

QByteArray fileOf(FileFormat format, const Metadata &metadata = full(), std::optional<double> dpi = 144)
{
    EncodeOptions options;
    options.metadata = metadata;
    options.carried = Carried::Everything;
    options.dpi = dpi;
    return encodeImage(pixels(), format, options).value_or(QByteArray());
}

QImage imageIn(const QByteArray &file)
{
    return ImageSource::fromData(file)
        .and_then([](const ImageSource &source) { return source.decode(); })
        .map([](const Bitmap &bitmap) { return bitmap.toRawImage(); })
        .value_or(QImage());
}

double dpiOf(const QByteArray &file)
{
    const auto source = ImageSource::fromData(file);
    return source ? source->properties().value_or(QVariantMap()).value(QStringLiteral("DPIWidth")).toDouble() : 0;
}

QByteArray behindTheStart(const QByteArray &jpeg, uchar marker, const QByteArray &payload)
{
    const auto length = quint16(payload.size() + 2);
    QByteArray file = jpeg;
    return file.insert(2, QByteArray("\xff", 1) + char(marker) + char(length >> 8) + char(length & 0xff) + payload);
}

PartsBeside partsOf(const QByteArray &file)
{
    const auto source = ImageSource::fromData(file);
    return source ? partsBesideOf(*source) : PartsBeside();
}

} // namespace

class OtherMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesNoPixel_data()
    {
        QTest::addColumn<FileFormat>("format");
        QTest::newRow("jpeg") << FileFormat::Jpeg;
        QTest::newRow("png") << FileFormat::Png;
        QTest::newRow("webp") << FileFormat::Webp;
        QTest::newRow("gif") << FileFormat::Gif;
        QTest::newRow("jp2") << FileFormat::Jpeg2000;
        QTest::newRow("jxl") << FileFormat::JpegXl;
    }

    void changesNoPixel()
    {
        QFETCH(const FileFormat, format);
        const QByteArray before = fileOf(format);
        QVERIFY(before.contains("Hamburg"));
        const bool opensWithMore = format != FileFormat::Jpeg2000; // whose chain of boxes must be complete
        const auto source = ImageSource::fromData(opensWithMore ? before + "rubbish behind the end" : before);
        QVERIFY(source);
        const Metadata known = source->metadata().value();
        const auto checked = [&](const Metadata &metadata, std::optional<double> dpi = {}) {
            const QByteArray after = withOtherMetadata(*source, metadata, dpi).value_or(QByteArray());
            return imageIn(after) == imageIn(before) && !after.contains("rubbish") ? after : QByteArray();
        };
        const QByteArray none = checked(known.reduced(MetadataScope::None));
        QVERIFY(!none.isEmpty() && !none.contains("Hamburg") && !none.contains("Boat") && !none.contains("Rating"));
        const QByteArray authorship = checked(known.reduced(MetadataScope::Copyright));
        QVERIFY(authorship.contains("Boat") && !authorship.contains("Hamburg") && !authorship.contains("Rating"));
        const QByteArray placeless = checked(known.reduced(MetadataScope::All, PlaceTaken::Drop));
        QVERIFY(placeless.contains("Boat") && placeless.contains("Rating") && !placeless.contains("Hamburg"));
        if (format == FileFormat::Gif)
            return;
        for (const QByteArray &file : {none, authorship, placeless})
            QVERIFY2(std::abs(dpiOf(file) - 144) < 0.1, qPrintable(QString::number(dpiOf(file))));
        const QByteArray finer = checked(known, 300);
        QVERIFY(finer.contains("Hamburg"));
        QVERIFY2(std::abs(dpiOf(finer) - 300) < 0.1, qPrintable(QString::number(dpiOf(finer))));
    }

    void isNotDoneForOtherTypes()
    {
        for (const FileFormat format : {FileFormat::Tiff, FileFormat::Bmp, FileFormat::Avif}) {
            const auto source = ImageSource::fromData(fileOf(format));
            QVERIFY(source);
            QVERIFY(!withOtherMetadata(*source, Metadata()));
        }
        QVERIFY(!withOtherMetadata(ImageSource(), Metadata()));
    }

    void keepsColoursOfAPngWhereTheyStand()
    {
        QByteArray png = fileOf(FileFormat::Png);
        QByteArray gamma;
        appendPngChunk(gamma, "gAMA", QByteArray::fromHex("0000b18f"));
        png.insert(33, gamma);
        const auto source = ImageSource::fromData(png);
        const QByteArray after =
            withOtherMetadata(*source, source->metadata().value().reduced(MetadataScope::None)).value_or(QByteArray());
        QCOMPARE(after.count("gAMA"), 1);
        QCOMPARE(after.count("pHYs"), 1);
    }

    void tellsWhatLiesBesideThePicture()
    {
        const QByteArray jpeg = fileOf(FileFormat::Jpeg);
        QCOMPARE(partsOf(jpeg), PartsBeside());
        QCOMPARE(partsOf(jpeg + "more"), PartsBeside(PartBeside::BehindTheEnd));
        QCOMPARE(partsOf(behindTheStart(jpeg, 0xe2, QByteArray("MPF\0II*\0\x08\0\0\0\0\0", 14)) + jpeg),
                 PartBeside::FurtherPictures | PartBeside::BehindTheEnd);
        QCOMPARE(partsOf(behindTheStart(jpeg, 0xeb, QByteArray("JP\0\1\0\0\0\1", 8))),
                 PartsBeside(PartBeside::Credentials));
        QCOMPARE(partsOf(behindTheStart(jpeg, 0xe1, "FLIR\0\1\0\0")), PartsBeside(PartBeside::OfMakers));
        QCOMPARE(partsOf(behindTheStart(jpeg, 0xe1, QByteArray("http://ns.adobe.com/xmp/extension/\0 and so on", 45))),
                 PartsBeside(PartBeside::ExtendedXmp));
        QCOMPARE(partsOf(behindTheStart(jpeg, 0xec, "Ducky\0\1\0\4")), PartsBeside());
        const auto announcing = [](const QByteArray &property) {
            return fileOf(FileFormat::Png, Metadata()).insert(33, [&] {
                QByteArray chunk;
                appendPngChunk(chunk, "iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + packetWith(property));
                return chunk;
            }());
        };
        QCOMPARE(partsOf(announcing(R"(hdrgm:Version="1.0")")), PartsBeside(PartBeside::GainMap));
        QCOMPARE(partsOf(announcing(R"(GCamera:MotionPhoto="1")")), PartsBeside(PartBeside::Motion));
        QCOMPARE(partsOf(announcing(R"(xmp:Rating="1")")), PartsBeside());
        QByteArray credentials;
        appendPngChunk(credentials, "caBX", "signed");
        QCOMPARE(partsOf(fileOf(FileFormat::Png).insert(33, credentials) + "x"),
                 PartBeside::Credentials | PartBeside::BehindTheEnd);
        QCOMPARE(partsOf(fileOf(FileFormat::Gif) + "x"), PartsBeside(PartBeside::BehindTheEnd));
        QCOMPARE(partsOf(fileOf(FileFormat::JpegXl) + boxOf("jumb", "signed")), PartsBeside(PartBeside::Credentials));
        QCOMPARE(partsBesideOf(ImageSource()), PartsBeside());
    }

    void takesNothingAlongThatLiesBesideThePicture()
    {
        QByteArray jpeg = fileOf(FileFormat::Jpeg);
        jpeg = behindTheStart(jpeg, 0xe2, QByteArray("MPF\0II*\0\x08\0\0\0\0\0", 14));
        jpeg = behindTheStart(jpeg, 0xeb, QByteArray("JP\0\1\0\0\0\1", 8)) + fileOf(FileFormat::Jpeg);
        const auto source = ImageSource::fromData(jpeg);
        QVERIFY(source);
        const QByteArray after = withOtherMetadata(*source, source->metadata().value()).value_or(QByteArray());
        QVERIFY(after.contains("Hamburg"));
        QCOMPARE(partsOf(after), PartsBeside());
        QCOMPARE(imageIn(after), imageIn(jpeg));
    }
};

QUORLIN_TEST(OtherMetadata)
#include "tst_other_metadata.moc"
