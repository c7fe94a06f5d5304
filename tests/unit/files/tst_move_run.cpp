#include "files/moving/move_recovery.h"
#include "files/moving/move_undo.h"
#include "tests/support/model_shelf.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace files;

namespace {

QString at(const char *name)
{
    return QStringLiteral("/d/") + QString::fromUtf8(name);
}

MoveItem item(Operation operation, const char *from, const char *to, int leader = -1)
{
    MoveItem made = {operation, at(from), QString::fromUtf8(to).startsWith(u'/') ? QString::fromUtf8(to) : at(to)};
    made.leader = leader;
    return made;
}

MoveItem move(const char *from, const char *to, int leader = -1)
{
    return item(Operation::Move, from, to, leader);
}

} // namespace

/** A run, its journal, and what happens to items when something goes wrong. */
class TestMoveRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesTheJournalBeforeAnythingMoves();
    void movesNothingWithoutAJournal();
    void replacesNothingThatComesInBetween();
    void givesANumberWhereBothNamesAreTaken();
    void takesACircleBackThatCannotBeClosed();
    void skipsCompanionsOfWhatFailed();
    void refusesWhatWasReplacedSinceTheBeginning();
    void changesCaseOnADiskThatDoesNotTellCasesApart();
    void swapsTwoNamesOfOneFile();
    void leavesTheSourceWhenACopyFails();
    void removesFoldersThatStayEmpty();
    void trashesACopyThatWasChanged();
    void trashesNoCopyThatIsItsOriginalByNow();
    void keepsTheCopyOfASourceThatHasVanished();
    void keepsWhatIsSavedAtTheLastMoment_data();
    void keepsWhatIsSavedAtTheLastMoment();
    void leavesNothingOfAFolderThatCannotLeave();
    void saysWhatADiskCannotHold();
    void triesAgainWhatFoundNoRoom();
    void triesNothingElseAgain();
    void settlesEveryNewFolderOnTheWayToAnotherDisk();
    void endsNoRunWhoseJournalLacksALine();
    void keepsNoPlaceholderAndNoPlaceOfOthers();
    void knowsWhatIsInTheTrashAfterAKill_data();
    void knowsWhatIsInTheTrashAfterAKill();
    void leavesRunsOfOthersAlone();
    void keepsTheJournalsOfTheLastTwoHundredRuns();
    void readsAJournalThatWasCutShort();

private:
    QStringList carriedOut(const std::vector<MoveItem> &items);
    QStringList names() const;

    std::unique_ptr<ModelFileSystem> m_disk;
    std::unique_ptr<ModelShelf> m_shelf;
    std::function<void()> m_afterBegin;
    QString m_run;
};

void TestMoveRun::init()
{
    m_disk = std::make_unique<ModelFileSystem>();
    m_shelf = std::make_unique<ModelShelf>();
    m_afterBegin = nullptr;
    for (const char *name : {"a", "b", "c", "folder/in"})
        m_disk->addFile(at(name), name);
}

/** "OK", or the code of the failure, for every item in its order; "" for one without a result. */
QStringList TestMoveRun::carriedOut(const std::vector<MoveItem> &items)
{
    MoveOrderForm form;
    form.title = QStringLiteral("Test");
    form.items = items;
    const auto begun = MoveRun::begin(*m_disk, *m_shelf, form);
    if (!begun)
        return {begun.error().message};
    const auto &run = *begun;
    m_run = run->id();
    if (m_afterBegin)
        m_afterBegin();
    QStringList answers(qsizetype(items.size()), QString());
    while (const auto result = run->next())
        answers[result->index] = result->stand == Stand::Done ? QStringLiteral("OK") : wordOf(result->why);
    (void)run->end();
    return answers;
}

QStringList TestMoveRun::names() const
{
    QStringList names;
    for (const auto &[path, what] : m_disk->everything())
        if (path.startsWith(QStringLiteral("/d/")))
            names.append(path.mid(3) + u':' + QString::fromUtf8(what.mid(1)));
    return names;
}

