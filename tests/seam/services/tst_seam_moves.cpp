#include "tests/seam/support/ScriptRun.h"

#include "app/modules/file_modules.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QTest>

/** What scripts get from the module "quorlin/moves". */
class TestSeamMoves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void plansWithoutTouchingAnything();
    void plansTheSameInSlices();
    void carriesOutARunItemByItem();
    void beginsTheSameInSlices();
    void undoesTheSameInSlices();
    void endsBeforeTheLastItem();
    void addsItemsOneByOne();
    void saysWhyNothingCanBeDone();
    void takesBackTheLastItem();
    void undoesARunAndTheUndoing();
    void saysWhatCannotBeUndone();
    void endsWhatWasInterrupted();

private:
    QString answer(const QString &body);
    QByteArray read(const char *name) const
    {
        QFile file(m_run->pathOf(QString::fromLatin1(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    std::unique_ptr<ScriptRun> m_run;
    int m_count = 0;
};

void TestSeamMoves::init()
{
    m_run = std::make_unique<ScriptRun>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_run->pathOf(QStringLiteral("data"))));
    script::addFileModules(m_run->engine());
    for (const char *name : {"a.jpg", "b.jpg", "c.jpg"})
        m_run->write(QString::fromLatin1(name), QString::fromLatin1(name));
}

/** What the script reports, with its folder as "D". */
QString TestSeamMoves::answer(const QString &body)
{
    const QString prologue =
        QStringLiteral("import { moves } from 'quorlin/moves'; import { report } from 'test';"
                       "const d = '%1'; const move = (from, to) => ({ kind: 'move', from: d + from, to: d + to });\n");
    const QString folder = m_run->pathOf(QString()) + u'/';
    if (!m_run->runFile(QStringLiteral("moves%1.js").arg(++m_count), prologue.arg(folder) + body))
        return m_run->error;
    return m_run->reports.join(u'\n').replace(folder, QStringLiteral("D/"));
}

void TestSeamMoves::plansWithoutTouchingAnything()
{
    QCOMPARE(
        answer(
            QStringLiteral("report(moves.plan([move('a.jpg', 'b.jpg'), move('b.jpg', 'x.jpg'), move('c.jpg', 'x.jpg'),"
                           " Object.assign(move('c.jpg', 'b.jpg'), { kind: 'copy', number: true })])"
                           ".map(x => [x.status, x.code, x.other, x.to]));")),
        QStringLiteral(
            "[[\"ready\",\"aside\",\"D/b.jpg\",\"D/b.jpg\"],[\"ready\",\"\",\"\",\"D/x.jpg\"],"
            "[\"refused\",\"twice\",\"D/b.jpg\",\"D/x.jpg\"],[\"ready\",\"numbered\",\"D/b.jpg\",\"D/b (2).jpg\"]]"));
    QCOMPARE(read("a.jpg"), QByteArray("a.jpg"));
    QCOMPARE(read("x.jpg"), QByteArray("nothing"));
}

void TestSeamMoves::plansTheSameInSlices()
{
    QCOMPARE(
        answer(QStringLiteral(
            "const wishes = [move('a.jpg', 'b.jpg'), move('b.jpg', 'x.jpg'), Object.assign(move('c.jpg', 'y.jpg'),"
            " { leader: 0 }), move('c.jpg', 'x.jpg')];"
            "const at = moves.beginPlan(); moves.addWishes(at, wishes.slice(0, 2)); moves.addWishes(at, "
            "wishes.slice(2));"
            "while (!moves.workOut(at, 0)) {}"
            "const whole = moves.plan(wishes); const parts = moves.planned(at, 0, 3).concat(moves.planned(at, 3, 9));"
            "report(whole.map((item, i) => parts[i] === null ? [item.status + item.code, item.to === wishes[i].to]"
            " : JSON.stringify(item) === JSON.stringify(parts[i])));"
            "moves.dropPlan(at); report([moves.planned(at, 0, 4), moves.workOut(at, 1), moves.workOut('none', 1)]);")),
        QStringLiteral("[true,[\"ready\",true],[\"ready\",true],true]\n[[],true,true]"));
}

void TestSeamMoves::carriesOutARunItemByItem()
{
    QCOMPARE(answer(QStringLiteral(
                 "const { run } = moves.begin({ title: 'Rename', items: [move('a.jpg', 'b.jpg'), move('b.jpg', "
                 "'a.jpg')] });"
                 "const first = moves.next(run); const second = moves.next(run);"
                 "report([first.index + second.index, first.status, second.status, moves.next(run), moves.end(run)]);"
                 "report([first, second].map(x => x.path).sort());")),
             QStringLiteral("[1,\"OK\",\"OK\",null,\"\"]\n[\"D/a.jpg\",\"D/b.jpg\"]"));
    QCOMPARE(read("a.jpg"), QByteArray("b.jpg"));
    QCOMPARE(read("b.jpg"), QByteArray("a.jpg"));
}

void TestSeamMoves::beginsTheSameInSlices()
{
    QCOMPARE(answer(QStringLiteral(
                 "const order = moves.beginOrder('Rename'); moves.addItems(order, [move('a.jpg', 'b.jpg')]);"
                 "moves.addItems(order, [move('b.jpg', 'x.jpg')]); while (!moves.prepare(order, 0)) {}"
                 "report(moves.runs()[0].state); const { run } = moves.carryOut(order);"
                 "report([moves.next(run).index, moves.next(run).index, moves.next(run), moves.end(run)]);"
                 "report(moves.carryOut(order).problem);"
                 "const other = moves.beginOrder('Rename'); moves.addItems(other, [move('x.jpg', 'y.jpg')]);"
                 "while (!moves.prepare(other, 0)) {} moves.dropOrder(other); report(moves.runs().length);")),
             QStringLiteral("\"open\"\n[1,0,null,\"\"]\n\"This run is not open\"\n1"));
    QCOMPARE(read("b.jpg"), QByteArray("a.jpg"));
    QCOMPARE(read("x.jpg"), QByteArray("b.jpg"));
}

void TestSeamMoves::undoesTheSameInSlices()
{
    QCOMPARE(answer(QStringLiteral(
                 "const { run } = moves.begin({ title: 'Rename', items: [move('a.jpg', 'x.jpg'), move('b.jpg', "
                 "'y.jpg')] });"
                 "moves.next(run); moves.next(run); moves.end(run);"
                 "const order = moves.beginUndo(run); while (!moves.prepare(order, 0)) {}"
                 "const undo = moves.carryOut(order); report([undo.count, undo.problems.length]);"
                 "report(moves.itemsOf(undo.run, 1, 9).map((item) => [item.kind, item.from.slice(-5)]));"
                 "moves.next(undo.run); moves.next(undo.run); report(moves.end(undo.run));"
                 "const again = moves.beginUndo(run); report(moves.prepare(again, 1000));"
                 "report(moves.carryOut(again).problem); report(moves.itemsOf('x', 0, 9));"
                 "const other = moves.beginUndo(undo.run); while (!moves.prepare(other, 0)) {}"
                 "moves.dropOrder(other); report(moves.runs().length);")),
             QStringLiteral("[2,0]\n[[\"move\",\"x.jpg\"]]\n\"\"\ntrue\n"
                            "\"This run has already been undone\"\n[]\n2"));
    QCOMPARE(read("a.jpg"), QByteArray("a.jpg"));
}

void TestSeamMoves::endsBeforeTheLastItem()
{
    QCOMPARE(answer(QStringLiteral(
                 "const { run } = moves.begin({ title: 'Rename', items: [move('a.jpg', 'x.jpg'), move('b.jpg', "
                 "'y.jpg')] });"
                 "moves.next(run); report([moves.end(run), moves.next(run), moves.end(run)]);")),
             QStringLiteral("[\"\",null,\"This run is not open\"]"));
    QCOMPARE(read("x.jpg"), QByteArray("a.jpg"));
    QCOMPARE(read("b.jpg"), QByteArray("b.jpg"));
}

void TestSeamMoves::addsItemsOneByOne()
{
    QCOMPARE(
        answer(QStringLiteral(
            "const { run } = moves.open('Sort');"
            "const add = (kind, from, to, number) => { const x = moves.add(run, { kind, from: d + from, to: d + to,"
            " number }); return [x.status, x.code, x.path]; };"
            "report(add('move', 'a.jpg', 'sub/a.jpg', false)); report(add('copy', 'b.jpg', 'sub/a.jpg', true));"
            "report(add('link', 'b.jpg', 'c.jpg', false)); report(add('trash', 'c.jpg', '', false)[0]);"
            "report(moves.end(run));")),
        QStringLiteral("[\"OK\",\"\",\"D/sub/a.jpg\"]\n[\"OK\",\"\",\"D/sub/a (2).jpg\"]\n"
                       "[\"Failed\",\"taken\",\"D/b.jpg\"]\n\"OK\"\n\"\""));
    QCOMPARE(read("sub/a (2).jpg"), QByteArray("b.jpg"));
    QCOMPARE(read("data/Trash/files/c.jpg"), QByteArray("c.jpg"));
}

void TestSeamMoves::saysWhyNothingCanBeDone()
{
    QCOMPARE(answer(QStringLiteral(
                 "const { run } = moves.begin({ title: 'Rename', items: [move('missing.jpg', 'x.jpg'), move('a.jpg', "
                 "'b.jpg')] });"
                 "report(moves.next(run).message); report(moves.next(run).message); moves.end(run);")),
             QStringLiteral("\"missing.jpg no longer exists\"\n\"The name b.jpg is already in use\""));
}

void TestSeamMoves::takesBackTheLastItem()
{
    QCOMPARE(
        answer(QStringLiteral(
            "const { run } = moves.open('Sort');"
            "const add = (kind, from, to) => moves.add(run, { kind, from: d + from, to: d + to });"
            "add('move', 'a.jpg', 'x/a.jpg'); add('copy', 'b.jpg', 'x/b.jpg'); add('link', 'c.jpg', 'x/c.jpg');"
            "add('trash', 'c.jpg', '');"
            "for (let i = 0; i < 4; i += 1) { const x = moves.takeBack(run); report([x.status, x.kind, x.from]); }"
            "report([moves.takeBack(run), moves.end(run)]);")),
        QStringLiteral("[\"OK\",\"trash\",\"D/c.jpg\"]\n[\"OK\",\"link\",\"D/c.jpg\"]\n[\"OK\",\"copy\",\"D/b.jpg\"]\n"
                       "[\"OK\",\"move\",\"D/a.jpg\"]\n[null,\"\"]"));
    for (const char *name : {"a.jpg", "b.jpg", "c.jpg"})
        QCOMPARE(read(name), QByteArray(name));
    QVERIFY(!QFile::exists(m_run->pathOf(QStringLiteral("x"))));
}

const char *const swapThem =
    "const drive = run => { while (moves.next(run) !== null) {} return moves.end(run); };"
    "const first = moves.begin({ title: 'Rename', items: [move('a.jpg', 'b.jpg'), move('b.jpg', 'a.jpg')] }).run;"
    "drive(first);";

void TestSeamMoves::undoesARunAndTheUndoing()
{
    QCOMPARE(
        answer(QString::fromLatin1(swapThem) +
               QStringLiteral("report(moves.undoable(first)); const back = moves.undo(first);"
                              "report([back.items.map(x => x.kind + x.from).sort(), back.problems, drive(back.run)]);"
                              "report(moves.undoable(first)); report(moves.undo(first).problem);"
                              "report(moves.runs().map(x => [x.title, x.count, x.done, x.state, x.undoes === first]));"
                              "drive(moves.undo(back.run).run); report(moves.runs().map(x => x.state));"
                              "report(/^\\d{4}-\\d\\d-\\d\\dT/.test(moves.runs()[0].date));")),
        QStringLiteral("{\"can\":true,\"count\":2,\"reason\":\"\"}\n[[\"moveD/a.jpg\",\"moveD/b.jpg\"],[],\"\"]\n"
                       "{\"can\":false,\"count\":0,\"reason\":\"This run has already been undone\"}\n"
                       "\"This run has already been undone\"\n"
                       "[[\"Rename\",2,2,\"done\",true],[\"Rename\",2,2,\"undone\",false]]\n"
                       "[\"done\",\"undone\",\"done\"]\ntrue"));
    QCOMPARE(read("a.jpg"), QByteArray("b.jpg"));
}

void TestSeamMoves::saysWhatCannotBeUndone()
{
    QVERIFY(
        answer(
            QStringLiteral(
                "const { run } = moves.begin({ title: 'Rename', items: [move('a.jpg', 'x.jpg'), move('b.jpg', 'y.jpg'),"
                " move('c.jpg', 'z.jpg')] }); while (moves.next(run) !== null) {} moves.end(run);"))
            .isEmpty());
    m_run->write(QStringLiteral("x.jpg"), QStringLiteral("longer than before"));
    m_run->write(QStringLiteral("b.jpg"), QStringLiteral("another one"));
    QVERIFY(QFile::remove(m_run->pathOf(QStringLiteral("z.jpg"))));
    QCOMPARE(answer(QStringLiteral("const x = moves.undo(moves.runs()[0].id); report(x.problem);"
                                   "report(x.problems.map(p => [p.path, p.code]).sort());")),
             QStringLiteral("\"Nothing in this run can be undone any more\"\n"
                            "[[\"D/b.jpg\",\"taken\"],[\"D/x.jpg\",\"changed\"],[\"D/z.jpg\",\"gone\"]]"));
    QCOMPARE(read("b.jpg"), QByteArray("another one"));
}

void TestSeamMoves::endsWhatWasInterrupted()
{
    const QTemporaryDir place;
    const auto startAnew = [this] {
        m_run = nullptr;
        m_run = std::make_unique<ScriptRun>();
        script::addFileModules(m_run->engine());
    };
    qputenv("XDG_DATA_HOME", QFile::encodeName(place.filePath(QStringLiteral("data"))));
    for (const char *name : {"a", "b"})
        QVERIFY(QFile::copy(m_run->pathOf(QStringLiteral("a.jpg")), place.filePath(QString::fromLatin1(name))));
    startAnew();
    const QString begin =
        QStringLiteral("const p = '%1/'; const { run } = moves.begin({ title: 'Rename', items: ['a', 'b'].map(x => "
                       "({ kind: 'move', from: p + x, to: p + x + x })) });")
            .arg(place.path());
    QCOMPARE(answer(begin + QStringLiteral("moves.next(run); report(moves.recover());")), QStringLiteral("[]"));
    startAnew(); // the program ends without ending the run
    QCOMPARE(answer(QStringLiteral(
                 "report(moves.runs()[0].state);"
                 "report(moves.recover().map(x => [x.title, x.done, x.finished, x.takenBack, x.left, x.problems]));"
                 "report([moves.recover(), moves.runs()[0].state, moves.undoable(moves.runs()[0].id).count]);")),
             QStringLiteral("\"open\"\n[[\"Rename\",1,0,0,1,[]]]\n[[],\"recovered\",1]"));
    const QString rest = QStringLiteral("const p = '%1/'; const rest = moves.rest(moves.runs()[0].id);"
                                        "report([rest.items.map(x => [x.kind, x.from.slice(p.length),"
                                        " x.to.slice(p.length), x.leader]), rest.places.map(x => x.slice(p.length))]);")
                             .arg(place.path());
    QCOMPARE(answer(rest), QStringLiteral("[[[\"move\",\"b\",\"bb\",-1]],[\"aa\",\"b\"]]"));
    QCOMPARE(answer(QStringLiteral("report(moves.rest('../' + moves.runs()[0].id));")),
             QStringLiteral("{\"items\":[],\"places\":[]}"));
    QVERIFY(QFile::exists(place.filePath(QStringLiteral("aa"))) && QFile::exists(place.filePath(QStringLiteral("b"))));
}

QUORLIN_TEST(TestSeamMoves)
#include "tst_seam_moves.moc"
