#include "files/services/move_service.h"

#include "files/services/move_words.h"
#include "tests/support/model_shelf.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace files;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QVariantMap item(const char *from, const char *to, const char *kind = "move")
{
    return {{text("kind"), text(kind)}, {text("from"), text(from)}, {text("to"), text(to)}};
}

QVariantMap run(const QVariantList &items)
{
    return {{text("title"), text("Rename")}, {text("items"), items}};
}

/** The answers of an operation by one of their names. */
QStringList each(const QVariantList &answers, const char *name)
{
    QStringList all;
    for (const QVariant &answer : answers)
        all.append(answer.toMap().value(text(name)).toString());
    return all;
}

QString field(const QVariant &answer, const char *name)
{
    return answer.toMap().value(text(name)).toString();
}

} // namespace

/** Plans and runs as scripts have them, on a disk in memory. */
class TestMoveService : public QObject
{
    Q_OBJECT

    ModelFileSystem *m_disk = nullptr;
    ModelShelf *m_shelf = nullptr;
    std::unique_ptr<MoveService> m_service;

    QString begun(const QVariantMap &wanted) { return field(m_service->begin(wanted), "run"); }
    QStringList drive(const QString &id)
    {
        QStringList all;
        for (QVariant step = m_service->next(id); !step.isNull(); step = m_service->next(id))
            all.append(field(step, "status") + field(step, "code"));
        return all;
    }

private Q_SLOTS:
    void init();
    void plansWithoutTouchingAnything();
    void plansTheSameInSlices();
    void carriesOutItemByItem();
    void saysWhyAnItemFailed();
    void addsItemsAndTakesThemBack();
    void opensAnInterruptedRunAgain();
    void opensNoOtherRunAgain();
    void refusesWhatThePlanRefuses();
    void undoesARun();
    void saysWhyARunCannotBeUndone();
    void endsWhatWasInterrupted();
    void tellsOfARunThatIsNotOpen();
    void beginsNothingWithoutAJournal();
    void refusesWhatIsNotMeant_data();
    void refusesWhatIsNotMeant();
    void takesNothingOfAListWithOneMistake();
    void knowsItsWords();
};

void TestMoveService::init()
{
    auto disk = std::make_unique<ModelFileSystem>();
    auto shelf = std::make_unique<ModelShelf>();
    m_disk = disk.get();
    m_shelf = shelf.get();
    m_service = std::make_unique<MoveService>(std::move(disk), std::move(shelf));
    m_disk->addFolder(text("/d"));
    for (const char *name : {"/d/a", "/d/b", "/d/c"})
        m_disk->addFile(text(name), name);
}

void TestMoveService::plansWithoutTouchingAnything()
{
    const auto before = m_disk->everything();
    QVariantMap numbered = item("/d/c", "/d/b", "copy");
    numbered.insert(text("number"), true);
    const QVariantList plan = m_service->plan(
        {item("/d/a", "/d/b"), item("/d/b", "/d/x"), item("/d/c", "/d/x"), item("/d/c", "/d/c"), numbered});
    QCOMPARE(each(plan, "status"),
             QStringList({text("ready"), text("ready"), text("refused"), text("same"), text("ready")}));
    QCOMPARE(each(plan, "code"), QStringList({text("aside"), text(""), text("twice"), text(""), text("numbered")}));
    QCOMPARE(field(plan.value(4), "to"), text("/d/b (2)"));
    QCOMPARE(m_disk->everything(), before);
}

void TestMoveService::plansTheSameInSlices()
{
    const QVariantList wishes = {item("/d/a", "/d/b"), item("/d/b", "/d/x"), item("/d/c", "/d/x")};
    const QVariantList whole = m_service->plan(wishes);
    const QString plan = m_service->beginPlan();
    m_service->addWishes(plan, wishes.mid(0, 1));
    m_service->addWishes(plan, wishes.mid(1));
    QVERIFY(m_service->planned(plan, 0, 9).isEmpty());
    while (!m_service->workOut(plan, 0)) {
    }
    const QVariantList parts = m_service->planned(plan, 0, 2) + m_service->planned(plan, 2, 9);
    QCOMPARE(parts.size(), whole.size());
    QCOMPARE(parts[0], whole[0]);
    QVERIFY(parts[1].isNull()); // ready, without a code, under the name that was asked for
    QCOMPARE(parts[2], whole[2]);
    m_service->addWishes(plan, wishes); // too late
    QCOMPARE(m_service->planned(plan, 0, 9).size(), 3);
    m_service->dropPlan(plan);
    QVERIFY(m_service->planned(plan, 0, 9).isEmpty() && m_service->workOut(plan, 1));
}

