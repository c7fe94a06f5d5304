#include "tests/support/test_program.h"
#include "text/token_values.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

using text::Expanded;
using text::TokenFacts;
using text::TokenLanguage;

namespace {

TokenFacts someFacts()
{
    TokenFacts facts;
    facts.path = QStringLiteral("/photos/Holiday/IMG_4711.JPG");
    facts.taken = QStringLiteral("2026-08-14T10:20:30");
    facts.created = QStringLiteral("2025-01-02T03:04:05");
    facts.changed = QStringLiteral("2024-12-31T23:59:58");
    facts.camera = QStringLiteral("Canon EOS 40D");
    facts.lens = QStringLiteral("EF 50mm");
    facts.type = QStringLiteral("JPEG");
    facts.size = QStringLiteral("2.4 MB");
    facts.bytes = 2440000;
    facts.pixels = QSize(4032, 3024);
    facts.rating = 4;
    return facts;
}

Expanded expanded(const QString &pattern, const TokenFacts &facts, const text::StandIn &standIn = {},
                  const text::Clean &clean = {})
{
    return text::expandTokens(text::tokenParts(pattern), facts, TokenLanguage::English, standIn, clean);
}

QString textOf(const char *pattern, const TokenFacts &facts)
{
    return expanded(QString::fromUtf8(pattern), facts).text;
}

/** Puts "<" and ">" around every text. */
class Marking : public QTranslator
{
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return u'<' + QString::fromUtf8(source) + u'>';
    }
};

} // namespace

class TestTokenValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expands_data();
    void expands();
    void hasAValueForEveryToken();
    void takesTheDateOfChangeWhereNoneWasTaken();
    void countsOnFromTheFirstNumber();
    void tellsWhatIsMissing();
    void putsInWhatStandsForAMissingValue();
    void expandsWithoutFactsWhatThePathTells();
    void takesApartPaths_data();
    void takesApartPaths();
    void cleansValuesAndLeavesThePatternAsItIs();
    void isNotMisledByValuesThatLookLikeTokens();
    void wordsSizes_data();
    void wordsSizes();
    void takesPartsOfNames_data();
    void takesPartsOfNames();
    void writesDates_data();
    void writesDates();
    void tellsHowAPictureLies_data();
    void tellsHowAPictureLies();
    void keepsEnglishWhereItIsAskedFor();
};

void TestTokenValues::expands_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *pattern, const char *text) {
        QTest::newRow(pattern) << QString::fromUtf8(pattern) << QString::fromUtf8(text);
    };
    row("", "");
    row("{name}.{extension}", "IMG_4711.JPG");
    row("{folder}", "Holiday");
    row("{taken}", "2026-08-14");
    row("{taken:yyyy}/{taken:MM}", "2026/08");
    row("{taken:yyMMdd HHmmss}", "260814 102030");
    row("{taken:dd. MMM yyyy}", "14. Aug 2026");
    row("{taken:EEE}", "Fri");
    row("{date:yyyyMMdd}", "20260814");
    row("{created:yyyy-MM-dd}", "2025-01-02");
    row("{changed:EEE HH:mm:ss}", "Tue 23:59:58");
    row("{camera}, {lens}", "Canon EOS 40D, EF 50mm");
    row("{width}x{height}", "4032x3024");
    row("{size}", "2.4 MB");
    row("{size:class}", "1 to 5 MB");
    row("{size:MB}", "2.4");
    row("{type}", "JPEG");
    row("{orientation}", "Landscape");
    row("{rating}", "4");
    row("{counter}", "1");
    row("{counter:}", "1");
    row("{counter:001}", "001");
    row("{counter:0098}", "0098");
    row("{{name}", "{name}");
    row("{name:3}", "IMG");
    row("{name:word}", "IMG");
    row("{name:~dsc, img}", "img");
}

void TestTokenValues::expands()
{
    QFETCH(QString, pattern);
    const Expanded made = expanded(pattern, someFacts());
    QTEST(made.text, "text");
    QCOMPARE(made.missing, QStringList());
}

