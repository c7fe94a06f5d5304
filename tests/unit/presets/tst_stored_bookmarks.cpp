#include "presets/Ztbookmarks.h"
#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "tests/support/log_capture.h"
#include "tests/support/preset_store.h"
#include "tests/support/test_program.h"

#include <QTest>
#include <QUrl>

namespace {

const QString bookmarks = QStringLiteral("AppBookmarks");
const QString field0 = QStringLiteral("StrField0");
const QString field1 = QStringLiteral("StrField1");
const QString field2 = QStringLiteral("StrField2");

} // namespace

/** Remembered places, and the bytes that the database keeps. */
class TestStoredBookmarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void remembersAFolderByItsLocation();
    void remembersNothingWithoutAFolder_data();
    void remembersNothingWithoutAFolder();
    void forgetsAFolderThatIsGone();
    void addsTwoRowsForABookmark();
    void addsNothingWithoutATable();
    void readsTheSecondColumn_data();
    void readsTheSecondColumn();
    void readsTheLastRow();
    void keepsTheLastValueWhenNothingIsFound();
    void logsFourLines();
    void logsBytesInGroupsOfFour_data();
    void logsBytesInGroupsOfFour();
    void logsNothingWithoutADatabase();
    void keepsPictures_data();
    void keepsPictures();
    void givesTheFirstPicture();
    void needsAnOpenConnectionForPictures();
    void needsATableForPictures();
    void keepsAPictureUnderAUrlThatCannotBeAskedFor();

private:
    void add(const QString &a, const QString &b, const QString &c);

    std::unique_ptr<PresetStore> m_store;
    std::unique_ptr<dbViewController> m_db;
};

void TestStoredBookmarks::init()
{
    m_store = std::make_unique<PresetStore>();
    m_db = std::make_unique<dbViewController>();
    m_db->linkToPresetsDB();
}

void TestStoredBookmarks::add(const QString &a, const QString &b, const QString &c)
{
    QStringList row = presets::seedRow(a);
    row[1] = b;
    row[2] = c;
    m_db->insertRecordIntoTableNamed(bookmarks, presets::numberedColumns(), row);
}

void TestStoredBookmarks::remembersAFolderByItsLocation()
{
    const QString folder = m_store->home() + QStringLiteral("/Größe 1%20 '");
    QVERIFY(QDir().mkpath(folder));
    const Ztbookmarks marks;
    const QByteArray bookmark = marks.bookmarkForURL(QUrl::fromLocalFile(folder));
    QVERIFY(!bookmark.isEmpty());
    QCOMPARE(marks.urlForBookmark(bookmark), QUrl::fromLocalFile(folder));
}

void TestStoredBookmarks::remembersNothingWithoutAFolder_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::newRow("none") << QUrl();
    QTest::newRow("not there") << QUrl::fromLocalFile(QStringLiteral("/no/such/folder"));
    QTest::newRow("elsewhere") << QUrl(QStringLiteral("https://localhost/tmp"));
    QTest::newRow("no path") << QUrl(QStringLiteral("file://"));
}

void TestStoredBookmarks::remembersNothingWithoutAFolder()
{
    QFETCH(QUrl, url);
    QVERIFY(Ztbookmarks().bookmarkForURL(url).isNull());
}

void TestStoredBookmarks::forgetsAFolderThatIsGone()
{
    const QString folder = m_store->home() + QStringLiteral("/a");
    QVERIFY(QDir().mkpath(folder));
    const Ztbookmarks marks;
    const QByteArray bookmark = marks.bookmarkForURL(QUrl::fromLocalFile(folder));
    QVERIFY(QDir().rmdir(folder));
    QVERIFY(marks.urlForBookmark(bookmark).isEmpty());
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(marks.urlForBookmark(bookmark).isEmpty());
    QVERIFY(marks.urlForBookmark(QByteArray()).isEmpty());
    QVERIFY(marks.urlForBookmark("no bookmark").isEmpty());
}

void TestStoredBookmarks::addsTwoRowsForABookmark()
{
    m_store->sql("CREATE TABLE Image (Image BLOB)");
    m_db->hSaveSecurityScopedBookmarks(QByteArray("0123\0\xff"
                                                  "789",
                                                  9));
    QCOMPARE(m_store->sql("SELECT hex(Image), typeof(Image) FROM Image ORDER BY rowid"),
             QStringLiteral("3031323300FF373839|blob||null").split(u'|'));
    m_db->hSaveSecurityScopedBookmarks(QByteArray(""));
    m_db->hSaveSecurityScopedBookmarks(QByteArray());
    QCOMPARE(m_store->sql("SELECT typeof(Image) FROM Image ORDER BY rowid LIMIT 4 OFFSET 2"),
             QStringLiteral("blob null null null").split(u' '));
}