void TestMoveService::carriesOutItemByItem()
{
    const QString id = begun(run({item("/d/a", "/d/b"), item("/d/b", "/d/a"), item("/d/c", "/d/new/c", "copy")}));
    QCOMPARE(drive(id), QStringList({text("OK"), text("OK"), text("OK")}));
    QCOMPARE(m_service->end(id), QString());
    QCOMPARE(m_disk->bytes(text("/d/a")), QByteArray("/d/b"));
    QCOMPARE(m_disk->bytes(text("/d/b")), QByteArray("/d/a"));
    QCOMPARE(m_disk->bytes(text("/d/new/c")), QByteArray("/d/c"));
    QCOMPARE(each(m_service->runs(), "state"), QStringList{text("done")});
}

void TestMoveService::saysWhyAnItemFailed()
{
    const QString id = begun(run({item("/d/missing", "/d/x"), item("/d/a", "/d/b"), item("/d/c", "/d/c")}));
    const QVariant first = m_service->next(id);
    QCOMPARE(field(first, "index"), text("0"));
    QCOMPARE(field(first, "status") + field(first, "code"), text("Failedgone"));
    QCOMPARE(field(first, "message"), text("missing no longer exists"));
    QCOMPARE(drive(id), QStringList({text("Failedtaken"), text("Skippedsame")}));
}

void TestMoveService::addsItemsAndTakesThemBack()
{
    const QString id = field(m_service->open(text("Sort")), "run");
    const auto before = m_disk->everything();
    QCOMPARE(field(m_service->add(id, item("/d/a", "/d/in/a")), "path"), text("/d/in/a"));
    QVariantMap numbered = item("/d/b", "/d/in/a", "copy");
    numbered.insert(text("number"), true);
    QCOMPARE(field(m_service->add(id, numbered), "path"), text("/d/in/a (2)"));
    QCOMPARE(field(m_service->add(id, item("/d/c", "/d/in/c", "link")), "status"), text("OK"));
    QCOMPARE(field(m_service->add(id, item("/d/c", "", "trash")), "status"), text("OK"));
    QStringList kinds;
    for (QVariant back = m_service->takeBack(id); !back.isNull(); back = m_service->takeBack(id))
        kinds.append(field(back, "kind") + field(back, "status"));
    QCOMPARE(kinds, QStringList({text("trashOK"), text("linkOK"), text("copyOK"), text("moveOK")}));
    QCOMPARE(m_service->end(id), QString());
    QCOMPARE(m_disk->everything(), before);
}

void TestMoveService::opensAnInterruptedRunAgain()
{
    const auto before = m_disk->everything();
    const QString id = field(m_service->open(text("Resize")), "run");
    m_service->add(id, item("/d/a", "", "trash"));
    m_service->add(id, item("/d/c", "/d/a", "copy"));
    m_service->add(id, item("/d/b", "", "trash"));
    m_shelf->held.clear(); // the process ends
    m_service->recover();
    const QVariantMap again = m_service->reopen(id);
    QCOMPARE(field(again, "run"), id);
    QCOMPARE(each(again.value(text("done")).toList(), "kind"),
             QStringList({text("trash"), text("copy"), text("trash")}));
    QCOMPARE(field(m_service->takeBack(id), "status"), text("OK"));
    QCOMPARE(m_disk->bytes(text("/d/b")), QByteArray("/d/b"));
    QVERIFY(m_service->end(id).isEmpty());
    // Both parts are one run, which is gone on with as often as needed.
    QCOMPARE(field(m_service->reopen(id), "run"), id);
    m_service->add(id, item("/d/b", "/d/in/b", "move"));
    m_shelf->held.clear();
    QCOMPARE(each(m_service->recover(), "id"), QStringList{id});
    QCOMPARE(each(m_service->runs(), "done"), QStringList{text("3")});
    const QString back = field(m_service->undo(id), "run");
    drive(back);
    QVERIFY(m_service->end(back).isEmpty());
    QCOMPARE(m_disk->everything(), before);
    QCOMPARE(field(m_service->reopen(id), "problem"), text("This run has already been undone"));
}

