#include "app/window/file_desk.h"
#include "app/window/picture_collector.h"
#include "app/window/staging.h"
#include "platform/disk/item_identity.h"
#include "platform/file/sign_of_life.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using window::FileDesk;
using window::PlaceOutcome;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/** What jobs do with files: places for unfinished ones, and the way of finished ones to their names. */
class TestFileDesk : public QObject
{
    Q_OBJECT

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
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); } // its natural order
    void init() { m_folder = QTemporaryDir(); }

    void placesOnlyWhereNothingIs();
    void replacesOnlyWhatIsKnown();
    void leavesALinkThatGotThereAlone();
    void tellsOneFolderHoweverItIsSpelled();
    void tellsWhoReadsAFile();
    void keepsUnfinishedFilesInAFolderOfItsOwn();
    void writesIntoItsFolderAlsoWhenALinkTakesItsPlace();
    void sweepsWhatNobodyHolds();
    void leavesFoldersOfOthersAlone();
    void sweepsWhatAKilledProcessLeft();
    void collectsInNaturalOrderFilesFirst();
    void collectsWhatIsHardToReach();
    void tellsWhatItLeavesOut();
    void saysSizesInEnglishForNamesAndInTheReadersWayForTheEye();
};

void TestFileDesk::placesOnlyWhereNothingIs()
{
    write("new", "new");
    write("there", "old");
    QVERIFY(QFile::link(at("nothing"), at("broken")));
    for (const char *taken : {"there", "broken"})
        QCOMPARE(window::placeFile(at("new"), at(taken)).outcome, PlaceOutcome::Taken);
    QCOMPARE(read("there"), QByteArray("old"));
    QCOMPARE(window::placeFile(at("new"), at("free")).outcome, PlaceOutcome::Placed);
    QCOMPARE(read("free"), QByteArray("new"));
    const auto lost = window::placeFile(at("new"), at("other"));
    QCOMPARE(lost.outcome, PlaceOutcome::Failed);
    QVERIFY(lost.message.contains(text("other")));
}

void TestFileDesk::replacesOnlyWhatIsKnown()
{
    write("new", "new");
    write("a", "old");
    write("original", "original");
    QVERIFY(QFile::setPermissions(at("a"), QFile::ReadOwner | QFile::WriteOwner));
    const QString known = platform::itemIdentity(at("a"));
    QCOMPARE(window::placeFileInsteadOf(at("new"), at("original"), known).outcome, PlaceOutcome::Taken);
    QCOMPARE(window::placeFileInsteadOf(at("new"), m_folder.path(), known).outcome, PlaceOutcome::Taken);
    QCOMPARE(read("original"), QByteArray("original"));
    QCOMPARE(window::placeFileInsteadOf(at("new"), at("a"), known).outcome, PlaceOutcome::Placed);
    QCOMPARE(read("a"), QByteArray("new"));
    QVERIFY(!(QFile::permissions(at("a")) & QFile::ReadOther));
    write("newer", "newer");
    QCOMPARE(window::placeFileInsteadOf(at("newer"), at("gone"), known).outcome, PlaceOutcome::Placed);
    QCOMPARE(names(), QStringList({text("a"), text("gone"), text("original")}));
}

/** Between the plan and the run the folder was swapped for a link to the originals. */
void TestFileDesk::leavesALinkThatGotThereAlone()
{
    QVERIFY(QDir(m_folder.path()).mkdir(text("in")) && QDir(m_folder.path()).mkdir(text("out")));
    write("in/a.jpg", "original");
    write("out/a.jpg", "old result");
    write("new", "new");
    const QString known = platform::itemIdentity(at("out/a.jpg"));
    QVERIFY(QDir(at("out")).removeRecursively() && QFile::link(at("in"), at("out")));
    QCOMPARE(window::placeFileInsteadOf(at("new"), at("out/a.jpg"), known).outcome, PlaceOutcome::Taken);
    QCOMPARE(read("in/a.jpg"), QByteArray("original"));
}

void TestFileDesk::tellsOneFolderHoweverItIsSpelled()
{
    QVERIFY(QDir(m_folder.path()).mkdir(text("in")) && QFile::link(at("in"), at("link")));
    const FileDesk desk;
    const QString known = desk.folderIdentity(at("in"));
    for (const char *spelling : {"in/", "in/.", "in/../in", "link", "link/../in", "link/."})
        QCOMPARE(desk.folderIdentity(at(spelling)), known);
    QVERIFY(desk.folderIdentity(m_folder.path()) != known);
    QCOMPARE(desk.folderIdentity(at("link/new/er")), desk.folderIdentity(at("in/new//er/")));
    QVERIFY(desk.folderIdentity(at("in/new")) != desk.folderIdentity(at("in/other")));
}

