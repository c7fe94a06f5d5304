#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture_facts.h"
#include "tests/support/corpus.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QDirIterator>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

using platform::cameraName;
using platform::pictureFacts;
using platform::PictureFacts;
using platform::statedDate;

namespace {

constexpr quint16 makeTag = 0x010f;
constexpr quint16 modelTag = 0x0110;
constexpr quint16 orientationTag = 0x0112;
constexpr quint16 changedTag = 0x0132;
constexpr quint16 originalTag = 0x9003;
constexpr quint16 digitizedTag = 0x9004;
constexpr quint16 lensTag = 0xa434;

template<typename Number> QByteArray big(Number value)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

using Tags = QList<std::pair<quint16, QByteArray>>;

/** A directory of texts at @p offset, followed by its values; a pointer to another one if requested. */
QByteArray directory(const Tags &tags, qsizetype offset, quint16 orientation = 0, bool leadsOn = false)
{
    const qsizetype entries = tags.size() + (orientation ? 1 : 0) + (leadsOn ? 1 : 0);
    const qsizetype valuesAt = offset + 2 + 12 * entries + 4;
    QByteArray head = big(quint16(entries));
    QByteArray values;
    for (const auto &[tag, text] : tags) {
        const QByteArray value = text.leftJustified(5, ' ') + '\0'; // never so short that it is stored in the entry
        head += big(tag) + big(quint16(2)) + big(quint32(value.size())) + big(quint32(valuesAt + values.size()));
        values += value;
    }
    if (orientation)
        head += big(orientationTag) + big(quint16(3)) + big(quint32(1)) + big(orientation) + big(quint16(0));
    if (leadsOn)
        head += big(quint16(0x8769)) + big(quint16(4)) + big(quint32(1)) + big(quint32(valuesAt + values.size()));
    return head + big(quint32(0)) + values;
}

QByteArray exifBlock(const Tags &tags, quint16 orientation = 0)
{
    Tags first;
    Tags second;
    for (const auto &tag : tags)
        (tag.first < 0x8000 ? first : second).append(tag);
    QByteArray block = QByteArray("MM\0*", 4) + big(quint32(8));
    block += directory(first, block.size(), orientation, true);
    return block + directory(second, block.size());
}

QByteArray segment(const QByteArray &data)
{
    return QByteArray("\xff\xe1") + big(quint16(data.size() + 2)) + data;
}

QByteArray jpegWith(const QByteArray &exif, const QByteArray &xmp = {})
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    pictures::gradient(40, 20).save(&buffer, "jpeg");
    QByteArray segments;
    if (!exif.isEmpty())
        segments += segment(QByteArray("Exif\0\0", 6) + exif);
    if (!xmp.isEmpty())
        segments += segment(QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + xmp);
    return bytes.insert(2, segments);
}

QByteArray chunk(const char *type, const QByteArray &data)
{
    return big(quint32(data.size())) + type + data + big(quint32(0));
}

QByteArray xmpWith(const QByteArray &attributes)
{
    return "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description xmlns:photoshop='http://ns.adobe.com/photoshop/1.0/' "
           "xmlns:exif='http://ns.adobe.com/exif/1.0/' xmlns:aux='http://ns.adobe.com/exif/1.0/aux/' "
           "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' " +
           attributes + "/></rdf:RDF></x:xmpmeta>";
}

