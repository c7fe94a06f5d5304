#include "platform/file/atomic_file.h"
#include "platform/imageio/metadata/metadata.h"
#include "tests/support/corpus.h"
#include "tests/support/same_tags.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTest>

#include <cmath>

using platform::Metadata;

namespace {

QString pictureNamed(const QString &name)
{
    return picturePath(name);
}

QVariantMap group(const QVariantMap &properties, const char *name)
{
    return properties.value(QString::fromLatin1(name)).toMap();
}

/** Words and numbers of a value in order, numbers to seven digits, so that two ways of printing can be compared. */
QString comparable(const QVariant &value)
{
    QStringList words;
    const bool isList = value.typeId() == QMetaType::QVariantList;
    for (const QVariant &each : isList ? value.toList() : QVariantList{value})
        words += each.toString().split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    for (QString &word : words) {
        bool ok = false;
        const double number = word.toDouble(&ok);
        if (ok)
            word = QString::number(number, 'g', 7);
    }
    return words.join(u' ');
}

/** Our value in the form that the other reader gives it. */
QVariant asTheirs(const QVariant &value, same::As as)
{
    switch (as) {
    case same::As::Same:
        break;
    case same::As::Digits:
        return value.toString().remove(QRegularExpression(QStringLiteral("[-:T ]")));
    case same::As::Truth:
        return value.toString().toLower();
    case same::As::Version: {
        QString digits;
        for (const QVariant &part : value.toList())
            digits += part.toString();
        return digits.leftJustified(3, u'0').toInt();
    }
    case same::As::Aperture:
        return std::pow(2, value.toDouble() / 2);
    case same::As::Shutter:
        return std::pow(2, -value.toDouble());
    }
    return value;
}

/** True where both say the same; what was computed on the way there may differ in its sixth digit. */
bool saysTheSame(const QVariant &ours, const QVariant &theirs, same::As as)
{
    const QVariant value = asTheirs(ours, as);
    if (as == same::As::Aperture || as == same::As::Shutter)
        return std::abs(value.toDouble() - theirs.toDouble()) <= 1e-5 * std::abs(theirs.toDouble());
    if (as == same::As::Digits)
        return value == asTheirs(theirs, as);
    return comparable(value) == comparable(theirs);
}

/** Tags of the common groups that are neither compared nor left out on purpose. */
QStringList unknownTags(const QVariantMap &theirs)
{
    QSet<QString> known;
    for (const same::Tag &tag : same::tags)
        known.insert(QString::fromLatin1(tag.theirs));
    for (const char *name : same::leftOut)
        known.insert(QString::fromLatin1(name));
    QStringList unknown;
    for (const QString &name : theirs.keys())
        for (const char *common : {"ExifIFD:", "IFD0:", "GPS:", "IPTC:", "XMP-dc:"})
            if (name.startsWith(QLatin1String(common)) && !known.contains(name))
                unknown << name;
    return unknown;
}

QByteArray smallJpeg()
{
    QImage image(16, 16, QImage::Format_RGB888);
    image.fill(Qt::gray);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG");
    return buffer.data();
}

} // namespace

class MetadataProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithAnotherReader_data();
    void agreesWithAnotherReader();
    void goesThereAndBack_data();
    void goesThereAndBack();
    void givesValuesTheirTypes();
    void turnsACoordinateIntoDegrees_data();
    void turnsACoordinateIntoDegrees();
    void statesTheResolutionInDotsPerInch_data();
    void statesTheResolutionInDotsPerInch();
    void passesOverWhatNoTagCanHold_data();
    void passesOverWhatNoTagCanHold();
    void setsTheTopLevelKeys();
    void takesTheUsualSpellingsToo();
    void isEmptyForNothing();

private:
    static QStringList pictures();
};

QStringList MetadataProperties::pictures()
{
    QStringList paths;
    for (const QString &folder : picturesThere({"own/metadata", "own/formats", "own/dpi", "own/orientation",
                                                "exif-real", "formats", "dpi", "orientation"}))
        for (const QString &name : QDir(pictureNamed(folder)).entryList(QDir::Files))
            if (!name.endsWith(QLatin1String(".pdf")) && !name.endsWith(QLatin1String(".svg")))
                paths << pictureNamed(folder) + u'/' + name;
    return paths;
}