void TestMoveService::opensNoOtherRunAgain()
{
    const QString planned = begun(run({item("/d/a", "/d/x")}));
    QVERIFY(m_service->reopen(planned).contains(text("problem"))); // it is open
    drive(planned);
    m_service->end(planned);
    QVERIFY(m_service->reopen(planned).contains(text("problem"))); // its items are known from the beginning
    QVERIFY(m_service->reopen(text("none")).contains(text("problem")));
    const QString id = field(m_service->open(text("Sort")), "run");
    QVERIFY(m_service->reopen(id).contains(text("problem")));
    QCOMPARE(field(m_service->add(id, item("/d/b", "/d/y")), "status"), text("OK"));
}

void TestMoveService::refusesWhatThePlanRefuses()
{
    const QString id = field(m_service->open(text("Sort")), "run");
    const QVariantMap answer = m_service->add(id, item("/d/a", "/d/b"));
    QCOMPARE(field(answer, "status") + field(answer, "code"), text("Failedtaken"));
    QCOMPARE(field(answer, "message"), text("The name b is already in use"));
    QCOMPARE(field(answer, "path"), text("/d/a"));
    QVERIFY(m_service->takeBack(id).isNull());
}

void TestMoveService::undoesARun()
{
    const auto before = m_disk->everything();
    const QString id = begun(run({item("/d/a", "/d/b"), item("/d/b", "/d/a"), item("/d/c", "/d/c2", "copy")}));
    drive(id);
    m_service->end(id);
    QCOMPARE(m_service->undoable(id),
             (QVariantMap{{text("can"), true}, {text("count"), 3}, {text("reason"), QString()}}));
    const QVariantMap back = m_service->undo(id);
    QCOMPARE(back.value(text("items")).toList().size(), 3);
    QVERIFY(each(back.value(text("items")).toList(), "kind").contains(text("remove")));
    drive(field(back, "run"));
    QCOMPARE(m_service->end(field(back, "run")), QString());
    QCOMPARE(m_disk->everything(), before);
    QStringList undone = each(m_service->runs(), "undoes");
    undone.sort(); // both may have begun in one millisecond
    QCOMPARE(undone, QStringList({text(""), id}));
    QCOMPARE(field(m_service->undo(id), "problem"), text("This run has already been undone"));
}

void TestMoveService::saysWhyARunCannotBeUndone()
{
    const QString id = begun(run({item("/d/a", "/d/x")}));
    drive(id);
    m_service->end(id);
    m_disk->drop(text("/d/x"));
    const QVariantMap back = m_service->undo(id);
    QVERIFY(!back.contains(text("run")) && !back.contains(text("items")));
    QCOMPARE(field(back, "problem"), text("Nothing in this run can be undone any more"));
    QCOMPARE(each(back.value(text("problems")).toList(), "code"), QStringList{text("gone")});
}

void TestMoveService::endsWhatWasInterrupted()
{
    const QString id = begun(run({item("/d/a", "/d/x"), item("/d/b", "/d/y")}));
    m_service->next(id);
    m_shelf->held.clear(); // the process ends
    const QVariantList recovered = m_service->recover();
    QCOMPARE(each(recovered, "title"), QStringList{text("Rename")});
    QCOMPARE(field(recovered.value(0), "done") + field(recovered.value(0), "left"), text("11"));
    QCOMPARE(each(m_service->runs(), "state"), QStringList{text("recovered")});
    QVERIFY(m_service->recover().isEmpty());
}

void TestMoveService::tellsOfARunThatIsNotOpen()
{
    QCOMPARE(m_service->end(text("none")), text("This run is not open"));
    QVERIFY(m_service->next(text("none")).isNull() && m_service->takeBack(text("none")).isNull());
    QCOMPARE(field(m_service->add(text("none"), item("/d/a", "/d/x")), "code"), text("other"));
    QVERIFY(m_disk->look(text("/d/a")).has_value());
}

void TestMoveService::beginsNothingWithoutAJournal()
{
    class NoShelf : public ModelShelf
    {
        platform::Result<void> make(const QString &, const QByteArray &) override
        {
            return platform::failure(platform::ErrorCode::WriteFailed, QStringLiteral("no room"));
        }
    };
    MoveService service(std::make_unique<ModelFileSystem>(), std::make_unique<NoShelf>());
    QCOMPARE(field(service.begin(run({item("/d/a", "/d/x")})), "problem"), text("no room"));
    QCOMPARE(field(service.open(text("Sort")), "problem"), text("no room"));
}

