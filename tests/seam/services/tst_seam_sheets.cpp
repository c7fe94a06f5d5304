#include "tests/seam/support/ScriptRun.h"

#include "tests/support/own_settings.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

/** The sheets with all their controls, on one main window. */
const char *const window =
    "import { cSheetControl, Messenger } from 'quorlin';\n"
    "const main = new Window(), preferences = new Window(), version = new Window(), "
    "info = new Window(), title = new TextField(), text = new TextView(), line = new TextField(), "
    "notes = new TextView(), path = new TextField();\n"
    "const s = new cSheetControl();\n"
    "s.wwMainWindow = main; s.wwPreferencesWindow = preferences; s.wwApplicationVersionWindow = "
    "version; s.wwApplicationInfoSheet = info; s.tfInfoTitle = title; s.tvInfoDescription = text; "
    "s.tfNewApplicationVersion = line; s.tvWhatsNew = notes; s.tfLibraryFilePath = path;\n"
    "const nameOf = sheet => sheet === null ? 'none' : sheet === preferences ? 'preferences' : "
    "sheet === version ? 'version' : sheet === info ? 'info' : 'another';\n"
    "const open = () => nameOf(main.sheet);\n";

using Row = std::pair<const char *, const char *>;

void addRows(std::initializer_list<Row> rows)
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("outcome");
    for (const auto &[script, outcome] : rows)
        QTest::newRow(script) << QString::fromUtf8(script) << QString::fromUtf8(outcome);
}

} // namespace

/** Sheets, help on single things, the new-version sheet and texts by key, as scripts have them. */
class TestSeamSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsItsOutlets();
    void opensAndClosesSheets_data();
    void opensAndClosesSheets();
    void addsNotesToThoseThatAreThere_data();
    void addsNotesToThoseThatAreThere();
    void replacesAsMuchTextAsTheTitleIsLong_data();
    void replacesAsMuchTextAsTheTitleIsLong();
    void showsTheTextsOfFixedKeys_data();
    void showsTheTextsOfFixedKeys();
    void showsTheKeysWithoutTexts_data();
    void showsTheKeysWithoutTexts();
    void shipsTextsInEachLanguage_data();
    void shipsTextsInEachLanguage();
    void looksUpTexts_data();
    void looksUpTexts();
    void opensTheProductPage_data();
    void opensTheProductPage();
    void worksWithoutControls();
    void refusesWrongArguments_data();
    void refusesWrongArguments();

private:
    QString outcomeOf(const QString &script);
    void compareOutcome();
    void useTables(const char *table);
    void write(const char *path, const QByteArray &content, QFile::Permissions more = {});
    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSeamSheets::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    keepSettingsIn(m_folder->filePath(QStringLiteral("config")));
    for (const char *variable : {"QUORLIN_INTERFACE", "QUORLIN_LANGUAGE", "QUORLIN_PRODUCT_PAGE"})
        qunsetenv(variable);
}

void TestSeamSheets::write(const char *path, const QByteArray &content, QFile::Permissions more)
{
    const QString full = m_folder->filePath(QString::fromLatin1(path));
    QVERIFY(QDir().mkpath(QFileInfo(full).path()));
    QFile file(full);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    QVERIFY(file.setPermissions(file.permissions() | more));
}

void TestSeamSheets::useTables(const char *table)
{
    write("interface/texts/en/Localizable.json", table);
    qputenv("QUORLIN_INTERFACE", QFile::encodeName(m_folder->filePath(QStringLiteral("interface"))));
}

/** The script's report, as JSON between spaces. */
QString TestSeamSheets::outcomeOf(const QString &script)
{
    ScriptRun run;
    if (!run.run(QString::fromLatin1(window) + script))
        return QStringLiteral("failed: ") + run.error;
    return run.reports.join(u' ');
}

void TestSeamSheets::compareOutcome()
{
    QFETCH(QString, script);
    QTEST(outcomeOf(script), "outcome");
}

