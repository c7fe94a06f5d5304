#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "presets/unusable_database.h"
#include "tests/support/preset_store.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString presetsTable = QStringLiteral("Presets");
const QString process = QStringLiteral("Process");
const QString sorting = QStringLiteral("Sorting");
const QString notFound = QStringLiteral("preset not found");
const QString openFailure = QStringLiteral("InternalInconsistency: Presets Db failed to open.");
const QString insertFailure = QStringLiteral("InternalInconsistency: Error updating table.");

QByteArray noise(qsizetype size, quint32 seed)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = char(random.generate());
    return bytes;
}

/** Holds the database as another program does that is in the middle of something. */
class OtherProgram
{
public:
    OtherProgram(const QString &path, const char *begin)
    {
        sqlite3_open(QFile::encodeName(path).constData(), &m_db);
        sqlite3_exec(m_db, begin, nullptr, nullptr, nullptr);
    }
    ~OtherProgram() { sqlite3_close(m_db); }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;

private:
    sqlite3 *m_db = nullptr;
};

} // namespace

/** Files that cannot be read or written as presets: each operation ends as described, and what is there stays. */
class TestDamagedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_store = std::make_unique<PresetStore>(); }
    void leavesAForeignFileAsItIs_data();
    void leavesAForeignFileAsItIs();
    void leavesATruncatedDatabaseAsItIs_data();
    void leavesATruncatedDatabaseAsItIs();
    void survivesAnyDamagedByte();
    void failsAtAFolderInItsPlace();
    void makesTheFileBehindALinkToNothing();
    void readsAReadOnlyDatabase();
    void waitsForAnotherWriterAndGivesUp_data();
    void waitsForAnotherWriterAndGivesUp();
    void waitsForAnotherWriterThatEnds();
    void readsBesideAnotherWriter();
    void takesPresetsFromTwoProgramsAtOnce();
    void readsADatabaseOfAnotherMaker();
    void setsAsideWhatCanHoldNothing_data();
    void setsAsideWhatCanHoldNothing();
    void leavesADatabaseThatIsBeingMade();

private:
    QByteArray seeded();
    void everythingFails();

    std::unique_ptr<PresetStore> m_store;
    QByteArray m_seeded;
};

QByteArray TestDamagedFiles::seeded()
{
    if (!m_seeded.isEmpty()) {
        m_store->write(m_seeded);
        return m_seeded;
    }
    dbViewController db;
    db.linkToPresetsDB();
    for (int i = 0; i < 40; ++i)
        db.insertSortingPresetToDB01(presetRow(QStringLiteral("Preset %1").arg(i), sorting, QStringLiteral("ByHand")));
    return m_seeded = m_store->bytes();
}

/** Each operation on a file that holds no presets. */
void TestDamagedFiles::everythingFails()
{
    const QByteArray before = m_store->bytes();
    dbViewController db;
    db.linkToPresetsDB();
    QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB(); }), insertFailure);
    QCOMPARE(raisedBy([&] { db.insertHTMLPresetToDB01(presets::sampleRow()); }), insertFailure);
    db.getAllRowsFromTableNamed(presetsTable);
    QVERIFY(db.checkPresetNameFromTableNamed(presetsTable, process, sorting).isNull());
    QVERIFY(db.checkForActionType(presetsTable, process, sorting).isNull());
    QVERIFY(db.hGetBookMarkedFolders(presetsTable, process, sorting, process, sorting, QString(u'*')).isNull());
    QCOMPARE(db.removePresetFromDatabase(presetsTable, process, sorting), notFound);
    db.hSaveSecurityScopedBookmarks("bookmark");
    db.SaveImagesToSql("picture", sorting);
    QVERIFY(db.LoadImagesFromSql(sorting).isNull());
    QCOMPARE(m_store->bytes(), before);
    QCOMPARE(QDir(m_store->folder()).entryList(QDir::Files), QStringList{QStringLiteral("QuorlinPS.sql")});
}

