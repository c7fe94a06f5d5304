#include "app/seam/seam.h"
#include "tests/seam/support/EchoService.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QJSEngine>
#include <QTest>

/** Emits a signal with a value. */
class Sender : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void told();
};

/** How errors reach scripts and how uncaught ones reach the application: name, message, file and line. */
class TestSeamErrors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsWhatServicesRaiseIntoErrors_data();
    void turnsWhatServicesRaiseIntoErrors();
    void placesAnErrorWhereTheScriptCalled();
    void saysWhereAModuleFailed_data();
    void saysWhereAModuleFailed();
    void saysWhichFileIsMissing();
    void saysWhereAMissingFileIsImported();
    void failsAgainWithTheSameWords();
    void importsRelativeToTheImportingFile();
    void answersWhatAModuleExports();
    void failsACallLikeAModule();
    void reportsErrorsInSignalHandlers();
    void settlesPromisesBeforeTheEnd();
    void carriesOnAGenerator();
    void knowsNoNameThatNoModuleHas();
    void fetchesNothing();
    void tellsOfRejectionsThatNobodyHandles_data();
    void tellsOfRejectionsThatNobodyHandles();
    void leavesRejectionsAloneThatAreHandled_data();
    void leavesRejectionsAloneThatAreHandled();
    void keepsTheLanguageAsItIs_data();
    void keepsTheLanguageAsItIs();
};

void TestSeamErrors::turnsWhatServicesRaiseIntoErrors_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, outcome] : std::initializer_list<Row>{
             {"echo.raiseInconsistency('Presets %1 “failed”.')", "InternalInconsistency: Presets %1 “failed”."},
             {"echo.raiseRange('index 3 of 2')", "RangeError: index 3 of 2"},
             {"echo.raiseType('no')", "TypeError: no"},
             {"echo.throwStandard('standard é')", "Error: standard é"},
             {"echo.throwNumber()", "Error: An unknown exception was thrown"},
             {"(() => { try { echo.raiseInconsistency('a'); } catch (e) { return [e instanceof Error, e.name]; } })()",
              "[true,\"InternalInconsistency\"]"},
             {"(() => { try { echo.raiseRange('a'); } catch (e) { return e instanceof RangeError; } })()", "true"},
             {"(() => { try { echo.takeText(1); } catch (e) { return e instanceof TypeError; } })()", "true"},
             {"(() => { try { echo.raiseType('a'); } catch (e) {} return echo.takeText('still works'); })()",
              "\"<still works>\""},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

void TestSeamErrors::turnsWhatServicesRaiseIntoErrors()
{
    ScriptRun run;
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    QCOMPARE(run.valueOf(expression), outcome);
}

void TestSeamErrors::placesAnErrorWhereTheScriptCalled()
{
    ScriptRun run;
    QVERIFY2(
        run.run(QStringLiteral("\ntry {\n    echo.takeText(3);\n} catch (e) { report([e.fileName, e.lineNumber]); }\n"
                               "try {\n    echo.nope;\n} catch (e) { report(e.lineNumber); }\n"
                               "try {\n    echo.whole = 'x';\n} catch (e) { report(e.lineNumber); }\n")),
        qPrintable(run.error));
    const QStringList expected = {QStringLiteral("[\"%1\",4]").arg(run.lastFile), QStringLiteral("7"),
                                  QStringLiteral("10")};
    QCOMPARE(run.reports, expected);
}

void TestSeamErrors::saysWhereAModuleFailed_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("words");
    const auto row = [](const char *name, const char *body, int line, const char *words) {
        QTest::newRow(name) << QString::fromUtf8(body) << line << QString::fromUtf8(words);
    };
    row("thrown error", "\nthrow new RangeError('too far');", 3, "RangeError: too far");
    row("thrown text", "function f() {\n    throw 'only text';\n}\nf();", 3, "Error: only text");
    row("thrown number", "\n\nthrow 3;", 4, "Error: 3");
    row("thrown nothing", "throw null;", 2, "Error: null");
    row("thrown object", "\nthrow { name: 'Own', message: 'x' };", 3, "Own: x");
    row("thrown object without a name", "throw { message: 'x' };", 2, "Error: x");
    row("thrown object without words", "throw { name: 'Own' };", 2, "Error: an object");
    row("thrown object that throws", "throw { get message() { throw 1; } };", 2, "Error: an object");
    row("own class of error", "class Own extends Error { get name() { return 'Own'; } }\nthrow new Own('x');", 3,
        "Own: x");
    row("unknown variable", "nowhere();", 2, "ReferenceError: nowhere is not defined");
    row("wrong argument", "\nconst answer = echo.takeText(3);", 3,
        "TypeError: Expected text or null for text but received 3");
    row("raised by a service", "const answer = echo.raiseInconsistency('no table');", 2,
        "InternalInconsistency: no table");
    row("syntax", "\nlet x = ;", 3, "SyntaxError: Expected token `numeric literal'");
}

