#include "platform/file/mapped_file.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <csignal>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using platform::MappedFile;

namespace {

const qint64 page = ::sysconf(_SC_PAGESIZE);

} // namespace

/** Files that are read through memory, and that cannot be read in the middle of it. */
class TestMappedFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheBytesOfTheFile();
    void readsZerosWhereNothingCanBeRead();
    void takesNobodyElsesFaults();
};

void TestMappedFile::hasTheBytesOfTheFile()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", "some bytes") && folder.write("empty", ""));
    QFile file(folder.path("a"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const MappedFile mapped(file);
    QVERIFY(mapped.isThere() && !mapped.isSpoilt());
    QCOMPARE(mapped.bytes(), QByteArray("some bytes"));
    QFile empty(folder.path("empty"));
    QVERIFY(empty.open(QIODevice::ReadOnly));
    QCOMPARE(MappedFile(empty).bytes(), QByteArray());
}

/** Another program cuts the file short; a card that fails is met in the same way. */
void TestMappedFile::readsZerosWhereNothingCanBeRead()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", QByteArray(4 * page, 'a')) && folder.write("b", QByteArray(4 * page, 'b')));
    QFile a(folder.path("a"));
    QFile b(folder.path("b"));
    QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    const MappedFile whole(a);
    {
        const MappedFile cut(b);
        QCOMPARE(::truncate(QFile::encodeName(b.fileName()).constData(), page), 0);
        const QByteArray bytes = cut.bytes();
        QCOMPARE(bytes.size(), 4 * page);
        QCOMPARE(bytes.at(page - 1), 'b');
        QVERIFY(!cut.isSpoilt());
        QCOMPARE(bytes.at(3 * page + 7), '\0');
        QVERIFY(cut.isSpoilt() && !whole.isSpoilt());
        QCOMPARE(bytes.count('b') + bytes.count('\0'), 4 * page);
    }
    QCOMPARE(whole.bytes().count('a'), 4 * page);
    QCOMPARE(::truncate(QFile::encodeName(a.fileName()).constData(), page), 0);
    QCOMPARE(whole.bytes().count('\0'), 3 * page);
    QVERIFY(whole.isSpoilt());
}

void TestMappedFile::takesNobodyElsesFaults()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", QByteArray(2 * page, 'a')) && folder.write("b", QByteArray(2 * page, 'b')));
    for (const bool isOneMapped : {true, false}) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (const int signal : {SIGBUS, SIGSEGV})
                std::signal(signal, SIG_DFL); // the test's own would write a report
            QFile ours(folder.path("a"));
            QFile theirs(folder.path("b"));
            (void)(ours.open(QIODevice::ReadOnly) && theirs.open(QIODevice::ReadOnly));
            if (isOneMapped)
                (void)MappedFile(theirs).bytes().count('b');
            const MappedFile mapped(ours);
            auto *data = static_cast<volatile const char *>(
                ::mmap(nullptr, size_t(2 * page), PROT_READ, MAP_SHARED, theirs.handle(), 0));
            if (data == MAP_FAILED || ::truncate(QFile::encodeName(theirs.fileName()).constData(), 0) != 0)
                ::_exit(1);
            ::_exit(data[page] == 0 ? 2 : 3);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGBUS);
        QVERIFY(folder.write("b", QByteArray(2 * page, 'b')));
    }
}

QUORLIN_TEST(TestMappedFile)
#include "tst_mapped_file.moc"
