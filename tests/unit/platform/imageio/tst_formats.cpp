// Every row of the table of formats is held against what the encoders write and the decoders read again.

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/jpeg2000/jp2_profile.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QColorSpace>
#include <QSet>
#include <QTest>

using namespace platform;

Q_DECLARE_METATYPE(const platform::Format *)

namespace {

/** A PNG file: half transparent, 16 bits, an embedded profile, and a resolution. */
QByteArray rich()
{
    QImage image(40, 30, QImage::Format_RGBA64);
    image.fill(QColor::fromRgba64(40'000, 20'001, 10'003, 30'000));
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(11811);
    QBuffer file;
    return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") ? file.data() : QByteArray();
}

Result<ImageSource> written(const Format &format, const QByteArray &png)
{
    return ImageSource::fromData(png).and_then([&](const ImageSource &source) {
        EncodeOptions options;
        options.resolution = WriteResolution::Yes;
        return source.decode()
            .and_then([&](const Bitmap &bitmap) { return encodeImage(bitmap, *format.written, options); })
            .and_then([](const QByteArray &file) { return ImageSource::fromData(file); });
    });
}

} // namespace

class Formats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEachExtensionAndIdentifierOnce()
    {
        QSet<QString> extensions;
        QSet<QString> identifiers;
        for (const Format &format : formats()) {
            QVERIFY2(!identifiers.contains(format.identifier), format.identifier.data());
            identifiers.insert(format.identifier);
            for (const QString &extension : QString(format.extensions).split(u' ')) {
                QVERIFY2(!extensions.contains(extension), qPrintable(extension));
                extensions.insert(extension);
            }
            QCOMPARE(formatNamed(format.identifier), &format);
        }
        for (const RawType &type : rawTypes())
            QVERIFY2(!extensions.contains(type.extension), type.extension.data());
        QCOMPARE(formatNamed(QStringLiteral("public.nothing")), nullptr);
        QCOMPARE(formatOf(Content::Unknown), nullptr);
    }

    void hasARowForEveryFormatThatIsWritten()
    {
        const QList<FileFormat> all = {FileFormat::Png,  FileFormat::Tiff, FileFormat::Bmp,
                                       FileFormat::Gif,  FileFormat::Jpeg, FileFormat::Jpeg2000,
                                       FileFormat::Webp, FileFormat::Avif, FileFormat::JpegXl};
        for (const FileFormat format : all)
            QVERIFY(formatOf(format).written == format);
    }

    void keepsWhatItsRowSays_data()
    {
        QTest::addColumn<const Format *>("format");
        for (const Format &format : formats())
            if (format.written)
                QTest::newRow(format.identifier.data()) << &format;
    }

    void keepsWhatItsRowSays()
    {
        QFETCH(const Format *, format);
        const Result<ImageSource> made = written(*format, rich());
        QVERIFY2(made, made ? "" : qPrintable(made.error().message));
        const QVariantMap facts = made->properties().value_or(QVariantMap());
        const Keeping &keeps = format->keeps;
        QCOMPARE(made->typeIdentifier(), QString(format->identifier));
        QCOMPARE(!made->iccProfile().isEmpty(), keeps.profile != Kept::No);
        QCOMPARE(facts.value(QStringLiteral("HasAlpha")).toBool(), keeps.alpha);
        QCOMPARE(facts.value(QStringLiteral("Depth")).toInt() == 16, keeps.depth16);
        QCOMPARE(facts.contains(QStringLiteral("DPIWidth")), keeps.resolution);
    }

    void asksOfAProfileWhetherItFits()
    {
        const QByteArray matrix = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
        QByteArray printer = matrix;
        printer.replace(12, 4, "prtr");
        printer.replace(16, 4, "CMYK");
        QVERIFY(fitsJpeg2000(matrix) && !fitsJpeg2000(printer));
        for (const FileFormat format : {FileFormat::Png, FileFormat::Tiff, FileFormat::Jpeg}) {
            QVERIFY(holdsProfile(format, matrix));
            QVERIFY(holdsProfile(format, printer));
        }
        QVERIFY(holdsProfile(FileFormat::Jpeg2000, matrix));
        QVERIFY(!holdsProfile(FileFormat::Jpeg2000, printer));
        QVERIFY(!holdsProfile(FileFormat::Gif, matrix));
        QVERIFY(!holdsProfile(FileFormat::Bmp, matrix));
        QVERIFY(holdsProfile(FileFormat::Gif, QByteArray()));
    }
};

QUORLIN_TEST(Formats)
#include "tst_formats.moc"