void TestFileDesk::tellsWhoReadsAFile()
{
    write("a", "a");
    QVERIFY(QFile::link(at("a"), at("link")));
    const FileDesk desk;
    const QVariantMap owners = desk.owners({at("a"), at("link"), at("missing")});
    QCOMPARE(owners.size(), 2);
    QCOMPARE(owners.value(desk.identity(at("a"))).toStringList(), QStringList({at("a"), at("link")}));
    QCOMPARE(owners.value(desk.identity(at("link"))).toStringList(), QStringList{at("link")});
    QCOMPARE(desk.identity(at("missing")), QString());
}

void TestFileDesk::keepsUnfinishedFilesInAFolderOfItsOwn()
{
    const QString staging = window::makeStaging(m_folder.path());
    QVERIFY(staging.endsWith(u'/'));
    QCOMPARE(names().size(), 1);
    const QString name = m_folder.filePath(names().constFirst());
    QVERIFY(!(QFile::permissions(name) & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther)));
    QFile file(staging + text("a.jpg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("done");
    file.close();
    QVERIFY(QFile::exists(name + text("/a.jpg")));
    QCOMPARE(window::placeFile(file.fileName(), at("a.jpg")).outcome, PlaceOutcome::Placed);
    window::removeStaging(staging);
    QCOMPARE(names(), QStringList{text("a.jpg")});
    QCOMPARE(read("a.jpg"), QByteArray("done"));
    window::removeStaging(m_folder.path() + u'/');
    QCOMPARE(names(), QStringList{text("a.jpg")});
    QVERIFY(window::makeStaging(at("missing")).isEmpty());
}

void TestFileDesk::writesIntoItsFolderAlsoWhenALinkTakesItsPlace()
{
    QVERIFY(QDir(m_folder.path()).mkdir(text("out")) && QDir(m_folder.path()).mkdir(text("mine")));
    write("mine/a.jpg", "mine");
    const QString staging = window::makeStaging(at("out"));
    const QString name = QDir(at("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).value(0);
    QVERIFY(QFile::rename(at("out/") + name, at("out/elsewhere")));
    QVERIFY(QFile::link(at("mine"), at("out/") + name));
    QFile file(staging + text("a.jpg"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("result");
    file.close();
    QCOMPARE(read("mine/a.jpg"), QByteArray("mine"));
    QCOMPARE(read("out/elsewhere/a.jpg"), QByteArray("result"));
    window::removeStaging(staging);
    QCOMPARE(read("mine/a.jpg"), QByteArray("mine"));
    QVERIFY(QDir(at("out/elsewhere")).isEmpty());
}

/** The number of a process says nothing here: it may be that of another one in another container. */
void TestFileDesk::sweepsWhatNobodyHolds()
{
    const QString living = window::makeStaging(m_folder.path());
    const QString livingName = names().constFirst();
    QVERIFY(QDir(m_folder.path()).mkpath(text(".quorlin-unfinished-0badcafe-1-1/deep")));
    write(".quorlin-unfinished-0badcafe-1-1/deep/a", "half");
    QVERIFY(QDir(m_folder.path()).mkdir(text("mine")) && QFile::link(at("mine"), at(".quorlin-unfinished-link")));
    write("mine/a", "mine");
    write(".quorlin-part-a", "half");
    window::sweepStagings(m_folder.path());
    QCOMPARE(names(), QStringList({livingName, text(".quorlin-unfinished-link"), text("mine")}));
    QCOMPARE(read("mine/a"), QByteArray("mine"));

    // Named like the folder of a process that has ended, but somebody shows life on it.
    const int held = ::open(qPrintable(m_folder.filePath(livingName)), O_RDONLY | O_DIRECTORY);
    QCOMPARE(int(platform::showLife(held)), int(platform::Life::Others));
    window::removeStaging(living);
    ::close(held);
    QVERIFY(!names().contains(livingName));
}

void TestFileDesk::leavesFoldersOfOthersAlone()
{
    if (::geteuid() != 0)
        QSKIP("only root can make a folder of somebody else");
    const QString foreign = at(".quorlin-unfinished-0badcafe-2-2");
    QVERIFY(QDir(m_folder.path()).mkdir(foreign) && ::chown(qPrintable(foreign), 12345, 12345) == 0);
    window::sweepStagings(m_folder.path());
    QVERIFY(QDir(foreign).exists());
}

void TestFileDesk::sweepsWhatAKilledProcessLeft()
{
    const pid_t child = ::fork();
    if (child == 0) {
        QFile file(window::makeStaging(m_folder.path()) + text("a.jpg"));
        (void)(file.open(QIODevice::WriteOnly) && file.write("half") > 0 && file.flush());
        ::kill(::getpid(), SIGSTOP);
        ::_exit(0);
    }
    int status = 0;
    QVERIFY(child > 0 && ::waitpid(child, &status, WUNTRACED) == child && WIFSTOPPED(status));
    QCOMPARE(names().size(), 1);
    window::sweepStagings(m_folder.path());
    QCOMPARE(names().size(), 1); // it lives
    ::kill(child, SIGKILL);
    QCOMPARE(::waitpid(child, &status, 0), child);
    window::sweepStagings(m_folder.path());
    QCOMPARE(names(), QStringList());
}

void TestFileDesk::collectsInNaturalOrderFilesFirst()
{
    QDir dir(m_folder.path());
    for (const char *folder : {"b10", "b2/deep", "p.app", ".hidden"})
        QVERIFY(dir.mkpath(text(folder)));
    for (const char *file : {"z10.jpg", "Z2.Jpg", "b10/a.JPG", "b2/deep/c.jpg", "b2/b.jpg", "p.app/x.jpg",
                             ".hidden/x.jpg", ".x.jpg", "n.txt"})
        write(file, "x");
    const QStringList all = {at("Z2.Jpg"), at("z10.jpg"), at("b2/b.jpg"), at("b2/deep/c.jpg"), at("b10/a.JPG")};
    const QString folder = m_folder.path();
    const window::Collected found = window::collectFiles({folder + u'/'}, {{text("JPG")}, {}, {}});
    QCOMPARE(found.paths, all);
    QCOMPARE(found.listed, all);
    QCOMPARE(found.leftOut, 1);
    QCOMPARE(window::collectFiles({folder}, {{text("*")}, {}, {}}).paths.size(), 7);
}

/** Links to files, paths beyond what the system takes at once, and names that are no valid text. */
void TestFileDesk::collectsWhatIsHardToReach()
{
    QDir dir(m_folder.path());
    QVERIFY(dir.mkpath(text("real/other")) && dir.mkpath(text("in")));
    write("real/a.jpg", "x");
    write("real/other/no.jpg", "x");
    QVERIFY(QFile::link(at("real/a.jpg"), at("in/link.jpg")) && QFile::link(at("real/other"), at("in/other")));
    QVERIFY(QFile::link(at("nothing.jpg"), at("in/broken.jpg")) && ::mkfifo(qPrintable(at("in/pipe.jpg")), 0600) == 0);
    const QByteArray odd = QFile::encodeName(at("in")) + "/odd\xff.jpg";
    ::close(::open(odd.constData(), O_CREAT | O_WRONLY, 0600));
    const QByteArray name(200, 'd');
    int deep = ::open(qPrintable(at("in")), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < 30; ++level) {
        QVERIFY(::mkdirat(deep, name.constData(), 0700) == 0);
        const int inside = ::openat(deep, name.constData(), O_RDONLY | O_DIRECTORY);
        ::close(deep);
        deep = inside;
    }
    ::close(::openat(deep, "far.jpg", O_CREAT | O_WRONLY, 0600));
    ::close(deep);
    const QStringList paths = window::collectFiles({at("in")}, {{text("jpg")}, {}, {}}).paths;
    QCOMPARE(paths.size(), 3);
    QCOMPARE(paths[0], at("in/link.jpg"));
    QVERIFY(paths[1].startsWith(at("in/odd")));
    QVERIFY(paths[2].endsWith(text("/far.jpg")) && paths[2].size() > 6000);
    ::unlink(odd.constData());                             // the folder's own removal has no word for this name
    std::filesystem::current_path(at("in").toStdString()); // too deep to be removed by its path
    std::filesystem::remove_all(name.toStdString());
    std::filesystem::current_path("/");
}

void TestFileDesk::tellsWhatItLeavesOut()
{
    for (const char *file : {"a.jpg", "a.xmp", "b.heic", "c.txt", "d"})
        write(file, "x");
    QVERIFY(::mkfifo(qPrintable(at("pipe.jpg")), 0600) == 0);
    const window::CollectRule rule = {{text("jpg")}, {text("xmp")}, {text("jpg"), text("heic")}};
    const window::Collected found = window::collectFiles({m_folder.path()}, rule);
    QCOMPARE(found.paths, QStringList{at("a.jpg")});
    QCOMPARE(found.listed, QStringList({at("a.jpg"), at("b.heic")}));
    QCOMPARE(found.companions, QStringList{at("a.xmp")});
    QCOMPARE(found.leftOut, 4);
    QCOMPARE(found.example, text("b.heic"));
    QCOMPARE(found.folders, QStringList{m_folder.path()});
    const window::Collected dropped = window::collectFiles({at("missing.jpg"), at("pipe.jpg"), at("a.jpg")}, rule);
    QCOMPARE(dropped.paths, QStringList{at("a.jpg")});
    QCOMPARE(dropped.leftOut, 2);
    QCOMPARE(dropped.example, text("missing.jpg"));
}

void TestFileDesk::saysSizesInEnglishForNamesAndInTheReadersWayForTheEye()
{
    QFile large(at("large"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(123400000));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const FileDesk desk;
    QCOMPARE(desk.facts(at("large")).toMap().value(text("size")).toString(), text("123.4 MB"));
    QCOMPARE(desk.byteText(123400000), text("123,4 MB"));
    QLocale::setDefault(before);
}

QUORLIN_TEST(TestFileDesk)
#include "tst_file_desk.moc"