void TestSeamSheets::keepsItsOutlets()
{
    QCOMPARE(outcomeOf(QStringLiteral("const names = Object.keys(s); report(names); const empty = new cSheetControl(); "
                                      "report(names.every(name => empty[name] === null && s[name] !== null)); "
                                      "s.wwMainWindow = null; report(s.wwMainWindow);")),
             QStringLiteral("[\"wwMainWindow\",\"wwPreferencesWindow\",\"wwApplicationVersionWindow\","
                            "\"tfLibraryFilePath\",\"tfNewApplicationVersion\",\"wwApplicationInfoSheet\","
                            "\"tvInfoDescription\",\"tfInfoTitle\",\"tvWhatsNew\"] true null"));
}

void TestSeamSheets::opensAndClosesSheets_data()
{
    addRows({
        {"s.hCallPreferencesWw(null); report(open()); s.closePreferencesSheetObjC(null); report(open());",
         "\"preferences\" \"none\""},
        {"s.hCallApplicationUpdate('a', 'b', 'c'); report(open()); s.closeApplicationVersionSheetObjC(7); "
         "report(open());",
         "\"version\" \"none\""},
        {"s.hInfoWindow('a', 'b', 'c'); report(open()); s.closeApplicationInfoSheetObjC(s); report(open());",
         "\"info\" \"none\""},
        // Only its own sheet is closed.
        {"s.hInfoWindow('a', 'b', 'c'); s.closePreferencesSheetObjC(null); s.closeApplicationVersionSheetObjC(null); "
         "s.goToProductPage(null); report(open());",
         "\"info\""},
        {"s.closePreferencesSheetObjC(null); s.closeApplicationInfoSheetObjC(null); report(open());", "\"none\""},
        // A sheet is open until it is closed, also under another one.
        {"s.hCallPreferencesWw(null); s.hInfoWindow('a', 'b', 'c'); report(open()); "
         "s.closeApplicationInfoSheetObjC(null); report(open()); s.closePreferencesSheetObjC(null); report(open());",
         "\"info\" \"preferences\" \"none\""},
        {"s.hCallPreferencesWw(null); s.hInfoWindow('a', 'b', 'c'); s.closePreferencesSheetObjC(null); report(open()); "
         "s.closeApplicationInfoSheetObjC(null); report(open());",
         "\"info\" \"none\""},
        // Nothing asks whether it is open already.
        {"s.hCallPreferencesWw(null); s.hCallPreferencesWw(null); report(open()); s.closePreferencesSheetObjC(null); "
         "report(open()); s.hCallPreferencesWw(null); report(open());",
         "\"preferences\" \"none\" \"preferences\""},
        {"main.sheet = preferences; s.closePreferencesSheetObjC(null); report(open());", "\"none\""},
        {"const other = new Window(); s.hCallPreferencesWw(null); s.wwMainWindow = other; "
         "s.closePreferencesSheetObjC(null); report([open(), other.sheet]);",
         "[\"none\",null]"},
        {"s.hCallPreferencesWw(null); report(s.didEndSheet(preferences, 0, null)); report(open());", "null \"none\""},
        {"s.hCallPreferencesWw(null); s.didEndSheet(info, 1, {}); report(open());", "\"preferences\""},
        {"report(s.didEndSheet(null, -1, 'x')); report(open());", "null \"none\""},
        {"report([s.hCallPreferencesWw(null), s.closePreferencesSheetObjC(null), s.hCallApplicationUpdate('a', 'b', "
         "'c'), "
         "s.closeApplicationVersionSheetObjC(null), s.goToProductPage(null), s.hInfoWindow('a', 'b', 'c'), "
         "s.closeApplicationInfoSheetObjC(null), s.mySimulationMode(null)]);",
         "[null,null,null,null,null,null,null,null]"},
    });
}

void TestSeamSheets::opensAndClosesSheets()
{
    compareOutcome();
}

