#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "tests/support/log_capture.h"
#include "tests/support/preset_store.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QDate>
#include <QTest>

namespace {

const QString presetsTable = QStringLiteral("Presets");
const QString nameColumn = QStringLiteral("NameOfPreset");
const QString alpha = QStringLiteral("Alpha");
const QString notFound = QStringLiteral("preset not found");
const QString insertFailure = QStringLiteral("InternalInconsistency: Error updating table.");
const QString createFailure = QStringLiteral("InternalInconsistency: Presets Table failed to create.");

QString text(const char *latin)
{
    return QString::fromUtf8(latin);
}

/** What somebody may want to happen once the quotation marks around a value are closed. */
const char *const wishes[] = {
    "",
    " OR '1'='1",
    " OR 1=1 --",
    " OR 1=1 /*",
    " OR 1=1;",
    " OR NameOfPreset LIKE '%",
    " OR EXISTS (SELECT 1 FROM AppResource) --",
    " AND randomblob(1000000000) --",
    "; DROP TABLE Presets; --",
    "; DROP TABLE Presets; SELECT '",
    "; DELETE FROM Presets; --",
    "; DELETE FROM Presets WHERE '1'='1",
    "; UPDATE Presets SET NameOfPreset='x'; --",
    "; INSERT INTO AppResource (StrField0) VALUES ('x'); --",
    "; CREATE TABLE Stolen (a); --",
    "; CREATE TRIGGER t AFTER INSERT ON Presets BEGIN DELETE FROM Presets; END; --",
    "; ALTER TABLE Presets RENAME TO Gone; --",
    "; VACUUM; --",
    "; VACUUM INTO 'copy.sql",
    "; PRAGMA writable_schema=ON; --",
    "; PRAGMA user_version=7; --",
    "; PRAGMA journal_mode=WAL; --",
    "; ATTACH DATABASE 'other.sql' AS other; --",
    "; ATTACH DATABASE ':memory:' AS other; CREATE TABLE other.t(a); --",
    "; SELECT load_extension('evil'); --",
    "; BEGIN EXCLUSIVE; --",
    "; SAVEPOINT s; --",
    "; ANALYZE; --",
    "; REINDEX; --",
    " UNION SELECT * FROM AppResource --",
    " UNION ALL SELECT * FROM AppBookmarks WHERE '1'='1",
    " UNION SELECT 1,name,sql FROM sqlite_schema --",
    " EXCEPT SELECT * FROM Presets --",
    ") --",
    "); DROP TABLE Presets; --",
    "'),('x",
    " || (SELECT group_concat(name) FROM sqlite_schema) || '",
    " || hex(zeroblob(10)) || '",
    " COLLATE NOCASE OR '",
    " ORDER BY load_extension('x') --",
    " LIMIT 0 --",
    " RETURNING *; --",
};

/** How a value may try to get out of its quotes. */
QStringList hostileValues()
{
    QStringList values;
    for (const char *const wish : wishes)
        for (const char *const opening : {"'", "Alpha'", "Alpha''", "\\'", "x'41'"})
            values.append(text(opening) + text(wish));
    const QString nul(1, QChar(u'\0'));
    values += {nul, alpha + nul, nul + alpha, alpha + nul + QStringLiteral("' OR 1=1"), QStringLiteral("'") + nul};
    const QString megabytes(3'000'000, u'x');
    values += {megabytes + u'\'', u'\'' + megabytes, megabytes + QStringLiteral("''") + megabytes,
               QString(200'000, u'\''), megabytes + nul};
    return values;
}

/** Texts in the place of a table's or a column's name, and a value that would make the outcome true for every row. */
struct HostileName
{
    QString name;
    QString value;
};

const char *const hostileTables[] = {
    "",
    "Presets --",
    "Presets--",
    "Presets /*",
    "Presets;",
    "Presets; DROP TABLE Presets; --",
    "Presets; DELETE FROM Presets",
    "Presets WHERE 1=1 --",
    "Presets WHERE 1 OR NameOfPreset",
    "Presets, AppResource",
    "Presets JOIN AppResource",
    "Presets NATURAL JOIN AppResource",
    "Presets UNION SELECT * FROM AppResource",
    "Presets p",
    "Presets AS p",
    "Presets INDEXED BY x",
    "Presets NOT INDEXED",
    "(SELECT * FROM Presets)",
    "(SELECT * FROM Presets) AS Presets",
    "(Presets)",
    "'Presets'",
    "\"Presets",
    "\"Presets\" --",
    "Presets\"",
    "[Presets",
    "`Presets",
    "temp.Presets",
    "other.Presets",
    "main.main.Presets",
    "NoSuchTable",
    "pragma_table_list",
    "pragma_user_version",
    "pragma_journal_mode",
    "pragma_table_info('Presets')",
    "json_each('[1]')",
    "json_each",
    "json_tree",
    "dbstat",
    "sqlite_dbpage",
    "sqlite_stmt",
    "bytecode",
    "generate_series(1,1000000000)",
    "load_extension('evil')",
    "AllPresets", // a view
};

const HostileName hostileColumns[] = {
    {text(""), alpha},
    {text("1"), text("1")},
    {text("'x'"), text("x")},
    {text("\"x\""), text("x")},
    {text("'Alpha"), alpha},
    {text("NameOfPreset --"), alpha},
    {text("NameOfPreset IS NOT NULL --"), alpha},
    {text("1=1 --"), alpha},
    {text("1=1 OR NameOfPreset"), alpha},
    {text("NameOfPreset = NameOfPreset OR NameOfPreset"), alpha},
    {text("NameOfPreset <> NameOfPreset OR ID > 0 OR NameOfPreset"), alpha},
    {text("EXISTS (SELECT 1) OR NameOfPreset"), alpha},
    {text("NameOfPreset IN (SELECT NameOfPreset FROM Presets) OR NameOfPreset"), alpha},
    {text("(SELECT 'Alpha')"), alpha},
    {text("(NameOfPreset)"), alpha},
    {text("NameOfPreset COLLATE NOCASE"), text("ALPHA")},
    {text("CAST(1 AS TEXT)"), text("1")},
    {text("hex(NameOfPreset)"), text("416C706861")},
    {text("typeof(NameOfPreset)"), text("text")},
    {text("sqlite_version()"), text("3.40.1")},
    {text("load_extension('evil')"), alpha},
    {text("random()"), alpha},
    {text("changes()"), text("0")},
    {text("current_date"), QDate::currentDate().toString(Qt::ISODate)},
    {text("current_timestamp"), alpha},
    {text("true"), text("1")},
    {text("false"), text("0")},
    {text("NULL"), alpha},
    {text("NOT NameOfPreset"), alpha},
    {text("+NameOfPreset"), alpha},
    {text("-ID"), text("-1")},
    {text("ID+0"), text("1")},
    {text("NameOfPreset || ''"), alpha},
    {text("NameOfPreset, Process"), alpha},
    {text("*"), alpha},
    {text("?"), alpha},
    {text("?1"), alpha},
    {text(":a"), alpha},
    {text("@a"), alpha},
    {text("x'41'"), text("A")},
    {text("NoSuchColumn"), alpha},
    {text("\"NoSuchColumn\""), text("NoSuchColumn")},
    {text("[NoSuchColumn]"), text("NoSuchColumn")},
    {text("AppResource.StrField0"), text("appSys")},
    {text("main.AppResource.StrField0"), text("appSys")},
    {text("a.b.c.NameOfPreset"), alpha},
    {text("NameOfPreset; DROP TABLE Presets; --"), alpha},
    {text("RAISE(ABORT, 'x')"), alpha},
    {text("CASE WHEN 1 THEN 'Alpha' END"), alpha},
    {text("Presets"), alpha},
};

} // namespace

