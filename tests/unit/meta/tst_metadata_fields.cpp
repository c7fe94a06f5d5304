#include "meta/field_values.h"
#include "meta/metadata_file.h"
#include "meta/taken_date.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QJsonDocument>
#include <QTest>

using meta::MetadataWork;
using platform::ErrorCode;
using platform::ImageSource;

namespace {

const char *const longText = "A caption that is longer than others: Grüße, Ωμέγα, 日本語, 😀.\nIt has a second line";

QVariantMap settingAll()
{
    QVariantMap fields;
    for (const meta::Field &field : meta::fields())
        fields.insert(field.name,
                      QVariantMap{{QStringLiteral("set"), QStringList{QStringLiteral("Ä %1").arg(field.name)}}});
    const auto set = [&](const char *name, const QStringList &texts) {
        fields.insert(QString::fromLatin1(name), QVariantMap{{QStringLiteral("set"), texts}});
    };
    set("caption", {QString::fromUtf8(longText)});
    set("keywords", {QStringLiteral("Möwe"), QStringLiteral("Hafen"), QStringLiteral("o'clock | bar")});
    set("creator", {QStringLiteral("Zoë; & Söhne"), QStringLiteral("An \"other\"")});
    set("countryCode", {QStringLiteral("DEU")});
    set("dateTaken", {QStringLiteral("2019-03-31T14:05:09.25+02:00")});
    set("rating", {QStringLiteral("4")});
    set("sublocation", {QStringLiteral("Schloß ") + QString(40, QChar(u'ß'))}); // longer than IPTC has room for
    return {{QStringLiteral("fields"), fields}};
}

MetadataWork workOf(const QVariantMap &map)
{
    const auto work = meta::workFrom(map);
    return work ? *work : MetadataWork();
}

QVariantMap object(const QString &json)
{
    return QJsonDocument::fromJson(json.toUtf8()).toVariant().toMap();
}

MetadataWork changing(const char *name, const QString &edit)
{
    return workOf({{QStringLiteral("fields"), QVariantMap{{QString::fromLatin1(name), object(edit)}}}});
}

MetadataWork setting(const char *name, const QString &text)
{
    const QVariantMap edit = {{QStringLiteral("set"), QStringList{text}}};
    return workOf({{QStringLiteral("fields"), QVariantMap{{QString::fromLatin1(name), edit}}}});
}

MetadataWork removing(const QStringList &groups)
{
    return workOf({{QStringLiteral("remove"), groups}});
}

QVariantMap fieldsOf(const QString &path)
{
    const auto read = meta::readFields(path);
    return read ? read->value(QStringLiteral("fields")).toMap()
                : QVariantMap{{QStringLiteral("problem"), read.error().message}};
}

QStringList valueOf(const QString &path, const char *name, const char *where = "value")
{
    return fieldsOf(path).value(QString::fromLatin1(name)).toMap().value(QString::fromLatin1(where)).toStringList();
}

/** Everything that was to be set is what a picture says, and all three say it. */
QString complaint(const QString &path, const QVariantMap &set)
{
    const QVariantMap found = fieldsOf(path);
    const QVariantMap wanted = set.value(QStringLiteral("fields")).toMap();
    for (auto each = wanted.begin(); each != wanted.end(); ++each) {
        const QVariantMap field = found.value(each.key()).toMap();
        const QStringList texts = each.value().toMap().value(QStringLiteral("set")).toStringList();
        if (field.value(QStringLiteral("value")).toStringList() != texts)
            return each.key() + QStringLiteral(" is ") + field.value(QStringLiteral("value")).toStringList().join(u'|');
        if (field.value(QStringLiteral("disputed")).toBool())
            return each.key() + QStringLiteral(" is disputed");
    }
    return {};
}

QByteArray scanOf(const QByteArray &jpeg)
{
    return jpeg.mid(jpeg.indexOf(QByteArray("\xff\xda\0\x0c", 4)));
}

} // namespace

/** The fields of metadata that are written into EXIF, IPTC and XMP together. */
class TestMetadataFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysTheSameInAllThree_data();
    void saysTheSameInAllThree();
    void clearsWhatItSet();
    void changesNothingWhereThatIsSaidAlready();
    void copiesTheScan();
    void doesNotGrowWithEveryEdit();
    void keepsAllPagesOfATiffFile();
    void addsAndTakesOutKeywords();
    void shiftsTheDateTaken();
    void saysWhereDatesDisagree_data();
    void saysWhereDatesDisagree();
    void cutsForIptcAtACharacter();
    void keepsAlternativesOfOtherLanguages();
    void writesASidecarForOtherTypes();
    void keepsWhatASidecarSays();
    void believesASidecarBeforeTheFile();
    void takesOutWhatIsPrivate();
    void refusesNonsense();
    void readsDates_data();
    void readsDates();
};