void TestTokenValues::hasAValueForEveryToken()
{
    for (const text::OfferedToken &each : text::offeredTokens()) {
        const Expanded made = expanded(u'{' + each.name + u'}', someFacts());
        QVERIFY2(!made.text.isEmpty() && made.missing.isEmpty(), qPrintable(each.name));
    }
}

void TestTokenValues::takesTheDateOfChangeWhereNoneWasTaken()
{
    TokenFacts facts = someFacts();
    facts.taken.clear();
    QCOMPARE(textOf("{date}", facts), QStringLiteral("2024-12-31"));
}

void TestTokenValues::countsOnFromTheFirstNumber()
{
    const auto counted = [](const char *pattern, qint64 index) {
        TokenFacts facts;
        facts.index = index;
        return textOf(pattern, facts);
    };
    QCOMPARE(counted("{counter:01}", 0), QStringLiteral("01"));
    QCOMPARE(counted("{counter:01}", 1), QStringLiteral("02"));
    QCOMPARE(counted("{counter:01}", 9), QStringLiteral("10"));
    QCOMPARE(counted("{counter:01}", 99), QStringLiteral("100"));
    QCOMPARE(counted("{counter:098}", 2), QStringLiteral("100"));
    QCOMPARE(counted("{counter:000}", 0), QStringLiteral("000"));
    QCOMPARE(counted("{counter:001}", -3), QStringLiteral("0-2"));
    QCOMPARE(counted("{counter:999999999}", 9999000000), QStringLiteral("10998999999"));
    QCOMPARE(counted("{counter:9999999999999999999}", 1), QString());
}

void TestTokenValues::tellsWhatIsMissing()
{
    TokenFacts facts = someFacts();
    facts.taken.clear();
    facts.camera.clear();
    facts.pixels = QSize(0, 0);
    const Expanded made = expanded(QStringLiteral("{taken:yyyy}-{camera}-{width}-{orientation}-{foo}-{name}"), facts);
    QCOMPARE(made.text, QStringLiteral("-----IMG_4711"));
    QCOMPARE(made.missing.join(u' '), QStringLiteral("taken camera width orientation foo"));
}

void TestTokenValues::putsInWhatStandsForAMissingValue()
{
    const auto standIn = [](const text::TokenPart &part) {
        return QStringLiteral("no %1 %2").arg(part.token, part.form);
    };
    const Expanded made = expanded(QStringLiteral("{name}, {taken:yyyy}"), {}, standIn);
    QCOMPARE(made.text, QStringLiteral("no name , no taken yyyy"));
    QCOMPARE(made.missing.join(u' '), QStringLiteral("name taken"));
}

void TestTokenValues::expandsWithoutFactsWhatThePathTells()
{
    TokenFacts facts;
    facts.path = someFacts().path;
    const Expanded made = expanded(QStringLiteral("{name} {extension} {folder} {taken} {size}"), facts);
    QCOMPARE(made.text, QStringLiteral("IMG_4711 JPG Holiday  "));
    QCOMPARE(made.missing.join(u' '), QStringLiteral("taken size"));
}

void TestTokenValues::takesApartPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folderNameExtension");
    const auto row = [](const char *path, const char *parts) {
        QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(parts);
    };
    row("/a/b.jpg", "a|b|jpg");
    row("/b.tar.gz", "|b.tar|gz");
    row("/a/.hidden", "a|.hidden|");
    row("/a/dot.", "a|dot.|");
    row("/a/plain", "a|plain|");
    row("/a/b/", "b||");
    row("//x", "|x|");
    row("/x.y/z", "x.y|z|");
    row("name.ext", "|name|ext");
    row("", "||");
}

void TestTokenValues::takesApartPaths()
{
    TokenFacts facts;
    QFETCH(QString, path);
    facts.path = path;
    QTEST(textOf("{folder}|{name}|{extension}", facts), "folderNameExtension");
}