/** Names and values that would make a statement something else: nothing changes, and the statement counts as invalid. */
class TestHostileTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void failsWithAHostileValue_data();
    void failsWithAHostileValue();
    void failsWithAHostileTable_data();
    void failsWithAHostileTable();
    void failsWithAHostileColumn_data();
    void failsWithAHostileColumn();
    void failsWithAHostileSelection_data();
    void failsWithAHostileSelection();
    void failsWithANameOfMegabytes();
    void changesNoTableOfTheDatabaseItself_data();
    void changesNoTableOfTheDatabaseItself();
    void keepsWhatOnlyLooksHostile_data();
    void keepsWhatOnlyLooksHostile();
    void keepsMegabytesOfText();
    void takesEveryFormOfARealName_data();
    void takesEveryFormOfARealName();
    void firesNoTriggerOfOthers();

private:
    void queriesFail(const QString &table, const QString &column, const QString &value);
    void lookUpFails(const QStringList &arguments);

    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<dbViewController> m_db;
    QByteArray m_bytes;
    platform::SharedTexts m_list;
};

void TestHostileTexts::initTestCase()
{
    m_store = std::make_unique<PresetStore>();
    dbViewController db;
    db.linkToPresetsDB();
    for (const QString &name : {alpha, QStringLiteral("Beta"), QStringLiteral("Gamma")})
        db.insertSortingPresetToDB01(presetRow(name, QStringLiteral("Sorting"), QStringLiteral("ByHand")));
    m_store->sql("CREATE TABLE IMAGES (URL TEXT, IMAGE BLOB)");
    m_store->sql("INSERT INTO IMAGES VALUES ('file:///a', 'bytes')");
    m_store->sql("CREATE VIEW AllPresets AS SELECT * FROM Presets");
    m_bytes = m_store->bytes();
}

