#include "platform/imageio/container_properties.h"
#include "platform/imageio/image_source.h"

#include "tests/support/corpus.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

using platform::containerProperties;

namespace {

QString corpus(const char *name)
{
    return corpusPath(name);
}

QVariantMap groupOf(QByteArray bytes, const char *name)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return containerProperties(buffer).value(QString::fromLatin1(name)).toMap();
}

QByteArray big(quint32 value)
{
    char bytes[4];
    qToBigEndian(value, bytes);
    return {bytes, 4};
}

QByteArray chunk(const char *type, const QByteArray &data)
{
    return big(quint32(data.size())) + type + data + big(0); // the check sum is not looked at
}

QByteArray png(const QByteArray &chunks)
{
    const QByteArray header = big(1) + big(1) + QByteArray("\x08\x02\0\0\x01", 5);
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", header) + chunks + chunk("IEND", {});
}

QByteArray zlib(const QByteArray &text)
{
    return qCompress(text).mid(4);
}

template<size_t size> QByteArray bytes(const char (&literal)[size])
{
    return QByteArray(literal, size - 1);
}

QVariant value(const QVariantMap &group, const char *key)
{
    return group.value(QString::fromLatin1(key));
}

} // namespace

class ContainerProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatAPngSays()
    {
        const QByteArray white = big(31270) + big(32900);
        const QVariantMap group = groupOf(
            png(chunk("gAMA", big(45455)) + chunk("sRGB", bytes("\x01")) +
                chunk("cHRM", white + white + white + white) + chunk("pHYs", big(11811) + big(5905) + bytes("\x01")) +
                chunk("IDAT", QByteArray(100000, 'x')) + chunk("tEXt", bytes("Creation Time\0today"))),
            "{PNG}");
        QCOMPARE(value(group, "InterlaceType").toInt(), 1);
        QCOMPARE(value(group, "Gamma").toDouble(), 0.45455);
        QCOMPARE(value(group, "sRGBIntent").toInt(), 1);
        QCOMPARE(value(group, "Chromaticities").toList().size(), 8);
        QCOMPARE(value(group, "Chromaticities").toList().at(1).toDouble(), 0.329);
        QCOMPARE(value(group, "XPixelsPerMeter").toDouble(), 11811.0);
        QCOMPARE(value(group, "YPixelsPerMeter").toDouble(), 5905.0);
        QCOMPARE(value(group, "CreationTime").toString(), QStringLiteral("today"));
    }

    void readsTextsOfEachKind_data()
    {
        QTest::addColumn<QByteArray>("chunks");
        QTest::addColumn<QString>("title");
        QTest::newRow("Latin-1") << chunk("tEXt", bytes("Title\0Gr\xf6\xdf"
                                                        "e"))
                                 << QStringLiteral("Größe");
        QTest::newRow("compressed") << chunk("zTXt", bytes("Title\0\0") + zlib("Harbour")) << QStringLiteral("Harbour");
        QTest::newRow("UTF-8") << chunk("iTXt", bytes("Title\0\0\0\0\0\xe5\x86\x99")) << QStringLiteral("写");
        QTest::newRow("UTF-8 with languages")
            << chunk("iTXt", bytes("Title\0\0\0de\0Titel\0Hafen")) << QStringLiteral("Hafen");
        QTest::newRow("UTF-8 compressed")
            << chunk("iTXt", bytes("Title\0\1\0\0\0") + zlib("Hafen")) << QStringLiteral("Hafen");
        QTest::newRow("the first of two")
            << chunk("tEXt", bytes("Title\0one")) + chunk("tEXt", bytes("Title\0two")) << QStringLiteral("one");
        QTest::newRow("no end of keyword") << chunk("tEXt", bytes("Title")) << QString();
        QTest::newRow("empty") << chunk("tEXt", {}) << QString();
        QTest::newRow("international cut short") << chunk("iTXt", bytes("Title\0")) << QString();
        QTest::newRow("international without text") << chunk("iTXt", bytes("Title\0\1\0\0\0")) << QString();
        QTest::newRow("compressed junk") << chunk("zTXt", bytes("Title\0\0junk")) << QString();
        QTest::newRow("compressed nothing") << chunk("zTXt", bytes("Title\0")) << QString();
        QTest::newRow("compressed bomb") << chunk("zTXt", bytes("Title\0\0") + zlib(QByteArray(30 << 20, 'x')))
                                         << QString();
        QTest::newRow("XMP is no text") << chunk("iTXt", bytes("XML:com.adobe.xmp\0\0\0\0\0<x/>")) << QString();
    }

    void readsTextsOfEachKind()
    {
        QFETCH(QByteArray, chunks);
        QFETCH(QString, title);
        const QVariantMap group = groupOf(png(chunks), "{PNG}");
        QCOMPARE(value(group, "Title").toString(), title);
        QCOMPARE(group.size(), title.isEmpty() ? 1 : 2); // and how it is interlaced
    }

    void readsWhatAJpegSays_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("unit");
        QTest::addColumn<int>("density");
        QTest::newRow("300 an inch") << corpus("dpi/jfif-300dpi.jpg") << 1 << 300;
        QTest::newRow("1 a centimetre") << corpus("dpi/jfif_unit_cm.jpg") << 2 << 1;
    }

    void readsWhatAJpegSays()
    {
        QFETCH(QString, path);
        QFETCH(int, unit);
        QFETCH(int, density);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            QSKIP("The shared pictures are not here");
        const QVariantMap group = groupOf(file.readAll(), "{JFIF}");
        QCOMPARE(value(group, "DensityUnit").toInt(), unit);
        QCOMPARE(value(group, "XDensity").toInt(), density);
        QVERIFY(value(group, "YDensity").toInt() > 0);
        QCOMPARE(value(group, "JFIFVersion").toList(), QVariantList({1, 0, 1}));
        QCOMPARE(value(group, "IsProgressive"), QVariant(false));
    }

    void tellsAProgressiveJpeg()
    {
        QImage image(32, 32, QImage::Format_RGB888);
        image.fill(Qt::gray);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setProgressiveScanWrite(true);
        QVERIFY(writer.write(image));
        QCOMPARE(value(groupOf(buffer.data(), "{JFIF}"), "IsProgressive"), QVariant(true));
    }

    void readsWhatAGifSays()
    {
        const QByteArray head = bytes("GIF89a\x01\x00\x01\x00\x80\x00\x00") + QByteArray(6, 'c');
        const QByteArray loop = bytes("\x21\xff\x0bNETSCAPE2.0\x03\x01\x05\x00\x00");
        const QByteArray comment = bytes("\x21\xfe\x03"
                                         "abc"
                                         "\x02"
                                         "de"
                                         "\x00");
        const QByteArray control = bytes("\x21\xf9\x04\x00\x19\x00\x00\x00");
        const QByteArray image = bytes("\x2c");
        const QVariantMap group = groupOf(head + loop + comment + control + image + control, "{GIF}");
        QCOMPARE(value(group, "HasGlobalColorMap"), QVariant(true));
        QCOMPARE(value(group, "LoopCount").toInt(), 5);
        QCOMPARE(value(group, "DelayTime").toDouble(), 0.25);
        const QVariantMap still = groupOf(bytes("GIF87a\x01\x00\x01\x00\x00\x00\x00\x2c"), "{GIF}");
        QCOMPARE(still.keys(), QStringList(QStringLiteral("HasGlobalColorMap")));
    }

    void standsAmongThePropertiesOfAPicture()
    {
        const auto source = platform::ImageSource::open(corpus("dpi/phys-144dpi.png"));
        if (!source)
            QSKIP("The shared pictures are not here");
        const QVariantMap group = source->properties().value(QStringLiteral("{PNG}")).toMap();
        QCOMPARE(value(group, "XPixelsPerMeter").toDouble(), 5669.0);
    }

    void saysNothingOfOtherFiles()
    {
        for (const QByteArray &other :
             {QByteArray(), bytes("x"), bytes("II*\0\x08\0\0\0"), bytes("\x89PN"), bytes("GIF8")}) {
            QByteArray copy = other;
            QBuffer buffer(&copy);
            buffer.open(QIODevice::ReadOnly);
            QCOMPARE(containerProperties(buffer), QVariantMap());
        }
    }

    void survivesBrokenFiles()
    {
        QRandomGenerator random(7);
        const QByteArray files[] = {
            png(chunk("gAMA", big(1)) + chunk("iTXt", bytes("A\0\1\0\0\0") + zlib("text")) +
                chunk("zTXt", bytes("B\0\0") + zlib("b"))),
            bytes("GIF89a\x01\x00\x01\x00\x80\x00\x00") + QByteArray(6, 'c') +
                bytes("\x21\xff\x0bNETSCAPE2.0\x03\x01\x05\x00\x00\x2c"),
            bytes("\xff\xd8\xff\xe0\x00\x10JFIF\0\x01\x02\x01\x00\x48\x00\x48\x00\x00\xff\xda\x00\x02")};
        for (int round = 0; round < 3000; ++round) {
            QByteArray broken = files[round % 3];
            for (int spoilt = 0; spoilt <= round % 5; ++spoilt)
                broken[random.bounded(qint64(broken.size() - 6)) + 6] = char(random.bounded(256));
            broken.truncate(random.bounded(qint64(broken.size())) + 1);
            QBuffer buffer(&broken);
            buffer.open(QIODevice::ReadOnly);
            QVERIFY(containerProperties(buffer).size() <= 1);
        }
    }
};

QTEST_GUILESS_MAIN(ContainerProperties)
#include "tst_container_properties.moc"
