#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "tests/support/preset_store.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QFileInfo>
#include <QTest>

namespace {

const QString presetsTable = QStringLiteral("Presets");
const QString nameColumn = QStringLiteral("NameOfPreset");
const QString processColumn = QStringLiteral("Process");
const QString sorting = QStringLiteral("Sorting");

const QString openFailure = QStringLiteral("InternalInconsistency: Presets Db failed to open.");
const QString createFailure = QStringLiteral("InternalInconsistency: Presets Table failed to create.");
const QString insertFailure = QStringLiteral("InternalInconsistency: Error updating table.");

} // namespace

/** The operations of the presets database and what they leave in its file. */
class TestStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_store = std::make_unique<PresetStore>(); }
    void makesTheFolderAndSaysThePath();
    void livesInTheDataFolderOfTheUser();
    void makesTheFileOnOpening();
    void failsToOpenWhereTheFolderCannotBe();
    void needsAnOpenConnectionToCreate();
    void keepsATableThatIsThere();
    void refusesListsOfAnotherLength();
    void insertsTheSameTwice();
    void keepsNumbersByTheTypeOfTheirColumn_data();
    void keepsNumbersByTheTypeOfTheirColumn();
    void leavesTheFileOpenWhereItShould();
    void closesTheFileWhenItFails();
    void endsNoRunWithManyInserts();
    void doesNothingInTheMisspelledOperation();
    void seedsAMissingFile();
    void seedsOnceOnly();
    void leavesAFileWithoutTablesAsItIs();
    void writesAPresetThroughEachName_data();
    void writesAPresetThroughEachName();
    void refusesAPresetWithAnApostrophe();
    void writesTheSampleRowTwice();
    void findsTheLastRowByName();
    void keepsTheLastAnswerWhenNothingIsFound();
    void joinsFieldsWithBars();
    void givesNullBeforeTheFirstRows();
    void emptiesTheListThatItGaveBefore();
    void keepsTheListWhenAQueryFails();
    void removesAndAnswersWithTheLastResult();
    void saysNotFoundForAnInvalidRemoval();
    void readsNullsOfOthersAsEmpty();
    void readsATableToItsEndAndKeepsNothing();
    void parksAValue();

private:
    void seed() { dbViewController().linkToPresetsDB(); }
    std::unique_ptr<PresetStore> m_store;
};

void TestStore::makesTheFolderAndSaysThePath()
{
    dbViewController db;
    QVERIFY(!QFileInfo::exists(m_store->folder()));
    QCOMPARE(db.dbFilePath(), m_store->path());
    QVERIFY(QFileInfo(m_store->folder()).isDir());
    QVERIFY(!QFileInfo::exists(m_store->path()));
    const QDateTime changed = QFileInfo(m_store->folder()).lastModified();
    QCOMPARE(db.dbFilePath(), m_store->path());
    QCOMPARE(QFileInfo(m_store->folder()).lastModified(), changed);
}

void TestStore::livesInTheDataFolderOfTheUser()
{
    const QTemporaryDir home;
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home.path()));
    for (const char *said : {"", "relative/path"}) {
        qputenv("XDG_DATA_HOME", said);
        QCOMPARE(dbViewController().dbFilePath(),
                 home.filePath(QStringLiteral(".local/share/BrelmarkCom/QuorlinPS.sql")));
    }
    qputenv("HOME", before);
    QVERIFY(QFileInfo(home.filePath(QStringLiteral(".local/share/BrelmarkCom"))).isDir());
}

void TestStore::makesTheFileOnOpening()
{
    dbViewController db;
    QVERIFY(!db.connection().isOpen());
    db.openmyPresetsDb();
    QVERIFY(db.connection().isOpen());
    QCOMPARE(QFileInfo(m_store->path()).size(), 0);
}

