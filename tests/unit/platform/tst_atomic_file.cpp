#include "platform/foundation/atomic_file.h"
#include "tests/support/test_pictures.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

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
};

QTEST_GUILESS_MAIN(AtomicFile)
#include "tst_atomic_file.moc"
