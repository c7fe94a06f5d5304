#include "files/finishing/unfinished_folder.h"

#include "files/finishing/put_in_place.h"
#include "platform/disk/disk_file_system.h"
#include "platform/file/sign_of_life.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace files;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/** Hidden folders for files that are not finished: held, found again, and swept when nobody holds them. */
class TestUnfinishedFolder : public QObject
{
    Q_OBJECT

    platform::DiskFileSystem m_disk;
    QTemporaryDir m_folder;
    QString at(const char *name) const { return m_folder.filePath(text(name)); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray read(const char *name) const { return pictures::bytesOf(at(name)); }
    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void init() { m_folder = QTemporaryDir(); }

    void keepsUnfinishedFilesInAFolderOfItsOwn();
    void writesIntoItsFolderAlsoWhenALinkTakesItsPlace();
    void sweepsWhatNobodyHolds();
    void leavesFoldersOfOthersAlone();
    void sweepsWhatAKilledProcessLeft();
};

void TestUnfinishedFolder::keepsUnfinishedFilesInAFolderOfItsOwn()
{
    const QString staging = makeStaging(m_folder.path());
    QVERIFY(staging.endsWith(u'/'));
    QCOMPARE(names().size(), 1);
    const QString name = m_folder.filePath(names().constFirst());
    QVERIFY(!(QFile::permissions(name) & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther)));
    QFile file(staging + text("a.jpg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("done");
    file.close();
    QVERIFY(QFile::exists(name + text("/a.jpg")));
    QCOMPARE(placeFile(m_disk, file.fileName(), at("a.jpg")).outcome, PlaceOutcome::Placed);
    removeStaging(staging);
    QCOMPARE(names(), QStringList{text("a.jpg")});
    QCOMPARE(read("a.jpg"), QByteArray("done"));
    removeStaging(m_folder.path() + u'/');
    QCOMPARE(names(), QStringList{text("a.jpg")});
    QVERIFY(makeStaging(at("missing")).isEmpty());
    QVERIFY(makeStaging(QString()).isEmpty());
    QVERIFY(makeStaging(m_folder.path() + QChar(u'\0') + u'b').isEmpty());
}

void TestUnfinishedFolder::writesIntoItsFolderAlsoWhenALinkTakesItsPlace()
{
    QVERIFY(QDir(m_folder.path()).mkdir(text("out")) && QDir(m_folder.path()).mkdir(text("mine")));
    write("mine/a.jpg", "mine");
    const QString staging = makeStaging(at("out"));
    const QString name = QDir(at("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).value(0);
    QVERIFY(QFile::rename(at("out/") + name, at("out/elsewhere")));
    QVERIFY(QFile::link(at("mine"), at("out/") + name));
    QFile file(staging + text("a.jpg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("result");
    file.close();
    QCOMPARE(read("mine/a.jpg"), QByteArray("mine"));
    QCOMPARE(read("out/elsewhere/a.jpg"), QByteArray("result"));
    removeStaging(staging);
    QCOMPARE(read("mine/a.jpg"), QByteArray("mine"));
    QVERIFY(QDir(at("out/elsewhere")).isEmpty());
}

/** The number of a process says nothing here: it may be that of another one in another container. */
void TestUnfinishedFolder::sweepsWhatNobodyHolds()
{
    const QString living = makeStaging(m_folder.path());
    const QString livingName = names().constFirst();
    QVERIFY(QDir(m_folder.path()).mkpath(text(".quorlin-unfinished-0badcafe-1-1/deep")));
    write(".quorlin-unfinished-0badcafe-1-1/deep/a", "half");
    QVERIFY(QDir(m_folder.path()).mkdir(text("mine")) && QFile::link(at("mine"), at(".quorlin-unfinished-link")));
    write("mine/a", "mine");
    write(".quorlin-part-a", "half");
    sweepStagings(m_folder.path());
    QCOMPARE(names(), QStringList({livingName, text(".quorlin-unfinished-link"), text("mine")}));
    QCOMPARE(read("mine/a"), QByteArray("mine"));

    // Named like the folder of a process that has ended, but somebody shows life on it.
    const int held = ::open(qPrintable(m_folder.filePath(livingName)), O_RDONLY | O_DIRECTORY);
    QCOMPARE(int(platform::showLife(held)), int(platform::Life::Others));
    removeStaging(living);
    ::close(held);
    QVERIFY(!names().contains(livingName));
}

void TestUnfinishedFolder::leavesFoldersOfOthersAlone()
{
    if (::geteuid() != 0)
        QSKIP("only root can make a folder of somebody else");
    const QString foreign = at(".quorlin-unfinished-0badcafe-2-2");
    QVERIFY(QDir(m_folder.path()).mkdir(foreign) && ::chown(qPrintable(foreign), 12345, 12345) == 0);
    sweepStagings(m_folder.path());
    QVERIFY(QDir(foreign).exists());
}

void TestUnfinishedFolder::sweepsWhatAKilledProcessLeft()
{
    const pid_t child = ::fork();
    if (child == 0) {
        QFile file(makeStaging(m_folder.path()) + text("a.jpg"));
        (void)(file.open(QIODevice::WriteOnly) && file.write("half") > 0 && file.flush());
        ::kill(::getpid(), SIGSTOP);
        ::_exit(0);
    }
    int status = 0;
    QVERIFY(child > 0 && ::waitpid(child, &status, WUNTRACED) == child && WIFSTOPPED(status));
    QCOMPARE(names().size(), 1);
    sweepStagings(m_folder.path());
    QCOMPARE(names().size(), 1); // it lives
    ::kill(child, SIGKILL);
    QCOMPARE(::waitpid(child, &status, 0), child);
    sweepStagings(m_folder.path());
    QCOMPARE(names(), QStringList());
}

QUORLIN_TEST(TestUnfinishedFolder)
#include "tst_unfinished_folder.moc"