void TestStore::failsToOpenWhereTheFolderCannotBe()
{
    QFile blocking(m_store->folder());
    QVERIFY(blocking.open(QIODevice::WriteOnly));
    dbViewController db;
    QCOMPARE(db.dbFilePath(), m_store->path());
    QCOMPARE(raisedBy([&] { db.openmyPresetsDb(); }), openFailure);
    QCOMPARE(raisedBy([&] { db.linkToPresetsDB(); }), openFailure);
    QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB(); }), openFailure);
    QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB01(presets::sampleRow()); }), openFailure);
    QVERIFY(!db.connection().isOpen());
    db.getAllRowsFromTableNamed(presetsTable);
    QVERIFY(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, sorting).isNull());
    QVERIFY(db.checkForActionType(presetsTable, nameColumn, sorting).isNull());
    QVERIFY(db.removePresetFromDatabase(presetsTable, nameColumn, sorting).isNull());
    QCOMPARE(QFileInfo(m_store->folder()).size(), 0);
}

void TestStore::needsAnOpenConnectionToCreate()
{
    dbViewController db;
    QCOMPARE(raisedBy([&] { db.createTableNamed(presetsTable, presets::presetColumns()); }), createFailure);
    QVERIFY(!QFileInfo::exists(m_store->path()));
}

void TestStore::keepsATableThatIsThere()
{
    dbViewController db;
    db.openmyPresetsDb();
    const QString table = QStringLiteral("My own table");
    db.createTableNamed(table, presets::numberedColumns());
    db.insertRecordIntoTableNamed(table, presets::numberedColumns(), presets::sampleRow());
    const QStringList before = m_store->everything();
    db.createTableNamed(table, presets::presetColumns());
    QVERIFY(db.connection().isOpen());
    QCOMPARE(m_store->everything(), before);
    QCOMPARE(m_store->sql("SELECT StrField61 FROM \"My own table\""), QStringList{QStringLiteral("Loc59")});
}

void TestStore::refusesListsOfAnotherLength()
{
    dbViewController db;
    seed();
    const QStringList names = presets::presetColumns();
    const QByteArray before = m_store->bytes();
    for (const qsizetype count : {0, 1, 61, 63}) {
        QStringList list = names + QStringList{QStringLiteral("x")};
        list.resize(count);
        const auto expected = [count](const QString &name) {
            return QStringLiteral("TypeError: Expected a list of 62 texts for %1 but received %2").arg(name).arg(count);
        };
        const QString forNames = expected(QStringLiteral("names"));
        const QString forValues = expected(QStringLiteral("values"));
        QCOMPARE(raisedBy([&] { db.createTableNamed(presetsTable, list); }), forNames);
        QCOMPARE(raisedBy([&] { db.insertRecordIntoTableNamed(presetsTable, list, names); }), forNames);
        QCOMPARE(raisedBy([&] { db.insertRecordIntoTableNamed(presetsTable, names, list); }), forValues);
        QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB01(list); }), forValues);
        QCOMPARE(raisedBy([&] { db.insertHTMLPresetToDB01(list); }), forValues);
        QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB02(list); }), forValues);
    }
    QStringList withNull = names;
    withNull[61] = QString();
    QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB01(withNull); }),
             QStringLiteral("TypeError: Expected text for values but received null"));
    QCOMPARE(m_store->bytes(), before);
}

void TestStore::insertsTheSameTwice()
{
    seed();
    dbViewController db;
    for (int i = 0; i < 2; ++i)
        db.insertRecordIntoTableNamed(presetsTable, presets::presetColumns(), presets::sampleRow());
    QCOMPARE(m_store->sql("SELECT ID, NameOfPreset, StrField61 FROM Presets ORDER BY ID"),
             QStringLiteral("1 myPresetName Loc59 2 myPresetName Loc59").split(u' '));
}

void TestStore::keepsNumbersByTheTypeOfTheirColumn_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("asInteger");
    QTest::addColumn<QString>("type");
    using Row = std::array<const char *, 3>;
    for (const Row &row : std::initializer_list<Row>{{"0050", "50", "integer"},
                                                     {"3.0", "3", "integer"},
                                                     {"1e3", "1000", "integer"},
                                                     {" 7 ", "7", "integer"},
                                                     {"-0", "0", "integer"},
                                                     {"2.50", "2.5", "real"},
                                                     {"12px", "12px", "text"},
                                                     {"0x10", "0x10", "text"},
                                                     {"", "", "text"},
                                                     {"1,5", "1,5", "text"}})
        QTest::newRow(row[0]) << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1])
                              << QString::fromLatin1(row[2]);
}

