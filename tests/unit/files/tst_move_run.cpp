#include "files/move_recovery.h"
#include "files/move_undo.h"
#include "tests/support/model_file_system.h"

#include <QTest>

using namespace files;

namespace {

QString at(const char *name)
{
    return QStringLiteral("/d/") + QString::fromUtf8(name);
}

MoveItem item(Deed deed, const char *from, const char *to, int leader = -1)
{
    MoveItem made = {deed, at(from), QString::fromUtf8(to).startsWith(u'/') ? QString::fromUtf8(to) : at(to)};
    made.leader = leader;
    return made;
}

MoveItem move(const char *from, const char *to, int leader = -1)
{
    return item(Deed::Move, from, to, leader);
}

} // namespace

/** A run, its journal, and what becomes of items when something goes wrong. */
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
    QString problem;
    MoveOrderForm form;
    form.title = QStringLiteral("Test");
    form.items = items;
    const auto run = MoveRun::begin(*m_disk, *m_shelf, form, &problem);
    if (!run)
        return {problem};
    m_run = run->id();
    if (m_afterBegin)
        m_afterBegin();
    QStringList answers(qsizetype(items.size()), QString());
    while (const auto result = run->next())
        answers[result->index] = result->stand == Stand::Done ? QStringLiteral("OK") : result->code;
    run->end();
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
        QString make(const QString &, const QByteArray &) override { return QStringLiteral("full"); }
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
    QCOMPARE(carriedOut({item(Deed::Copy, "a", "x"), item(Deed::Copy, "b", "y"), item(Deed::Copy, "c", "z")})
                 .count(QStringLiteral("OK")),
             3);
    m_disk->change(at("x"), "worked on");
    m_disk->drop(at("b"));
    const UndoPlan undo = planUndo(*m_disk, *m_shelf, m_run);
    QCOMPARE(carriedOut(undo.form.items).count(QStringLiteral("OK")), 3);
    QVERIFY(!m_disk->look(at("x")) && !m_disk->look(at("y")) && !m_disk->look(at("z")));
    QCOMPARE(m_disk->trashedCount(), 2);
}

void TestMoveRun::leavesRunsOfOthersAlone()
{
    MoveOrderForm form;
    form.items = {move("a", "x"), move("b", "y")};
    QString problem;
    const auto run = MoveRun::begin(*m_disk, *m_shelf, form, &problem);
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

QTEST_GUILESS_MAIN(TestMoveRun)
#include "tst_move_run.moc"
