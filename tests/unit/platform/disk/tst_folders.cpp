#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"
#include "tests/support/test_program.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace platform;

/** Making, removing and copying whole folders. */
class TestFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<QTemporaryDir>(); }
    void knowsTheFolderForData_data();
    void knowsTheFolderForData();
    void tellsWhatIsThere();
    void makesAFolderWithItsParents();
    void makesNoFolderOverAFile();
    void removesAFolderAndNotWhatItsLinksLeadTo();
    void saysWhenThereIsNothingToRemove();
    void copiesAFolderWithAllThatIsInIt();
    void copiesAFile();
    void copiesOverNothing_data();
    void copiesOverNothing();
    void leavesNothingOfACopyThatFails();
    void saysWhenThereIsNothingToCopy();

private:
    QString path(const char *name) const { return m_home->filePath(QString::fromLatin1(name)); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray read(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    QStringList names(const char *folder) const
    {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    void makeTree() const;

    std::unique_ptr<QTemporaryDir> m_home;
};

void TestFolders::makeTree() const
{
    QVERIFY(QDir().mkpath(path("tree/inner/deep")));
    write("tree/a.png", "a");
    write("tree/.hidden", "h");
    write("tree/inner/deep/b.png", "b");
    QVERIFY(QDir().mkpath(path("outside")));
    write("outside/kept", "k");
    QVERIFY(QFile::link(path("outside"), path("tree/link")));
}

void TestFolders::knowsTheFolderForData_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<QString>("folder"); // empty: the one in the home folder
    QTest::newRow("said") << QByteArray("/data") << "/data";
    QTest::newRow("with a slash") << QByteArray("/data//x/") << "/data/x";
    QTest::newRow("not said") << QByteArray() << "";
    QTest::newRow("relative") << QByteArray("data") << "";
}

void TestFolders::knowsTheFolderForData()
{
    QFETCH(QByteArray, said);
    QFETCH(QString, folder);
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    if (said.isNull())
        qunsetenv("XDG_DATA_HOME");
    else
        qputenv("XDG_DATA_HOME", said);
    QCOMPARE(applicationSupportFolder(),
             folder.isEmpty() ? QDir::homePath() + QStringLiteral("/.local/share") : folder);
    qputenv("XDG_DATA_HOME", before);
}

void TestFolders::tellsWhatIsThere()
{
    makeTree();
    QVERIFY(QFile::link(path("no"), path("dangling")));
    QVERIFY(itemExists(path("tree")) && itemExists(path("tree/a.png")) && itemExists(path("tree/link")));
    QVERIFY(!itemExists(path("no")) && !itemExists(path("dangling")));
    QVERIFY(folderExists(path("tree")) && folderExists(path("tree/link")));
    QVERIFY(!folderExists(path("tree/a.png")) && !folderExists(path("no")));
}

void TestFolders::makesAFolderWithItsParents()
{
    QVERIFY(makeFolder(path("a/b/c/")));
    QVERIFY(QFileInfo(path("a/b/c")).isDir());
    write("a/b/c/kept", "k");
    QVERIFY(makeFolder(path("a/b/c")));
    QCOMPARE(read("a/b/c/kept"), QByteArray("k"));
}

void TestFolders::makesNoFolderOverAFile()
{
    write("file", "f");
    for (const char *name : {"file", "file/b"}) {
        const auto made = makeFolder(path(name));
        QVERIFY(!made);
        QCOMPARE(made.error().code, ErrorCode::WriteFailed);
    }
    QCOMPARE(read("file"), QByteArray("f"));
}

void TestFolders::removesAFolderAndNotWhatItsLinksLeadTo()
{
    makeTree();
    QVERIFY(removeItem(path("tree")));
    QVERIFY(!QFileInfo::exists(path("tree")));
    QCOMPARE(read("outside/kept"), QByteArray("k"));
    QVERIFY(QFile::link(path("outside"), path("link")));
    QVERIFY(removeItem(path("link")));
    QCOMPARE(read("outside/kept"), QByteArray("k"));
    QCOMPARE(names("."), QStringList{QStringLiteral("outside")});
}

void TestFolders::saysWhenThereIsNothingToRemove()
{
    const auto removed = removeItem(path("no"));
    QVERIFY(!removed);
    QCOMPARE(removed.error().code, ErrorCode::NotFound);
}

void TestFolders::copiesAFolderWithAllThatIsInIt()
{
    makeTree();
    QVERIFY(::chmod(QFile::encodeName(path("tree/a.png")).constData(), 0640) == 0);
    QVERIFY(copyItem(path("tree"), path("copy")));
    QCOMPARE(names("copy"), names("tree"));
    QCOMPARE(read("copy/a.png"), QByteArray("a"));
    QCOMPARE(read("copy/.hidden"), QByteArray("h"));
    QCOMPARE(read("copy/inner/deep/b.png"), QByteArray("b"));
    QCOMPARE(QFile::symLinkTarget(path("copy/link")), path("outside"));
    QCOMPARE(QFile::permissions(path("copy/a.png")), QFile::permissions(path("tree/a.png")));
    QCOMPARE(names("."), QStringLiteral("copy outside tree").split(u' '));
}

void TestFolders::copiesAFile()
{
    write("file", "f");
    QVERIFY(copyItem(path("file"), path("copy")));
    QCOMPARE(read("copy"), QByteArray("f"));
    QCOMPARE(read("file"), QByteArray("f"));
}

void TestFolders::copiesOverNothing_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("folder") << "folder";
    QTest::newRow("file") << "file";
    QTest::newRow("link to nothing") << "dangling";
    QTest::newRow("itself") << "tree";
}

void TestFolders::copiesOverNothing()
{
    QFETCH(QString, target);
    makeTree();
    QVERIFY(QDir().mkpath(path("folder")));
    write("file", "f");
    QVERIFY(QFile::link(path("no"), path("dangling")));
    const QStringList before = names(".");
    const auto copied = copyItem(path("tree"), m_home->filePath(target));
    QVERIFY(!copied);
    QCOMPARE(copied.error().code, ErrorCode::WriteFailed);
    QCOMPARE(names("."), before);
    QCOMPARE(names("folder"), QStringList());
    QCOMPARE(read("file"), QByteArray("f"));
}

void TestFolders::leavesNothingOfACopyThatFails()
{
    makeTree();
    write("file", "f");
    for (const char *target : {"no/copy", "file/copy"})
        QVERIFY(!copyItem(path("tree"), path(target)));
    QVERIFY(!copyItem(path("tree"), path("tree/copy")) || names("tree").contains(QStringLiteral("copy")));
    QCOMPARE(names("."), QStringLiteral("file outside tree").split(u' '));
}

void TestFolders::saysWhenThereIsNothingToCopy()
{
    const auto copied = copyItem(path("no"), path("copy"));
    QVERIFY(!copied);
    QCOMPARE(copied.error().code, ErrorCode::NotFound);
    QCOMPARE(names("."), QStringList());
}

QUORLIN_TEST(TestFolders)
#include "tst_folders.moc"