void TestTokenValues::cleansValuesAndLeavesThePatternAsItIs()
{
    TokenFacts facts = someFacts();
    facts.camera = QStringLiteral("A/B");
    const auto clean = [](const QString &value) { return QString(value).replace(u'/', u'-'); };
    const auto standIn = [](const text::TokenPart &) { return QStringLiteral("c/d"); };
    QCOMPARE(expanded(QStringLiteral("x/{camera}{foo}"), facts, standIn, clean).text, QStringLiteral("x/A-Bc-d"));
}

void TestTokenValues::isNotMisledByValuesThatLookLikeTokens()
{
    TokenFacts facts = someFacts();
    facts.path = QStringLiteral("/a/{taken}{{.jpg");
    QCOMPARE(textOf("{name}", facts), QStringLiteral("{taken}{{"));
    QCOMPARE(textOf("{{taken} {{", facts), QStringLiteral("{taken} {"));
}

void TestTokenValues::wordsSizes_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("megabytes");
    QTest::addColumn<QString>("sizeClass");
    const auto row = [](qint64 bytes, const char *size, const char *megabytes, const char *sizeClass) {
        QTest::addRow("%lld", bytes) << bytes << QString::fromLatin1(size) << QString::fromLatin1(megabytes)
                                     << QString::fromLatin1(sizeClass);
    };
    row(-1, "", "", "");
    row(0, "0 bytes", "0", "Under 1 MB");
    row(49999, "50 KB", "0", "Under 1 MB");
    row(50000, "50 KB", "0.1", "Under 1 MB");
    row(999999, "1 MB", "1", "Under 1 MB");
    row(1000000, "1 MB", "1", "1 to 5 MB");
    row(2440000, "2.4 MB", "2.4", "1 to 5 MB");
    row(2450000, "2.5 MB", "2.5", "1 to 5 MB");
    row(3000000, "3 MB", "3", "1 to 5 MB");
    row(5000000, "5 MB", "5", "5 to 20 MB");
    row(19999999, "20 MB", "20", "5 to 20 MB");
    row(20000000, "20 MB", "20", "20 MB and more");
    row(123400000, "123.4 MB", "123.4", "20 MB and more");
    row(1250000000, "1.25 GB", "1250", "20 MB and more");
}

void TestTokenValues::wordsSizes()
{
    TokenFacts facts;
    QFETCH(qint64, bytes);
    facts.bytes = bytes;
    QTEST(textOf("{size}", facts), "size");
    QTEST(textOf("{size:MB}", facts), "megabytes");
    QTEST(textOf("{size:class}", facts), "sizeClass");
    facts.size = QStringLiteral("in words");
    QCOMPARE(textOf("{size}", facts), bytes < 0 ? QString() : facts.size);
}

void TestTokenValues::takesPartsOfNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("part");
    const auto row = [](const char *name, const char *form, const char *part) {
        QTest::addRow("%s of %s", form, name)
            << QString::fromUtf8(name) << QString::fromUtf8(form) << QString::fromUtf8(part);
    };
    row("IMG_4711", "", "IMG_4711");
    row("IMG_4711", "word", "IMG");
    row("Holiday 2026", "word", "Holiday");
    row("Müller-Hof", "word", "Müller");
    row("a\u00A0b", "word", "a");
    row("a\uFEFFb", "word", "a");
    row("a\u0085b", "word", "a\u0085b");
    row("a१b", "word", "a१b");
    row("4711", "word", "");
    row("plain", "word", "plain");
    row("_x", "word", "");
    row("ab", "3", "ab");
    row("", "3", "");
    row("a\U0001F600bc", "2", "a\U0001F600");
    row("a bc", "2", "a");
    row("abc", "0", "");
    row("abc", "x", "");
    row("Party at sea", "~sea, party", "sea");
    row("Party at sea", "~ Party ,sea", "Party");
    row("STRASSE", "~strasse", "strasse");
    row("cafe\u0301", "~caf\u00e9", "caf\u00e9");
    row("nothing", "~x", "");
    row("nothing", "~ , ", "");
}