void TestMetadataFields::saysTheSameInAllThree_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &name : picturesThere({"own/metadata/every-group.jpg",
                                              "own/metadata/every-group.png",
                                              "own/metadata/every-group.tif",
                                              "own/metadata/every-group.webp",
                                              "own/metadata/every-group.jp2",
                                              "own/metadata/maker-note-canon.jpg",
                                              "own/metadata/maker-note-olympus.jpg",
                                              "own/metadata/big-endian.jpg",
                                              "own/formats/lossy.webp",
                                              "own/formats/animated.webp",
                                              "own/formats/rgb.jp2",
                                              "own/formats/big.tif",
                                              "own/formats/tiled.tif",
                                              "own/formats/palette8.png",
                                              "own/formats/rgb.psd",
                                              "own/metadata/xmp.psd",
                                              "own/formats/cmyk16.tif",
                                              "own/formats/rgb.jpg",
                                              "exif-real/DSCN0010.jpg",
                                              "exif-real/Canon_40D.jpg",
                                              "formats/exif.png",
                                              "formats/hopper_bigtiff.tif",
                                              "orientation/exif_imagemagick_orientation.png",
                                              "formats/Reagan.jp2",
                                              "formats/iss634.webp",
                                              "broken/junk_jpeg_header.jpg"}))
        if (QFileInfo::exists(picturePath(name)))
            QTest::newRow(qPrintable(name)) << picturePath(name);
}

void TestMetadataFields::saysTheSameInAllThree()
{
    QFETCH(QString, path);
    const ScratchFolder folder;
    QVERIFY(folder.write("a", pictures::bytesOf(path)));
    const auto before = ImageSource::open(folder.path("a"));
    QVERIFY(before);
    const auto written = meta::writeFields(folder.path("a"), workOf(settingAll()));
    QVERIFY2(written, written ? "" : qPrintable(written.error().message));
    QVERIFY(written->isChanged);
    QCOMPARE(complaint(folder.path("a"), settingAll()), QString());
    const auto after = ImageSource::open(folder.path("a"));
    QVERIFY(after);
    QCOMPARE(after->storedSize(), before->storedSize());
    QCOMPARE(after->imageCount(), before->imageCount());
    QCOMPARE(folder.names(), QStringList{QStringLiteral("a")});
}

void TestMetadataFields::clearsWhatItSet()
{
    const ScratchFolder folder;
    for (const char *name : {"own/formats/rgb.jpg", "own/metadata/every-group.tif", "own/metadata/every-group.png"}) {
        QVERIFY(folder.write("a", pictures::bytesOf(picturePath(name))));
        QVERIFY(meta::writeFields(folder.path("a"), workOf(settingAll())));
        QVariantMap cleared;
        for (const meta::Field &field : meta::fields())
            cleared.insert(field.name, QVariantMap{{QStringLiteral("clear"), true}});
        const auto written = meta::writeFields(folder.path("a"), workOf({{QStringLiteral("fields"), cleared}}));
        QVERIFY2(written, written ? name : qPrintable(written.error().message));
        QCOMPARE(fieldsOf(folder.path("a")), QVariantMap());
        for (const QByteArray &text : {QByteArray("Hafen"), QByteArray("Gr\xc3\xbc\xc3\x9f"), QByteArray("headline")})
            QVERIFY2(!folder.read("a").contains(text),
                     text.constData()); // what was said before does not stay in the file
    }
}

void TestMetadataFields::changesNothingWhereThatIsSaidAlready()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", pictures::bytesOf(picturePath("own/metadata/every-group.jpg"))));
    QVERIFY(meta::writeFields(folder.path("a"), workOf(settingAll())));
    const QByteArray once = folder.read("a");
    QVERIFY(meta::writeFields(folder.path("a"), workOf(settingAll())));
    QCOMPARE(folder.read("a").size(), once.size());
    const auto again = meta::writeFields(folder.path("a"), workOf(settingAll()));
    QVERIFY(again && !again->isChanged);
}

void TestMetadataFields::copiesTheScan()
{
    const ScratchFolder folder;
    const QByteArray bytes = pictures::bytesOf(picturePath("own/metadata/maker-note-canon.jpg"));
    QVERIFY(folder.write("a", bytes));
    QVERIFY(meta::writeFields(folder.path("a"), workOf(settingAll())));
    QCOMPARE(scanOf(folder.read("a")), scanOf(bytes));
}

