// Damage that one of several threads meets must not get lost: such a file is tried again and again.

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include "tests/support/corpus.h"
#include "tests/support/test_program.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::FileFormat;
using platform::ImageSource;
using platform::Result;

namespace {

/** How often each file is tried; a longer run sets it. */
int repeats()
{
    return tests::repetitions(25, 200);
}

/** Pixels that no compression makes small. */
QImage noise(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB888);
    quint32 state = 1;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < 3 * width; ++x) {
            state = state * 1664525 + 1013904223;
            image.scanLine(y)[x] = uchar(state >> 24);
        }
    return image;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The bytes with some in their midst overwritten. */
QByteArray damagedAt(QByteArray bytes, double share, int count)
{
    const auto start = qsizetype(double(bytes.size()) * share);
    for (qsizetype at = start; at < std::min(start + count, bytes.size()); ++at)
        bytes[at] = char(0xA5 ^ at);
    return bytes;
}

} // namespace

class DamagedPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("VIPS_CONCURRENCY", "4"); }

    void areRefusedEveryTime_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const Bitmap bitmap = Bitmap::fromImage(noise(700, 700));
        const QByteArray jp2 = platform::encodeImage(bitmap, FileFormat::Jpeg2000).value_or(QByteArray());
        QTest::newRow("JPEG 2000, cut") << jp2.left(jp2.size() * 6 / 10);
        const QByteArray png = platform::encodeImage(bitmap, FileFormat::Png).value_or(QByteArray());
        QTest::newRow("PNG, bytes changed") << damagedAt(png, 0.8, 4);
        addTiff(bitmap);
        for (const char *name : {"found/relax_tileparts.jp2", "found/jpeg-lossless-24bit-rgb.tif"}) {
            const QByteArray bytes = contentOf(corpusPath(name));
            if (!bytes.isEmpty())
                QTest::newRow(name) << (QByteArray(name).endsWith("jp2") ? bytes.left(bytes.size() * 6 / 10) : bytes);
        }
    }

    void areRefusedEveryTime()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!bytes.isEmpty());
        const Result<ImageSource> source = ImageSource::fromData(bytes);
        if (!source)
            return; // nothing is to be decoded of what does not open
        int good = 0;
        for (int attempt = 0; attempt < repeats(); ++attempt) {
            if (attempt % 2 == 0)
                good += source->decode() ? 1 : 0;
            else
                good += source->decodeScaled(source->uprightSize() / 2) ? 1 : 0;
        }
        QCOMPARE(good, 0);
    }

    /** What is merely odd is still a picture. */
    void areNotMixedUpWithOddOnes()
    {
        QByteArray jpeg =
            platform::encodeImage(Bitmap::fromImage(noise(64, 64)), FileFormat::Jpeg).value_or(QByteArray());
        jpeg.insert(jpeg.indexOf("\xFF\xDB"), "odd");
        const Result<ImageSource> source = ImageSource::fromData(jpeg);
        QVERIFY(source.has_value());
        QVERIFY(source->decode().has_value());
    }

private:
    /** A TIFF of many compressed strips, one of which is damaged. */
    static void addTiff(const Bitmap &bitmap)
    {
        const QTemporaryDir folder;
        const QString plain = folder.filePath(QStringLiteral("plain.tif"));
        const QString packed = folder.filePath(QStringLiteral("packed.tif"));
        if (!platform::writeImageFile(plain, bitmap, FileFormat::Tiff) ||
            QProcess::execute(QStringLiteral("tiffcp"), {QStringLiteral("-c"), QStringLiteral("zip"),
                                                         QStringLiteral("-r"), QStringLiteral("16"), plain, packed}) !=
                0)
            return;
        QTest::newRow("TIFF, a strip changed") << damagedAt(contentOf(packed), 0.5, 200);
    }
};

QUORLIN_TEST(DamagedPictures)
#include "tst_damaged_pictures.moc"