void TestMoveRun::writesTheJournalBeforeAnythingMoves()
{
    const auto before = m_disk->everything();
    m_afterBegin = [&] {
        QVERIFY(m_disk->everything() == before);
        const RunRecord record = readRecord(m_shelf->read(m_run).value());
        QCOMPARE(record.title, QStringLiteral("Test"));
        QCOMPARE(int(record.items.size()), 2);
        QCOMPARE(record.items[1].item.to, at("y"));
        QVERIFY(isSameItem(*record.items[1].item.was, *m_disk->look(at("b"))));
    };
    QCOMPARE(carriedOut({move("a", "x"), move("b", "y")}), QStringList({QStringLiteral("OK"), QStringLiteral("OK")}));
}

void TestMoveRun::movesNothingWithoutAJournal()
{
    class FullShelf : public ModelShelf
    {
        platform::Result<void> make(const QString &, const QByteArray &) override
        {
            return platform::failure(platform::ErrorCode::WriteFailed, QStringLiteral("full"));
        }
    };
    m_shelf = std::make_unique<FullShelf>();
    const auto before = m_disk->everything();
    QCOMPARE(carriedOut({move("a", "x")}), QStringList(QStringLiteral("full")));
    QVERIFY(m_disk->everything() == before);
}

void TestMoveRun::replacesNothingThatComesInBetween()
{
    m_afterBegin = [this] { m_disk->addFile(at("x"), "foreign"); };
    QCOMPARE(carriedOut({move("a", "x"), move("b", "a")}),
             QStringList({QStringLiteral("taken"), QStringLiteral("taken")}));
    QCOMPARE(names().join(u' '), QStringLiteral("a:a b:b c:c folder: folder/in:in x:foreign")
                                     .replace(QStringLiteral("in:in"), QStringLiteral("in:folder/in")));
}

void TestMoveRun::givesANumberWhereBothNamesAreTaken()
{
    int renames = 0;
    m_disk->trouble = [&]() -> std::error_code {
        // a has stepped aside; somebody takes its name, and nothing moves into it any more.
        if (++renames == 2)
            m_disk->addFile(at("a"), "foreign");
        return {};
    };
    QCOMPARE(carriedOut({move("a", "b"), move("b", "a")}),
             QStringList({QStringLiteral("circle"), QStringLiteral("taken")}));
    QCOMPARE(m_disk->bytes(at("a (2)")), QByteArray("a"));
    QCOMPARE(m_disk->bytes(at("a")), QByteArray("foreign"));
    QCOMPARE(m_disk->bytes(at("b")), QByteArray("b"));
}

void TestMoveRun::takesACircleBackThatCannotBeClosed()
{
    int renames = 0;
    m_disk->trouble = [&] {
        return ++renames == 3 ? std::make_error_code(std::errc::permission_denied) : std::error_code();
    };
    const auto before = m_disk->everything();
    const QStringList answers = carriedOut({move("a", "b"), move("b", "c"), move("c", "a")});
    QCOMPARE(answers.count(QStringLiteral("circle")), 2);
    QCOMPARE(answers.count(QStringLiteral("locked")), 1);
    QVERIFY(m_disk->everything() == before);
}

void TestMoveRun::skipsCompanionsOfWhatFailed()
{
    m_afterBegin = [this] { m_disk->addFile(at("x"), "foreign"); };
    QCOMPARE(carriedOut({move("a", "x"), move("b", "y", 0), move("c", "z", 7)}),
             QStringList({QStringLiteral("taken"), QStringLiteral("leader"), QStringLiteral("OK")}));
}

void TestMoveRun::refusesWhatWasReplacedSinceTheBeginning()
{
    m_afterBegin = [this] {
        m_disk->drop(at("a"));
        m_disk->addFile(at("a"), "another");
        m_disk->drop(at("b"));
    };
    QCOMPARE(carriedOut({move("a", "x"), move("b", "y")}),
             QStringList({QStringLiteral("changed"), QStringLiteral("gone")}));
    QCOMPARE(m_disk->bytes(at("a")), QByteArray("another"));
}

void TestMoveRun::changesCaseOnADiskThatDoesNotTellCasesApart()
{
    m_disk->tellsCasesApart = false;
    QCOMPARE(carriedOut({move("a", "A"), move("b", "C"), move("c", "B")}),
             QStringList({QStringLiteral("OK"), QStringLiteral("OK"), QStringLiteral("OK")}));
    QCOMPARE(names().first(3).join(u' '), QStringLiteral("A:a B:c C:b"));
    const UndoPlan undo = planUndo(*m_disk, *m_shelf, m_run);
    QVERIFY(undo.problems.empty());
    QCOMPARE(carriedOut(undo.form.items).count(QStringLiteral("OK")), 3);
    QCOMPARE(names().first(3).join(u' '), QStringLiteral("a:a b:b c:c"));
}

