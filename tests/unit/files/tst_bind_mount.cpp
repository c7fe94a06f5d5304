#include "files/moving/move_undo.h"
#include "tests/support/scratch_folder.h"

#include "platform/disk/disk_file_system.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>

using namespace files;

namespace {

constexpr int notAllowed = 77;

void carryOut(platform::FileSystem &disk, JournalShelf &shelf, const MoveOrderForm &form)
{
    if (const auto run = MoveRun::begin(disk, shelf, form)) {
        while ((*run)->next()) {
        }
        (void)(*run)->end();
    }
}

/** The folder shows what is in another one, for this process alone. */
bool showInstead(const ScratchFolder &here, const char *folder, const char *other)
{
    return ::mount(QFile::encodeName(here.path(other)).constData(), QFile::encodeName(here.path(folder)).constData(),
                   nullptr, MS_BIND, nullptr) == 0;
}

/** Copies a picture, puts the folder of the copy over that of the picture, and takes the copy back. */
int takeBack(const ScratchFolder &here, bool isPlannedBefore)
{
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return notAllowed;
    platform::DiskFileSystem disk;
    DiskJournalShelf shelf(here.path("journals"));
    MoveOrderForm copying;
    copying.items = {{Operation::Copy, here.path("old/a.jpg"), here.path("new/a.jpg")}};
    carryOut(disk, shelf, copying);
    if (here.read("new/a.jpg") != "a picture" || shelf.names().isEmpty())
        return 1;
    const QString run = shelf.names().first();
    UndoPlan undo = isPlannedBefore ? planUndo(disk, shelf, run) : UndoPlan();
    if (!QFile::remove(here.path("old/a.jpg")) || !showInstead(here, "old", "new"))
        return notAllowed;
    if (here.read("old/a.jpg") != "a picture")
        return 2;
    if (!isPlannedBefore) {
        undo = planUndo(disk, shelf, run);
        if (undo.problems.size() != 1 || undo.problems.front().why != MoveProblem::Original)
            return 3;
    }
    carryOut(disk, shelf, undo.form);
    return here.read("new/a.jpg") == "a picture" ? 0 : 4;
}

} // namespace

/** A folder can be in two places without any link; what is in it is there once all the same. */
class TestBindMount : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesBackNoCopyThatIsItsOriginal_data();
    void takesBackNoCopyThatIsItsOriginal();
};

void TestBindMount::takesBackNoCopyThatIsItsOriginal_data()
{
    QTest::addColumn<bool>("isPlannedBefore");
    QTest::newRow("mounted before the plan") << false;
    QTest::newRow("mounted after the plan") << true;
}

void TestBindMount::takesBackNoCopyThatIsItsOriginal()
{
    QFETCH(bool, isPlannedBefore);
    const ScratchFolder here;
    qputenv("XDG_DATA_HOME", QFile::encodeName(here.path("data")));
    QVERIFY(here.write("old/a.jpg", "a picture"));
    QVERIFY(QDir().mkpath(here.path("new")) && QDir().mkpath(here.path("journals")));
    const pid_t child = ::fork(); // what it mounts disappears with it
    if (child == 0)
        ::_exit(takeBack(here, isPlannedBefore));
    int status = 0;
    ::waitpid(child, &status, 0);
    QVERIFY(WIFEXITED(status));
    if (WEXITSTATUS(status) == notAllowed)
        QSKIP("this user may mount nothing");
    QCOMPARE(WEXITSTATUS(status), 0);
    QCOMPARE(here.read("new/a.jpg"), QByteArray("a picture"));
}

QUORLIN_TEST(TestBindMount)
#include "tst_bind_mount.moc"
