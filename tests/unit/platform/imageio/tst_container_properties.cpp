#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/facts/container_properties.h"
#include "platform/imageio/facts/profile_name.h"
#include "platform/imageio/jpeg2000/jp2_profile.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/made_png.h"
#include "tests/support/made_tiff.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "tests/support/expected_pictures.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

using pictures::big;
using pictures::bytes;
using pictures::chunk;
using pictures::png;
using pictures::zlib;
using platform::containerProperties;
using platform::ImageSource;
using platform::profileName;

namespace {

QString pictureNamed(const char *name)
{
    return picturePath(name);
}

QVariantMap groupOf(QByteArray bytes, const char *name)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return containerProperties(buffer).value(QString::fromLatin1(name)).toMap();
}

QVariant value(const QVariantMap &group, const char *key)
{
    return group.value(QString::fromLatin1(key));
}

const QByteArray packet =
    "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'>"
    "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
    "xmlns:photoshop='http://ns.adobe.com/photoshop/1.0/' photoshop:Headline='From a GIF'/>"
    "</rdf:RDF></x:xmpmeta><?xpacket end='w'?>";

QByteArray inPieces(const QByteArray &data)
{
    QByteArray pieces;
    for (qsizetype at = 0; at < data.size(); at += 255) {
        const QByteArray piece = data.mid(at, 255);
        pieces += char(piece.size()) + piece;
    }
    return pieces + '\0';
}

/** As it is, and before the bytes that lead a reader of pieces to their end. */
QByteArray asItIs(const QByteArray &data)
{
    QByteArray trailer("\x01");
    for (int i = 255; i >= 0; --i)
        trailer += char(i);
    return data + trailer + '\0';
}

/** One pixel, with XMP before or after it. */
QByteArray gif(const QByteArray &block, bool isBehind)
{
    const QByteArray xmp = "!\xff\x0bXMP DataXMP" + block;
    const QByteArray picture = bytes(",\0\0\0\0\1\0\1\0\0\2\2\x44\1\0");
    return bytes("GIF89a\1\0\1\0\x80\0\0\0\0\0\xff\xff\xff!\xf9\4\0\0\0\0\0") + (isBehind ? QByteArray() : xmp) +
           picture + (isBehind ? xmp : QByteArray()) + ';';
}

QByteArray jpeg2000()
{
    QByteArray made;
    QBuffer buffer(&made);
    buffer.open(QIODevice::WriteOnly);
    pictures::gradient(24, 16).save(&buffer, "png");
    const auto source = ImageSource::fromData(made);
    return platform::encodeImage(*source->decode(), platform::FileFormat::Jpeg2000).value();
}

QByteArray utf16(const QString &text)
{
    QByteArray units;
    for (const QChar unit : text)
        units.append(char(unit.row())).append(char(unit.cell()));
    return units;
}

/** A profile that has nothing but names: language, country and text of each. */
QByteArray profileNamed(const QList<std::array<QString, 3>> &names)
{
    QByteArray records;
    QByteArray texts;
    for (const auto &[language, country, text] : names) {
        const QByteArray units = utf16(text);
        records += language.toLatin1() + country.toLatin1() + big(quint32(units.size())) +
                   big(quint32(16 + 12 * names.size() + texts.size()));
        texts += units;
    }
    const QByteArray tag = "mluc" + big(0) + big(quint32(names.size())) + big(12) + records + texts;
    return QByteArray(128, '\0') + big(1) + "desc" + big(144) + big(quint32(tag.size())) + tag;
}

QByteArray big16(quint16 value)
{
    return big(value).mid(2);
}

QByteArray resource(quint16 number, const QByteArray &data)
{
    return "8BIM" + big16(number) + QByteArray(2, '\0') + big(quint32(data.size())) + data +
           QByteArray(data.size() % 2, '\0');
}

/** A picture of 2 by 1 pixels in 8 bits; @p layers is how many of them there are, negative where they do not cover all. */
QByteArray photoshop(bool isLarge, int channels, qint16 layers, const QByteArray &resources = {})
{
    const auto length = [isLarge](quint32 value) { return isLarge ? big(0) + big(value) : big(value); };
    const QByteArray layerData = length(2) + big16(quint16(layers));
    return "8BPS" + big16(isLarge ? 2 : 1) + QByteArray(6, '\0') + big16(quint16(channels)) + big(1) + big(2) +
           big16(8) + big16(3) + big(0) + big(quint32(resources.size())) + resources +
           length(quint32(layerData.size())) + layerData + big16(0) + QByteArray(2 * channels, '\x7f');
}

QVariantMap propertiesOf(const QByteArray &file)
{
    const auto source = ImageSource::fromData(file);
    return source ? source->properties().value_or(QVariantMap()) : QVariantMap();
}

} // namespace

class ContainerProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void carriesTheXmpOfAGif_data()
    {
        QTest::addColumn<QByteArray>("gif");
        QTest::newRow("as it is") << gif(asItIs(packet), false);
        QTest::newRow("in pieces") << gif(inPieces(packet), false);
        QTest::newRow("behind the picture") << gif(asItIs(packet), true);
    }

    void carriesTheXmpOfAGif()
    {
        QFETCH(QByteArray, gif);
        const auto source = ImageSource::fromData(gif);
        QVERIFY(source);
        const auto headline = [](const QVariantMap &properties) {
            return properties.value(QStringLiteral("{XMP}"))
                .toMap()
                .value(QStringLiteral("photoshop:Headline"))
                .toString();
        };
        QCOMPARE(headline(*source->properties()), QStringLiteral("From a GIF"));
        for (const auto format : {platform::FileFormat::Png, platform::FileFormat::Tiff}) {
            platform::EncodeOptions options;
            const auto plain = platform::encodeImage(*source->decode(), format, options);
            const auto whole = source->metadata()->writtenInto(*plain);
            QCOMPARE(headline(*ImageSource::fromData(*whole)->properties()), QStringLiteral("From a GIF"));
        }
    }

    void survivesEveryCutOfAGifWithXmp()
    {
        for (const QByteArray &whole : {gif(asItIs(packet), false), gif(inPieces(packet), true)})
            for (qsizetype size = 0; size < whole.size(); size += 7)
                platform::Metadata::fromFileBytes(whole.left(size)).toProperties();
    }

    void readsTheCommentOfAJpeg2000WhoseProfileIsDamaged()
    {
        const ScratchFolder folder;
        QByteArray profile(200, '\0'); // whose length says otherwise
        profile.replace(0, 4, big(9999));
        QVERIFY(folder.write("a.jp2", platform::withJpeg2000Profile(jpeg2000(), profile)));
        QVERIFY(ImageSource::open(folder.path("a.jp2")));
        const auto written = platform::writeUserComment(folder.path("a.jp2"), QStringLiteral("read me"));
        QVERIFY2(written, written ? "" : qPrintable(written.error().message));
        QCOMPARE(platform::readUserComment(folder.path("a.jp2")).value(), QStringLiteral("read me"));
    }

    void tellsDepthAndTransparencyAsTheFileHasThem_data()
    {
        QTest::addColumn<expected::Row>("row");
        const QString found = QStringLiteral("found/");
        const auto more = expected::tableOf(corpusPath(found), found);
        for (const expected::Row &row : expected::rows() + more)
            if (row.isDecodable && ImageSource::open(row.path))
                QTest::newRow(qPrintable(row.name)) << row;
    }

    void tellsDepthAndTransparencyAsTheFileHasThem()
    {
        QFETCH(expected::Row, row);
        const QVariantMap properties = *ImageSource::open(row.path)->properties();
        if (row.depth > 0)
            QCOMPARE(value(properties, "Depth").toInt(), row.depth);
        QCOMPARE(value(properties, "HasAlpha").toBool(), row.hasAlpha);
    }

    void tellsTheDepthOfWideMasks()
    {
        const auto little = [](quint32 number) { return big(qbswap(number)); };
        const QByteArray bmp = "BM" + little(70) + little(0) + little(66) + little(40) + little(1) + little(1) +
                               bytes("\1\0\x20\0") + little(3) + QByteArray(20, '\0') + little(0x3ff00000) +
                               little(0xffc00) + little(0x3ff) + little(0x12345678);
        const QVariantMap properties = propertiesOf(bmp);
        QCOMPARE(value(properties, "Depth").toInt(), 10);
        QCOMPARE(value(properties, "HasAlpha").toBool(), false);
    }

    void takesASavedSelectionForNoTransparency()
    {
        for (const bool isLarge : {false, true}) {
            QCOMPARE(value(propertiesOf(photoshop(isLarge, 3, -1)), "HasAlpha"), QVariant(false));
            QCOMPARE(value(propertiesOf(photoshop(isLarge, 4, 1)), "HasAlpha"), QVariant(false));
            QCOMPARE(value(propertiesOf(photoshop(isLarge, 5, 1)), "HasAlpha"), QVariant(false));
            QCOMPARE(value(propertiesOf(photoshop(isLarge, 4, -1)), "HasAlpha"), QVariant(true));
            QCOMPARE(value(propertiesOf(photoshop(isLarge, 4, -1)), "Depth").toInt(), 8);
        }
    }

    void readsWhatALargePhotoshopFileSays()
    {
        const QByteArray exif = "MM" + big16(42) + big(8) + big16(1) + big16(0x010f) + big16(2) + big(4) + "Cam" +
                                QByteArray(1, '\0') + big(0);
        const QByteArray resources =
            resource(1005, big(300 << 16) + big(0x00010001) + big(300 << 16) + big(0x00010001)) +
            resource(1028, bytes("\x1c\2\x69\0\4Head")) + resource(1058, exif) + resource(1060, packet);
        for (const bool isLarge : {false, true}) {
            const QVariantMap properties = propertiesOf(photoshop(isLarge, 3, 1, resources));
            const auto told = [&properties](const char *group, const char *key) {
                return value(value(properties, group).toMap(), key).toString();
            };
            QCOMPARE(value(properties, "DPIWidth").toDouble(), 300.0);
            QCOMPARE(told("{TIFF}", "Make"), QStringLiteral("Cam"));
            QCOMPARE(told("{IPTC}", "Headline"), QStringLiteral("Head"));
            QCOMPARE(told("{XMP}", "photoshop:Headline"), QStringLiteral("From a GIF"));
        }
    }

    void answersTheSameForACommentInTheWrongDirectory()
    {
        const ScratchFolder folder;
        const QByteArray told = QByteArray("ASCII\0\0\0", 8) + "told elsewhere";
        const auto both = [&folder] {
            const auto source = ImageSource::open(folder.path("a.tif"));
            const QVariantMap exif = source->properties()->value(QStringLiteral("{Exif}")).toMap();
            return QStringList{source->metadata()->userComment(), exif.value(QStringLiteral("UserComment")).toString()};
        };
        QVERIFY(folder.write("a.tif", pictures::madeTiff({1, false, told})));
        QCOMPARE(both(), QStringList(2, QStringLiteral("told elsewhere")));
        for (const QString &comment : {QStringLiteral("a new one"), QStringLiteral("x"), QString(200, u'y')}) {
            QVERIFY(platform::writeUserComment(folder.path("a.tif"), comment));
            QCOMPARE(both(), QStringList(2, comment));
            QVERIFY(!folder.read("a.tif").contains("told elsewhere"));
        }
    }

    void namesProfilesInTheReadersLanguage()
    {
        const QByteArray profile =
            profileNamed({{QStringLiteral("fr"), QStringLiteral("FR"), QStringLiteral("Moniteur")},
                          {QStringLiteral("en"), QStringLiteral("US"), QStringLiteral("Display")},
                          {QStringLiteral("de"), QStringLiteral("DE"), QStringLiteral("Bildschirm")},
                          {QStringLiteral("de"), QStringLiteral("CH"), QStringLiteral("Monitor")}});
        const auto named = [&profile](const char *language) {
            return profileName(profile, {QString::fromLatin1(language)});
        };
        QCOMPARE(named("de-DE"), QStringLiteral("Bildschirm"));
        QCOMPARE(named("de_CH"), QStringLiteral("Monitor"));
        QCOMPARE(named("de"), QStringLiteral("Bildschirm"));
        QCOMPARE(named("de-Latn-CH"), QStringLiteral("Monitor"));
        QCOMPARE(named("fr-CA"), QStringLiteral("Moniteur"));
        QCOMPARE(named("nl-NL"), QStringLiteral("Display"));
        QCOMPARE(profileName(profile, {QStringLiteral("nl-NL"), QStringLiteral("fr-FR")}), QStringLiteral("Moniteur"));
        QCOMPARE(profileName(profile, {}), QStringLiteral("Display"));
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Switzerland));
        QCOMPARE(profileName(profile), QStringLiteral("Monitor"));
        QLocale::setDefault(QLocale::c());
        QCOMPARE(profileName(profileNamed({{QStringLiteral("fr"), QStringLiteral("FR"), QStringLiteral("Moniteur")}})),
                 QStringLiteral("Moniteur"));
        for (qsizetype size = 0; size < profile.size(); ++size)
            profileName(profile.left(size));
    }

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
        QTest::newRow("300 an inch") << pictureNamed("own/dpi/jfif-300dpi.jpg") << 1 << 300;
        QTest::newRow("40 a centimetre") << pictureNamed("own/dpi/jfif-per-cm.jpg") << 2 << 40;
    }

    void readsWhatAJpegSays()
    {
        QFETCH(QString, path);
        QFETCH(int, unit);
        QFETCH(int, density);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
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
        const auto source = platform::ImageSource::open(pictureNamed("own/dpi/phys-144dpi.png"));
        if (!source)
            QSKIP("The shared pictures are not here");
        const QVariantMap group = source->properties()->value(QStringLiteral("{PNG}")).toMap();
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

QUORLIN_TEST(ContainerProperties)
#include "tst_container_properties.moc"
