#include "app/modules/file_modules.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QTest>

/** The modules of jobs and windows behind the facade: nothing is converted silently there either. */
class TestSeamModules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void refusesWhatIsNotMeant_data();
    void refusesWhatIsNotMeant();
    void replacesNothingForATextThatIsNoIdentity();
    void answersTextsThatAreNeverNull();
    void cannotBeChanged_data();
    void cannotBeChanged();
    void takesNoneOfItsOperationsElsewhere();
    void endsTheTextOfAListThatHoldsItself_data();
    void endsTheTextOfAListThatHoldsItself();

private:
    QString answer(const QString &expression);
    ScriptRun m_run;
    int m_count = 0;
};

void TestSeamModules::initTestCase()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_run.pathOf(QStringLiteral("data"))));
    script::addFileModules(m_run.engine());
}

QString TestSeamModules::answer(const QString &expression)
{
    const QString module = QStringLiteral(
        "import { files } from 'quorlin/files'; import { moves } from 'quorlin/moves';"
        "import { pictures } from 'quorlin/pictures'; import { tokens, TokenText } from 'quorlin/tokens';"
        "import { recipes } from 'quorlin/recipes'; import { reportError } from 'test';"
        "reportError(() => { const value = %1; return value; });");
    if (!m_run.runFile(QStringLiteral("m%1.js").arg(++m_count), module.arg(expression)))
        return m_run.error;
    return m_run.reports.join(u'\n');
}

void TestSeamModules::refusesWhatIsNotMeant_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("error");
    const std::pair<const char *, const char *> rows[] = {
        {"files.info(1)", "Expected text or null for path but received 1"},
        {"files.info(undefined)", "Expected text or null for path but received undefined"},
        {"files.info()", "info takes 1 argument but received 0"},
        {"files.info('/tmp', 1, 2, 3)", "info takes 1 argument but received 4"},
        {"files.byteText('abc')", "Expected a number for bytes but received \"abc\""},
        {"files.collect('/tmp', [], [], [])", "Expected a list of texts for paths but received \"/tmp\""},
        {"files.collect(['/tmp', 3], [], [], [])", "Expected text for paths[1] but received 3"},
        {"files.keepNewestLines('/tmp/x', 1.5, 3)", "Expected a whole number for most but received 1.5"},
        {"files.place('/a', '/b', false)", "Expected text or null for replaced but received false"},
        {"moves.workOut('plan 1', '5')", "Expected a whole number for milliseconds but received \"5\""},
        {"moves.plan({})", "Expected a list for wishes but received an object"},
        {"moves.plan([{ kind: 'kopy', from: '/a', to: '/b' }])",
         "Expected \"move\", \"copy\" or \"link\" for wishes[0].kind but received \"kopy\""},
        {"moves.begin({ title: 't', items: [{ kind: 'kopy', from: '/a', to: '/b' }] })",
         "Expected \"move\", \"copy\", \"link\" or \"trash\" for run.items[0].kind but received \"kopy\""},
        {"moves.plan([{ kind: 'copy', from: '/a', to: '/b', number: 'false' }])",
         "Expected true or false for wishes[0].number but received \"false\""},
        {"moves.begin('title')", "Expected a dictionary for run but received \"title\""},
        {"moves.next(1)", "Expected text or null for run but received 1"},
        {"pictures.layOnPattern('/a', '/b')", "layOnPattern takes 3 arguments but received 2"},
        {"tokens.problems(3)", "Expected text or null for pattern but received 3"},
        {"new TokenText({ values: 'files' })",
         "Expected \"plain\", \"name\" or \"folder\" for values but received \"files\""},
        {"new TokenText({ standIns: { camera: 3 } })", "Expected text for standIns.camera but received 3"},
        {"new TokenText({ needsFacts: true })", "needsFacts of TokenText is read only"},
        {"new TokenText({}).expand('/a', { width: '3' }, 0)",
         "Expected a whole number for facts.width but received \"3\""},
        {"new TokenText({}).expand('/a', null, '0')", "Expected a number for index but received \"0\""},
        {"recipes.make('/a', {})", "make takes 3 arguments but received 2"},
        {"recipes.make('/a', 'sharpen', '/b')", "Expected a dictionary for recipe but received \"sharpen\""},
        {"recipes.planOutput('/a', [])", "Expected a dictionary for recipe but received a list"},
        {"recipes.planOutput(3, {})", "Expected text or null for path but received 3"},
    };
    for (const auto &[expression, error] : rows)
        QTest::newRow(expression) << QString::fromLatin1(expression) << QString::fromLatin1(error);
}

void TestSeamModules::refusesWhatIsNotMeant()
{
    QFETCH(QString, expression);
    QFETCH(QString, error);
    QCOMPARE(answer(expression), QStringLiteral("TypeError: ") + error);
}

void TestSeamModules::replacesNothingForATextThatIsNoIdentity()
{
    m_run.write(QStringLiteral("a"), QStringLiteral("new"));
    m_run.write(QStringLiteral("b"), QStringLiteral("old"));
    const QString answered = answer(QStringLiteral("files.place('%1', '%2', 'false')")
                                        .arg(m_run.pathOf(QStringLiteral("a")), m_run.pathOf(QStringLiteral("b"))));
    QVERIFY2(answered.startsWith(QStringLiteral("TypeError: ")), qPrintable(answered));
    QFile there(m_run.pathOf(QStringLiteral("b")));
    QVERIFY(there.open(QIODevice::ReadOnly));
    QCOMPARE(there.readAll(), QByteArray("old"));
}