void TestMoveRun::swapsTwoNamesOfOneFile()
{
    m_disk->addSecondName(at("z"), at("a"));
    QCOMPARE(carriedOut({move("a", "z"), move("z", "a"), move("b", "y")}),
             QStringList({QStringLiteral("OK"), QStringLiteral("OK"), QStringLiteral("OK")}));
    QCOMPARE(m_disk->look(at("a"))->inode, m_disk->look(at("z"))->inode);
}

void TestMoveRun::leavesTheSourceWhenACopyFails()
{
    for (int failing = 1; failing <= 3; ++failing) {
        int changes = 0;
        m_disk->trouble = [&] {
            return ++changes == failing ? std::make_error_code(std::errc::no_space_on_device) : std::error_code();
        };
        const auto before = m_disk->everything();
        QCOMPARE(carriedOut({move("a", "/other/a")}), QStringList(QStringLiteral("full")));
        QVERIFY2(m_disk->everything() == before, qPrintable(QString::number(failing)));
    }
}

void TestMoveRun::removesFoldersThatStayEmpty()
{
    m_disk->trouble = [this]() -> std::error_code {
        if (m_disk->look(at("new/er")) && !m_disk->look(at("new/er/x")))
            m_disk->addFile(at("new/er/x"), "foreign");
        return {};
    };
    QCOMPARE(carriedOut({move("a", "new/er/x"), move("b", "empty/x")}).first(), QStringLiteral("taken"));
    QVERIFY(m_disk->look(at("new/er/x")) && m_disk->look(at("empty/x")));
    m_disk->trouble = nullptr;
    m_afterBegin = [this] { m_disk->drop(at("c")); };
    QCOMPARE(carriedOut({move("c", "none/x")}), QStringList(QStringLiteral("gone")));
    QVERIFY(!m_disk->look(at("none")));
}

void TestMoveRun::trashesACopyThatWasChanged()
{
    QCOMPARE(
        carriedOut({item(Operation::Copy, "a", "x"), item(Operation::Copy, "b", "y"), item(Operation::Copy, "c", "z")})
            .count(QStringLiteral("OK")),
        3);
    m_disk->change(at("x"), "worked on");
    m_disk->drop(at("b"));
    const UndoPlan undo = planUndo(*m_disk, *m_shelf, m_run);
    QCOMPARE(carriedOut(undo.form.items).count(QStringLiteral("OK")), 3);
    QVERIFY(!m_disk->look(at("x")) && !m_disk->look(at("y")) && !m_disk->look(at("z")));
    QCOMPARE(m_disk->trashedCount(), 3);
}

void TestMoveRun::trashesNoCopyThatIsItsOriginalByNow()
{
    m_disk->addFolder(QStringLiteral("/new"));
    QCOMPARE(carriedOut({item(Operation::Copy, "folder/in", "/new/in")}), QStringList(QStringLiteral("OK")));
    const UndoPlan before = planUndo(*m_disk, *m_shelf, m_run);
    m_disk->followsLinks = true;
    // The old folder becomes a link to the new one: both paths lead to one picture.
    m_disk->drop(at("folder"));
    m_disk->addLink(at("folder"), QStringLiteral("/new"));
    const UndoPlan undo = planUndo(*m_disk, *m_shelf, m_run);
    QCOMPARE(undo.problems.at(0).why, MoveProblem::Original);
    QVERIFY(undo.form.items.empty());
    QCOMPARE(carriedOut(before.form.items), QStringList(QStringLiteral("original")));
    QCOMPARE(m_disk->bytes(QStringLiteral("/new/in")), QByteArray("folder/in"));
}

void TestMoveRun::keepsTheCopyOfASourceThatHasVanished()
{
    int last = 0;
    for (int vanishes = 1;; ++vanishes) {
        init();
        int changes = 0;
        m_disk->trouble = [&]() -> std::error_code {
            if (++changes == vanishes && m_disk->look(at("a")))
                m_disk->drop(at("a"));
            return {};
        };
        const QString answer = carriedOut({move("a", "/other/a")}).first();
        m_disk->trouble = nullptr;
        recoverMoves(*m_disk, *m_shelf);
        const bool isThere = m_disk->bytes(QStringLiteral("/other/a")) == "a";
        // Only a source that vanished before a byte of it was copied is gone.
        QVERIFY2(isThere || (vanishes == 1 && answer == QStringLiteral("gone")), qPrintable(answer));
        QCOMPARE(answer == QStringLiteral("OK"), isThere);
        last = vanishes;
        if (changes < vanishes)
            break;
    }
    QVERIFY(last > 3);
}

