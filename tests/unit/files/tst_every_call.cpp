#include "tests/support/every_call.h"

#include "files/items/placing.h"
#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/disk/hidden_sweep.h"
#include "platform/disk/trash.h"

#include <QDirIterator>
#include <QTest>

#include <map>
#include <sys/wait.h>

using namespace files;

namespace {

using Tree = std::map<QString, QByteArray>;

/** What a disk can do where names are to change without anything being replaced. */
enum class Disk { RenamesExclusively, GivesSecondNames, HasNeither };

int refusalOf(Disk disk, std::string_view call)
{
    const bool isRefused =
        (call == "renameat2" && disk != Disk::RenamesExclusively) || (call == "link" && disk == Disk::HasNeither);
    return !isRefused ? 0 : call == "link" ? EPERM : EINVAL;
}

/** Pictures on two disks, with a separate data folder, and what is done to them. */
class Place
{
public:
    Place() : m_other(QStringLiteral("/dev/shm"))
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_here.path("data")));
        QVERIFY(m_here.write("in/a.jpg", "a") && m_here.write("in/folder/b.jpg", "b") &&
                m_here.write("in/folder/inner/c.jpg", "c"));
        QVERIFY(m_here.link("..", "in/folder/up") && m_here.link("/dev/zero", "in/folder/endless"));
        QVERIFY(m_here.allow("in/folder/b.jpg", 0444) && m_other.write("d.jpg", "d"));
    }

    bool isOnTwoDisks() const { return areApart(m_here.path(), m_other.path()); }
    QString here(const char *name) const { return m_here.path(name); }
    QString other(const char *name) const { return m_other.path(name); }

    /** Every file and link that a user can see, and what is in the trash. */
    Tree shown() const { return tree(false); }
    Tree hidden() const { return tree(true); }

    /** A file that still has two names, or an empty one that only kept a name. */
    QString halfNamed() const
    {
        for (const auto &[path, what] : shown()) {
            struct stat found = {};
            if (what.isEmpty() || ::lstat(QFile::encodeName(path).constData(), &found) != 0 || found.st_nlink > 1)
                return path;
        }
        return {};
    }

    QList<QByteArray> contents() const
    {
        QList<QByteArray> all;
        for (const auto &entry : shown())
            all.append(entry.second);
        return all;
    }

private:
    Tree tree(bool isHidden) const
    {
        Tree all;
        for (const QString &folder : {m_here.path(), m_other.path()}) {
            QDirIterator files(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QFileInfo info(files.next());
                if (info.filePath().contains(QStringLiteral("/quorlin/")) ||
                    info.filePath().contains(QStringLiteral("/.quorlin-")) != isHidden)
                    continue;
                QFile file(info.filePath());
                if (info.isSymLink())
                    all[info.filePath()] = "link";
                else if (info.isFile() && !info.filePath().endsWith(QStringLiteral(".trashinfo")) &&
                         file.open(QIODevice::ReadOnly))
                    all[info.filePath()] = file.readAll();
                else if (isHidden)
                    all[info.filePath()] = "folder";
            }
        }
        return all;
    }

    ScratchFolder m_here;
    ScratchFolder m_other;
};

void carryOut(const Place &place, const MoveOrderForm &form)
{
    platform::DiskFileSystem disk;
    DiskJournalShelf shelf(place.here("data/quorlin/moves"));
    if (const auto run = MoveRun::begin(disk, shelf, form)) {
        while ((*run)->next()) {
        }
        (void)(*run)->end();
    }
}

QStringList recover(const Place &place, Disk kind = Disk::RenamesExclusively)
{
    if (!EveryCall::before)
        EveryCall::before = [kind](std::string_view call, const char *) { return refusalOf(kind, call); };
    platform::sweepHiddenItems();
    platform::DiskFileSystem disk;
    DiskJournalShelf shelf(place.here("data/quorlin/moves"));
    QStringList problems;
    for (const RecoveredRun &run : recoverMoves(disk, shelf))
        problems += run.problems;
    EveryCall::before = nullptr;
    return problems;
}