void MetadataProperties::agreesWithAnotherReader_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariantMap>("theirs");
    const QStringList paths = pictures();
    QProcess reader;
    reader.start(QStringLiteral("exiftool"),
                 QStringList{QStringLiteral("-j"), QStringLiteral("-n"), QStringLiteral("-G1"), QStringLiteral("-q")} +
                     paths);
    reader.waitForFinished(120000);
    for (const QJsonValue &file : QJsonDocument::fromJson(reader.readAllStandardOutput()).array()) {
        const QVariantMap values = file.toObject().toVariantMap();
        const QString path = values.value(QStringLiteral("SourceFile")).toString();
        QTest::newRow(qPrintable(path)) << path << values;
    }
    QVERIFY(paths.size() > 100);
    if (QStandardPaths::findExecutable(QStringLiteral("exiftool")).isEmpty())
        QTest::newRow("nothing to compare with") << QString() << QVariantMap();
}

void MetadataProperties::agreesWithAnotherReader()
{
    QFETCH(QString, path);
    QFETCH(QVariantMap, theirs);
    if (path.isEmpty())
        QSKIP("exiftool is not here");
    const QVariantMap properties = Metadata::fromFileBytes(platform::readFile(path).value()).toProperties();
    QStringList differences;
    for (const same::Tag &tag : same::tags) {
        const QVariant expected = theirs.value(QString::fromLatin1(tag.theirs));
        const QVariant value = group(properties, tag.group).value(QString::fromLatin1(tag.key));
        if (expected.isValid() && (!value.isValid() || !saysTheSame(value, expected, tag.as)))
            differences << QStringLiteral("%1: %2 but %3")
                               .arg(QLatin1String(tag.theirs), comparable(value), comparable(expected))
                               .left(200);
    }
    QCOMPARE(differences.join(u'\n'), QString());
    QCOMPARE(unknownTags(theirs), QStringList());
}

void MetadataProperties::goesThereAndBack_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : pictures())
        QTest::newRow(qPrintable(path)) << path;
}

void MetadataProperties::goesThereAndBack()
{
    QFETCH(QString, path);
    const QVariantMap before = Metadata::fromFileBytes(platform::readFile(path).value()).toProperties();
    const auto written = Metadata::fromProperties(before).writtenInto(smallJpeg());
    QVERIFY(written);
    const QVariantMap after = Metadata::fromFileBytes(*written).toProperties();
    QStringList differences;
    for (const char *name : {"{Exif}", "{TIFF}", "{GPS}", "{IPTC}"}) {
        const QVariantMap was = group(before, name);
        for (auto entry = was.begin(); entry != was.end(); ++entry) {
            static const QStringList others = {
                QStringLiteral("Compression"), QStringLiteral("PhotometricInterpretation"), // of the old file
                QStringLiteral("PixelXDimension"), QStringLiteral("PixelYDimension"),       // updated
                QStringLiteral("MakerNote")}; // goes from file to file, not through a dictionary
            const QVariant is = group(after, name).value(entry.key());
            if (!others.contains(entry.key()) && comparable(is) != comparable(*entry))
                differences << entry.key() + QStringLiteral(": ") + comparable(is).left(60) + QStringLiteral(" but ") +
                                   comparable(*entry).left(60);
        }
    }
    QCOMPARE(differences.join(u'\n'), QString());
    QCOMPARE(after.value(QStringLiteral("Orientation")), before.value(QStringLiteral("Orientation")));
    QCOMPARE(comparable(after.value(QStringLiteral("DPIWidth"))), comparable(before.value(QStringLiteral("DPIWidth"))));
}