void TestMetadataFields::doesNotGrowWithEveryEdit()
{
    const ScratchFolder folder;
    for (const char *name : {"own/formats/rgb.jpg", "own/metadata/every-group.tif", "own/metadata/every-group.webp"}) {
        QVERIFY(folder.write("a", pictures::bytesOf(picturePath(name))));
        const QStringList titles = {QStringLiteral("One"), QStringLiteral("Another")};
        qsizetype size = 0;
        for (int i = 0; i < 12; ++i) {
            QVERIFY(meta::writeFields(folder.path("a"), setting("title", titles[i % 2])));
            if (i == 3)
                size = folder.read("a").size();
        }
        QCOMPARE(folder.read("a").size(), size);
    }
}

void TestMetadataFields::keepsAllPagesOfATiffFile()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", pictures::bytesOf(picturePath("own/formats/pages.tif"))));
    const int count = ImageSource::open(folder.path("a"))->imageCount();
    QVERIFY(count > 1);
    QVERIFY(meta::writeFields(folder.path("a"), workOf(settingAll())));
    QCOMPARE(ImageSource::open(folder.path("a"))->imageCount(), count);
    QCOMPARE(complaint(folder.path("a"), settingAll()), QString());
}

void TestMetadataFields::addsAndTakesOutKeywords()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", pictures::bytesOf(picturePath("own/formats/rgb.jpg"))));
    QVERIFY(meta::writeFields(folder.path("a"),
                              changing("keywords", QStringLiteral(R"({"set": ["one", "two", "three"]})"))));
    QVERIFY(meta::writeFields(folder.path("a"),
                              changing("keywords", QStringLiteral(R"({"add": ["four", "one"], "remove": ["two"]})"))));
    const QStringList wanted = {QStringLiteral("one"), QStringLiteral("three"), QStringLiteral("four")};
    QCOMPARE(valueOf(folder.path("a"), "keywords", "iptc"), wanted);
    QCOMPARE(valueOf(folder.path("a"), "keywords", "xmp"), wanted);
    const auto nothing =
        meta::writeFields(folder.path("a"), changing("keywords", QStringLiteral(R"({"add": ["four"]})")));
    QVERIFY(nothing && !nothing->isChanged);
}

void TestMetadataFields::shiftsTheDateTaken()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", pictures::bytesOf(picturePath("own/formats/rgb.jpg"))));
    const auto shift = changing("dateTaken", QStringLiteral(R"({"shift": 3600, "zone": "-03:30"})"));
    const auto none = meta::writeFields(folder.path("a"), shift); // no date, nothing to shift
    QVERIFY(none && !none->isChanged);
    QVERIFY(meta::writeFields(folder.path("a"), setting("dateTaken", QStringLiteral("2019-12-31T23:30:01.5"))));
    QVERIFY(meta::writeFields(folder.path("a"), shift));
    QCOMPARE(valueOf(folder.path("a"), "dateTaken", "exif"),
             QStringList{QStringLiteral("2020-01-01T00:30:01.5-03:30")});
    QCOMPARE(valueOf(folder.path("a"), "dateTaken", "iptc"), QStringList{QStringLiteral("2020-01-01T00:30:01-03:30")});
    QCOMPARE(valueOf(folder.path("a"), "dateTaken", "xmp"), QStringList{QStringLiteral("2020-01-01T00:30:01.5-03:30")});
}

void TestMetadataFields::saysWhereDatesDisagree_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<QByteArray>("other");
    QTest::addColumn<bool>("disputed");
    QTest::newRow("none") << QByteArray("20191231") << QByteArray("20191231") << false;
    QTest::newRow("day") << QByteArray("20191231") << QByteArray("20181231") << true;
    QTest::newRow("time") << QByteArray("233001+0100") << QByteArray("223001+0100") << true;
    QTest::newRow("zone") << QByteArray("233001+0100") << QByteArray("233001+0200") << true;
    QTest::newRow("no day") << QByteArray("20191231") << QByteArray("20199999") << false;
}

/** Another program has changed what IPTC says. */
void TestMetadataFields::saysWhereDatesDisagree()
{
    QFETCH(const QByteArray, said);
    QFETCH(const QByteArray, other);
    const ScratchFolder folder;
    QVERIFY(folder.write("a", pictures::bytesOf(picturePath("own/formats/rgb.jpg"))));
    QVERIFY(meta::writeFields(folder.path("a"), setting("dateTaken", QStringLiteral("2019-12-31T23:30:01+01:00"))));
    const QByteArray written = folder.read("a");
    QCOMPARE(written.count(said), 1);
    QVERIFY(folder.write("a", QByteArray(written).replace(said, other)));
    const QVariantMap field = fieldsOf(folder.path("a")).value(QStringLiteral("dateTaken")).toMap();
    QTEST(field.value(QStringLiteral("disputed")).toBool(), "disputed");
    QCOMPARE(field.value(QStringLiteral("value")).toStringList(),
             QStringList{QStringLiteral("2019-12-31T23:30:01+01:00")});
}