void TestSeamErrors::saysWhereAModuleFailed()
{
    ScriptRun run;
    QFETCH(QString, body);
    QFETCH(int, line);
    QFETCH(QString, words);
    QVERIFY(!run.run(body));
    QCOMPARE(run.error, QStringLiteral("%1:%2: %3").arg(run.lastFile, QString::number(line), words));
}

void TestSeamErrors::saysWhichFileIsMissing()
{
    ScriptRun run;
    const auto missing = run.engine().importFile(run.pathOf(QStringLiteral("missing.js")));
    QVERIFY(!missing);
    QCOMPARE(missing.error().code, platform::ErrorCode::NotFound);
    QVERIFY2(missing.error().message.contains(QStringLiteral("missing.js")), qPrintable(missing.error().message));

    QVERIFY(!run.runFile(QStringLiteral("root.js"), QStringLiteral("import { x } from './nowhere.js';")));
    QVERIFY2(run.error.contains(QStringLiteral("nowhere.js")), qPrintable(run.error));
}

void TestSeamErrors::saysWhereAMissingFileIsImported()
{
    ScriptRun run;
    run.write(QStringLiteral("b.js"),
              QStringLiteral("export const b = 1;\n\nimport { x,\n    y }\n  from './none.js';"));
    QVERIFY(!run.runFile(QStringLiteral("a.js"), QStringLiteral("import 'quorlin';\nimport { b } from './b.js';")));
    QVERIFY2(run.error.startsWith(run.pathOf(QStringLiteral("b.js")) + QStringLiteral(":3: ")), qPrintable(run.error));
    QVERIFY2(run.error.contains(QStringLiteral("none.js")), qPrintable(run.error));
    QVERIFY(!run.runFile(QStringLiteral("c.js"), QStringLiteral("\n\n/* x */\nexport * from './no such.js';")));
    QVERIFY2(run.error.startsWith(run.pathOf(QStringLiteral("c.js")) + QStringLiteral(":4: ")), qPrintable(run.error));
    QVERIFY(!run.runFile(QStringLiteral("d.js"), QStringLiteral("\nimport { x } from 'quorlinx';")));
    QVERIFY2(run.error.startsWith(run.pathOf(QStringLiteral("d.js")) + QStringLiteral(":2: ")), qPrintable(run.error));
}

void TestSeamErrors::failsAgainWithTheSameWords()
{
    ScriptRun run;
    QVERIFY(!run.runFile(QStringLiteral("a.js"), QStringLiteral("export const x = 1;\nthrow new Error('half way');")));
    const QString first = run.error;
    const auto second = run.engine().importFile(run.pathOf(QStringLiteral("a.js")));
    QVERIFY(!second);
    QCOMPARE(second.error().message, first);
}

