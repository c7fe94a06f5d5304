#include "presets/layout.h"
#include "presets/names.h"
#include "presets/statements.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace presets;

/** The texts of the statements and the layout of the tables, letter for letter. */
class TestStatements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheColumnsOfPresets();
    void namesTheColumnsOfTheOtherTables();
    void declaresTypesByPlaceAlone();
    void seedsOneTextAndNothingElse();
    void numbersTheSampleRow();
    void createsWithCommaAndBlank();
    void insertsWithOneBlankAfterTheSecondComma();
    void writesTheQueries_data();
    void writesTheQueries();
    void writesNothingAsAFormatDoes();
    void tellsNamesFromOtherTexts_data();
    void tellsNamesFromOtherTexts();
    void readsListsOfColumns_data();
    void readsListsOfColumns();
    void foldsTheLettersOfEnglishOnly();
    void isNotSoundWithAQuoteOrANul_data();
    void isNotSoundWithAQuoteOrANul();
};

void TestStatements::namesTheColumnsOfPresets()
{
    const QStringList names = presetColumns();
    QCOMPARE(names.size(), 62);
    QCOMPARE(names.mid(0, 4), QStringLiteral("NameOfPreset Process Action StrField3").split(u' '));
    QCOMPARE(names.last(), QStringLiteral("StrField61"));
    for (int i = 3; i < 62; ++i)
        QCOMPARE(names.at(i), QStringLiteral("StrField%1").arg(i));
}

void TestStatements::namesTheColumnsOfTheOtherTables()
{
    const QStringList names = numberedColumns();
    QCOMPARE(names.size(), 62);
    for (int i = 0; i < 62; ++i)
        QCOMPARE(names.at(i), QStringLiteral("StrField%1").arg(i));
}

void TestStatements::declaresTypesByPlaceAlone()
{
    for (int field = 0; field < 62; ++field)
        QCOMPARE(declaredType(field), field < 21 || field > 41 ? QStringLiteral("Text") : QStringLiteral("Integer"));
}

void TestStatements::seedsOneTextAndNothingElse()
{
    const QStringList row = seedRow(QStringLiteral("appSys"));
    QCOMPARE(row.size(), 62);
    QCOMPARE(row.first(), QStringLiteral("appSys"));
    for (const QString &value : row.mid(1))
        QVERIFY(value.isEmpty() && !value.isNull());
}

void TestStatements::numbersTheSampleRow()
{
    const QStringList row = sampleRow();
    QCOMPARE(row.size(), 62);
    QCOMPARE(row.mid(0, 3), QStringLiteral("myPresetName Sorting ByHand").split(u' '));
    for (int k = 3; k < 62; ++k)
        QCOMPARE(row.at(k), QStringLiteral("Loc%1").arg(k - 2));
}

void TestStatements::createsWithCommaAndBlank()
{
    const QString text = createTable(QStringLiteral("Presets"), presetColumns()).text;
    QVERIFY(text.startsWith(QStringLiteral(
        "Create table if not exists 'Presets' (ID INTEGER PRIMARY KEY AUTOINCREMENT,'NameOfPreset' Text, "
        "'Process' Text, 'Action' Text, 'StrField3' Text, ")));
    QVERIFY(text.contains(QStringLiteral("'StrField20' Text, 'StrField21' Integer, 'StrField22' Integer, ")));
    QVERIFY(text.contains(QStringLiteral("'StrField41' Integer, 'StrField42' Text, ")));
    QVERIFY(text.endsWith(QStringLiteral("'StrField60' Text, 'StrField61' Text);")));
    QCOMPARE(text.count(QStringLiteral("' Text")), 41);
    QCOMPARE(text.count(QStringLiteral("' Integer")), 21);
    QCOMPARE(text.count(u','), 62);
    QCOMPARE(text.count(QStringLiteral(", ")), 61);
}

void TestStatements::insertsWithOneBlankAfterTheSecondComma()
{
    QStringList values = seedRow(QStringLiteral("it"));
    values.last() = QStringLiteral(" x ");
    const QString text = insertRecord(QStringLiteral("T"), numberedColumns(), values).text;
    QVERIFY(text.startsWith(
        QStringLiteral("Insert or replace into 'T' ('StrField0','StrField1', 'StrField2','StrField3','StrField4',")));
    QVERIFY(text.contains(QStringLiteral(",'StrField61') values ('it','', '','','',")));
    QVERIFY(text.endsWith(QStringLiteral(",'','',' x ')")));
    QCOMPARE(text.count(QStringLiteral(", ")), 2);
    QCOMPARE(text.count(u','), 122);
}

void TestStatements::writesTheQueries_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("expected");
    const QString t = QStringLiteral("Presets");
    const QString c = QStringLiteral("Process");
    const QString v = QStringLiteral("a \"b\" -- c");
    QTest::newRow("all") << selectAll(t).text << "SELECT * FROM Presets";
    QTest::newRow("where") << selectWhere(t, c, v).text << "SELECT * FROM Presets WHERE Process = 'a \"b\" -- c'";
    QTest::newRow("delete") << deleteWhere(t, c, v).text << "DELETE FROM Presets WHERE Process = 'a \"b\" -- c'";
    QTest::newRow("columns")
        << selectColumns(QStringLiteral("a, b"), t, {c, v}, {QStringLiteral("d"), QString(u'e')}).text
        << "SELECT a, b FROM Presets WHERE Process = 'a \"b\" -- c' AND d = 'e'";
    QTest::newRow("image") << insertImage().text << "insert into Image(Image)values(?)";
    QTest::newRow("image of a URL") << insertImageOfUrl().text << "INSERT INTO IMAGES (URL, IMAGE) VALUES (?, ?)";
    QTest::newRow("its look-up") << selectImageOfUrl(QStringLiteral("file:///a")).text
                                 << "SELECT IMAGE FROM IMAGES WHERE URL = 'file:///a'";
    QTest::newRow("a quote") << selectWhere(t, c, QStringLiteral("it's")).text
                             << "SELECT * FROM Presets WHERE Process = 'it's'";
}

