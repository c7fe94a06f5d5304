#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "tests/support/model_shelf.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace files;

namespace {

const QString folder = QStringLiteral("/d/");
const QString other = QStringLiteral("/other/");

/** What a disk has that has no rename that replaces nothing. */
enum class Disk { Placeholders, SecondNames };

/** Such a disk with three pictures and a link on it. */
class Place
{
public:
    explicit Place(Disk kind)
    {
        disk.canReplace = kind == Disk::Placeholders;
        disk.givesSecondNames = kind == Disk::SecondNames;
        disk.addLink(folder + u'l', QStringLiteral("a"));
        for (const char *name : {"a", "b", "c"})
            disk.addFile(folder + QLatin1String(name), name);
        disk.fuse = shelf.fuse = &fuse;
    }

    void carryOut(const MoveOrderForm &form)
    {
        if (const auto run = MoveRun::begin(disk, shelf, form)) {
            while ((*run)->next()) {
            }
            (void)(*run)->end();
        }
    }

    void carryOut(std::vector<MoveItem> items)
    {
        MoveOrderForm form;
        form.items = std::move(items);
        carryOut(form);
    }

    /** As the next start finds it, which may end at a change too. */
    QStringList recover(int changes = -1)
    {
        fuse.light(changes);
        disk.trouble = nullptr;
        shelf.held.clear();
        QStringList problems;
        for (const RecoveredRun &run : recoverMoves(disk, shelf))
            problems += run.problems;
        return problems;
    }

    QByteArray told() const
    {
        QByteArray all;
        for (const auto &[path, what] : disk.everything())
            all += path.toUtf8() + '=' + what + ' ';
        return all;
    }

    bool hasHidden() const { return told().contains("/.quorlin"); }

    bool hasSecondName() const
    {
        for (const auto &entry : disk.everything())
            if (disk.look(entry.first)->names > 1)
                return true;
        return false;
    }

    ModelFileSystem disk;
    ModelShelf shelf;
    Fuse fuse;
};

void moves(Place &place)
{
    place.carryOut({{Operation::Move, folder + u'a', folder + u'x'}, {Operation::Move, folder + u'b', folder + u'a'}});
}

void swaps(Place &place)
{
    place.carryOut({{Operation::Move, folder + u'a', folder + u'b'}, {Operation::Move, folder + u'b', folder + u'a'}});
}

void copies(Place &place)
{
    place.carryOut({{Operation::Copy, folder + u'a', folder + u'x'}, {Operation::Copy, folder + u'b', other + u'y'}});
}

void movesAway(Place &place)
{
    place.carryOut({{Operation::Move, folder + u'a', other + u'x'}, {Operation::Move, folder + u'b', other + u'y'}});
}

void trashes(Place &place)
{
    place.carryOut({{Operation::Trash, folder + u'a', {}}, {Operation::Trash, folder + u'b', {}}});
}

void movesAndLinks(Place &place)
{
    place.carryOut({{Operation::Move, folder + u'l', folder + u'm'},
                    {Operation::Link, QStringLiteral("b"), folder + u'n'},
                    {Operation::Move, folder + u'b', folder + u'o'}});
}

void undo(Place &place)
{
    place.carryOut(planUndo(place.disk, place.shelf, place.shelf.names().first()).form);
}

struct Work
{
    void (*before)(Place &);
    void (*act)(Place &);
};

const std::map<QByteArray, Work> &works()
{
    static const std::map<QByteArray, Work> all = {
        {"moves", {[](Place &) {}, moves}},
        {"copies", {[](Place &) {}, copies}},
        {"to another disk", {[](Place &) {}, movesAway}},
        {"moves taken back", {moves, undo}},
        {"swaps", {[](Place &) {}, swaps}},
        {"brought back from another disk", {movesAway, undo}},
        {"copies taken back", {copies, undo}},
        {"trashes", {[](Place &) {}, trashes}},
        {"brought back from the trash", {trashes, undo}},
        {"links", {[](Place &) {}, movesAndLinks}},
        {"links taken back", {movesAndLinks, undo}},
    };
    return all;
}

/** Whether it is killed on its way. */
bool isCutShort(const std::function<void()> &act)
{
    try {
        act();
    } catch (const Killed &) {
        return true;
    }
    return false;
}

} // namespace

Q_DECLARE_METATYPE(Disk)