void TestTokenValues::takesPartsOfNames()
{
    QFETCH(QString, name);
    QFETCH(QString, form);
    QTEST(text::namePart(name, form), "part");
}

void TestTokenValues::writesDates_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *date, const char *form, const char *text) {
        QTest::addRow("%s as %s", date, form)
            << QString::fromUtf8(date) << QString::fromUtf8(form) << QString::fromUtf8(text);
    };
    row("2026-01-04T00:00:00", "EEE MMM", "Sun Jan");
    row("2026-12-05T00:00:00", "EEE MMM", "Sat Dec");
    row("2024-02-29T01:02:03", "", "2024-02-29");
    row("2024-02-29T01:02:03", "ss.mm.HH yy", "03.02.01 24");
    row("2024-02-29T01:02:03", "yyyyy", "2024y");
    row("2024-02-29T01:02:03", "MMMM", "FebM");
    row("2024-02-29T01:02:03", "yyyy年MM月\U0001F600", "2024年02月\U0001F600");
    row("2023-02-29T01:02:03", "EEE MMM dd", " Feb 29");
    row("2024-13-01T01:02:03", "EEE MMM MM", "  13");
    row("0000-00-00T00:00:00", "yyyy MMM EEE", "0000  ");
    row("2024", "yyyy-MM-dd HH", "2024-- ");
    row("nonsense", "MMM EEE", " ");
}

void TestTokenValues::writesDates()
{
    QFETCH(QString, date);
    QFETCH(QString, form);
    QTEST(text::dateText(date, form, TokenLanguage::English), "text");
}

void TestTokenValues::tellsHowAPictureLies_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QString>("text");
    QTest::newRow("landscape") << QSize(3, 2) << QStringLiteral("Landscape");
    QTest::newRow("portrait") << QSize(2, 3) << QStringLiteral("Portrait");
    QTest::newRow("square") << QSize(2, 2) << QStringLiteral("Square");
    QTest::newRow("nothing") << QSize(0, 0) << QString();
    QTest::newRow("no size") << QSize() << QString();
    QTest::newRow("no height") << QSize(3, 0) << QString();
}

void TestTokenValues::tellsHowAPictureLies()
{
    QFETCH(QSize, pixels);
    QTEST(text::orientationText(pixels, TokenLanguage::English), "text");
}

void TestTokenValues::keepsEnglishWhereItIsAskedFor()
{
    Marking marking;
    QVERIFY(QCoreApplication::installTranslator(&marking));
    const auto parts = text::tokenParts(QStringLiteral("{orientation}, {size:class}"));
    QCOMPARE(text::expandTokens(parts, someFacts(), TokenLanguage::English).text,
             QStringLiteral("Landscape, 1 to 5 MB"));
    QCOMPARE(text::expandTokens(parts, someFacts(), TokenLanguage::Reader).text,
             QStringLiteral("<Landscape>, <1 to 5 MB>"));
    const QString date = QStringLiteral("2026-01-04T00:00:00");
    QCOMPARE(text::dateText(date, QStringLiteral("EEE|MMM"), TokenLanguage::English), QStringLiteral("Sun|Jan"));
    QCOMPARE(text::dateText(date, QStringLiteral("EEE|MMM"), TokenLanguage::Reader), QStringLiteral("<Sun|<Jan"));
    TokenFacts facts;
    facts.bytes = 2440000;
    const auto size = text::tokenParts(QStringLiteral("{size}"));
    QCOMPARE(text::expandTokens(size, facts, TokenLanguage::English).text, QStringLiteral("2.4 MB"));
    QVERIFY(text::expandTokens(size, facts, TokenLanguage::Reader).text.contains(u'<'));
}

QUORLIN_TEST(TestTokenValues)
#include "tst_token_values.moc"
