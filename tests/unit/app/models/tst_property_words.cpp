#include "app/models/property_words.h"
#include "platform/imageio/metadata/property_labels.h"
#include "tests/support/test_program.h"

#include <QLocale>
#include <QTest>

/** What the values of properties are in words. */
class TestPropertyWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysUnits_data();
    void saysUnits();
    void saysNumbersAndDatesAsTheReaderDoes_data();
    void saysNumbersAndDatesAsTheReaderDoes();
    void saysCoordinatesWithTheirReference();
    void saysPlaces_data();
    void saysPlaces();
    void labelsKeysAndLeavesOthersAsTheyAre();
};

void TestPropertyWords::saysUnits_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *key, const QVariant &value, const char *words) {
        QTest::addRow("%s %s", key, words) << QString::fromLatin1(key) << value << QString::fromUtf8(words);
    };
    row("ExposureTime", 0.004, "1/250 s");
    row("ExposureTime", 0.5, "0.5 s");
    row("ExposureTime", 30, "30 s");
    row("ExposureTime", 0, "0 s");
    row("ShutterSpeedValue", 8, "1/256 s");
    row("FNumber", 2.8, "f/2.8");
    row("FNumber", 11, "f/11");
    row("FNumber", 7.1, "f/7.1");
    row("ApertureValue", 3, "f/2.8");
    row("ApertureValue", 5.625, "f/7.1"); // what a camera says that means 5 2/3
    row("ApertureValue", 5, "f/5.6");
    row("ApertureValue", 4.96875, "f/5.6");
    row("ApertureValue", 2.526, "f/2.4"); // no third of a stop
    row("MaxApertureValue", 0, "f/1");
    row("MaxApertureValue", -1, "f/0.7");
    row("MaxApertureValue", 10.67, "f/40.4");
    row("ExifVersion", QVariantList({2, 2, 1}), "2.21");
    row("ExifVersion", QVariantList({2, 3}), "2.3");
    row("JFIFVersion", QVariantList({1, 0, 2}), "1.02");
    row("Version", QVariantList({QStringLiteral("one"), QStringLiteral("two")}), "one, two");
    row("MeteringMode", 3, "3 (spot)");
    row("MeteringMode", 255, "255");
    row("ExposureProgram", 2, "2 (automatic)");
    row("WhiteBalance", 0, "0 (automatic)");
    row("SceneCaptureType", 3, "3 (night)");
    row("ResolutionUnit", 2, "2 (inch)");
    row("ColorSpace", 1, "1 (sRGB)");
    row("ColorSpace", 65535, "65535 (not sRGB)");
    row("AltitudeRef", 1, "1 (below sea level)");
    row("ExposureMode", 1e12, "1,000,000,000,000");
    row("FlashPixVersion", QVariantList({1, 0}), "1.0");
    row("GPSVersion", QVariantList({2, 3, 0, 0}), "2.3.0.0");
    row("FocalLength", 50, "50 mm");
    row("ExposureBiasValue", -2.0 / 3, "−0.67 EV");
    row("ExposureBiasValue", 1, "+1 EV");
    row("ExposureBiasValue", 0, "0 EV");
    row("Altitude", 312.5, "312.5 m");
    row("Flash", 16, "16 (did not fire)");
    row("Flash", 25, "25 (fired)");
    row("Orientation", 1, "1 (upright)");
    row("Orientation", 9, "9");
    row("Latitude", 48.8584, "48.85840°");
    row("ISOSpeedRatings", QVariantList({200}), "200");
    row("LensSpecification", QVariantList({24, 70, 2.8, 2.8}), "24, 70, 2.8, 2.8");
    row("MakerNote", QByteArray(1234, 'x'), "1,234 bytes");
    row("HasAlpha", true, "yes");
    row("HasAlpha", false, "no");
    row("Make", QStringLiteral("Maker"), "Maker");
    row("Anything", 1.0 / 3, "0.333333");
}

void TestPropertyWords::saysUnits()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, words);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    QCOMPARE(window::propertyWords(key, value, {}), words);
}