void TestDamagedFiles::leavesAForeignFileAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("text") << QByteArray("My presets are in here, dear program.\n").repeated(200);
    QTest::newRow("zeros") << QByteArray(8192, '\0');
    QTest::newRow("noise") << noise(40960, 1);
    QTest::newRow("the name and no more") << QByteArray("SQLite format 3\0", 16);
    QTest::newRow("the name and zeros") << QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\0');
    QTest::newRow("the name and noise") << QByteArray("SQLite format 3\0", 16) + noise(8176, 2);
    QTest::newRow("picture") << QByteArray::fromHex("ffd8ffe000104a46494600") + noise(5000, 3);
}

void TestDamagedFiles::leavesAForeignFileAsItIs()
{
    QFETCH(QByteArray, bytes);
    m_store->write(bytes);
    everythingFails();
}

void TestDamagedFiles::leavesATruncatedDatabaseAsItIs_data()
{
    QTest::addColumn<int>("permille");
    for (const int permille : {1, 5, 50, 100, 300, 500, 700, 900, 990, 999})
        QTest::addRow("%d of 1000", permille) << permille;
}

void TestDamagedFiles::leavesATruncatedDatabaseAsItIs()
{
    QFETCH(int, permille);
    const QByteArray whole = seeded();
    m_store->write(whole.left(whole.size() * permille / 1000));
    const QByteArray before = m_store->bytes();
    dbViewController db;
    db.linkToPresetsDB();
    QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB(); }), insertFailure);
    db.checkPresetNameFromTableNamed(presetsTable, process, sorting);
    db.checkForActionType(presetsTable, process, sorting);
    db.removePresetFromDatabase(presetsTable, process, sorting);
    QCOMPARE(m_store->bytes(), before);
}

void TestDamagedFiles::survivesAnyDamagedByte()
{
    const QByteArray whole = seeded();
    QRandomGenerator random(4);
    for (int i = 0; i < 300; ++i) {
        QByteArray damaged = whole;
        // The first pages hold the header and the list of tables, where a byte means most.
        const qsizetype reach = i % 2 ? 4096 : damaged.size();
        damaged[qsizetype(random.bounded(int(reach)))] = char(random.generate());
        m_store->write(damaged);
        dbViewController db;
        db.linkToPresetsDB();
        db.checkForActionType(presetsTable, process, sorting);
        const QByteArray before = m_store->bytes();
        QCOMPARE(before, damaged);
        const QString raised = raisedBy([&] { db.insertSortingPresetToDB01(presets::sampleRow()); });
        if (raised == insertFailure)
            QCOMPARE(m_store->bytes(), before);
        else
            QCOMPARE(raised, QStringLiteral("nothing"));
    }
}

void TestDamagedFiles::failsAtAFolderInItsPlace()
{
    QVERIFY(QDir().mkpath(m_store->path()));
    dbViewController db;
    db.linkToPresetsDB(); // something is there
    QCOMPARE(raisedBy([&] { db.openmyPresetsDb(); }), openFailure);
    QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB(); }), openFailure);
    QVERIFY(!db.connection().isOpen());
    QVERIFY(db.checkPresetNameFromTableNamed(presetsTable, process, sorting).isNull());
    // Nobody could look, so nobody says that there is none.
    QVERIFY(db.removePresetFromDatabase(presetsTable, process, sorting).isNull());
    QVERIFY(QFileInfo(m_store->path()).isDir());
    QVERIFY(QDir().rmdir(m_store->path()));
    db.linkToPresetsDB();
    db.insertSortingPresetToDB();
    const QString name = db.checkPresetNameFromTableNamed(presetsTable, process, sorting);
    QVERIFY(QFile::remove(m_store->path()));
    QVERIFY(QDir().mkpath(m_store->path()));
    QCOMPARE(db.removePresetFromDatabase(presetsTable, process, sorting), name);
    QVERIFY(!name.isEmpty());
}

void TestDamagedFiles::makesTheFileBehindALinkToNothing()
{
    const QString target = m_store->home() + QStringLiteral("/elsewhere.sql");
    QVERIFY(QDir().mkpath(m_store->folder()));
    QVERIFY(QFile::link(target, m_store->path()));
    dbViewController db;
    db.linkToPresetsDB();
    db.insertSortingPresetToDB01(presets::sampleRow());
    QCOMPARE(PresetStore::sqlIn(target, "SELECT count(*) FROM Presets"), QStringList{QString(u'1')});
    QVERIFY(QFileInfo(m_store->path()).isSymLink());
}

