#include "platform/disk/folders.h"
#include "platform/disk/hidden_sweep.h"
#include "platform/file/hidden_item.h"
#include "platform/file/living_process.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QDateTime>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <sys/xattr.h>

using namespace platform;

/** Moving, linking and removing without losing anything. */
class TestMoving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<ScratchFolder>(); }
    void replacesNothing_data();
    void replacesNothing();
    void movesALinkAndNotWhatItLeadsTo();
    void movesNoFolderIntoItself();
    void copiesNoFolderIntoItself();
    void movesToAnotherFileSystem();
    void leavesTheSourceOfAMoveToAnotherFileSystem_data();
    void leavesTheSourceOfAMoveToAnotherFileSystem();
    void carriesDatesPermissionsAndAttributes();
    void carriesAttributesOfWhatIsReadOnly();
    void endsWhatAKillLeftUnderHiddenNames();
    void knowsAProcessThatHasEnded();
    void copiesAFolderThatMayNotBeChanged();
    void copiesUnderTheLongestNames();
    void linksToExactlyWhatIsSaid_data();
    void linksToExactlyWhatIsSaid();
    void removesNoFolderByAnotherName_data();
    void removesNoFolderByAnotherName();
    void removesTheLinkWhereASlashFollows();
    void takesNoPathWithANullCharacter();

private:
    std::unique_ptr<ScratchFolder> m_home;
};

void TestMoving::replacesNothing_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("file") << "file";
    QTest::newRow("folder") << "folder";
    QTest::newRow("link to nothing") << "dangling";
    QTest::newRow("missing folder") << "no/a";
    QTest::newRow("file as folder") << "file/a";
}

void TestMoving::replacesNothing()
{
    QFETCH(QString, target);
    QVERIFY(m_home->write("a", "a") && m_home->write("file", "f") && m_home->write("folder/kept", "k"));
    QVERIFY(m_home->link("nowhere", "dangling"));
    const auto moved = moveItem(m_home->path("a"), m_home->path(target));
    QVERIFY(!moved);
    QCOMPARE(moved.error().code, ErrorCode::WriteFailed);
    QCOMPARE(m_home->read("a"), QByteArray("a"));
    QCOMPARE(m_home->read("file"), QByteArray("f"));
    QCOMPARE(m_home->names(), QStringLiteral("a dangling file folder").split(u' '));
}

void TestMoving::movesALinkAndNotWhatItLeadsTo()
{
    QVERIFY(m_home->write("folder/kept", "k") && m_home->link("folder", "link") && m_home->link("nowhere", "dangling"));
    QVERIFY(moveItem(m_home->path("link/"), m_home->path("moved")));
    QVERIFY(moveItem(m_home->path("dangling"), m_home->path("lost")));
    QCOMPARE(m_home->linkText("moved"), QByteArray("folder"));
    QCOMPARE(m_home->linkText("lost"), QByteArray("nowhere"));
    QCOMPARE(m_home->names(), QStringLiteral("folder lost moved").split(u' '));
    QCOMPARE(m_home->read("folder/kept"), QByteArray("k"));
}

void TestMoving::movesNoFolderIntoItself()
{
    QVERIFY(m_home->write("folder/kept", "k"));
    QVERIFY(!moveItem(m_home->path("folder"), m_home->path("folder/inner")));
    QCOMPARE(m_home->names("folder"), QStringList{QStringLiteral("kept")});
}

void TestMoving::copiesNoFolderIntoItself()
{
    QVERIFY(m_home->write("folder/inner/kept", "k") && m_home->link("folder/inner", "link"));
    for (const char *target : {"folder/copy", "folder/inner/copy", "link/copy"})
        QVERIFY(!copyItem(m_home->path("folder"), m_home->path(target)));
    QVERIFY(copyItem(m_home->path("folder/inner"), m_home->path("folder/copy")));
    QCOMPARE(m_home->names("folder"), QStringLiteral("copy inner").split(u' '));
    QCOMPARE(m_home->names("folder/inner"), QStringList{QStringLiteral("kept")});
}