void TestPropertyWords::saysNumbersAndDatesAsTheReaderDoes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *key, const QVariant &value, const char *words) {
        QTest::addRow("%s %s", key, words) << QString::fromLatin1(key) << value << QString::fromUtf8(words);
    };
    row("PixelWidth", 12345, "12,345 pixels");
    row("ISOSpeedRatings", QVariantList({25600}), "25,600");
    row("DateTimeOriginal", QStringLiteral("2026:08:14 10:20:30"), "14/08/2026 10:20:30");
    row("DateStamp", QStringLiteral("2026:08:14"), "14/08/2026");
    row("DateTime", QStringLiteral("2026:02:31 10:20:30"), "2026:02:31 10:20:30"); // there is no such day
    row("DateTime", QStringLiteral("    :  :     :  :  "), "    :  :     :  :  ");
    row("ImageDescription", QStringLiteral("2026:08:14"), "2026:08:14");
}

void TestPropertyWords::saysNumbersAndDatesAsTheReaderDoes()
{
    saysUnits();
}

void TestPropertyWords::saysCoordinatesWithTheirReference()
{
    const QVariantMap gps = {{QStringLiteral("LatitudeRef"), QStringLiteral("S")}};
    QCOMPARE(window::propertyWords(QStringLiteral("Latitude"), 33.5, gps), QStringLiteral("33.50000° S"));
}

void TestPropertyWords::saysPlaces_data()
{
    QTest::addColumn<QVariantMap>("gps");
    QTest::addColumn<QString>("degrees");
    QTest::addColumn<QString>("minutes");
    const auto row = [](const char *name, const QVariant &latitude, const char *ns, const QVariant &longitude,
                        const char *ew, const char *degrees, const char *minutes) {
        QVariantMap gps = {{QStringLiteral("LatitudeRef"), QString::fromLatin1(ns)},
                           {QStringLiteral("LongitudeRef"), QString::fromLatin1(ew)}};
        gps.insert(QStringLiteral("Latitude"), latitude);
        gps.insert(QStringLiteral("Longitude"), longitude);
        QTest::newRow(name) << gps << QString::fromUtf8(degrees) << QString::fromUtf8(minutes);
    };
    row("north and east", 48.8584, "N", 2.2945, "E", "48.858400, 2.294500", "48° 51′ 30.2″ N, 2° 17′ 40.2″ E");
    row("south and west", 33.5, "S", 70.25, "W", "-33.500000, -70.250000", "33° 30′ 0.0″ S, 70° 15′ 0.0″ W");
    row("seconds that become a minute", 0.99999999, "N", 0, "E", "1.000000, 0.000000", "1° 0′ 0.0″ N, 0° 0′ 0.0″ E");
    row("nowhere on earth", 91, "N", 0, "E", "", "");
    row("no number", QStringLiteral("here"), "N", 0, "E", "", "");
    row("half a place", QVariant(), "N", 5, "E", "", "");
}

void TestPropertyWords::saysPlaces()
{
    QFETCH(QVariantMap, gps);
    const auto place = window::placeOf({{QStringLiteral("{GPS}"), gps}});
    QTEST(place ? window::placeWords(*place, window::PlaceForm::Degrees) : QString(), "degrees");
    QTEST(place ? window::placeWords(*place, window::PlaceForm::Minutes) : QString(), "minutes");
    QVERIFY(!window::placeOf({}));
}

void TestPropertyWords::labelsKeysAndLeavesOthersAsTheyAre()
{
    QCOMPARE(platform::propertyLabel(QStringLiteral("ExposureTime")), QStringLiteral("Exposure time"));
    QCOMPARE(platform::propertyLabel(QStringLiteral("{Exif}")), QStringLiteral("Exif"));
    QCOMPARE(platform::propertyLabel(QStringLiteral("dc:title")), QStringLiteral("Title"));
    for (const char *key : {"exposuretime", "", "Nonsense", "{Nonsense}", "Æ"})
        QCOMPARE(platform::propertyLabel(QString::fromUtf8(key)), QString::fromUtf8(key));
}

QUORLIN_TEST(TestPropertyWords)
#include "tst_property_words.moc"