void TestDamagedFiles::readsAReadOnlyDatabase()
{
    seeded();
    const QByteArray folder = QFile::encodeName(m_store->folder());
    const QByteArray home = QFile::encodeName(m_store->home());
    const QByteArray file = QFile::encodeName(m_store->path());
    const bool isRoot = ::geteuid() == 0;
    QVERIFY(::chmod(file.constData(), 0444) == 0 && ::chmod(folder.constData(), 0555) == 0);
    QVERIFY(::chmod(home.constData(), 0755) == 0);
    // Root may write everywhere; nobody may not.
    if (isRoot)
        QVERIFY(::seteuid(65534) == 0);
    const QByteArray before = m_store->bytes();
    dbViewController db;
    const QString raised = raisedBy([&] { db.insertSortingPresetToDB(); });
    const QStringList rows = db.checkForActionType(presetsTable, process, sorting).texts();
    const QString found = db.checkPresetNameFromTableNamed(presetsTable, process, sorting);
    const QString removed = db.removePresetFromDatabase(presetsTable, process, sorting);
    const QByteArray after = m_store->bytes();
    if (isRoot)
        QVERIFY(::seteuid(0) == 0);
    QVERIFY(::chmod(folder.constData(), 0755) == 0);
    QCOMPARE(raised, insertFailure);
    QCOMPARE(rows.size(), 40);
    QCOMPARE(found, QStringLiteral("Preset 39"));
    QCOMPARE(removed, found); // a valid statement that could not be carried out
    QCOMPARE(after, before);
}

void TestDamagedFiles::waitsForAnotherWriterAndGivesUp_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::addColumn<bool>("isReadable");
    QTest::newRow("about to write") << QByteArray("BEGIN IMMEDIATE") << true;
    QTest::newRow("has the file for itself") << QByteArray("BEGIN EXCLUSIVE") << false;
}

void TestDamagedFiles::waitsForAnotherWriterAndGivesUp()
{
    QFETCH(QByteArray, begin);
    QFETCH(bool, isReadable);
    const QByteArray before = seeded();
    const OtherProgram other(m_store->path(), begin.constData());
    dbViewController db;
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(raisedBy([&] { db.insertSortingPresetToDB(); }), insertFailure);
    QVERIFY(clock.elapsed() >= 1900);
    QVERIFY(!db.connection().isOpen());
    QCOMPARE(db.checkForActionType(presetsTable, process, sorting).texts().size(), isReadable ? 40 : 0);
    const QString removed = db.removePresetFromDatabase(presetsTable, process, sorting);
    QCOMPARE(removed, isReadable ? QString() : notFound); // a valid statement, or none
    QCOMPARE(m_store->bytes(), before);
}