void TestStoredBookmarks::addsNothingWithoutATable()
{
    const QStringList before = m_store->everything();
    m_db->hSaveSecurityScopedBookmarks("x");
    QVERIFY(m_db->connection().isOpen());
    QCOMPARE(m_store->everything(), before);
}

void TestStoredBookmarks::readsTheSecondColumn_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("one alone") << "StrField1" << QByteArray("");
    QTest::newRow("two") << "StrField0, StrField1" << QByteArray("value b");
    QTest::newRow("two, tight") << "StrField1,StrField0" << QByteArray("a");
    QTest::newRow("three") << "StrField0,StrField2,StrField1" << QByteArray("Größe");
    QTest::newRow("all") << "*" << QByteArray("a");
    QTest::newRow("key and one") << "ID, StrField1" << QByteArray("value b");
    QTest::newRow("number") << "StrField0, ID" << QByteArray("2");
    QTest::newRow("empty") << "StrField0, StrField3" << QByteArray("");
}

void TestStoredBookmarks::readsTheSecondColumn()
{
    QFETCH(QString, selected);
    QFETCH(QByteArray, expected);
    add(QString(u'a'), QStringLiteral("value b"), QStringLiteral("Größe"));
    const LogCapture log;
    const QByteArray found =
        m_db->hGetBookMarkedFolders(bookmarks, field0, QString(u'a'), field1, QStringLiteral("value b"), selected);
    QVERIFY(!found.isNull());
    QCOMPARE(found, expected);
    QCOMPARE(m_db->property("mySearchValue4").toByteArray(), expected);
}

void TestStoredBookmarks::readsTheLastRow()
{
    const LogCapture log;
    for (const char *value : {"first", "second", "third"})
        add(QStringLiteral("a"), QStringLiteral("b"), QString::fromLatin1(value));
    QCOMPARE(m_db->hGetBookMarkedFolders(bookmarks, field0, QStringLiteral("a"), field1, QStringLiteral("b"),
                                         QStringLiteral("ID,StrField2")),
             QByteArray("third"));
}

void TestStoredBookmarks::keepsTheLastValueWhenNothingIsFound()
{
    const LogCapture log;
    const QString two = QStringLiteral("StrField0, StrField1");
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QString none = QStringLiteral("none");
    QVERIFY(m_db->hGetBookMarkedFolders(bookmarks, field0, a, field1, b, two).isNull());
    add(a, b, QString(u'c'));
    QCOMPARE(m_db->hGetBookMarkedFolders(bookmarks, field0, a, field1, b, two), QByteArray("b"));
    QCOMPARE(m_db->hGetBookMarkedFolders(bookmarks, field0, none, field1, b, two), QByteArray("b"));
    QCOMPARE(m_db->hGetBookMarkedFolders(none, field0, a, field1, b, two), QByteArray("b"));
    QCOMPARE(m_db->hGetBookMarkedFolders(bookmarks, field0, a, field1, QStringLiteral("it's"), two), QByteArray("b"));
    QVERIFY(QFile::remove(m_store->path()) && QDir().mkpath(m_store->path()));
    QCOMPARE(m_db->hGetBookMarkedFolders(bookmarks, field0, a, field1, b, two), QByteArray("b"));
}

void TestStoredBookmarks::logsFourLines()
{
    add(QStringLiteral("a"), QStringLiteral("hello"), QString(u'c'));
    add(QStringLiteral("a"), QStringLiteral("b"), QString(u'c'));
    LogCapture log;
    m_db->hGetBookMarkedFolders(bookmarks, field0, QStringLiteral("a"), field2, QString(u'c'),
                                QStringLiteral("StrField0, StrField1"));
    m_db->hGetBookMarkedFolders(bookmarks, field0, QStringLiteral("it's"), field2, QString(u'c'), field0);
    m_db->hGetBookMarkedFolders(bookmarks, field0, QStringLiteral("none"), field2, QString(u'c'), field0);
    QCOMPARE(log.text(),
             QByteArray("SQL: SELECT StrField0, StrField1 FROM AppBookmarks WHERE StrField0 = 'a' AND "
                        "StrField2 = 'c'\n"
                        "check 1\ncheck 2\ncheck 4: <68656c6c 6f>\ncheck 2\ncheck 4: <62>\n"
                        "SQL: SELECT StrField0 FROM AppBookmarks WHERE StrField0 = 'it's' AND StrField2 = 'c'\n"
                        "SQL: SELECT StrField0 FROM AppBookmarks WHERE StrField0 = 'none' AND StrField2 = 'c'\n"
                        "check 1\n"));
}

