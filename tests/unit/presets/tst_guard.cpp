#include "presets/database.h"
#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "tests/support/preset_store.h"
#include "tests/support/test_program.h"

#include <QTest>

using presets::Statement;
using presets::Verb;

Q_DECLARE_METATYPE(presets::Verb)

/** The database itself refuses what a statement was not meant to be, whatever its text looks like. */
class TestGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void refusesAllButTheStatement_data();
    void refusesAllButTheStatement();
    void allowsTheStatement_data();
    void allowsTheStatement();
    void runsNothingThatIsNotSound();
    void refusesEveryActionThatWasNotMeant_data();
    void refusesEveryActionThatWasNotMeant();
    void refusesATableThatCallsAFunction();

private:
    PresetStore m_store;
    QByteArray m_bytes;
};

void TestGuard::initTestCase()
{
    dbViewController db;
    db.linkToPresetsDB();
    db.insertSortingPresetToDB01(presets::sampleRow());
    m_store.sql("CREATE VIEW Seen AS SELECT * FROM Presets");
    m_bytes = m_store.bytes();
}

void TestGuard::refusesAllButTheStatement_data()
{
    QTest::addColumn<Verb>("verb");
    QTest::addColumn<QString>("text");
    const auto rows = [](Verb verb, std::initializer_list<const char *> texts) {
        for (const char *text : texts)
            QTest::addRow("%d: %s", int(verb), text) << verb << QString::fromLatin1(text);
    };
    rows(Verb::Select, {"SELECT * FROM AppResource",
                        "SELECT * FROM Presets, AppResource",
                        "SELECT * FROM Presets UNION SELECT * FROM AppResource",
                        "SELECT * FROM Presets UNION SELECT * FROM Presets",
                        "SELECT (SELECT 1), * FROM Presets",
                        "SELECT * FROM (SELECT * FROM Presets)",
                        "WITH p AS (SELECT * FROM Presets) SELECT * FROM p",
                        "WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c) SELECT x FROM c",
                        "SELECT hex(NameOfPreset) FROM Presets",
                        "SELECT count(*) FROM Presets",
                        "SELECT load_extension('x') FROM Presets",
                        "SELECT current_time FROM Presets",
                        "SELECT * FROM Presets WHERE NameOfPreset LIKE '%'",
                        "SELECT * FROM Presets WHERE NameOfPreset GLOB '*'",
                        "SELECT * FROM Seen",
                        "SELECT * FROM pragma_table_list",
                        "SELECT * FROM json_each",
                        "SELECT * FROM dbstat",
                        "SELECT * FROM Presets; SELECT * FROM Presets",
                        "SELECT * FROM Presets; DROP TABLE Presets",
                        "SELECT * FROM Presets; -- x",
                        "",
                        "-- nothing",
                        ";",
                        "DELETE FROM Presets",
                        "EXPLAIN DELETE FROM Presets",
                        "VALUES (1)"});
    rows(Verb::Delete,
         {"DELETE FROM AppResource", "DELETE FROM sqlite_sequence", "DELETE FROM sqlite_master",
          "DELETE FROM Presets WHERE ID IN (SELECT 1)", "DELETE FROM Presets WHERE EXISTS (SELECT * FROM AppResource)",
          "DELETE FROM Presets WHERE hex(NameOfPreset) = 'x'", "DELETE FROM Presets RETURNING hex(ID)",
          "DELETE FROM Presets; DELETE FROM Presets", "SELECT * FROM Presets", "DROP TABLE Presets",
          "UPDATE Presets SET Action = 'x'"});
    rows(Verb::Insert,
         {"INSERT INTO AppResource (StrField0) VALUES ('x')",
          "INSERT INTO Presets (Action) SELECT StrField0 FROM AppResource",
          "INSERT INTO Presets (Action) SELECT Action FROM Presets", "INSERT INTO Presets (Action) VALUES (hex('x'))",
          "INSERT INTO Presets (Action) VALUES ((SELECT 'x'))",
          "INSERT INTO Presets (ID) VALUES (1) ON CONFLICT DO UPDATE SET Action = 'x'",
          "INSERT INTO Presets (Action) VALUES ('x'); DROP TABLE Presets",
          "INSERT INTO sqlite_sequence (name) VALUES ('x')", "DELETE FROM Presets"});
    rows(Verb::CreateTable,
         {"CREATE TABLE Other (a)", "CREATE TEMP TABLE New (a)", "CREATE VIEW New AS SELECT 1",
          "CREATE INDEX New ON Presets (Action)", "CREATE TABLE New AS SELECT * FROM Presets",
          "CREATE TABLE New (a DEFAULT (hex('x')), b AS (hex(a)))", "CREATE VIRTUAL TABLE New USING fts5(a)",
          "CREATE TABLE New (a UNIQUE)", "CREATE TRIGGER New AFTER INSERT ON Presets BEGIN DELETE FROM Presets; END",
          "DROP TABLE Presets", "CREATE TABLE New (a); DROP TABLE Presets"});
}

