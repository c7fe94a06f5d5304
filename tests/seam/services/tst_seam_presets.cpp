#include "tests/seam/support/ScriptRun.h"

#include "tests/support/log_capture.h"
#include "tests/support/own_settings.h"
#include "tests/support/preset_store.h"
#include "tests/support/test_program.h"

#include <QTest>

namespace {

const QString imports =
    QStringLiteral("import { dbViewController, Ztbookmarks, cSheetControl } from 'quorlin'; "
                   "const db = new dbViewController(); db.linkToPresetsDB(); const marks = new Ztbookmarks(); "
                   "const row = (name, process) => [name, process, 'x'].concat(Array(59).fill('')); "
                   "const text = bytes => String.fromCharCode.apply(null, Array.from(new Uint8Array(bytes))); ");

} // namespace

/** The presets database, bookmarks and the preferences sheet as scripts meet them. */
class TestSeamPresets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void answersInTheFormsOfScripts_data();
    void answersInTheFormsOfScripts();
    void emptiesTheVeryListThatItGave();
    void raisesErrorsWithTheirNames();
    void opensTheVerySheet();

private:
    std::unique_ptr<PresetStore> m_store;
};

void TestSeamPresets::init()
{
    m_store = std::make_unique<PresetStore>();
    keepSettingsIn(m_store->home());
}

void TestSeamPresets::answersInTheFormsOfScripts_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, outcome] : std::initializer_list<Row>{
             {"db.linkToPresetsDB()", "null"},
             {"db.dbFilePath().slice(-26)", "\"/BrelmarkCom/QuorlinPS.sql\""},
             {"[db.myDb, db.myPresetExist, db.myPresetValueStr, db.myPresetsArray, db.myPresetsArrayToPass, "
              "db.myEmptyArray, db.mySearchValue4]",
              "[null,null,null,null,null,null,null]"},
             {"[db.openmyPresetsDb(), db.myDb !== null, db.getAllRowsFromTableNamed('Presets'), db.myDb]",
              "[null,true,null,null]"},
             {"[db.setMyPresetValueStr('v'), db.myPresetValueStr]", "[null,\"v\"]"},
             {"(() => { db.myPresetValueStr = 'w'; return db.myPresetValueStr; })()", "\"w\""},
             {"db.checkPresetNameFromTableNamed('Presets', 'NameOfPreset', 'x')", "null"},
             {"db.removePresetFromDatabase('None', 'NameOfPreset', 'x')", "\"preset not found\""},
             {"db.checkForActionType('Presets', 'Process', 'x')", "null"},
             {"['\\uFEFFa', '\\uFEFF', 'a\\uFEFF'].map(n => { db.insertSortingPresetToDB01(row(n, n)); "
              "return db.checkPresetNameFromTableNamed('Presets', 'NameOfPreset', n) === n && "
              "db.checkForActionType('Presets', 'Process', n)[0].split('|')[0] === n; })",
              "[true,true,true]"},
             {"(() => { db.insertSortingPresetToDB01(row('a?', 'p')); "
              "const answer = db.removePresetFromDatabase('Presets', 'NameOfPreset', 'a\\uD800'); "
              "return [answer, db.checkPresetNameFromTableNamed('Presets', 'NameOfPreset', 'a?')]; })()",
              "[\"preset not found\",\"a?\"]"},
             {"(() => { try { db.insertSortingPresetToDB01(row('\\uDC00', 'p')); } catch (e) { return e.message; } "
              "})()",
              "\"Error updating table.\""},
             {"[db.myPresetsArray, db.myPresetsArrayToPass]", "[null,null]"},
             {"(db.checkForActionType('Presets', 'Process', 'x'), [db.myPresetsArray, db.myPresetsArrayToPass])",
              "[[],null]"},
             {"db.hGetBookMarkedFolders('AppBookmarks', 'StrField0', 'x', 'StrField1', '', 'ID, StrField0')", "null"},
             {"text(db.hGetBookMarkedFolders('AppResource', 'StrField0', 'appSys', 'StrField1', '', 'ID, StrField0'))",
              "\"appSys\""},
             {"db.hGetBookMarkedFolders('AppResource', 'StrField0', 'appSys', 'StrField1', '', 'ID').byteLength", "0"},
             {"db.LoadImagesFromSql('file:///a')", "null"},
             {"db.creatTableIfNotExist()", "null"},
             {"marks.bookmarkForURL('file:///no/such')", "null"},
             {"marks.urlForBookmark(null)", "null"},
             {"marks.urlForBookmark(new ArrayBuffer(0))", "null"},
             {"marks.urlForBookmark(marks.bookmarkForURL('file:///tmp'))", "\"file:///tmp\""},
         })
        QTest::newRow(expression) << QString::fromLatin1(expression) << QString::fromLatin1(outcome);
}

void TestSeamPresets::answersInTheFormsOfScripts()
{
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    ScriptRun run;
    const LogCapture log;
    QVERIFY2(run.run(imports + QStringLiteral("report(") + expression + QStringLiteral(");")), qPrintable(run.error));
    QCOMPARE(run.reports, QStringList{outcome});
}