void TestMoveService::refusesWhatIsNotMeant_data()
{
    QTest::addColumn<QVariant>("wish");
    QTest::addColumn<QString>("error");
    const auto with = [](const char *name, const QVariant &value) {
        QVariantMap wish = item("/d/a", "/d/x");
        wish.insert(text(name), value);
        return QVariant(wish);
    };
    QTest::newRow("kind") << with("kind", text("kopy"))
                          << text("Expected \"move\", \"copy\" or \"link\" for wishes[0].kind but received \"kopy\"");
    QTest::newRow("empty kind") << with("kind", text(""))
                                << text("Expected \"move\", \"copy\" or \"link\" for wishes[0].kind but received \"\"");
    QTest::newRow("trash") << with("kind", text("trash"))
                           << text("Expected \"move\", \"copy\" or \"link\" for wishes[0].kind but received \"trash\"");
    QTest::newRow("truth") << with("number", text("false"))
                           << text("Expected true or false for wishes[0].number but received \"false\"");
    QTest::newRow("leader") << with("leader", 0.5)
                            << text("Expected a whole number for wishes[0].leader but received 0.5");
    QTest::newRow("path") << with("from", QVariantList())
                          << text("Expected text for wishes[0].from but received a list");
    QTest::newRow("wish") << QVariant(3) << text("Expected a dictionary for wishes[0] but received 3");
}

void TestMoveService::refusesWhatIsNotMeant()
{
    QFETCH(QVariant, wish);
    QFETCH(QString, error);
    const auto before = m_disk->everything();
    QCOMPARE(raisedBy([&] { m_service->plan({wish}); }), text("TypeError: ") + error);
    const QString plan = m_service->beginPlan();
    QCOMPARE(raisedBy([&] { m_service->addWishes(plan, {wish}); }), text("TypeError: ") + error);
    QCOMPARE(m_disk->everything(), before);
}

void TestMoveService::takesNothingOfAListWithOneMistake()
{
    const QVariantList items = {item("/d/a", "/d/x"), item("/d/b", "/d/y", "kopy")};
    const QString inRun = text(
        "TypeError: Expected \"move\", \"copy\", \"link\" or \"trash\" for run.items[1].kind but received \"kopy\"");
    QCOMPARE(raisedBy([&] { m_service->begin(run(items)); }), inRun);
    QVERIFY(m_shelf->journals.empty());
    QCOMPARE(raisedBy([&] {
                 m_service->begin({{text("items"), text("all")}});
             }),
             text("TypeError: Expected a list for run.items but received \"all\""));
    const QString plan = m_service->beginPlan();
    QVERIFY(raisedBy([&] { m_service->addWishes(plan, items); }) != text("nothing"));
    QVERIFY(m_service->workOut(plan, 1) && m_service->planned(plan, 0, 9).isEmpty());
    const QString id = field(m_service->open(text("Sort")), "run");
    QVERIFY(raisedBy([&] { m_service->add(id, items[1].toMap()); }).contains(text("for item.kind")));
    QVERIFY(m_disk->look(text("/d/b")).has_value());
}

void TestMoveService::knowsItsWords()
{
    QCOMPARE(moveKind(u"copy"), std::optional(MoveKind::Copy));
    QCOMPARE(moveKind(u"trash"), std::nullopt);
    QCOMPARE(moveKind(u"Move"), std::nullopt);
    for (const char *word : {"move", "copy", "link", "trash"})
        QCOMPARE(wordOf(*wantedOperation(text(word))), text(word));
    QCOMPARE(wantedOperation(u"remove"), std::nullopt);
    QCOMPARE(wordOf(Operation::Restore), text("move"));
    QCOMPARE(wordOf(Operation::RemoveCopy), text("remove"));
    QCOMPARE(wordOf(PlanStatus::Same), text("same"));
    QCOMPARE(statusWord(Stand::Skipped), text("Skipped"));
    QCOMPARE(statusWord(Stand::Aside), text("Failed"));
}

QUORLIN_TEST(TestMoveService)
#include "tst_move_service.moc"