void TestSeamSheets::addsNotesToThoseThatAreThere_data()
{
    addRows({
        {"s.hCallApplicationUpdate('Version', '3.2', 'New: <b>frames</b>'); report([line.stringValue, notes.text]);",
         "[\"Version 3.2\",\"New: <b>frames</b>\"]"},
        {"s.hCallApplicationUpdate('Version', '3.2', 'one'); s.hCallApplicationUpdate('Now', '3.3', 'two'); "
         "report([line.stringValue, notes.text]);",
         "[\"Now 3.3\",\"onetwo\"]"},
        {"s.hCallApplicationUpdate('a', 'b', 'one'); s.closeApplicationVersionSheetObjC(null); "
         "s.hCallApplicationUpdate('a', 'b', 'two\\n'); report(notes.text);",
         "\"onetwo\\n\""},
        {"notes.text = 'before '; s.hCallApplicationUpdate('a', 'b', 'one'); report(notes.text);", "\"before one\""},
        {"s.hCallApplicationUpdate('', '', ''); report([line.stringValue, notes.text, open()]);",
         "[\" \",\"\",\"version\"]"},
        {"notes.text = 'x'; s.hCallApplicationUpdate(null, '3.2', null); report([line.stringValue, notes.text]);",
         "[\"(null) 3.2\",\"x\"]"},
    });
}

void TestSeamSheets::addsNotesToThoseThatAreThere()
{
    compareOutcome();
}

void TestSeamSheets::replacesAsMuchTextAsTheTitleIsLong_data()
{
    addRows({
        {"s.hInfoWindow('x', 'five', 'said'); report([title.stringValue, text.text]);", "[\"Title\",\"Message\"]"},
        {"text.text = '0123456789'; s.hInfoWindow('x', 'five', 'said'); report(text.text);", "\"Message56789\""},
        {"text.text = '01234'; s.hInfoWindow('x', 'five', 'said'); report(text.text);", "\"Message\""},
        {"text.text = '012'; s.hInfoWindow('x', 'five', 'said'); report(text.text);", "\"Message\""},
        {"text.text = '012'; s.hInfoWindow('x', 'none', 'said'); report([title.stringValue, text.text]);",
         "[\"\",\"Message012\"]"},
        {"text.text = '0123456789'; s.hInfoWindow('x', 'five', 'none'); report(text.text);", "\"56789\""},
        // In UTF-16 units: the title is two characters and three units long.
        {"text.text = '012345'; s.hInfoWindow('x', 'wide', 'said'); report([title.stringValue, text.text]);",
         "[\"é😀\",\"Message345\"]"},
        {"s.hInfoWindow('x', 'five', 'said'); s.hInfoWindow('x', 'five', 'said'); report(text.text);", "\"Messagege\""},
        {"text.text = '0123456789'; s.hInfoWindow('x', 'unknown', 'unsaid'); report([title.stringValue, text.text]);",
         "[\"unknown\",\"unsaid789\"]"},
        {"s.hInfoWindow(null, 'five', 'said'); report([title.stringValue, text.text]);", "[\"Title\",\"Message\"]"},
        {"text.text = '012'; s.hInfoWindow('x', null, null); report([title.stringValue, text.text]);",
         "[\"\",\"012\"]"},
    });
}

void TestSeamSheets::replacesAsMuchTextAsTheTitleIsLong()
{
    useTables(
        "{\"five\": \"Title\", \"said\": \"Message\", \"none\": \"\", \"wide\": \"é😀\", \"x\": \"not to be seen\"}");
    compareOutcome();
}

void TestSeamSheets::showsTheTextsOfFixedKeys_data()
{
    addRows({
        {"mySimulationMode", "[\"1\",\"2\",\"info\"]"},
        {"hTextWMPresetsInfo", "[\"3\",\"4\",\"info\"]"},
        {"hImageWMPresetsInfo", "[\"3\",\"4\",\"info\"]"},
        {"hWMDestinationFolderInfo", "[\"5\",\"6\",\"info\"]"},
        {"hLibCheckboxInfo", "[\"7\",\"8\",\"info\"]"},
    });
}

