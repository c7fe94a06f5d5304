#include "platform/desktop/bookmarks.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

/** Places that are remembered and found again, or known to be gone. */
class TestBookmarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<QTemporaryDir>(); }
    void findsAFolderAgainByItsSpelling_data();
    void findsAFolderAgainByItsSpelling();
    void findsAFile();
    void doesNotMindWhatIsPutInAFolder();
    void doesNotFindAFolderThatWasRemoved();
    void doesNotTakeAFolderMadeAnewForTheOldOne();
    void doesNotTakeAnotherFolderForTheOldOne();
    void doesNotFollowAFolderThatWasMoved();
    void followsALinkToWhereItLed();
    void remembersNothingThatIsNotThere_data();
    void remembersNothingThatIsNotThere();
    void remembersNothingThatMayNotBeRead();
    void refusesOtherData_data();
    void refusesOtherData();
    void refusesEveryDamagedBookmark();

private:
    QString path(const QString &name) const { return m_home->filePath(name); }
    QString made(const QString &name) const
    {
        QDir().mkpath(path(name));
        return path(name);
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

static ErrorCode codeFor(const QByteArray &bookmark)
{
    const auto path = resolveBookmark(bookmark);
    return path ? ErrorCode::TooLarge : path.error().code; // TooLarge: none that is ever given
}

void TestBookmarks::findsAFolderAgainByItsSpelling_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a", "a/", "two words", "a%20b", "Größe 🙂", "it's", "new\nline", "a/../a"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestBookmarks::findsAFolderAgainByItsSpelling()
{
    QFETCH(QString, name);
    made(QStringLiteral("a"));
    const QString folder = m_home->path() + u'/' + name;
    QVERIFY(QDir().mkpath(folder));
    const auto bookmark = makeBookmark(folder);
    QVERIFY(bookmark);
    QCOMPARE(resolveBookmark(*bookmark).value_or(QString()), folder);
    QCOMPARE(makeBookmark(folder).value_or(QByteArray()), *bookmark);
}

void TestBookmarks::findsAFile()
{
    QFile file(path(QStringLiteral("f")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const auto bookmark = makeBookmark(file.fileName());
    QVERIFY(bookmark);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("changed") == 7);
    file.close();
    QCOMPARE(resolveBookmark(*bookmark).value_or(QString()), file.fileName());
}

void TestBookmarks::doesNotMindWhatIsPutInAFolder()
{
    const QString folder = made(QStringLiteral("a"));
    const auto bookmark = makeBookmark(folder);
    made(QStringLiteral("a/b/c"));
    QVERIFY(::chmod(QFile::encodeName(folder).constData(), 0700) == 0);
    QCOMPARE(resolveBookmark(*bookmark).value_or(QString()), folder);
}

void TestBookmarks::doesNotFindAFolderThatWasRemoved()
{
    const QString folder = made(QStringLiteral("a"));
    const auto bookmark = makeBookmark(folder);
    QVERIFY(QDir().rmdir(folder));
    QCOMPARE(codeFor(*bookmark), ErrorCode::NotFound);
}

void TestBookmarks::doesNotTakeAFolderMadeAnewForTheOldOne()
{
    // The new one mostly gets the number of the old one, and may be born in the same tick of the clock.
    const QString folder = made(QStringLiteral("a"));
    for (int i = 0; i < 500; ++i) {
        const auto bookmark = makeBookmark(folder);
        QVERIFY(QDir().rmdir(folder));
        QVERIFY(QDir().mkdir(folder));
        QCOMPARE(codeFor(*bookmark), ErrorCode::NotFound);
    }
}

void TestBookmarks::doesNotTakeAnotherFolderForTheOldOne()
{
    const QString folder = made(QStringLiteral("a"));
    const auto bookmark = makeBookmark(folder);
    QVERIFY(QDir().rename(folder, path(QStringLiteral("kept"))));
    made(QStringLiteral("a"));
    QCOMPARE(codeFor(*bookmark), ErrorCode::NotFound);
    QVERIFY(QDir().rmdir(folder));
    QVERIFY(QDir().rename(path(QStringLiteral("kept")), folder));
    QCOMPARE(resolveBookmark(*bookmark).value_or(QString()), folder);
}

void TestBookmarks::doesNotFollowAFolderThatWasMoved()
{
    const QString folder = made(QStringLiteral("a"));
    const auto bookmark = makeBookmark(folder);
    QVERIFY(QDir().rename(folder, path(QStringLiteral("b"))));
    QCOMPARE(codeFor(*bookmark), ErrorCode::NotFound);
}

void TestBookmarks::followsALinkToWhereItLed()
{
    const QString link = path(QStringLiteral("link"));
    QVERIFY(QFile::link(made(QStringLiteral("a")), link));
    const auto bookmark = makeBookmark(link);
    QCOMPARE(resolveBookmark(*bookmark).value_or(QString()), link);
    QVERIFY(QFile::remove(link));
    QVERIFY(QFile::link(made(QStringLiteral("b")), link));
    QCOMPARE(codeFor(*bookmark), ErrorCode::NotFound);
}

void TestBookmarks::remembersNothingThatIsNotThere_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {"", "relative", ".", "/no/such/folder", "/proc/self/no"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void TestBookmarks::remembersNothingThatIsNotThere()
{
    QFETCH(QString, path);
    const auto bookmark = makeBookmark(path);
    QVERIFY(!bookmark);
    QCOMPARE(bookmark.error().code, ErrorCode::NotFound);
}

void TestBookmarks::remembersNothingThatMayNotBeRead()
{
    const QByteArray folder = QFile::encodeName(made(QStringLiteral("a")));
    QVERIFY(::chmod(folder.constData(), 0) == 0 && ::chmod(QFile::encodeName(m_home->path()).constData(), 0755) == 0);
    // Root may read everything; access() asks for the user of the process as it was started.
    const bool isRoot = ::getuid() == 0;
    if (isRoot)
        QVERIFY(::setresuid(65534, 65534, 0) == 0);
    const auto bookmark = makeBookmark(QFile::decodeName(folder));
    if (isRoot)
        QVERIFY(::setresuid(0, 0, 0) == 0);
    QVERIFY(::chmod(folder.constData(), 0700) == 0);
    QVERIFY(!bookmark);
    QCOMPARE(bookmark.error().code, ErrorCode::Unreadable);
}

void TestBookmarks::refusesOtherData_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("null") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("/tmp");
    QTest::newRow("zeros") << QByteArray(200, '\0');
    QTest::newRow("mark alone") << QByteArray("QBM1");
    QTest::newRow("claims much") << QByteArray("QBM1\x7f\xff\xff\xff/a");
    QTest::newRow("claims more") << QByteArray("QBM1\xff\xff\xff\xfe\x7f\xff\xff\xff\xff\xff\xff\xff");
    QTest::newRow("megabytes") << QByteArray("QBM1") + QByteArray(3'000'000, '/');
}

void TestBookmarks::refusesOtherData()
{
    QFETCH(QByteArray, data);
    QCOMPARE(codeFor(data), ErrorCode::InvalidValue);
}

void TestBookmarks::refusesEveryDamagedBookmark()
{
    const QString folder = made(QStringLiteral("a"));
    const QByteArray whole = makeBookmark(folder).value_or(QByteArray());
    QVERIFY(!whole.isEmpty());
    for (qsizetype i = 0; i < whole.size(); ++i) {
        QVERIFY(!resolveBookmark(whole.left(i)));
        QByteArray damaged = whole;
        damaged[i] = char(damaged[i] ^ 0x55);
        const auto path = resolveBookmark(damaged);
        QVERIFY2(!path, qPrintable(QStringLiteral("byte %1").arg(i)));
    }
    QVERIFY(!resolveBookmark(whole + 'x'));
}

QUORLIN_TEST(TestBookmarks)
#include "tst_bookmarks.moc"