void MetadataProperties::givesValuesTheirTypes()
{
    const QVariantMap exif = {{QStringLiteral("ISOSpeedRatings"), QVariantList{400}},
                              {QStringLiteral("ExposureTime"), 0.004},
                              {QStringLiteral("Flash"), 16},
                              {QStringLiteral("ExifVersion"), QVariantList{2, 3, 1}},
                              {QStringLiteral("FlashPixVersion"), QVariantList{1, 0}},
                              {QStringLiteral("DateTimeOriginal"), QStringLiteral("2026:11:16 03:52:09")},
                              {QStringLiteral("SceneType"), 1},
                              {QStringLiteral("UserComment"), QStringLiteral("写真 😀")},
                              {QStringLiteral("LensSpecification"), QVariantList{24, 70, 2.8, 2.8}},
                              {QStringLiteral("ExposureBiasValue"), -2.0 / 3}};
    const QVariantMap properties = Metadata::fromProperties({{QStringLiteral("{Exif}"), exif}}).toProperties();
    const QVariantMap read = group(properties, "{Exif}");
    QCOMPARE(read.value(QStringLiteral("ExposureBiasValue")).toDouble(), -2.0 / 3);
    for (const char *key : {"ISOSpeedRatings", "ExposureTime", "Flash", "ExifVersion", "FlashPixVersion",
                            "DateTimeOriginal", "SceneType", "UserComment", "LensSpecification"}) {
        const QString name = QString::fromLatin1(key);
        QCOMPARE(read.value(name).typeId(), exif.value(name).typeId());
        QCOMPARE(read.value(name), exif.value(name));
    }
    QCOMPARE(properties.keys(), QStringList(QStringLiteral("{Exif}")));
}

void MetadataProperties::turnsACoordinateIntoDegrees_data()
{
    QTest::addColumn<double>("degrees");
    for (const double degrees : {0.0, 52.520008, 89.999999, 1.0, 0.5, 59.99999999})
        QTest::addRow("%.8f", degrees) << degrees;
}

void MetadataProperties::turnsACoordinateIntoDegrees()
{
    QFETCH(double, degrees);
    const QVariantMap gps = {{QStringLiteral("Latitude"), -degrees}, {QStringLiteral("Longitude"), degrees}};
    const QVariantMap read = group(Metadata::fromProperties({{QStringLiteral("{GPS}"), gps}}).toProperties(), "{GPS}");
    constexpr double millimetres = 5e-8;
    QVERIFY(std::abs(read.value(QStringLiteral("Latitude")).toDouble() - degrees) < millimetres);
    QVERIFY(std::abs(read.value(QStringLiteral("Longitude")).toDouble() - degrees) < millimetres);
    QCOMPARE(read.value(QStringLiteral("LatitudeRef")).toString(),
             degrees > 0 ? QStringLiteral("S") : QStringLiteral("N"));
    QCOMPARE(read.value(QStringLiteral("LongitudeRef")).toString(), QStringLiteral("E"));
}

void MetadataProperties::statesTheResolutionInDotsPerInch_data()
{
    QTest::addColumn<QVariant>("unit");
    QTest::addColumn<double>("stated");
    QTest::addColumn<double>("perInch");
    QTest::newRow("inches") << QVariant(2) << 300.0 << 300.0;
    QTest::newRow("centimetres") << QVariant(3) << 100.0 << 254.0;
    QTest::newRow("unit left out means inches") << QVariant() << 180.0 << 180.0;
    QTest::newRow("a number without a unit") << QVariant(1) << 300.0 << 0.0;
    QTest::newRow("an unknown unit") << QVariant(7) << 300.0 << 0.0;
    QTest::newRow("zero") << QVariant(2) << 0.0 << 0.0;
}

void MetadataProperties::statesTheResolutionInDotsPerInch()
{
    QFETCH(QVariant, unit);
    QFETCH(double, stated);
    QFETCH(double, perInch);
    QVariantMap tiff = {{QStringLiteral("XResolution"), stated}, {QStringLiteral("YResolution"), stated}};
    if (unit.isValid())
        tiff.insert(QStringLiteral("ResolutionUnit"), unit);
    const QVariantMap properties = Metadata::fromProperties({{QStringLiteral("{TIFF}"), tiff}}).toProperties();
    QCOMPARE(properties.value(QStringLiteral("DPIWidth")).toDouble(), perInch);
    QCOMPARE(properties.contains(QStringLiteral("DPIHeight")), perInch > 0);
}