void TestSeamSheets::showsTheTextsOfFixedKeys()
{
    useTables(
        "{\"isSimulationMode\": \"1\", \"isSimulationModeMessage\": \"2\", \"isSave\": \"3\", \"isSaveMessage\": "
        "\"4\", "
        "\"isChooseFolder\": \"5\", \"isChooseFolderMessage\": \"6\", \"fromLib\": \"7\", \"fromLibMessage\": \"8\"}");
    QFETCH(QString, script);
    QTEST(outcomeOf(QStringLiteral("s.%1(null); report([title.stringValue, text.text, open()]);").arg(script)),
          "outcome");
}

void TestSeamSheets::showsTheKeysWithoutTexts_data()
{
    addRows({
        {"mySimulationMode", "[\"isSimulationMode\",\"isSimulationModeMessage\"]"},
        {"hTextWMPresetsInfo", "[\"isSave\",\"isSaveMessage\"]"},
        {"hImageWMPresetsInfo", "[\"isSave\",\"isSaveMessage\"]"},
        {"hWMDestinationFolderInfo", "[\"isChooseFolder\",\"isChooseFolderMessage\"]"},
        {"hLibCheckboxInfo", "[\"fromLib\",\"fromLibMessage\"]"},
    });
}

void TestSeamSheets::showsTheKeysWithoutTexts()
{
    useTables("{}");
    QFETCH(QString, script);
    QTEST(outcomeOf(QStringLiteral("s.%1(null); report([title.stringValue, text.text]);").arg(script)), "outcome");
}

void TestSeamSheets::shipsTextsInEachLanguage_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("en") << "Choosing a folder";
    QTest::newRow("nl") << "Een map kiezen";
    QTest::newRow("de") << "Einen Ordner wählen";
    QTest::newRow("fr") << "Choisir un dossier";
    QTest::newRow("es") << "Choosing a folder"; // as the system of the tests says: none of them
}

void TestSeamSheets::shipsTextsInEachLanguage()
{
    QFETCH(QString, title);
    qputenv("QUORLIN_LANGUAGE", QTest::currentDataTag());
    const QString all = outcomeOf(QStringLiteral(
        "s.hWMDestinationFolderInfo(null); report(title.stringValue); const missing = []; "
        "for (const f of ['mySimulationMode', 'hTextWMPresetsInfo', 'hWMDestinationFolderInfo', 'hLibCheckboxInfo']) { "
        "text.text = ''; s[f](null); if (text.text.length < 100 || /Message/.test(text.text)) missing.push(f); } "
        "report(missing); report(['NotSupported', 'NotSupportedOrAvailable'].filter(k => s.hGetTranslation(k, '?') === "
        "'?'));"));
    QCOMPARE(all, QStringLiteral("\"%1\" [] []").arg(title));
}

void TestSeamSheets::looksUpTexts_data()
{
    addRows({
        {"report(s.hGetTranslation('five', 'default'));", "\"Title\""},
        {"report(s.hGetTranslation('missing', 'default'));", "\"default\""},
        {"report(s.hGetTranslation('missing', null));", "\"missing\""},
        {"report(s.hGetTranslation('missing', ''));", "\"missing\""},
        {"report(s.hGetTranslation('none', 'default'));", "\"\""},
        {"const m = new Messenger(); report(m.getLangStr('five', 'default', 'Help'));", "\"Five in Help\""},
        {"const m = new Messenger(); report(m.getLangStr('said', 'default', 'Help'));", "\"default\""},
        {"const m = new Messenger(); report(m.getLangStr('said', null, 'Help'));", "\"said\""},
        {"const m = new Messenger(); report(m.getLangStr('five', 'default', null));", "\"Title\""},
        {"const m = new Messenger(); report(m.getLangStr('five', 'default', ''));", "\"Title\""},
        {"const m = new Messenger(); report(m.getLangStr('five', 'default', 'Nowhere'));", "\"default\""},
        {"const m = new Messenger(); report(m.getLangStr('five', 'default', '../en/Help'));", "\"default\""},
    });
}