QString textOf(const QDateTime &date)
{
    return date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace

class PictureFactsTest : public QObject
{
    Q_OBJECT

private:
    ScratchFolder m_folder;

    PictureFacts factsOf(const QByteArray &bytes)
    {
        m_folder.write(QStringLiteral("one"), bytes);
        return pictureFacts(m_folder.path("one"));
    }

private Q_SLOTS:
    void readsStatedDates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("date");
        const auto row = [](const char *text, const char *date) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(date);
        };
        row("2026:08:14 10:20:30", "2026-08-14 10:20:30");
        row("2026:08:14 10:20", "2026-08-14 10:20:00");
        row("2026:08:14", "2026-08-14 00:00:00");
        row("2026-08-14T10:20:30.12+02:00", "2026-08-14 10:20:30");
        row("2026-08-14T10:20:30Z", "2026-08-14 10:20:30");
        row("2026-08-14T10:20", "2026-08-14 10:20:00");
        row("2026/08/14 10:20:30", "2026-08-14 10:20:30");
        row("2026: 8: 4  9: 5: 3", "2026-08-04 09:05:03");
        row("2024:02:29 00:00:00", "2024-02-29 00:00:00");
        row("2026:08:14 24:00:00", "2026-08-14 00:00:00");
        row("2026:08:14 10:61:00", "2026-08-14 00:00:00");
        row("1839:08:19 12:00:00", "1839-08-19 12:00:00");
        for (const char *none : {"0000:00:00 00:00:00", "    :  :     :  :  ", "", "2026", "2026-08",
                                 "2025:02:29 10:20:30", "2026:13:01 10:20:30", "2026:00:10 10:20:30", "14.08.2026",
                                 "yesterday", "20260814", "2026:08:145 10:20:30", "-2026:08:14"})
            row(none, "");
    }

    void readsStatedDates()
    {
        QFETCH(QString, text);
        QFETCH(QString, date);
        QCOMPARE(textOf(statedDate(text)), date);
    }

    void namesCameras_data()
    {
        QTest::addColumn<QString>("make");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *make, const char *model, const char *name) {
            QTest::newRow(name) << QString::fromUtf8(make) << QString::fromUtf8(model) << QString::fromUtf8(name);
        };
        row("Canon", "Canon EOS 40D", "Canon EOS 40D");
        row("NIKON CORPORATION", "NIKON D70", "NIKON D70");
        row("NIKON", "COOLPIX P6000", "NIKON COOLPIX P6000");
        row("PENTAX Corporation ", "PENTAX K10D        ", "PENTAX K10D");
        row("EASTMAN KODAK COMPANY", "KODAK DX4530", "KODAK DX4530");
        row("OLYMPUS OPTICAL CO.,LTD", "C2500L", "OLYMPUS C2500L");
        row("Apple", "iPhone 5", "Apple iPhone 5");
        row("Jolla", "", "Jolla");
        row("", "E995", "E995");
        row("", "", "");
    }

    void namesCameras()
    {
        QFETCH(QString, make);
        QFETCH(QString, model);
        QFETCH(QString, name);
        QCOMPARE(cameraName(make, model), name);
    }

    void takesTheFirstDateThatIsOne_data()
    {
        QTest::addColumn<Tags>("tags");
        QTest::addColumn<QByteArray>("xmp");
        QTest::addColumn<QString>("date");
        const QByteArray nonsense = "0000:00:00 00:00:00";
        const QByteArray one = "2001:01:01 01:01:01";
        const QByteArray two = "2002:02:02 02:02:02";
        const QByteArray three = "2003:03:03 03:03:03";
        const QByteArray xmp = xmpWith("photoshop:DateCreated='2004-04-04T04:04:04+04:00'");
        const QByteArray other = xmpWith("exif:DateTimeOriginal='2005-05-05T05:05:05'");
        const QString firstDate = QStringLiteral("2001-01-01 01:01:01");
        const QString secondDate = QStringLiteral("2002-02-02 02:02:02");
        const QString thirdDate = QStringLiteral("2003-03-03 03:03:03");
        const QString xmpDate = QStringLiteral("2004-04-04 04:04:04");
        QTest::newRow("original") << Tags{{originalTag, one}, {digitizedTag, two}, {changedTag, three}} << xmp
                                  << firstDate;
        QTest::newRow("scanned") << Tags{{originalTag, nonsense}, {digitizedTag, two}, {changedTag, three}} << xmp
                                 << secondDate;
        QTest::newRow("written") << Tags{{digitizedTag, nonsense}, {changedTag, three}} << xmp << thirdDate;
        QTest::newRow("XMP") << Tags{{originalTag, nonsense}, {changedTag, nonsense}} << xmp << xmpDate;
        QTest::newRow("XMP alone") << Tags{} << xmp << xmpDate;
        QTest::newRow("other XMP") << Tags{} << other << QStringLiteral("2005-05-05 05:05:05");
        QTest::newRow("none") << Tags{{originalTag, nonsense}} << QByteArray() << QString();
    }

    void takesTheFirstDateThatIsOne()
    {
        QFETCH(Tags, tags);
        QFETCH(QByteArray, xmp);
        QFETCH(QString, date);
        const PictureFacts facts = factsOf(jpegWith(exifBlock(tags), xmp));
        QCOMPARE(textOf(facts.taken), date);
        QCOMPARE(facts.pixels, QSize(40, 20));
    }

    void readsCameraLensAndSides()
    {
        const Tags tags = {{makeTag, "Canon"}, {modelTag, "EOS 5"}, {lensTag, "EF 50mm f/1.4"}};
        const PictureFacts facts = factsOf(jpegWith(exifBlock(tags, 6)));
        QCOMPARE(facts.camera, QStringLiteral("Canon EOS 5"));
        QCOMPARE(facts.lens, QStringLiteral("EF 50mm f/1.4"));
        QCOMPARE(facts.pixels, QSize(20, 40));
        QCOMPARE(facts.typeIdentifier, QStringLiteral("public.jpeg"));
        const PictureFacts byXmp =
            factsOf(jpegWith({}, xmpWith("tiff:Make='Canon' tiff:Model='EOS 5' aux:Lens='EF 50mm'")));
        QCOMPARE(byXmp.camera, QStringLiteral("Canon EOS 5"));
        QCOMPARE(byXmp.lens, QStringLiteral("EF 50mm"));
    }

    void readsThePartsOfAPng()
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        pictures::gradient(30, 10).save(&buffer, "png");
        constexpr qsizetype behindHeader = 8 + 12 + 13;
        QByteArray withExif = bytes;
        withExif.insert(behindHeader, chunk("eXIf", exifBlock({{originalTag, "2001:01:01 01:01:01"}})));
        QCOMPARE(textOf(factsOf(withExif).taken), QStringLiteral("2001-01-01 01:01:01"));
        QCOMPARE(factsOf(withExif).pixels, QSize(30, 10));
        QByteArray withXmp = bytes;
        withXmp.insert(behindHeader, chunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) +
                                                       xmpWith("photoshop:DateCreated='2004-04-04'")));
        QCOMPARE(textOf(factsOf(withXmp).taken), QStringLiteral("2004-04-04 00:00:00"));
        QVERIFY(!factsOf(bytes).taken.isValid());
    }

    void readsTheTagsOfRawFilesAndOfNothingElseThatCannotBeDecoded()
    {
        const QByteArray block = exifBlock({{modelTag, "EOS 5"}, {originalTag, "2001:01:01 01:01:01"}});
        const auto taken = [this](const char *name, const QByteArray &bytes) {
            m_folder.write(QString::fromLatin1(name), bytes);
            return textOf(pictureFacts(m_folder.path(name)).taken);
        };
        QCOMPARE(taken("a.CR2", block), QStringLiteral("2001-01-01 01:01:01"));
        QCOMPARE(taken("a.tif", block), QString());
        QCOMPARE(taken("b.nef", exifBlock({{originalTag, "2001:01:01 01:01:01"}})), QString());
    }

    /** What is read in haste is what the reader of all metadata finds. */
    void agreesWithTheReaderOfAllMetadata()
    {
        int dated = 0;
        QStringList paths;
        for (const QString &folder : picturesThere({"own/", ""}))
            for (QDirIterator files(picturePath(folder), QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
                paths << files.next();
        for (const QString &path : std::as_const(paths)) {
            const auto source = platform::ImageSource::open(path);
            const PictureFacts facts = pictureFacts(path);
            QVERIFY2(source || facts.pixels.isEmpty(), qPrintable(path));
            if (!source)
                continue;
            QVERIFY2(facts.pixels == source->uprightSize(), qPrintable(path));
            QVERIFY2(facts.typeIdentifier == source->typeIdentifier(), qPrintable(path));
            const QVariantMap properties = source->metadata()->toProperties();
            const auto text = [&properties](const char *group, const char *key) {
                return properties.value(QString::fromLatin1(group)).toMap().value(QString::fromLatin1(key)).toString();
            };
            QDateTime taken;
            for (const QString &date :
                 {text("{Exif}", "DateTimeOriginal"), text("{Exif}", "DateTimeDigitized"), text("{TIFF}", "DateTime"),
                  text("{XMP}", "photoshop:DateCreated"), text("{XMP}", "exif:DateTimeOriginal")})
                taken = taken.isValid() ? taken : statedDate(date);
            QVERIFY2(facts.taken == taken, qPrintable(path + QLatin1Char(' ') + textOf(facts.taken)));
            const QString camera = cameraName(text("{TIFF}", "Make"), text("{TIFF}", "Model"));
            QVERIFY2(camera.isEmpty() || facts.camera == camera, qPrintable(path + QLatin1Char(' ') + facts.camera));
            dated += taken.isValid() ? 1 : 0;
        }
        QVERIFY(dated >= (corpusIsThere() ? 20 : 8));
    }

    void knowsNothingOfFilesThatCannotBeRead()
    {
        const QByteArray sound = jpegWith(exifBlock({{originalTag, "2001:01:01 01:01:01"}}));
        QVERIFY(factsOf(sound).taken.isValid());
        for (const QByteArray &broken :
             {QByteArray(), QByteArray("text"), sound.left(sound.size() / 2), sound.left(60)})
            QVERIFY(!factsOf(broken).taken.isValid() && factsOf(broken).pixels.isEmpty());
        QVERIFY(pictureFacts(m_folder.path("nothing")).pixels.isEmpty());
        QVERIFY(pictureFacts(m_folder.path()).pixels.isEmpty());
        QCOMPARE(::mkfifo(qPrintable(m_folder.path("pipe")), 0600), 0);
        QVERIFY(pictureFacts(m_folder.path("pipe")).pixels.isEmpty());
    }

    void survivesBrokenBlocks()
    {
        QRandomGenerator random(11);
        const QByteArray sound = jpegWith(exifBlock({{makeTag, "Canon"}, {originalTag, "2001:01:01 01:01:01"}}, 6),
                                          xmpWith("photoshop:DateCreated='2004-04-04'"));
        const qsizetype end = sound.indexOf("x:xmpmeta");
        for (int round = 0; round < 3000; ++round) {
            QByteArray broken = sound;
            for (int spoilt = 0; spoilt <= round % 7; ++spoilt)
                broken[random.bounded(qint64(end))] = char(random.bounded(256));
            const PictureFacts facts = factsOf(broken);
            QVERIFY(!facts.taken.isValid() || facts.taken.date().year() > 0);
        }
    }
};

QUORLIN_TEST(PictureFactsTest)
#include "tst_picture_facts.moc"