void TestMoving::movesToAnotherFileSystem()
{
    const ScratchFolder other(QStringLiteral("/dev/shm"));
    if (!areApart(m_home->path(), other.path()))
        QSKIP("no second file system");
    QVERIFY(m_home->write("tree/inner/a", "a") && m_home->write("file", "f") && m_home->link("no/where", "link"));
    QVERIFY(m_home->link("../file", "tree/inner/link"));
    for (const char *name : {"tree", "file", "link"})
        QVERIFY(moveItem(m_home->path(name), other.path(name)));
    QCOMPARE(m_home->names(), QStringList());
    QCOMPARE(other.names(), QStringLiteral("file link tree").split(u' '));
    QCOMPARE(other.read("tree/inner/a"), QByteArray("a"));
    QCOMPARE(other.linkText("tree/inner/link"), QByteArray("../file"));
    QCOMPARE(other.linkText("link"), QByteArray("no/where"));
    QCOMPARE(other.read("file"), QByteArray("f"));
}

void TestMoving::leavesTheSourceOfAMoveToAnotherFileSystem_data()
{
    QTest::addColumn<QByteArray>("locked");
    QTest::addColumn<QByteArray>("source");
    QTest::newRow("file in a folder that may not be changed") << QByteArray("tree") << QByteArray("tree/file");
    QTest::newRow("folder in one") << QByteArray("tree") << QByteArray("tree/inner");
    QTest::newRow("folder that may not be changed") << QByteArray("tree/inner") << QByteArray("tree/inner");
    QTest::newRow("folder with one inside") << QByteArray("tree/inner/deep") << QByteArray("tree");
}

void TestMoving::leavesTheSourceOfAMoveToAnotherFileSystem()
{
    QFETCH(QByteArray, locked);
    QFETCH(QByteArray, source);
    const Nobody nobody;
    const ScratchFolder here;
    const ScratchFolder other(QStringLiteral("/dev/shm"));
    if (!nobody.ready() || !areApart(here.path(), other.path()))
        QSKIP("no second file system");
    QVERIFY(here.write("tree/file", "f") && here.write("tree/inner/a", "a") && here.write("tree/inner/deep/b", "b"));
    QVERIFY(here.allow(locked, 0555));
    const auto moved = moveItem(here.path(source.constData()), other.path("target"));
    QVERIFY(here.allow(locked, 0755));
    QVERIFY(!moved);
    QCOMPARE(other.names(), QStringList());
    QCOMPARE(here.read("tree/file") + here.read("tree/inner/a") + here.read("tree/inner/deep/b"), QByteArray("fab"));
    QCOMPARE(here.names("tree"), QStringLiteral("file inner").split(u' '));
}

void TestMoving::carriesDatesPermissionsAndAttributes()
{
    const QDateTime date(QDate(2001, 2, 3), QTime(4, 5, 6));
    QVERIFY(m_home->write("folder/a.jpg", "a"));
    QFile file(m_home->path("folder/a.jpg"));
    QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(date, QFileDevice::FileModificationTime));
    file.close();
    const QByteArray name = QFile::encodeName(file.fileName());
    const bool hasAttributes = ::setxattr(name.constData(), "user.xdg.tags", "red,sea", 7, 0) == 0;
    QVERIFY(m_home->allow("folder/a.jpg", 0640) && m_home->allow("folder", 0750));
    QVERIFY(copyItem(m_home->path("folder"), m_home->path("copy")));
    const QFileInfo copy(m_home->path("copy/a.jpg"));
    QCOMPARE(copy.lastModified(), date);
    QCOMPARE(copy.permissions(), QFileInfo(file.fileName()).permissions());
    QCOMPARE(QFileInfo(m_home->path("copy")).permissions(), QFileInfo(m_home->path("folder")).permissions());
    if (!hasAttributes)
        QSKIP("this file system keeps no attributes");
    char tags[8] = {};
    QCOMPARE(::getxattr(QFile::encodeName(copy.filePath()).constData(), "user.xdg.tags", tags, 7), ssize_t(7));
    QCOMPARE(QByteArray(tags), QByteArray("red,sea"));
}