void TestMetadataFields::cutsForIptcAtACharacter()
{
    QCOMPARE(meta::cutToBytes(QStringLiteral("abc"), 3), QStringLiteral("abc"));
    QCOMPARE(meta::cutToBytes(QStringLiteral("aß"), 2), QStringLiteral("a"));
    QCOMPARE(meta::cutToBytes(QStringLiteral("ab😀"), 5), QStringLiteral("ab"));
    QCOMPARE(meta::cutToBytes(QStringLiteral("ae\u0301"), 2), QStringLiteral("a")); // an accent stays with its letter
    const ScratchFolder folder;
    QVERIFY(folder.write("a", pictures::bytesOf(picturePath("own/formats/rgb.jpg"))));
    const QString city(30, QChar(u'ü'));
    QVERIFY(meta::writeFields(folder.path("a"), setting("city", city)));
    QCOMPARE(valueOf(folder.path("a"), "city", "iptc"), QStringList{city.left(16)});
    QCOMPARE(valueOf(folder.path("a"), "city", "xmp"), QStringList{city});
    QVERIFY(
        !fieldsOf(folder.path("a")).value(QStringLiteral("city")).toMap().value(QStringLiteral("disputed")).toBool());
}

void TestMetadataFields::keepsAlternativesOfOtherLanguages()
{
    const ScratchFolder folder;
    QVERIFY(folder.write(
        "a.heic.xmp",
        "<x:xmpmeta xmlns:x='adobe:ns:meta/'><r:RDF xmlns:r='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        "<r:Description r:about='' xmlns:d='http://purl.org/dc/elements/1.1/' xmlns:o='urn:other' o:own='kept'>"
        "<d:title><r:Alt><r:li xml:lang='x-default'>Old</r:li><r:li xml:lang='en'>Old</r:li>"
        "<r:li xml:lang='de'>Alt</r:li></r:Alt></d:title></r:Description></r:RDF></x:xmpmeta>"));
    QVERIFY(folder.write("a.heic", pictures::bytesOf(picturePath("own/metadata/every-group.heic"))));
    QVERIFY(meta::writeFields(folder.path("a.heic"), setting("title", QStringLiteral("New"))));
    const QByteArray packet = folder.read("a.heic.xmp");
    QVERIFY(packet.contains("<rdf:li xml:lang=\"de\">Alt</rdf:li>"));
    QVERIFY(!packet.contains("Old"));
    QVERIFY(packet.contains("o:own=\"kept\""));
}

void TestMetadataFields::writesASidecarForOtherTypes()
{
    const ScratchFolder folder;
    const QByteArray bytes = pictures::bytesOf(picturePath("own/formats/still.gif"));
    QVERIFY(!bytes.isEmpty());
    QVERIFY(folder.write("a.gif", bytes));
    const auto written = meta::writeFields(folder.path("a.gif"), workOf(settingAll()));
    QVERIFY2(written, written ? "" : qPrintable(written.error().message));
    QCOMPARE(written->file, folder.path("a.gif.xmp"));
    QCOMPARE(folder.read("a.gif"), bytes);
    QCOMPARE(complaint(folder.path("a.gif"), settingAll()), QString());
}

void TestMetadataFields::keepsWhatASidecarSays()
{
    const ScratchFolder folder;
    const QByteArray bytes = pictures::bytesOf(picturePath("own/formats/still.gif"));
    QVERIFY(!bytes.isEmpty());
    QVERIFY(folder.write("a.gif", bytes));
    QVERIFY(folder.write("a.xmp",
                         "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
                         "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
                         "xmlns:crs='http://ns.adobe.com/camera-raw-settings/1.0/' crs:Exposure2012='+0.50' "
                         "xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmp:Rating='2'/></rdf:RDF></x:xmpmeta>"));
    QCOMPARE(valueOf(folder.path("a.gif"), "rating"), QStringList{QStringLiteral("2")});
    const auto written = meta::writeRating(folder.path("a.gif"), 5);
    QVERIFY(written);
    QCOMPARE(written->file, folder.path("a.xmp"));
    QVERIFY(folder.read("a.xmp").contains("crs:Exposure2012=\"+0.50\""));
    QCOMPARE(valueOf(folder.path("a.gif"), "rating"), QStringList{QStringLiteral("5")});
    QVERIFY(folder.write("a.xmp", "<x:xmpmeta this is no XML"));
    const auto damaged = meta::writeRating(folder.path("a.gif"), 3);
    QVERIFY(!damaged && damaged.error().code == ErrorCode::Unreadable);
    QCOMPARE(folder.read("a.xmp"), QByteArray("<x:xmpmeta this is no XML"));
}

