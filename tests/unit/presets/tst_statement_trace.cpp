#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "presets/statements.h"
#include "tests/support/preset_store.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QTest>

namespace {

QStringList &events()
{
    static QStringList list;
    return list;
}

int note(unsigned what, void *, void *, void *text)
{
    const QString statement =
        what == SQLITE_TRACE_STMT ? QString::fromUtf8(static_cast<const char *>(text)) : QString();
    // How the database reads its list of tables is not checked.
    if (what == SQLITE_TRACE_CLOSE)
        events().append(QStringLiteral("close"));
    else if (!statement.contains(QStringLiteral("sqlite_master")))
        events().append(statement);
    return 0;
}

/** Called by the database for every connection of the process. */
int watch(sqlite3 *db, char **, const sqlite3_api_routines *)
{
    events().append(QStringLiteral("open"));
    return sqlite3_trace_v2(db, SQLITE_TRACE_STMT | SQLITE_TRACE_CLOSE, note, nullptr);
}

const QString presetsTable = QStringLiteral("Presets");
const QString process = QStringLiteral("Process");
const QString sorting = QStringLiteral("Sorting");
const QString opened = QStringLiteral("open");
const QString closed = QStringLiteral("close");

QString insertOf(const QString &table, const QStringList &columns, const QStringList &values)
{
    return presets::insertRecord(table, columns, values).text;
}

} // namespace

/** What reaches the database, in which order, and when connections open and close. */
class TestStatementTrace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(watch)); }
    void cleanupTestCase() { sqlite3_reset_auto_extension(); }
    void init();
    void opensAndDoesNothingElse();
    void createsOnTheOpenConnection();
    void opensForAnInsertAndLeavesItOpen();
    void closesAfterAPreset();
    void seedsInThisOrder();
    void opensNothingForAFileThatIsThere();
    void opensAndClosesForEveryQuery_data();
    void opensAndClosesForEveryQuery();
    void opensAndClosesForAStatementThatIsNone_data() { opensAndClosesForEveryQuery_data(); }
    void opensAndClosesForAStatementThatIsNone();
    void insertsTheBookmarkTwice();
    void keepsPicturesOnTheOpenConnection();
    void closesBeforeItRaises();
    void leavesOlderConnectionsOpen();

private:
    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<dbViewController> m_db;
};

void TestStatementTrace::init()
{
    m_db.reset();
    m_store = std::make_unique<PresetStore>();
    dbViewController().linkToPresetsDB();
    m_db = std::make_unique<dbViewController>();
    events().clear();
}

void TestStatementTrace::opensAndDoesNothingElse()
{
    m_db->openmyPresetsDb();
    QCOMPARE(events(), QStringList{opened});
}

void TestStatementTrace::createsOnTheOpenConnection()
{
    m_db->openmyPresetsDb();
    m_db->createTableNamed(QStringLiteral("T"), presets::numberedColumns());
    QCOMPARE(events(),
             (QStringList{opened, presets::createTable(QStringLiteral("T"), presets::numberedColumns()).text}));
}

void TestStatementTrace::opensForAnInsertAndLeavesItOpen()
{
    m_db->insertSortingPresetToDB();
    const QString sample = insertOf(presetsTable, presets::presetColumns(), presets::sampleRow());
    QCOMPARE(events(), (QStringList{opened, sample}));
    events().clear();
    m_db->insertRecordIntoTableNamed(QStringLiteral("AppResource"), presets::numberedColumns(), presets::sampleRow());
    QCOMPARE(events(), (QStringList{opened, insertOf(QStringLiteral("AppResource"), presets::numberedColumns(),
                                                     presets::sampleRow())}));
}