static QString tableFor(Verb verb)
{
    return verb == Verb::CreateTable ? QStringLiteral("New") : QStringLiteral("Presets");
}

void TestGuard::refusesAllButTheStatement()
{
    QFETCH(Verb, verb);
    QFETCH(QString, text);
    const presets::Connection connection = presets::Connection::open(m_store.path());
    const Statement statement = {text, verb, tableFor(verb), {}, true};
    QVERIFY(!connection.prepare(statement).isValid());
    QVERIFY(!connection.execute(statement));
    QCOMPARE(m_store.bytes(), m_bytes);
}

void TestGuard::allowsTheStatement_data()
{
    QTest::addColumn<Verb>("verb");
    QTest::addColumn<QString>("text");
    QTest::newRow("select") << Verb::Select << "SELECT * FROM presets WHERE Action = 'x'";
    QTest::newRow("delete") << Verb::Delete << "DELETE FROM Presets WHERE Action = 'x'";
    QTest::newRow("insert") << Verb::Insert << "INSERT INTO Presets (Action) VALUES ('x')";
    QTest::newRow("create") << Verb::CreateTable << "CREATE TABLE New (a INTEGER PRIMARY KEY AUTOINCREMENT)";
}

void TestGuard::allowsTheStatement()
{
    QFETCH(Verb, verb);
    QFETCH(QString, text);
    const presets::Connection connection = presets::Connection::open(m_store.path());
    Statement statement = {text, verb, tableFor(verb), {}, true};
    QVERIFY(connection.prepare(statement).isValid());
    statement.columns = {QStringLiteral("NoSuchColumn")};
    QVERIFY(!connection.prepare(statement).isValid());
}

void TestGuard::runsNothingThatIsNotSound()
{
    const presets::Connection connection = presets::Connection::open(m_store.path());
    const Statement statement = {
        QStringLiteral("SELECT * FROM Presets"), Verb::Select, QStringLiteral("Presets"), {}, false};
    QVERIFY(!connection.prepare(statement).isValid());
    QVERIFY(!connection.execute(statement));
}

void TestGuard::refusesEveryActionThatWasNotMeant_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"PRAGMA user_version", "PRAGMA user_version = 7", "PRAGMA journal_mode = WAL", "PRAGMA writable_schema = ON",
          "ATTACH ':memory:' AS other", "DETACH main", "VACUUM", "VACUUM INTO 'copy'", "REINDEX", "ANALYZE", "BEGIN",
          "SAVEPOINT a", "ALTER TABLE Presets RENAME TO Gone", "ALTER TABLE Presets DROP COLUMN Action",
          "DROP TABLE Presets", "DROP VIEW Seen", "UPDATE Presets SET Action = 'x'",
          "REPLACE INTO AppResource (ID) VALUES (1)"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TestGuard::refusesEveryActionThatWasNotMeant()
{
    QFETCH(QString, text);
    const presets::Connection connection = presets::Connection::open(m_store.path());
    for (const Verb verb : {Verb::CreateTable, Verb::Insert, Verb::Select, Verb::Delete})
        QVERIFY(!connection.execute({text, verb, QStringLiteral("Presets"), {}, true}));
    QCOMPARE(m_store.bytes(), m_bytes);
}

void TestGuard::refusesATableThatCallsAFunction()
{
    const QString table = QStringLiteral("Calling");
    m_store.sql("CREATE TABLE Calling (a, b DEFAULT (load_extension('x')))");
    const presets::Connection connection = presets::Connection::open(m_store.path());
    QVERIFY(
        !connection.execute({QStringLiteral("INSERT INTO Calling (a) VALUES ('x')"), Verb::Insert, table, {}, true}));
    m_store.sql("DROP TABLE Calling");
}

QUORLIN_TEST(TestGuard)
#include "tst_guard.moc"