void TestDamagedFiles::waitsForAnotherWriterThatEnds()
{
    seeded();
    int ready[2];
    QVERIFY(::pipe(ready) == 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const OtherProgram other(m_store->path(), "BEGIN EXCLUSIVE");
        const bool isSaid = ::write(ready[1], "x", 1) == 1;
        ::usleep(200'000);
        ::_exit(isSaid ? 0 : 1); // its lock ends with it
    }
    char said = 0;
    QCOMPARE(::read(ready[0], &said, 1), ssize_t(1));
    dbViewController db;
    db.insertSortingPresetToDB01(presets::sampleRow());
    int status = 1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QCOMPARE(m_store->sql("SELECT count(*) FROM Presets"), QStringList{QStringLiteral("41")});
}

void TestDamagedFiles::readsBesideAnotherWriter()
{
    seeded();
    dbViewController a;
    dbViewController b;
    a.insertSortingPresetToDB(); // left open
    b.insertSortingPresetToDB();
    QCOMPARE(a.checkForActionType(presetsTable, process, sorting).texts().size(), 42);
    QVERIFY(b.removePresetFromDatabase(presetsTable, QStringLiteral("NameOfPreset"), QStringLiteral("myPresetName"))
                .isNull());
    QCOMPARE(a.checkForActionType(presetsTable, process, sorting).texts().size(), 40);
}

void TestDamagedFiles::takesPresetsFromTwoProgramsAtOnce()
{
    dbViewController().linkToPresetsDB();
    constexpr int count = 60;
    QList<pid_t> children;
    for (const QString &name : {QStringLiteral("a"), QStringLiteral("b")}) {
        const pid_t child = ::fork();
        if (child != 0) {
            children.append(child);
            continue;
        }
        dbViewController db;
        int failed = 0;
        for (int i = 0; i < count; ++i)
            failed += raisedBy([&] { db.insertSortingPresetToDB01(presetRow(name, sorting, name)); }) !=
                      QStringLiteral("nothing");
        ::_exit(failed);
    }
    for (const pid_t child : children) {
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
    }
    QCOMPARE(m_store->sql("SELECT count(*) FROM Presets GROUP BY Action"), QStringList(2, QString::number(count)));
    QCOMPARE(m_store->sql("PRAGMA integrity_check"), QStringList{QStringLiteral("ok")});
}

void TestDamagedFiles::readsADatabaseOfAnotherMaker()
{
    m_store->write({});
    m_store->sql("CREATE TABLE Songs (Title, Length)");
    m_store->sql("INSERT INTO Songs VALUES ('Title', 3)");
    everythingFails();
    dbViewController db;
    QCOMPARE(
        db.checkPresetNameFromTableNamed(QStringLiteral("Songs"), QStringLiteral("Title"), QStringLiteral("Title")),
        QString(u'3'));
}

void TestDamagedFiles::setsAsideWhatCanHoldNothing_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("isSetAside");
    QTest::newRow("missing") << QString() << false;
    QTest::newRow("empty file") << QStringLiteral("") << true;
    QTest::newRow("no table") << QStringLiteral("CREATE TABLE other (a); DROP TABLE other") << true;
    QTest::newRow("other tables") << QStringLiteral("CREATE TABLE other (a)") << true;
    for (const char *table : {"Presets", "appresource", "AppBookMarks"})
        QTest::newRow(table) << QStringLiteral("CREATE TABLE %1 (a)").arg(QLatin1String(table)) << false;
    QTest::newRow("no database") << QStringLiteral("Dear diary, this is a file of text and not a database.") << false;
}

void TestDamagedFiles::setsAsideWhatCanHoldNothing()
{
    QFETCH(QString, content);
    QFETCH(bool, isSetAside);
    const QString path = dbViewController().dbFilePath();
    if (content.startsWith(QStringLiteral("CREATE"))) {
        const OtherProgram maker(path, qPrintable(content));
    } else if (!content.isNull()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content.toUtf8()) == content.size());
    }
    QVERIFY(QFile(path + QStringLiteral(".unusable-1")).open(QIODevice::WriteOnly)); // of another time
    const QString aside = presets::setAsideUnusableDatabase(path);
    QCOMPARE(aside, isSetAside ? path + QStringLiteral(".unusable-2") : QString());
    QCOMPARE(QFileInfo::exists(path), !isSetAside && !content.isNull());
    if (!isSetAside)
        return;
    QVERIFY(QFileInfo(aside).isFile());
    dbViewController db;
    db.linkToPresetsDB();
    db.insertSortingPresetToDB();
    QCOMPARE(db.checkForActionType(presetsTable, process, sorting).texts().size(), 1);
}

/** Somebody has it for himself, and its tables are not there yet. */
void TestDamagedFiles::leavesADatabaseThatIsBeingMade()
{
    const QString path = dbViewController().dbFilePath();
    {
        const OtherProgram maker(path, "BEGIN IMMEDIATE; CREATE TABLE Presets (a)");
        QCOMPARE(presets::setAsideUnusableDatabase(path), QString());
    }
    const OtherProgram maker(path, "CREATE TABLE Presets (a)");
    QCOMPARE(presets::setAsideUnusableDatabase(path), QString());
    QVERIFY(QFileInfo(path).size() > 0);
}

QUORLIN_TEST(TestDamagedFiles)
#include "tst_damaged_files.moc"