/** What a disk without a rename that replaces nothing leaves: an empty file that keeps a name for a moment, or a second name. */
class TestPlaceholders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areGoneAfterAKill_data() { everyWork(); }
    void areGoneAfterAKill();
    void areGoneAfterAKillOfRecovery_data() { everyWork(); }
    void areGoneAfterAKillOfRecovery();
    void takeNobodysPlace_data() { everyWork(); }
    void takeNobodysPlace();

private:
    void everyWork();
};

void TestPlaceholders::everyWork()
{
    QTest::addColumn<Disk>("kind");
    QTest::addColumn<QByteArray>("name");
    for (const auto &work : works()) {
        QTest::addRow("%s, placeholders", work.first.constData()) << Disk::Placeholders << work.first;
        QTest::addRow("%s, second names", work.first.constData()) << Disk::SecondNames << work.first;
    }
}

void checkAllIsThereOnce(const Place &place, const QByteArray &when)
{
    const QList<QByteArray> contents = place.disk.allBytes();
    for (const char *content : {"a", "b", "c"})
        QVERIFY2(contents.contains(content), when + place.told());
    QVERIFY2(!contents.contains(QByteArray()) && !place.hasHidden(), when + place.told());
    QVERIFY2(!place.hasSecondName(), when + place.told());
}

void TestPlaceholders::areGoneAfterAKill()
{
    QFETCH(Disk, kind);
    QFETCH(QByteArray, name);
    int change = 0;
    for (bool isKilled = true; isKilled; ++change) {
        Place place(kind);
        works().at(name).before(place);
        place.fuse.light(change);
        isKilled = isCutShort([&] { works().at(name).act(place); });
        const QByteArray when = name + " killed at change " + QByteArray::number(change) + ": ";
        const QStringList problems = place.recover();
        QVERIFY2(problems.isEmpty(), when + problems.join(u' ').toUtf8());
        checkAllIsThereOnce(place, when);
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY(change > 3);
}

void TestPlaceholders::areGoneAfterAKillOfRecovery()
{
    QFETCH(Disk, kind);
    QFETCH(QByteArray, name);
    int kills = 0;
    bool wasBegun = true;
    for (int first = 0; wasBegun; ++first) {
        bool isKilled = true;
        for (int second = 0; wasBegun && isKilled; ++second) {
            Place place(kind);
            works().at(name).before(place);
            place.fuse.light(first);
            wasBegun = isCutShort([&] { works().at(name).act(place); });
            isKilled = isCutShort([&] { place.recover(second); });
            kills += isKilled;
            place.recover();
            checkAllIsThereOnce(place, name + " killed at change " + QByteArray::number(first) + ", then at " +
                                           QByteArray::number(second) + ": ");
            if (QTest::currentTestFailed())
                return;
        }
    }
    QVERIFY(kills > 3);
}

/** Another program saves under the new name, or into the empty file that keeps it, at each change. */
void TestPlaceholders::takeNobodysPlace()
{
    QFETCH(Disk, kind);
    QFETCH(QByteArray, name);
    int saved = 0;
    for (const char target : {'x', 'y', 'a', 'b'})
        for (const QString &where : {folder, other})
            for (int change = 0, changes = 1; change < changes; ++change) {
                Place place(kind);
                works().at(name).before(place);
                const QString path = where + QLatin1Char(target);
                bool isSaved = false;
                changes = 0;
                place.disk.trouble = [&]() -> std::error_code {
                    const bool isFree = !place.disk.look(path);
                    if (changes++ == change && (isFree || place.disk.bytes(path).isEmpty())) {
                        isFree ? place.disk.addFile(path, "of another program")
                               : place.disk.change(path, "of another program");
                        isSaved = true;
                    }
                    return {};
                };
                works().at(name).act(place);
                place.recover();
                const QList<QByteArray> contents = place.disk.allBytes();
                const QByteArray when = name + ", saved at change " + QByteArray::number(change) + ": " + place.told();
                QVERIFY2(!isSaved || contents.contains("of another program"), when);
                for (const char *content : {"a", "b", "c"})
                    QVERIFY2(contents.contains(content), when);
                QVERIFY2(!contents.contains(QByteArray()), when);
                saved += isSaved;
            }
    QVERIFY(saved > 5);
}

QUORLIN_TEST(TestPlaceholders)
#include "tst_placeholders.moc"