void TestStore::keepsNumbersByTheTypeOfTheirColumn()
{
    QFETCH(QString, text);
    QFETCH(QString, asInteger);
    QFETCH(QString, type);
    seed();
    dbViewController db;
    db.insertSortingPresetToDB01(QStringList(62, text));
    const QString row = db.checkForActionType(presetsTable, QStringLiteral("ID"), QStringLiteral("1")).texts().value(0);
    const QStringList fields = row.split(u'|');
    QCOMPARE(fields.size(), 62);
    const QStringList columns = presets::presetColumns();
    for (int field = 0; field < 62; ++field) {
        const bool isInteger = field >= 21 && field <= 41;
        QCOMPARE(fields.at(field), isInteger ? asInteger : text);
        const QByteArray ask = "SELECT typeof(" + columns.at(field).toUtf8() + ") FROM Presets";
        QCOMPARE(m_store->sql(ask), QStringList{isInteger ? type : QStringLiteral("text")});
    }
}

void TestStore::leavesTheFileOpenWhereItShould()
{
    dbViewController db;
    db.linkToPresetsDB();
    QVERIFY(!db.connection().isOpen());
    db.insertRecordIntoTableNamed(presetsTable, presets::presetColumns(), presets::sampleRow());
    QVERIFY(db.connection().isOpen());
    db.insertSortingPresetToDB02(presets::sampleRow());
    QVERIFY(!db.connection().isOpen());
    db.insertSortingPresetToDB();
    QVERIFY(db.connection().isOpen());
    db.checkForActionType(presetsTable, processColumn, sorting);
    QVERIFY(!db.connection().isOpen());
    db.openmyPresetsDb();
    QVERIFY(db.connection().isOpen());
    db.checkPresetNameFromTableNamed(presetsTable, processColumn, sorting);
    QVERIFY(!db.connection().isOpen());
    db.hSaveSecurityScopedBookmarks("x");
    QVERIFY(db.connection().isOpen());
    db.SaveImagesToSql("x", sorting);
    db.LoadImagesFromSql(sorting);
    QVERIFY(db.connection().isOpen());
    db.getAllRowsFromTableNamed(presetsTable);
    QVERIFY(!db.connection().isOpen());
    db.openmyPresetsDb();
    db.removePresetFromDatabase(presetsTable, processColumn, sorting);
    QVERIFY(!db.connection().isOpen());
    db.openmyPresetsDb();
    db.hGetBookMarkedFolders(presetsTable, processColumn, sorting, processColumn, sorting, nameColumn);
    QVERIFY(!db.connection().isOpen());
}

void TestStore::closesTheFileWhenItFails()
{
    seed();
    dbViewController db;
    const QStringList before = m_store->everything();
    db.openmyPresetsDb();
    QCOMPARE(raisedBy([&] { db.createTableNamed(QStringLiteral("it's"), presets::presetColumns()); }), createFailure);
    QVERIFY(!db.connection().isOpen());
    db.openmyPresetsDb();
    QCOMPARE(raisedBy([&] { db.createTableNamed(QStringLiteral("T"), QStringList(62, QStringLiteral("same"))); }),
             createFailure);
    QVERIFY(!db.connection().isOpen());
    const QString missing = QStringLiteral("NoSuchTable");
    QCOMPARE(raisedBy([&] { db.insertRecordIntoTableNamed(missing, presets::presetColumns(), presets::sampleRow()); }),
             insertFailure);
    QVERIFY(!db.connection().isOpen());
    QCOMPARE(raisedBy([&] {
                 db.insertRecordIntoTableNamed(presetsTable, presets::numberedColumns(), presets::sampleRow());
             }),
             insertFailure);
    QCOMPARE(m_store->everything(), before);
}

void TestStore::endsNoRunWithManyInserts()
{
    seed();
    dbViewController db;
    for (int i = 0; i < 1200; ++i) // more than a process may have files
        db.openmyPresetsDb();
    db.insertSortingPresetToDB();
    QVERIFY(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size() < 100);
    QCOMPARE(m_store->sql("SELECT count(*) FROM Presets"), QStringList{QStringLiteral("1")});
}