void TestHostileTexts::init()
{
    m_store->write(m_bytes);
    m_db = std::make_unique<dbViewController>();
    // Results of earlier calls, which a failing one must answer with.
    m_list = m_db->checkForActionType(presetsTable, nameColumn, alpha);
    QCOMPARE(m_list.texts().size(), 1);
    const LogCapture log;
    QCOMPARE(m_db->hGetBookMarkedFolders(presetsTable, nameColumn, alpha, QStringLiteral("Process"),
                                         QStringLiteral("Sorting"), QStringLiteral("*")),
             QByteArray("Alpha"));
}

void TestHostileTexts::queriesFail(const QString &table, const QString &column, const QString &value)
{
    QCOMPARE(m_db->checkPresetNameFromTableNamed(presetsTable, nameColumn, alpha), alpha);
    QCOMPARE(m_db->checkPresetNameFromTableNamed(table, column, value), alpha);
    QVERIFY(m_db->checkForActionType(table, column, value) == m_list);
    QCOMPARE(m_list.texts().size(), 1);
    QCOMPARE(m_db->removePresetFromDatabase(table, column, value), notFound);
    QVERIFY(!m_db->connection().isOpen());
    QCOMPARE(m_store->bytes(), m_bytes);
}

void TestHostileTexts::lookUpFails(const QStringList &arguments)
{
    LogCapture log;
    const QByteArray found =
        m_db->hGetBookMarkedFolders(arguments[0], arguments[1], arguments[2], arguments[3], arguments[4], arguments[5]);
    const QByteArray lines = log.text();
    QCOMPARE(found, QByteArray("Alpha"));
    QVERIFY(lines.startsWith("SQL: SELECT "));
    QVERIFY(!lines.contains("\ncheck"));
    QCOMPARE(m_store->bytes(), m_bytes);
}

void TestHostileTexts::failsWithAHostileValue_data()
{
    QTest::addColumn<QString>("value");
    const QStringList values = hostileValues();
    QVERIFY(values.size() >= 200);
    for (const QString &value : values)
        QTest::addRow("%d: %s", int(values.indexOf(value)), qPrintable(value.left(60))) << value;
}

void TestHostileTexts::failsWithAHostileValue()
{
    QFETCH(QString, value);
    queriesFail(presetsTable, nameColumn, value);
    lookUpFails({presetsTable, nameColumn, value, nameColumn, alpha, QStringLiteral("*")});
    lookUpFails({presetsTable, nameColumn, alpha, nameColumn, value, QStringLiteral("*")});
    m_db->openmyPresetsDb();
    QVERIFY(m_db->LoadImagesFromSql(value).isNull());
    for (const int field : {0, 30, 61}) {
        QStringList row = presets::sampleRow();
        row[field] = value;
        QCOMPARE(raisedBy([&] { m_db->insertSortingPresetToDB01(row); }), insertFailure);
        QCOMPARE(raisedBy([&] { m_db->insertRecordIntoTableNamed(presetsTable, row, presets::sampleRow()); }),
                 insertFailure);
        m_db->openmyPresetsDb();
        QCOMPARE(raisedBy([&] { m_db->createTableNamed(QStringLiteral("T"), row); }), createFailure);
    }
    QCOMPARE(raisedBy([&] { m_db->insertRecordIntoTableNamed(value, presets::presetColumns(), presets::sampleRow()); }),
             insertFailure);
    m_db->openmyPresetsDb();
    QCOMPARE(raisedBy([&] { m_db->createTableNamed(value, presets::presetColumns()); }), createFailure);
    QCOMPARE(m_store->bytes(), m_bytes);
}

void TestHostileTexts::failsWithAHostileTable_data()
{
    QTest::addColumn<QString>("table");
    for (const char *const table : hostileTables)
        QTest::addRow("%s", table) << text(table);
    QTest::newRow("NUL") << presetsTable + QChar(u'\0');
    QTest::newRow("null") << QString();
}

void TestHostileTexts::failsWithAHostileTable()
{
    QFETCH(QString, table);
    queriesFail(table, nameColumn, alpha);
    lookUpFails({table, nameColumn, alpha, nameColumn, alpha, QStringLiteral("*")});
    m_db->getAllRowsFromTableNamed(table);
    QCOMPARE(m_store->bytes(), m_bytes);
}