/** Who may not write to a file may not hang anything on it either, not even the user whose file it is. */
void TestMoving::carriesAttributesOfWhatIsReadOnly()
{
    const Nobody nobody;
    const ScratchFolder here;
    QVERIFY(nobody.ready() && here.write("a.jpg", "a"));
    const QByteArray name = QFile::encodeName(here.path("a.jpg"));
    if (::setxattr(name.constData(), "user.xdg.tags", "red,sea", 7, 0) != 0)
        QSKIP("this file system keeps no attributes");
    // The owner and the group may read, user 1 too; others may nothing.
    const QByteArray list = QByteArray::fromHex("02000000"
                                                "01000400ffffffff"
                                                "0200040001000000"
                                                "04000400ffffffff"
                                                "10000400ffffffff"
                                                "20000000ffffffff");
    const bool hasList =
        ::setxattr(name.constData(), "system.posix_acl_access", list.constData(), size_t(list.size()), 0) == 0;
    QVERIFY(here.allow("a.jpg", 0440));
    QVERIFY(copyItem(here.path("a.jpg"), here.path("copy.jpg")));
    const QByteArray copy = QFile::encodeName(here.path("copy.jpg"));
    char value[256] = {};
    QCOMPARE(::getxattr(copy.constData(), "user.xdg.tags", value, sizeof value), ssize_t(7));
    QCOMPARE(QFileInfo(here.path("copy.jpg")).permissions(), QFileInfo(here.path("a.jpg")).permissions());
    if (!hasList)
        QSKIP("this file system keeps no access lists");
    const ssize_t size = ::getxattr(copy.constData(), "system.posix_acl_access", value, sizeof value);
    QCOMPARE(QByteArray(value, std::max<ssize_t>(size, 0)), list);
}