void TestSeamModules::answersTextsThatAreNeverNull()
{
    QCOMPARE(answer(QStringLiteral("files.makeFolder('%1')").arg(m_run.pathOf(QStringLiteral("made")))),
             QStringLiteral("\"\""));
    QCOMPARE(answer(QStringLiteral("files.identity('/no/such/file')")), QStringLiteral("\"\""));
    QCOMPARE(answer(QStringLiteral("files.profileName('/no/such/file')")), QStringLiteral("\"\""));
    QCOMPARE(answer(QStringLiteral("Object.values(files.readComment('/no/such/file')).map(x => typeof x)")),
             QStringLiteral("[\"string\",\"string\"]"));
    QCOMPARE(answer(QStringLiteral("[files.readText('/no/such/file'), files.facts('/no/such/file')]")),
             QStringLiteral("[null,null]"));
}

void TestSeamModules::cannotBeChanged_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("error");
    const std::pair<const char *, const char *> rows[] = {
        {"files.noSuchThing = 1", "files has no field noSuchThing that can be set"},
        {"files.noSuchThing", "files has no operation or field noSuchThing"},
        {"moves.deleteLater", "moves has no operation or field deleteLater"},
        {"moves.objectName", "moves has no operation or field objectName"},
        {"files.home = '/tmp'", "home of files is read only"},
        {"new files.constructor()", "files is not made with new"},
    };
    for (const auto &[expression, error] : rows)
        QTest::newRow(expression) << QString::fromLatin1(expression) << QString::fromLatin1(error);
}

void TestSeamModules::cannotBeChanged()
{
    QFETCH(QString, expression);
    QFETCH(QString, error);
    QCOMPARE(answer(expression), QStringLiteral("TypeError: ") + error);
    QCOMPARE(answer(QStringLiteral("[files, moves, pictures, recipes].map(Object.isFrozen)")),
             QStringLiteral("[true,true,true,true]"));
}

void TestSeamModules::takesNoneOfItsOperationsElsewhere()
{
    QCOMPARE(answer(QStringLiteral("files.info.call({}, '/tmp')")),
             QStringLiteral("TypeError: info is called on files"));
    QCOMPARE(answer(QStringLiteral("files.info.call(moves, '/tmp')")),
             QStringLiteral("TypeError: info is called on files"));
}

void TestSeamModules::endsTheTextOfAListThatHoldsItself_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QStringLiteral("(a => { a.push(a); return String(a); })([1])") << QStringLiteral("\"1,\"");
    QTest::newRow("joined") << QStringLiteral("(a => { a.push([2, a], 3); return a.join('-'); })([1])")
                            << QStringLiteral("\"1-2,-3\"");
    QTest::newRow("in a text") << QStringLiteral("(a => { a.push(a); return `${a}` + a; })([1])")
                               << QStringLiteral("\"1,1,\"");
    QTest::newRow("for a reader") << QStringLiteral("(a => { a.push(a, [a, 2]); return a.toLocaleString(); })([1])")
                                  << QStringLiteral("\"1,,,2\"");
    QTest::newRow("in a list") << QStringLiteral(
                                      "(a => { a.push(a); return [a, [a]].toLocaleString() + [[a]].join(); })([1])")
                               << QStringLiteral("\"1,,1,1,\"");
    QTest::newRow("each in the other")
        << QStringLiteral(
               "((a, b) => { a.push(b); b.push(a); return [a + '', b.join(), a.toLocaleString()]; })([1], [2])")
        << QStringLiteral("[\"1,2,\",\"2,1,\",\"1,2,\"]");
    QTest::newRow("of something like a list")
        << QStringLiteral("(a => { a[0] = a; Object.defineProperty(a, 'toString', { value: Array.prototype.join }); "
                          "return Array.prototype.join.call(a); "
                          "})({ length: 2 })")
        << QStringLiteral("\",\"");
    QTest::newRow("of a list that empties itself")
        << QStringLiteral("(a => { a[0] = { toString() { a.length = 0; return 'x'; } }; return a.join(); })([1, 2, 3])")
        << QStringLiteral("\"x,,\"");
    QTest::newRow("of another one") << QStringLiteral("[[1, 2], [3]].join(';')") << QStringLiteral("\"1,2;3\"");
    QTest::newRow("twice in one") << QStringLiteral("(a => String([a, a]))([1])") << QStringLiteral("\"1,1\"");
    QTest::newRow("after an error") << QStringLiteral(
                                           "(a => { try { String(a); } catch (e) { a.pop(); } return String(a); })"
                                           "([1, { toString() { throw new Error('x'); } }])")
                                    << QStringLiteral("\"1\"");
    QTest::newRow("of lists in lists without end")
        << QStringLiteral("(a => { for (let i = 0; i < 200000; i += 1) a = [a]; return String(a); })([])")
        << QStringLiteral("RangeError: Maximum call stack size exceeded.");
}

void TestSeamModules::endsTheTextOfAListThatHoldsItself()
{
    QFETCH(QString, expression);
    QTEST(answer(expression), "text");
}

QUORLIN_TEST(TestSeamModules)
#include "tst_seam_modules.moc"