void TestStore::doesNothingInTheMisspelledOperation()
{
    dbViewController db;
    db.creatTableIfNotExist();
    QVERIFY(!QFileInfo::exists(m_store->folder()));
}

void TestStore::seedsAMissingFile()
{
    seed();
    QCOMPARE(m_store->sql("SELECT name FROM sqlite_schema WHERE name NOT LIKE 'sqlite_%' ORDER BY rootpage"),
             QStringLiteral("Presets AppResource AppBookmarks").split(u' '));
    QCOMPARE(m_store->sql("SELECT * FROM Presets"), QStringList());
    QCOMPARE(m_store->sql("SELECT * FROM AppResource"),
             QStringList{QStringLiteral("1")} + presets::seedRow(QStringLiteral("appSys")));
    QCOMPARE(m_store->sql("SELECT * FROM AppBookmarks"),
             QStringList{QStringLiteral("1")} + presets::seedRow(QStringLiteral("myAppDestBookmark")));
    for (const char *table : {"Presets", "AppResource", "AppBookmarks"}) {
        const QStringList columns =
            QByteArray(table) == "Presets" ? presets::presetColumns() : presets::numberedColumns();
        QStringList expected = {QStringLiteral("ID"), QStringLiteral("INTEGER")};
        for (int field = 0; field < 62; ++field)
            expected += {columns.at(field), presets::declaredType(field).toUpper()};
        QCOMPARE(m_store->sql("SELECT name, upper(type) FROM pragma_table_info('" + QByteArray(table) + "')"),
                 expected);
    }
}

void TestStore::seedsOnceOnly()
{
    seed();
    const QByteArray before = m_store->bytes();
    seed();
    QCOMPARE(m_store->bytes(), before);
    QVERIFY(QFile::remove(m_store->path()));
    seed();
    QCOMPARE(m_store->sql("SELECT count(*) FROM AppResource"), QStringList{QStringLiteral("1")});
}

void TestStore::leavesAFileWithoutTablesAsItIs()
{
    m_store->write({});
    seed();
    QCOMPARE(m_store->bytes(), QByteArray());
    QCOMPARE(raisedBy([] { dbViewController().insertSortingPresetToDB(); }), insertFailure);
    QCOMPARE(m_store->bytes(), QByteArray());
}

using InsertPreset = void (dbViewController::*)(const QStringList &);
Q_DECLARE_METATYPE(InsertPreset)

void TestStore::writesAPresetThroughEachName_data()
{
    QTest::addColumn<InsertPreset>("insert");
    QTest::newRow("sorting 01") << &dbViewController::insertSortingPresetToDB01;
    QTest::newRow("HTML 01") << &dbViewController::insertHTMLPresetToDB01;
    QTest::newRow("sorting 02") << &dbViewController::insertSortingPresetToDB02;
}

void TestStore::writesAPresetThroughEachName()
{
    QFETCH(InsertPreset, insert);
    seed();
    dbViewController db;
    const QStringList row = presetRow(QStringLiteral("Größe 1 🙂"), QStringLiteral("HTML"), QStringLiteral(""));
    (db.*insert)(row);
    QVERIFY(!db.connection().isOpen());
    QCOMPARE(m_store->sql("SELECT * FROM Presets"), QStringList{QStringLiteral("1")} + row);
}

void TestStore::refusesAPresetWithAnApostrophe()
{
    seed();
    dbViewController db;
    const QStringList before = m_store->everything();
    const QStringList row = presetRow(QStringLiteral("Anna's"), sorting, QString(u'x'));
    for (const InsertPreset insert :
         {&dbViewController::insertSortingPresetToDB01, &dbViewController::insertHTMLPresetToDB01,
          &dbViewController::insertSortingPresetToDB02})
        QCOMPARE(raisedBy([&] { (db.*insert)(row); }), insertFailure);
    QVERIFY(!db.connection().isOpen());
    QCOMPARE(m_store->everything(), before);
}