void TestSeamPresets::emptiesTheVeryListThatItGave()
{
    ScriptRun run;
    QVERIFY2(
        run.run(imports +
                QStringLiteral(
                    "db.insertHTMLPresetToDB01(row('a', 'P')); db.insertHTMLPresetToDB01(row('b', 'P'));"
                    "const ask = process => db.checkForActionType('Presets', 'Process', process);"
                    "const first = ask('P'); report([first.length, first[0].slice(0, 6), first[1].split('|').length]);"
                    "report([first === db.myPresetsArray, first === db.myPresetsArrayToPass]);"
                    "first.push('more'); const second = ask('none'); report([second === first, first.length]);"
                    "report([db.myPresetsArray === first, db.myPresetsArrayToPass === first]);"
                    "const third = ask('P'); report([third !== first, third.length, first.length]);"
                    "const failed = ask(\"it's\"); report([failed === third, third.length]);"
                    "const copy = third.slice(); const fourth = ask('P');"
                    "report([fourth !== third, third.length, copy.length, fourth.length]);")),
        qPrintable(run.error));
    const QStringList expected = {QStringLiteral("[2,\"a|P|x|\",62]"), QStringLiteral("[true,true]"),
                                  QStringLiteral("[true,0]"),          QStringLiteral("[false,true]"),
                                  QStringLiteral("[true,2,0]"),        QStringLiteral("[true,2]"),
                                  QStringLiteral("[true,0,2,2]")};
    QCOMPARE(run.reports, expected);
}

void TestSeamPresets::raisesErrorsWithTheirNames()
{
    ScriptRun run;
    QVERIFY2(run.run(imports + QStringLiteral("const seen = f => { try { f(); report('nothing'); } catch (e) {"
                                              " report([e instanceof Error, e.name, e.message, db.myDb]); } };\n"
                                              "seen(() => db.insertSortingPresetToDB01(row(\"it's\", 'P')));\n"
                                              "seen(() => db.createTableNamed('T', row('a', 'a')));\n"
                                              "seen(() => db.insertSortingPresetToDB01(row('a', 'P').slice(1)));\n"
                                              "seen(() => db.insertSortingPresetToDB01(row('a', null)));\n"
                                              "seen(() => db.insertSortingPresetToDB01(row('a', 3)));\n"
                                              "seen(() => db.createTableNamed('T', null));\n"
                                              "seen(() => db.insertRecordIntoTableNamed('Presets', row('a', 'P')));\n"
                                              "seen(() => db.checkForActionType('Presets', 'Process'));\n"
                                              "seen(() => marks.bookmarkForURL('/tmp'));\n"
                                              "seen(() => db.hGetBookMarkedFolder());\n")),
             qPrintable(run.error));
    const QStringList expected = {
        QStringLiteral("[true,\"InternalInconsistency\",\"Error updating table.\",null]"),
        QStringLiteral("[true,\"InternalInconsistency\",\"Presets Table failed to create.\",null]"),
        QStringLiteral("[true,\"TypeError\",\"Expected a list of 62 texts for values but received 61\",null]"),
        QStringLiteral("[true,\"TypeError\",\"Expected text for values[1] but received null\",null]"),
        QStringLiteral("[true,\"TypeError\",\"Expected text for values[1] but received 3\",null]"),
        QStringLiteral("[true,\"TypeError\",\"Expected a list of 62 texts for names but received 0\",null]"),
        QStringLiteral("[true,\"TypeError\",\"insertRecordIntoTableNamed takes 3 arguments but received 2\",null]"),
        QStringLiteral("[true,\"TypeError\",\"checkForActionType takes 3 arguments but received 2\",null]"),
        QStringLiteral("[true,\"TypeError\",\"Expected a location such as file:///a/b.jpg or null for url but received "
                       "\\\"/tmp\\\"\",null]"),
        QStringLiteral("[true,\"TypeError\",\"dbViewController has no operation or field hGetBookMarkedFolder\",null]"),
    };
    QCOMPARE(run.reports, expected);
}

void TestSeamPresets::opensTheVerySheet()
{
    qputenv("QUORLIN_INTERFACE", QFile::encodeName(m_store->home()));
    ScriptRun run;
    QVERIFY2(
        run.run(
            imports +
            QStringLiteral(
                "const sheets = new cSheetControl(); const main = new Window(), prefs = new Window();"
                "sheets.wwMainWindow = main; sheets.wwPreferencesWindow = prefs;"
                "sheets.tfLibraryFilePath = new TextField({stringValue: 'before'});"
                "sheets.hCallPreferencesWw(null);"
                "report([main.sheet === prefs, prefs.sheet, sheets.tfLibraryFilePath.stringValue]);"
                "panels.accept(['%1']); sheets.setLibraryDestination();"
                "report([panels.shown.length, panels.shown[0].message, sheets.tfLibraryFilePath.stringValue === '%1']);"
                "report(marks.urlForBookmark(defaults.get('SupportFilesDestination')) === 'file://%1');"
                "report([defaults.get('PatternsDestination'), defaults.get('WatermarksDestination')]);")
                .arg(m_store->home())),
        qPrintable(run.error));
    const QStringList expected = {
        QStringLiteral("[true,null,\"before\"]"),
        QStringLiteral("[1,\"*** FIRST: Choose a root support folder please: ***\",true]"),
        QStringLiteral("true"),
        QStringLiteral("[\"%1/Brelmark_SupportFiles/Patterns\",\"%1/Brelmark_SupportFiles/Watermarks\"]")
            .arg(m_store->home()),
    };
    QCOMPARE(run.reports, expected);
}

QUORLIN_TEST(TestSeamPresets)
#include "tst_seam_presets.moc"