MoveOrderForm undoOfLast(const Place &place)
{
    platform::DiskFileSystem disk;
    DiskJournalShelf shelf(place.here("data/quorlin/moves"));
    return shelf.names().isEmpty() ? MoveOrderForm() : planUndo(disk, shelf, shelf.names().first()).form;
}

MoveOrderForm formOf(std::vector<MoveItem> items)
{
    MoveOrderForm form;
    form.items = std::move(items);
    return form;
}

/**
 * The contents of one try: first operations that exist only to be undone, then those that the others interfere with.
 */
struct Work
{
    std::function<void(const Place &)> before;
    std::function<void(const Place &)> act;
};

const std::map<QByteArray, Work> &works()
{
    static const auto nothing = [](const Place &) {};
    static const auto copies = [](const Place &place) {
        carryOut(place, formOf({{Operation::Copy, place.here("in/a.jpg"), place.here("copies/a.jpg")},
                                {Operation::Copy, place.here("in/folder"), place.other("copies/folder")}}));
    };
    static const auto moves = [](const Place &place) {
        carryOut(place, formOf({{Operation::Move, place.here("in/a.jpg"), place.other("new/a.jpg")},
                                {Operation::Move, place.here("in/folder"), place.other("new/er/folder")},
                                {Operation::Move, place.other("d.jpg"), place.here("in/d.jpg")}}));
    };
    static const auto undo = [](const Place &place) { carryOut(place, undoOfLast(place)); };
    static const std::map<QByteArray, Work> all = {
        {"moves to another disk", {nothing, moves}},
        {"takes moves back", {moves, undo}},
        {"takes copies back", {copies, undo}},
        {"trashes",
         {nothing,
          [](const Place &place) {
              carryOut(place, formOf({{Operation::Trash, place.here("in/a.jpg"), {}},
                                      {Operation::Trash, place.here("in/folder"), {}},
                                      {Operation::Trash, place.other("d.jpg"), {}}}));
          }}},
        {"places a file on its disk",
         {nothing,
          [](const Place &place) {
              (void)files::place(Placing::Move, place.here("in/a.jpg"), place.here("new/a.jpg"));
              (void)files::place(Placing::Move, place.here("new/a.jpg"), place.here("in/e.jpg"));
          }}},
        {"places files on another disk",
         {nothing,
          [](const Place &place) {
              (void)files::place(Placing::Move, place.here("in/a.jpg"), place.other("new/a.jpg"));
              (void)files::place(Placing::Move, place.here("in/folder"), place.other("new/folder"));
              (void)files::place(Placing::Copy, place.other("d.jpg"), place.here("in/d.jpg"));
          }}},
    };
    return all;
}

/** The trash of another disk cannot be made, so that items are copied into the user's. */
int refusalOf(std::string_view call, const char *path)
{
    return (call == "mkdir" || call == "open") && QByteArray(path).contains("/.Trash-") ? EACCES : 0;
}

/** A disk on which files cannot be locked, such as some of a network. */
int refuseLocks(std::string_view call, const char *)
{
    return call == "flock" ? ENOLCK : 0;
}

int stride()
{
    return tests::isSlowRun() ? 1 : 5;
}

/** Runs the work in a process that ends at the given call; false if it ended before. */
bool killAt(int call, const std::function<void()> &work, Disk disk = Disk::RenamesExclusively)
{
    const pid_t child = ::fork();
    if (child == 0) {
        EveryCall::count = 0;
        EveryCall::before = [call, disk](std::string_view name, const char *path) {
            if (EveryCall::count > call)
                ::_exit(9);
            const int refusal = refusalOf(disk, name);
            return refusal ? refusal : refusalOf(name, path);
        };
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 9;
}

} // namespace

Q_DECLARE_METATYPE(Disk)

/** A kill, and another program, at every single call that changes the disk. */
class TestEveryCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { EveryCall::before = nullptr; }
    void losesNothingByAKill_data();
    void losesNothingByAKill();
    void losesNothingByAKillOfRecovery_data();
    void losesNothingByAKillOfRecovery();
    void losesNothingByAnotherProgram_data();
    void losesNothingByAnotherProgram();
    void replacesNothingWhereADiskPromisesNothing_data();
    void replacesNothingWhereADiskPromisesNothing();
    void leavesALivingRunAloneWhereThereAreNoLocks();
    void losesNothingByTwoRecoveriesWithoutLocks_data();
    void losesNothingByTwoRecoveriesWithoutLocks();