void TestSeamErrors::importsRelativeToTheImportingFile()
{
    ScriptRun run;
    QVERIFY(QDir(run.pathOf({})).mkpath(QStringLiteral("lib/deep")));
    run.write(QStringLiteral("lib/deep/one.js"),
              QStringLiteral("import { two } from '../two.js'; export const one = two - 1;"));
    run.write(QStringLiteral("lib/two.js"),
              QStringLiteral("\n\nexport const two = 2;\nexport function fail() {\n  throw new Error('deep');\n}"));
    QVERIFY2(run.run(QStringLiteral("import { one } from './lib/deep/one.js'; report(one);")), qPrintable(run.error));
    QCOMPARE(run.reports, QStringList{QStringLiteral("1")});
    QVERIFY(!run.run(QStringLiteral("import { fail } from './lib/two.js'; fail();")));
    QCOMPARE(run.error, run.pathOf(QStringLiteral("lib/two.js")) + QStringLiteral(":5: Error: deep"));
}

void TestSeamErrors::answersWhatAModuleExports()
{
    ScriptRun run;
    run.write(QStringLiteral("m.js"),
              QStringLiteral("export const seven = 7; export function twice(x) { return 2 * x; }"));
    const auto module = run.engine().importFile(run.pathOf(QStringLiteral("m.js")));
    QVERIFY(module);
    QCOMPARE(module->property(QStringLiteral("seven")).toInt(), 7);
    const auto result = run.engine().call(module->property(QStringLiteral("twice")), {QJSValue(21)});
    QVERIFY(result);
    QCOMPARE(result->toInt(), 42);
}

void TestSeamErrors::failsACallLikeAModule()
{
    ScriptRun run;
    run.write(QStringLiteral("m.js"),
              QStringLiteral(
                  "export function fail() {\n  throw 'x';\n}\nexport const object = { n: 3, get() { return this.n; } };"
                  "\nexport function giveError() { return new Error('a value'); }"));
    const auto module = run.engine().importFile(run.pathOf(QStringLiteral("m.js")));
    QVERIFY(module);
    const auto failed = run.engine().call(module->property(QStringLiteral("fail")), {});
    QVERIFY(!failed);
    QCOMPARE(failed.error().message, run.pathOf(QStringLiteral("m.js")) + QStringLiteral(":2: Error: x"));
    const QJSValue object = module->property(QStringLiteral("object"));
    const auto got = run.engine().call(object.property(QStringLiteral("get")), {}, object);
    QVERIFY(got);
    QCOMPARE(got->toInt(), 3);
    QVERIFY(!run.engine().call(QJSValue(3), {}));
    QVERIFY(run.engine().call(module->property(QStringLiteral("giveError")), {})); // a value, not thrown
}

void TestSeamErrors::reportsErrorsInSignalHandlers()
{
    ScriptRun run;
    Sender sender;
    script::ServiceEntry entry = script::oneObject<Sender>("sender", "sender");
    entry.object = &sender;
    run.engine().registerServices("sender", {entry});
    QVERIFY2(run.run(QStringLiteral("import { sender } from 'sender';\n"
                                    "sender.told.connect(() => {\n  throw new Error('in handler');\n});\n"
                                    "sender.told.connect(() => {\n  const x = echo.takeText(3);\n});")),
             qPrintable(run.error));
    Q_EMIT sender.told();
    const QStringList expected = {run.lastFile + QStringLiteral(":4: Error: in handler"),
                                  run.lastFile +
                                      QStringLiteral(":7: TypeError: Expected text or null for text but received 3")};
    QCOMPARE(run.uncaught, expected);
}

void TestSeamErrors::settlesPromisesBeforeTheEnd()
{
    ScriptRun run;
    QVERIFY2(run.run(QStringLiteral("Promise.resolve(1).then(v => new Promise(done => done(v + 1))).then(v => {"
                                    " report(v); throw new Error('later'); }).catch(e => { report(e.message); });"
                                    "Promise.resolve(echo).then(e => { report(e === echo); }); report('first');")),
             qPrintable(run.error));
    QCOMPARE(run.reports.size(), 4);
    QCOMPARE(run.reports.first(), QStringLiteral("\"first\""));
    QVERIFY(run.reports.contains(QStringLiteral("2")));
    QVERIFY(run.reports.contains(QStringLiteral("true")));
    QCOMPARE(run.reports.last(), QStringLiteral("\"later\""));
}

