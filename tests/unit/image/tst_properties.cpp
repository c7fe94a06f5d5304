#include "image/ZtImageHandling.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTemporaryDir>
#include <QTest>

using platform::ImageSource;
using platform::Metadata;

namespace {
const QString camera = picturePath("own/metadata/tall.jpg");

Metadata metadataOf(const QString &path)
{
    return ImageSource::open(path).value_or(ImageSource()).metadata().value();
}

QVariantMap group(const Metadata &metadata, const char *name)
{
    return metadata.toProperties().value(QString::fromLatin1(name)).toMap();
}
} // namespace

class Properties : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString out() const { return m_folder.path() + u'/'; }

private Q_SLOTS:
    void init() { m_folder = QTemporaryDir(); }

    void reachATiffWithTheirOrientationEntry()
    {
        ZtImageHandling service;
        QCOMPARE(service.resizeImage(camera, 30, 2, out(), QStringLiteral("public.tiff"), {}), QStringLiteral("OK"));
        const QString path = out() + QStringLiteral("tall.tiff");
        const Metadata written = metadataOf(path);
        // The pixels are upright already, and the tag of the source is copied nevertheless.
        QCOMPARE(written.orientation(), 6);
        QCOMPARE(ImageSource::open(path)->storedSize(), QSize(20, 30));
        QCOMPARE(group(written, "{TIFF}").value(QStringLiteral("Make")),
                 group(metadataOf(camera), "{TIFF}").value(QStringLiteral("Make")));
        QCOMPARE(group(written, "{Exif}").value(QStringLiteral("DateTimeOriginal")).toString(),
                 QStringLiteral("2026:05:17 14:03:09"));
        QCOMPARE(written.toProperties().value(QStringLiteral("DPIWidth")).toDouble(), 180.0);
    }

    void reachNoOtherTypeOfAResize_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("name");
        QTest::newRow("JPEG") << QStringLiteral("public.jpeg") << QStringLiteral("tall.jpg");
        QTest::newRow("PNG") << QStringLiteral("public.png") << QStringLiteral("tall.png");
        QTest::newRow("JPEG 2000") << QStringLiteral("public.jp2") << QStringLiteral("tall.jp2");
        QTest::newRow("GIF") << QStringLiteral("com.compuserve.gif") << QStringLiteral("tall.gif");
        QTest::newRow("BMP") << QStringLiteral("public.bmp") << QStringLiteral("tall.bmp");
    }

    void reachNoOtherTypeOfAResize()
    {
        QFETCH(QString, type);
        QFETCH(QString, name);
        ZtImageHandling service;
        QCOMPARE(service.resizeImage(camera, 30, 2, out(), type, QStringLiteral("8")), QStringLiteral("OK"));
        QVERIFY(metadataOf(out() + name).isEmpty());
    }

    void ofTheCallerReachTiffAndJpegByTheWholePath()
    {
        ZtImageHandling service;
        const platform::BitmapHandle bitmap = service.hStringToCGImageRef(camera);
        const QVariantMap given = {
            {QStringLiteral("{Exif}"), QVariantMap{{QStringLiteral("UserComment"), QStringLiteral("Grüße")}}},
            {QStringLiteral("{TIFF}"), QVariantMap{{QStringLiteral("Artist"), QStringLiteral("N. N.")}}}};
        for (const char *type : {"public.tiff", "public.jpeg"}) {
            const QString path = out() + QString::fromLatin1(type);
            QCOMPARE(service.hSaveToNewImageFile(path, QString::fromLatin1(type), bitmap, given), QStringLiteral("OK"));
            QCOMPARE(metadataOf(path).userComment(), QStringLiteral("Grüße"));
            QCOMPARE(group(metadataOf(path), "{TIFF}").value(QStringLiteral("Artist")).toString(),
                     QStringLiteral("N. N."));
        }
        for (const char *type : {"public.png", "public.bmp", "com.compuserve.gif", "public.jp2"}) {
            const QString path = out() + QString::fromLatin1(type);
            QCOMPARE(service.hSaveToNewImageFile(path, QString::fromLatin1(type), bitmap, given), QStringLiteral("OK"));
            QVERIFY(metadataOf(path).isEmpty());
        }
    }

    void ofTheCallerReachTiffOnlyWithoutTheExtension()
    {
        ZtImageHandling service;
        const platform::BitmapHandle bitmap = service.hStringToCGImageRef(camera);
        const QVariantMap given = {
            {QStringLiteral("{TIFF}"), QVariantMap{{QStringLiteral("Artist"), QStringLiteral("N. N.")}}}};
        service.hSaveToNewImageFileMPR(out() + QStringLiteral("a"), QStringLiteral("public.jpeg"), bitmap, given,
                                       QStringLiteral("9"), {});
        service.hSaveToNewImageFileMPR(out() + QStringLiteral("a"), QStringLiteral("public.tiff"), bitmap, given,
                                       QStringLiteral("9"), {});
        QVERIFY(metadataOf(out() + QStringLiteral("a.jpg")).isEmpty());
        QCOMPARE(
            group(metadataOf(out() + QStringLiteral("a.tiff")), "{TIFF}").value(QStringLiteral("Artist")).toString(),
            QStringLiteral("N. N."));
    }

    void carryTheResolutionOfAPngIntoATiff()
    {
        ZtImageHandling service;
        service.resizeImage(picturePath("own/dpi/phys-144dpi.png"), 50, 3, out(), QStringLiteral("public.tiff"), {});
        const auto written = ImageSource::open(out() + QStringLiteral("phys-144dpi.tiff"))->decode();
        QVERIFY(std::abs(written->horizontalDpi() - 144) < 0.1);
    }
};

QUORLIN_TEST(Properties)
#include "tst_properties.moc"