private:
    void checkAllIsThere(const Place &place, const QByteArray &told) const;
};

void TestEveryCall::checkAllIsThere(const Place &place, const QByteArray &told) const
{
    const QList<QByteArray> contents = place.contents();
    QByteArray all = told;
    for (const auto &[path, what] : place.shown())
        all += "\n" + path.toUtf8() + ": " + what;
    for (const char *content : {"a", "b", "c", "d", "link"})
        QVERIFY2(contents.contains(content), all + "\nmissing: " + content);
    for (const auto &[path, what] : place.hidden())
        QVERIFY2(false, all + "\nhidden: " + path.toUtf8());
    QVERIFY2(place.halfNamed().isEmpty(), all + "\nwith another name: " + place.halfNamed().toUtf8());
}

void TestEveryCall::losesNothingByAKill_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Disk>("disk");
    for (const auto &work : works()) {
        QTest::newRow(work.first) << work.first << Disk::RenamesExclusively;
        QTest::newRow(work.first + ", second names") << work.first << Disk::GivesSecondNames;
        QTest::newRow(work.first + ", placeholders") << work.first << Disk::HasNeither;
    }
}

void TestEveryCall::losesNothingByAKill()
{
    QFETCH(Disk, disk);
    QFETCH(QByteArray, name);
    const Work &work = works().at(name);
    int calls = 0;
    for (bool isKilled = true; isKilled; calls += stride()) {
        const Place place;
        if (!place.isOnTwoDisks())
            QSKIP("no second disk");
        work.before(place);
        isKilled = killAt(
            calls, [&] { work.act(place); }, disk);
        const QStringList problems = recover(place, disk);
        checkAllIsThere(place,
                        name + " killed at call " + QByteArray::number(calls) + ' ' + problems.join(u'|').toUtf8());
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u' ')));
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d calls", calls);
    QVERIFY(calls > 3);
}

void TestEveryCall::losesNothingByAKillOfRecovery_data()
{
    losesNothingByAKill_data();
}

void TestEveryCall::losesNothingByAKillOfRecovery()
{
    QFETCH(Disk, disk);
    QFETCH(QByteArray, name);
    const Work &work = works().at(name);
    int tries = 0;
    for (int first = 3; first < 200; first += tests::repetitions(15, 4)) {
        bool isKilled = true;
        bool wasBegun = true;
        for (int second = 0; isKilled && wasBegun; second += stride(), ++tries) {
            const Place place;
            if (!place.isOnTwoDisks())
                QSKIP("no second disk");
            work.before(place);
            wasBegun = killAt(
                first, [&] { work.act(place); }, disk);
            isKilled = killAt(
                second, [&] { recover(place, disk); }, disk);
            recover(place, disk);
            checkAllIsThere(place, name + " killed at " + QByteArray::number(first) + ", then at " +
                                       QByteArray::number(second));
            if (QTest::currentTestFailed())
                return;
        }
        if (!wasBegun)
            break;
    }
    qInfo("%d tries", tries);
    QVERIFY(tries > 0);
}

void TestEveryCall::losesNothingByAnotherProgram_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("operation");
    for (const auto &work : works())
        for (const char *operation : {"writes into", "saves over", "takes away", "makes a target"})
            QTest::addRow("%s: %s", work.first.constData(), operation) << work.first << QByteArray(operation);
}