void TestMetadataFields::believesASidecarBeforeTheFile()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a.heic", pictures::bytesOf(picturePath("own/metadata/every-group.heic"))));
    QVERIFY(meta::writeFields(folder.path("a.heic"), setting("copyright", QStringLiteral("Somebody else"))));
    QCOMPARE(valueOf(folder.path("a.heic"), "copyright"), QStringList{QStringLiteral("Somebody else")});
    const auto written = meta::writeFields(folder.path("a.heic"), workOf(settingAll()));
    QVERIFY2(written, written ? "" : qPrintable(written.error().message));
    QCOMPARE(complaint(folder.path("a.heic"), settingAll()), QString());
}

void TestMetadataFields::takesOutWhatIsPrivate()
{
    const ScratchFolder folder;
    for (const char *name :
         {"own/metadata/every-group.jpg", "own/metadata/every-group.tif", "own/metadata/maker-note-canon.jpg"}) {
        QVERIFY(folder.write("a", pictures::bytesOf(picturePath(name))));
        const auto written = meta::writeFields(folder.path("a"), removing(meta::privateDataNames()));
        QVERIFY2(written, written ? name : qPrintable(written.error().message));
        const auto properties = ImageSource::open(folder.path("a"))->properties();
        QVERIFY(properties);
        QVERIFY(!properties->contains(QStringLiteral("{GPS}")));
        QVERIFY(!properties->value(QStringLiteral("{Exif}")).toMap().contains(QStringLiteral("MakerNote")));
        const auto again = meta::writeFields(folder.path("a"), removing(meta::privateDataNames()));
        QVERIFY(again && !again->isChanged);
    }
    const QByteArray bytes = pictures::bytesOf(picturePath("own/formats/still.gif"));
    QVERIFY(folder.write("b.gif", bytes));
    const auto refused = meta::writeFields(folder.path("b.gif"), removing({QStringLiteral("places")}));
    QVERIFY(!refused && refused.error().code == ErrorCode::Unsupported);
}

void TestMetadataFields::refusesNonsense()
{
    const ScratchFolder folder;
    for (const char *json : {R"({"fields": {"eyes": {"set": ["x"]}}})", R"({"fields": {"title": {}}})",
                             R"({"remove": ["all"]})", R"({"fields": {"dateTaken": {"zone": "noon"}}})"})
        QVERIFY2(!meta::workFrom(object(QString::fromLatin1(json))), json);
    QVERIFY(folder.write("a", pictures::bytesOf(picturePath("own/formats/rgb.jpg"))));
    for (const auto &[name, text] :
         {std::pair("rating", "6"), {"rating", "many"}, {"dateTaken", "yesterday"}, {"dateTaken", "2019-02-30"}}) {
        const auto refused = meta::writeFields(folder.path("a"), setting(name, QString::fromLatin1(text)));
        QVERIFY(!refused && refused.error().code == ErrorCode::InvalidValue);
    }
    QVERIFY(folder.write("b", "no picture"));
    QVERIFY(!meta::writeRating(folder.path("b"), 1));
    QVERIFY(!meta::writeRating(folder.path("is not there"), 1));
}

void TestMetadataFields::readsDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    QTest::newRow("day") << "2019-03-31"
                         << "2019-03-31";
    QTest::newRow("minutes") << "2019-03-31 14:05"
                             << "2019-03-31T14:05:00";
    QTest::newRow("zone") << "2019-03-31T14:05:09Z"
                          << "2019-03-31T14:05:09+00:00";
    QTest::newRow("parts") << "2019-03-31T14:05:09.250-0330"
                           << "2019-03-31T14:05:09.250-03:30";
    QTest::newRow("no such day") << "2019-02-29"
                                 << "";
    QTest::newRow("no such zone") << "2019-02-28T00:00:00+25:00"
                                  << "";
    QTest::newRow("words") << "in May"
                           << "";
}

void TestMetadataFields::readsDates()
{
    QFETCH(QString, text);
    QFETCH(QString, read);
    const auto date = meta::TakenDate::fromText(text);
    QCOMPARE(date ? date->toText() : QString(), read);
}

QUORLIN_TEST(TestMetadataFields)
#include "tst_metadata_fields.moc"