void TestMoveRun::keepsWhatIsSavedAtTheLastMoment_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("a file to another disk") << QStringLiteral("a") << QStringLiteral("/other/a");
    QTest::newRow("a folder to another disk") << QStringLiteral("folder") << QStringLiteral("/other/folder");
    QTest::newRow("an undo of a copy") << QString() << QString();
}

/** Another program saves into the item, at every change to the disk that the run makes. */
void TestMoveRun::keepsWhatIsSavedAtTheLastMoment()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    for (int saved = 1, changes = 1; saved <= changes; ++saved) {
        init();
        std::vector<MoveItem> items = {item(Operation::Move, qPrintable(from), qPrintable(to))};
        QString path = at(from == QStringLiteral("folder") ? "folder/in" : "a");
        if (from.isEmpty()) {
            QCOMPARE(carriedOut({item(Operation::Copy, "a", "x")}), QStringList(QStringLiteral("OK")));
            items = planUndo(*m_disk, *m_shelf, m_run).form.items;
            path = at("x");
        }
        changes = 0;
        bool isSaved = false;
        m_disk->trouble = [&]() -> std::error_code {
            if (++changes == saved && m_disk->look(path)) {
                m_disk->change(path, "worked on");
                isSaved = true;
            }
            return {};
        };
        (void)carriedOut(items);
        m_disk->trouble = nullptr;
        const bool isThere = m_disk->allBytes().contains("worked on");
        QVERIFY2(isThere || !isSaved, qPrintable(QString::number(saved)));
        for (const QString &name : names())
            QVERIFY2(!name.contains(QStringLiteral(".quorlin")), qPrintable(name));
    }
}

void TestMoveRun::leavesNothingOfAFolderThatCannotLeave()
{
    m_disk->addFile(at("folder/inner/deep"), "deep");
    m_disk->lock(at("folder/inner"));
    const auto before = m_disk->everything();
    QCOMPARE(carriedOut({move("folder", "/other/folder")}), QStringList(QStringLiteral("locked")));
    QVERIFY(m_disk->everything() == before);
    // The copy of it can be taken away, though.
    m_disk->roomOnOther = 5;
    QCOMPARE(carriedOut({item(Operation::Copy, "folder", "/other/folder")}), QStringList(QStringLiteral("full")));
    QVERIFY(m_disk->everything() == before);
}

void TestMoveRun::saysWhatADiskCannotHold()
{
    m_disk->otherIsFat = true;
    m_disk->addLink(at("folder/link"), QStringLiteral("in"));
    const auto before = m_disk->everything();
    QCOMPARE(carriedOut({move("a", "/other/12:30.jpg")}), QStringList(QStringLiteral("illegal")));
    QCOMPARE(carriedOut({move("folder", "/other/folder")}), QStringList(QStringLiteral("locked")));
    m_disk->roomOnOther = 0;
    for (const std::error_code &error :
         {std::make_error_code(std::errc::no_space_on_device), std::error_code(EDQUOT, std::generic_category())}) {
        m_disk->noRoom = error;
        QCOMPARE(carriedOut({move("a", "/other/a")}), QStringList(QStringLiteral("full")));
    }
    QVERIFY(m_disk->everything() == before);
    m_disk->roomOnOther = -1;
    QCOMPARE(carriedOut({move("a", "/other/a"), move("folder", "folder/b/c")}),
             QStringList({QStringLiteral("OK"), QStringLiteral("inside")}));
    const UndoPlan undo = planUndo(*m_disk, *m_shelf, m_run);
    QVERIFY(undo.problems.empty());
    QCOMPARE(carriedOut(undo.form.items), QStringList(QStringLiteral("OK")));
    QCOMPARE(m_disk->bytes(at("a")), QByteArray("a"));
}