/** At every call another program does something to a picture, or makes one where the other is to go. */
void TestEveryCall::losesNothingByAnotherProgram()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, operation);
    const Work &work = works().at(name);
    int calls = 0;
    for (bool hasMore = true; hasMore; calls += stride()) {
        const Place place;
        if (!place.isOnTwoDisks())
            QSKIP("no second disk");
        work.before(place);
        bool isDone = false;
        const auto meddle = [&] {
            for (const QString &path : {place.here("in/a.jpg"), place.other("new/a.jpg"), place.here("copies/a.jpg"),
                                        place.here("in/folder/b.jpg")}) {
                QFile file(path);
                if (operation == "makes a target" && !file.exists() && QDir(QFileInfo(path).path()).exists())
                    isDone = file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write("new") == 3;
                else if (operation == "writes into" && file.exists())
                    isDone = file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write("new") == 3;
                else if (operation == "saves over" && file.exists()) {
                    QFile saved(path + QStringLiteral("~"));
                    isDone = saved.open(QIODevice::WriteOnly) && saved.write("new") == 3 && saved.flush() &&
                             ::rename(QFile::encodeName(saved.fileName()).constData(),
                                      QFile::encodeName(path).constData()) == 0;
                } else if (operation == "takes away" && file.exists())
                    isDone = QFile::rename(path, place.here("in/taken.jpg"));
                if (isDone)
                    return;
            }
        };
        EveryCall::count = 0;
        EveryCall::before = [&](std::string_view call, const char *path) {
            if (EveryCall::count == calls + 1)
                meddle();
            return refusalOf(call, path);
        };
        work.act(place);
        EveryCall::before = nullptr;
        hasMore = EveryCall::count > calls;
        recover(place);
        QByteArray told = name + ": another program " + operation + " at call " + QByteArray::number(calls);
        for (const auto &[path, what] : place.shown())
            told += "\n" + path.toUtf8() + ": " + what;
        const QList<QByteArray> contents = place.contents();
        QVERIFY2(!isDone || operation == "takes away" || contents.contains("new"), told);
        for (const char *content : {"a", "b", "c", "d"}) {
            // It has overwritten these itself.
            const bool isOverwritten = (operation == "writes into" || operation == "saves over") && *content < 'c';
            QVERIFY2(isOverwritten || contents.contains(content), told + "\nmissing: " + content);
        }
        for (const auto &[path, what] : place.hidden())
            QVERIFY2(false, told + "\nhidden: " + path.toUtf8());
    }
    qInfo("%d calls", calls);
}

void TestEveryCall::replacesNothingWhereADiskPromisesNothing_data()
{
    QTest::addColumn<bool>("hasLinks");
    QTest::newRow("with second names") << true;
    QTest::newRow("without") << false;
}

/** Another program makes the target, writes into it or puts another in its place, at every call of a rename. */
void TestEveryCall::replacesNothingWhereADiskPromisesNothing()
{
    QFETCH(bool, hasLinks);
    for (const char *operation : {"makes", "writes", "puts"}) {
        // A second name is the file itself: who overwrites that wants to.
        bool hasMore = !hasLinks || operation == QByteArray("makes");
        bool wasDone = !hasMore;
        for (int calls = 0; hasMore; ++calls) {
            const ScratchFolder folder;
            QVERIFY(folder.write("a", "a"));
            bool isDone = false;
            EveryCall::count = 0;
            EveryCall::before = [&](std::string_view call, const char *) {
                QFile target(folder.path("b"));
                QFile other(folder.path("other"));
                const bool isHere = EveryCall::count == calls + 1;
                // Between the last look and the rename itself nothing can be done on such a disk.
                const bool canBeNoticed = call != "rename";
                if (call == "write") // a note of the program's own, also when all is done
                    return 0;
                if (isHere && canBeNoticed && operation == QByteArray("puts"))
                    isDone = other.open(QIODevice::WriteOnly) && other.write("new") == 3 && other.flush() &&
                             ::rename(other.fileName().toLatin1().constData(),
                                      target.fileName().toLatin1().constData()) == 0;
                else if (isHere && canBeNoticed && operation == QByteArray("writes"))
                    isDone = target.exists() && target.open(QIODevice::WriteOnly) && target.write("new") == 3;
                else if (isHere && operation == QByteArray("makes") && !target.exists())
                    isDone = target.open(QIODevice::WriteOnly | QIODevice::NewOnly) && target.write("new") == 3;
                return call == "link" && !hasLinks ? EPERM : 0;
            };
            const std::error_code error = platform::renameWithoutPromise(folder.path("a"), folder.path("b"));
            EveryCall::before = nullptr;
            hasMore = EveryCall::count > calls;
            QCOMPARE(folder.read(error ? "a" : "b"), QByteArray("a"));
            QVERIFY2(!isDone || (error && folder.read("b") == "new"), operation);
            QCOMPARE(bool(error), isDone);
            wasDone = wasDone || isDone;
        }
        QVERIFY2(wasDone, operation);
    }
}

