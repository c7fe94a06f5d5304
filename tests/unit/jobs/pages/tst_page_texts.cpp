#include "jobs/services/page_texts.h"
#include "tests/support/test_program.h"

#include <QTest>
#include <QVariantMap>

namespace {

QString words(const char *text)
{
    return QString::fromUtf8(text);
}

/** A property of a group, as pictures have them. */
QVariantMap stated(const char *group, const char *name, const QVariant &value)
{
    return {{words(group), QVariantMap{{words(name), value}}}};
}

/** A field as the form of metadata reads it. */
QVariantMap field(const char *name, const QStringList &values)
{
    return {{words(name), QVariantMap{{QStringLiteral("value"), values}}}};
}

QVariantMap joined(const QVariantMap &one, const QVariantMap &other)
{
    QVariantMap all = one;
    for (auto entry = other.begin(); entry != other.end(); ++entry)
        all.insert(entry.key(), entry.value());
    return all;
}

using Texts = QHash<QString, QString>;

} // namespace

/** What tokens of captions say about a picture. */
class TestPageTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPlaceIsRead_data();
    void everyPlaceIsRead();
    void xmpComesBeforeIptcAndExif();
    void fieldsComeBeforeProperties();
    void listsAreJoined();
    void whatSaysNothingIsLeftOut();
    void coordinatesNeedBothNumbersAndSides_data();
    void coordinatesNeedBothNumbersAndSides();
};

void TestPageTexts::everyPlaceIsRead_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QVariantMap>("properties");
    const auto row = [](const char *token, const char *group, const char *name) {
        QTest::addRow("%s %s %s", token, group, name) << words(token) << stated(group, name, words("Möwe"));
    };
    row("title", "{XMP}", "dc:title");
    row("title", "{IPTC}", "ObjectName");
    row("headline", "{XMP}", "photoshop:Headline");
    row("headline", "{IPTC}", "Headline");
    row("caption", "{XMP}", "dc:description");
    row("caption", "{IPTC}", "Caption/Abstract");
    row("caption", "{TIFF}", "ImageDescription");
    row("creator", "{XMP}", "dc:creator");
    row("creator", "{IPTC}", "Byline");
    row("creator", "{TIFF}", "Artist");
    row("copyright", "{XMP}", "dc:rights");
    row("copyright", "{IPTC}", "CopyrightNotice");
    row("copyright", "{TIFF}", "Copyright");
    row("keywords", "{XMP}", "dc:subject");
    row("keywords", "{IPTC}", "Keywords");
    row("sublocation", "{XMP}", "iptc:Location");
    row("sublocation", "{IPTC}", "SubLocation");
    row("city", "{XMP}", "photoshop:City");
    row("city", "{IPTC}", "City");
    row("state", "{XMP}", "photoshop:State");
    row("state", "{IPTC}", "Province/State");
    row("country", "{XMP}", "photoshop:Country");
    row("country", "{IPTC}", "Country/PrimaryLocationName");
}

void TestPageTexts::everyPlaceIsRead()
{
    QFETCH(const QString, token);
    QFETCH(const QVariantMap, properties);
    QCOMPARE(jobs::pageTexts(properties, {}), (Texts{{token, words("Möwe")}}));
}

void TestPageTexts::xmpComesBeforeIptcAndExif()
{
    const QVariantMap exif = stated("{TIFF}", "Artist", words("EXIF"));
    const QVariantMap iptc = stated("{IPTC}", "Byline", words("IPTC"));
    const QVariantMap xmp = stated("{XMP}", "dc:creator", words("XMP"));
    QCOMPARE(jobs::pageTexts(joined(joined(exif, iptc), xmp), {}), (Texts{{words("creator"), words("XMP")}}));
    QCOMPARE(jobs::pageTexts(joined(exif, iptc), {}), (Texts{{words("creator"), words("IPTC")}}));
}

/** The form and the sidecar count: what the person sees there is what the page says. */
void TestPageTexts::fieldsComeBeforeProperties()
{
    const QVariantMap properties =
        joined(stated("{XMP}", "dc:title", words("in the file")), stated("{IPTC}", "City", words("Porto")));
    QCOMPARE(jobs::pageTexts(properties, field("title", {words("in the form")})),
             (Texts{{words("title"), words("in the form")}, {words("city"), words("Porto")}}));
    // An empty field says nothing.
    QCOMPARE(jobs::pageTexts(properties, field("title", {})).value(words("title")), words("in the file"));
}

void TestPageTexts::listsAreJoined()
{
    const QVariantList list = {words("gull"), words(" "), words(" sea ")};
    QCOMPARE(jobs::pageTexts(stated("{XMP}", "dc:subject", list), {}).value(words("keywords")), words("gull, sea"));
    QCOMPARE(jobs::pageTexts({}, field("keywords", {words("gull"), words("sea")})).value(words("keywords")),
             words("gull, sea"));
}

void TestPageTexts::whatSaysNothingIsLeftOut()
{
    QVERIFY(jobs::pageTexts({}, {}).isEmpty());
    QVERIFY(jobs::pageTexts(stated("{XMP}", "dc:title", words("  \n")), field("title", {QString()})).isEmpty());
    QVERIFY(
        jobs::pageTexts(stated("{XMP}", "dc:format", words("image/jpeg")), field("label", {words("Red")})).isEmpty());
    // A group that is no map, as a damaged file may have it.
    QVERIFY(jobs::pageTexts({{words("{XMP}"), words("dc:title")}}, {{words("title"), words("text")}}).isEmpty());
}

void TestPageTexts::coordinatesNeedBothNumbersAndSides_data()
{
    QTest::addColumn<QVariantMap>("gps");
    QTest::addColumn<QString>("text");
    const QVariantMap whole = {{words("Latitude"), 48.208488},
                               {words("LatitudeRef"), words("N")},
                               {words("Longitude"), 16.37208},
                               {words("LongitudeRef"), words("East")}};
    const auto without = [&whole](const char *name) {
        QVariantMap rest = whole;
        rest.remove(words(name));
        return rest;
    };
    const auto with = [&whole](const char *name, const QVariant &value) {
        QVariantMap other = whole;
        other.insert(words(name), value);
        return other;
    };
    QTest::newRow("whole") << whole << words("48.20849° N, 16.37208° E");
    QTest::newRow("south") << with("LatitudeRef", words("south")) << words("48.20849° S, 16.37208° E");
    QTest::newRow("no latitude") << without("Latitude") << QString();
    QTest::newRow("no longitude") << without("Longitude") << QString();
    QTest::newRow("no side") << without("LongitudeRef") << QString();
    QTest::newRow("empty side") << with("LatitudeRef", QString()) << QString();
    QTest::newRow("no number") << with("Latitude", words("north")) << QString();
}

void TestPageTexts::coordinatesNeedBothNumbersAndSides()
{
    QFETCH(const QVariantMap, gps);
    QFETCH(const QString, text);
    QCOMPARE(jobs::pageTexts({{words("{GPS}"), gps}}, {}).value(words("coordinates")), text);
}

QUORLIN_TEST(TestPageTexts)
#include "tst_page_texts.moc"
