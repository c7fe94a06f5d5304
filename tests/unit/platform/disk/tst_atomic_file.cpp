#include "platform/file/atomic_file.h"
#include "platform/file/sign_of_life.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using platform::replaceFile;

class AtomicFile : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString at(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void init() { m_folder = QTemporaryDir(); }

    void writesExactlyTheBytes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("with nulls") << QByteArray("a\0b", 3);
        QTest::newRow("many") << QByteArray(3'000'000, 'x');
    }

    void writesExactlyTheBytes()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(replaceFile(at("a"), bytes).has_value());
        QCOMPARE(pictures::bytesOf(at("a")), bytes);
        QCOMPARE(files(), QStringList{QStringLiteral("a")});
    }

    void keepsPermissionsOfTheFileItReplaces()
    {
        QVERIFY(replaceFile(at("a"), "1").has_value());
        QVERIFY(QFile::setPermissions(at("a"), QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(replaceFile(at("a"), "2").has_value());
        QVERIFY(!(QFile::permissions(at("a")) & QFile::ReadOther));
        QVERIFY(!(QFile::permissions(at("a")) & QFile::ReadGroup));
    }

    void leavesTheOldFileWhenTheDiskIsFull()
    {
        QVERIFY(replaceFile(at("a"), "old").has_value());
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit before = {};
        ::getrlimit(RLIMIT_FSIZE, &before);
        rlimit small = before;
        small.rlim_cur = 1000;
        ::setrlimit(RLIMIT_FSIZE, &small);
        const auto result = replaceFile(at("a"), QByteArray(100'000, 'x'));
        ::setrlimit(RLIMIT_FSIZE, &before);
        QVERIFY(!result.has_value());
        QCOMPARE(int(result.error().code), int(platform::ErrorCode::WriteFailed));
        QVERIFY(result.error().message.contains(at("a")));
        QCOMPARE(pictures::bytesOf(at("a")), QByteArray("old"));
        QCOMPARE(files(), QStringList{QStringLiteral("a")});
    }

    void failsWhereThereIsNoFolder()
    {
        QVERIFY(!replaceFile(at("none/a"), "1").has_value());
        QCOMPARE(files(), QStringList());
    }

    void failsWhereAFolderHasTheName()
    {
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral("a")));
        QVERIFY(!replaceFile(at("a"), "1").has_value());
        QCOMPARE(files(), QStringList{QStringLiteral("a")});
        QVERIFY(QFileInfo(at("a")).isDir());
    }

    /** Each of them would keep a reader waiting, or never end, and none is a place for a file. */
    void leavesWhatIsNoOrdinaryFileAlone_data()
    {
        QTest::addColumn<mode_t>("kind");
        QTest::newRow("named pipe") << mode_t(S_IFIFO);
        QTest::newRow("socket") << mode_t(S_IFSOCK);
        QTest::newRow("device") << mode_t(S_IFCHR);
    }

    void leavesWhatIsNoOrdinaryFileAlone()
    {
        QFETCH(mode_t, kind);
        const dev_t endless = makedev(1, 5);
        if (::mknod(qPrintable(at("a")), kind | 0600, kind == S_IFCHR ? endless : 0) != 0)
            QSKIP("this user may not make one");
        QVERIFY(QFile::link(at("a"), at("link")));
        for (const char *name : {"a", "link"}) {
            const auto read = platform::readFile(at(name));
            QVERIFY(!read);
            QCOMPARE(int(read.error().code), int(platform::ErrorCode::NotFound));
            QVERIFY(read.error().message.contains(QStringLiteral("ordinary file")));
        }
        QVERIFY(!replaceFile(at("a"), "1"));
        struct stat there = {};
        QVERIFY(::lstat(qPrintable(at("a")), &there) == 0);
        QCOMPARE(there.st_mode & S_IFMT, kind);
        QVERIFY(replaceFile(at("link"), "1")); // a link is replaced, whatever it leads to
        QCOMPARE(pictures::bytesOf(at("link")), QByteArray("1"));
    }

    void readsNoFolder() { QVERIFY(!platform::readFile(m_folder.path())); }

    void takesNoTextForAPathUpToItsNullCharacter()
    {
        QVERIFY(replaceFile(at("a"), "old").has_value());
        const QString path = at("a") + QChar(u'\0') + QStringLiteral(".jpg");
        QVERIFY(!platform::readFile(path));
        QVERIFY(!replaceFile(path, "new"));
        QCOMPARE(pictures::bytesOf(at("a")), QByteArray("old"));
        QCOMPARE(files(), QStringList{QStringLiteral("a")});
    }

    void takesAwayWhatEndedWritersLeft()
    {
        const auto make = [this](const char *name) {
            QFile file(at(name));
            return file.open(QIODevice::WriteOnly) && file.write("half") == 4;
        };
        for (const char *name :
             {".quorlin-part-dead", ".quorlin-part-alive", ".quorlin-aside-a", ".quorlin-0123456789ab"})
            QVERIFY(make(name));
        QVERIFY(QFile::link(at(".quorlin-aside-a"), at(".quorlin-part-link")));
        QVERIFY(QDir(m_folder.path()).mkdir(QStringLiteral(".quorlin-part-folder")));
        QFile alive(at(".quorlin-part-alive"));
        QVERIFY(alive.open(QIODevice::ReadOnly) && platform::showLife(alive.handle()) == platform::Life::Shown);
        QVERIFY(replaceFile(at("a"), "1"));
        const QSet<QString> kept = {QStringLiteral("a"),
                                    QStringLiteral(".quorlin-part-alive"),
                                    QStringLiteral(".quorlin-aside-a"),
                                    QStringLiteral(".quorlin-0123456789ab"),
                                    QStringLiteral(".quorlin-part-link"),
                                    QStringLiteral(".quorlin-part-folder")};
        const QStringList there = files();
        QCOMPARE(QSet<QString>(there.cbegin(), there.cend()), kept);
    }
};

QUORLIN_TEST(AtomicFile)
#include "tst_atomic_file.moc"