void TestStore::writesTheSampleRowTwice()
{
    seed();
    dbViewController db;
    QCOMPARE(db.checkForActionType(presetsTable, processColumn, sorting).texts(), QStringList());
    db.insertSortingPresetToDB();
    QCOMPARE(db.checkForActionType(presetsTable, processColumn, sorting).texts(),
             QStringList{presets::sampleRow().join(u'|')});
    db.insertSortingPresetToDB();
    QCOMPARE(m_store->sql("SELECT ID FROM Presets"), QStringLiteral("1 2").split(u' '));
    QCOMPARE(db.checkForActionType(presetsTable, processColumn, sorting).texts(),
             QStringList(2, presets::sampleRow().join(u'|')));
}

void TestStore::findsTheLastRowByName()
{
    seed();
    dbViewController db;
    for (const char *name : {"Alpha", "Beta", "Gamma"})
        db.insertSortingPresetToDB01(presetRow(QString::fromLatin1(name), sorting, QString(u'x')));
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, QStringLiteral("Beta")),
             QStringLiteral("Beta"));
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, processColumn, sorting), QStringLiteral("Gamma"));
    QCOMPARE(db.checkPresetNameFromTableNamed(QStringLiteral("AppResource"), QStringLiteral("ID"), QString(u'1')),
             QStringLiteral("appSys"));
}

void TestStore::keepsTheLastAnswerWhenNothingIsFound()
{
    seed();
    dbViewController db;
    const QString alpha = QStringLiteral("Alpha");
    const QString none = QStringLiteral("none");
    QVERIFY(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, none).isNull());
    db.insertSortingPresetToDB01(presetRow(alpha, sorting, none));
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, alpha), alpha);
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, none), alpha);
    QCOMPARE(db.checkPresetNameFromTableNamed(none, nameColumn, alpha), alpha);
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, QStringLiteral("Al'pha")), alpha);
    QCOMPARE(db.removePresetFromDatabase(none, nameColumn, alpha), QStringLiteral("preset not found"));
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, none), QStringLiteral("preset not found"));
    QCOMPARE(db.property("myPresetExist").toString(), QStringLiteral("preset not found"));
}

void TestStore::joinsFieldsWithBars()
{
    seed();
    dbViewController db;
    QStringList row = presetRow(QStringLiteral("a|b"), sorting, QStringLiteral(""));
    row.last() = QStringLiteral("");
    db.insertSortingPresetToDB01(row);
    db.insertSortingPresetToDB01(presetRow(QStringLiteral("c"), sorting, QStringLiteral("d")));
    const QStringList rows = db.checkForActionType(presetsTable, processColumn, sorting).texts();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.first(), row.join(u'|'));
    QCOMPARE(rows.first().split(u'|').size(), 63);
    QVERIFY(rows.last().startsWith(QStringLiteral("c|Sorting|d|value 3|")));
    QCOMPARE(rows.last().count(u'|'), 61);
}

void TestStore::givesNullBeforeTheFirstRows()
{
    seed();
    dbViewController db;
    QVERIFY(db.presetsArray().isNull());
    QVERIFY(db.checkForActionType(presetsTable, processColumn, sorting).isNull());
    QVERIFY(db.presetsArrayToPass().isNull());
    QVERIFY(!db.presetsArray().isNull());
}

void TestStore::emptiesTheListThatItGaveBefore()
{
    seed();
    dbViewController db;
    db.insertSortingPresetToDB();
    const platform::SharedTexts first = db.checkForActionType(presetsTable, processColumn, sorting);
    QCOMPARE(first.texts().size(), 1);
    QVERIFY(db.presetsArray() == first);
    const platform::SharedTexts second = db.checkForActionType(presetsTable, processColumn, QStringLiteral("none"));
    QVERIFY(second == first);
    QVERIFY(!second.isNull());
    QCOMPARE(first.texts(), QStringList());
    QVERIFY(!(db.presetsArray() == first));
    const platform::SharedTexts third = db.checkForActionType(presetsTable, processColumn, sorting);
    QVERIFY(!(third == first));
    QCOMPARE(third.texts().size(), 1);
    const platform::SharedTexts fourth = db.checkForActionType(presetsTable, processColumn, sorting);
    QVERIFY(!(fourth == third));
    QCOMPARE(third.texts(), QStringList());
}