void TestSeamErrors::carriesOnAGenerator()
{
    ScriptRun run;
    run.write(QStringLiteral("m.js"),
              QStringLiteral("export const ended = [];\nexport function* job() {\n  try {\n    yield 1;\n    yield 2;\n"
                             "    throw new Error('third');\n  } finally {\n    ended.push('end');\n  }\n}"));
    const auto module = run.engine().importFile(run.pathOf(QStringLiteral("m.js")));
    QVERIFY(module);
    const auto job = run.engine().call(module->property(QStringLiteral("job")), {});
    QVERIFY(job);
    const QJSValue next = job->property(QStringLiteral("next"));
    for (const int expected : {1, 2}) {
        const auto step = run.engine().call(next, {}, *job);
        QVERIFY(step);
        QCOMPARE(step->property(QStringLiteral("value")).toInt(), expected);
    }
    const auto third = run.engine().call(next, {}, *job);
    QVERIFY(!third);
    QCOMPARE(third.error().message, run.pathOf(QStringLiteral("m.js")) + QStringLiteral(":6: Error: third"));
    QCOMPARE(module->property(QStringLiteral("ended")).property(0).toString(), QStringLiteral("end"));
    const auto after = run.engine().call(next, {}, *job);
    QVERIFY(after);
    QVERIFY(after->property(QStringLiteral("done")).toBool());
}

void TestSeamErrors::knowsNoNameThatNoModuleHas()
{
    ScriptRun run;
    QVERIFY(!run.runFile(QStringLiteral("a.js"), QStringLiteral("import { x } from 'no/such/module';")));
    QVERIFY2(run.error.contains(QStringLiteral("no/such/module")), qPrintable(run.error));
    QVERIFY(!run.engine().registerModule(QStringLiteral("quorlin"), QJSValue(3)));
}

/** The language has no way to the network, nor to files. */
void TestSeamErrors::fetchesNothing()
{
    ScriptRun run;
    QCOMPARE(run.valueOf(QStringLiteral("[typeof XMLHttpRequest, typeof fetch]")),
             QStringLiteral("[\"undefined\",\"undefined\"]"));
}

void TestSeamErrors::tellsOfRejectionsThatNobodyHandles_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("uncaught");
    const std::pair<const char *, const char *> rows[] = {
        {"Promise.reject(new Error('a'));", "2: Error: a"},
        {"\nnew Promise((done, fail) => {\n fail(new RangeError('b')); });", "4: RangeError: b"},
        {"new Promise(() => { null.x; });", "2: TypeError: Cannot read property 'x' of null"},
        {"Promise.resolve(1).then(() => {\n throw new Error('c'); });", "3: Error: c"},
        {"Promise.resolve(1).then(() => echo.takeText(3));",
         "2: TypeError: Expected text or null for text but received 3"},
        {"\nPromise.reject('a text');", "3: Error: a text"},
        {"Promise.reject({ name: 'Mine', message: 'd' });", "2: Mine: d"},
        {"Promise.reject(undefined);", "2: Error: undefined"},
        {"Promise.reject(new Error('e')).then(() => 1);", "2: Error: e"},
        {"Promise.reject(1).catch(() => { throw new Error('f'); });", "2: Error: f"},
        {"Promise.all([1, Promise.reject(new Error('g'))]);", "2: Error: g"},
        {"Promise.race([Promise.reject(new Error('h'))]);", "2: Error: h"},
        {"Promise.resolve(Promise.reject(new Error('i')));", "2: Error: i"},
        {"Promise.resolve({ then(done, fail) { fail(new Error('j')); } });", "2: Error: j"},
    };
    for (const auto &[body, uncaught] : rows)
        QTest::newRow(body) << QString::fromLatin1(body) << QString::fromLatin1(uncaught);
}