void TestStoredBookmarks::logsBytesInGroupsOfFour_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("described");
    QTest::newRow("none") << "" << QByteArray("<>");
    QTest::newRow("four") << "abcd" << QByteArray("<61626364>");
    QTest::newRow("eight") << "abcdefgh" << QByteArray("<61626364 65666768>");
    QTest::newRow("nine") << "abcdefghi" << QByteArray("<61626364 65666768 69>");
}

void TestStoredBookmarks::logsBytesInGroupsOfFour()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, described);
    add(QStringLiteral("a"), value, QString(u'c'));
    LogCapture log;
    m_db->hGetBookMarkedFolders(bookmarks, field0, QStringLiteral("a"), field2, QString(u'c'),
                                QStringLiteral("ID,StrField1"));
    QVERIFY(log.text().endsWith("\ncheck 4: " + described + '\n'));
}

void TestStoredBookmarks::logsNothingWithoutADatabase()
{
    QVERIFY(QFile::remove(m_store->path()) && QDir().mkpath(m_store->path()));
    LogCapture log;
    m_db->hGetBookMarkedFolders(bookmarks, field0, field0, field1, field1, field0);
    QCOMPARE(log.text(), QByteArray());
}

void TestStoredBookmarks::keepsPictures_data()
{
    QTest::addColumn<QByteArray>("picture");
    QTest::newRow("bytes") << QByteArray("\x00\x01\xff'\"\x00", 6);
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("large") << QByteArray(2'000'000, '\x7f');
}

void TestStoredBookmarks::keepsPictures()
{
    QFETCH(QByteArray, picture);
    m_store->sql("CREATE TABLE IMAGES (URL TEXT, IMAGE BLOB)");
    m_db->openmyPresetsDb();
    const QString url = QStringLiteral("file:///a/b%20c.jpg");
    QVERIFY(m_db->LoadImagesFromSql(url).isNull());
    m_db->SaveImagesToSql(picture, url);
    QCOMPARE(m_db->LoadImagesFromSql(url), picture);
    QVERIFY(!m_db->LoadImagesFromSql(url).isNull());
    QCOMPARE(m_store->sql("SELECT URL, typeof(IMAGE), count(*) FROM IMAGES"),
             (QStringList{url, QStringLiteral("blob"), QString(u'1')}));
}

void TestStoredBookmarks::givesTheFirstPicture()
{
    m_store->sql("CREATE TABLE IMAGES (URL TEXT, IMAGE BLOB)");
    m_db->insertSortingPresetToDB(); // leaves a connection open
    for (const char *picture : {"first", "second"})
        m_db->SaveImagesToSql(picture, QStringLiteral("u"));
    m_db->SaveImagesToSql("third", QStringLiteral("v"));
    QCOMPARE(m_db->LoadImagesFromSql(QStringLiteral("u")), QByteArray("first"));
    QCOMPARE(m_db->LoadImagesFromSql(QStringLiteral("v")), QByteArray("third"));
    QVERIFY(m_db->LoadImagesFromSql(QStringLiteral("U")).isNull());
    m_db->SaveImagesToSql(QByteArray(), QStringLiteral("null"));
    QCOMPARE(m_store->sql("SELECT typeof(IMAGE) FROM IMAGES WHERE URL = 'null'"), QStringList{QStringLiteral("null")});
    QCOMPARE(m_db->LoadImagesFromSql(QStringLiteral("null")), QByteArray(""));
}

void TestStoredBookmarks::needsAnOpenConnectionForPictures()
{
    m_store->sql("CREATE TABLE IMAGES (URL TEXT, IMAGE BLOB)");
    const QByteArray before = m_store->bytes();
    m_db->SaveImagesToSql("picture", QStringLiteral("u"));
    QVERIFY(m_db->LoadImagesFromSql(QStringLiteral("u")).isNull());
    QCOMPARE(m_store->bytes(), before);
}

void TestStoredBookmarks::needsATableForPictures()
{
    const QByteArray before = m_store->bytes();
    m_db->openmyPresetsDb();
    m_db->SaveImagesToSql("picture", QStringLiteral("u"));
    QVERIFY(m_db->LoadImagesFromSql(QStringLiteral("u")).isNull());
    QVERIFY(m_db->connection().isOpen());
    QCOMPARE(m_store->bytes(), before);
}

void TestStoredBookmarks::keepsAPictureUnderAUrlThatCannotBeAskedFor()
{
    m_store->sql("CREATE TABLE IMAGES (URL TEXT, IMAGE BLOB)");
    m_db->openmyPresetsDb();
    m_db->SaveImagesToSql("picture", QStringLiteral("it's"));
    QCOMPARE(m_store->sql("SELECT URL FROM IMAGES"), QStringList{QStringLiteral("it's")});
    QVERIFY(m_db->LoadImagesFromSql(QStringLiteral("it's")).isNull());
}

QUORLIN_TEST(TestStoredBookmarks)
#include "tst_stored_bookmarks.moc"