/** One program is in the middle of a run while another one starts. */
void TestEveryCall::leavesALivingRunAloneWhereThereAreNoLocks()
{
    const Place place;
    if (!place.isOnTwoDisks())
        QSKIP("no second disk");
    int ready[2];
    int go[2];
    QVERIFY(::pipe(ready) == 0 && ::pipe(go) == 0);
    const pid_t child = ::fork();
    if (child == 0) {
        EveryCall::before = refuseLocks;
        platform::DiskFileSystem disk;
        DiskJournalShelf shelf(place.here("data/quorlin/moves"));
        const auto run = MoveRun::begin(disk, shelf,
                                        formOf({{Operation::Move, place.here("in/a.jpg"), place.here("in/1.jpg")},
                                                {Operation::Move, place.other("d.jpg"), place.here("in/2.jpg")}}));
        char byte = run && (*run)->next() ? 'y' : 'n';
        bool isWell = byte == 'y' && ::syscall(SYS_write, ready[1], &byte, 1) == 1 && ::read(go[0], &byte, 1) == 1;
        isWell = isWell && (*run)->next() && !(*run)->next() && (*run)->end();
        ::_exit(isWell ? 0 : 1);
    }
    char byte = 0;
    QCOMPARE(::read(ready[0], &byte, 1), ssize_t(1));
    EveryCall::before = refuseLocks;
    QCOMPARE(recover(place), QStringList());
    QVERIFY(place.shown().count(place.here("in/1.jpg")) == 1 && place.shown().count(place.other("d.jpg")) == 1);
    QCOMPARE(::write(go[1], &byte, 1), ssize_t(1));
    int status = 0;
    ::waitpid(child, &status, 0);
    QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EveryCall::before = refuseLocks;
    QCOMPARE(recover(place), QStringList());
    QVERIFY(place.shown().count(place.here("in/2.jpg")) == 1);
    checkAllIsThere(place, "after both");
    for (const int end : {ready[0], ready[1], go[0], go[1]})
        ::close(end);
}

void TestEveryCall::losesNothingByTwoRecoveriesWithoutLocks_data()
{
    losesNothingByAKill_data();
}

/** Two programs start after a kill; at each call of the first, all that the second does comes in between. */
void TestEveryCall::losesNothingByTwoRecoveriesWithoutLocks()
{
    QFETCH(QByteArray, name);
    QFETCH(Disk, disk);
    const Work &work = works().at(name);
    int tries = 0;
    for (int killed = 3; killed < 200; killed += tests::repetitions(23, 4)) {
        bool wasBegun = true;
        bool hasMore = true;
        for (int calls = 0; hasMore && wasBegun; calls += stride(), ++tries) {
            const Place place;
            if (!place.isOnTwoDisks())
                QSKIP("no second disk");
            work.before(place);
            wasBegun = killAt(
                killed, [&] { work.act(place); }, disk);
            const auto refusal = [disk](std::string_view call, const char *path) {
                const int refused = refuseLocks(call, path);
                return refused ? refused : refusalOf(disk, call);
            };
            EveryCall::count = 0;
            EveryCall::before = [&](std::string_view call, const char *path) {
                if (EveryCall::count != calls + 1)
                    return refusal(call, path);
                const pid_t child = ::fork();
                if (child == 0) {
                    EveryCall::beginInAFork(refusal);
                    recover(place);
                    ::_exit(0);
                }
                ::waitpid(child, nullptr, 0);
                return refusal(call, path);
            };
            recover(place);
            hasMore = EveryCall::count > calls;
            EveryCall::before = refusal;
            recover(place);
            checkAllIsThere(place, name + " killed at " + QByteArray::number(killed) + ", the other one at " +
                                       QByteArray::number(calls));
            if (QTest::currentTestFailed())
                return;
        }
        if (!wasBegun)
            break;
    }
    qInfo("%d tries", tries);
    QVERIFY(tries > 0);
}

QUORLIN_TEST(TestEveryCall)
#include "tst_every_call.moc"
