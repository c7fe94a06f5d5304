#include "tests/seam/support/EchoService.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QJSEngine>
#include <QTest>

/** The objects that represent services in scripts: what they let through, and how long what they hold lives. */
class TestSeamFacade : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void letsThroughWhatTheClassDeclares_data();
    void letsThroughWhatTheClassDeclares();
    void listsFieldsInTheirOrder();
    void keepsClassOperationsOnOneObject();
    void keepsAControlOnAnOutletAlive();
    void keepsAServiceAliveThatWasGivenBack();
    void deletesServicesThatNobodyHolds();
    void findsOneObjectThroughTwoFields();
    void tellsNoTextFromEmptyText();
    void outlivesWhatItHolds();
    void leavesObjectsOfTheApplicationAlone();
    void answersManyCallsAndPrintsWhatOneCosts();
};

void TestSeamFacade::letsThroughWhatTheClassDeclares_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, outcome] : std::initializer_list<Row>{
             {"echo.nope()", "TypeError: EchoService has no operation or field nope"},
             {"echo.nope", "TypeError: EchoService has no operation or field nope"},
             {"echo['no such thing']", "TypeError: EchoService has no operation or field no such thing"},
             {"echo.deleteLater()", "TypeError: EchoService has no operation or field deleteLater"},
             {"echo.objectName", "TypeError: EchoService has no operation or field objectName"},
             {"echo.notForScripts", "TypeError: EchoService has no operation or field notForScripts"},
             {"echo.notForScriptsEither()", "TypeError: EchoService has no operation or field notForScriptsEither"},
             {"echo.nope = 1", "TypeError: EchoService has no field nope that can be set"},
             {"echo.fixed = 'x'", "TypeError: fixed of EchoService is read only"},
             {"echo.whole = 1.5", "TypeError: Expected a whole number for whole but received 1.5"},
             {"echo.text = undefined", "TypeError: Expected text or null for text but received undefined"},
             {"echo.outlet = 'x'", "TypeError: Expected a control or null for outlet but received \"x\""},
             {"echo.outlet = new ZtImageHandling()",
              "TypeError: Expected a control or null for outlet but received a ZtImageHandling"},
             {"echo.takeControl(new mMeta())",
              "TypeError: Expected a control or null for control but received a mMeta"},
             {"(new Window()).sheet = new cToolBox()",
              "TypeError: Expected a control or null for sheet but received a cToolBox"},
             {"(echo.outlet = new ZtFFullScreen()) !== null", "true"},
             {"(echo.outlet = new myMainPhotoView()) !== null", "true"},
             {"echo.partner = new TextField()",
              "TypeError: Expected an EchoPartner or null for partner but received a TextField"},
             {"new EchoService(1)", "TypeError: new EchoService takes no arguments but received 1"},
             {"EchoService()", "TypeError: EchoService is made with new"},
             {"EchoService.nope()", "TypeError: EchoService has no operation or field nope"},
             {"EchoService.takeText('a')", "TypeError: EchoService has no operation or field takeText"},
             {"EchoService.nope = 1", "TypeError: EchoService has no field nope that can be set"},
             {"EchoService.shared('a')", "\"a\""},
             {"echo.shared('a')", "TypeError: EchoService has no operation or field shared"},
             {"EchoService.shared()", "TypeError: shared takes 1 argument but received 0"},
             {"EchoService.name", "\"EchoService\""},
             {"echo instanceof EchoService", "true"},
             {"echo instanceof EchoPartner", "false"},
             {"echo.constructor === EchoService", "true"},
             {"typeof echo", "\"object\""},
             {"typeof EchoService", "\"function\""},
             {"String(echo)", "\"[object EchoService]\""},
             {"[typeof echo.then, typeof echo.toJSON, typeof echo[Symbol.iterator]]",
              "[\"undefined\",\"undefined\",\"undefined\"]"},
             {"echo.hasOwnProperty('whole')", "true"},
             {"['whole' in echo, 'takeText' in echo, 'nope' in echo]", "[true,true,false]"},
             {"Object.isFrozen(EchoService)", "true"},
             {"Object.isExtensible(echo)", "false"},
             {"delete echo.whole", "TypeError: Type error"},
             {"echo.takeText = null", "TypeError: Type error"},
             {"(() => { const f = echo.takeText; f('a'); })()", "TypeError: takeText is called on an EchoService"},
             {"echo.takeText.call(new EchoPartner(), 'a')", "TypeError: takeText is called on an EchoService"},
             {"echo.takeText.call(echo, 'a')", "\"<a>\""},
             {"(() => { const { takeText } = echo; return takeText.name; })()", "\"takeText\""},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

void TestSeamFacade::letsThroughWhatTheClassDeclares()
{
    ScriptRun run;
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    const QString value = run.valueOf(expression);
    // If the name is called at once, the engine adds words to our message.
    if (value.endsWith(QStringLiteral(" is not a function")))
        QVERIFY2(value.startsWith(QStringLiteral("TypeError: ")) && value.contains(outcome), qPrintable(value));
    else
        QCOMPARE(value, outcome);
}

void TestSeamFacade::listsFieldsInTheirOrder()
{
    ScriptRun run;
    QCOMPARE(run.valueOf(QStringLiteral("Object.keys(echo)")),
             QStringLiteral(
                 "[\"outlet\",\"partner\",\"whole\",\"number\",\"text\",\"dictionary\",\"any\",\"size\",\"fixed\"]"));
}

void TestSeamFacade::keepsClassOperationsOnOneObject()
{
    ScriptRun run;
    QCOMPARE(run.valueOf(QStringLiteral("[EchoService.count(), EchoService.count()]")), QStringLiteral("[1,2]"));
    QCOMPARE(run.valueOf(QStringLiteral("EchoService.count()")), QStringLiteral("3"));
}

void TestSeamFacade::keepsAControlOnAnOutletAlive()
{
    ScriptRun run;
    QVERIFY2(run.run(QStringLiteral("echo.outlet = new TextField({stringValue: 'kept'});"
                                    "for (let i = 0; i < 3; ++i) { gc(); new Array(1000); }"
                                    "report(echo.outlet.stringValue); report(echo.takeControl(echo.outlet));"
                                    "echo.outlet = null; report(echo.outlet);")),
             qPrintable(run.error));
    const QStringList expected = {QStringLiteral("\"kept\""), QStringLiteral("\"<kept>\""), QStringLiteral("null")};
    QCOMPARE(run.reports, expected);
}

void TestSeamFacade::keepsAServiceAliveThatWasGivenBack()
{
    ScriptRun run;
    QVERIFY2(run.run(QStringLiteral("let partner = new EchoPartner(); partner.number = 7;"
                                    "const other = echo.giveControl(partner); partner = null; gc(); gc();"
                                    "report(other.number);")),
             qPrintable(run.error));
    QCOMPARE(run.reports, QStringList{QStringLiteral("7")});
}

void TestSeamFacade::deletesServicesThatNobodyHolds()
{
    const int before = EchoService::livingCount;
    {
        ScriptRun run;
        QVERIFY2(run.run(QStringLiteral("for (let i = 0; i < 100; ++i) new EchoService();"
                                        "for (let i = 0; i < 100; ++i) new Window({sheet: new EchoService()});"
                                        "for (let i = 0; i < 100; ++i) { const a = new EchoService();"
                                        " a.outlet = a; const b = new EchoService(); b.outlet = a.outlet; }"
                                        "Function('return this')().held = echo;")),
                 qPrintable(run.error));
        run.engine().engine().collectGarbage();
        QCOMPARE(EchoService::livingCount, before + 1);
    }
    QCOMPARE(EchoService::livingCount, before);
}

void TestSeamFacade::findsOneObjectThroughTwoFields()
{
    ScriptRun run;
    QVERIFY2(
        run.run(QStringLiteral("const a = new Window({sheet: echo}), b = new EchoService(); b.outlet = a; gc(); gc();"
                               "const c = echo.giveControl(a); report([c === a, b.giveControl(echo) === echo]);"
                               "report(Object.getOwnPropertySymbols(a).every(s => !('objectName' in Object(a[s]))));")),
        qPrintable(run.error));
    QCOMPARE(run.reports, (QStringList{QStringLiteral("[true,true]"), QStringLiteral("true")}));
}

void TestSeamFacade::tellsNoTextFromEmptyText()
{
    ScriptRun run;
    QVERIFY2(
        run.run(QStringLiteral(
            "import { cSheetControl, dbViewController, cMConversion } from 'quorlin';\n"
            "let fields = 0;\n"
            "for (const Make of [ZtImageHandling, cNSStringHandling, cSheetControl, cToolBox, dbViewController, mMeta, "
            "cEditMetaData, cNSFileHandling, cMConversion, TextField, TabView, PopUpButton, TextView]) {\n"
            "    const o = new Make();\n"
            "    for (const name of Object.keys(o)) {\n"
            "        try { o[name] = ''; } catch (e) { continue; }\n"
            "        fields += 1;\n"
            "        for (const value of ['', null, 'a', null, '', 'a', '', null, null, '']) {\n"
            "            o[name] = value;\n"
            "            if (o[name] !== value) report([Make.name, name, value, o[name]]);\n"
            "        }\n"
            "    }\n"
            "}\n"
            "report(fields > 20);")),
        qPrintable(run.error));
    QCOMPARE(run.reports, QStringList{QStringLiteral("true")});
}

void TestSeamFacade::outlivesWhatItHolds()
{
    ScriptRun run;
    QVERIFY2(
        run.run(QStringLiteral("import { cSheetControl } from 'quorlin';\n"
                               "const main = new Window(), s = new cSheetControl(), box = new cToolBox();\n"
                               "s.wwMainWindow = main;\n"
                               "(() => { s.wwPreferencesWindow = new Window(); s.hCallPreferencesWw(null); })();\n"
                               "s.wwPreferencesWindow = null;\n"
                               "const collect = () => { for (let i = 0; i < 10; ++i) { gc(); new Array(1000); } };\n"
                               "collect(); report(main.sheet);\n"
                               "panels.accept(['/nowhere/a.png']); box.hSaveDialogFile('/nowhere/b.png');\n"
                               "const first = box.panel; report(first !== null);\n"
                               "panels.accept(['/nowhere/a.png'], { whileOpen: () => {\n"
                               "    panels.cancel(); box.hSaveDialogFile('/nowhere/c.png'); collect(); } });\n"
                               "box.hSaveDialogFile('/nowhere/b.png'); collect();\n"
                               "reportError(() => first.allowedTypes);")),
        qPrintable(run.error));
    QCOMPARE(run.reports,
             (QStringList{QStringLiteral("null"), QStringLiteral("true"),
                          QStringLiteral("TypeError: allowedTypes is called on a SavePanel that is gone")}));
}

void TestSeamFacade::leavesObjectsOfTheApplicationAlone()
{
    EchoService ours;
    ours.setProperty("whole", 5);
    const int before = EchoService::livingCount;
    {
        ScriptRun run;
        QJSValue exports = run.engine().engine().newObject();
        exports.setProperty(QStringLiteral("ours"), run.engine().controlValue(&ours));
        QVERIFY(run.engine().registerModule(QStringLiteral("ours"), exports));
        QVERIFY2(run.run(QStringLiteral("import { ours } from 'ours'; report(ours.itself() === ours);"
                                        "echo.outlet = ours; report(echo.outlet === ours); report(ours.whole);"
                                        "report(echo.giveControl(ours).whole);")),
                 qPrintable(run.error));
        const QStringList expected = {QStringLiteral("true"), QStringLiteral("true"), QStringLiteral("5"),
                                      QStringLiteral("5")};
        QCOMPARE(run.reports, expected);
        run.engine().engine().collectGarbage();
    }
    QCOMPARE(EchoService::livingCount, before);
    QCOMPARE(ours.property("whole").toInt(), 5);
}

void TestSeamFacade::answersManyCallsAndPrintsWhatOneCosts()
{
    ScriptRun run;
    QVERIFY2(run.run(QStringLiteral("const count = 20000, start = Date.now();"
                                    "for (let i = 0; i < count; ++i) echo.takeTwo('a', i);"
                                    "report((Date.now() - start) * 1000 / count);")),
             qPrintable(run.error));
    const double microseconds = run.reports.value(0).toDouble();
    qInfo("one call: %.2f microseconds", microseconds);
    QVERIFY(microseconds > 0);
}

QUORLIN_TEST(TestSeamFacade)
#include "tst_seam_facade.moc"