void TestHostileTexts::failsWithAHostileColumn_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("value");
    for (const HostileName &hostile : hostileColumns)
        QTest::addRow("%s", qPrintable(hostile.name)) << hostile.name << hostile.value;
    QTest::newRow("NUL") << nameColumn + QChar(u'\0') << alpha;
    QTest::newRow("null") << QString() << QStringLiteral("(null)");
}

void TestHostileTexts::failsWithAHostileColumn()
{
    QFETCH(QString, column);
    QFETCH(QString, value);
    queriesFail(presetsTable, column, value);
    const QString all = QStringLiteral("*");
    lookUpFails({presetsTable, column, value, nameColumn, alpha, all});
    lookUpFails({presetsTable, nameColumn, alpha, column, value, all});
}

void TestHostileTexts::failsWithAHostileSelection_data()
{
    QTest::addColumn<QString>("selected");
    for (const char *const selected : {"",
                                       "1, 2",
                                       "'a', 'b'",
                                       "ID, hex(NameOfPreset)",
                                       "ID, load_extension('evil')",
                                       "ID, (SELECT 'x')",
                                       "ID, sqlite_version()",
                                       "ID, group_concat(NameOfPreset)",
                                       "ID, randomblob(9)",
                                       "ID, current_date",
                                       "ID, true",
                                       "ID, NULL",
                                       "ID AS a, NameOfPreset",
                                       "DISTINCT ID, NameOfPreset",
                                       "ALL ID, NameOfPreset",
                                       "ID, NameOfPreset FROM Presets --",
                                       "* FROM AppResource --",
                                       "*; DROP TABLE Presets; --",
                                       "ID, NameOfPreset UNION SELECT 1, 2",
                                       "ID, NoSuchColumn",
                                       "ID, \"NoSuchColumn\"",
                                       "ID,",
                                       ", ID",
                                       "ID NameOfPreset",
                                       "AppResource.StrField0, ID",
                                       "ID, *, /*",
                                       "ID, *--",
                                       "ID, ?",
                                       "ID, -ID",
                                       "ID, name'"})
        QTest::addRow("%s", selected) << text(selected);
    QTest::newRow("NUL") << QStringLiteral("*") + QChar(u'\0');
    QTest::newRow("null") << QString();
}

void TestHostileTexts::failsWithAHostileSelection()
{
    QFETCH(QString, selected);
    lookUpFails({presetsTable, nameColumn, alpha, nameColumn, alpha, selected});
}