void TestMoveRun::triesAgainWhatFoundNoRoom()
{
    MoveOrderForm form;
    form.items = {item(Operation::Copy, "a", "/other/a"), item(Operation::Copy, "b", "/other/b", 0),
                  item(Operation::Copy, "c", "/other/c")};
    const auto run = MoveRun::begin(*m_disk, *m_shelf, form);
    QVERIFY(run && !(*run)->again());
    m_disk->roomOnOther = 0;
    for (int i = 0; i < 3; ++i) {
        const auto full = (*run)->next();
        QVERIFY(full && full->index == 0 && full->why == MoveProblem::Full);
        QVERIFY((*run)->again());
        QVERIFY(!(*run)->again()); // it waits by now
        QCOMPARE(readRecord(*m_shelf->read((*run)->id())).items[0].stand, Stand::Waiting);
    }
    m_disk->roomOnOther = -1;
    for (int i = 0; i < 3; ++i)
        QCOMPARE((*run)->next()->stand, Stand::Done); // what goes with it goes too
    QVERIFY(!(*run)->next() && (*run)->end());
    QCOMPARE(m_disk->bytes(QStringLiteral("/other/a")), QByteArray("a"));
    const RunRecord record = readRecord(*m_shelf->read((*run)->id()));
    QCOMPARE(record.doneAtEnd, 3);
    QVERIFY(record.isWhole && !record.isDamaged && record.items[0].stand == Stand::Done);
}

void TestMoveRun::triesNothingElseAgain()
{
    MoveOrderForm form;
    form.items = {move("a", "x"), move("b", "c"), move("c", "b")};
    const auto run = MoveRun::begin(*m_disk, *m_shelf, form);
    m_disk->addFile(at("x"), "x");
    QVERIFY(run);
    while (const auto result = (*run)->next())
        QVERIFY(!(*run)->again());
    QVERIFY((*run)->end());
}

void TestMoveRun::settlesEveryNewFolderOnTheWayToAnotherDisk()
{
    QCOMPARE(carriedOut({move("a", "/other/new/er/est/a")}), QStringList(QStringLiteral("OK")));
    for (const char *folder : {"/other", "/other/new", "/other/new/er", "/other/new/er/est"})
        QVERIFY2(m_disk->settled.contains(QString::fromLatin1(folder)), folder);
}

/** Lines that could not be written on a full disk come later, and without them the run does not end. */
void TestMoveRun::endsNoRunWhoseJournalLacksALine()
{
    for (const bool isFreedInTime : {true, false}) {
        init();
        bool isFull = false;
        class SmallShelf : public ModelShelf
        {
        public:
            bool *isFull = nullptr;
            platform::Result<void> append(const QString &name, const QByteArray &lines, Lasting lasting) override
            {
                if (*isFull)
                    return platform::failure(platform::ErrorCode::WriteFailed, QStringLiteral("full"));
                return ModelShelf::append(name, lines, lasting);
            }
        };
        auto shelf = std::make_unique<SmallShelf>();
        shelf->isFull = &isFull;
        m_shelf = std::move(shelf);
        const auto before = m_disk->everything();
        MoveOrderForm form;
        form.items = {move("a", "x"), move("b", "y"), move("c", "z")};
        const auto run = std::move(*MoveRun::begin(*m_disk, *m_shelf, form));
        for (int i = 0; i < 3; ++i) {
            isFull = isFreedInTime ? i == 1 : i >= 1;
            QCOMPARE(run->next()->stand, Stand::Done);
        }
        QCOMPARE(run->end().has_value(), isFreedInTime);
        isFull = false;
        QCOMPARE(recoverMoves(*m_disk, *m_shelf).size(), size_t(isFreedInTime ? 0 : 1));
        const UndoPlan undo = planUndo(*m_disk, *m_shelf, run->id());
        QCOMPARE(carriedOut(undo.form.items).count(QStringLiteral("OK")), 3);
        QVERIFY(m_disk->everything() == before);
    }
}