void TestStatementTrace::closesAfterAPreset()
{
    const QStringList row = presetRow(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"));
    const QStringList expected = {opened, insertOf(presetsTable, presets::presetColumns(), row), closed};
    m_db->insertSortingPresetToDB01(row);
    QCOMPARE(events(), expected);
    m_db->insertHTMLPresetToDB01(row);
    m_db->insertSortingPresetToDB02(row);
    QCOMPARE(events(), expected + expected + expected);
}

void TestStatementTrace::seedsInThisOrder()
{
    QVERIFY(QFile::remove(m_store->path()));
    m_db->linkToPresetsDB();
    const QStringList numbered = presets::numberedColumns();
    const QStringList expected = {
        opened,
        presets::createTable(presetsTable, presets::presetColumns()).text,
        presets::createTable(QStringLiteral("AppResource"), numbered).text,
        presets::createTable(QStringLiteral("AppBookmarks"), numbered).text,
        opened,
        insertOf(QStringLiteral("AppResource"), numbered, presets::seedRow(QStringLiteral("appSys"))),
        opened,
        insertOf(QStringLiteral("AppBookMarks"), numbered, presets::seedRow(QStringLiteral("myAppDestBookmark"))),
        closed,
    };
    QCOMPARE(events(), expected);
}

void TestStatementTrace::opensNothingForAFileThatIsThere()
{
    m_db->linkToPresetsDB();
    m_db->creatTableIfNotExist();
    m_db->dbFilePath();
    QCOMPARE(events(), QStringList());
}

using Query = std::function<void(dbViewController &, const QString &value)>;
Q_DECLARE_METATYPE(Query)

void TestStatementTrace::opensAndClosesForEveryQuery_data()
{
    QTest::addColumn<Query>("query");
    QTest::addColumn<QString>("text");
    QTest::newRow("name check") << Query([](dbViewController &db, const QString &value) {
        db.checkPresetNameFromTableNamed(presetsTable, process, value);
    }) << "SELECT * FROM Presets WHERE Process = '%1'";
    QTest::newRow("rows") << Query([](dbViewController &db, const QString &value) {
        db.checkForActionType(presetsTable, process, value);
    }) << "SELECT * FROM Presets WHERE Process = '%1'";
    QTest::newRow("removal") << Query([](dbViewController &db, const QString &value) {
        db.removePresetFromDatabase(presetsTable, process, value);
    }) << "DELETE FROM Presets WHERE Process = '%1'";
    QTest::newRow("bookmarks") << Query([](dbViewController &db, const QString &value) {
        db.hGetBookMarkedFolders(presetsTable, process, value, QStringLiteral("Action"), QStringLiteral("x"),
                                 QStringLiteral("StrField3,StrField4"));
    }) << "SELECT StrField3,StrField4 FROM Presets WHERE Process = '%1' AND Action = 'x'";
    QTest::newRow("all rows") << Query([](dbViewController &db, const QString &value) {
        db.getAllRowsFromTableNamed(value == sorting ? presetsTable : value);
    }) << "SELECT * FROM Presets";
}

void TestStatementTrace::opensAndClosesForEveryQuery()
{
    QFETCH(Query, query);
    QFETCH(QString, text);
    query(*m_db, sorting);
    const QString expected = text.contains(u'%') ? text.arg(sorting) : text;
    QCOMPARE(events(), (QStringList{opened, expected, closed}));
}

void TestStatementTrace::opensAndClosesForAStatementThatIsNone()
{
    QFETCH(Query, query);
    query(*m_db, QStringLiteral("it's"));
    QCOMPARE(events(), (QStringList{opened, closed}));
}

void TestStatementTrace::insertsTheBookmarkTwice()
{
    const QString insert = QStringLiteral("insert into Image(Image)values(?)");
    m_db->hSaveSecurityScopedBookmarks("0123456789");
    QCOMPARE(events(), QStringList{opened}); // there is no such table yet
    m_store->sql("CREATE TABLE Image (Image BLOB)");
    events().clear();
    m_db->hSaveSecurityScopedBookmarks("0123456789");
    QCOMPARE(events(), (QStringList{opened, insert, insert}));
}

void TestStatementTrace::keepsPicturesOnTheOpenConnection()
{
    m_store->sql("CREATE TABLE IMAGES (URL TEXT, IMAGE BLOB)");
    m_db->openmyPresetsDb();
    events().clear();
    m_db->SaveImagesToSql("picture", QStringLiteral("file:///a"));
    m_db->LoadImagesFromSql(QStringLiteral("file:///a"));
    QCOMPARE(events(), (QStringList{QStringLiteral("INSERT INTO IMAGES (URL, IMAGE) VALUES (?, ?)"),
                                    QStringLiteral("SELECT IMAGE FROM IMAGES WHERE URL = 'file:///a'")}));
}

void TestStatementTrace::closesBeforeItRaises()
{
    QStringList row = presets::sampleRow();
    row.first() = QStringLiteral("'");
    QCOMPARE(raisedBy([&] { m_db->insertSortingPresetToDB01(row); }),
             QStringLiteral("InternalInconsistency: Error updating table."));
    QCOMPARE(events(), (QStringList{opened, closed}));
    m_db->openmyPresetsDb();
    QCOMPARE(raisedBy([&] { m_db->createTableNamed(QString(u'\''), row); }),
             QStringLiteral("InternalInconsistency: Presets Table failed to create."));
    QCOMPARE(events(), (QStringList{opened, closed, opened, closed}));
}

void TestStatementTrace::leavesOlderConnectionsOpen()
{
    for (int i = 0; i < 5; ++i)
        m_db->openmyPresetsDb();
    m_db->getAllRowsFromTableNamed(presetsTable);
    QCOMPARE(events().count(opened), 6);
    QCOMPARE(events().count(closed), 1);
    m_db.reset();
    QCOMPARE(events().count(closed), 6);
}

QUORLIN_TEST(TestStatementTrace)
#include "tst_statement_trace.moc"