void TestSeamErrors::tellsOfRejectionsThatNobodyHandles()
{
    QFETCH(QString, body);
    QFETCH(QString, uncaught);
    ScriptRun run;
    QVERIFY2(run.run(body + QStringLiteral("\nreport('went on');")), qPrintable(run.error));
    QCOMPARE(run.reports, QStringList{QStringLiteral("\"went on\"")});
    QCOMPARE(run.uncaught, QStringList{run.lastFile + u':' + uncaught});
}

void TestSeamErrors::leavesRejectionsAloneThatAreHandled_data()
{
    QTest::addColumn<QString>("body");
    const char *const rows[] = {
        "Promise.reject(1).catch(() => {});",
        "Promise.reject(1).then(() => 1, () => 2);",
        "Promise.reject(1).then(() => 1).then(() => 2).catch(() => 3);",
        "const p = Promise.reject(1); p.then(() => 1).catch(() => {}); p.catch(() => {});",
        "const p = Promise.reject(1); Promise.resolve().then(() => p.catch(() => {}));",
        "const p = Promise.reject(1);"
        " Promise.resolve().then(() => 1).then(() => 2).then(() => 3).then(() => p.catch(() => {}));",
        "Promise.all([Promise.reject(1), Promise.reject(2)]).catch(() => {});",
        "Promise.race([Promise.reject(1), Promise.resolve(2)]).catch(() => {});",
        "new Promise(done => done(Promise.reject(1))).catch(() => {});",
        "Promise.resolve(1).then(() => Promise.reject(2)).catch(() => {});",
        "new Promise(() => {});",
        "Promise.all([1, Promise.resolve(2), { then(done) { done(3); } }]).then(list => report(list));",
    };
    for (const char *body : rows)
        QTest::newRow(body) << QString::fromLatin1(body);
}

void TestSeamErrors::leavesRejectionsAloneThatAreHandled()
{
    QFETCH(QString, body);
    ScriptRun run;
    QVERIFY2(run.run(body), qPrintable(run.error));
    QCOMPARE(run.uncaught, QStringList());
}

/** Promises are what the language says, and no script changes them or anything else that all of them share. */
void TestSeamErrors::keepsTheLanguageAsItIs_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("value");
    const std::pair<const char *, const char *> rows[] = {
        {"Promise.resolve(1) instanceof Promise && Promise.resolve(1).constructor === Promise", "true"},
        {"(p => Promise.resolve(p) === p)(Promise.resolve(1))", "true"},
        {"Promise.name + Promise.length + Promise.prototype.then.length", "\"Promise12\""},
        {"Promise(() => {})", "TypeError: Promise is made with new"},
        {"new Promise(3)", "TypeError: Type error"},
        {"Promise.prototype.then.call(3)", "TypeError: Type error"},
        {"Promise.prototype.then = 3", "TypeError: Type error"},
        {"Array.prototype.join = 3", "TypeError: Type error"},
        {"Object.prototype.toString = 3", "TypeError: Type error"},
        {"Math.max = 3", "TypeError: Type error"},
        {"JSON = 3", "TypeError: Type error"},
        {"(12.25).toLocaleString() + (0.1 + 0.2).toLocaleString() + (3).toLocaleString()",
         "\"12.250.300000000000000043\""},
        {"Number.prototype.toLocaleString.call('3')", "TypeError: Type error"},
    };
    for (const auto &[expression, value] : rows)
        QTest::newRow(expression) << QString::fromLatin1(expression) << QString::fromLatin1(value);
}

void TestSeamErrors::keepsTheLanguageAsItIs()
{
    QFETCH(QString, expression);
    QLocale::setDefault(QLocale::c());
    ScriptRun run;
    QTEST(run.valueOf(expression), "value");
}

QUORLIN_TEST(TestSeamErrors)
#include "tst_seam_errors.moc"
