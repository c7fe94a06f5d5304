#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "tests/support/move_world.h"
#include "tests/support/scratch_folder.h"

#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "tests/support/test_program.h"

#include <QDirIterator>
#include <QTest>

#include <ctime>
#include <fcntl.h>

using namespace files;

namespace {

using Tree = std::map<QString, QByteArray>;

/** A world like the model's, on the disk: "/in" in one place and "/other" on another disk if there is one. */
class Twin
{
public:
    explicit Twin(const World &world)
        : m_other(areApart(QStringLiteral("/dev/shm"), QDir::tempPath()) ? QStringLiteral("/dev/shm")
                                                                         : QDir::tempPath())
    {
        for (const auto &[path, what] : world.disk.everything()) {
            const QByteArray place = QFile::encodeName(real(path));
            QFile file(real(path));
            if (what.startsWith('1'))
                QDir().mkpath(real(path));
            else if (what.startsWith('2'))
                ::symlink(what.mid(1).constData(), place.constData());
            else if (file.open(QIODevice::WriteOnly))
                file.write(what.mid(1));
        }
    }

    QString real(const QString &path) const
    {
        return (path.startsWith(QStringLiteral("/other")) ? m_other.path() : m_in.path()) + path;
    }

    MoveOrderForm form(const MoveOrderForm &model) const
    {
        MoveOrderForm form = model;
        for (MoveItem &item : form.items) {
            item.from = item.operation == Operation::Link ? item.from : real(item.from);
            item.to = real(item.to);
        }
        return form;
    }

    /** What is on the disk, in the form of the model. */
    Tree everything() const
    {
        Tree all;
        for (const ScratchFolder *folder : {&m_in, &m_other}) {
            QDirIterator items(folder->path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                               QDirIterator::Subdirectories);
            while (items.hasNext()) {
                const QString path = items.next();
                const QString name = path.mid(folder->path().size());
                const QFileInfo info(path);
                QFile file(path);
                if (info.isSymLink())
                    all[name] = '2' + folder->linkText(qPrintable(name.mid(1)));
                else if (info.isDir())
                    all[name] = "1";
                else if (file.open(QIODevice::ReadOnly))
                    all[name] = '0' + file.readAll();
            }
        }
        all.erase(QStringLiteral("/other"));
        return all;
    }

private:
    ScratchFolder m_in;
    ScratchFolder m_other;
};

Tree withoutTop(Tree tree)
{
    tree.erase(QStringLiteral("/other"));
    return tree;
}

/** Copies that were undone are in the trash of the other disk, which is not the test's. */
void emptyTrashOf(const JournalShelf &shelf)
{
    for (const QString &name : shelf.names())
        for (const MoveRecord &record : readRecord(shelf.read(name).value()).items)
            if (const QFileInfo trashed(record.path); trashed.path().endsWith(QStringLiteral("/files"))) {
                (void)platform::removeItem(trashed.filePath());
                QFile::remove(QFileInfo(trashed.path()).path() + QStringLiteral("/info/") + trashed.fileName() +
                              QStringLiteral(".trashinfo"));
            }
}

void carryOut(platform::FileSystem &disk, JournalShelf &shelf, const MoveOrderForm &form)
{
    const auto run = std::move(*MoveRun::begin(disk, shelf, form));
    while (run->next()) {
    }
    (void)run->end();
}

} // namespace

/** The same made-up plans on a disk as on the model. */
class TestMoveDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doesOnTheDiskWhatItDoesOnTheModel();
    void endsTrashingThatWasCutShort_data();
    void endsTrashingThatWasCutShort();
    void takesAwayTheBeginningOfACopyInTheTrash();
};

void TestMoveDisk::doesOnTheDiskWhatItDoesOnTheModel()
{
    int compared = 0;
    const int plans = tests::repetitions(40, 400);
    for (quint32 seed = 0; seed < quint32(plans); ++seed) {
        World world(seed + 3'000'000);
        const MoveOrderForm form = world.readyItems();
        if (form.items.empty())
            continue;
        const Twin twin(world);
        const Tree before = twin.everything();
        QCOMPARE(before, withoutTop(world.disk.everything()));
        platform::DiskFileSystem disk;
        const ScratchFolder journals;
        DiskJournalShelf shelf(journals.path());
        carryOut(disk, shelf, twin.form(form));
        (void)carriedOut(world, form);
        QCOMPARE(twin.everything(), withoutTop(world.disk.everything()));
        const UndoPlan undo = planUndo(disk, shelf, shelf.names().first());
        QVERIFY(undo.problems.empty());
        carryOut(disk, shelf, undo.form);
        QCOMPARE(twin.everything(), before);
        emptyTrashOf(shelf);
        compared += int(form.items.size());
    }
    qInfo("%d items", compared);
    QVERIFY(compared > plans * 2);
}

