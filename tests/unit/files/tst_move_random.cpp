#include "files/moving/move_paths.h"
#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "tests/support/move_world.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace files;

namespace {

/** What differs between two states of a world, and what led there. */
QByteArray story(bool isRight, quint32 seed, const World &world, const std::map<QString, QByteArray> &before)
{
    if (isRight)
        return {};
    QString text = QStringLiteral("seed %1\n").arg(seed);
    for (const QString &name : world.shelf.names())
        text += QString::fromUtf8(world.shelf.read(name).value());
    const auto now = world.disk.everything();
    for (const auto &[path, what] : before)
        if (const auto found = now.find(path); found == now.end() || found->second != what)
            text += QStringLiteral("was: %1 %2\n").arg(path, QString::fromUtf8(what));
    for (const auto &[path, what] : now)
        if (const auto found = before.find(path); found == before.end() || found->second != what)
            text += QStringLiteral("is: %1 %2\n").arg(path, QString::fromUtf8(what));
    qInfo("%s", qPrintable(text));
    return QByteArray::number(seed);
}

} // namespace

/** Thousands of generated plans: nothing is ever lost or replaced, and what was done can be undone. */
class TestMoveRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doesWhatWasPlanned();
    void losesNothingWhenOthersInterfere();
    void endsEveryInterruptedRun();

private:
    static void checkPlaces(World &world, const RunRecord &record, const std::map<QString, QByteArray> &before);
};

/** Every item is where the record says, with what it held before. */
void TestMoveRandom::checkPlaces(World &world, const RunRecord &record, const std::map<QString, QByteArray> &before)
{
    PathsSince now(record);
    for (int i = 0; i < int(record.items.size()); ++i) {
        const MoveRecord &item = record.items[size_t(i)];
        if (item.item.operation != Operation::Move)
            continue;
        const bool isNumbered = item.stand == Stand::Failed && !item.path.isEmpty();
        const QString place = item.stand == Stand::Done || isNumbered ? item.path : item.item.from;
        const QByteArray held = before.at(item.item.from).mid(1);
        if (item.why != MoveProblem::Gone)
            QVERIFY2(world.disk.bytes(now(place, i)) == held, qPrintable(now(place, i)));
    }
}