void TestSeamSheets::looksUpTexts()
{
    useTables("{\"five\": \"Title\", \"said\": \"Message\", \"none\": \"\"}");
    write("interface/texts/en/Help.json", "{\"five\": \"Five in Help\"}");
    compareOutcome();
}

void TestSeamSheets::opensTheProductPage_data()
{
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QByteArray>("opened");
    QTest::newRow("configured") << QByteArray("https://example.org/quorlin?a=b")
                                << QByteArray("https://example.org/quorlin?a=b");
    QTest::newRow("not configured") << QByteArray() << QByteArray();
    QTest::newRow("no address") << QByteArray("example") << QByteArray();
}

void TestSeamSheets::opensTheProductPage()
{
    QFETCH(QByteArray, page);
    QFETCH(QByteArray, opened);
    const QByteArray search = qgetenv("PATH");
    const QString log = m_folder->filePath(QStringLiteral("opened"));
    write("bin/xdg-open",
          "#!/bin/sh\nprintf %s \"$1\" > '" + QFile::encodeName(log) + ".new'\nmv '" + QFile::encodeName(log) +
              ".new' '" + QFile::encodeName(log) + "'\n",
          QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(m_folder->filePath(QStringLiteral("bin"))) + ":" + search);
    if (!page.isEmpty())
        qputenv("QUORLIN_PRODUCT_PAGE", page);
    const QString outcome = outcomeOf(
        QStringLiteral("s.hCallApplicationUpdate('a', 'b', 'c'); report(s.goToProductPage(null)); report(open());"));
    if (!opened.isEmpty())
        QTRY_VERIFY(QFile::exists(log));
    else
        QTest::qWait(100);
    qputenv("PATH", search);
    QFile file(log);
    QCOMPARE(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), opened);
    QCOMPARE(outcome, QStringLiteral("null \"none\""));
}

void TestSeamSheets::worksWithoutControls()
{
    QCOMPARE(outcomeOf(QStringLiteral(
                 "const e = new cSheetControl(); e.hCallPreferencesWw(null); e.closePreferencesSheetObjC(null); "
                 "e.hCallApplicationUpdate('a', 'b', 'c'); e.closeApplicationVersionSheetObjC(null); "
                 "e.goToProductPage(null); e.hInfoWindow('a', 'b', 'c'); e.closeApplicationInfoSheetObjC(null); "
                 "e.hLibCheckboxInfo(null); e.wwMainWindow = main; e.hInfoWindow('a', 'b', 'c'); report(open());")),
             QStringLiteral("\"none\""));
}

void TestSeamSheets::refusesWrongArguments_data()
{
    addRows({
        {"reportError(() => s.hInfoWindow('a', 'b'));", "TypeError"},
        {"reportError(() => s.hInfoWindow('a', 'b', 3));", "TypeError"},
        {"reportError(() => s.hCallApplicationUpdate('a', 'b', 'c', 'd'));", "TypeError"},
        {"reportError(() => s.closePreferencesSheetObjC());", "TypeError"},
        {"reportError(() => s.didEndSheet('sheet', 0, null));", "TypeError"},
        {"reportError(() => s.didEndSheet(null, '0', null));", "TypeError"},
        {"reportError(() => s.hGetTranslation('a'));", "TypeError"},
        {"reportError(() => new Messenger().getLangStr('a', 'b'));", "TypeError"},
    });
}

void TestSeamSheets::refusesWrongArguments()
{
    QFETCH(QString, script);
    QTEST(outcomeOf(script).section(u':', 0, 0), "outcome");
}

QUORLIN_GUI_TEST(TestSeamSheets)
#include "tst_seam_sheets.moc"