/** A disk that can only keep a name with an empty file: that is not left by a kill, and what others put there stays. */
void TestMoveRun::keepsNoPlaceholderAndNoPlaceOfOthers()
{
    for (const bool isKilled : {true, false})
        for (int change = 0; change < 12; ++change) {
            init();
            m_disk->canReplace = true;
            Fuse fuse;
            bool isMade = false;
            int changes = 0;
            if (isKilled) {
                m_disk->fuse = m_shelf->fuse = &fuse;
                fuse.light(change);
            } else {
                m_disk->trouble = [&]() -> std::error_code {
                    if (changes++ == change && !m_disk->look(at("x"))) {
                        m_disk->addFile(at("x"), "foreign");
                        isMade = true;
                    } else if (changes == change + 1 && m_disk->bytes(at("x")).isEmpty()) {
                        m_disk->change(at("x"), "foreign");
                        isMade = true;
                    }
                    return {};
                };
            }
            try {
                (void)carriedOut({move("a", "x"), move("b", "y")});
            } catch (const Killed &) {
            }
            fuse.putOut();
            m_disk->trouble = nullptr;
            m_shelf->held.clear();
            recoverMoves(*m_disk, *m_shelf);
            const QList<QByteArray> contents = m_disk->allBytes();
            QVERIFY(contents.contains("a") && contents.contains("b") && (!isMade || contents.contains("foreign")));
            QVERIFY2(!contents.contains(QByteArray()), qPrintable(names().join(u' ')));
            QCOMPARE(contents.size(), int(isMade) + 4);
        }
}

void TestMoveRun::knowsWhatIsInTheTrashAfterAKill_data()
{
    QTest::addColumn<bool>("isApart");
    QTest::newRow("renamed into it") << false;
    QTest::newRow("copied into it") << true;
}

void TestMoveRun::knowsWhatIsInTheTrashAfterAKill()
{
    QFETCH(bool, isApart);
    int kills = 0;
    for (int count = 0; count < 30; ++count) {
        init();
        Fuse fuse;
        m_disk->isTrashApart = isApart;
        m_disk->fuse = m_shelf->fuse = &fuse;
        fuse.light(count);
        bool isKilled = false;
        try {
            (void)carriedOut({item(Operation::Trash, "a", ""), item(Operation::Trash, "folder", "")});
        } catch (const Killed &) {
            isKilled = true;
        }
        kills += isKilled;
        fuse.putOut();
        m_shelf->held.clear();
        for (const RecoveredRun &run : recoverMoves(*m_disk, *m_shelf))
            QVERIFY2(run.problems.isEmpty(), qPrintable(run.problems.join(u' ')));
        if (m_shelf->journals.empty())
            continue;
        const UndoPlan undo = planUndo(*m_disk, *m_shelf, m_shelf->names().first());
        QVERIFY(undo.problems.empty());
        (void)carriedOut(undo.form.items);
        QCOMPARE(m_disk->bytes(QStringLiteral("/d/a")), QByteArray("a"));
        QCOMPARE(m_disk->bytes(QStringLiteral("/d/folder/in")), QByteArray("folder/in"));
    }
    QVERIFY(kills > 4 && kills < 30);
}

void TestMoveRun::leavesRunsOfOthersAlone()
{
    MoveOrderForm form;
    form.items = {move("a", "x"), move("b", "y")};
    const auto run = std::move(*MoveRun::begin(*m_disk, *m_shelf, form));
    run->next();
    m_shelf->held.clear();
    m_shelf->heldByOthers.insert(run->id());
    QVERIFY(recoverMoves(*m_disk, *m_shelf).empty());
    m_shelf->heldByOthers.clear();
    const auto recovered = recoverMoves(*m_disk, *m_shelf);
    QCOMPARE(int(recovered.size()), 1);
    QCOMPARE(recovered[0].done, 1);
    QCOMPARE(recovered[0].left, 1);
    QVERIFY(recoverMoves(*m_disk, *m_shelf).empty());
}

void TestMoveRun::keepsTheJournalsOfTheLastTwoHundredRuns()
{
    for (int i = 0; i < 215; ++i)
        QCOMPARE(carriedOut({i % 2 ? move("x", "a") : move("a", "x")}), QStringList(QStringLiteral("OK")));
    QCOMPARE(m_shelf->names().size(), 200);
}

void TestMoveRun::readsAJournalThatWasCutShort()
{
    QCOMPARE(carriedOut({move("a", "x"), move("b", "y")}).count(QStringLiteral("OK")), 2);
    const QByteArray whole = m_shelf->read(m_run).value();
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const RunRecord record = readRecord(whole.left(size) + "garbage {\n\n[1]\n{\"done\":99}\n");
        QVERIFY(record.items.size() <= 2);
    }
}

QUORLIN_TEST(TestMoveRun)
#include "tst_move_run.moc"