void TestHostileTexts::failsWithANameOfMegabytes()
{
    const QString megabytes(3'000'000, u'x');
    queriesFail(megabytes, nameColumn, alpha);
    queriesFail(presetsTable, megabytes, alpha);
    lookUpFails({presetsTable, nameColumn, alpha, nameColumn, alpha, megabytes});
    queriesFail(u'(' + megabytes, nameColumn, alpha);
    queriesFail(QString(100'000, u'('), nameColumn, alpha);
}

void TestHostileTexts::changesNoTableOfTheDatabaseItself_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("value");
    QTest::newRow("counters") << "sqlite_sequence"
                              << "name"
                              << "Presets";
    QTest::newRow("counters, capitals") << "SQLITE_SEQUENCE"
                                        << "name"
                                        << "Presets";
    QTest::newRow("list of tables") << "sqlite_master"
                                    << "name"
                                    << "Presets";
    QTest::newRow("list of tables, new name") << "sqlite_schema"
                                              << "name"
                                              << "Presets";
}

void TestHostileTexts::changesNoTableOfTheDatabaseItself()
{
    QFETCH(QString, table);
    QFETCH(QString, column);
    QFETCH(QString, value);
    QCOMPARE(m_db->removePresetFromDatabase(table, column, value), notFound);
    const QStringList columns(62, column);
    QCOMPARE(raisedBy([&] { m_db->insertRecordIntoTableNamed(table, columns, presets::sampleRow()); }), insertFailure);
    m_db->openmyPresetsDb();
    QCOMPARE(raisedBy([&] { m_db->createTableNamed(QStringLiteral("sqlite_mine"), presets::numberedColumns()); }),
             createFailure);
    QCOMPARE(m_store->bytes(), m_bytes);
}

void TestHostileTexts::keepsWhatOnlyLooksHostile_data()
{
    QTest::addColumn<QString>("value");
    for (const char *const wish : wishes) {
        QString value = text(wish);
        if (!value.isEmpty())
            QTest::addRow("%s", wish) << value.remove(u'\'');
    }
    for (const char *const value :
         {"\"; DROP TABLE Presets; --", "%", "_", "%s%n%@", "\\", "\\0", "\n;\r\n--", "`[\"", "?1", "${a}",
          "\xf0\x9f\x99\x82", "\xe2\x80\x99", "\xef\xbc\x87", "\xca\xbc"}) // quotes in other scripts
        QTest::addRow("%s", value) << text(value);
}

void TestHostileTexts::keepsWhatOnlyLooksHostile()
{
    QFETCH(QString, value);
    const QStringList before = m_store->everything();
    QStringList row = presets::sampleRow();
    row[0] = row[20] = row[61] = value;
    m_db->insertSortingPresetToDB01(row);
    QCOMPARE(m_db->checkPresetNameFromTableNamed(presetsTable, nameColumn, value), value);
    QCOMPARE(m_db->checkForActionType(presetsTable, nameColumn, value).texts(), QStringList{row.join(u'|')});
    QCOMPARE(m_store->sql("SELECT count(*) FROM Presets"), QStringList{QStringLiteral("4")});
    QCOMPARE(m_db->removePresetFromDatabase(presetsTable, nameColumn, value), value);
    m_store->sql("UPDATE sqlite_sequence SET seq = 3 WHERE name = 'Presets'");
    QCOMPARE(m_store->everything(), before);
}

void TestHostileTexts::keepsMegabytesOfText()
{
    const QString megabytes(3'000'000, u'x');
    QCOMPARE(m_db->checkPresetNameFromTableNamed(presetsTable, nameColumn, alpha), alpha);
    QCOMPARE(m_db->checkPresetNameFromTableNamed(presetsTable, nameColumn, megabytes), alpha);
    QCOMPARE(m_store->bytes(), m_bytes);
    QStringList row = presets::sampleRow();
    row[3] = row[61] = megabytes;
    m_db->insertSortingPresetToDB01(row);
    QCOMPARE(m_db->checkForActionType(presetsTable, nameColumn, row.first()).texts(), QStringList{row.join(u'|')});
}

void TestHostileTexts::takesEveryFormOfARealName_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("column");
    QTest::newRow("plain") << "Presets"
                           << "NameOfPreset";
    QTest::newRow("other case") << "PRESETS"
                                << "nameofpreset";
    QTest::newRow("blanks around") << " Presets "
                                   << "\tNameOfPreset\n";
    QTest::newRow("quoted") << "\"Presets\""
                            << "\"NameOfPreset\"";
    QTest::newRow("brackets") << "[Presets]"
                              << "[NameOfPreset]";
    QTest::newRow("back quotes") << "`Presets`"
                                 << "`NameOfPreset`";
    QTest::newRow("dotted") << "main.Presets"
                            << "Presets.NameOfPreset";
    QTest::newRow("three parts") << "main.\"Presets\""
                                 << "main.Presets.NameOfPreset";
}

void TestHostileTexts::takesEveryFormOfARealName()
{
    QFETCH(QString, table);
    QFETCH(QString, column);
    QCOMPARE(m_db->checkPresetNameFromTableNamed(table, column, QStringLiteral("Beta")), QStringLiteral("Beta"));
    QCOMPARE(m_db->checkForActionType(table, column, alpha).texts().size(), 1);
    for (const char *key : {"ID", "rowid", "_ROWID_", "oid"})
        QCOMPARE(m_db->checkPresetNameFromTableNamed(table, text(key), QString(u'1')), alpha);
    QCOMPARE(m_db->removePresetFromDatabase(table, column, alpha), alpha);
    QCOMPARE(m_store->sql("SELECT count(*) FROM Presets"), QStringList{QString(u'2')});
}

void TestHostileTexts::firesNoTriggerOfOthers()
{
    m_store->sql("CREATE TRIGGER t AFTER INSERT ON Presets BEGIN DELETE FROM AppResource; END");
    m_store->sql("CREATE TRIGGER u AFTER DELETE ON Presets BEGIN DELETE FROM AppBookmarks; END");
    m_db->insertSortingPresetToDB01(presets::sampleRow());
    m_db->removePresetFromDatabase(presetsTable, nameColumn, alpha);
    QCOMPARE(m_store->sql("SELECT NameOfPreset FROM Presets"), QStringLiteral("Beta Gamma myPresetName").split(u' '));
    QCOMPARE(m_store->sql("SELECT count(*) FROM AppResource UNION ALL SELECT count(*) FROM AppBookmarks"),
             QStringLiteral("1 1").split(u' '));
}

QUORLIN_TEST(TestHostileTexts)
#include "tst_hostile_texts.moc"
