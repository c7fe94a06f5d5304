#include "files/moving/move_paths.h"
#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "tests/support/scratch_folder.h"

#include "platform/disk/disk_file_system.h"
#include "tests/support/test_program.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>
#include <map>
#include <sys/wait.h>

using namespace files;

namespace {

using Tree = std::map<QString, QByteArray>;

/** A folder with files and folders, another one on another disk if there is one, and a run that rearranges them. */
class Place
{
public:
    Place()
        : m_other(areApart(QStringLiteral("/dev/shm"), QDir::tempPath()) ? QStringLiteral("/dev/shm")
                                                                         : QDir::tempPath())
    {
        for (int i = 0; i < fileCount; ++i)
            m_here.write(name(i), contentOf(i));
        for (int i = 0; i < folderCount; ++i)
            m_here.write(QStringLiteral("folder %1/inside").arg(i), contentOf(1000 + i));
    }

    QString journals() const { return m_here.path("journals"); }
    QString here(const QString &name) const { return m_here.path(name); }

    /** Swaps, a circle, a chain, new names, folders that change places with what is in them renamed, another disk. */
    MoveOrderForm form() const
    {
        MoveOrderForm form;
        const auto move = [&](const QString &from, const QString &to) {
            form.items.push_back({Operation::Move, here(from), to.startsWith(u'/') ? to : here(to)});
        };
        for (int i = 0; i < 20; ++i)
            move(name(i), name(i ^ 1));
        for (int i = 20; i < 40; ++i)
            move(name(i), name(i == 39 ? 20 : i + 1));
        for (int i = 40; i < 60; ++i)
            move(name(i), i == 59 ? QStringLiteral("end of the chain") : name(i + 1));
        for (int i = 60; i < 70; ++i)
            move(name(i), QStringLiteral("new folder/new %1").arg(i));
        for (int i = 70; i < 75; ++i)
            move(name(i), m_other.path(QStringLiteral("other %1").arg(i)));
        for (int i = 0; i < folderCount; ++i) {
            move(QStringLiteral("folder %1/inside").arg(i), QStringLiteral("folder %1/renamed").arg(i));
            move(QStringLiteral("folder %1").arg(i), QStringLiteral("folder %1").arg(i ^ 1));
        }
        return form;
    }

    /** Every file with its content, but for the journals. */
    Tree tree() const
    {
        Tree all;
        for (const QString &folder : {m_here.path(), m_other.path()}) {
            QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                QFile file(files.next());
                if (!file.fileName().startsWith(journals()) && file.open(QIODevice::ReadOnly))
                    all[file.fileName()] = file.readAll();
            }
        }
        return all;
    }

    bool hasTemporaryName() const
    {
        for (const QString &folder : {m_here.path(), m_other.path()}) {
            QDirIterator items(folder, {QStringLiteral(".quorlin-*")},
                               QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                               QDirIterator::Subdirectories);
            if (items.hasNext())
                return true;
        }
        return false;
    }

private:
    static constexpr int fileCount = 75;
    static constexpr int folderCount = 4;

    static QString name(int i) { return QStringLiteral("file %1").arg(i); }
    static QByteArray contentOf(int i) { return QByteArray::number(i) + QByteArray(1000 + i, char('a' + i % 26)); }

    ScratchFolder m_here;
    ScratchFolder m_other;
};

QList<QByteArray> contentsOf(const Tree &tree)
{
    QList<QByteArray> contents;
    for (const auto &entry : tree)
        contents.append(entry.second);
    std::sort(contents.begin(), contents.end());
    return contents;
}

void carryOut(const Place &place, const MoveOrderForm &form, int begun)
{
    platform::DiskFileSystem disk;
    DiskJournalShelf shelf(place.journals());
    const auto run = MoveRun::begin(disk, shelf, form);
    if (!run || ::write(begun, "b", 1) != 1)
        ::_exit(1);
    while ((*run)->next()) {
    }
    (void)(*run)->end();
}

void recover(const Place &place)
{
    platform::DiskFileSystem disk;
    DiskJournalShelf shelf(place.journals());
    recoverMoves(disk, shelf);
}

} // namespace

/** A program that is ended by force while it renames, and while it makes up for that. */
class TestKilledMover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesEveryFileUnderItsOldOrItsNewName();

private:
    template<typename Work> void kill(Work work, bool waits, int mostMicroseconds);
    QRandomGenerator m_random{7};
};

/** Runs @p work in a separate process and kills it after a random time, which starts at its signal if it @p waits for one. */
template<typename Work> void TestKilledMover::kill(Work work, bool waits, int mostMicroseconds)
{
    int sign[2] = {-1, -1};
    QCOMPARE(::pipe(sign), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(sign[0]);
        work(sign[1]);
        ::_exit(0);
    }
    ::close(sign[1]);
    char byte = 0;
    if (waits)
        (void)!::read(sign[0], &byte, 1);
    ::usleep(useconds_t(m_random.bounded(mostMicroseconds)));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    ::close(sign[0]);
}

void TestKilledMover::leavesEveryFileUnderItsOldOrItsNewName()
{
    int halfDone = 0;
    int unfinished = 0;
    const int times = tests::repetitions(24, 220);
    for (int i = 0; i < times; ++i) {
        const Place place;
        const Tree before = place.tree();
        const MoveOrderForm form = place.form();
        kill([&](int sign) { carryOut(place, form, sign); }, i % 8 != 0, 9'000);
        halfDone += place.hasTemporaryName();
        for (int kills = m_random.bounded(3); kills > 0; --kills)
            kill([&](int) { recover(place); }, false, 4'000);
        recover(place);
        QVERIFY(!place.hasTemporaryName());
        const Tree after = place.tree();
        QCOMPARE(contentsOf(after), contentsOf(before));

        const DiskJournalShelf shelf(place.journals());
        if (shelf.names().isEmpty()) {
            QVERIFY(after == before);
            continue;
        }
        const RunRecord record = readRecord(shelf.read(shelf.names().first()).value());
        QVERIFY(!record.end.isEmpty());
        PathsSince now(record);
        for (int k = 0; k < int(record.items.size()); ++k) {
            const MoveRecord &item = record.items[size_t(k)];
            unfinished += item.stand == Stand::Waiting;
            const QString path = now(item.stand == Stand::Done ? item.item.to : item.item.from, k);
            if (const auto held = before.find(item.item.from); held != before.end())
                QVERIFY2(after.count(path) && after.at(path) == held->second, qPrintable(path));
        }
        platform::DiskFileSystem disk;
        DiskJournalShelf ownShelf(place.journals());
        const UndoPlan undo = planUndo(disk, ownShelf, record.id);
        QVERIFY(undo.problems.empty());
        if (!undo.form.items.empty()) {
            const auto run = MoveRun::begin(disk, ownShelf, undo.form);
            QVERIFY(run);
            while ((*run)->next()) {
            }
            QVERIFY((*run)->end());
        }
        QVERIFY(place.tree() == before);
    }
    qInfo("%d of %d kills left something under a temporary name, %d items had not had their turn", halfDone, times,
          unfinished);
    QVERIFY(halfDone > 0 && unfinished > 0);
}

QUORLIN_TEST(TestKilledMover)
#include "tst_killed_mover.moc"