void TestStatements::writesTheQueries()
{
    QFETCH(QString, written);
    QTEST(written, "expected");
}

void TestStatements::writesNothingAsAFormatDoes()
{
    QCOMPARE(selectWhere(QString(), QString(), QString()).text,
             QStringLiteral("SELECT * FROM (null) WHERE (null) = '(null)'"));
    QVERIFY(!selectWhere(QString(), QString(), QString()).isSound);
    QVERIFY(!selectAll(QString()).isSound);
}

void TestStatements::tellsNamesFromOtherTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name"); // null: none
    const auto good = [](const char *text, const char *name) {
        QTest::addRow("name: %s", text) << QString::fromUtf8(text) << QString::fromUtf8(name);
    };
    good("Presets", "Presets");
    good(" \tPresets\n", "Presets");
    good("_a$1", "_a$1");
    good("Größe", "Größe");
    good("main.Presets", "Presets");
    good("main.Presets.Process", "Process");
    good("\"two words\"", "two words");
    good("\"a\"\"b\"", "a\"b");
    good("[a]", "a");
    good("`a``b`", "a`b");
    good("main.\"x\"", "x");
    for (const char *text : {"",    " ",  "1",  "1a",     "a b",         "a.b.c.d", "a.", ".a",  "a..b", "'a'",
                             "\"a", "[a", "`a", "\"a\"b", "a--",         "a/**/",   "a;", "a,b", "a=b",  "a()",
                             "(a)", "-a", "+a", "a||b",   "a\xc2\xa0 b", "?1",      ":a", "@a",  "*",    "a.*"})
        QTest::addRow("none: %s", text) << QString::fromUtf8(text) << QString();
}

void TestStatements::tellsNamesFromOtherTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    QCOMPARE(oneName(text, 3).value_or(QString()), name);
    QCOMPARE(oneName(text, 3).has_value(), !name.isNull());
    const bool hasThreeParts = text.count(u'.') == 2;
    QCOMPARE(oneName(text, 2).has_value(), !name.isNull() && !hasThreeParts);
    QVERIFY(!oneName(text + QChar(u'\0'), 3));
}

void TestStatements::readsListsOfColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("columns"); // with ";" between them; null: none
    QTest::newRow("one") << "StrField1"
                         << "StrField1";
    QTest::newRow("two") << "StrField0, StrField1"
                         << "StrField0;StrField1";
    QTest::newRow("tight") << "a,b,c"
                           << "a;b;c";
    QTest::newRow("all") << "*"
                         << "*";
    QTest::newRow("all and more") << " ID , * "
                                  << "ID;*";
    QTest::newRow("quoted") << "\"a,b\",c"
                            << "a,b;c";
    for (const char *text :
         {"", ",", "a,", ",a", "a b", "a AS b", "1, a", "hex(a), b", "a, 'b'", "**", "* *", "a; b", "a--, b"})
        QTest::addRow("none: %s", text) << QString::fromUtf8(text) << QString();
}

void TestStatements::readsListsOfColumns()
{
    QFETCH(QString, text);
    QFETCH(QString, columns);
    const auto list = columnList(text);
    QCOMPARE(list.has_value(), !columns.isNull());
    QCOMPARE(list.value_or(QStringList()).join(u';'), columns);
}

void TestStatements::foldsTheLettersOfEnglishOnly()
{
    QVERIFY(isSameName(QStringLiteral("AppBookMarks"), QStringLiteral("AppBookmarks")));
    QVERIFY(!isSameName(QStringLiteral("ä"), QStringLiteral("Ä")));
    QVERIFY(!isSameName(QStringLiteral("a"), QStringLiteral("ab")));
    QVERIFY(!isSameName(QStringLiteral("@"), QStringLiteral("`"))); // 32 apart, and no letters
}

void TestStatements::isNotSoundWithAQuoteOrANul_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isSound");
    QTest::newRow("plain") << "x" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("double quote") << "\"" << true;
    QTest::newRow("quote") << "it's" << false;
    QTest::newRow("doubled quote") << "it''s" << false;
    QTest::newRow("nul") << QString(QChar(u'\0')) << false;
    QTest::newRow("nul inside") << QStringLiteral("a") + QChar(u'\0') + u'b' << false;
}

void TestStatements::isNotSoundWithAQuoteOrANul()
{
    QFETCH(QString, text);
    QFETCH(bool, isSound);
    const QString t = QStringLiteral("T");
    QCOMPARE(selectWhere(t, t, text).isSound, isSound);
    QCOMPARE(deleteWhere(t, t, text).isSound, isSound);
    QCOMPARE(selectColumns(t, t, {t, text}, {t, t}).isSound, isSound);
    QCOMPARE(selectColumns(t, t, {t, t}, {t, text}).isSound, isSound);
    QCOMPARE(selectImageOfUrl(text).isSound, isSound);
    QCOMPARE(createTable(text, numberedColumns()).isSound, isSound);
    QCOMPARE(insertRecord(text, numberedColumns(), sampleRow()).isSound, isSound);
    for (int i = 0; i < fieldCount; ++i) {
        QStringList odd = numberedColumns();
        odd[i] = text;
        QCOMPARE(createTable(t, odd).isSound, isSound);
        QCOMPARE(insertRecord(t, odd, sampleRow()).isSound, isSound);
        QCOMPARE(insertRecord(t, numberedColumns(), odd).isSound, isSound);
    }
}

QUORLIN_TEST(TestStatements)
#include "tst_statements.moc"