void MetadataProperties::passesOverWhatNoTagCanHold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *groupName, const char *key, const QVariant &value) {
        QTest::addRow("%s %s %s", groupName, key, qPrintable(value.toString()))
            << QString::fromLatin1(groupName) << QString::fromLatin1(key) << value;
    };
    row("{Exif}", "NoSuchTag", 1);
    row("{Exif}", "", 1);
    row("{Exif}", "Flash", QStringLiteral("on"));
    row("{Exif}", "Flash", -1);
    row("{Exif}", "Flash", 70000);
    row("{Exif}", "Flash", qQNaN());
    row("{Exif}", "ExposureTime", qInf());
    row("{Exif}", "ExposureTime", -1.0);
    row("{Exif}", "ExposureTime", QVariantMap());
    row("{Exif}", "DateTimeOriginal", QVariantMap());
    row("{Exif}", "ComponentsConfiguration", QVariantList{1, 2, 300});
    row("{GPS}", "TimeStamp", QStringLiteral("noon"));
    row("{GPS}", "Latitude", QStringLiteral("north"));
    row("{IPTC}", "NoSuchDataSet", QStringLiteral("x"));
    row("{TIFF}", "Orientation", QStringLiteral("upright"));
    row("Orientation", "", 9);
    row("{Exif}", "Exif.Photo.Flash", 1);
}

void MetadataProperties::passesOverWhatNoTagCanHold()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const QVariantMap odd = {{key, value}, {QStringLiteral("unheard of"), value}};
    QVariantMap properties = {{name, key.isEmpty() ? value : QVariant(odd)}};
    const Metadata metadata = Metadata::fromProperties(properties);
    QCOMPARE(metadata.toProperties(), QVariantMap());
    QVERIFY(metadata.isEmpty());
}

void MetadataProperties::setsTheTopLevelKeys()
{
    const QVariantMap properties = {{QStringLiteral("Orientation"), 6},
                                    {QStringLiteral("DPIWidth"), 240},
                                    {QStringLiteral("DPIHeight"), 120.5},
                                    {QStringLiteral("PixelWidth"), 4000}};
    const Metadata metadata = Metadata::fromProperties(properties);
    QCOMPARE(metadata.orientation(), 6);
    const QVariantMap read = metadata.toProperties();
    QCOMPARE(read.value(QStringLiteral("DPIWidth")).toDouble(), 240.0);
    QCOMPARE(read.value(QStringLiteral("DPIHeight")).toDouble(), 120.5);
    QCOMPARE(read.value(QStringLiteral("Orientation")).toInt(), 6);
}

void MetadataProperties::takesTheUsualSpellingsToo()
{
    const QVariantMap exif = {{QStringLiteral("FocalLengthIn35mmFilm"), 50},
                              {QStringLiteral("FlashpixVersion"), QByteArray("0100")}};
    const QVariantMap read =
        group(Metadata::fromProperties({{QStringLiteral("{Exif}"), exif}}).toProperties(), "{Exif}");
    QCOMPARE(read.value(QStringLiteral("FocalLenIn35mmFilm")).toInt(), 50);
    QCOMPARE(read.value(QStringLiteral("FlashPixVersion")).toList(), QVariantList({1, 0}));
}

void MetadataProperties::isEmptyForNothing()
{
    QVERIFY(Metadata().isEmpty());
    QVERIFY(Metadata::fromProperties({}).isEmpty());
    QVERIFY(Metadata::fromBlocks({}).isEmpty());
    QCOMPARE(Metadata().toProperties(), QVariantMap());
    QCOMPARE(Metadata().writtenInto(smallJpeg()).value(), smallJpeg());
}

QUORLIN_TEST(MetadataProperties)
#include "tst_metadata_properties.moc"