void TestMoveDisk::endsTrashingThatWasCutShort_data()
{
    QTest::addColumn<QByteArray>("trashed");
    QTest::addColumn<bool>("isInTheTrash");
    QTest::newRow("the whole copy is in the trash") << QByteArray("a picture") << true;
    QTest::newRow("another one is in the trash") << QByteArray("a pict") << false;
    QTest::newRow("nothing is in the trash") << QByteArray() << false;
}

/** As a kill leaves a file that is trashed from a disk without a trash: copied, and hidden in its place. */
void TestMoveDisk::endsTrashingThatWasCutShort()
{
    QFETCH(QByteArray, trashed);
    QFETCH(bool, isInTheTrash);
    const ScratchFolder folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path("data")));
    platform::DiskFileSystem disk;
    const ScratchFolder journals;
    QVERIFY(folder.write("in/a.jpg", "a picture"));
    {
        DiskJournalShelf shelf(journals.path());
        MoveOrderForm form;
        form.items = {{Operation::Trash, folder.path("in/a.jpg"), {}}};
        QVERIFY(MoveRun::begin(disk, shelf, form));
    }
    QVERIFY(QFile::rename(folder.path("in/a.jpg"), folder.path("in/.quorlin-0123456789ab")));
    QVERIFY(folder.write("in/.quorlin-other", "of another program"));
    if (!trashed.isEmpty()) {
        QVERIFY(folder.write("in/a.jpg", trashed));
        QVERIFY(disk.trash(folder.path("in/a.jpg")));
    }
    DiskJournalShelf shelf(journals.path());
    const auto recovered = recoverMoves(disk, shelf);
    QCOMPARE(recovered.size(), size_t(1));
    QVERIFY(recovered.front().problems.isEmpty());
    QCOMPARE(recovered.front().finished, isInTheTrash ? 1 : 0);
    QVERIFY(!folder.isThere("in/.quorlin-0123456789ab"));
    QCOMPARE(folder.read("in/.quorlin-other"), QByteArray("of another program"));
    if (isInTheTrash) {
        QVERIFY(!folder.isThere("in/a.jpg"));
        const UndoPlan undo = planUndo(disk, shelf, shelf.names().first());
        carryOut(disk, shelf, undo.form);
    }
    QCOMPARE(folder.read("in/a.jpg"), QByteArray("a picture"));
}

/** As a kill leaves a folder that was being copied into the trash. */
void TestMoveDisk::takesAwayTheBeginningOfACopyInTheTrash()
{
    const ScratchFolder folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path("data")));
    platform::DiskFileSystem disk;
    const ScratchFolder journals;
    QVERIFY(folder.write("in/a/one.jpg", "a picture"));
    QVERIFY(folder.write("in/a/two.jpg", "another picture"));
    {
        DiskJournalShelf shelf(journals.path());
        MoveOrderForm form;
        form.items = {{Operation::Trash, folder.path("in/a"), {}}};
        QVERIFY(MoveRun::begin(disk, shelf, form));
    }
    const auto write = [&](const char *name, const QByteArray &bytes, int secondsAgo) {
        QVERIFY(folder.write(name, bytes));
        timespec times[2] = {{}, {}};
        times[0].tv_sec = times[1].tv_sec = ::time(nullptr) - secondsAgo;
        for (const QString &path : {folder.path(name), QFileInfo(folder.path(name)).path()})
            QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
    };
    write("data/Trash/files/.quorlin-000000000001/one.jpg", "a pict", 60);
    write("data/Trash/files/.quorlin-000000000002/one.jpg", "no pict", 60); // of something else
    write("data/Trash/files/.quorlin-000000000003/one.jpg", "a pict", 1);   // somebody is at it
    write("data/Trash/files/b", "b", 60);
    const QByteArray place = QFile::encodeName(QFileInfo(folder.path("in")).canonicalFilePath());
    write("data/Trash/info/a.trashinfo", "[Trash Info]\nPath=" + place + "/a\n", 60);
    write("data/Trash/info/b.trashinfo", "[Trash Info]\nPath=" + place + "/b\n", 60);
    DiskJournalShelf shelf(journals.path());
    const auto recovered = recoverMoves(disk, shelf);
    QCOMPARE(recovered.size(), size_t(1));
    QVERIFY(recovered.front().problems.isEmpty());
    QCOMPARE(recovered.front().left, 1);
    QCOMPARE(folder.read("in/a/two.jpg"), QByteArray("another picture"));
    QVERIFY(!folder.isThere("data/Trash/files/.quorlin-000000000001"));
    QVERIFY(!folder.isThere("data/Trash/info/a.trashinfo"));
    for (const char *stays : {"data/Trash/files/.quorlin-000000000002/one.jpg", "data/Trash/files/b",
                              "data/Trash/files/.quorlin-000000000003/one.jpg", "data/Trash/info/b.trashinfo"})
        QVERIFY2(folder.isThere(stays), stays);
}

QUORLIN_TEST(TestMoveDisk)
#include "tst_move_disk.moc"