void TestStore::keepsTheListWhenAQueryFails()
{
    seed();
    dbViewController db;
    db.insertSortingPresetToDB();
    const platform::SharedTexts first = db.checkForActionType(presetsTable, processColumn, sorting);
    for (const auto &[table, column, value] :
         std::initializer_list<std::array<QString, 3>>{{QStringLiteral("none"), processColumn, sorting},
                                                       {presetsTable, QStringLiteral("none"), sorting},
                                                       {presetsTable, processColumn, QStringLiteral("Sort'ing")}}) {
        QVERIFY(db.checkForActionType(table, column, value) == first);
        QCOMPARE(first.texts().size(), 1);
    }
}

void TestStore::removesAndAnswersWithTheLastResult()
{
    seed();
    dbViewController db;
    const QString alpha = QStringLiteral("Alpha");
    for (const QString &name : {alpha, QStringLiteral("Beta"), alpha})
        db.insertSortingPresetToDB01(presetRow(name, sorting, QString(u'x')));
    QVERIFY(db.removePresetFromDatabase(presetsTable, nameColumn, QStringLiteral("none")).isNull());
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, QStringLiteral("Beta")),
             QStringLiteral("Beta"));
    QCOMPARE(db.removePresetFromDatabase(presetsTable, nameColumn, alpha), QStringLiteral("Beta"));
    QCOMPARE(m_store->sql("SELECT ID, NameOfPreset FROM Presets"), QStringLiteral("2 Beta").split(u' '));
    QCOMPARE(m_store->sql("SELECT count(*) FROM AppResource"), QStringList{QString(u'1')});
}

void TestStore::saysNotFoundForAnInvalidRemoval()
{
    seed();
    dbViewController db;
    const QStringList before = m_store->everything();
    const QString notFound = QStringLiteral("preset not found");
    const QString none = QStringLiteral("none");
    QCOMPARE(db.removePresetFromDatabase(none, nameColumn, none), notFound);
    QCOMPARE(db.removePresetFromDatabase(presetsTable, none, none), notFound);
    QCOMPARE(db.removePresetFromDatabase(presetsTable, nameColumn, QStringLiteral("it's")), notFound);
    QCOMPARE(db.removePresetFromDatabase(presetsTable, nameColumn, none), notFound); // valid, and sticky
    QCOMPARE(m_store->everything(), before);
}

void TestStore::readsNullsOfOthersAsEmpty()
{
    seed();
    m_store->sql("INSERT INTO Presets (Process) VALUES ('Sorting')");
    m_store->sql("CREATE TABLE Narrow (a)");
    m_store->sql("INSERT INTO Narrow VALUES ('x')");
    dbViewController db;
    QCOMPARE(db.checkForActionType(presetsTable, processColumn, sorting).texts(),
             QStringList{QStringLiteral("|Sorting") + QString(60, u'|')});
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, processColumn, sorting), QStringLiteral(""));
    QCOMPARE(db.checkPresetNameFromTableNamed(QStringLiteral("Narrow"), QString(u'a'), QString(u'x')),
             QStringLiteral(""));
}

void TestStore::readsATableToItsEndAndKeepsNothing()
{
    seed();
    dbViewController db;
    db.insertSortingPresetToDB();
    const QByteArray before = m_store->bytes();
    db.getAllRowsFromTableNamed(presetsTable);
    db.getAllRowsFromTableNamed(QStringLiteral("none"));
    QVERIFY(db.presetsArray().isNull());
    QVERIFY(db.property("myPresetExist").toString().isNull());
    QCOMPARE(m_store->bytes(), before);
}

void TestStore::parksAValue()
{
    dbViewController db;
    QVERIFY(db.property("myPresetValueStr").toString().isNull());
    db.setMyPresetValueStr(QStringLiteral("x"));
    QCOMPARE(db.property("myPresetValueStr").toString(), QStringLiteral("x"));
    QVERIFY(!QFileInfo::exists(m_store->folder()));
}

QUORLIN_TEST(TestStore)
#include "tst_store.moc"