/** What a kill leaves under a hidden name is noted, and ended by the next program. */
void TestMoving::endsWhatAKillLeftUnderHiddenNames()
{
    const ScratchFolder here;
    qputenv("XDG_DATA_HOME", QFile::encodeName(here.path("data")));
    QVERIFY(here.write("in/a.jpg", "a") && here.write("in/b.jpg", "b") && here.write("in/c.jpg", "c"));
    const pid_t child = ::fork();
    if (child == 0) {
        const auto hidden = [&](int i) { return here.path(QStringLiteral("in/.quorlin-%1").arg(i)); };
        const HiddenItem one(HiddenItem::What::Copy, hidden(1), here.path("in/a.jpg"), here.path("in/x.jpg"));
        const HiddenItem two(HiddenItem::What::Aside, hidden(2), here.path("in/gone.jpg"), here.path("in/b.jpg"));
        const HiddenItem three(HiddenItem::What::Aside, hidden(3), here.path("in/c.jpg"), here.path("in/b.jpg"));
        (void)(here.write("in/.quorlin-1", "") && here.write("in/.quorlin-2", "b") &&
               here.write("in/.quorlin-3", "worked on") && here.write("in/.quorlin-other", "of others"));
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    // Those of a living process are left alone: this one.
    const HiddenItem own(HiddenItem::What::Copy, here.path("in/.quorlin-4"), here.path("in/a.jpg"),
                         here.path("in/y.jpg"));
    QVERIFY(here.write("in/.quorlin-4", "h"));
    QCOMPARE(sweepHiddenItems(), QStringList(here.path("in/c.jpg (2)")));
    QCOMPARE(here.read("in/c.jpg (2)"), QByteArray("worked on"));
    QCOMPARE(here.names("in"), QStringLiteral(".quorlin-4,.quorlin-other,a.jpg,b.jpg,c.jpg,c.jpg (2)").split(u','));
    QVERIFY(sweepHiddenItems().isEmpty());
}

void TestMoving::knowsAProcessThatHasEnded()
{
    int ends[2] = {-1, -1};
    QCOMPARE(::pipe(ends), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const QByteArray own = processMark().toLatin1();
        (void)!::write(ends[1], own.constData(), size_t(own.size()));
        ::pause();
    }
    QByteArray bytes(256, '\0');
    bytes.truncate(std::max<ssize_t>(0, ::read(ends[0], bytes.data(), size_t(bytes.size()))));
    const QString mark = QString::fromLatin1(bytes);
    QVERIFY(mayBeLiving(processMark()) && mayBeLiving(mark) && mark != processMark());
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    QVERIFY(!mayBeLiving(mark));
    QStringList parts = processMark().split(u'/');
    parts[3] = QStringLiteral("1"); // the number was given to another process
    QVERIFY(!mayBeLiving(parts.join(u'/')));
    parts[1] = QStringLiteral("4711"); // a container
    QVERIFY(mayBeLiving(parts.join(u'/')));
    parts[0] = QStringLiteral("another start");
    QVERIFY(!mayBeLiving(parts.join(u'/')) && !mayBeLiving(QString()));
}

void TestMoving::copiesAFolderThatMayNotBeChanged()
{
    const Nobody nobody;
    const ScratchFolder here;
    QVERIFY(nobody.ready() && here.write("folder/a", "a") && here.allow("folder", 0555));
    const auto copied = copyItem(here.path("folder"), here.path("copy"));
    const auto permissions = QFileInfo(here.path("copy")).permissions();
    QVERIFY(here.allow("folder", 0755));
    QVERIFY(copied);
    QVERIFY(here.allow("copy", 0755));
    QVERIFY(!(permissions & QFileDevice::WriteOwner));
    QCOMPARE(here.read("copy/a"), QByteArray("a"));
}

void TestMoving::copiesUnderTheLongestNames()
{
    const QByteArray longest(255, 'n');
    QVERIFY(m_home->write("a", "a"));
    QVERIFY(copyItem(m_home->path("a"), m_home->path(longest.constData())));
    QCOMPARE(m_home->read(longest.constData()), QByteArray("a"));
    QVERIFY(!copyItem(m_home->path("a"), m_home->path((longest + 'n').constData())));
    QCOMPARE(m_home->names().size(), 2);
}

void TestMoving::linksToExactlyWhatIsSaid_data()
{
    QTest::addColumn<QByteArray>("target");
    for (const char *target : {"/a/b c.jpg", "../x//y/", "nowhere", ".", "caf\xc3\xa9"})
        QTest::newRow(target) << QByteArray(target);
}

void TestMoving::linksToExactlyWhatIsSaid()
{
    QFETCH(QByteArray, target);
    QVERIFY(makeLink(QString::fromUtf8(target), m_home->path("link")));
    QCOMPARE(m_home->linkText("link"), target);
    QVERIFY(!makeLink(QString::fromUtf8("other"), m_home->path("link")));
    QVERIFY(!makeLink(QString(), m_home->path("empty")));
    QCOMPARE(m_home->linkText("link"), target);
}

void TestMoving::removesNoFolderByAnotherName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("itself") << "folder/.";
    QTest::newRow("itself, with a slash") << "folder/./";
    QTest::newRow("the one above") << "folder/inner/..";
}

void TestMoving::removesNoFolderByAnotherName()
{
    QFETCH(QString, name);
    QVERIFY(m_home->write("folder/inner/a", "a"));
    const auto removed = removeItem(m_home->path(name));
    QVERIFY(!removed);
    QCOMPARE(removed.error().code, ErrorCode::InvalidValue);
    QCOMPARE(m_home->read("folder/inner/a"), QByteArray("a"));
}

void TestMoving::removesTheLinkWhereASlashFollows()
{
    QVERIFY(m_home->write("folder/kept", "k") && m_home->link("folder", "link"));
    QVERIFY(removeItem(m_home->path("link//")));
    QCOMPARE(m_home->names(), QStringList{QStringLiteral("folder")});
    QCOMPARE(m_home->read("folder/kept"), QByteArray("k"));
}

void TestMoving::takesNoPathWithANullCharacter()
{
    QVERIFY(m_home->write("a", "a"));
    const QString path = m_home->path("a") + QChar(u'\0') + QStringLiteral("b");
    QVERIFY(!isTaken(path) && !removeItem(path) && !moveItem(path, m_home->path("b")) &&
            !copyItem(path, m_home->path("b")));
    QVERIFY(!copyItem(m_home->path("a"), m_home->path("c") + QChar(u'\0')) &&
            !makeFolder(m_home->path("d") + QChar(u'\0')));
    QCOMPARE(m_home->names(), QStringList{QStringLiteral("a")});
}

QUORLIN_TEST(TestMoving)
#include "tst_moving.moc"
