#include "app/window/property_words.h"
#include "platform/imageio/property_labels.h"

#include <QLocale>
#include <QTest>

/** What the values of properties are in words. */
class TestPropertyWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysUnits_data();
    void saysUnits();
    void saysCoordinatesWithTheirReference();
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
    row("ApertureValue", 3, "f/2.8");
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

void TestPropertyWords::saysCoordinatesWithTheirReference()
{
    const QVariantMap gps = {{QStringLiteral("LatitudeRef"), QStringLiteral("S")}};
    QCOMPARE(window::propertyWords(QStringLiteral("Latitude"), 33.5, gps), QStringLiteral("33.50000° S"));
}

void TestPropertyWords::labelsKeysAndLeavesOthersAsTheyAre()
{
    QCOMPARE(platform::propertyLabel(QStringLiteral("ExposureTime")), QStringLiteral("Exposure time"));
    QCOMPARE(platform::propertyLabel(QStringLiteral("{Exif}")), QStringLiteral("Exif"));
    QCOMPARE(platform::propertyLabel(QStringLiteral("dc:title")), QStringLiteral("Title"));
    for (const char *key : {"exposuretime", "", "Nonsense", "{Nonsense}", "Æ"})
        QCOMPARE(platform::propertyLabel(QString::fromUtf8(key)), QString::fromUtf8(key));
}

QTEST_GUILESS_MAIN(TestPropertyWords)
#include "tst_property_words.moc"