void TestMoveRandom::doesWhatWasPlanned()
{
    int carried = 0;
    int refused = 0;
    int asides = 0;
    const int plans = tests::repetitions(600, 12'000);
    for (quint32 seed = 0; seed < quint32(plans); ++seed) {
        World world(seed);
        const auto before = world.disk.everything();
        const MoveOrderForm form = world.readyItems();
        refused += int(world.wishes.size() - form.items.size());
        if (form.items.empty())
            continue;
        const bool isCancelled = world.below(4) == 0;
        const auto run = carriedOut(world, form, isCancelled ? world.below(int(form.items.size())) : 1'000'000);
        QVERIFY2(!world.hasTemporaryName(), story(!world.hasTemporaryName(), seed, world, before));
        for (const MoveRecord &item : run->record().items) {
            const bool isAsPlanned = item.stand == Stand::Done || (isCancelled && item.stand == Stand::Waiting);
            QVERIFY2(isAsPlanned, story(isAsPlanned, seed, world, before));
            carried += item.stand == Stand::Done;
        }
        for (const MoveStep &step : run->record().steps)
            asides += step.isAside;
        checkPlaces(world, run->record(), before);
        if (run->record().doneAtEnd == 0)
            continue;
        const auto after = world.disk.everything();
        const UndoPlan undo = planUndo(world.disk, world.shelf, run->id());
        QVERIFY2(undo.problems.empty(), qPrintable(QStringLiteral("%1: %2").arg(seed).arg(
                                            undo.problems.empty() ? QString() : undo.problems[0].reason)));
        const auto undone = carriedOut(world, undo.form);
        QVERIFY2(world.disk.everything() == before, story(world.disk.everything() == before, seed, world, before));
        QCOMPARE(planUndo(world.disk, world.shelf, run->id()).why, MoveProblem::TakenBack);
        const UndoPlan redo = planUndo(world.disk, world.shelf, undone->id());
        QVERIFY2(redo.problems.empty(), story(redo.problems.empty(), seed, world, before));
        (void)carriedOut(world, redo.form);
        QVERIFY2(world.disk.everything() == after, story(world.disk.everything() == after, seed, world, after));
    }
    qInfo("%d items carried out, taken back and done again, %d refused, %d stepped aside", carried, refused, asides);
    QVERIFY(carried > plans * 5 / 3 && refused > plans * 5 / 6 && asides > plans / 12);
}

void TestMoveRandom::losesNothingWhenOthersInterfere()
{
    int failed = 0;
    int foreign = 0;
    int twice = 0;
    const int plans = tests::repetitions(600, 12'000);
    for (quint32 seed = 0; seed < quint32(plans); ++seed) {
        World world(seed + 1'000'000);
        for (MoveWish &wish : world.wishes)
            wish.kind = MoveKind::Move;
        const auto before = world.disk.everything();
        const MoveOrderForm form = world.readyItems();
        if (form.items.empty())
            continue;
        world.disk.trouble = [&]() -> std::error_code {
            if (world.below(6) == 0) {
                const QString path = platform::parentFolder(world.pick(world.items)) + u'/' + world.pick(someNames);
                const auto folder = world.disk.look(platform::parentFolder(path));
                if (!world.disk.look(path) && folder && folder->kind == platform::ItemKind::Folder) {
                    world.disk.addFile(path, "foreign " + QByteArray::number(++foreign));
                }
            }
            return world.below(10) == 0 ? std::make_error_code(std::errc::io_error) : std::error_code();
        };
        const int foreignBefore = foreign;
        const QList<QByteArray> contents = world.allContents();
        const auto run = carriedOut(world, form);
        world.disk.trouble = nullptr;
        recoverMoves(world.disk, world.shelf);
        checkPlaces(world, readRecord(world.shelf.read(run->id()).value()), before);
        QList<QByteArray> now = world.allContents();
        const auto isForeign = [](const QByteArray &bytes) { return bytes.startsWith("0foreign"); };
        now.removeIf(isForeign);
        // Where neither the source nor the copy on another disk could be removed, both are there.
        twice += int(now.size() - contents.size());
        now.erase(std::unique(now.begin(), now.end()), now.end());
        QVERIFY2(now == contents, story(now == contents, seed, world, before));
        auto all = world.allContents();
        all.erase(std::unique(all.begin(), all.end()), all.end());
        const auto stillThere = std::count_if(all.begin(), all.end(), isForeign);
        const bool areAllThere = stillThere == foreign - foreignBefore;
        QVERIFY2(areAllThere, story(areAllThere, seed, world, before));
        QVERIFY2(!world.hasTemporaryName(), story(!world.hasTemporaryName(), seed, world, before));
        for (const MoveRecord &item : run->record().items)
            failed += item.stand == Stand::Failed;
    }
    qInfo("%d items failed, %d foreign files came in between, %d files are there twice", failed, foreign, twice);
    QVERIFY(failed > plans * 5 / 12 && foreign > plans / 4 && twice < plans / 120);
}

void TestMoveRandom::endsEveryInterruptedRun()
{
    int kills = 0;
    const int plans = tests::repetitions(400, 8'000);
    for (quint32 seed = 0; seed < quint32(plans); ++seed) {
        World world(seed + 2'000'000);
        world.disk.givesSecondNames = seed % 2 == 1;
        const MoveOrderForm form = world.readyItems();
        if (form.items.empty())
            continue;
        const auto before = world.disk.everything();
        const QList<QByteArray> contents = world.allContents();
        Fuse fuse;
        world.disk.fuse = world.shelf.fuse = &fuse;
        fuse.light(world.below(4 * int(form.items.size()) + 2));
        for (bool isOver = false, isBegun = false; !isOver;) {
            try {
                if (!isBegun) {
                    isBegun = true;
                    (void)carriedOut(world, form);
                } else {
                    recoverMoves(world.disk, world.shelf);
                }
                isOver = true;
            } catch (const Killed &) {
                ++kills;
                world.shelf.held.clear();
                world.below(2) ? fuse.light(world.below(6)) : fuse.putOut();
            }
        }
        fuse.putOut();
        QVERIFY2(!world.hasTemporaryName(), story(!world.hasTemporaryName(), seed, world, before));
        if (world.shelf.journals.empty()) {
            QCOMPARE(world.disk.everything(), before);
            continue;
        }
        const RunRecord record = readRecord(world.shelf.journals.begin()->second);
        QVERIFY(!record.end.isEmpty());
        checkPlaces(world, record, before);
        const auto everything = world.disk.everything();
        QVERIFY(recoverMoves(world.disk, world.shelf).empty());
        QVERIFY(world.disk.everything() == everything);
        const UndoPlan undo = planUndo(world.disk, world.shelf, record.id);
        QVERIFY2(undo.problems.empty(), story(undo.problems.empty(), seed, world, before));
        if (!undo.form.items.empty())
            (void)carriedOut(world, undo.form);
        QVERIFY2(world.disk.everything() == before, story(world.disk.everything() == before, seed, world, before));
    }
    qInfo("%d kills", kills);
    QVERIFY(kills > plans * 3 / 8);
}

QUORLIN_TEST(TestMoveRandom)
#include "tst_move_random.moc"
