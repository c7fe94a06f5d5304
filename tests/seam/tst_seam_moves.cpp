#include "ScriptRun.h"

#include "app/window/script_modules.h"

#include <QFile>
#include <QTest>

/** What scripts get from the module "quorlin/moves". */
class TestSeamMoves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void plansWithoutTouchingAnything();
    void carriesOutARunItemByItem();
    void endsBeforeTheLastItem();
    void addsItemsOneByOne();
    void saysWhyNothingCanBeDone();

private:
    QString answer(const QString &body);
    QByteArray read(const char *name) const
    {
        QFile file(m_run->pathOf(QString::fromLatin1(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing");
    }
    std::unique_ptr<ScriptRun> m_run;
};

void TestSeamMoves::init()
{
    m_run = std::make_unique<ScriptRun>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_run->pathOf(QStringLiteral("data"))));
    window::addFilesModule(m_run->engine());
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
    if (!m_run->runFile(QStringLiteral("moves.js"), prologue.arg(folder) + body))
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
             QStringLiteral("\"missing.jpg is not there any more\"\n\"The name b.jpg is taken\""));
}

QTEST_GUILESS_MAIN(TestSeamMoves)
#include "tst_seam_moves.moc"
